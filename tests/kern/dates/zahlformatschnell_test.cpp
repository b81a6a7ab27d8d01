// The short ways of `Format` and `Zahltext` against the texts of C, rounded as texts.

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <gtest/gtest.h>
#include <random>
#include <string>

#include "kern/dates/zahl.h"
#include "kern/dates/zahlformat.h"

namespace zinfolio {
namespace zahlformatschnell_test {

/// |wert| with 15 significant digits as plain digits, and the place of the point in them.
std::string Ziffern15(double betrag, int& punkt) {
    char text[40];
    std::snprintf(text, sizeof text, "%.14e", betrag);
    punkt = std::atoi(text + 17) + 1;
    return std::string(1, text[0]) + std::string(text + 2, 14);
}

/// "###,#0.00" with any number of decimals: the 15 digits, rounded in decimal with halves away from zero.
std::string Erwartet(double wert, int stellen) {
    int punkt = 1;
    std::string ziffern = wert == 0 ? "0" : Ziffern15(std::fabs(wert), punkt);
    if (punkt < 1) {
        ziffern.insert(0, static_cast<std::size_t>(1 - punkt), '0');
        punkt = 1;
    }
    ziffern.insert(0, "0");  // room for a carry
    ziffern.append(static_cast<std::size_t>(punkt + stellen) + 2, '0');
    const auto behalten = static_cast<std::size_t>(punkt + 1 + stellen);
    const bool aufrunden = ziffern[behalten] >= '5';
    ziffern.resize(behalten);
    for (std::size_t i = behalten; aufrunden && i-- > 0;) {
        if (ziffern[i]++ != '9') break;
        ziffern[i] = '0';
    }
    std::string vorne = ziffern.substr(0, static_cast<std::size_t>(punkt) + 1);
    const std::string hinten = ziffern.substr(static_cast<std::size_t>(punkt) + 1);
    const auto erste = vorne.find_first_not_of('0');
    vorne.erase(0, std::min(erste, vorne.size() - 1));
    for (std::size_t platz = vorne.size(); platz > 3; platz -= 3)
        vorne.insert(platz - 3, ".");
    const bool null = (vorne + hinten).find_first_not_of('0') == std::string::npos;
    return (wert < 0 && !null ? "-" : "") + vorne + (stellen > 0 ? "," + hinten : "");
}

void Vergleiche(double wert) {
    for (const int stellen : {0, 1, 2, 3, 4, 5, 6}) {
        ASSERT_EQ(Format(wert, Zahlmuster{true, 1, stellen}), Erwartet(wert, stellen))
            << std::hexfloat << wert;
    }
}

TEST(FormatKurzweg, DieErwartungSelbstIstVonHandGeprueft) {
    EXPECT_EQ(Erwartet(2.675, 2), "2,68");
    EXPECT_EQ(Erwartet(-0.004, 2), "0,00");
    EXPECT_EQ(Erwartet(999999.995, 2), "1.000.000,00");
    EXPECT_EQ(Erwartet(-1234567.5, 0), "-1.234.568");
    EXPECT_EQ(Erwartet(0, 2), "0,00");
}

// The floats around each half cent: decimal halves go up, what differs in the 15th digit does not.
TEST(FormatKurzweg, NebenDenHaelften) {
    std::mt19937_64 zufall(4101);
    for (double grenze = 10; grenze < 1e15; grenze *= 10) {
        std::uniform_int_distribution<std::int64_t> cents(0, static_cast<std::int64_t>(grenze));
        for (int runde = 0; runde < 150; ++runde) {
            double wert = (static_cast<double>(cents(zufall)) + 0.5) / 100;
            for (int i = 0; i < 12; ++i)
                wert = std::nextafter(wert, 0);
            for (int i = 0; i < 24; ++i, wert = std::nextafter(wert, 1e300))
                ASSERT_NO_FATAL_FAILURE(Vergleiche(runde % 2 == 0 ? wert : -wert));
        }
    }
}

// As far from the half as the short way trusts itself, a little nearer and a little farther.
TEST(FormatKurzweg, AmRandDesVertrauens) {
    std::mt19937_64 zufall(4102);
    for (double grenze = 10; grenze < 1e15; grenze *= 10) {
        std::uniform_int_distribution<std::int64_t> cents(0, static_cast<std::int64_t>(grenze));
        for (int runde = 0; runde < 300; ++runde) {
            const double halb = static_cast<double>(cents(zufall)) + 0.5;
            for (const double teil : {4e-15, 4.9e-15, 5.1e-15, 5.9e-15, 6.1e-15, 7e-15}) {
                ASSERT_NO_FATAL_FAILURE(Vergleiche(halb * (1 - teil) / 100));
                ASSERT_NO_FATAL_FAILURE(Vergleiche(halb * (1 + teil) / 100));
            }
        }
    }
}

TEST(FormatKurzweg, ZufaelligeZahlenAllerGroessen) {
    std::mt19937_64 zufall(4103);
    for (int zehner = -12; zehner <= 20; ++zehner) {
        std::uniform_real_distribution<double> verteilung(std::pow(10.0, zehner), std::pow(10.0, zehner + 1));
        for (int runde = 0; runde < 2000; ++runde) {
            const double wert = verteilung(zufall);
            ASSERT_NO_FATAL_FAILURE(Vergleiche(runde % 2 == 0 ? wert : -wert));
        }
    }
}

std::string TextVonC(float wert) {
    char text[40];
    std::snprintf(text, sizeof text, "%.7G", static_cast<double>(wert));
    for (char& zeichen : text)
        if (zeichen == '.') zeichen = ',';
    return wert == 0 ? "0" : text;
}

TEST(ZahltextKurzweg, JederVierhundertsteFloatWieInC) {
    for (std::uint32_t bits = 0; bits < 0x7F800000U; bits += 401) {
        const auto wert = std::bit_cast<float>(bits);
        ASSERT_EQ(Zahltext(wert), TextVonC(wert)) << std::hexfloat << wert;
        ASSERT_EQ(Zahltext(-wert), TextVonC(-wert)) << std::hexfloat << wert;
    }
}

TEST(ZahltextKurzweg, UmDieZehnerpotenzenWieInC) {
    for (int zehner = -6; zehner <= 9; ++zehner) {
        auto wert = static_cast<float>(std::pow(10.0, zehner));
        for (int i = 0; i < 3000; ++i)
            wert = std::nextafter(wert, 0.0F);
        for (int i = 0; i < 6000; ++i, wert = std::nextafter(wert, 1e30F))
            ASSERT_EQ(Zahltext(wert), TextVonC(wert)) << std::hexfloat << wert;
    }
}

}  // namespace zahlformatschnell_test
}  // namespace zinfolio
