#include "kern/dates/feldtext.h"

#include <gtest/gtest.h>
#include <limits>

#include "kern/dates/zahl.h"

namespace zinfolio {
namespace feldtext_test {

TEST(Feldtext, KleineZahlenStehenOhneExponent) {
    EXPECT_EQ(Feldtext("5E-05"), "0,00005");
    EXPECT_EQ(Feldtext("-1,25E-07"), "-0,000000125");
    EXPECT_EQ(Feldtext("1,234E-10"), "0,0000000001234");
}

TEST(Feldtext, GrosseZahlenStehenOhneExponent) {
    EXPECT_EQ(Feldtext("1E+15"), "1000000000000000");
    EXPECT_EQ(Feldtext("-1,5E+16"), "-15000000000000000");
    EXPECT_EQ(Feldtext("1,2345E+02"), "123,45");
}

TEST(Feldtext, AndereTexteBleiben) {
    for (const char* text : {"0", "-12,5", "1234567,891", ""})
        EXPECT_EQ(Feldtext(text), text);
}

TEST(Feldtext, BeschaedigteZahlenLassenDasFeldLeer) {
    for (const double zahl :
         {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
          -std::numeric_limits<double>::infinity()})
        EXPECT_EQ(Feldtext(Zahltext(zahl)), "");
}

TEST(Feldtext, WasWirZeigenLesenWir) {
    for (const double zahl : {0.00005, -0.00005, 1.25e-12, 3e20, 1e-300})
        EXPECT_DOUBLE_EQ(Zahl(Feldtext(Zahltext(zahl))), zahl);
    EXPECT_EQ(Feldtext(Zahltext(0.00002F)), "0,00002");
}

}  // namespace feldtext_test
}  // namespace zinfolio
