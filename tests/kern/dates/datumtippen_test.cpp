#include "kern/dates/datumtippen.h"

#include <gtest/gtest.h>
#include <ostream>
#include <string>

namespace zinfolio {
namespace datumtippen_test {

constexpr int rueck = 8;

/// A field's text after a key, and the text that it shall show.
struct Tippfall {
    std::string feld;
    int taste;
    std::string ergebnis;

    friend std::ostream& operator<<(std::ostream& strom, const Tippfall& fall) {
        return strom << "»" << fall.feld << "« " << (fall.taste == rueck ? "Backspace" : "Taste");
    }
};

class DatumTippenTest : public testing::TestWithParam<Tippfall> {};

TEST_P(DatumTippenTest, GibtDenTextDesFeldes) {
    EXPECT_EQ(DatumTippen(GetParam().feld, GetParam().taste), GetParam().ergebnis);
}

INSTANTIATE_TEST_SUITE_P(
    Unberuehrt, DatumTippenTest,
    testing::Values(Tippfall{"", '1', ""}, Tippfall{"", rueck, ""}, Tippfall{"3", '3', "3"},
                    Tippfall{"0", '0', "0"}, Tippfall{"31.", '.', "31."}, Tippfall{"31.1", '1', "31.1"},
                    Tippfall{"31.0", '0', "31.0"}, Tippfall{"31.12.", '.', "31.12."},
                    Tippfall{"31.12.2", '2', "31.12.2"}, Tippfall{"31.12.1", '1', "31.12.1"},
                    Tippfall{"31.12.20", '0', "31.12.20"}, Tippfall{"31.12.200", '0', "31.12.200"},
                    Tippfall{"31.12.2007", '7', "31.12.2007"}));

INSTANTIATE_TEST_SUITE_P(PunktNachTagUndMonat, DatumTippenTest,
                         testing::Values(Tippfall{"31", '1', "31."}, Tippfall{"01", '1', "01."},
                                         Tippfall{"10", '0', "10."}, Tippfall{"99", '9', "99."},
                                         Tippfall{"31.12", '2', "31.12."}, Tippfall{"31.01", '1', "31.01."},
                                         Tippfall{"31.10", '0', "31.10."}, Tippfall{"31", 0, "31."},
                                         // The point comes at the second place, whatever the text holds.
                                         Tippfall{"1.", '.', "1.."}));

INSTANTIATE_TEST_SUITE_P(BackspaceNimmtDenPunktMitDerZiffer, DatumTippenTest,
                         testing::Values(Tippfall{"31", rueck, "3"}, Tippfall{"01", rueck, "0"},
                                         Tippfall{"00", rueck, "0"}, Tippfall{"31.12", rueck, "31.1"},
                                         Tippfall{"31.01", rueck, "31.0"}, Tippfall{"31.1", rueck, "31.1"},
                                         Tippfall{"31.", rueck, "31."}, Tippfall{"31.12.", rueck, "31.12."},
                                         Tippfall{"31.12.200", rueck, "31.12.200"}));

INSTANTIATE_TEST_SUITE_P(TagNullWirdGestrichen, DatumTippenTest,
                         testing::Values(Tippfall{"00", '0', "0"}, Tippfall{"09", '9', "09."}));

INSTANTIATE_TEST_SUITE_P(MonatszifferUeberEinsWirdGestrichen, DatumTippenTest,
                         testing::Values(Tippfall{"31.2", '2', "31."}, Tippfall{"31.9", '9', "31."},
                                         Tippfall{"31.2", rueck, "31."}));

INSTANTIATE_TEST_SUITE_P(UnmoeglicherMonatWirdGestrichen, DatumTippenTest,
                         testing::Values(Tippfall{"31.13", '3', "31.1"}, Tippfall{"31.19", '9', "31.1"},
                                         Tippfall{"31.00", '0', "31.0"}, Tippfall{"31.99", '9', "31.9"},
                                         // Backspace leaves one digit, which decides alone.
                                         Tippfall{"31.00", rueck, "31.0"}, Tippfall{"31.13", rueck, "31.1"}));

INSTANTIATE_TEST_SUITE_P(JahrBeginntNichtMitNull, DatumTippenTest,
                         testing::Values(Tippfall{"31.12.0", '0', "31.12."},
                                         Tippfall{"31.12.0", rueck, "31.12."},
                                         Tippfall{"31.12.9", '9', "31.12.9"}));

}  // namespace datumtippen_test
}  // namespace zinfolio
