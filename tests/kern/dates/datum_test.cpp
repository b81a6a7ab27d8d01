#include "kern/dates/datum.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "kern/dates/datumsliteral.h"

namespace zinfolio {
namespace datum_test {

template <class A, class B>
concept Addierbar = requires(A a, B b) {
    a + b;
};
template <class A, class B>
concept Subtrahierbar = requires(A a, B b) {
    a - b;
};

// Dates compare and subtract; they do not add.
static_assert(Addierbar<int, int>);
static_assert(!Addierbar<Datum, Datum>);
static_assert(!Addierbar<Datum, int>);
static_assert(!Addierbar<int, Datum>);
static_assert(Subtrahierbar<Datum, Datum>);
static_assert(!Subtrahierbar<Datum, int>);

static_assert(Datum() == "01.01.0100"_datum);
static_assert("01.03.2007"_datum - "28.02.2007"_datum == 1);
static_assert("01.03.2008"_datum - "28.02.2008"_datum == 2);
static_assert("31.12.2007"_datum - "15.12.2007"_datum == 16);
static_assert("15.01.2008"_datum - "31.12.2007"_datum == 15);

TEST(Datum, GibtTagMonatUndJahrEinesDatumstextes) {
    const Datum datum = Datum::Lesen("09.11.1989");
    EXPECT_EQ(datum.Tag(), 9);
    EXPECT_EQ(datum.Monat(), 11);
    EXPECT_EQ(datum.Jahr(), 1989);
}

TEST(Datum, SchreibtJedeStelleMitFuehrendenNullen) {
    EXPECT_EQ(Datum::Aus(2007, 2, 1)->Text(), "01.02.2007");
    EXPECT_EQ(Datum::Aus(100, 1, 1)->Text(), "01.01.0100");
    EXPECT_EQ(Datum::Aus(1000, 10, 10)->Text(), "10.10.1000");
    EXPECT_EQ(Datum::Aus(9999, 12, 31)->Text(), "31.12.9999");
}

TEST(Datum, VergleichtErstJahrDannMonatDannTag) {
    EXPECT_LT("31.12.2006"_datum, "01.01.2007"_datum);
    EXPECT_LT("31.01.2007"_datum, "01.02.2007"_datum);
    EXPECT_LT("01.02.2007"_datum, "02.02.2007"_datum);
    EXPECT_EQ("02.02.2007"_datum, "02.02.2007"_datum);
    EXPECT_GT("01.01.2008"_datum, "31.12.2007"_datum);
}

TEST(Datum, DifferenzZaehltDenErstenTagNichtUndDenLetztenDoch) {
    EXPECT_EQ("01.02.2007"_datum - "01.02.2007"_datum, 0);
    EXPECT_EQ("02.02.2007"_datum - "01.02.2007"_datum, 1);
    EXPECT_EQ("01.02.2007"_datum - "02.02.2007"_datum, -1);
    EXPECT_EQ("01.01.2008"_datum - "01.01.2007"_datum, 365);
    EXPECT_EQ("01.01.2009"_datum - "01.01.2008"_datum, 366);
    EXPECT_EQ("01.03.1900"_datum - "28.02.1900"_datum, 1);  // no leap year
    EXPECT_EQ("01.03.2000"_datum - "28.02.2000"_datum, 2);  // a leap year
}

TEST(Datum, KalenderBeginntImJahr100UndEndetMit9999) {
    EXPECT_TRUE(Datum::Versuche("01.01.0100"));
    EXPECT_FALSE(Datum::Versuche("31.12.0099"));
    EXPECT_TRUE(Datum::Versuche("31.12.9999"));
    EXPECT_FALSE(Datum::Aus(10000, 1, 1));
    EXPECT_FALSE(Datum::Aus(99, 12, 31));
    EXPECT_FALSE(Datum::Aus(-2007, 1, 1));
}

TEST(Datum, NimmtKeineTeileAusserhalbDesMonats) {
    EXPECT_FALSE(Datum::Aus(2007, 1, 0));
    EXPECT_FALSE(Datum::Aus(2007, 1, 32));
    EXPECT_FALSE(Datum::Aus(2007, 4, 31));
    EXPECT_FALSE(Datum::Aus(2007, 0, 1));
    EXPECT_FALSE(Datum::Aus(2007, 13, 1));
    EXPECT_FALSE(Datum::Aus(2007, 1, 257));  // would be 1 in a byte
    EXPECT_FALSE(Datum::Aus(2007, -255, 1));
    EXPECT_FALSE(Datum::Aus(65536 + 2007, 1, 1));
}

TEST(Datum, LesefehlerZeigtDenText) {
    try {
        static_cast<void>(Datum::Lesen("31.02.2007"));
        FAIL() << "31.02.2007 is no date";
    } catch (const Datumsfehler& fehler) {
        EXPECT_THAT(fehler.what(), testing::HasSubstr("31.02.2007"));
    }
}

class KeinDatum : public testing::TestWithParam<std::string> {};

TEST_P(KeinDatum, WirdNichtGelesen) {
    EXPECT_FALSE(Datum::Versuche(GetParam()));
    EXPECT_THROW(static_cast<void>(Datum::Lesen(GetParam())), Datumsfehler);
}

INSTANTIATE_TEST_SUITE_P(NichtImKalender, KeinDatum,
                         testing::Values("29.02.2007", "29.02.1900", "30.02.2008", "31.04.2007", "31.06.2007",
                                         "31.09.2007", "31.11.2007", "32.01.2007", "00.01.2007", "01.00.2007",
                                         "01.13.2007", "31.12.0099", "01.01.0000"));

INSTANTIATE_TEST_SUITE_P(NichtDieForm, KeinDatum,
                         testing::Values("", ".", "..", "1.2.2007", "01.02.07", "01.02.200", "01.02.20071",
                                         "01.02.2007 ", " 1.02.2007", "01.02.2007\n", "01/02/2007",
                                         "01-02-2007", "2007.02.01", "01022007", "0102.2007."));

INSTANTIATE_TEST_SUITE_P(Unfug, KeinDatum,
                         testing::Values("tt.mm.jjjj", "+1.02.2007", "01.+2.2007", "01.02.-007", "0x.02.2007",
                                         "01.02.2e07", "01.02.20 7", "ä.02.2007", "01.ü.2007",
                                         "01.02.\xC3\xA4\xC3\xA4", "01.02.\xFF\xFF\xFF\xFF", "//.//.////",
                                         "::.::.::::", std::string("\0\0.\0\0.\0\0\0\0", 10)));

TEST(Schaltjahr, FolgtDerRegelDerJahrhunderte) {
    for (const int jahr : {104, 400, 1600, 1996, 2000, 2004, 2008, 2400, 9996})
        EXPECT_TRUE(IstSchaltjahr(jahr)) << jahr;
    for (const int jahr : {100, 200, 1700, 1900, 2007, 2009, 2010, 2100, 9900, 9999}) {
        EXPECT_FALSE(IstSchaltjahr(jahr)) << jahr;
    }
}

TEST(Schaltjahr, IstGenauWoEsDenNeunundzwanzigstenFebruarGibt) {
    for (int jahr = 100; jahr <= 9999; ++jahr) {
        const std::string vierstellig = std::to_string(10000 + jahr).substr(1);
        ASSERT_EQ(IstSchaltjahr(jahr), Datum::Versuche("29.02." + vierstellig).has_value()) << jahr;
        ASSERT_EQ(Jahreslaenge(jahr), *Datum::Aus(jahr, 12, 31) - *Datum::Aus(jahr, 1, 1) + 1) << jahr;
    }
}

TEST(Schaltjahr, GibtDieJahreslaenge) {
    EXPECT_EQ(Jahreslaenge(2007), 365);
    EXPECT_EQ(Jahreslaenge(2008), 366);
    EXPECT_EQ(Jahreslaenge(1900), 365);
    EXPECT_EQ(Jahreslaenge(2000), 366);
}

TEST(Monatslaenge, ZaehltDieTageJedesMonats) {
    const int laengen[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    for (int monat = 1; monat <= 12; ++monat)
        EXPECT_EQ(Monatslaenge(2007, monat), laengen[monat - 1]) << monat;
    EXPECT_EQ(Monatslaenge(2008, 2), 29);
    EXPECT_EQ(Monatslaenge(2100, 2), 28);
}

}  // namespace datum_test
}  // namespace zinfolio
