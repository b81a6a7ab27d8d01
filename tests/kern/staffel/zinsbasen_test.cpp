// Rates and bases by balance: credit 1 % and 2 % from 1 000 on, debit 8 % and 12 % from 500 on.
#include <gtest/gtest.h>

#include "kern/staffel/staffelberechnung.h"

namespace zinfolio {
namespace zinsbasen_test {

struct Fall {
    std::int16_t zweitzinsart;
    double kontostand;
    Zinsbasis erste;
    Zinsbasis zweite;
    double guthabenlinie = 1000;
    double kreditlinie = 500;
};

void PrintTo(const Fall& fall, std::ostream* strom) {
    *strom << "Art " << fall.zweitzinsart << ", Stand " << fall.kontostand << ", Linien "
           << fall.guthabenlinie << " und " << fall.kreditlinie;
}

class ZinsbasenWaehlenTest : public testing::TestWithParam<Fall> {};

TEST_P(ZinsbasenWaehlenTest, Basen) {
    const Fall& fall = GetParam();
    const Zinsbasen basen = ZinsbasenWaehlen(fall.kontostand, {.Gutzins1 = 1,
                                                               .Gutzins2 = 2,
                                                               .Guthabenlinie = fall.guthabenlinie,
                                                               .Kreditzins1 = 8,
                                                               .Kreditzins2 = 12,
                                                               .Kreditlinie = fall.kreditlinie,
                                                               .Zweitzinsart = fall.zweitzinsart});
    EXPECT_EQ(basen.erste.satz, fall.erste.satz);
    EXPECT_EQ(basen.erste.betrag, fall.erste.betrag);
    EXPECT_EQ(basen.zweite.satz, fall.zweite.satz);
    EXPECT_EQ(basen.zweite.betrag, fall.zweite.betrag);
}

INSTANTIATE_TEST_SUITE_P(UnterDerLinieGiltDerErsteSatz, ZinsbasenWaehlenTest,
                         testing::Values(Fall{1, 999.99, {1, 999.99}, {1, 0}},
                                         Fall{2, 999.99, {1, 999.99}, {1, 0}}, Fall{1, 0, {1, 0}, {1, 0}},
                                         Fall{2, 0, {1, 0}, {1, 0}}, Fall{2, -0.0, {1, 0}, {1, 0}},
                                         Fall{1, -499.99, {8, -499.99}, {8, 0}},
                                         Fall{2, -499.99, {8, -499.99}, {8, 0}},
                                         Fall{2, -0.01, {8, -0.01}, {8, 0}}));

INSTANTIATE_TEST_SUITE_P(ArtEinsGiltFuerDenGanzenStand, ZinsbasenWaehlenTest,
                         testing::Values(Fall{1, 1000, {2, 1000}, {2, 0}}, Fall{1, 1500, {2, 1500}, {2, 0}},
                                         Fall{1, -500, {12, -500}, {12, 0}},
                                         Fall{1, -800, {12, -800}, {12, 0}}));

INSTANTIATE_TEST_SUITE_P(ArtZweiTeiltAnDerLinie, ZinsbasenWaehlenTest,
                         testing::Values(Fall{2, 1000, {1, 1000}, {2, 0}}, Fall{2, 1500, {1, 1000}, {2, 500}},
                                         Fall{2, -500, {8, -500}, {12, 0}},
                                         Fall{2, -800, {8, -500}, {12, -300}}));

INSTANTIATE_TEST_SUITE_P(JedeAndereArtTeiltEbenso, ZinsbasenWaehlenTest,
                         testing::Values(Fall{0, 1000, {1, 1000}, {2, 0}}, Fall{0, 1500, {1, 1000}, {2, 500}},
                                         Fall{0, -500, {8, -500}, {12, 0}},
                                         Fall{0, -800, {8, -500}, {12, -300}},
                                         Fall{3, 1500, {1, 1000}, {2, 500}},
                                         Fall{-1, -800, {8, -500}, {12, -300}}));

INSTANTIATE_TEST_SUITE_P(
    LinieNullLaesstNurDenZweitenSatzWirken, ZinsbasenWaehlenTest,
    testing::Values(Fall{1, 0, {2, 0}, {2, 0}, 0, 0}, Fall{1, 300, {2, 300}, {2, 0}, 0, 0},
                    Fall{2, 0, {1, 0}, {2, 0}, 0, 0}, Fall{2, 300, {1, 0}, {2, 300}, 0, 0},
                    Fall{1, -300, {12, -300}, {12, 0}, 0, 0}, Fall{2, -300, {8, 0}, {12, -300}, 0, 0}));

}  // namespace zinsbasen_test
}  // namespace zinfolio
