// Expectations of the published table: ISDA, 30/360 day count conventions (2008), as carried by the QuantLib
// test suite.

#include "kern/dates/tage30.h"

#include <gtest/gtest.h>
#include <ostream>
#include <string>

#include "kern/dates/datumsliteral.h"

namespace zinfolio {
namespace tage30_test {

static_assert(Tage30("31.01.2007"_datum, "28.02.2007"_datum) == 30);
static_assert(Tage30("28.02.2007"_datum, "01.03.2007"_datum) == 1);

struct Fall {
    std::string von;
    std::string bis;
    int tage;

    friend std::ostream& operator<<(std::ostream& strom, const Fall& fall) {
        return strom << fall.von << " bis " << fall.bis;
    }
};

class Tage30Test : public testing::TestWithParam<Fall> {};

TEST_P(Tage30Test, ZaehltMonateZuDreissigTagen) {
    const auto& [von, bis, tage] = GetParam();
    EXPECT_EQ(Tage30(Datum::Lesen(von), Datum::Lesen(bis)), tage);
    EXPECT_EQ(Tage30(von, bis), tage) << "as texts";
}

TEST_P(Tage30Test, VertauschtWechseltNurDasVorzeichen) {
    const auto& [von, bis, tage] = GetParam();
    EXPECT_EQ(Tage30(Datum::Lesen(bis), Datum::Lesen(von)), -tage);
}

INSTANTIATE_TEST_SUITE_P(OhneSonderfall, Tage30Test,
                         testing::Values(Fall{"15.03.2007", "15.03.2007", 0},    //
                                         Fall{"15.03.2007", "16.03.2007", 1},    //
                                         Fall{"15.03.2007", "15.04.2007", 30},   //
                                         Fall{"15.12.2007", "15.01.2008", 30},   //
                                         Fall{"29.06.2007", "01.07.2007", 2},    //
                                         Fall{"01.01.2007", "01.01.2008", 360},  //
                                         Fall{"15.12.2009", "30.06.2010", 195},  // 30/360: 0,541666...
                                         Fall{"01.01.2012", "30.07.2012", 209},  // 30/360: 0,58055556
                                         Fall{"01.01.0100", "30.12.9999", 9900 * 360 - 1}  //
                                         ));

INSTANTIATE_TEST_SUITE_P(
    HalbjahreVomZwanzigsten, Tage30Test,
    testing::Values(Fall{"20.08.2006", "20.02.2007", 180}, Fall{"20.02.2007", "20.08.2007", 180},
                    Fall{"20.08.2007", "20.02.2008", 180}, Fall{"20.02.2008", "20.08.2008", 180},
                    Fall{"20.08.2008", "20.02.2009", 180}, Fall{"20.02.2009", "20.08.2009", 180}));

INSTANTIATE_TEST_SUITE_P(
    EinunddreissigsterZaehltAlsDreissigster, Tage30Test,
    testing::Values(Fall{"30.09.2006", "31.10.2006", 30}, Fall{"31.10.2006", "28.11.2006", 28},
                    Fall{"30.03.2007", "31.03.2007", 0}, Fall{"31.03.2007", "01.04.2007", 1},
                    Fall{"30.01.2007", "31.03.2007", 60}, Fall{"31.12.2006", "31.12.2007", 360},
                    Fall{"01.01.2007", "31.12.2007", 359}));

INSTANTIATE_TEST_SUITE_P(HalbjahreVomMonatsende, Tage30Test,
                         testing::Values(Fall{"28.02.2006", "31.08.2006", 180},
                                         Fall{"31.08.2006", "28.02.2007", 180},
                                         Fall{"28.02.2007", "31.08.2007", 180},
                                         Fall{"31.08.2007", "29.02.2008", 180},
                                         Fall{"29.02.2008", "31.08.2008", 180}));

INSTANTIATE_TEST_SUITE_P(Februarende, Tage30Test,
                         testing::Values(Fall{"31.01.2006", "28.02.2006", 30},  // both count as the 30th
                                         Fall{"30.01.2006", "28.02.2006", 30},  //
                                         Fall{"31.01.2007", "28.02.2007", 30},  //
                                         Fall{"28.02.2006", "03.03.2006", 3},   //
                                         Fall{"14.02.2006", "28.02.2006", 16},  //
                                         Fall{"28.02.2007", "01.03.2007", 1},   //
                                         Fall{"27.02.2007", "28.02.2007", 3},   //
                                         Fall{"28.02.1900", "01.03.1900", 1},   // 1900 is no leap year
                                         Fall{"29.02.2000", "01.03.2000", 1}));

INSTANTIATE_TEST_SUITE_P(SchaltjahrFebruarende, Tage30Test,
                         testing::Values(Fall{"29.02.2008", "01.03.2008", 1},    //
                                         Fall{"28.02.2008", "29.02.2008", 2},    // from a 28th to a 30th
                                         Fall{"28.02.2008", "01.03.2008", 3},    // the 28th stays the 28th
                                         Fall{"31.08.2007", "28.02.2008", 178},  //
                                         Fall{"28.02.2008", "28.08.2008", 180},  //
                                         Fall{"28.02.2008", "30.08.2008", 182},  //
                                         Fall{"28.02.2008", "31.08.2008", 182},  //
                                         Fall{"28.02.2007", "28.02.2008",
                                              360 - 2},  // each date by its own year
                                         Fall{"28.02.2008", "28.02.2009", 360 + 2},  //
                                         Fall{"29.02.2008", "28.02.2009", 360},      //
                                         Fall{"29.02.2008", "30.03.2008", 30},       //
                                         Fall{"29.02.2008", "31.03.2008", 30}));

// The published table leaves the last of February as it is where it is the termination date (179 and 359 days
// there); this count knows no termination date.
INSTANTIATE_TEST_SUITE_P(OhneAusnahmeFuerDasEnddatum, Tage30Test,
                         testing::Values(Fall{"31.08.2011", "29.02.2012", 180},
                                         Fall{"28.02.2007", "29.02.2008", 360}));

TEST(Tage30, UnlesbarerTextBeendetMitDerMeldungZurSystemzeit) {
    const std::string meldung =
        "Ein Fehler ist aufgetreten. Prüfen Sie bitte die Einstellung der Systemzeit auf Ihrem PC "
        "(Systemsteuerung/Ländereinstellungen/Datum). Zulässig sind nur die Formate tt.mm.jj oder tt.mm.jjjj "
        " bzw.  "
        "t.m.jj  und  t.m.jjjj. Achten Sie auch bitte darauf, dass der ´.´ als Trennzeichenvorgabe beim "
        "Datum "
        "eingestellt ist.  Das Programm wird an dieser Stelle beendet.";
    try {
        static_cast<void>(Tage30("01.02.2007", "31.02.2007"));
        FAIL() << "31.02.2007 is no date";
    } catch (const Tage30Fehler& fehler) {
        EXPECT_EQ(fehler.what(), meldung);
    }
}

TEST(Tage30, PrueftBeideTexte) {
    for (const char* unfug : {"", "31.02.2007", "tt.mm.jjjj", "ä1.02.2007", "01.01.0099"}) {
        EXPECT_THROW(static_cast<void>(Tage30(unfug, "01.02.2007")), Tage30Fehler) << unfug;
        EXPECT_THROW(static_cast<void>(Tage30("01.02.2007", unfug)), Tage30Fehler) << unfug;
    }
}

}  // namespace tage30_test
}  // namespace zinfolio
