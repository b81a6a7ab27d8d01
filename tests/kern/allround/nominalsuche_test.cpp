#include "kern/allround/nominalsuche.h"

#include <cmath>
#include <gtest/gtest.h>
#include <vector>

#include "kern/grund/rechenfehler.h"

namespace zinfolio {
namespace nominalsuche_test {

/// The rates at which the search asked for a balance.
struct Mitschrift {
    std::vector<double> saetze;
    std::optional<double> ergebnis;
};

template <typename Funktion>
Mitschrift Suche(double start, Funktion endstand) {
    Mitschrift schrift;
    schrift.ergebnis = NominalzinsSuchen(start, [&](double r) {
        schrift.saetze.push_back(r);
        return endstand(r);
    });
    return schrift;
}

TEST(Nominalsuche, BeginntMitDemStartUndEinemZwanzigstelDarunter) {
    const Mitschrift schrift = Suche(5, [](double r) { return 100 * (r - 3); });
    ASSERT_EQ(schrift.saetze.size(), 3U);
    EXPECT_EQ(schrift.saetze[0], 5);
    EXPECT_EQ(schrift.saetze[1], 4.95);
    EXPECT_NEAR(*schrift.ergebnis, 3, 1e-9);
    EXPECT_EQ(schrift.saetze[2], *schrift.ergebnis);
}

TEST(Nominalsuche, MachtAuchWoDerStartStimmtDreiLaeufe) {
    const Mitschrift schrift = Suche(5, [](double r) { return r - 5; });
    EXPECT_EQ(schrift.saetze.size(), 3U);
    EXPECT_EQ(schrift.ergebnis, 5);
}

TEST(Nominalsuche, EndetWoSichDerKontostandNichtMehrAendert) {
    // Steps of a cent, none of which is 0: the search stands still half a cent beside it.
    const Mitschrift schrift = Suche(5, [](double r) { return std::floor(r * 1000) / 100 + 0.005; });
    EXPECT_TRUE(schrift.ergebnis.has_value());
    EXPECT_LE(schrift.saetze.size(), 10U);
}

TEST(Nominalsuche, GleicheKontostaendeZuBeginnSindEinFehler) {
    EXPECT_THROW(static_cast<void>(NominalzinsSuchen(5, [](double) { return 1.0; })), Rechenfehler);
}

TEST(Nominalsuche, KeinKontostandIstEinFehler) {
    EXPECT_THROW(
        static_cast<void>(NominalzinsSuchen(5, [](double r) { return r > 4.96 ? 1.0 : std::nan(""); })),
        Rechenfehler);
}

// The balance has no zero: the rates wander, and the search would for ever.
TEST(Nominalsuche, GibtNachHunderttausendRundenAuf) {
    const Mitschrift schrift = Suche(5, [](double r) { return 1e12 * (r * r + 1); });
    EXPECT_EQ(schrift.ergebnis, std::nullopt);
    EXPECT_EQ(schrift.saetze.size(), 2U + hoechstrundenNominalsuche);
}

/// The rate that the search comes to by walking every round.
template <typename Funktion>
double LetzterSatzOhneAbkuerzung(double start, Funktion endstand) {
    double r0 = start;
    double b0 = endstand(r0);
    double r1 = start - 0.05;
    double b1 = endstand(r1);
    for (int runde = 0; runde < hoechstrundenNominalsuche; ++runde) {
        const double r = r0 - (r1 - r0) * b0 / (b1 - b0);
        r0 = r1;
        b0 = b1;
        r1 = r;
        b1 = endstand(r);
    }
    return r1;
}

// A balance that jumps over 0, and one that only touches 1: the rates soon go round in a ring of four or
// twenty.
TEST(Nominalsuche, EinRingWirdNichtAbgelaufenUndEndetMitDemselbenSatz) {
    const auto sprung = [](double r) { return r > 0 ? r + 1 : r - 1; };
    const auto knick = [](double r) { return std::fabs(r) + 1; };
    for (const std::function<double(double)>& endstand : {std::function<double(double)>(sprung), {knick}}) {
        const Mitschrift schrift = Suche(5.2, endstand);
        ASSERT_EQ(schrift.ergebnis, std::nullopt);
        EXPECT_LT(schrift.saetze.size(), 500U);
        EXPECT_EQ(schrift.saetze.back(), LetzterSatzOhneAbkuerzung(5.2, endstand));
    }
}

}  // namespace nominalsuche_test
}  // namespace zinfolio
