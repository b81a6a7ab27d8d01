#include "kern/sparen/planpruefen.h"

#include "kern/dates/datum.h"
#include "kern/dates/zahl.h"
#include "kern/grund/utf8.h"
#include "kern/sparen/meldungen.h"
#include "kern/sparen/sparform.h"

namespace zinfolio {
namespace {

/// What the checks of dates call no date at all.
constexpr std::size_t kuerzestesDatum = 3;
constexpr int hoechstspanne = 150;

bool IstKurz(const std::string& datumstext) {
    return Zeichenzahl(datumstext) < kuerzestesDatum;
}

constexpr Planpruefung spardatumDa{[](const Sparplan& p, double) { return IstKurz(p.ratdatum1); },
                                   meldung::spardatumFehlt, sparfeld::ratdatum1.name};

void NullenFuellen(const Sparform& form, Sparplan& plan) {
    for (const Formzeile& zeile : form.felder) {
        if (zeile.leer == Leerfeld::wirdNull && (plan.*zeile.feld->text).empty())
            plan.*zeile.feld->text = "0";
    }
}

std::optional<Ablehnung> Pruefe(const Planpruefung& pruefung, const Sparplan& plan, double kapital) {
    if (!pruefung.verletzt(plan, kapital)) return std::nullopt;
    return Ablehnung{std::string(pruefung.meldung), std::string(pruefung.feld),
                     std::string(register_::daten)};
}

}  // namespace

namespace planpruefung {

constexpr Planpruefung anfangsdatum{[](const Sparplan& p, double) { return IstKurz(p.Anfdatum); },
                                    meldung::anfangsdatumFehlt, sparfeld::Anfdatum.name};
constexpr Planpruefung enddatum{[](const Sparplan& p, double) { return p.Enddatum.empty(); },
                                meldung::enddatumFehlt, sparfeld::Enddatum.name};
constexpr Planpruefung zins{[](const Sparplan& p, double) { return p.Zins.empty(); }, meldung::zinssatzFehlt,
                            sparfeld::Zins.name};
constexpr Planpruefung vermoegensendwert{[](const Sparplan& p, double) { return p.Vermendwert.empty(); },
                                         meldung::vermoegensendwertFehlt, sparfeld::Vermendwert.name};
constexpr Planpruefung endvermoegen{[](const Sparplan& p, double) { return p.Vwert.empty(); },
                                    meldung::endvermoegenFehlt, sparfeld::Vwert.name};
constexpr Planpruefung sparrateNachAnfang{
    [](const Sparplan& p, double) { return Datum::Lesen(p.ratdatum1) < Datum::Lesen(p.Anfdatum); },
    meldung::sparrateVorAnfang, sparfeld::ratdatum1.name};
constexpr Planpruefung endeNachAnfang{
    [](const Sparplan& p, double) { return Datum::Lesen(p.Enddatum) <= Datum::Lesen(p.Anfdatum); },
    meldung::endeVorAnfang, sparfeld::Enddatum.name};
constexpr Planpruefung hoechstens150Jahre{
    [](const Sparplan& p, double) {
        return Datum::Lesen(p.Enddatum).Jahr() - Datum::Lesen(p.Anfdatum).Jahr() > hoechstspanne;
    },
    meldung::zuVieleJahre, sparfeld::Enddatum.name};
constexpr Planpruefung differenz{
    [](const Sparplan& p, double) { return Zahl(p.Vwert) == 0 && Zahl(p.AnfVermögen) == 0; },
    meldung::differenzZuGering, sparfeld::Vwert.name};
constexpr Planpruefung differenzZumKapital{
    [](const Sparplan& p, double kapital) { return Zahl(p.Vwert) == 0 && kapital == 0; },
    meldung::differenzZuGering, sparfeld::Vwert.name};
constexpr Planpruefung anzahl{[](const Sparplan& p, double) { return p.Check2 == 1 && Zahl(p.Anzahl) == 0; },
                              meldung::anzahlNull, sparfeld::Anzahl.name};
constexpr Planpruefung stufen{
    [](const Sparplan& p, double) { return p.Check2 == 1 && p.Check3 == 1 && Zahl(p.DynAnz) == 0; },
    meldung::stufenNull, sparfeld::DynAnz.name};
constexpr Planpruefung maximum{[](const Sparplan& p, double) {
                                   return p.Check2 == 1 && p.Check4 == 1 &&
                                          Zahl(p.Betrag) >= Zahl(p.MaxSparrate);
                               },
                               meldung::maximumZuKlein, sparfeld::MaxSparrate.name};
constexpr Planpruefung minimum{[](const Sparplan& p, double) {
                                   return p.Check2 == 1 && p.Check5 == 1 &&
                                          Zahl(p.Betrag) <= Zahl(p.MinSparrate);
                               },
                               meldung::minimumZuGross, sparfeld::MinSparrate.name};
constexpr Planpruefung zielNichtKleiner{
    [](const Sparplan& p, double) { return Zahl(p.AnfVermögen) > Zahl(p.Vwert); },
    meldung::endeKleinerAlsAnfang, sparfeld::Vwert.name};

}  // namespace planpruefung

std::optional<Ablehnung> PlanPruefen(const Sparform& form, Sparplan& plan, const Sparstand& stand) {
    NullenFuellen(form, plan);
    if (auto ablehnung = Pruefe(spardatumDa, plan, stand.kapital)) return ablehnung;
    const double kapital = form.ziel == Sparziel::anfangskapital ? stand.kapital : Zahl(plan.AnfVermögen);
    if (kapital == 0) plan.Anfdatum = plan.ratdatum1;
    for (const Planpruefung* pruefung : form.pruefungen) {
        if (auto ablehnung = Pruefe(*pruefung, plan, stand.kapital)) return ablehnung;
    }
    return std::nullopt;
}

}  // namespace zinfolio
