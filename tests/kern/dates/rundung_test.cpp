#include "kern/dates/rundung.h"

#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>

namespace zinfolio {
namespace rundung_test {

TEST(RundeKaufmaennisch, RundetAufCent) {
    EXPECT_EQ(RundeKaufmaennisch(0.0, 2), 0.0);
    EXPECT_EQ(RundeKaufmaennisch(2.5, 2), 2.5);
    EXPECT_EQ(RundeKaufmaennisch(2.504, 2), 2.5);
    EXPECT_EQ(RundeKaufmaennisch(2.506, 2), 2.51);
    EXPECT_EQ(RundeKaufmaennisch(-2.504, 2), -2.5);
    EXPECT_EQ(RundeKaufmaennisch(-2.506, 2), -2.51);
    EXPECT_EQ(RundeKaufmaennisch(15086.5349, 2), 15086.53);
}

TEST(RundeKaufmaennisch, HalbeGehenNachObenAuchUnterNull) {
    EXPECT_EQ(RundeKaufmaennisch(2.505, 2), 2.51);
    EXPECT_EQ(RundeKaufmaennisch(-2.505, 2), -2.5);
    EXPECT_EQ(RundeKaufmaennisch(0.125, 2), 0.13);
    EXPECT_EQ(RundeKaufmaennisch(-0.125, 2), -0.12);
    EXPECT_EQ(RundeKaufmaennisch(0.5, 0), 1.0);
    EXPECT_EQ(RundeKaufmaennisch(-0.5, 0), 0.0);
    EXPECT_EQ(RundeKaufmaennisch(-1.5, 0), -1.0);
    EXPECT_EQ(RundeKaufmaennisch(0.375, 2), 0.38);
    EXPECT_EQ(RundeKaufmaennisch(-0.375, 2), -0.37);
}

TEST(RundeKaufmaennisch, NimmtAndereStellen) {
    EXPECT_EQ(RundeKaufmaennisch(1234.56789, 0), 1235.0);
    EXPECT_EQ(RundeKaufmaennisch(1234.56789, 1), 1234.6);
    EXPECT_EQ(RundeKaufmaennisch(1234.56789, 4), 1234.5679);
    EXPECT_EQ(RundeKaufmaennisch(3.4999961, 5), 3.5);
    EXPECT_EQ(RundeKaufmaennisch(-3.4999951, 5), -3.5);
    EXPECT_EQ(RundeKaufmaennisch(0.03125, 4), 0.0313);  // 312.5 goes up
    EXPECT_EQ(RundeKaufmaennisch(-0.03125, 4), -0.0312);
    EXPECT_EQ(RundeKaufmaennisch(1250.0, -2), 1300.0);  // 12.5 hundreds go up
    EXPECT_EQ(RundeKaufmaennisch(-1250.0, -2), -1200.0);
}

/// The next whole number at or below zaehler / nenner.
std::int64_t GanzDarunter(std::int64_t zaehler, std::int64_t nenner) {
    const std::int64_t quotient = zaehler / nenner;
    return zaehler % nenner < 0 ? quotient - 1 : quotient;
}

TEST(RundeKaufmaennisch, TausendstelStimmenMitGanzenZahlenUeberein) {
    for (std::int64_t n = -200000; n <= 200000; ++n) {
        if (n % 10 == 5 || n % 10 == -5) continue;  // halves, which thousandths seldom hit in binary
        const double erwartet = static_cast<double>(GanzDarunter(n + 5, 10)) / 100.0;
        ASSERT_EQ(RundeKaufmaennisch(static_cast<double>(n) / 1000.0, 2), erwartet) << n << " / 1000";
    }
}

// Eighths are exact in binary, and every odd multiple of one is a half at two decimals.
TEST(RundeKaufmaennisch, AchtelStimmenMitGanzenZahlenUeberein) {
    for (std::int64_t n = -100000; n <= 100000; ++n) {
        // 100 * n / 8 + 1 / 2 = (25 * n + 1) / 2
        const double erwartet = static_cast<double>(GanzDarunter(25 * n + 1, 2)) / 100.0;
        ASSERT_EQ(RundeKaufmaennisch(static_cast<double>(n) / 8.0, 2), erwartet) << n << " / 8";
    }
}

TEST(RundeKaufmaennisch, GerundetesBleibtStehen) {
    for (int cent = -100000; cent <= 100000; ++cent) {
        ASSERT_EQ(RundeKaufmaennisch(cent / 100.0, 2), cent / 100.0) << cent;
    }
}

}  // namespace rundung_test
}  // namespace zinfolio
