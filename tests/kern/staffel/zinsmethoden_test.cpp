// An account by each of the five day-count methods.
#include <gtest/gtest.h>

#include "kern/staffel/beispielkonto.h"
#include "kern/staffel/staffelberechnung.h"

namespace zinfolio {
namespace zinsmethoden_test {

using enum Verzinsungsmethode;

struct Fall {
    Verzinsungsmethode methode;
    std::string_view von;
    std::string_view bis;
    int tage;
    double zins;
    double betrag = 10000;
};

void PrintTo(const Fall& fall, std::ostream* strom) {
    *strom << static_cast<int>(fall.methode) << ' ' << fall.von << '-' << fall.bis << ' ' << fall.betrag;
}

class ZinsmethodenTest : public testing::TestWithParam<Fall> {};

TEST_P(ZinsmethodenTest, DreiProzent) {
    const Fall& fall = GetParam();
    std::vector<Staffelsatz> saetze{Kondition(fall.von, Einheitszins(3)), Zahlung(fall.von, fall.betrag),
                                    Termin(fall.bis)};
    Staffelberechnung(saetze, fall.methode);
    EXPECT_EQ(saetze[1].Zinstage, fall.tage);
    EXPECT_EQ(saetze[1].Periodenzins, fall.zins);
    EXPECT_EQ(saetze[2].Kontostand, fall.betrag + fall.zins);
}

// 300 a year.
INSTANTIATE_TEST_SUITE_P(Innerjaehrig, ZinsmethodenTest,
                         testing::Values(Fall{deutsch, "01.02.2007", "01.03.2007", 30, 25.00},
                                         Fall{englisch, "01.02.2007", "01.03.2007", 28, 23.01},
                                         Fall{franzoesisch, "01.02.2007", "01.03.2007", 28, 23.33},
                                         Fall{dreissig365, "01.02.2007", "01.03.2007", 30, 24.66},
                                         Fall{kalender365, "01.02.2007", "01.03.2007", 28, 23.01}));

INSTANTIATE_TEST_SUITE_P(ImSchaltjahr, ZinsmethodenTest,
                         testing::Values(Fall{deutsch, "01.02.2008", "01.03.2008", 30, 25.00},
                                         Fall{englisch, "01.02.2008", "01.03.2008", 29, 23.77},
                                         Fall{franzoesisch, "01.02.2008", "01.03.2008", 29, 24.17},
                                         Fall{dreissig365, "01.02.2008", "01.03.2008", 30, 24.66},
                                         Fall{kalender365, "01.02.2008", "01.03.2008", 29, 23.84}));

INSTANTIATE_TEST_SUITE_P(UeberDasJahresende, ZinsmethodenTest,
                         testing::Values(Fall{deutsch, "15.12.2007", "15.01.2008", 30, 25.00},
                                         // 16 * 300 / 365 + 15 * 300 / 366
                                         Fall{englisch, "15.12.2007", "15.01.2008", 31, 25.45},
                                         Fall{franzoesisch, "15.12.2007", "15.01.2008", 31, 25.83},
                                         Fall{dreissig365, "15.12.2007", "15.01.2008", 30, 24.66},
                                         Fall{kalender365, "15.12.2007", "15.01.2008", 31, 25.48}));

// 30 000 a year, so that a day of 366 shows beside a day of 365.
INSTANTIATE_TEST_SUITE_P(EnglischAnDerJahresgrenze, ZinsmethodenTest,
                         testing::Values(
                             // No day of 2007, one of 2008.
                             Fall{englisch, "31.12.2007", "01.01.2008", 1, 81.97, 1e6},
                             Fall{englisch, "31.12.2006", "01.01.2007", 1, 82.19, 1e6},
                             Fall{englisch, "30.12.2007", "31.12.2007", 1, 82.19, 1e6},
                             Fall{englisch, "30.12.2008", "31.12.2008", 1, 81.97, 1e6},
                             // One day of 365 and one of 366, and the other way round.
                             Fall{englisch, "30.12.2007", "01.01.2008", 2, 164.16, 1e6},
                             Fall{englisch, "30.12.2008", "01.01.2009", 2, 164.16, 1e6}));

// All days behind the first year's end go on the length of the last year: 1 096 days of 365 and 731 of 366.
INSTANTIATE_TEST_SUITE_P(EnglischUeberMehrereJahre, ZinsmethodenTest,
                         testing::Values(Fall{englisch, "31.12.2007", "31.12.2010", 1096, 900.82},
                                         Fall{englisch, "31.12.2006", "31.12.2008", 731, 599.18},
                                         Fall{englisch, "01.12.2006", "31.12.2008", 761, 623.84}));

// Cut at 31.12.2008 all the same: 351 days of 366 forwards, 382 of 365 backwards.
INSTANTIATE_TEST_SUITE_P(RueckwaertsUeberDasJahresende, ZinsmethodenTest,
                         testing::Values(Fall{deutsch, "15.01.2008", "15.12.2007", -30, -25.00},
                                         Fall{englisch, "15.01.2008", "15.12.2007", -31, -26.27},
                                         Fall{franzoesisch, "15.01.2008", "15.12.2007", -31, -25.83}));

INSTANTIATE_TEST_SUITE_P(Februarende, ZinsmethodenTest,
                         testing::Values(Fall{deutsch, "28.02.2007", "28.02.2008", 358, 298.33},
                                         Fall{deutsch, "29.02.2008", "01.03.2008", 1, 0.83},
                                         Fall{dreissig365, "31.01.2007", "28.02.2007", 30, 24.66}));

class OhneTageTest : public testing::TestWithParam<Verzinsungsmethode> {};

TEST_P(OhneTageTest, KeineZinsen) {
    std::vector<Staffelsatz> saetze{Kondition("31.12.2007", Einheitszins(3)), Zahlung("31.12.2007", 10000),
                                    Termin("31.12.2007")};
    Staffelberechnung(saetze, GetParam());
    EXPECT_EQ(saetze[1].Zinstage, 0);
    EXPECT_EQ(saetze[2].Kontostand, 10000);
}

INSTANTIATE_TEST_SUITE_P(AlleMethoden, OhneTageTest,
                         testing::Values(deutsch, englisch, franzoesisch, dreissig365, kalender365));

}  // namespace zinsmethoden_test
}  // namespace zinfolio
