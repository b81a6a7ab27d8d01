#include "kern/dates/zahl.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <ostream>
#include <string>

namespace zinfolio {
namespace zahl_test {

struct Lesung {
    std::string text;
    double wert;

    friend std::ostream& operator<<(std::ostream& strom, const Lesung& lesung) {
        return strom << "»" << lesung.text << "«";
    }
};

class ZahlTest : public testing::TestWithParam<Lesung> {};

TEST_P(ZahlTest, LiestDenGanzenText) {
    EXPECT_EQ(Zahl(GetParam().text), GetParam().wert);
    EXPECT_EQ(ZahlVersuch(GetParam().text), GetParam().wert);
    EXPECT_EQ(Zahlwert(GetParam().text), GetParam().wert) << "the lenient reading agrees";
}

INSTANTIATE_TEST_SUITE_P(Ziffern, ZahlTest,
                         testing::Values(Lesung{"0", 0}, Lesung{"5", 5}, Lesung{"1234", 1234},
                                         Lesung{"007", 7}, Lesung{"-5", -5}, Lesung{"+5", 5},
                                         Lesung{"3,5", 3.5}, Lesung{"-0,25", -0.25}, Lesung{"2,675", 2.675},
                                         Lesung{"0,1", 0.1}));

INSTANTIATE_TEST_SUITE_P(PunkteGruppieren, ZahlTest,
                         testing::Values(Lesung{"1.234", 1234}, Lesung{"1.234.567,89", 1234567.89},
                                         Lesung{"15.086,53", 15086.53}, Lesung{"-1.000", -1000},
                                         // Anywhere before the comma.
                                         Lesung{"1.5", 15}, Lesung{"1.2.3", 123}, Lesung{"1..5", 15},
                                         Lesung{".5", 5}, Lesung{"5.", 5}, Lesung{"1.,5", 1.5},
                                         Lesung{"-.5", -5}));

INSTANTIATE_TEST_SUITE_P(KommaAmRand, ZahlTest,
                         testing::Values(Lesung{"5,", 5}, Lesung{",5", 0.5}, Lesung{"-,5", -0.5},
                                         Lesung{"+,5", 0.5}, Lesung{"-5,", -5}, Lesung{",50000", 0.5}));

INSTANTIATE_TEST_SUITE_P(LeerzeichenAmRand, ZahlTest,
                         testing::Values(Lesung{" 5", 5}, Lesung{"5 ", 5},
                                         Lesung{"   -1.234,5   ", -1234.5}));

INSTANTIATE_TEST_SUITE_P(SehrKleinUndSehrGross, ZahlTest,
                         testing::Values(Lesung{"1" + std::string(300, '0'), 1e300},
                                         Lesung{"0," + std::string(299, '0') + "1", 1e-300},
                                         Lesung{"0," + std::string(400, '0') + "1", 0},
                                         Lesung{"-0," + std::string(400, '0') + "1", 0},
                                         Lesung{std::string(400, '0') + "1", 1},
                                         Lesung{"1," + std::string(400, '0') + "1", 1}));

class KeineZahl : public testing::TestWithParam<std::string> {};

TEST_P(KeineZahl, IstEinFehler) {
    EXPECT_THROW(static_cast<void>(Zahl(GetParam())), Zahlfehler);
    EXPECT_FALSE(ZahlVersuch(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(OhneZiffer, KeineZahl,
                         testing::Values("", " ", "-", "+", ",", ".", "-,", "-.", ".,", "- ", "abc"));

INSTANTIATE_TEST_SUITE_P(FalscheForm, KeineZahl,
                         testing::Values("1e5", "1E5", "1,5e3", "1,2,3", "5,,", "1,234.5", "1,5.", "1 000",
                                         "- 5", "5-", "--5", "+-5", "1-2"));

INSTANTIATE_TEST_SUITE_P(Unfug, KeineZahl,
                         testing::Values("12 %", "12,5%", "5 €", "€5", "5x", "0x10", "inf", "-inf", "nan",
                                         "1'000", "½", "٣", "1\t", "\xFF", std::string("1\0", 2),
                                         "01.02.2007 bis"));

INSTANTIATE_TEST_SUITE_P(JenseitsDerGleitzahlen, KeineZahl,
                         testing::Values("1" + std::string(400, '0'), "-1" + std::string(400, '0'),
                                         "1" + std::string(400, '0') + ",5"));

TEST(Zahl, FehlerZeigtDenText) {
    try {
        static_cast<void>(Zahl("12 Euro"));
        FAIL() << "12 Euro is no number";
    } catch (const Zahlfehler& fehler) {
        EXPECT_NE(std::string(fehler.what()).find("12 Euro"), std::string::npos) << fehler.what();
    }
}

class ZahlwertTest : public testing::TestWithParam<Lesung> {};

TEST_P(ZahlwertTest, NimmtDenLaengstenAnfang) {
    EXPECT_EQ(Zahlwert(GetParam().text), GetParam().wert);
}

INSTANTIATE_TEST_SUITE_P(MitRest, ZahlwertTest,
                         testing::Values(Lesung{"12,5 %", 12.5}, Lesung{"12,5%", 12.5},
                                         Lesung{"1.234,56 €", 1234.56}, Lesung{"5x", 5}, Lesung{"5,x", 5},
                                         Lesung{",5%", 0.5}, Lesung{"1e5", 1}, Lesung{"1,2,3", 1.2},
                                         Lesung{"1,5.3", 1.5}, Lesung{"1 000", 1}, Lesung{"  -7 Tage", -7},
                                         Lesung{"+3+4", 3}, Lesung{"5-", 5}, Lesung{"01.02.2007", 1022007}));

INSTANTIATE_TEST_SUITE_P(OhneZahl, ZahlwertTest,
                         testing::Values(Lesung{"", 0}, Lesung{"   ", 0}, Lesung{"abc", 0}, Lesung{"x5", 0},
                                         Lesung{"- 5", 0}, Lesung{"--5", 0}, Lesung{"-", 0}, Lesung{",", 0},
                                         Lesung{".", 0}, Lesung{"-,x", 0}, Lesung{"€ 5", 0}, Lesung{"inf", 0},
                                         Lesung{"nan", 0}, Lesung{"½", 0}));

class PunktwertTest : public testing::TestWithParam<Lesung> {};

TEST_P(PunktwertTest, NimmtDenPunktAlsDezimalzeichen) {
    EXPECT_EQ(Punktwert(GetParam().text), GetParam().wert);
}

INSTANTIATE_TEST_SUITE_P(Texte, PunktwertTest,
                         testing::Values(Lesung{"02.20", 2.2}, Lesung{"12.50", 12.5}, Lesung{"12.51", 12.51},
                                         Lesung{"3.5", 3.5}, Lesung{" 3.5", 3.5}, Lesung{"-3.5", -3.5},
                                         Lesung{"+3.5", 3.5}, Lesung{"7", 7}, Lesung{"007", 7},
                                         Lesung{"2.", 2}, Lesung{".5", 0.5}, Lesung{"1.2.3", 1.2},
                                         Lesung{"1,5", 1}, Lesung{"1.5 %", 1.5}, Lesung{"", 0},
                                         Lesung{"  ", 0}, Lesung{".", 0}, Lesung{"-", 0}, Lesung{"x1", 0},
                                         Lesung{"ä", 0}));

TEST(Ganzzahl16, RundetHalbeZurGeradenZahl) {
    EXPECT_EQ(Ganzzahl16(7.0), 7);
    EXPECT_EQ(Ganzzahl16(7.4), 7);
    EXPECT_EQ(Ganzzahl16(7.6), 8);
    EXPECT_EQ(Ganzzahl16(0.5), 0);
    EXPECT_EQ(Ganzzahl16(1.5), 2);
    EXPECT_EQ(Ganzzahl16(2.5), 2);
    EXPECT_EQ(Ganzzahl16(3.5), 4);
    EXPECT_EQ(Ganzzahl16(-0.5), 0);
    EXPECT_EQ(Ganzzahl16(-1.5), -2);
    EXPECT_EQ(Ganzzahl16(-2.5), -2);
}

TEST(Ganzzahl16, UeberlaufIstEinFehler) {
    EXPECT_EQ(Ganzzahl16(32767.0), 32767);
    EXPECT_EQ(Ganzzahl16(32767.4), 32767);
    EXPECT_EQ(Ganzzahl16(-32768.0), -32768);
    EXPECT_EQ(Ganzzahl16(-32768.5), -32768);                           // the even neighbour
    EXPECT_THROW(static_cast<void>(Ganzzahl16(32767.5)), Zahlfehler);  // here 32768 is the even one
    EXPECT_THROW(static_cast<void>(Ganzzahl16(32768)), Zahlfehler);
    EXPECT_THROW(static_cast<void>(Ganzzahl16(-32768.6)), Zahlfehler);
    EXPECT_THROW(static_cast<void>(Ganzzahl16(65536 + 7)), Zahlfehler);
    EXPECT_THROW(static_cast<void>(Ganzzahl16(1e300)), Zahlfehler);
    EXPECT_THROW(static_cast<void>(Ganzzahl16(std::numeric_limits<double>::infinity())), Zahlfehler);
    EXPECT_THROW(static_cast<void>(Ganzzahl16(-std::numeric_limits<double>::infinity())), Zahlfehler);
    EXPECT_THROW(static_cast<void>(Ganzzahl16(std::numeric_limits<double>::quiet_NaN())), Zahlfehler);
}

}  // namespace zahl_test
}  // namespace zinfolio
