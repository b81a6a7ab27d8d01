// The search on scripted values: which rates it asks for, and how it ends.

#include "kern/finmath/effektivsuche.h"

#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

#include "kern/grund/rechenfehler.h"

namespace zinfolio {
namespace effektivsuche_test {

using testing::DoubleNear;
using testing::SizeIs;

/// Answers with one value after another, the last one for ever, and keeps the rates.
struct Drehbuch {
    std::vector<double> werte;
    std::vector<double> gefragt;

    Effektivsuche Spielen() {
        return EffektivzinsSuchen([this](double zinssatz) {
            gefragt.push_back(zinssatz);
            return werte[std::min(gefragt.size(), werte.size()) - 1];
        });
    }
};

TEST(EffektivzinsSuchen, BeginntBeiZehnUndEins) {
    Drehbuch buch{{-100, 50, 0}, {}};
    const Effektivsuche suche = buch.Spielen();
    EXPECT_EQ(buch.gefragt[0], 10);
    EXPECT_EQ(buch.gefragt[1], 1);
    // The line through (10, -100) and (1, 50) crosses zero at 4.
    EXPECT_THAT(buch.gefragt[2], DoubleNear(4, 1e-12));
    EXPECT_EQ(suche.Schritte, 1);
    EXPECT_TRUE(suche.Klammer);
    EXPECT_TRUE(suche.Eindeutig());
    EXPECT_EQ(suche.Zinssatz, buch.gefragt[2]);
}

TEST(EffektivzinsSuchen, AuchMitNullImErstenPunktWirdEinSchrittGemacht) {
    // The secant leads to 10 itself, the bracket's end: bisected to (1 + 10) / 2.
    Drehbuch buch{{0, -9, 0}, {}};
    EXPECT_EQ(buch.Spielen().Zinssatz, 5.5);
    EXPECT_THAT(buch.gefragt, testing::ElementsAre(10, 1, 5.5));
}

TEST(EffektivzinsSuchen, OhneEinschlussDarfDerSchrittHinaus) {
    // The line through (10, -200) and (1, -110) crosses zero at -10.
    Drehbuch buch{{-200, -110, 0}, {}};
    const Effektivsuche suche = buch.Spielen();
    EXPECT_FALSE(suche.Klammer);
    EXPECT_THAT(suche.Zinssatz, DoubleNear(-10, 1e-12));
}

TEST(EffektivzinsSuchen, NaechsteSekanteGehtDurchDieZweiJuengerenPunkte) {
    // No bracket: (10, 3), (1, 2) to -17 with 1; (1, 2), (-17, 1) to -35.
    Drehbuch buch{{3, 2, 1, 0}, {}};
    const Effektivsuche suche = buch.Spielen();
    EXPECT_THAT(buch.gefragt[2], DoubleNear(-17, 1e-12));
    EXPECT_THAT(suche.Zinssatz, DoubleNear(-35, 1e-12));
    EXPECT_EQ(suche.Schritte, 2);
}

// Bracket with -100 at 10. After one step near 1, a third value makes the secant leave the bracket at its
// lower end, so that the next rate is the middle: it shows where the lower end lies.
TEST(EffektivzinsSuchen, UnteresEndeBleibtStehenWennSeinWertGerundetNullIst) {
    for (const double klein : {0.4, 0.5}) {
        Drehbuch buch{{-100, klein, 0.3, 0.35, 0}, {}};
        buch.Spielen();
        EXPECT_EQ(buch.gefragt.at(4), 5.5) << klein;
    }
}

TEST(EffektivzinsSuchen, UnteresEndeRuecktNachWennSeinWertGerundetNichtNullIst) {
    Drehbuch buch{{-100, 0.6, 0.3, 0.35, 0}, {}};
    buch.Spielen();
    // The first step moved the end to the third rate; then its value 0.3 rounds to 0, and it stays.
    EXPECT_NE(buch.gefragt.at(2), 1);
    EXPECT_THAT(buch.gefragt.at(4), DoubleNear((buch.gefragt.at(2) + 10) / 2, 1e-12));
}

TEST(EffektivzinsSuchen, UnteresEndeRuecktBeiZweiNegativenWertenImmerNach) {
    Drehbuch buch{{100, -0.4, -0.3, -0.35, 0}, {}};
    buch.Spielen();
    EXPECT_THAT(buch.gefragt.at(4), DoubleNear((buch.gefragt.at(3) + 10) / 2, 1e-12));
}

TEST(EffektivzinsSuchen, OberesEndeRuecktNachWennDerWertAufSeinerSeiteLiegt) {
    // (10, 0.5), (1, -0.5) meet zero at 5.5; with 0.4 there the upper end is 5.5. (1, -0.5), (5.5, 0.4) meet
    // zero at 3.5; with 0.45 the upper end is 3.5. Then (5.5, 0.4), (3.5, 0.45) lead to 21.5, out: the middle
    // of 1 and 3.5.
    Drehbuch buch{{0.5, -0.5, 0.4, 0.45, 0}, {}};
    buch.Spielen();
    EXPECT_THAT(buch.gefragt.at(2), DoubleNear(5.5, 1e-12));
    EXPECT_THAT(buch.gefragt.at(3), DoubleNear(3.5, 1e-12));
    EXPECT_THAT(buch.gefragt.at(4), DoubleNear(2.25, 1e-12));
}

TEST(EffektivzinsSuchen, ZweiMilliardenAmUnterenEndeScheiternAmZweitenTest) {
    constexpr double grenze = 2147483648.0;
    for (const double y1 : {0.5, 0.0}) {
        Drehbuch buch{{-1, grenze, y1}, {}};
        EXPECT_THROW(buch.Spielen(), Rechenfehler) << y1;
    }
    Drehbuch beideNegativ{{1, -grenze, -0.5}, {}};
    EXPECT_THROW(beideNegativ.Spielen(), Rechenfehler);
}

TEST(EffektivzinsSuchen, DarunterUndAmErstenTestScheiternSieNicht) {
    Drehbuch darunter{{-1, 2147483647, 0}, {}};
    EXPECT_EQ(darunter.Spielen().Schritte, 1);
    // -0.5 lies on the upper end's side, and the second test is not reached; then 0 reaches it.
    Drehbuch ersterTest{{-1, 2147483648.0, -0.5, 0}, {}};
    EXPECT_THROW(ersterTest.Spielen(), Rechenfehler);
    EXPECT_THAT(ersterTest.gefragt, SizeIs(4));
}

TEST(EffektivzinsSuchen, GleicheWerteScheitern) {
    Drehbuch buch{{5, 5}, {}};
    EXPECT_THROW(buch.Spielen(), Rechenfehler);
    Drehbuch spaeter{{5, 4, 3, 3}, {}};
    EXPECT_THROW(spaeter.Spielen(), Rechenfehler);
    EXPECT_THAT(spaeter.gefragt, SizeIs(4));
}

TEST(EffektivzinsSuchen, FuenfzehnStellenEntscheidenUeberGleichheit) {
    // 1 and 1 + 2^-52 differ in the 16th digit only.
    Drehbuch buch{{1, std::nextafter(1.0, 2.0)}, {}};
    EXPECT_THROW(buch.Spielen(), Rechenfehler);
}

TEST(EffektivzinsSuchen, UnzahlenScheitern) {
    for (const double unzahl :
         {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
          std::numeric_limits<double>::max()}) {
        Drehbuch buch{{1, 2, unzahl}, {}};
        EXPECT_THROW(buch.Spielen(), Rechenfehler) << unzahl;
    }
    // The difference of the two values overflows.
    Drehbuch spanne{{1e308, -1e308}, {}};
    EXPECT_THROW(spanne.Spielen(), Rechenfehler);
}

/// Values that never settle: y, -y, y, ...
Effektivsuche Pendeln(double y, int& aufrufe) {
    return EffektivzinsSuchen([&](double) { return ++aufrufe % 2 == 0 ? y : -y; });
}

TEST(EffektivzinsSuchen, NachFuenfzigSchrittenZaehltEinBarwertBisEins) {
    int aufrufe = 0;
    const Effektivsuche suche = Pendeln(1, aufrufe);
    EXPECT_EQ(suche.Schritte, 50);
    EXPECT_EQ(aufrufe, 52);
    EXPECT_TRUE(suche.Eindeutig());
}

TEST(EffektivzinsSuchen, NachFuenfzigSchrittenIstMehrAlsEinsKeineLoesung) {
    int aufrufe = 0;
    EXPECT_FALSE(Pendeln(1.001, aufrufe).Eindeutig());
    EXPECT_EQ(aufrufe, 52);
}

TEST(EffektivzinsSuchen, UnterEinemHunderttausendstelIstSchluss) {
    Drehbuch genau{{-1, 2, 0.00001, 0.000009}, {}};
    EXPECT_EQ(genau.Spielen().Schritte, 2);
}

}  // namespace effektivsuche_test
}  // namespace zinfolio
