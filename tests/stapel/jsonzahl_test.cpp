#include "stapel/json/jsonzahl.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>

namespace zinfolio {
namespace jsonzahl_test {

std::string Geschrieben(double wert) {
    std::array<char, zahlbreite> puffer{};
    return {puffer.data(), ZahlSchreiben(puffer.data(), wert)};
}

/// The standard library's own text, which ours must be character by character.
std::string Massstab(double wert) {
    std::array<char, 64> puffer{};
    return {puffer.data(), std::to_chars(puffer.data(), puffer.data() + puffer.size(), wert).ptr};
}

void PruefeMitNachbarn(double wert) {
    for (const double w : {wert, std::nextafter(wert, HUGE_VAL), std::nextafter(wert, -HUGE_VAL)}) {
        if (!std::isfinite(w)) continue;
        ASSERT_EQ(Geschrieben(w), Massstab(w));
        ASSERT_EQ(Geschrieben(-w), Massstab(-w));
    }
}

TEST(JsonZahl, BetraegeStehenInKuerzesterForm) {
    EXPECT_EQ(Geschrieben(0), "0");
    EXPECT_EQ(Geschrieben(5), "5");
    EXPECT_EQ(Geschrieben(15086.53), "15086.53");
    EXPECT_EQ(Geschrieben(-0.5), "-0.5");
    EXPECT_EQ(Geschrieben(0.05), "0.05");
    EXPECT_EQ(Geschrieben(0.01), "0.01");
    EXPECT_EQ(Geschrieben(20.3), "20.3");
    EXPECT_EQ(Geschrieben(-1234567.89), "-1234567.89");
}

TEST(JsonZahl, RundeBetraegeHabenEinenExponentenWennErKuerzerIst) {
    EXPECT_EQ(Geschrieben(10000), "10000");
    EXPECT_EQ(Geschrieben(100000), "1e+05");
    EXPECT_EQ(Geschrieben(110000), "110000");
    EXPECT_EQ(Geschrieben(1500000), "1500000");
    EXPECT_EQ(Geschrieben(15000000), "1.5e+07");
}

TEST(JsonZahl, WasKeineCentsSindHatAlleStellen) {
    EXPECT_EQ(Geschrieben(0.1 + 0.2), "0.30000000000000004");
    EXPECT_EQ(Geschrieben(static_cast<double>(3.3F)), "3.299999952316284");
    EXPECT_EQ(Geschrieben(1e300), "1e+300");
    EXPECT_EQ(Geschrieben(-2.2250738585072014e-308), "-2.2250738585072014e-308");
}

TEST(JsonZahl, MinusNullBehaeltIhrVorzeichen) {
    EXPECT_EQ(Geschrieben(-0.0), "-0");
}

TEST(JsonZahl, AlleKleinenCentbetraegeWieDieStandardbibliothek) {
    for (int cents = 0; cents <= 2'000'000; ++cents)
        ASSERT_EQ(Geschrieben(cents / 100.0), Massstab(cents / 100.0));
}

TEST(JsonZahl, ZufaelligeCentsUndNachbarnWieDieStandardbibliothek) {
    std::mt19937_64 zufall(20070101);
    for (int stellen = 1; stellen <= 18; ++stellen) {
        const auto grenze = static_cast<std::uint64_t>(std::pow(10, stellen));
        std::uniform_int_distribution<std::uint64_t> cents(0, grenze);
        for (int i = 0; i < 20'000; ++i)
            PruefeMitNachbarn(static_cast<double>(cents(zufall)) / 100);
    }
}

TEST(JsonZahl, GlatteBetraegeWieDieStandardbibliothek) {
    for (double wert = 1; wert < 1e17; wert *= 10) {
        for (int faktor = 1; faktor < 1000; ++faktor)
            PruefeMitNachbarn(wert * faktor);
    }
}

TEST(JsonZahl, BeliebigeBitmusterWieDieStandardbibliothek) {
    std::mt19937_64 zufall(4711);
    for (int i = 0; i < 300'000; ++i) {
        const auto wert = std::bit_cast<double>(zufall());
        if (!std::isfinite(wert)) continue;
        ASSERT_EQ(Geschrieben(wert), Massstab(wert));
    }
}

TEST(JsonZahl, AnDenGrenzenDesSchnellenWegs) {
    for (const double wert :
         {9999999999999.99, 1e13, 10000000000000.01, 99999.99, 100000.01, 0.005, 0.015, 0.994,
          std::numeric_limits<double>::max(), std::numeric_limits<double>::denorm_min()}) {
        PruefeMitNachbarn(wert);
    }
}

}  // namespace jsonzahl_test
}  // namespace zinfolio
