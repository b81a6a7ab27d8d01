#include "kern/dates/zahlformat.h"

#include <gtest/gtest.h>
#include <limits>
#include <ostream>
#include <string>

#include "kern/dates/zahl.h"

namespace zinfolio {
namespace zahlformat_test {

static_assert(Zahlmuster::Lesen("###,#0.00") == Zahlmuster{true, 1, 2});
static_assert(Zahlmuster::Lesen("###,##.00") == Zahlmuster{true, 0, 2});
static_assert(Zahlmuster::Lesen("###,##0.00000") == Zahlmuster{true, 1, 5});
static_assert(Zahlmuster::Lesen("###0.00") == Zahlmuster{false, 1, 2});
static_assert(Zahlmuster::Lesen("###,0.00") == Zahlmuster{true, 1, 2});
static_assert(Zahlmuster::Lesen("###,000.00") == Zahlmuster{true, 3, 2});
static_assert(Zahlmuster::Lesen("0") == Zahlmuster{false, 1, 0});
static_assert(Zahlmuster::Lesen("") == Zahlmuster{});

static_assert(betragsmuster == Zahlmuster::Lesen("###,#0.00"));
static_assert(vorschaumuster == Zahlmuster::Lesen("###,##.00"));
static_assert(konditionsmuster == Zahlmuster::Lesen("###,#0.0000"));

struct Formatfall {
    std::string muster;
    double wert;
    std::string text;

    friend std::ostream& operator<<(std::ostream& strom, const Formatfall& fall) {
        return strom << fall.wert << " by " << fall.muster;
    }
};

class FormatTest : public testing::TestWithParam<Formatfall> {};

TEST_P(FormatTest, SchreibtNachDemMuster) {
    EXPECT_EQ(Format(GetParam().wert, Zahlmuster::Lesen(GetParam().muster)), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Betraege, FormatTest,
    testing::Values(Formatfall{"###,#0.00", 15086.53, "15.086,53"}, Formatfall{"###,#0.00", 0, "0,00"},
                    Formatfall{"###,#0.00", 0.05, "0,05"}, Formatfall{"###,#0.00", 5, "5,00"},
                    Formatfall{"###,#0.00", 12.3, "12,30"}, Formatfall{"###,#0.00", 999.99, "999,99"},
                    Formatfall{"###,#0.00", 1000, "1.000,00"},
                    Formatfall{"###,#0.00", 1234567.891, "1.234.567,89"},
                    Formatfall{"###,#0.00", -15086.53, "-15.086,53"}, Formatfall{"###,#0.00", -0.5, "-0,50"},
                    Formatfall{"###,#0.00", -123, "-123,00"}, Formatfall{"###,#0.00", -1234, "-1.234,00"}));

INSTANTIATE_TEST_SUITE_P(
    OhneFuehrendeNull, FormatTest,
    testing::Values(Formatfall{"###,##.00", 0.5, ",50"}, Formatfall{"###,##.00", 0, ",00"},
                    Formatfall{"###,##.00", -0.5, "-,50"}, Formatfall{"###,##.00", 0.999, "1,00"},
                    Formatfall{"###,##.00", 1.5, "1,50"}, Formatfall{"###,##.00", 10, "10,00"},
                    Formatfall{"###,##.00", 1234.5, "1.234,50"}, Formatfall{"###,##.00000", 0.5, ",50000"},
                    Formatfall{"###,##.00000", 3.499996, "3,50000"}));

INSTANTIATE_TEST_SUITE_P(
    AndereMuster, FormatTest,
    testing::Values(Formatfall{"###,##0.00000", 12.345678, "12,34568"},
                    Formatfall{"###,##0.00000", 1234.5, "1.234,50000"},
                    Formatfall{"###,##0.00000", 0, "0,00000"}, Formatfall{"###,#0.0000", 3.5, "3,5000"},
                    Formatfall{"###0.00", 1234567.5, "1234567,50"}, Formatfall{"###0.00", 0.5, "0,50"},
                    Formatfall{"###,0.00", 1234567.5, "1.234.567,50"}, Formatfall{"###,0.00", 12, "12,00"},
                    Formatfall{"###,0.00", 0, "0,00"}, Formatfall{"0", 1234, "1234"}, Formatfall{"0", 0, "0"},
                    Formatfall{"0", 0.4, "0"}, Formatfall{"0", 1234.5, "1235"}, Formatfall{"0", -7.2, "-7"}));

// Zeros put in front are grouped like other digits.
INSTANTIATE_TEST_SUITE_P(
    FuehrendeNullen, FormatTest,
    testing::Values(Formatfall{"###,000.00", 5, "005,00"}, Formatfall{"###,000.00", 0, "000,00"},
                    Formatfall{"###,000.00", 0.05, "000,05"}, Formatfall{"###,000.00", -12.5, "-012,50"},
                    Formatfall{"###,000.00", 1234, "1.234,00"}, Formatfall{"#,000000.00", 12, "000.012,00"},
                    Formatfall{"#,0000.00", 1, "0.001,00"}, Formatfall{"0000", 12, "0012"}));

INSTANTIATE_TEST_SUITE_P(
    HalbeWegVonNull, FormatTest,
    testing::Values(Formatfall{"0.00", 2.675, "2,68"},  // in binary a little less
                    Formatfall{"0.00", -2.675, "-2,68"}, Formatfall{"0.00", 1.005, "1,01"},
                    Formatfall{"0.00", 0.005, "0,01"}, Formatfall{"0.00", -0.005, "-0,01"},
                    Formatfall{"0.00", 0.0049, "0,00"}, Formatfall{"0.00", 0.125, "0,13"},
                    Formatfall{"0.00", 2.665, "2,67"}, Formatfall{"0.00", 2.674999, "2,67"},
                    // Equal to 2,675 in its first 15 digits.
                    Formatfall{"0.00", 2.6749999999999998, "2,68"},
                    Formatfall{"0.00", 2.67499999999999, "2,67"}, Formatfall{"0", 0.5, "1"},
                    Formatfall{"0", 1.5, "2"}, Formatfall{"0", 2.5, "3"}, Formatfall{"0", -0.5, "-1"},
                    Formatfall{"0.00", 0.0005, "0,00"}));

INSTANTIATE_TEST_SUITE_P(UebertragLaeuftDurch, FormatTest,
                         testing::Values(Formatfall{"###,#0.00", 999.995, "1.000,00"},
                                         Formatfall{"###,#0.00", 999.994, "999,99"},
                                         Formatfall{"###,#0.00", 999999.995, "1.000.000,00"},
                                         Formatfall{"###,#0.00", 0.995, "1,00"},
                                         Formatfall{"###,##.00", 0.995, "1,00"}, Formatfall{"0", 9.5, "10"},
                                         Formatfall{"###,#0.00", -9.999, "-10,00"},
                                         Formatfall{"0.00", 0.095, "0,10"}));

INSTANTIATE_TEST_SUITE_P(NullOhneMinus, FormatTest,
                         testing::Values(Formatfall{"0.00", -0.004, "0,00"}, Formatfall{"0.00", -0.0, "0,00"},
                                         Formatfall{"###,##.00", -0.004, ",00"}, Formatfall{"0", -0.4, "0"},
                                         Formatfall{"0.00", -1e-300, "0,00"},
                                         Formatfall{"0.00", 1e-300, "0,00"},
                                         Formatfall{"0.00", -0.006, "-0,01"}));

INSTANTIATE_TEST_SUITE_P(FuenfzehnStellenDannNullen, FormatTest,
                         testing::Values(Formatfall{"###,#0.00", 123456789012345.0, "123.456.789.012.345,00"},
                                         Formatfall{"###,#0.00", 123456789012345.6, "123.456.789.012.346,00"},
                                         Formatfall{"0", 123456789012345678901.0, "123456789012346000000"},
                                         Formatfall{"0.00", 1234567890123.456, "1234567890123,46"},
                                         Formatfall{"0.00000000000000000", 0.1 + 0.2, "0,30000000000000000"},
                                         Formatfall{"0.00", 99999999999999.995, "100000000000000,00"}));

TEST(Format, SchreibtSehrGrosseZahlenAus) {
    EXPECT_EQ(Format(1e300, Zahlmuster::Lesen("0")), "1" + std::string(300, '0'));
    std::string gruppiert = "1";
    for (int gruppe = 0; gruppe < 100; ++gruppe)
        gruppiert += ".000";
    EXPECT_EQ(Format(1e300, betragsmuster), gruppiert + ",00");
    EXPECT_EQ(Format(-1e300, betragsmuster), "-" + gruppiert + ",00");
    EXPECT_EQ(Format(std::numeric_limits<double>::max(), Zahlmuster::Lesen("0")),
              "179769313486232" + std::string(294, '0'));
}

TEST(Format, NaNUndUnendlichSindEinFehler) {
    using Grenzen = std::numeric_limits<double>;
    for (const double wert : {Grenzen::quiet_NaN(), Grenzen::infinity(), -Grenzen::infinity()}) {
        EXPECT_THROW(static_cast<void>(Format(wert, betragsmuster)), Zahlfehler) << wert;
    }
}

TEST(Format, VonTextLiestIhnAlsZahl) {
    EXPECT_EQ(Format("1234,5", betragsmuster), "1.234,50");
    EXPECT_EQ(Format("1.234,5", betragsmuster), "1.234,50");
    EXPECT_EQ(Format(" -,5 ", vorschaumuster), "-,50");
    EXPECT_EQ(Format("2,675", betragsmuster), "2,68");
    EXPECT_EQ(Format("0", betragsmuster), "0,00");
}

TEST(Format, VonLeeremTextIstLeer) {
    EXPECT_EQ(Format("", betragsmuster), "");
    EXPECT_EQ(Format(std::string(), vorschaumuster), "");
}

TEST(Format, VonTextOhneZahlIstEinFehler) {
    for (const char* text : {" ", "abc", "-", "1,2,3", "5 %", "1e5"}) {
        EXPECT_THROW(static_cast<void>(Format(text, betragsmuster)), Zahlfehler) << text;
    }
}

}  // namespace zahlformat_test
}  // namespace zinfolio
