// Plain texts of numbers: what C's %.15G and %.7G write, with the comma as decimal sign.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>

#include "kern/dates/zahl.h"

namespace zinfolio {
namespace zahltext_test {

TEST(Zahltext, GanzeZahlHatKeinKomma) {
    EXPECT_EQ(Zahltext(5.0), "5");
    EXPECT_EQ(Zahltext(-5.0), "-5");
    EXPECT_EQ(Zahltext(1234567.0), "1234567");
    EXPECT_EQ(Zahltext(100.0), "100");
}

TEST(Zahltext, NullHatKeinVorzeichen) {
    EXPECT_EQ(Zahltext(0.0), "0");
    EXPECT_EQ(Zahltext(-0.0), "0");
    EXPECT_EQ(Zahltext(0.0F), "0");
    EXPECT_EQ(Zahltext(-0.0F), "0");
}

TEST(Zahltext, DezimalzeichenIstDasKomma) {
    EXPECT_EQ(Zahltext(3.5), "3,5");
    EXPECT_EQ(Zahltext(-0.25), "-0,25");
    EXPECT_EQ(Zahltext(1234.5), "1234,5");
}

TEST(Zahltext, HatFuenfzehnStellen) {
    EXPECT_EQ(Zahltext(1.0 / 3), "0,333333333333333");
    EXPECT_EQ(Zahltext(2.0 / 3), "0,666666666666667");
    EXPECT_EQ(Zahltext(0.1), "0,1");
    EXPECT_EQ(Zahltext(0.1 + 0.2), "0,3");  // 0.30000000000000004
    EXPECT_EQ(Zahltext(12345678.12345678), "12345678,1234568");
    EXPECT_EQ(Zahltext(999999999999999.0), "999999999999999");
}

TEST(Zahltext, GrosseUndKleineZahlenHabenEinenExponenten) {
    EXPECT_EQ(Zahltext(1e15), "1E+15");
    EXPECT_EQ(Zahltext(1e20), "1E+20");
    EXPECT_EQ(Zahltext(-1.5e20), "-1,5E+20");
    EXPECT_EQ(Zahltext(1234567890123456.0), "1,23456789012346E+15");
    EXPECT_EQ(Zahltext(999999999999999.9), "1E+15");  // rounded up to 16 digits
    EXPECT_EQ(Zahltext(0.0001), "0,0001");
    EXPECT_EQ(Zahltext(0.00001), "1E-05");
    EXPECT_EQ(Zahltext(1e300), "1E+300");
    EXPECT_EQ(Zahltext(1e-300), "1E-300");
}

TEST(Zahltext, VierByteHabenSiebenStellen) {
    EXPECT_EQ(Zahltext(3.5F), "3,5");
    EXPECT_EQ(Zahltext(0.1F), "0,1");
    EXPECT_EQ(Zahltext(-4.35F), "-4,35");
    EXPECT_EQ(Zahltext(1.0F / 3), "0,3333333");
    EXPECT_EQ(Zahltext(2.0F / 3), "0,6666667");
    EXPECT_EQ(Zahltext(1234567.0F), "1234567");
    EXPECT_EQ(Zahltext(16777216.0F), "1,677722E+07");
    EXPECT_EQ(Zahltext(1e10F), "1E+10");
    EXPECT_EQ(Zahltext(0.0001F), "0,0001");
    EXPECT_EQ(Zahltext(0.00001F), "1E-05");
}

std::string WieInC(const char* form, double wert) {
    char puffer[64];
    const int laenge = std::snprintf(puffer, sizeof puffer, form, wert);
    std::string text(puffer, static_cast<std::size_t>(laenge));
    std::replace(text.begin(), text.end(), '.', ',');
    return text;
}

TEST(Zahltext, StimmtMitCUeberein) {
    std::mt19937_64 zufall(20070201);
    std::uniform_real_distribution<double> mantisse(-10, 10);
    std::uniform_int_distribution<int> exponent(-30, 30);
    for (int runde = 0; runde < 20000; ++runde) {
        const double wert = mantisse(zufall) * std::pow(10.0, exponent(zufall));
        ASSERT_EQ(Zahltext(wert), WieInC("%.15G", wert)) << wert;
        const auto kurz = static_cast<float>(wert);
        ASSERT_EQ(Zahltext(kurz), WieInC("%.7G", static_cast<double>(kurz))) << wert;
    }
}

TEST(Zahltext, StimmtMitCAnDenGrenzenUeberein) {
    using Grenzen = std::numeric_limits<double>;
    for (const double wert : {Grenzen::max(), Grenzen::lowest(), Grenzen::min(), Grenzen::denorm_min(), 1e14,
                              1e16, 123456789012345.6, 0.000123456789012345678}) {
        EXPECT_EQ(Zahltext(wert), WieInC("%.15G", wert));
    }
    using Kurz = std::numeric_limits<float>;
    for (const float wert :
         {Kurz::max(), Kurz::lowest(), Kurz::min(), Kurz::denorm_min(), 999999.9F, 9999999.0F}) {
        EXPECT_EQ(Zahltext(wert), WieInC("%.7G", static_cast<double>(wert)));
    }
}

}  // namespace zahltext_test
}  // namespace zinfolio
