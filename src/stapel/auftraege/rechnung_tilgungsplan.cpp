#include <string>
#include <vector>

#include "kern/allround/stillrechnen.h"
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

constexpr auto tilgungsplanfelder =
    Auftragsfelder(Pflichtfeld<&Planauftrag::Zahlungen>("Zahlungen"),
                   Pflichtfeld<&Planauftrag::Combo4>("Combo4"), Pflichtfeld<&Planauftrag::Combo6>("Combo6"));

std::optional<Ablehnung> RechneTilgungsplan(const Planauftrag& auftrag, JsonSchreiber& ergebnis) {
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

constexpr Rechnungsart rechnungTilgungsplan =
    Auftragsart<tilgungsplanfelder, RechneTilgungsplan>("tilgungsplan");

}  // namespace zinfolio
