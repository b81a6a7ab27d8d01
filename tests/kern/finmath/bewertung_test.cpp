#include "kern/finmath/bewertung.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

#include "kern/finmath/aufzinsung.h"
#include "kern/finmath/reiheauswerten.h"
#include "kern/finmath/reihen.h"

namespace zinfolio {
namespace bewertung_test {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::Eq;
using testing::IsEmpty;
using testing::Optional;
using testing::SizeIs;

class BewertungTest : public testing::TestWithParam<Effektivmethode> {};

TEST_P(BewertungTest, EineZeileIstAnBeidenEndenIhrBetrag) {
    const Reihenauswertung wert =
        ReiheAuswerten(Reihe({{"15.06.2007", 1234.5}}), GetParam(), 7, Tabellen::schreiben);
    EXPECT_THAT(wert.Endwert, Optional(1234.5));
    EXPECT_THAT(wert.Barwert, Optional(1234.5));
    EXPECT_EQ(wert.Vendwertberechnung->at(0).Faktor, 1);
    EXPECT_EQ(wert.Barwertberechnung->at(0).Faktor, 1);
    EXPECT_EQ(wert.Bardatum, "15.06.2007");
    EXPECT_EQ(wert.Enddatum, "15.06.2007");
    EXPECT_EQ(wert.Meldung, "");
}

TEST_P(BewertungTest, BeiNullProzentIstAllesDieSummeDerBetraege) {
    const auto reihe =
        Reihe({{"31.01.2007", -1000}, {"28.02.2007", 0}, {"15.06.2009", 250.25}, {"02.01.2011", 1000.5}});
    const Reihenauswertung wert = ReiheAuswerten(reihe, GetParam(), 0, Tabellen::schreiben);
    EXPECT_THAT(wert.Endwert, Optional(250.75));
    EXPECT_THAT(wert.Barwert, Optional(250.75));
    for (const auto& tabelle : {*wert.Vendwertberechnung, *wert.Barwertberechnung}) {
        EXPECT_THAT(tabelle, Each(testing::Field(&Ergebnissatz::Faktor, Eq(1.0F))));
        EXPECT_EQ(tabelle.back().Summenbetrag, 250.75);
        EXPECT_EQ(tabelle.back().Summenwert, 250.75);
    }
}

TEST_P(BewertungTest, EinJahrZuZehnProzent) {
    const auto reihe = Reihe({{"01.01.2007", -1000}, {"01.01.2008", 1210}});
    EXPECT_NEAR(EndwertRechnen(reihe, GetParam(), 10), 110, 1e-9);
    EXPECT_NEAR(BarwertRechnen(reihe, GetParam(), 10), 100, 1e-9);
}

TEST_P(BewertungTest, OhneTabellenBleibenDieDateienUnberuehrt) {
    const auto reihe = Reihe({{"01.01.2007", -1000}, {"01.01.2008", 1210}});
    const Reihenauswertung wert = ReiheAuswerten(reihe, GetParam(), 10, Tabellen::keine);
    EXPECT_EQ(wert.Vendwertberechnung, std::nullopt);
    EXPECT_EQ(wert.Barwertberechnung, std::nullopt);
}

TEST_P(BewertungTest, UeberlaufUndUnzahlenEndenMitDerMeldung) {
    const auto reihe = Reihe({{"01.01.2007", -1e300}, {"01.01.2008", 1e300}});
    for (const double zinssatz :
         {1e300, std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
          -std::numeric_limits<double>::infinity()}) {
        const Reihenauswertung wert = ReiheAuswerten(reihe, GetParam(), zinssatz, Tabellen::schreiben);
        EXPECT_EQ(wert.Meldung, "Es wurde kein Effektivzinssatz gefunden.") << zinssatz;
        EXPECT_EQ(wert.Endwert, std::nullopt) << zinssatz;
    }
    const auto unzahl = Reihe({{"01.01.2007", std::numeric_limits<double>::quiet_NaN()}, {"01.01.2008", 1}});
    EXPECT_EQ(ReiheAuswerten(unzahl, GetParam(), 5, Tabellen::keine).Meldung,
              "Es wurde kein Effektivzinssatz gefunden.");
}

TEST_P(BewertungTest, EinUnendlicherFaktorIstKeinBarwertVonNull) {
    // 1e200 ^ 2 overflows, though an amount divided by it would be a fine 0.
    const auto reihe = Reihe({{"01.01.2007", 1}, {"01.01.2009", 1}});
    EXPECT_THROW(BarwertRechnen(reihe, GetParam(), 1e202), Rechenfehler);
    const auto nullen = Reihe({{"01.01.2007", 0}, {"01.01.2009", 0}});
    EXPECT_THROW(BarwertRechnen(nullen, GetParam(), 1e202), Rechenfehler);
}

TEST_P(BewertungTest, EineLeereReiheScheitert) {
    const Reihenauswertung wert = ReiheAuswerten({}, GetParam(), 5, Tabellen::schreiben);
    EXPECT_EQ(wert.Meldung, "Es wurde kein Effektivzinssatz gefunden.");
    EXPECT_EQ(wert.Bardatum, "");
    EXPECT_EQ(wert.Vendwertberechnung, std::nullopt);
}

TEST_P(BewertungTest, EinTagDenEsNichtGibtLaesstDieZeilenDavorStehen) {
    auto reihe = Reihe({{"01.01.2007", -1000}, {"01.02.2007", 5}, {"01.01.2008", 1210}});
    reihe[1].Tag = 30;
    const Reihenauswertung wert = ReiheAuswerten(reihe, GetParam(), 10, Tabellen::schreiben);
    EXPECT_EQ(wert.Meldung, "Es wurde kein Effektivzinssatz gefunden.");
    EXPECT_THAT(wert.Vendwertberechnung, Optional(SizeIs(1)));
    EXPECT_EQ(wert.Barwertberechnung, std::nullopt);
    EXPECT_EQ(wert.Bardatum, "01.01.2007");
    EXPECT_EQ(wert.Enddatum, "01.01.2008");
}

TEST_P(BewertungTest, MehrZeilenAlsEineDateiHaeltScheitern) {
    const std::vector<Reihensatz> reihe(32768, Reihenzeile("01.01.2007", 1));
    EXPECT_THAT(ReiheAuswerten(std::span(reihe).first(32767), GetParam(), 5, Tabellen::keine).Endwert,
                Optional(32767));
    EXPECT_EQ(ReiheAuswerten(reihe, GetParam(), 5, Tabellen::keine).Meldung,
              "Es wurde kein Effektivzinssatz gefunden.");
}

INSTANTIATE_TEST_SUITE_P(AlleMethoden, BewertungTest, testing::ValuesIn(alleMethoden));

TEST(BewertungAidb360, HalbesJahrZuEinundzwanzigProzentIstDieWurzel) {
    // (1.21) ^ (180 / 360) = 1.1
    const auto reihe = Reihe({{"01.01.2007", -1000}, {"01.07.2007", 500}});
    const Reihenauswertung wert = ReiheAuswerten(reihe, Effektivmethode::aidb360, 21, Tabellen::schreiben);
    EXPECT_THAT(wert.Endwert, Optional(DoubleNear(-600, 1e-9)));
    EXPECT_THAT(wert.Barwert, Optional(DoubleNear(-1000 + 500 / 1.1, 1e-9)));
    EXPECT_EQ(wert.Vendwertberechnung->at(0).Faktor, 1.1F);
    EXPECT_EQ(wert.Vendwertberechnung->at(1).Faktor, 1.0F);
    EXPECT_EQ(wert.Barwertberechnung->at(0).Faktor, 1.0F);
    EXPECT_EQ(wert.Barwertberechnung->at(1).Faktor, 1.1F);
}

TEST(BewertungIsma, DasSchaltjahrHatSechsundsechzigTageZuViel) {
    // 366 days are a little more than a year: the factor lies above 1.1.
    const auto reihe = Reihe({{"01.01.2008", 1000}, {"01.01.2009", 0}});
    const double endwert = EndwertRechnen(reihe, Effektivmethode::isma, 10);
    EXPECT_NEAR(endwert, 1100.2872736637, 1e-9);  // 1000 * 1.1^(366/365)
    EXPECT_GT(endwert, 1100.28);
}

TEST(BewertungPangv2000, DreihundertsechzigTageSindGenauEinJahr) {
    const auto reihe = Reihe({{"01.03.2007", 1000}, {"01.03.2008", 0}});
    EXPECT_EQ(EndwertRechnen(reihe, Effektivmethode::pangv2000, 10), 1000 * (1 + 10 / 100.0));
}

/// Two years and a half by anniversaries at 10 %: 1.05 * 1.1 for the whole span of 540 days.
const auto jahrestagsreihe = Reihe({{"01.01.2007", -1000},
                                    {"01.04.2007", 100},
                                    {"01.01.2008", 100},
                                    {"01.04.2008", 100},
                                    {"01.07.2008", 900}});

TEST(BewertungPangvAlt, EndwertNachJahrestagen) {
    std::vector<Ergebnissatz> tabelle;
    // -1155 + 112,875 + 105 + 102,5 + 900
    EXPECT_NEAR(EndwertRechnen(jahrestagsreihe, Effektivmethode::pangvAlt, 10, &tabelle), 65.375, 1e-9);
    ASSERT_THAT(tabelle, SizeIs(5));
    EXPECT_EQ(tabelle[0].Faktor, 1.155F);    // 1.05 * 1.1
    EXPECT_EQ(tabelle[1].Faktor, 1.12875F);  // 270 days simple, then 180: 1.075 * 1.05
    EXPECT_EQ(tabelle[2].Faktor, 1.05F);     // on the anniversary
    EXPECT_EQ(tabelle[3].Faktor, 1.025F);    // the last part-year: 90 days simple
    EXPECT_EQ(tabelle[4].Faktor, 1.0F);
    EXPECT_THAT(tabelle[1].Zeilenwert, DoubleNear(112.875, 1e-9));
    EXPECT_THAT(tabelle[1].Summenwert, DoubleNear(-1042.125, 1e-9));
    EXPECT_EQ(tabelle[1].Summenbetrag, -900);
    EXPECT_EQ(tabelle[4].Summenbetrag, 200);
    EXPECT_EQ(tabelle[3].Ergebnisdatum.Roh(), "01.04.2008");
    EXPECT_EQ(tabelle[3].Ergebnisbetrag, 100);
}

TEST(BewertungPangvAlt, BarwertOhneUndMitTabelle) {
    const double erwartet = 65.375 / 1.155;
    EXPECT_NEAR(BarwertRechnen(jahrestagsreihe, Effektivmethode::pangvAlt, 10), erwartet, 1e-9);
    std::vector<Ergebnissatz> tabelle;
    EXPECT_NEAR(BarwertRechnen(jahrestagsreihe, Effektivmethode::pangvAlt, 10, &tabelle), erwartet, 1e-9);
    ASSERT_THAT(tabelle, SizeIs(5));
    EXPECT_EQ(tabelle[0].Faktor, 1.0F);
    EXPECT_FLOAT_EQ(tabelle[1].Faktor, 1.0232558F);  // 1.155 / 1.12875
    EXPECT_FLOAT_EQ(tabelle[4].Faktor, 1.155F);
    EXPECT_NEAR(tabelle[4].Zeilenwert, 900 / 1.155, 1e-9);
}

TEST(BewertungPangvAlt, ZweiJahreVerzinsenNurGanz) {
    const auto reihe = Reihe({{"01.01.2007", 1000}, {"01.01.2008", 1000}, {"01.01.2009", 0}});
    EXPECT_NEAR(EndwertRechnen(reihe, Effektivmethode::pangvAlt, 10), 1210 + 1100, 1e-9);
}

TEST(BewertungPangvAlt, EinAbschlagVonNullZaehltAlsEins) {
    // At -200 % the middle row grows by 1 + 180 * -2 / 360 = 0, and the whole span by -1.
    const auto reihe = Reihe({{"01.01.2007", -1000}, {"01.07.2007", 100}, {"01.01.2008", 500}});
    std::vector<Ergebnissatz> tabelle;
    EXPECT_EQ(BarwertRechnen(reihe, Effektivmethode::pangvAlt, -200, &tabelle), -1000 + 100 + 500);
    EXPECT_EQ(tabelle[1].Faktor, 1);
    EXPECT_EQ(BarwertRechnen(reihe, Effektivmethode::pangvAlt, -200), (1000 + 0 + 500) / -1.0);
}

TEST(BewertungPangvAlt, BeiMinusHundertGibtEsEinenEndwertAberKeinenBarwert) {
    const auto reihe = Reihe({{"01.01.2007", -1000}, {"01.01.2008", 500}});
    const Reihenauswertung wert = ReiheAuswerten(reihe, Effektivmethode::pangvAlt, -100, Tabellen::schreiben);
    EXPECT_THAT(wert.Endwert, Optional(500));  // all that was paid in is lost
    EXPECT_EQ(wert.Barwert, std::nullopt);
    EXPECT_EQ(wert.Meldung, "Es wurde kein Effektivzinssatz gefunden.");
    EXPECT_THAT(wert.Vendwertberechnung, Optional(SizeIs(2)));
    EXPECT_THAT(wert.Barwertberechnung, Optional(IsEmpty()));
}

TEST(BewertungPangvAlt, SchalttagOhneSchaltjahrAmAnfangScheitert) {
    const auto reihe =
        Reihe({{"01.01.2007", -1000}, {"01.02.2008", 5}, {"29.02.2008", 5}, {"01.01.2009", 1100}});
    const Reihenauswertung ohne = ReiheAuswerten(reihe, Effektivmethode::pangvAlt, 5, Tabellen::keine);
    EXPECT_EQ(ohne.Meldung, "Es wurde kein Effektivzinssatz gefunden.");
    const Reihenauswertung mit = ReiheAuswerten(reihe, Effektivmethode::pangvAlt, 5, Tabellen::schreiben);
    EXPECT_EQ(mit.Meldung, "Es wurde kein Effektivzinssatz gefunden.");
    EXPECT_THAT(mit.Vendwertberechnung, Optional(SizeIs(2)));
    std::vector<Ergebnissatz> tabelle;
    EXPECT_THROW(BarwertRechnen(reihe, Effektivmethode::pangvAlt, 5), Datumsfehler);
    EXPECT_THROW(BarwertRechnen(reihe, Effektivmethode::pangvAlt, 5, &tabelle), Datumsfehler);
    EXPECT_THAT(tabelle, SizeIs(2));
    EXPECT_EQ(ReiheAuswerten(reihe, Effektivmethode::pangvAlt).Meldung,
              "Es wurde kein Effektivzinssatz gefunden.");
    EXPECT_EQ(ReiheAuswerten(reihe, Effektivmethode::aidb360).Meldung, "");
}

TEST(BewertungMitPotenzen, UnterMinusHundertScheiternNurGebrochenePotenzen) {
    const auto ganz = Reihe({{"01.01.2007", -1000}, {"01.01.2009", 500}});
    const auto gebrochen = Reihe({{"01.01.2007", -1000}, {"01.07.2008", 500}});
    for (const auto methode : {Effektivmethode::aidb360, Effektivmethode::pangv2000}) {
        EXPECT_EQ(EndwertRechnen(ganz, methode, -200), -1000 + 500);  // (-1)^2 = 1
        EXPECT_THROW(EndwertRechnen(gebrochen, methode, -200), Rechenfehler);
        EXPECT_THROW(EndwertRechnen(gebrochen, methode, -100), Rechenfehler);
        EXPECT_EQ(EndwertRechnen(ganz, methode, -100), 500);
        EXPECT_THROW(BarwertRechnen(ganz, methode, -100), Rechenfehler);
    }
}

TEST(Faktor, JenseitsVonVierByteScheitertNurDieTabelle) {
    // At 1e41 % a year multiplies by 1e39; a 4-byte float ends at 3.4e38.
    const auto reihe = Reihe({{"01.01.2008", 1}, {"01.01.2007", 2}, {"01.01.2008", 3}});
    for (const Effektivmethode methode : alleMethoden) {
        const Reihenauswertung ohne = ReiheAuswerten(reihe, methode, 1e41, Tabellen::keine);
        EXPECT_THAT(ohne.Endwert, Optional(DoubleNear(2e39, 1e25)));
        const Reihenauswertung mit = ReiheAuswerten(reihe, methode, 1e41, Tabellen::schreiben);
        EXPECT_EQ(mit.Endwert, std::nullopt);
        EXPECT_THAT(mit.Vendwertberechnung, Optional(SizeIs(1)));
        EXPECT_EQ(mit.Meldung, "Es wurde kein Effektivzinssatz gefunden.");
    }
}

TEST(Faktor, HatVierByteDerWertDieVolleGenauigkeit) {
    const auto reihe = Reihe({{"01.01.2007", 1000000}, {"01.01.2008", 0}});
    std::vector<Ergebnissatz> tabelle;
    EXPECT_NEAR(EndwertRechnen(reihe, Effektivmethode::aidb360, 3.3, &tabelle), 1033000, 1e-6);
    EXPECT_EQ(tabelle[0].Faktor, 1.033F);
    EXPECT_GT(std::abs(tabelle[0].Faktor * 1000000.0 - 1033000), 1e-3);
}

}  // namespace bewertung_test
}  // namespace zinfolio
