#include "kern/finmath/reiheauswerten.h"

#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

#include "kern/finmath/reihen.h"

namespace zinfolio {
namespace reiheauswerten_test {

using testing::DoubleNear;
using testing::Optional;

constexpr const char* nichtGefunden = "Es wurde kein Effektivzinssatz gefunden.";
constexpr const char* nurEinVorzeichen =
    " Es gibt nur Ein- bzw. nur Auszahlungen. Ein Effektivzinssatz existiert nicht !";

class EffektivzinsTest : public testing::TestWithParam<Effektivmethode> {
  protected:
    static Reihenauswertung Suche(std::initializer_list<std::pair<std::string_view, double>> zahlungen) {
        return ReiheAuswerten(Reihe(zahlungen), GetParam());
    }
    static void ErwarteKeinenZinssatz(const Reihenauswertung& ergebnis, const char* meldung) {
        EXPECT_EQ(ergebnis.Meldung, meldung);
        EXPECT_EQ(ergebnis.Effektivzins, "");
        EXPECT_EQ(ergebnis.Zinssatz, std::nullopt);
    }
};

TEST_P(EffektivzinsTest, ElfhundertNachEinemJahrSindZehnProzent) {
    const Reihenauswertung ergebnis = Suche({{"01.01.2007", -1000}, {"01.01.2008", 1100}});
    EXPECT_EQ(ergebnis.Effektivzins, "10,00000");
    EXPECT_THAT(ergebnis.Zinssatz, Optional(DoubleNear(10, 5e-6)));
    EXPECT_EQ(ergebnis.Meldung, "");
    EXPECT_EQ(ergebnis.Bardatum, "01.01.2007");
    EXPECT_EQ(ergebnis.Enddatum, "01.01.2008");
    EXPECT_EQ(ergebnis.Endwert, std::nullopt);
    EXPECT_EQ(ergebnis.Barwert, std::nullopt);
    EXPECT_EQ(ergebnis.Vendwertberechnung, std::nullopt);
    EXPECT_EQ(ergebnis.Barwertberechnung, std::nullopt);
}

TEST_P(EffektivzinsTest, DerKreditnehmerSiehtDenselbenZinssatz) {
    EXPECT_EQ(Suche({{"01.01.2007", 1000}, {"01.01.2008", -1100}}).Effektivzins, "10,00000");
}

TEST_P(EffektivzinsTest, UnterEinemProzentStehtKeineNullVorDemKomma) {
    EXPECT_EQ(Suche({{"01.01.2007", -1000}, {"01.01.2008", 1005}}).Effektivzins, ",50000");
}

TEST_P(EffektivzinsTest, NullProzent) {
    EXPECT_EQ(Suche({{"01.01.2007", -1000}, {"01.01.2008", 1000}}).Effektivzins, ",00000");
}

TEST_P(EffektivzinsTest, EinVerlustHatEinenNegativenZinssatz) {
    EXPECT_EQ(Suche({{"01.01.2007", -1000}, {"01.01.2008", 900}}).Effektivzins, "-10,00000");
    EXPECT_EQ(Suche({{"01.01.2007", -1000}, {"01.01.2008", 997.5}}).Effektivzins, "-,25000");
}

TEST_P(EffektivzinsTest, EinVielfachesInEinemJahr) {
    EXPECT_EQ(Suche({{"01.01.2007", -1000000}, {"01.01.2008", 13345670}}).Effektivzins, "1.234,56700");
}

TEST_P(EffektivzinsTest, NurEinVorzeichenWirdVorDerSucheAbgelehnt) {
    ErwarteKeinenZinssatz(Suche({{"01.01.2007", 1000}, {"01.01.2008", 1100}}), nurEinVorzeichen);
    ErwarteKeinenZinssatz(Suche({{"01.01.2007", -1000}, {"01.01.2008", -1100}}), nurEinVorzeichen);
    ErwarteKeinenZinssatz(Suche({{"01.01.2007", 0}, {"01.01.2008", 0}}), nurEinVorzeichen);
    ErwarteKeinenZinssatz(Suche({{"01.01.2007", -1000}, {"01.01.2008", 0}}), nurEinVorzeichen);
}

TEST_P(EffektivzinsTest, EineZeileAlleinHatNurEinVorzeichen) {
    ErwarteKeinenZinssatz(Suche({{"01.01.2007", -1000}}), nurEinVorzeichen);
}

TEST_P(EffektivzinsTest, EineNullInDerMitteZaehltNichtAlsVorzeichen) {
    EXPECT_EQ(Suche({{"01.01.2007", -1000}, {"01.07.2007", 0}, {"01.01.2008", 1100}}).Effektivzins,
              "10,00000");
}

TEST_P(EffektivzinsTest, LeereReihe) {
    ErwarteKeinenZinssatz(ReiheAuswerten({}, GetParam()), nichtGefunden);
}

TEST_P(EffektivzinsTest, AllesAnEinemTagHatKeinenZinssatz) {
    ErwarteKeinenZinssatz(Suche({{"01.01.2007", -1000}, {"01.01.2007", 1100}}), nichtGefunden);
}

TEST_P(EffektivzinsTest, UnzahlenUndUeberlaeufeHabenKeinenZinssatz) {
    constexpr double unzahl = std::numeric_limits<double>::quiet_NaN();
    constexpr double unendlich = std::numeric_limits<double>::infinity();
    ErwarteKeinenZinssatz(Suche({{"01.01.2007", -1}, {"01.07.2007", unzahl}, {"01.01.2008", 2}}),
                          nichtGefunden);
    ErwarteKeinenZinssatz(Suche({{"01.01.2007", -1}, {"01.01.2008", unendlich}}), nichtGefunden);
    ErwarteKeinenZinssatz(
        Suche({{"01.01.2007", -1.7e308}, {"01.07.2007", -1.7e308}, {"01.01.2008", 1.7e308}}), nichtGefunden);
}

// 1 and 1e300: the first value is already far beyond any 4-byte whole number, and no rate brings 1e300 down
// to 1.
TEST_P(EffektivzinsTest, BetraegeVonSehrVerschiedenerGroesseHabenKeinenZinssatz) {
    ErwarteKeinenZinssatz(Suche({{"01.01.2007", -1}, {"01.07.2007", 1e300}, {"01.01.2008", -1}}),
                          nichtGefunden);
}

TEST_P(EffektivzinsTest, EinBeschaedigtesDatumGehtVorUndNachDemVorzeichentest) {
    auto reihe = Reihe({{"01.01.2007", 1000}, {"01.07.2007", 1}, {"01.01.2008", 1100}});
    reihe[1].Monat = 13;  // not read by the test of the signs
    ErwarteKeinenZinssatz(ReiheAuswerten(reihe, GetParam()), nurEinVorzeichen);
    reihe[0].Reihenbetrag = -1000;
    ErwarteKeinenZinssatz(ReiheAuswerten(reihe, GetParam()), nichtGefunden);
    reihe[0].Reihenbetrag = 1000;
    reihe[2].Monat = 13;  // the last date is
    const Reihenauswertung ergebnis = ReiheAuswerten(reihe, GetParam());
    ErwarteKeinenZinssatz(ergebnis, nichtGefunden);
    EXPECT_EQ(ergebnis.Bardatum, "01.01.2007");
    EXPECT_EQ(ergebnis.Enddatum, "");
}

// -1000 + 2250 v - 1260 v^2 has the roots 5 % and 20 %; 5 % lies between the start rates.
TEST_P(EffektivzinsTest, ZwischenDenStartzinssaetzenWirdKeineAndereLoesungErreicht) {
    EXPECT_EQ(Suche({{"01.01.2006", -1000}, {"01.01.2007", 2250}, {"01.01.2008", -1260}}).Effektivzins,
              "5,00000");
}

// -1000 + 2300 v - 1320 v^2: 10 % and 20 %. The first start rate is one of them.
TEST_P(EffektivzinsTest, BeiZweiLoesungenGiltDieErsteDieGetroffenWird) {
    EXPECT_EQ(Suche({{"01.01.2005", -1000}, {"01.01.2006", 2300}, {"01.01.2007", -1320}}).Effektivzins,
              "10,00000");
}

INSTANTIATE_TEST_SUITE_P(AlleMethoden, EffektivzinsTest, testing::ValuesIn(alleMethoden));

TEST(Effektivzins, IsmaLiegtMitSchalttagEtwasTiefer) {
    // 100 * (1.1 ^ (365 / 366) - 1)
    const auto reihe = Reihe({{"01.01.2008", -1000}, {"01.01.2009", 1100}});
    EXPECT_EQ(ReiheAuswerten(reihe, Effektivmethode::isma).Effektivzins, "9,97136");
    EXPECT_EQ(ReiheAuswerten(reihe, Effektivmethode::aidb360).Effektivzins, "10,00000");
}

// The line through the first two values, -999.05 and -999.00, falls to zero at far less than -100 %, where
// half a year has no power.
TEST(Effektivzins, EinSchrittUnterMinusHundertScheitertAnGebrochenenPotenzen) {
    const auto reihe = Reihe({{"01.01.2007", -1000}, {"01.07.2007", 1}});
    for (const auto methode : {Effektivmethode::aidb360, Effektivmethode::isma, Effektivmethode::pangv2000})
        EXPECT_EQ(ReiheAuswerten(reihe, methode).Meldung, nichtGefunden);
}

// A loan of 100000 repaid by 360 equal monthly rates 30/360 at 5 % a year: rate = K * i / (1 - (1 + i)^-360)
// with i = 1.05^(1/12) - 1 is 530.0551976420166.
TEST(Effektivzins, DreissigJahreInMonatsraten) {
    std::vector<Reihensatz> reihe{Reihenzeile("01.01.2000", 100000)};
    for (int monat = 1; monat <= 360; ++monat)
        reihe.push_back(
            Reihenzeile(PlusMonate(Datum::Lesen("01.01.2000"), monat).Text(), -530.0551976420166));
    EXPECT_EQ(ReiheAuswerten(reihe, Effektivmethode::aidb360).Effektivzins, "5,00000");
}

// A series out of order is taken as it stands: its day counts, and with them its powers, are negative.
TEST(Effektivzins, EineReiheRueckwaertsWirdGenommenWieSieSteht) {
    // 1100 first, 1000 a year earlier: -1000 * 1.1 + 1100 = 0
    const auto reihe = Reihe({{"01.01.2008", 1100}, {"01.01.2007", -1000}});
    for (const auto methode : {Effektivmethode::aidb360, Effektivmethode::isma, Effektivmethode::pangv2000})
        EXPECT_EQ(ReiheAuswerten(reihe, methode).Effektivzins, "10,00000");
}

}  // namespace reiheauswerten_test
}  // namespace zinfolio
