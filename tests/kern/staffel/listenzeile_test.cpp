#include "kern/staffel/listenzeile.h"

#include <gtest/gtest.h>

#include "kern/staffel/beispielkonto.h"

namespace zinfolio {
namespace listenzeile_test {

/// The line without the blanks that pad its last column.
std::string OhneRand(std::string zeile) {
    zeile.erase(zeile.find_last_not_of(' ') + 1);
    return zeile;
}

std::string Leer(std::size_t anzahl) {
    std::string text;
    text.resize(anzahl, ' ');
    return text;
}

TEST(Zahlungszeile, DatumBetragUndTextInFestenSpalten) {
    // "15.000,00" in a field of 20, then four blanks.
    EXPECT_EQ(OhneRand(Zahlungszeile(Zahlung("01.01.2007", 15000, "Miete"))),
              "   01.01.2007" + ("15.000,00" + Leer(11)) + Leer(4) + "Miete");
    EXPECT_EQ(OhneRand(Zahlungszeile(Zahlung("31.12.2007", -0.5, "Köln für 5 €"))),
              "   31.12.2007" + ("-0,50" + Leer(15)) + Leer(4) + "Köln für 5 €");
}

TEST(Zahlungszeile, OhneText) {
    EXPECT_EQ(OhneRand(Zahlungszeile(Zahlung("01.01.2007", 0))), "   01.01.20070,00");
}

TEST(Zahlungszeile, BetragDerDenPlatzGenauFuellt) {
    EXPECT_EQ(OhneRand(Zahlungszeile(Zahlung("01.01.2007", -123456789012.5, "x"))),
              "   01.01.2007" + ("-123.456.789.012,50" + Leer(1)) + Leer(4) + "x");
    EXPECT_EQ(OhneRand(Zahlungszeile(Zahlung("01.01.2007", 1234567890123.5, "x"))),
              "   01.01.2007" + ("1.234.567.890.123,50" + Leer(4)) + "x");
}

TEST(Konditionszeile, SaetzeUndLinienInFestenSpalten) {
    const Konditionen kondition{.Gutzins1 = 2,
                                .Gutzins2 = 3.3F,
                                .Guthabenlinie = 10000,
                                .Kreditzins1 = 8.125F,
                                .Kreditzins2 = 999,
                                .Kreditlinie = 1234567.5,
                                .Zweitzinsart = 2};
    EXPECT_EQ(Konditionszeile(Kondition("01.01.2007", kondition)),
              "   01.01.2007"
              "2,0000   %   "
              "3,3000   %  "
              "10.000,00             "
              "8,1250   %    "
              "999,0000 %    "
              "1.234.567,50          ");
}

TEST(Konditionszeile, Nullen) {
    EXPECT_EQ(Konditionszeile(Kondition("31.12.2007", {})),
              "   31.12.2007"
              "0,0000   %   "
              "0,0000   %  "
              "0,00                  "
              "0,0000   %    "
              "0,0000   %    "
              "0,00                  ");
}

}  // namespace listenzeile_test
}  // namespace zinfolio
