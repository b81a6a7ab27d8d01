#include "kern/sparen/sparform.h"

#include <algorithm>
#include <array>

namespace zinfolio {
namespace {

using enum Sparabschnitt;
using enum Leerfeld;
namespace feld = sparfeld;
namespace pruefung = planpruefung;

constexpr std::size_t laengeEinesSatzes = 500;
constexpr std::size_t ersterTabellensatz = 22;

constexpr Formzeile anfangsvermoegen{&feld::AnfVermögen, "Anfangsvermögen", 1, plan, wirdNull, "€"};
constexpr Formzeile anfangsdatum{&feld::Anfdatum, "am Datum", 2};
constexpr Formzeile spardatum{&feld::ratdatum1, "Datum nächste Sparrate", 3};
constexpr Formzeile sparrate{&feld::Betrag, "Höhe der Sparrate", 4, plan, wirdNull, "€"};
constexpr Formzeile zahlungsweise{&feld::Combo1, "Zahlungsweise", 5};
constexpr Formzeile monatsletzter{&feld::Check1, "Nachfolgende Zahlungen zum Monatsletzten", 11};
constexpr Formzeile dynamik{&feld::Check2, "Dynamisierung der Zahlungen", 12, dynamisierung};
constexpr Formzeile anzahl{&feld::Anzahl, "Dynamisierung jeweils nach ", 13, dynamisierung, wirdNull,
                           "Zahlungen"};
constexpr std::string_view veraenderung = "Veränderung des Zahlungsbetrages jeweils";
constexpr Formzeile delta{&feld::Delta, veraenderung, 14, dynamisierung, wirdNull, "%"};
constexpr Formzeile delta2{&feld::Delta2, veraenderung, 15, dynamisierung, wirdNull, "€"};
constexpr Formzeile stufengrenze{&feld::Check3, "Begrenzung der Anpassungen auf", 19, begrenzung};
constexpr Formzeile stufen{&feld::DynAnz, "", 16, begrenzung, wirdNull, "Dynamisierungsstufen"};
constexpr Formzeile obergrenze{&feld::Check4, "Begrenzung der maximalen Sparrate: <=", 20, begrenzung};
constexpr Formzeile maximum{&feld::MaxSparrate, "", 17, begrenzung, wirdNull, "€"};
constexpr Formzeile untergrenze{&feld::Check5, "Begrenzung der minimalen Sparrate: >=", 21, begrenzung};
constexpr Formzeile minimum{&feld::MinSparrate, "", 18, begrenzung, wirdNull, "€"};
constexpr Formzeile nominalzins{&feld::Zins, "Nominalzinssatz", 6, ziel, bleibtLeer, "%"};
constexpr Formzeile verzinsung{&feld::Combo2, "Verzinsungsmethode", 7, ziel};
constexpr Formzeile verrechnung{&feld::Combo4, "Zinsverrechnung", 8, ziel};
constexpr Formzeile enddatum{&feld::Enddatum, "am Datum", 9, ziel};
constexpr Formzeile zielwert{&feld::Vwert, "Vermögensendwert", 4, ziel, wirdNull, "€"};
constexpr Formzeile effektivmethode{&feld::Combo5, "Effektivzinssatzberechnungsmethode", 10, ziel};

constexpr std::array endkapitalfelder{
    anfangsvermoegen,
    anfangsdatum,
    spardatum,
    sparrate,
    zahlungsweise,
    monatsletzter,
    dynamik,
    anzahl,
    delta,
    delta2,
    stufengrenze,
    stufen,
    obergrenze,
    maximum,
    untergrenze,
    minimum,
    nominalzins,
    verzinsung,
    verrechnung,
    Formzeile{&feld::Enddatum, "Berechnen bis Datum", 9, ziel},
    effektivmethode,
};
constexpr std::array sparratenfelder{
    anfangsvermoegen, anfangsdatum, spardatum,       zahlungsweise, monatsletzter, dynamik,
    anzahl,           delta,        delta2,          stufengrenze,  stufen,        obergrenze,
    maximum,          untergrenze,  minimum,         zielwert,      enddatum,      nominalzins,
    verzinsung,       verrechnung,  effektivmethode,
};
constexpr std::array renditefelder{
    anfangsvermoegen,
    anfangsdatum,
    spardatum,
    sparrate,
    zahlungsweise,
    monatsletzter,
    dynamik,
    anzahl,
    delta,
    delta2,
    stufengrenze,
    stufen,
    obergrenze,
    maximum,
    untergrenze,
    minimum,
    Formzeile{&feld::Vermendwert, "Vermögensendwert", 6, ziel, bleibtLeer, "€"},
    verzinsung,
    verrechnung,
    enddatum,
    effektivmethode,
};
constexpr std::array dauerfelder{
    anfangsvermoegen,
    anfangsdatum,
    spardatum,
    sparrate,
    zahlungsweise,
    monatsletzter,
    dynamik,
    anzahl,
    Formzeile{&feld::Delta, veraenderung, 14, dynamisierung, wirdNull},
    Formzeile{&feld::Command6, "", 15, dynamisierung},
    nominalzins,
    verzinsung,
    verrechnung,
    Formzeile{&feld::Vwert, "Endvermögen", 9, ziel, bleibtLeer, "€"},
    effektivmethode,
};
constexpr std::array kapitalfelder{
    Formzeile{&feld::Anfdatum, "Datum Anfangskapital", 2},
    spardatum,
    Formzeile{&feld::Betrag, "Höhe der Sparrate", 1, plan, bleibtLeer, "€"},
    zahlungsweise,
    monatsletzter,
    dynamik,
    anzahl,
    delta,
    delta2,
    stufengrenze,
    stufen,
    obergrenze,
    maximum,
    untergrenze,
    minimum,
    zielwert,
    enddatum,
    nominalzins,
    verzinsung,
    verrechnung,
    effektivmethode,
};

constexpr std::array endkapitalpruefungen{
    &pruefung::anfangsdatum,   &pruefung::enddatum,
    &pruefung::zins,           &pruefung::sparrateNachAnfang,
    &pruefung::endeNachAnfang, &pruefung::hoechstens150Jahre,
    &pruefung::anzahl,         &pruefung::stufen,
    &pruefung::maximum,        &pruefung::minimum,
};
constexpr std::array sparratenpruefungen{
    &pruefung::anfangsdatum,       &pruefung::enddatum,       &pruefung::zins,
    &pruefung::sparrateNachAnfang, &pruefung::endeNachAnfang, &pruefung::hoechstens150Jahre,
    &pruefung::differenz,          &pruefung::anzahl,         &pruefung::stufen,
};
constexpr std::array renditepruefungen{
    &pruefung::anfangsdatum,
    &pruefung::enddatum,
    &pruefung::vermoegensendwert,
    &pruefung::sparrateNachAnfang,
    &pruefung::endeNachAnfang,
    &pruefung::hoechstens150Jahre,
    &pruefung::anzahl,
    &pruefung::stufen,
    &pruefung::maximum,
    &pruefung::minimum,
};
constexpr std::array dauerpruefungen{
    &pruefung::anfangsdatum,       &pruefung::endvermoegen,     &pruefung::zins,
    &pruefung::sparrateNachAnfang, &pruefung::zielNichtKleiner,
};
constexpr std::array kapitalpruefungen{
    &pruefung::anfangsdatum,        &pruefung::enddatum,       &pruefung::zins,
    &pruefung::sparrateNachAnfang,  &pruefung::endeNachAnfang, &pruefung::hoechstens150Jahre,
    &pruefung::differenzZumKapital, &pruefung::anzahl,         &pruefung::stufen,
};

/// The table of rate changes: all dates, then all rates.
constexpr std::array tabellensaetze{
    Selbstfeld<&Sparplan::ZinsWDAt>(ersterTabellensatz),
    Selbstfeld<&Sparplan::Zinsbetrag>(ersterTabellensatz + zinstabellenzeilen),
};

/// The rows of a form as records of its plan files, with the table behind them where there is one.
template <std::size_t N>
constexpr auto Plansaetze(const std::array<Formzeile, N>& felder) {
    std::array<Selbstwertzeile<Sparplan>, N> saetze{};
    std::ranges::transform(felder, saetze.begin(), [](const Formzeile& zeile) {
        Selbstwertzeile<Sparplan> satz = zeile.feld->satz;
        satz.satz = zeile.satz;
        return satz;
    });
    return saetze;
}
template <std::size_t N>
constexpr auto PlansaetzeMitTabelle(const std::array<Formzeile, N>& felder) {
    std::array<Selbstwertzeile<Sparplan>, N + tabellensaetze.size()> saetze{};
    std::ranges::copy(Plansaetze(felder), saetze.begin());
    std::ranges::copy(tabellensaetze, saetze.begin() + N);
    return saetze;
}

constexpr auto endkapitalsaetze = PlansaetzeMitTabelle(endkapitalfelder);
constexpr auto sparratensaetze = PlansaetzeMitTabelle(sparratenfelder);
constexpr auto renditesaetze = Plansaetze(renditefelder);
constexpr auto dauersaetze = Plansaetze(dauerfelder);
constexpr auto kapitalsaetze = PlansaetzeMitTabelle(kapitalfelder);

constexpr std::array sparformen{
    Sparform{
        .name = "Form90000",
        .titel = "Endkapital Ratensparen",
        .ziel = Sparziel::endkapital,
        .felder = endkapitalfelder,
        .pruefungen = endkapitalpruefungen,
        .ablage = {"VEWertDatenneu", "VEWertneu", "VEWertDatenneuR"},
        .plandatei = {laengeEinesSatzes, endkapitalsaetze},
        .kurzrechner = "Form4b",
        .bericht = {.detailansicht3 = ""},
    },
    Sparform{
        .name = "Form94000",
        .titel = "Höhe einer Sparrate beim Ratensparen",
        .ziel = Sparziel::sparrate,
        .felder = sparratenfelder,
        .pruefungen = sparratenpruefungen,
        .ablage = {"RatenhöheA", "RatendatenACB", "RatenhöheAR"},
        .plandatei = {laengeEinesSatzes, sparratensaetze},
        .kurzrechner = "Form5b",
        .bericht = {.vorProzent = ""},
    },
    Sparform{
        .name = "Form92000",
        .titel = "Rendite beim Ratensparen",
        .ziel = Sparziel::rendite,
        .felder = renditefelder,
        .pruefungen = renditepruefungen,
        .zinstabelle = false,
        .effektivzinsMitErgebnis = false,
        .ablage = {"Effzinsdatenneu", "Effzinsneu", "EffzinsdatenneuR"},
        .laufdateien = {"Vermendzahlungen1", "Vermendzins", "Vermendzinsverrechnungstermine"},
        .plandatei = {laengeEinesSatzes, renditesaetze},
        .kurzrechner = "Form7b",
        .bericht = {.vorProzent = "", .ohneZiel = true},
    },
    Sparform{
        .name = "Form96000",
        .titel = "Anspardauer beim Ratensparen",
        .ziel = Sparziel::anspardauer,
        .felder = dauerfelder,
        .pruefungen = dauerpruefungen,
        .zinstabelle = false,
        .dynamik = Dynamik::einfach,
        .effektivzinsMitErgebnis = false,
        .ablage = {"Anspdauerdatenneu", "Anspdauerneu", "AnspdauerdatenneuR"},
        .plandatei = {laengeEinesSatzes, dauersaetze},
        .kurzrechner = "Form8b",
    },
    Sparform{
        .name = "Form99000",
        .titel = "Benötigtes Anfangskapital beim Ratensparen",
        .ziel = Sparziel::anfangskapital,
        .felder = kapitalfelder,
        .pruefungen = kapitalpruefungen,
        .ablage = {"AnfKapRaspa", "AnfKapRaspaDaten", "AnfKapRaspaR"},
        .plandatei = {laengeEinesSatzes, kapitalsaetze},
    },
};

}  // namespace

std::span<const Sparform> Sparformen() {
    return sparformen;
}

const Sparform& SparformVon(Sparziel ziel) {
    return sparformen.at(static_cast<std::size_t>(ziel));
}

const Sparform* SparformSuchen(std::string_view name) {
    const auto form = std::ranges::find(sparformen, name, &Sparform::name);
    return form == sparformen.end() ? nullptr : &*form;
}

const Formzeile* FormzeileSuchen(const Sparform& form, std::string_view feldname) {
    const auto zeile =
        std::ranges::find_if(form.felder, [&](const Formzeile& z) { return z.feld->name == feldname; });
    return zeile == form.felder.end() ? nullptr : &*zeile;
}

}  // namespace zinfolio
