#include "kern/richtext/listennummer.h"

#include <gmock/gmock.h>

namespace zinfolio {
namespace listennummer_test {

struct Fall {
    Liste liste;
    int nummer;
    const char* text;
};

class Listennummern : public testing::TestWithParam<Fall> {};

TEST_P(Listennummern, SindDerTextVorDemPunkt) {
    EXPECT_EQ(Listennummer(GetParam().liste, GetParam().nummer), GetParam().text);
}

constexpr Liste Art(Listenart art) {
    return {.art = art};
}

INSTANTIATE_TEST_SUITE_P(
    Alle, Listennummern,
    testing::Values(
        Fall{{}, 1, ""}, Fall{Art(Listenart::punkte), 1, ""}, Fall{Art(Listenart::dezimal), 12, "12."},
        Fall{{Listenart::dezimal, Nachzeichen::klammer}, 3, "3)"},
        Fall{{Listenart::dezimal, Nachzeichen::keins}, 3, "3"}, Fall{Art(Listenart::dezimal), 0, "0."},
        Fall{Art(Listenart::kleinbuchstaben), 1, "a."}, Fall{Art(Listenart::kleinbuchstaben), 26, "z."},
        Fall{Art(Listenart::kleinbuchstaben), 27, "aa."}, Fall{Art(Listenart::grossbuchstaben), 52, "AZ."},
        Fall{Art(Listenart::grossbuchstaben), 703, "AAA."}, Fall{Art(Listenart::kleinbuchstaben), 0, "0."},
        Fall{Art(Listenart::kleinroemisch), 4, "iv."}, Fall{Art(Listenart::grossroemisch), 1994, "MCMXCIV."},
        Fall{Art(Listenart::kleinroemisch), 3888, "mmmdccclxxxviii."},
        Fall{Art(Listenart::grossroemisch), 3999, "MMMCMXCIX."},
        Fall{Art(Listenart::grossroemisch), 4000, "4000."}, Fall{Art(Listenart::kleinroemisch), 0, "0."}));

}  // namespace listennummer_test
}  // namespace zinfolio
