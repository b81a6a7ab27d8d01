// Generated roundings whose expectation is built from whole numbers and text, not by the arithmetic of
// floats.

#include <cstdint>
#include <cstdlib>
#include <gtest/gtest.h>
#include <random>
#include <string>

#include "kern/dates/zahlformat.h"

namespace zinfolio {
namespace zahlformaterzeugt_test {

constexpr int stellen = 5;                  // decimals of a generated number
constexpr std::int64_t einheiten = 100000;  // 10^stellen

/// n / 10^5 as a decimal text, read as C reads it.
double Wert(std::int64_t n) {
    const std::string ziffern = std::to_string(n < 0 ? -n : n);
    const std::string gefuellt = std::string(20 - ziffern.size(), '0') + ziffern;
    const std::string text = gefuellt.substr(0, 20 - stellen) + "." + gefuellt.substr(20 - stellen);
    return (n < 0 ? -1 : 1) * std::strtod(text.c_str(), nullptr);
}

std::string Gruppiert(const std::string& ziffern) {
    std::string text;
    for (std::size_t stelle = 0; stelle < ziffern.size(); ++stelle) {
        if (stelle > 0 && (ziffern.size() - stelle) % 3 == 0) text += '.';
        text += ziffern[stelle];
    }
    return text;
}

/// n / 10^5 with `nachkomma` decimals (0 to 5), halves away from zero.
std::string Erwartet(std::int64_t n, int nachkomma, bool gruppiert, std::size_t mindestziffern) {
    std::int64_t teiler = 1;
    for (int stelle = nachkomma; stelle < stellen; ++stelle)
        teiler *= 10;
    const std::int64_t betrag = n < 0 ? -n : n;
    const std::int64_t gerundet = (betrag + teiler / 2) / teiler;
    const std::int64_t eins = einheiten / teiler;
    std::string vorne = gerundet / eins == 0 ? "" : std::to_string(gerundet / eins);
    while (vorne.size() < mindestziffern)
        vorne.insert(0, "0");
    const std::string hinten = nachkomma == 0 ? "" : "," + std::to_string(eins + gerundet % eins).substr(1);
    return (n < 0 && gerundet != 0 ? "-" : "") + (gruppiert ? Gruppiert(vorne) : vorne) + hinten;
}

void Vergleiche(std::int64_t n) {
    const double wert = Wert(n);
    for (int nachkomma = 0; nachkomma <= stellen; ++nachkomma) {
        for (const bool gruppiert : {false, true}) {
            for (const int mindestziffern : {0, 1, 3}) {
                const Zahlmuster muster{gruppiert, mindestziffern, nachkomma};
                ASSERT_EQ(Format(wert, muster),
                          Erwartet(n, nachkomma, gruppiert, static_cast<std::size_t>(mindestziffern)))
                    << n << " / 100000, " << nachkomma << " decimals";
            }
        }
    }
}

TEST(FormatErzeugt, DieErwartungSelbstIstVonHandGeprueft) {
    EXPECT_EQ(Erwartet(267500, 2, true, 1), "2,68");
    EXPECT_EQ(Erwartet(-400, 2, true, 1), "0,00");
    EXPECT_EQ(Erwartet(99999500, 2, true, 1), "1.000,00");
    EXPECT_EQ(Erwartet(50000, 2, true, 0), ",50");
    EXPECT_EQ(Erwartet(-123456789, 4, false, 3), "-1234,5679");
    EXPECT_EQ(Wert(-267500), -2.675);
}

TEST(FormatErzeugt, JederHalbeCentBisHundert) {
    for (std::int64_t n = -10000000; n <= 10000000; n += 500) {
        ASSERT_EQ(Format(Wert(n), betragsmuster), Erwartet(n, 2, true, 1)) << n << " / 100000";
    }
}

TEST(FormatErzeugt, UmDieUebertraege) {
    for (std::int64_t zehner = 1; zehner <= 10000000000000; zehner *= 10) {
        for (std::int64_t abstand = -6; abstand <= 6; ++abstand) {
            Vergleiche(zehner + abstand);
            Vergleiche(-(zehner / 2 + abstand));
        }
    }
}

TEST(FormatErzeugt, ZufaelligeZahlenAllerGroessen) {
    std::mt19937_64 zufall(31122007);
    for (std::int64_t grenze = 10; grenze <= 1000000000000000; grenze *= 10) {
        std::uniform_int_distribution<std::int64_t> verteilung(-grenze + 1, grenze - 1);  // at most 15 digits
        for (int runde = 0; runde < 150; ++runde)
            Vergleiche(verteilung(zufall));
    }
}

}  // namespace zahlformaterzeugt_test
}  // namespace zinfolio
