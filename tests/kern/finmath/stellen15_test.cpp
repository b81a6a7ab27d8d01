#include "kern/finmath/stellen15.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <random>

#include "kern/finmath/woertlich.h"

namespace zinfolio {
namespace stellen15_test {

void Vergleiche(double wert) {
    ASSERT_EQ(std::bit_cast<std::uint64_t>(RundeAuf15Stellen(wert)),
              std::bit_cast<std::uint64_t>(woertlich::UeberText(wert)))
        << std::hexfloat << wert;
}

TEST(RundeAuf15Stellen, LaesstZahlenMitWenigerStellenStehen) {
    EXPECT_EQ(RundeAuf15Stellen(0.1), 0.1);
    EXPECT_EQ(RundeAuf15Stellen(-1234567.89), -1234567.89);
    EXPECT_EQ(RundeAuf15Stellen(123456789012345), 123456789012345.0);
}

TEST(RundeAuf15Stellen, SchneidetAbDerSechzehntenStelle) {
    EXPECT_EQ(RundeAuf15Stellen(0.1 + 0.2), 0.3);
    EXPECT_EQ(RundeAuf15Stellen(1234567890123456.0), 1234567890123460.0);
    EXPECT_EQ(RundeAuf15Stellen(999.9999999999999), 1000.0);
    EXPECT_EQ(RundeAuf15Stellen(-0.00012345678901234549), -0.000123456789012345);
}

TEST(RundeAuf15Stellen, GenaueHaelftenGehenZurGeradenZiffer) {
    EXPECT_EQ(RundeAuf15Stellen(100000000000000.5), 100000000000000.0);
    EXPECT_EQ(RundeAuf15Stellen(100000000000001.5), 100000000000002.0);
    EXPECT_EQ(RundeAuf15Stellen(1000000000000.125), 1000000000000.12);
    EXPECT_EQ(RundeAuf15Stellen(1000000000000.375), 1000000000000.38);
}

TEST(RundeAuf15Stellen, NullUndRaender) {
    constexpr double unendlich = std::numeric_limits<double>::infinity();
    EXPECT_FALSE(std::signbit(RundeAuf15Stellen(-0.0)));
    EXPECT_EQ(RundeAuf15Stellen(unendlich), unendlich);
    EXPECT_TRUE(std::isnan(RundeAuf15Stellen(std::numeric_limits<double>::quiet_NaN())));
    // 1,797 693 134 862 32 E+308 is more than the largest float.
    EXPECT_EQ(RundeAuf15Stellen(-std::numeric_limits<double>::max()), -unendlich);
    EXPECT_EQ(RundeAuf15Stellen(5e-324), 5e-324);
}

TEST(RundeAuf15StellenErzeugt, WieUeberTextAnJederZehnerpotenz) {
    for (int zehner = -30; zehner <= 30; ++zehner) {
        for (double wert : {std::pow(10.0, zehner), 5 * std::pow(10.0, zehner),
                            9.9999999999999949 * std::pow(10.0, zehner)}) {
            for (int i = 0; i < 40; ++i)
                wert = std::nextafter(wert, 0);
            for (int i = 0; i < 80; ++i, wert = std::nextafter(wert, 1e300)) {
                ASSERT_NO_FATAL_FAILURE(Vergleiche(wert));
                ASSERT_NO_FATAL_FAILURE(Vergleiche(-wert));
            }
        }
    }
}

TEST(RundeAuf15StellenErzeugt, WieUeberTextBeiZufaelligenBits) {
    std::mt19937_64 zufall(3301);
    for (int runde = 0; runde < 200000; ++runde) {
        const double wert = std::bit_cast<double>(zufall());
        if (!std::isfinite(wert)) continue;
        ASSERT_NO_FATAL_FAILURE(Vergleiche(wert));
    }
}

TEST(RundeAuf15StellenErzeugt, WieUeberTextBeiBetraegen) {
    std::mt19937_64 zufall(3302);
    for (int zehner = -9; zehner <= 16; ++zehner) {
        std::uniform_real_distribution<double> verteilung(std::pow(10.0, zehner), std::pow(10.0, zehner + 1));
        for (int runde = 0; runde < 20000; ++runde)
            ASSERT_NO_FATAL_FAILURE(Vergleiche(verteilung(zufall)));
    }
}

// Sixteen digits that end in 5: the float lies a hair above or below the half.
TEST(RundeAuf15StellenErzeugt, WieUeberTextNebenDenHaelften) {
    std::mt19937_64 zufall(3303);
    std::uniform_int_distribution<std::int64_t> ziffern(100000000000000, 999999999999999);
    for (int runde = 0; runde < 100000; ++runde) {
        const double halb = static_cast<double>(ziffern(zufall)) + 0.5;
        for (const int zehner : {0, 1, 3, 6, 9, 12, 14, 17, 20, 22})
            ASSERT_NO_FATAL_FAILURE(Vergleiche(halb / std::pow(10.0, zehner)));
    }
}

}  // namespace stellen15_test
}  // namespace zinfolio
