#include <string>
#include <vector>

#include "kern/allround/planansicht.h"
#include "kern/allround/tilgungsplan.h"
#include "kern/allround/zahlungsreihe.h"
#include "stapel/auftraege/allroundfelder.h"
#include "stapel/auftraege/felder.h"
#include "stapel/auftraege/rechnungen.h"

namespace zinfolio {
namespace {

struct Planauftrag {
    SortierteZahlungen Zahlungen;
    Plantermine Combo4{};
    Verzinsungsmethode Combo6{};
};

constexpr auto felder =
    Auftragsfelder(Pflichtfeld<&Planauftrag::Zahlungen>("Zahlungen"),
                   Pflichtfeld<&Planauftrag::Combo4>("Combo4"), Pflichtfeld<&Planauftrag::Combo6>("Combo6"));

void KoepfeSchreiben(const Zellentabelle& tabelle, JsonSchreiber& ergebnis) {
    ergebnis.ListeAuf();
    for (const std::string& kopf : tabelle.Koepfe())
        ergebnis.Wert(std::string_view(kopf));
    ergebnis.ListeZu();
}

void PlanSchreiben(const Tilgungsplan& plan, JsonSchreiber& ergebnis) {
    const Zellentabelle jahresweise = Zinsstaffelanzeige2(*plan.Kurztableau, plan.Nominalzins);
    const Zellentabelle unterjaehrig = Zinsstaffelanzeige1(*plan.Tableau, plan.Nominalzins);
    ergebnis.Feld("nomzins", plan.nomzins);
    ergebnis.Feld("effzinssatz", plan.effzinssatz);
    ergebnis.Feld("Nominalzins", plan.Nominalzins);
    TabelleSchreiben("Jahresweise", jahresweise, ergebnis);
    TabelleSchreiben("Unterjährig", unterjaehrig, ergebnis);
    ergebnis.Name("Spalten");
    ergebnis.ListeAuf();
    KoepfeSchreiben(jahresweise, ergebnis);
    KoepfeSchreiben(unterjaehrig, ergebnis);
    ergebnis.ListeZu();
}

std::optional<Ablehnung> Rechne(const Planauftrag& auftrag, JsonSchreiber& ergebnis) {
    return StillRechnen([&]() -> std::optional<Ablehnung> {
        std::vector<Reihensatz> reihe;
        ReiheSchreiben(auftrag.Zahlungen.saetze, reihe);
        if (!HatBeideRichtungen(reihe))
            return Ablehnung{std::string(meldung::keinPlanInEineRichtung), "", ""};
        Tilgungsplan plan;
        if (auto ablehnung = TilgungsplanRechnen(reihe, {auftrag.Combo4, auftrag.Combo6}, plan))
            return ablehnung;
        PlanSchreiben(plan, ergebnis);
        return std::nullopt;
    });
}

}  // namespace

constexpr Rechnungsart rechnungTilgungsplan = Auftragsart<felder, Rechne>("tilgungsplan");

}  // namespace zinfolio
