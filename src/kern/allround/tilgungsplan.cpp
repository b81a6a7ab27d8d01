#include "kern/allround/tilgungsplan.h"

#include "kern/allround/nominalsuche.h"
#include "kern/dates/zahl.h"
#include "kern/dates/zahlformat.h"
#include "kern/finmath/herleitung.h"
#include "kern/finmath/reiheauswerten.h"
#include "kern/staffel/staffelberechnung.h"

namespace zinfolio {
namespace {

constexpr Zahlmuster zinsmuster = Zahlmuster::Lesen("###,##0.00000");

/// Calculates the plan at a rate and gives its closing balance.
double Plandurchlauf(std::vector<Staffelsatz>& tableau, double zinssatz, Verzinsungsmethode methode) {
    PlansatzSetzen(tableau.front(), zinssatz);
    for (Staffelsatz& satz : tableau) {
        satz.Periodenzins = 0;
        satz.Kumulzins = 0;
        satz.Zinsgutschrift = 0;
        satz.Kontostand = 0;
    }
    Staffelberechnung(tableau, methode);
    return tableau.back().Kontostand;
}

std::string Zinstext(double zinssatz) {
    return Format(zinssatz, zinsmuster) + " %";
}

/// What a calendar year adds up to.
struct Jahressummen {
    double zahlungen = 0;
    double auszahlungen = 0;
    double zinsen = 0;

    void Weiter(const Staffelsatz& satz) {
        satz.Zahlbetrag < 0 ? zahlungen -= satz.Zahlbetrag : auszahlungen += satz.Zahlbetrag;
        zinsen += satz.Zinsgutschrift;
    }
};

Staffelsatz Kurzsatz(const Staffelsatz& letzter, const Jahressummen& summen) {
    Staffelsatz satz;
    satz.Satzdatum = letzter.Satzdatum;
    satz.Zahlbetrag = summen.zahlungen;
    satz.kondition.Guthabenlinie = summen.auszahlungen;
    satz.kondition.Kreditlinie = letzter.Kontostand;
    satz.Kumulzins = summen.zahlungen - summen.zinsen;
    satz.Zinsgutschrift = summen.zinsen;
    return satz;
}

}  // namespace

std::optional<Ablehnung> TilgungsplanRechnen(std::span<const Reihensatz> reihe, const Planeingabe& eingabe,
                                             Tilgungsplan& plan, const Suchbeobachter& beobachter) {
    plan = {};
    if (reihe.empty()) return OhneZahlungen(meldung::erstZahlungen);
    const auto ersterTermin = ErsterPlantermin(DatumVon(reihe.front()), eingabe.Combo4);
    const std::string effektivergebnis = ReiheAuswerten(reihe, Effektivmethode::pangv2000).Effektivzins;
    if (effektivergebnis.empty()) return Ablehnung{std::string(meldung::keinTilgungsplan), "", ""};
    const double effektivzins = Zahlwert(effektivergebnis);
    auto& tableau = plan.Tableau.emplace();
    PlanzeilenErzeugen(reihe, eingabe.Combo4, ersterTermin, effektivzins, tableau);
    std::size_t runden = 0;
    const auto nominalzins = NominalzinsSuchen(effektivzins, [&](double zinssatz) {
        if (beobachter && !beobachter(runden++)) throw RechnungAbgebrochen();
        return Plandurchlauf(tableau, zinssatz, eingabe.Combo6);
    });
    if (!nominalzins) return Ablehnung{std::string(meldung::keinTilgungsplan), "", ""};
    plan.Nominalzins = *nominalzins;
    plan.nomzins = Zinstext(*nominalzins);
    plan.Kurztableau = KurztableauBilden(tableau);
    plan.effzinssatz = Zinstext(effektivzins);
    return std::nullopt;
}

std::vector<Staffelsatz> KurztableauBilden(std::span<const Staffelsatz> tableau) {
    std::vector<Staffelsatz> kurztableau;
    Jahressummen summen;
    for (std::size_t i = 0; i < tableau.size(); ++i) {
        summen.Weiter(tableau[i]);
        if (i + 1 < tableau.size() && DatumVon(tableau[i + 1]).Jahr() == DatumVon(tableau[i]).Jahr())
            continue;
        kurztableau.push_back(Kurzsatz(tableau[i], summen));
        summen = {};
    }
    return kurztableau;
}

}  // namespace zinfolio
