#include <cstdint>
#include <gtest/gtest.h>
#include <ostream>
#include <string>

#include "kern/dates/datum.h"
#include "kern/dates/datumsliteral.h"

namespace zinfolio {
namespace kalenderaddition_test {

struct Schritt {
    std::string von;
    std::int64_t schritte;
    std::string nach;

    friend std::ostream& operator<<(std::ostream& strom, const Schritt& schritt) {
        return strom << schritt.von << " + " << schritt.schritte;
    }
};

class PlusTageTest : public testing::TestWithParam<Schritt> {};

TEST_P(PlusTageTest, ZaehltKalendertage) {
    EXPECT_EQ(PlusTage(Datum::Lesen(GetParam().von), GetParam().schritte).Text(), GetParam().nach);
}

INSTANTIATE_TEST_SUITE_P(Tage, PlusTageTest,
                         testing::Values(Schritt{"15.06.2007", 0, "15.06.2007"},      //
                                         Schritt{"15.06.2007", 1, "16.06.2007"},      //
                                         Schritt{"15.06.2007", -15, "31.05.2007"},    //
                                         Schritt{"28.02.2007", 1, "01.03.2007"},      //
                                         Schritt{"28.02.2008", 1, "29.02.2008"},      //
                                         Schritt{"31.12.2007", 1, "01.01.2008"},      //
                                         Schritt{"01.01.2007", 365, "01.01.2008"},    // 2007 has 365 days
                                         Schritt{"01.01.2008", 365, "31.12.2008"},    // 2008 has 366
                                         Schritt{"01.01.2000", 146097, "01.01.2400"}  // 400 years
                                         ));

class PlusMonateTest : public testing::TestWithParam<Schritt> {};

TEST_P(PlusMonateTest, BleibtAmTagOderKuerztAufDenMonatsletzten) {
    EXPECT_EQ(PlusMonate(Datum::Lesen(GetParam().von), GetParam().schritte).Text(), GetParam().nach);
}

INSTANTIATE_TEST_SUITE_P(TagBleibt, PlusMonateTest,
                         testing::Values(Schritt{"15.01.2007", 0, "15.01.2007"},    //
                                         Schritt{"15.01.2007", 1, "15.02.2007"},    //
                                         Schritt{"15.01.2007", 11, "15.12.2007"},   //
                                         Schritt{"15.01.2007", 12, "15.01.2008"},   //
                                         Schritt{"15.12.2007", 1, "15.01.2008"},    //
                                         Schritt{"15.01.2007", -1, "15.12.2006"},   //
                                         Schritt{"15.12.2007", -12, "15.12.2006"},  //
                                         Schritt{"31.12.2007", 1, "31.01.2008"},    //
                                         Schritt{"28.02.2007", 1, "28.03.2007"},  // not on to the month's end
                                         Schritt{"31.12.9999", -12 * 9899, "31.12.0100"}));

INSTANTIATE_TEST_SUITE_P(TagWirdGekuerzt, PlusMonateTest,
                         testing::Values(Schritt{"31.01.2007", 1, "28.02.2007"},   //
                                         Schritt{"31.01.2008", 1, "29.02.2008"},   //
                                         Schritt{"30.01.2007", 1, "28.02.2007"},   //
                                         Schritt{"29.01.2007", 1, "28.02.2007"},   //
                                         Schritt{"31.05.2007", 1, "30.06.2007"},   //
                                         Schritt{"31.03.2008", -1, "29.02.2008"},  //
                                         Schritt{"31.10.2007", 16, "28.02.2009"},  //
                                         Schritt{"31.12.2007", -1, "30.11.2007"},  //
                                         Schritt{"31.01.1900", 1, "28.02.1900"},   //
                                         Schritt{"29.02.2008", 12, "28.02.2009"}));

TEST(PlusMonate, VergisstDenGekuerztenTag) {
    const Datum februar = PlusMonate("31.01.2007"_datum, 1);
    EXPECT_EQ(PlusMonate(februar, 1), "28.03.2007"_datum);
    EXPECT_EQ(PlusMonate("31.01.2007"_datum, 2), "31.03.2007"_datum);
}

/// One month at a time, the wanted day kept aside: the slow way to the same date.
Datum MonatFuerMonat(Datum von, int monate) {
    int jahr = von.Jahr();
    int monat = von.Monat();
    for (; monate > 0; --monate) {
        if (++monat == 13) monat = 1, ++jahr;
    }
    for (; monate < 0; ++monate) {
        if (--monat == 0) monat = 12, --jahr;
    }
    for (int tag = von.Tag();; --tag) {
        if (const auto ziel = Datum::Aus(jahr, monat, tag)) return *ziel;
    }
}

TEST(PlusMonate, StimmtMitDemSchrittweisenWegUeberein) {
    for (Datum von = "01.01.2007"_datum; von < "01.01.2009"_datum; von = PlusTage(von, 1)) {
        for (int monate = -50; monate <= 50; ++monate) {
            ASSERT_EQ(PlusMonate(von, monate), MonatFuerMonat(von, monate)) << von.Text() << " + " << monate;
        }
    }
}

TEST(PlusJahre, KuerztDenSchalttag) {
    EXPECT_EQ(PlusJahre("15.06.2007"_datum, 1), "15.06.2008"_datum);
    EXPECT_EQ(PlusJahre("15.06.2007"_datum, -7), "15.06.2000"_datum);
    EXPECT_EQ(PlusJahre("28.02.2007"_datum, 1), "28.02.2008"_datum);
    EXPECT_EQ(PlusJahre("29.02.2008"_datum, 1), "28.02.2009"_datum);
    EXPECT_EQ(PlusJahre("29.02.2008"_datum, -1), "28.02.2007"_datum);
    EXPECT_EQ(PlusJahre("29.02.2008"_datum, 4), "29.02.2012"_datum);
    EXPECT_EQ(PlusJahre("29.02.2000"_datum, 100), "28.02.2100"_datum);
    EXPECT_EQ(PlusJahre(PlusJahre("29.02.2008"_datum, 1), 3), "28.02.2012"_datum)
        << "the clipped day is forgotten";
}

TEST(Kalenderende, WirdErreichtAberNichtVerlassen) {
    EXPECT_EQ(PlusTage("30.12.9999"_datum, 1), "31.12.9999"_datum);
    EXPECT_EQ(PlusMonate("30.11.9999"_datum, 1), "30.12.9999"_datum);
    EXPECT_EQ(PlusJahre("31.12.9998"_datum, 1), "31.12.9999"_datum);
    EXPECT_EQ(PlusTage("02.01.0100"_datum, -1), "01.01.0100"_datum);
    EXPECT_EQ(PlusMonate("01.02.0100"_datum, -1), "01.01.0100"_datum);
    EXPECT_EQ(PlusJahre("01.01.0101"_datum, -1), "01.01.0100"_datum);
    EXPECT_THROW(static_cast<void>(PlusTage("31.12.9999"_datum, 1)), Datumsfehler);
    EXPECT_THROW(static_cast<void>(PlusMonate("01.12.9999"_datum, 1)), Datumsfehler);
    EXPECT_THROW(static_cast<void>(PlusJahre("01.01.9999"_datum, 1)), Datumsfehler);
    EXPECT_THROW(static_cast<void>(PlusTage("01.01.0100"_datum, -1)), Datumsfehler);
    EXPECT_THROW(static_cast<void>(PlusMonate("31.01.0100"_datum, -1)), Datumsfehler);
    EXPECT_THROW(static_cast<void>(PlusJahre("31.12.0100"_datum, -1)), Datumsfehler);
}

TEST(Kalenderende, GrosseSchritteSindEinFehlerUndLaufenNichtUeber) {
    const Datum datum = "15.06.2007"_datum;
    for (const std::int64_t schritte : {INT64_MIN, INT64_MIN / 12, -4294967296, -4294967297, 4294967296,
                                        4294967297, INT64_MAX / 12, INT64_MAX}) {
        EXPECT_THROW(static_cast<void>(PlusTage(datum, schritte)), Datumsfehler) << schritte;
        EXPECT_THROW(static_cast<void>(PlusMonate(datum, schritte)), Datumsfehler) << schritte;
        EXPECT_THROW(static_cast<void>(PlusJahre(datum, schritte)), Datumsfehler) << schritte;
    }
}

TEST(Monatsletzter, GibtDenLetztenTagDesMonats) {
    EXPECT_EQ(Monatsletzter("01.01.2007"_datum), "31.01.2007"_datum);
    EXPECT_EQ(Monatsletzter("31.01.2007"_datum), "31.01.2007"_datum);
    EXPECT_EQ(Monatsletzter("15.02.2007"_datum), "28.02.2007"_datum);
    EXPECT_EQ(Monatsletzter("15.02.2008"_datum), "29.02.2008"_datum);
    EXPECT_EQ(Monatsletzter("30.04.2007"_datum), "30.04.2007"_datum);
    EXPECT_EQ(Monatsletzter("01.12.2007"_datum), "31.12.2007"_datum);
    EXPECT_EQ(Monatsletzter("01.11.9999"_datum), "30.11.9999"_datum);
}

TEST(Monatsletzter, ImDezember9999FuehrtDerWegAusDemKalender) {
    EXPECT_EQ(Monatsletzter("01.12.9998"_datum), "31.12.9998"_datum);
    EXPECT_THROW(static_cast<void>(Monatsletzter("01.12.9999"_datum)), Datumsfehler);
    EXPECT_THROW(static_cast<void>(Monatsletzter("31.12.9999"_datum)), Datumsfehler);
}

}  // namespace kalenderaddition_test
}  // namespace zinfolio
