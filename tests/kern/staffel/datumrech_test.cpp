#include <gtest/gtest.h>

#include "kern/dates/datum.h"
#include "kern/staffel/zahlungseingabe.h"

namespace zinfolio {
namespace datumrech_test {

using enum Abstandseinheit;

struct Fall {
    std::string_view begdatum;
    std::string_view ratzahl;
    std::string_view abstand;
    Abstandseinheit einheit;
    std::string_view erwartet;
    bool stufig = false;
    std::string_view stufen = {};
};

void PrintTo(const Fall& fall, std::ostream* strom) {
    *strom << fall.begdatum << ", " << fall.ratzahl << " x " << fall.abstand << ' '
           << abstandseinheiten.at(static_cast<std::size_t>(fall.einheit)) << ", Stufen " << fall.stufen;
}

std::string Schaetzung(const Fall& fall) {
    Zahlungseingabe eingabe;
    eingabe.Begdatum = fall.begdatum;
    eingabe.Ratzahl = fall.ratzahl;
    eingabe.Abstand = fall.abstand;
    eingabe.Combo5 = fall.einheit;
    eingabe.Check1 = fall.stufig;
    eingabe.Stufen = fall.stufen;
    return Datumrech(eingabe);
}

class DatumrechTest : public testing::TestWithParam<Fall> {};

TEST_P(DatumrechTest, LetzteZahlung) {
    EXPECT_EQ(Schaetzung(GetParam()), GetParam().erwartet);
}

INSTANTIATE_TEST_SUITE_P(JeEinheit, DatumrechTest,
                         testing::Values(Fall{"01.01.2007", "12", "1", monate, "01.12.2007"},
                                         // 126 days: 120 are over at the end of April.
                                         Fall{"01.01.2007", "10", "14", tage, "07.05.2007"},
                                         Fall{"01.01.2007", "3", "2", jahre, "01.01.2011"},
                                         Fall{"01.01.2007", "1", "5", jahre, "01.01.2007"},
                                         Fall{"01.01.2007", "5", "0", monate, "01.01.2007"}));

// One addition from the first date: no anchor day, and no day lost on the way.
INSTANTIATE_TEST_SUITE_P(OhneAnkertag, DatumrechTest,
                         testing::Values(Fall{"31.01.2007", "2", "1", monate, "28.02.2007"},
                                         Fall{"31.01.2007", "3", "1", monate, "31.03.2007"},
                                         Fall{"30.01.2007", "4", "1", monate, "30.04.2007"},
                                         Fall{"29.02.2008", "2", "1", jahre, "28.02.2009"},
                                         Fall{"29.02.2008", "5", "1", jahre, "29.02.2012"}));

INSTANTIATE_TEST_SUITE_P(MitStufen, DatumrechTest,
                         testing::Values(Fall{"01.01.2007", "2", "1", monate, "01.06.2007", true, "3"},
                                         Fall{"01.01.2007", "1", "1", monate, "01.03.2007", true, "3"},
                                         Fall{"01.01.2007", "2", "3", monate, "01.04.2008", true, "3"},
                                         Fall{"01.01.2007", "2", "1", monate, "01.02.2007", true, ""},
                                         Fall{"01.01.2007", "2", "1", monate, "01.02.2007", true, "0"},
                                         Fall{"01.01.2007", "2", "1", monate, "01.02.2007", false, "3"}));

INSTANTIATE_TEST_SUITE_P(LeereAnzahlIstEins, DatumrechTest,
                         testing::Values(Fall{"01.01.2007", "", "1", monate, "01.01.2007"},
                                         Fall{"01.01.2007", "", "1", monate, "01.03.2007", true, "3"}));

INSTANTIATE_TEST_SUITE_P(
    OhneAngabenLeer, DatumrechTest,
    testing::Values(Fall{"", "12", "1", monate, ""}, Fall{"01.01.2007", "12", "", monate, ""},
                    Fall{"01.01.2007", "0", "1", monate, ""}, Fall{"01.01.2007", "-1", "1", monate, ""},
                    Fall{"1.01.2007", "12", "1", monate, ""}, Fall{"010107", "12", "1", monate, ""},
                    Fall{"0", "12", "1", monate, ""}));

TEST(DatumrechFehler, HinterDemKalender) {
    EXPECT_THROW((void)Schaetzung({"01.12.9999", "2", "1", monate, ""}), Datumsfehler);
    EXPECT_THROW((void)Schaetzung({"01.12.9999", "40", "1", tage, ""}), Datumsfehler);
    EXPECT_THROW((void)Schaetzung({"31.02.2007", "2", "1", monate, ""}), Datumsfehler);
}

}  // namespace datumrech_test
}  // namespace zinfolio
