#include "kern/sparen/sparbericht.h"

#include <algorithm>
#include <gmock/gmock.h>

#include "kern/dates/textteile.h"
#include "plaene.h"

namespace zinfolio {
namespace sparbericht_test {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

/// A calculated plan of 2007 as its report's data.
Sparberichtsdaten Daten(Sparziel ziel, Sparplan plan = Plan2007()) {
    Sparstand stand{.kapital = 1};
    Sparergebnis ergebnis;
    EXPECT_EQ(SparplanRechnen(Form(ziel), plan, stand, ergebnis), std::nullopt);
    return {.form = &Form(ziel),
            .mandant = "Rente",
            .plan = plan,
            .kapital = ergebnis.loesung,
            .ezins = ergebnis.ezins,
            .Nzins = ergebnis.Nzins,
            .loesung = std::make_shared<const std::vector<Staffelsatz>>(*ergebnis.lauf.loesung)};
}

/// The lines as "label=value": the label ends at column 49.
std::vector<std::string> Zeilen(const Sparberichtsdaten& daten) {
    std::vector<std::string> zeilen;
    for (const std::string& zeile : Eingabeblock(daten)) {
        std::size_t stelle = 0;
        for (std::size_t zeichen = 0; stelle < zeile.size(); ++stelle) {
            if ((static_cast<unsigned char>(zeile[stelle]) & 0xC0U) != 0x80U && ++zeichen > 49) break;
        }
        const std::string name(Getrimmt(std::string_view(zeile).substr(0, stelle)));
        zeilen.push_back(name + "=" + std::string(Getrimmt(std::string_view(zeile).substr(stelle))));
    }
    return zeilen;
}

Sparplan Dynamisch() {
    Sparplan plan = Plan2007();
    plan.Check2 = plan.Check3 = plan.Check4 = plan.Check5 = 1;
    plan.Anzahl = "6";
    plan.Delta = "2";
    plan.Delta2 = "1,5";
    plan.DynAnz = "3";
    plan.MaxSparrate = "500";
    plan.MinSparrate = "10";
    return plan;
}

TEST(Eingabeblock, Endkapital) {
    Sparberichtsdaten daten = Daten(Sparziel::endkapital);
    daten.ezins = "3,04159";
    EXPECT_THAT(
        Zeilen(daten),
        ElementsAre("Mandant=Rente", "Anfangsvermögen=1000", "am Datum=01.01.2007",
                    "Datum nächste Sparrate=01.02.2007", "Höhe der Sparrate=100", "Zahlungsweise=Monatlich",
                    "Nominalzinssatz=3", "Verzinsungsmethode=30/360 Tage : Deutsche Methode",
                    "Zinsverrechnung=Jahresende", "Berechnen bis Datum=31.12.2007",
                    "Effektivzinssatzberechnungsmethode=PAngV2000", "Effektivzinssatz=3,04159 %",
                    "Gesamtzahlungssumme=2.100,00", "Gesamtzinsen=46,32", "Endvermögen=2.146,32"));
}

TEST(Eingabeblock, DynamisierungMitIhrenGrenzen) {
    const auto zeilen = Zeilen(Daten(Sparziel::endkapital, Dynamisch()));
    const auto erste = std::ranges::find(zeilen, "Dynamisierung der Zahlungen=");
    ASSERT_NE(erste, zeilen.end());
    EXPECT_THAT(
        std::vector(erste, erste + 7),
        ElementsAre("Dynamisierung der Zahlungen=", "Dynamisierung jeweils nach=6 Zahlungen",
                    "Veränderung des Zahlungsbetrages jeweils=2 %",
                    "Veränderung des Zahlungsbetrages jeweils=1,5 €", "Begrenzung der Anpassungen auf=3",
                    "Begrenzung der maximalen Sparrate: <==500", "Begrenzung der minimalen Sparrate: >==10"));
}

TEST(Eingabeblock, GrenzenOhneHakenFehlen) {
    Sparplan plan = Dynamisch();
    plan.Check3 = plan.Check5 = 0;
    const auto zeilen = Zeilen(Daten(Sparziel::endkapital, plan));
    EXPECT_THAT(zeilen, Not(Contains("Begrenzung der Anpassungen auf=3")));
    EXPECT_THAT(zeilen, Contains("Begrenzung der maximalen Sparrate: <==500"));
}

TEST(Eingabeblock, HoechstensFuenfundzwanzigZeilen) {
    for (const Sparform& form : Sparformen()) {
        Sparberichtsdaten daten = Daten(form.ziel, Dynamisch());
        daten.ezins = "1";
        EXPECT_LE(Eingabeblock(daten).size(), 25U) << form.name;
    }
}

TEST(Eingabeblock, SparrateHatDasZielUndKeineRate) {
    Sparplan plan = Plan2007();
    plan.Check2 = 1;
    plan.Anzahl = "6";
    plan.Delta = "2";
    const auto zeilen = Zeilen(Daten(Sparziel::sparrate, plan));
    EXPECT_THAT(zeilen, Contains("Vermögensendwert=5000"));
    EXPECT_THAT(zeilen, Contains("am Datum=31.12.2007"));
    EXPECT_THAT(zeilen, Contains("Veränderung des Zahlungsbetrages jeweils=2%"));
    EXPECT_THAT(zeilen, Not(Contains(testing::StartsWith("Höhe der Sparrate"))));
}

TEST(Eingabeblock, RenditeNenntDenNominalzinsUndKeinZiel) {
    const auto zeilen = Zeilen(Daten(Sparziel::rendite));
    EXPECT_THAT(zeilen, Contains(testing::MatchesRegex("Nominalzins=.+ %")));
    EXPECT_THAT(zeilen, Not(Contains(testing::StartsWith("Nominalzinssatz"))));
    EXPECT_THAT(zeilen, Not(Contains(testing::StartsWith("Vermögensendwert"))));
}

TEST(Eingabeblock, AnspardauerHatZielUndEinheit) {
    Sparplan plan = Plan2007();
    plan.Check2 = 1;
    plan.Anzahl = "6";
    plan.Delta = "2";
    plan.Command6 = "€";
    Sparberichtsdaten daten = Daten(Sparziel::anspardauer, plan);
    daten.ezins.reset();
    const auto zeilen = Zeilen(daten);
    EXPECT_THAT(zeilen, Contains("Veränderung des Zahlungsbetrages jeweils=2 €"));
    EXPECT_THAT(zeilen, Contains("Endvermögen=5000"));
    EXPECT_THAT(zeilen, Not(Contains(testing::StartsWith("Effektivzinssatz"))));
}

TEST(Eingabeblock, AnfangskapitalNenntDasGefundene) {
    Sparplan plan = Plan2007();
    plan.Vwert = "1154,00";
    plan.Zins = "0";
    const auto zeilen = Zeilen(Daten(Sparziel::anfangskapital, plan));
    // 1154 less eleven rates of 100.
    EXPECT_EQ(zeilen[1], "Anfangskapital=54,00");
    EXPECT_EQ(zeilen[2], "Datum Anfangskapital=01.01.2007");
    EXPECT_EQ(zeilen[4], "Höhe der Sparrate=100");
}

TEST(SparansichtBilden, KurzformZeigtDieKonditionenAusserBeiDerAnspardauer) {
    const auto erste = [](Sparziel ziel) {
        const Sparberichtsdaten daten = Daten(ziel);
        return SparansichtBilden(Form(ziel), Kontoansicht::kurzform, daten.loesung).zelle(0, 1);
    };
    EXPECT_EQ(erste(Sparziel::endkapital), "Konditionenänderung");
    EXPECT_EQ(erste(Sparziel::rendite), "Konditionenänderung");
    EXPECT_EQ(erste(Sparziel::anspardauer), "Zahlung");
}

TEST(SparberichtBilden, EigenesFormatDerBreitestenAnsicht) {
    Sparberichtsdaten daten = Daten(Sparziel::endkapital);
    daten.ansicht = Kontoansicht::detailansicht3;
    EXPECT_EQ(SparberichtBilden(daten).tabelle.spalten[2].breite, twipsJeZoll / 2);
    daten = Daten(Sparziel::sparrate);
    daten.ansicht = Kontoansicht::detailansicht3;
    EXPECT_EQ(SparberichtBilden(daten).tabelle.spalten[2].breite, twipsJeZoll * 6 / 10);
}

TEST(SpartextBilden, TabelleUnterIhrerKopfzeile) {
    const auto zeilen = SpartextBilden(Daten(Sparziel::anspardauer)).zeilen;
    EXPECT_EQ(zeilen[0], "Eingabedaten :");
    const auto kopf = std::ranges::find(
        zeilen, "Datum              Vorgang        Zahlungsbetrag               Zinsen           Kontostand");
    ASSERT_NE(kopf, zeilen.end());
    EXPECT_EQ(*(kopf - 2), "Ergebnisse :");
    EXPECT_EQ(*(kopf + 2),
              "01.02.2007         Zahlung                100,00                 0,00             1.100,00");
}

TEST(Spardiagramm, EinheitNachDemLetztenKontostand) {
    std::vector<Staffelsatz> saetze{Zahlungssatz("01.01.2007", 5, ""), Zahlungssatz("01.01.2008", 5, "")};
    const auto titel = [&](double kontostand) {
        saetze[1].Kontostand = kontostand;
        return std::get<Diagramm>(Spardiagramm(Form(Sparziel::endkapital), saetze)).achsentitel;
    };
    EXPECT_EQ(titel(1'000'000), "kumulierte Zahlungen + Zinsen in €");
    EXPECT_EQ(titel(1'000'000.01), "kumulierte Zahlungen + Zinsen in Tausend €");
    EXPECT_EQ(titel(1'000'000'000), "kumulierte Zahlungen + Zinsen in Tausend €");
    EXPECT_EQ(titel(1'000'000'000.01), "kumulierte Zahlungen + Zinsen in Mio. €");
}

TEST(Spardiagramm, ZweiReihenUndDasJahrMitZwoelfLeerzeichen) {
    const Sparberichtsdaten daten = Daten(Sparziel::endkapital);
    const auto diagramm = std::get<Diagramm>(Spardiagramm(Form(Sparziel::endkapital), *daten.loesung));
    EXPECT_THAT(diagramm.zeilentexte, testing::Each("            2007"));
    EXPECT_EQ(diagramm.reihen[0].name, "Zahlungen + Zinsen");
    EXPECT_EQ(diagramm.reihen[0].werte.back(), 2146.32);
    EXPECT_EQ(diagramm.reihen[1].name, "Zahlungen");
    EXPECT_EQ(diagramm.reihen[1].werte.back(), 2100);
}

}  // namespace sparbericht_test
}  // namespace zinfolio
