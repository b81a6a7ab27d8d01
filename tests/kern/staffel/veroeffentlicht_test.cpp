// Effective rates and present values that somebody else published. "Ours" is the exact answer of our rules
// for the same input; the published figure is held against it within its own rounding.

#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <string>

#include "kern/dates/zahl.h"
#include "kern/finmath/bewertung.h"
#include "kern/finmath/reiheauswerten.h"
#include "kern/finmath/reihen.h"
#include "kern/staffel/konto.h"
#include "kern/staffel/kontoeffektivzins.h"

namespace zinfolio {
namespace veroeffentlicht_test {

using enum Effektivmethode;

std::string Effektivzins(const std::vector<Reihensatz>& reihe, Effektivmethode methode) {
    return ReiheAuswerten(reihe, methode).Effektivzins;
}

/// The rates under the four methods, in their order.
std::array<std::string, 4> AlleZinssaetze(const std::vector<Reihensatz>& reihe) {
    std::array<std::string, 4> texte;
    for (std::size_t i = 0; i < alleMethoden.size(); ++i)
        texte[i] = Effektivzins(reihe, alleMethoden[i]);
    return texte;
}

using Texte = std::array<std::string, 4>;

// Annex III of Directive 87/102/EEC, as set by Directive 98/7/EC: "ANHANG III RL 87/102/EWG,
// Berechnungsbeispiele" (German portal of EU law); English text in the annexes to COM(1996) 79. Published A
// counts calendar days, which is ours under ISMA; published B a year of 12 equal months, ours under
// PAngV2000.
TEST(AnhangDrei, Beispiel1EineRueckzahlungNachEinemJahrUndSechsMonaten) {
    const auto reihe = Reihe({{"01.01.1994", 1000}, {"01.07.1995", -1200}});
    EXPECT_EQ(AlleZinssaetze(reihe), (Texte{"12,78821", "12,92432", "12,96204", "12,92432"}));
    EXPECT_NEAR(*ReiheAuswerten(reihe, isma).Zinssatz / 100, 0.1296204, 1e-7);
    EXPECT_NEAR(*ReiheAuswerten(reihe, pangv2000).Zinssatz / 100, 0.129243, 1e-6);
}

TEST(AnhangDrei, Beispiel1HatUnterDerAltenPangvEineGeschlosseneForm) {
    const auto reihe = Reihe({{"01.01.1994", 1000}, {"01.07.1995", -1200}});
    EXPECT_NEAR(*ReiheAuswerten(reihe, pangvAlt).Zinssatz, 100 * (-1.5 + std::sqrt(2.65)), 2e-6);
}

TEST(AnhangDrei, Beispiel2MitEinbehaltenenKosten) {
    const auto reihe = Reihe({{"01.01.1994", 950}, {"01.07.1995", -1200}});
    EXPECT_EQ(AlleZinssaetze(reihe), (Texte{"16,62280", "16,85261", "16,90262", "16,85261"}));
    EXPECT_NEAR(*ReiheAuswerten(reihe, isma).Zinssatz / 100, 0.169026, 1e-6);
    EXPECT_NEAR(*ReiheAuswerten(reihe, pangv2000).Zinssatz / 100, 0.168526, 1e-6);
}

TEST(AnhangDrei, Beispiel3ZweiJahresraten) {
    const auto reihe = Reihe({{"01.01.1994", 1000}, {"01.01.1995", -600}, {"01.01.1996", -600}});
    EXPECT_EQ(AlleZinssaetze(reihe), (Texte{"13,06624", "13,06624", "13,06624", "13,06624"}));
    EXPECT_NEAR(*ReiheAuswerten(reihe, isma).Zinssatz / 100, 0.1306623, 1e-7);
}

const auto dreiRaten =
    Reihe({{"01.01.1994", 1000}, {"01.04.1994", -272}, {"01.07.1994", -272}, {"01.01.1995", -544}});

TEST(AnhangDrei, Beispiel4DreiRatenInEinemJahr) {
    EXPECT_EQ(AlleZinssaetze(dreiRaten), (Texte{"13,33333", "13,18550", "13,22625", "13,18550"}));
    EXPECT_NEAR(*ReiheAuswerten(dreiRaten, isma).Zinssatz / 100, 0.13226, 1e-5);
    EXPECT_NEAR(*ReiheAuswerten(dreiRaten, pangv2000).Zinssatz / 100, 0.13185, 1e-5);
}

TEST(AnhangDrei, Beispiel4HatUnterDerAltenPangvEineGeschlosseneForm) {
    EXPECT_NEAR(*ReiheAuswerten(dreiRaten, pangvAlt).Zinssatz, 100 * 88.0 / 660, 2e-6);
}

// The example of the best-known spreadsheet's help for XIRR and XNPV, quoted as such in at least eight test
// suites.
const auto tabellenkalkulation = Reihe({{"01.01.2008", -10000},
                                        {"01.03.2008", 2750},
                                        {"30.10.2008", 4250},
                                        {"15.02.2009", 3250},
                                        {"01.04.2009", 2750}});

TEST(Tabellenkalkulation, Xirr) {
    EXPECT_EQ(AlleZinssaetze(tabellenkalkulation), (Texte{"37,59528", "37,33661", "37,33625", "37,36282"}));
    EXPECT_NEAR(*ReiheAuswerten(tabellenkalkulation, isma).Zinssatz / 100, 0.3733625335, 1e-8);
}

TEST(Tabellenkalkulation, Xnpv) {
    const double barwert = *ReiheAuswerten(tabellenkalkulation, isma, 9, Tabellen::keine).Barwert;
    EXPECT_NEAR(barwert, 2086.65, 0.005);
    EXPECT_NEAR(barwert, 2086.647602031537, 1e-9);
}

struct Schatzbrief {
    std::array<double, 6> nominal;
    std::array<const char*, 6> rendite;
    std::array<double, 6> veroeffentlicht;
};

class BundesschatzbriefTest : public testing::TestWithParam<Schatzbrief> {
  protected:
    /// 10000 from 01.04.2011, the interest each 01.04., the capital with the last one.
    static std::vector<Reihensatz> GehaltenBis(std::size_t jahre) {
        std::vector<Reihensatz> reihe{Reihenzeile("01.04.2011", -10000)};
        for (std::size_t jahr = 1; jahr <= jahre; ++jahr) {
            const double betrag = 100 * GetParam().nominal.at(jahr - 1) + (jahr == jahre ? 10000 : 0);
            reihe.push_back(Reihenzeile("01.04." + std::to_string(2011 + jahr), betrag));
        }
        return reihe;
    }
};

TEST_P(BundesschatzbriefTest, RenditeJeHaltejahr) {
    for (std::size_t jahre = 1; jahre <= 6; ++jahre) {
        for (const auto methode : {pangvAlt, aidb360, pangv2000}) {
            const std::string rendite = Effektivzins(GehaltenBis(jahre), methode);
            EXPECT_EQ(rendite, GetParam().rendite[jahre - 1]) << jahre;
            EXPECT_NEAR(Zahl(rendite), GetParam().veroeffentlicht[jahre - 1], 0.005001) << jahre;
        }
    }
}

// Deutsche Finanzagentur, page "Bundesschatzbriefe", table of "Ausgabe 2011/11 Typ A".
INSTANTIATE_TEST_SUITE_P(Ausgabe2011elf, BundesschatzbriefTest,
                         testing::Values(Schatzbrief{
                             {0.75, 1, 1.5, 2, 2.25, 2.75},
                             {",75000", ",87446", "1,08065", "1,30561", "1,48818", "1,68846"},
                             {0.75, 0.87, 1.08, 1.31, 1.49, 1.69}}));

// Issue 2011/05 A, conditions of 5 April 2011, on a bank's lexicon page naming the Finanzagentur as source.
INSTANTIATE_TEST_SUITE_P(Ausgabe2011fuenf, BundesschatzbriefTest,
                         testing::Values(Schatzbrief{
                             {1, 1.5, 2, 2.75, 3.75, 4.5},
                             {"1,00000", "1,24845", "1,49505", "1,79969", "2,17107", "2,53139"},
                             {1, 1.25, 1.5, 1.8, 2.17, 2.53}}));

TEST(Bundesschatzbrief, IsmaLiegtMitDemSchalttagEtwasTiefer) {
    EXPECT_EQ(Effektivzins(Reihe({{"01.04.2011", -10000}, {"01.04.2012", 10075}}), isma), ",74794");
}

/// An account that starts with a debt on 31.12.2006, pays each 31.12., and is settled at the year's end.
Konto Tilgungskonto(double schuld, double rate, int jahre, float sollzins) {
    Konto konto;
    konto.konditionen = {Konditionssatz("31.12.2006", {0, 0, 0, sollzins, sollzins, 0, 1})};
    konto.zahlungen = {Zahlungssatz("31.12.2006", -schuld, "")};
    for (int jahr = 2007; jahr < 2007 + jahre; ++jahr)
        konto.zahlungen.push_back(Zahlungssatz("31.12." + std::to_string(jahr), rate, ""));
    konto.einstellungen.Kontodatum = "31.12." + std::to_string(2006 + jahre);
    EXPECT_EQ(KontoRechnen(konto), std::nullopt);
    return konto;
}

std::vector<double> Zinsgutschriften(const Konto& konto) {
    std::vector<double> zinsen;
    for (const Staffelsatz& satz : konto.loesung) {
        if (satz.Zinsgutschrift != 0) zinsen.push_back(satz.Zinsgutschrift);
    }
    return zinsen;
}

// Mathematics forum, made there with a public calculator: 500000 at 4 %, 28 payments of 30000, yearly in
// arrears. Published without rounding: a rest of 324,17 after 28 years; ours rounds each year's interest to
// cents.
TEST(Tilgungsplan, HalbeMillionZuVierProzent) {
    const Konto konto = Tilgungskonto(500000, 30000, 28, 4);
    const std::vector<double> zinsen = Zinsgutschriften(konto);
    ASSERT_EQ(zinsen.size(), 28U);
    const std::array veroeffentlicht{20000.00, 19600.00, 19184.00, 18751.36, 18301.41};
    for (std::size_t i = 0; i < veroeffentlicht.size(); ++i)
        EXPECT_NEAR(zinsen[i], -veroeffentlicht[i], 0.04) << i;
    EXPECT_NEAR(konto.loesung.back().Kontostand, -324.14, 0.001);
    EXPECT_NEAR(konto.loesung.back().Kontostand, -324.17, 0.04);
    EXPECT_EQ(KontoEffektivzinsRechnen(konto.loesung, pangvAlt).ezins, "4,00000");
    EXPECT_EQ(KontoEffektivzinsRechnen(konto.loesung, aidb360).ezins, "4,00000");
    EXPECT_EQ(KontoEffektivzinsRechnen(konto.loesung, isma).ezins, "3,99709");
    EXPECT_EQ(KontoEffektivzinsRechnen(konto.loesung, pangv2000).ezins, "4,00000");
}

// Banking trainees' forum: 15525,38 at 7 %, 8 payments of 2600, a rest of 0,01.
TEST(Tilgungsplan, AchtRatenZuSiebenProzent) {
    const Konto konto = Tilgungskonto(15525.38, 2600, 8, 7);
    const std::vector<double> zinsen = Zinsgutschriften(konto);
    const std::array veroeffentlicht{1086.78, 980.85, 867.51, 746.24, 616.47, 477.63, 329.06, 170.09};
    ASSERT_EQ(zinsen.size(), veroeffentlicht.size());
    for (std::size_t i = 0; i < veroeffentlicht.size(); ++i)
        EXPECT_NEAR(zinsen[i], -veroeffentlicht[i], 0.0001) << i;
    EXPECT_NEAR(konto.loesung.back().Kontostand, -0.01, 1e-6);
    // With the rest of a cent as a ninth payment: 7,0000032.
    EXPECT_EQ(KontoEffektivzinsRechnen(konto.loesung, aidb360).ezins, "7,00000");
}

TEST(Tilgungsplan, AchtRatenZuSiebenProzentOhneDenRest) {
    std::vector<Reihensatz> reihe{Reihenzeile("31.12.2006", 15525.38)};
    for (int jahr = 2007; jahr <= 2014; ++jahr)
        reihe.push_back(Reihenzeile("31.12." + std::to_string(jahr), -2600));
    for (const auto methode : {pangvAlt, aidb360, pangv2000})
        EXPECT_EQ(Effektivzins(reihe, methode), "6,99999");
}

}  // namespace veroeffentlicht_test
}  // namespace zinfolio
