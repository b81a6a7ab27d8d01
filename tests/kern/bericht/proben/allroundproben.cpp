#include <stdexcept>

#include "kern/allround/ansichten.h"
#include "kern/allround/reihenzins.h"
#include "kern/allround/sensitivitaet.h"
#include "kern/allround/tilgungsplan.h"
#include "kern/allround/zahlungsreihe.h"
#include "kern/bericht/proben/proben.h"
#include "kern/staffel/herleitungsbericht.h"

namespace zinfolio {
namespace {

constexpr const char* projekt = "Müller & {Söhne}.RRR";

/// Nine tenths of the payments at the start of 2005, the others of 100 each half a year after that.
std::vector<Staffelsatz> Investition(std::size_t zahlungen, double vorzeichen = 1) {
    const Datum anfang = *Datum::Aus(2005, 1, 1);
    const double einsatz = -90.0 * static_cast<double>(zahlungen - 1);
    std::vector<Staffelsatz> saetze{Zahlungssatz(anfang.Text(), vorzeichen * einsatz, "")};
    for (std::size_t i = 1; i < zahlungen; ++i)
        saetze.push_back(
            Zahlungssatz(PlusMonate(anfang, 6 * static_cast<int>(i)).Text(), vorzeichen * 100, ""));
    return saetze;
}

std::vector<Reihensatz> Reihe(std::size_t zahlungen, double vorzeichen) {
    std::vector<Reihensatz> reihe;
    ReiheSchreiben(Investition(zahlungen, vorzeichen), reihe);
    return reihe;
}

void Gelungen(const std::optional<Ablehnung>& ablehnung) {
    if (ablehnung) throw std::runtime_error(ablehnung->Meldung);
}

/// The report of a table, beside the table.
Berichtsprobe Probe(Allroundberichtsdaten daten) {
    daten.projekt = projekt;
    const Tabelleninhalt gitter = daten.tabelle;
    return {AllroundberichtBilden(daten), gitter};
}

Wertergebnis Analyse(Wertart art, std::size_t zahlungen) {
    Werteingabe eingabe{.Anzeigeart = art};
    Wertergebnis ergebnis;
    Gelungen(WertAnalyse(Investition(zahlungen), eingabe, ergebnis));
    return ergebnis;
}

template <Wertart art>
Berichtsprobe Werte(std::size_t zahlungen) {
    return Probe({.art = static_cast<Anzeigeart>(art),
                  .Abzins2 = "10",
                  .tabelle = WertansichtBilden(Analyse(art, zahlungen))});
}

template <Wertart art>
Berichtsprobe Sensitivitaet(std::size_t zahlungen) {
    Sensitivitaetseingabe eingabe{
        .Anzeigeart = art, .MiZins = "10", .Vorwert = Analyse(art, zahlungen).Vorwert.value_or(0)};
    Zellentabelle tabelle;
    Gelungen(SensitivitaetRechnen(Investition(zahlungen), eingabe, tabelle));
    return Probe(
        {.art = Anzeigeart::sensitivitaet, .wertart = art, .tabelle = SensitivitaetsansichtBilden(tabelle)});
}

Berichtsprobe Effektivzins(std::size_t zahlungen) {
    const Reihenzins zins = EffektivzinsRechnen(Reihe(zahlungen, 1), Effektivmethode::aidb360);
    return Probe({.art = Anzeigeart::effektivzins,
                  .Effektivergebnis = zins.Effektivergebnis,
                  .methode = std::string(Effektivmethodentext(zins.methode)),
                  .tabelle = HerleitungstabelleBilden(Endwertzeilen(zins), zins.Effektivergebnis)});
}

template <Planansicht ansicht>
Berichtsprobe Plan(std::size_t zahlungen) {
    const Planeingabe eingabe{.Combo4 = Plantermine::halbjahresende};
    Tilgungsplan plan;
    Gelungen(TilgungsplanRechnen(Reihe(zahlungen, -1), eingabe, plan));
    constexpr bool jahresweise = ansicht == Planansicht::jahresweise;
    const Zellentabelle tabelle = jahresweise ? Zinsstaffelanzeige2(*plan.Kurztableau, plan.Nominalzins)
                                              : Zinsstaffelanzeige1(*plan.Tableau, plan.Nominalzins);
    return Probe({.art = jahresweise ? Anzeigeart::planJahresweise : Anzeigeart::planUnterjaehrig,
                  .zinstermine = std::string(plantermine.at(static_cast<std::size_t>(eingabe.Combo4))),
                  .nomzins = plan.nomzins,
                  .effzinssatz = plan.effzinssatz,
                  .tabelle = PlanansichtBilden(tabelle, ansicht)});
}

}  // namespace

std::vector<Probenart> Allroundproben() {
    return {{"barwert", Werte<Wertart::barwert>},
            {"endwert", Werte<Wertart::endwert>},
            {"effektivzins", Effektivzins},
            {"sensitivitaet-barwert", Sensitivitaet<Wertart::barwert>},
            {"sensitivitaet-endwert", Sensitivitaet<Wertart::endwert>},
            {"plan-jahresweise", Plan<Planansicht::jahresweise>},
            {"plan-unterjaehrig", Plan<Planansicht::unterjaehrig>}};
}

}  // namespace zinfolio
