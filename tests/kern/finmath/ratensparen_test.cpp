#include "kern/finmath/ratensparen.h"

#include <gtest/gtest.h>
#include <ostream>

#include "kern/grund/rechenfehler.h"

namespace zinfolio {
namespace ratensparen_test {

constexpr std::int16_t sofort = zahlungsmodus::sofort;
constexpr std::int16_t danach = zahlungsmodus::nachIntervall;

Ratensparplan MitEndwert(Ratensparplan plan) {
    RatensparenEndwert(plan);
    return plan;
}
Ratensparplan MitRate(Ratensparplan plan) {
    RatensparenRate(plan);
    return plan;
}
Ratensparplan MitLaufzeit(Ratensparplan plan) {
    RatensparenLaufzeit(plan);
    return plan;
}
Ratensparplan MitRendite(Ratensparplan plan) {
    RatensparenRendite(plan);
    return plan;
}

struct Endwertfall {
    Ratensparplan plan;
    double endwert;

    friend std::ostream& operator<<(std::ostream& strom, const Endwertfall& fall) {
        return strom << fall.plan.R << " paid " << fall.plan.m << " times a year for " << fall.plan.J
                     << " years " << fall.plan.T << " days at " << fall.plan.i << " %, mode "
                     << fall.plan.Zahlungsmodus;
    }
};

class RatensparenEndwertTest : public testing::TestWithParam<Endwertfall> {};

TEST_P(RatensparenEndwertTest, WieEinJahrFuerJahrGefuehrtesKonto) {
    EXPECT_EQ(MitEndwert(GetParam().plan).E, GetParam().endwert);
}

/// By hand: 100 at 10 %. In advance the payment earns its year, 110; behind it, nothing.
INSTANTIATE_TEST_SUITE_P(EineZahlungImJahr, RatensparenEndwertTest,
                         testing::Values(Endwertfall{{100, 1, 0, 10, 1, 0, sofort}, 110},
                                         Endwertfall{{100, 1, 0, 10, 1, 0, danach}, 100},
                                         Endwertfall{{100, 2, 0, 10, 1, 0, sofort}, 231},
                                         Endwertfall{{100, 2, 0, 10, 1, 0, danach}, 210},
                                         Endwertfall{{100, 1, 0, 10, 1, 1000, sofort}, 1210}));

/// From a book kept year by year in exact fractions.
INSTANTIATE_TEST_SUITE_P(Kontobuch, RatensparenEndwertTest,
                         testing::Values(Endwertfall{{100, 10, 0, 5, 12, 0, sofort}, 15502.25},
                                         Endwertfall{{100, 10, 0, 5, 12, 0, danach}, 15439.36},
                                         Endwertfall{{100, 10, 100, 5, 12, 5000, sofort}, 24378.21},
                                         Endwertfall{{100, 10, 100, 5, 12, 5000, danach}, 24213.06},
                                         Endwertfall{{250, 7, 359, 3.5, 4, 1000, sofort}, 10565.51},
                                         Endwertfall{{250, 7, 359, 3.5, 4, 1000, danach}, 10236.34},
                                         Endwertfall{{60, 0, 45, 6, 12, 1000, sofort}, 1128.10},
                                         Endwertfall{{60, 0, 45, 6, 12, 1000, danach}, 1067.65}));

/// The same book, 60 for 3 years and 90 days at 4 %.
INSTANTIATE_TEST_SUITE_P(AlleZahlungsweisen, RatensparenEndwertTest,
                         testing::Values(Endwertfall{{60, 3, 90, 4, 12, 0, sofort}, 2500.41},
                                         Endwertfall{{60, 3, 90, 4, 12, 0, danach}, 2492.24},
                                         Endwertfall{{60, 3, 90, 4, 6, 0, sofort}, 1282.30},
                                         Endwertfall{{60, 3, 90, 4, 6, 0, danach}, 1214.13},
                                         Endwertfall{{60, 3, 90, 4, 4, 0, sofort}, 836.19},
                                         Endwertfall{{60, 3, 90, 4, 4, 0, danach}, 828.03},
                                         Endwertfall{{60, 3, 90, 4, 3, 0, sofort}, 643.24},
                                         Endwertfall{{60, 3, 90, 4, 3, 0, danach}, 575.07},
                                         Endwertfall{{60, 3, 90, 4, 2, 0, sofort}, 450.29},
                                         Endwertfall{{60, 3, 90, 4, 2, 0, danach}, 382.12},
                                         Endwertfall{{60, 3, 90, 4, 1, 0, sofort}, 257.34},
                                         Endwertfall{{60, 3, 90, 4, 1, 0, danach}, 189.17}));

TEST(RatensparenEndwert, OhneLaufzeitBleibtDasKapital) {
    EXPECT_EQ(MitEndwert({100, 0, 0, 5, 12, 777, sofort}).E, 777);
}

TEST(RatensparenEndwert, TageAb360WerdenJahre) {
    const Ratensparplan plan = MitEndwert({100, 1, 400, 5, 12, 0, sofort});
    EXPECT_EQ(plan.J, 2);
    EXPECT_EQ(plan.T, 40);
    EXPECT_EQ(plan.E, MitEndwert({100, 2, 40, 5, 12, 0, sofort}).E);
    EXPECT_EQ(MitEndwert({100, 0, 360, 5, 12, 0, sofort}).T, 0);
}

TEST(RatensparenEndwert, RundetDenHalbenCentAuf) {
    // 1000,25 at 50 % for half a year of days: 1250,3125; a quarter: 1125,28125.
    EXPECT_EQ(MitEndwert({0, 0, 180, 50, 12, 1000.25, sofort}).E, 1250.31);
    // 0,25 for 72 days at 10 %: 0,255.
    EXPECT_EQ(MitEndwert({0, 0, 72, 10, 12, 0.25, sofort}).E, 0.26);
}

TEST(RatensparenEndwert, BeimNullzinsZaehlenDieRatenVollerJahreNicht) {
    EXPECT_EQ(MitEndwert({100, 10, 0, 0, 12, 50, sofort}).E, 50);
    // The part-year counts them: one in advance and one after 30 days.
    EXPECT_EQ(MitEndwert({100, 10, 60, 0, 12, 50, sofort}).E, 250);
}

TEST(RatensparenEndwert, MehrJahreAlsEineGanzzahlHatScheitern) {
    EXPECT_EQ(MitEndwert({0, 32766, 360, 0, 12, 1, sofort}).J, 32767);
    EXPECT_THROW(MitEndwert({0, 32767, 360, 0, 12, 1, sofort}), Rechenfehler);
}

TEST(RatensparenEndwert, UeberlaufUndDivisionDurchNullScheitern) {
    EXPECT_THROW(MitEndwert({100, 8000, 0, 10, 12, 0, sofort}), Rechenfehler);
    // At -100 % the growth of a year is 0.
    EXPECT_THROW(MitEndwert({100, 1, 0, -100, 12, 0, sofort}), Rechenfehler);
    // Finite as it is, but not 100 times as much.
    EXPECT_THROW(MitEndwert({0, 0, 0, 0, 12, 1e307, sofort}), Rechenfehler);
}

/// By the same search in decimal numbers of 40 digits.
TEST(RatensparenRate, TrifftDenEndwert) {
    EXPECT_EQ(MitRate({0, 10, 0, 5, 12, 0, sofort, 15000}).R, 96.76);
    EXPECT_EQ(MitRate({0, 10, 0, 5, 12, 2000, danach, 15000}).R, 76.05);
    EXPECT_EQ(MitRate({0, 8, 100, 3, 4, 1000, sofort, 20000}).R, 485.71);
    EXPECT_EQ(MitRate({0, 0, 180, 3, 12, 100, sofort, 1000}).R, 148.45);
}

TEST(RatensparenRate, DieAlteRateSpieltKeineRolleUndDieLaufzeitKommtGekuerztZurueck) {
    const Ratensparplan plan = MitRate({999, 6, 820, 3, 4, 1000, sofort, 20000});
    EXPECT_EQ(plan.R, 485.71);
    EXPECT_EQ(plan.J, 8);
    EXPECT_EQ(plan.T, 100);
}

TEST(RatensparenRate, BeimNullzinsHilftKeineRateUndDieSucheGehtUmDieHaelftenWeiter) {
    // The start is 0 and every model value 0: steps of 100, 50, 25 ... downwards, in all 200.
    EXPECT_EQ(MitRate({0, 1, 0, 0, 12, 0, sofort, 1200}).R, -200);
}

TEST(RatensparenRate, OhneEineEinzigeZahlungScheitertDieSuche) {
    EXPECT_THROW(MitRate({0, 0, 0, 5, 12, 0, sofort, 1000}), Rechenfehler);
    EXPECT_THROW(MitRate({0, 0, 29, 5, 12, 0, danach, 1000}), Rechenfehler);
}

TEST(RatensparenRate, UeberlaufScheitert) {
    EXPECT_THROW(MitRate({0, 32000, 0, 10, 12, 0, sofort, 1000}), Rechenfehler);
    EXPECT_THROW(MitRate({0, 32767, 360, 1, 12, 0, sofort, 1000}), Rechenfehler);
}

void ErwarteLaufzeit(const Ratensparplan& plan, int jahre, int tage) {
    EXPECT_EQ(plan.J, jahre);
    EXPECT_EQ(plan.T, tage);
}

/// The same book, walked through its years and days.
TEST(RatensparenLaufzeit, IstDieKleinsteDieDenEndwertErreicht) {
    ErwarteLaufzeit(MitLaufzeit({100, 0, 0, 5, 12, 0, sofort, 15000}), 9, 261);
    ErwarteLaufzeit(MitLaufzeit({0, 0, 0, 5, 12, 5000, sofort, 10000}), 14, 73);
}

TEST(RatensparenLaufzeit, WasVorherImFeldStandSpieltKeineRolle) {
    ErwarteLaufzeit(MitLaufzeit({100, 77, 300, 5, 12, 0, sofort, 15000}), 9, 261);
}

TEST(RatensparenLaufzeit, EinTrefferImJahrOderAmTagBeendetDieSuche) {
    ErwarteLaufzeit(MitLaufzeit({0, 0, 0, 5, 1, 1000, sofort, 1050}), 1, 0);
    // 1000 at 36 %: 1 a day.
    ErwarteLaufzeit(MitLaufzeit({0, 0, 0, 36, 1, 1000, sofort, 1010}), 0, 10);
}

TEST(RatensparenLaufzeit, IstEinTagSchonZuVielBleibenKeineTage) {
    ErwarteLaufzeit(MitLaufzeit({100, 0, 0, 5, 12, 1990, sofort, 2000}), 0, 0);
}

TEST(RatensparenLaufzeit, ReichenErst360TageIstEsEinJahr) {
    // 1000 at 36 %: day 359 gives 1359,00, the whole year 1360,00.
    ErwarteLaufzeit(MitLaufzeit({0, 0, 0, 36, 1, 1000, sofort, 1359.5}), 1, 0);
}

TEST(RatensparenLaufzeit, NullzinsGiltAlsWinzigerZins) {
    // At 0 the payments of full years would count for nothing, and no period would do. 1200 after a year,
    // 1300 with the payment of the next day: days that were too many at once are taken back.
    ErwarteLaufzeit(MitLaufzeit({100, 0, 0, 0, 12, 0, sofort, 1250}), 1, 0);
}

TEST(RatensparenLaufzeit, OhneRateUndZielBleibtAllesWieEsIst) {
    ErwarteLaufzeit(MitLaufzeit({0, 3, 400, 5, 12, 1000, sofort, 0}), 3, 400);
}

TEST(RatensparenLaufzeit, UnerreichbaresZielScheitertNach32767Jahren) {
    EXPECT_THROW(MitLaufzeit({0, 0, 0, 0, 12, 1000, sofort, 2000}), Rechenfehler);
    EXPECT_THROW(MitLaufzeit({0, 0, 0, 5, 12, 0, sofort, 100}), Rechenfehler);
}

TEST(RatensparenLaufzeit, EineSucheImKreisEndetNachHunderttausendRunden) {
    // The capital shrinks from day to day: phase 2 never comes to its end.
    EXPECT_THROW(MitLaufzeit({0, 0, 0, -50, 12, 1000, sofort, 990}), Rechenfehler);
}

/// By the same search in decimal numbers of 40 digits.
TEST(RatensparenRendite, LiegtNaeherAlsEinHundertstelProzent) {
    EXPECT_NEAR(MitRendite({100, 10, 0, 0, 12, 0, sofort, 15000}).i, 4.373046875, 1e-9);
    EXPECT_NEAR(MitRendite({0, 10, 0, 0, 12, 1000, sofort, 2000}).i, 7.185546875, 1e-9);
    EXPECT_NEAR(MitRendite({0, 1, 0, 0, 1, 1000, sofort, 900}).i, -10.001953125, 1e-9);
    EXPECT_NEAR(MitRendite({100, 10, 30, 0, 12, 100, danach, 13000}).i, 1.248046875, 1e-9);
}

TEST(RatensparenRendite, EinTrefferBleibtStehen) {
    EXPECT_NEAR(MitRendite({0, 1, 0, 0, 12, 1000, sofort, 1120}).i, 12, 1e-9);
    EXPECT_NEAR(MitRendite({0, 1, 0, 0, 12, 1000, sofort, 1220}).i, 22, 1e-9);
}

TEST(RatensparenRendite, DerAlteZinsSpieltKeineRolleUndDieLaufzeitKommtGekuerztZurueck) {
    const Ratensparplan plan = MitRendite({0, 0, 400, 99, 1, 400, sofort, 500});
    EXPECT_NEAR(plan.i, 22.009765625, 1e-9);
    ErwarteLaufzeit(plan, 1, 40);
}

TEST(RatensparenRendite, OhneRateKapitalUndZielIstSieNull) {
    EXPECT_EQ(MitRendite({0, 10, 0, 7, 12, 0, sofort, 0}).i, 0);
}

TEST(RatensparenRendite, UnerreichbaresZielScheitert) {
    // Without a period nothing grows: the rate rises for 100 000 rounds.
    EXPECT_THROW(MitRendite({0, 0, 0, 0, 12, 1000, sofort, 2000}), Rechenfehler);
    // An even number of years: below -100 % the capital grows again, and overflows.
    EXPECT_THROW(MitRendite({0, 200, 0, 0, 12, 1000, sofort, -1}), Rechenfehler);
}

}  // namespace ratensparen_test
}  // namespace zinfolio
