// What holds of the interest of a period beside its plain figures: precision, two rates, rounding, no days.

#include <cmath>
#include <gtest/gtest.h>
#include <string>

#include "kern/dates/datumsliteral.h"
#include "kern/dates/periodenzinsen.h"

namespace zinfolio {
namespace periodenzinsenregeln_test {

using enum Verzinsungsmethode;
constexpr Verzinsungsmethode alleMethoden[] = {deutsch, englisch, franzoesisch, dreissig365, kalender365};

double Zins(Datum von, Datum bis, Verzinsungsmethode methode, Zinsbasis erste, Zinsbasis zweite = {}) {
    return PeriodenZinsen(von, bis, methode, erste, zweite).zins;
}

/// Interest of a year of 360 days out of 360.
double Jahreszins(Zinsbasis erste, Zinsbasis zweite = {}) {
    return Zins("01.01.2007"_datum, "01.01.2008"_datum, deutsch, erste, zweite);
}

TEST(Zinstage, ZaehltNachDerMethode) {
    constexpr Datum von = "31.01.2007"_datum;
    constexpr Datum bis = "01.03.2007"_datum;
    static_assert(Zinstage(von, bis, deutsch) == 31);
    static_assert(Zinstage(von, bis, dreissig365) == 31);
    static_assert(Zinstage(von, bis, englisch) == 29);
    static_assert(Zinstage(von, bis, franzoesisch) == 29);
    static_assert(Zinstage(von, bis, kalender365) == 29);
    EXPECT_EQ(Zinstage(bis, von, deutsch), -31);
    EXPECT_EQ(Zinstage(bis, von, englisch), -29);
}

TEST(PeriodenZinsen, OhneTageKeinZins) {
    for (const auto methode : alleMethoden) {
        for (const Datum tag : {"15.06.2007"_datum, "29.02.2008"_datum, "31.12.2007"_datum}) {
            for (const double betrag : {10000.0, -10000.0, 1e15}) {
                const auto ergebnis = PeriodenZinsen(tag, tag, methode, {7.5F, betrag}, {9.0F, betrag});
                EXPECT_EQ(ergebnis.tage, 0) << static_cast<int>(methode);
                EXPECT_EQ(ergebnis.zins, 0.0) << static_cast<int>(methode);
            }
        }
    }
}

TEST(PeriodenZinsen, OhneSatzOderBetragKeinZins) {
    for (const auto methode : alleMethoden) {
        EXPECT_EQ(Zins("15.12.2007"_datum, "15.01.2008"_datum, methode, {0, 10000}, {0, -5000}), 0.0);
        EXPECT_EQ(Zins("15.12.2007"_datum, "15.01.2008"_datum, methode, {3, 0}, {9, 0}), 0.0);
    }
}

// The 4-byte number next to 3,5 / 100 is 0,03500000014901..., which shows at large amounts.
TEST(PeriodenZinsen, QuotientDesSatzesHatVierByte) {
    EXPECT_EQ(Jahreszins({3.5F, 100'000'000}), 3'500'000.01);
    EXPECT_EQ(Jahreszins({3.5F, -100'000'000}), -3'500'000.01);
    EXPECT_EQ(Jahreszins({0, 0}, {3.5F, 100'000'000}), 3'500'000.01);
    EXPECT_EQ(Zins("01.01.2007"_datum, "01.01.2008"_datum, kalender365, {3.5F, 100'000'000}), 3'500'000.01);
    // No day before the cut, 365 of 365 behind it.
    EXPECT_EQ(Zins("31.12.2006"_datum, "31.12.2007"_datum, englisch, {3.5F, 100'000'000}), 3'500'000.01);
    EXPECT_EQ(Jahreszins({12.5F, 100'000'000}), 12'500'000.0) << "an eighth is exact";
}

TEST(PeriodenZinsen, ZweiBetraegeTragenJeIhrenSatz) {
    const Zinsbasis guthaben{3, 10000};    // 300 a year
    const Zinsbasis darueber{1.5F, 4000};  // 60 a year
    const Datum von = "01.02.2007"_datum;
    const Datum bis = "01.05.2007"_datum;
    EXPECT_EQ(Zins(von, bis, deutsch, guthaben, darueber), 90.0);       // 90 * 360 / 360
    EXPECT_EQ(Zins(von, bis, englisch, guthaben, darueber), 87.78);     // 89 * 360 / 365 = 87,7808
    EXPECT_EQ(Zins(von, bis, franzoesisch, guthaben, darueber), 89.0);  // 89 * 360 / 360
    EXPECT_EQ(Zins(von, bis, dreissig365, guthaben, darueber), 88.77);  // 90 * 360 / 365 = 88,7671
    EXPECT_EQ(Zins(von, bis, kalender365, guthaben, darueber), 87.78);  // 89 * 360 / 365
}

TEST(PeriodenZinsen, ZweiBetraegeUeberDasJahresende) {
    // 360 a year: 16 * 360 / 365 + 15 * 360 / 366 = 15,7808 + 14,7541
    EXPECT_EQ(Zins("15.12.2007"_datum, "15.01.2008"_datum, englisch, {3, 10000}, {1.5F, 4000}), 30.53);
    // 240 a year, the second amount being owed: 16 * 240 / 365 + 15 * 240 / 366 = 10,5205 + 9,8361
    EXPECT_EQ(Zins("15.12.2007"_datum, "15.01.2008"_datum, englisch, {3, 10000}, {1.5F, -4000}), 20.36);
}

TEST(PeriodenZinsen, RundetNurDieSumme) {
    EXPECT_EQ(Jahreszins({100, 0.004}), 0.0);
    EXPECT_EQ(Jahreszins({100, 0.004}, {100, 0.004}), 0.01);
    EXPECT_EQ(Jahreszins({100, 0.006}, {100, 0.006}), 0.01) << "each alone would be a cent";
    // Two fractions of a year are added before the rounding, as two amounts are.
    EXPECT_EQ(Zins("31.12.2006"_datum, "31.12.2007"_datum, englisch, {100, 0.004}), 0.0);
    EXPECT_EQ(Zins("31.12.2006"_datum, "31.12.2007"_datum, englisch, {100, 0.004}, {100, 0.004}), 0.01);
    EXPECT_EQ(Zins("01.01.2007"_datum, "31.12.2008"_datum, englisch, {100, 0.004}),
              0.01);  // 364 / 365 + 1 years
}

// At 100 % for a year the interest is the amount; eighths and 2,505 lie at the half cent.
TEST(PeriodenZinsen, HalberCentGehtNachObenAuchUnterNull) {
    EXPECT_EQ(Jahreszins({100, 0.125}), 0.13);
    EXPECT_EQ(Jahreszins({100, -0.125}), -0.12);
    EXPECT_EQ(Jahreszins({100, 2.505}), 2.51);
    EXPECT_EQ(Jahreszins({100, -2.505}), -2.5);
    EXPECT_EQ(Jahreszins({100, -2.506}), -2.51);
    EXPECT_EQ(Jahreszins({100, -2.0}, {100, -0.125}), -2.12);
}

TEST(PeriodenZinsen, UeberlaufIstNichtEndlich) {
    EXPECT_FALSE(std::isfinite(Jahreszins({999, 1e308})));
    EXPECT_FALSE(std::isfinite(Zins("01.07.2007"_datum, "01.07.2008"_datum, englisch, {999, 1e308})));
}

TEST(Verzinsungsmethode, HatTexteTageszaehlungUndJahreslaengeInDieserReihenfolge) {
    ASSERT_EQ(verzinsungsmethoden.size(), 5U);
    EXPECT_EQ(verzinsungsmethoden[0], "30/360 Tage : Deutsche Methode");
    EXPECT_EQ(verzinsungsmethoden[1], "Kalendertage/Kalenderjahrestage : Englische Methode");
    EXPECT_EQ(verzinsungsmethoden[2], "Kalendertage/360 : Französische Methode");
    EXPECT_EQ(verzinsungsmethoden[3], "30/365 Tage");
    EXPECT_EQ(verzinsungsmethoden[4], "kal/365 Tage");
    for (int index = 0; index < 5; ++index)
        EXPECT_EQ(static_cast<int>(alleMethoden[index]), index);
    EXPECT_EQ(FesteJahreslaenge(deutsch), 360);
    EXPECT_EQ(FesteJahreslaenge(franzoesisch), 360);
    EXPECT_EQ(FesteJahreslaenge(dreissig365), 365);
    EXPECT_EQ(FesteJahreslaenge(kalender365), 365);
}

}  // namespace periodenzinsenregeln_test
}  // namespace zinfolio
