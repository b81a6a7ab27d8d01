#include <stdexcept>

#include "kern/bericht/proben/proben.h"
#include "kern/sparen/sparbericht.h"
#include "kern/sparen/sparrechnung.h"

namespace zinfolio {
namespace {

/// 1000 at the start of 2007 and 100 each month from February on at 3 percent, settled by quarters, up to the
/// last day of the month with the last rate. Nothing changes the rate: its first change is later. What a form
/// solves for comes out as these figures too.
Sparplan Probeplan(std::size_t raten) {
    Sparplan plan;
    plan.AnfVermögen = "1000";
    plan.Anfdatum = "01.01.2007";
    plan.ratdatum1 = "01.02.2007";
    plan.Betrag = "100";
    plan.Enddatum = PlusTage(PlusMonate(*Datum::Aus(2007, 2, 1), static_cast<int>(raten)), -1).Text();
    plan.Zins = "3";
    plan.Combo4 = 2;
    plan.Check2 = plan.Check3 = plan.Check4 = plan.Check5 = 1;
    plan.Anzahl = "9999";
    plan.Delta = "2";
    plan.Delta2 = "1,5";
    plan.DynAnz = "3";
    plan.MaxSparrate = "500";
    plan.MinSparrate = "10";
    return plan;
}

Sparergebnis Gerechnet(const Sparform& form, Sparplan& plan, Sparstand& stand) {
    Sparergebnis ergebnis;
    if (const auto ablehnung = SparplanRechnen(form, plan, stand, ergebnis))
        throw std::runtime_error(ablehnung->Meldung);
    return ergebnis;
}

/// What the plan ends with, for the forms that are asked for something else. A saving period is sought for
/// what the rates are and a little interest.
std::string Zielwert(Sparziel ziel, std::size_t raten) {
    if (ziel == Sparziel::anspardauer) return std::to_string(1005 + 100 * raten);
    Sparplan plan = Probeplan(raten);
    Sparstand stand;
    return Gerechnet(SparformVon(Sparziel::endkapital), plan, stand).summen.Endvermögen;
}

Sparberichtsdaten Daten(Sparziel ziel, Kontoansicht ansicht, std::size_t raten) {
    const Sparform& form = SparformVon(ziel);
    Sparplan plan = Probeplan(raten);
    plan.Vwert = plan.Vermendwert = Zielwert(ziel, raten);
    // Without a capital in hand the plan would begin with its first rate.
    Sparstand stand{.kapital = 1};
    Sparergebnis ergebnis = Gerechnet(form, plan, stand);
    Sparberichtsdaten daten{
        .form = &form,
        .mandant = "Müller & {Söhne}",
        .plan = plan,
        .kapital = ergebnis.loesung,
        .Nzins = ergebnis.Nzins,
        .loesung = std::make_shared<const std::vector<Staffelsatz>>(std::move(*ergebnis.lauf.loesung)),
        .ansicht = ansicht};
    if (ziel != Sparziel::anspardauer) daten.ezins = ergebnis.ezins;
    return daten;
}

template <Sparziel ziel, Kontoansicht ansicht = Kontoansicht::kurzform>
Berichtsprobe Sparprobe(std::size_t raten) {
    const Sparberichtsdaten daten = Daten(ziel, ansicht, raten);
    return {SparberichtBilden(daten), SparansichtBilden(*daten.form, ansicht, daten.loesung)};
}

}  // namespace

std::vector<Probenart> Sparproben() {
    using enum Sparziel;
    constexpr auto breit = Kontoansicht::detailansicht3;
    return {{"Form90000", Sparprobe<endkapital>},    {"Form90000-detail3", Sparprobe<endkapital, breit>},
            {"Form94000", Sparprobe<sparrate>},      {"Form94000-detail3", Sparprobe<sparrate, breit>},
            {"Form92000", Sparprobe<rendite>},       {"Form96000", Sparprobe<anspardauer>},
            {"Form99000", Sparprobe<anfangskapital>}};
}

std::string Spartextprobe(std::size_t zahlungen) {
    const Textbericht bericht =
        SpartextBilden(Daten(Sparziel::anspardauer, Kontoansicht::kurzform, zahlungen));
    std::string text = bericht.titel + "\n";
    for (const std::string& zeile : bericht.zeilen)
        text += zeile + "\n";
    return text;
}

}  // namespace zinfolio
