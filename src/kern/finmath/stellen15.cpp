#include "kern/finmath/stellen15.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <limits>

namespace zinfolio {
namespace {

/// The powers of ten from 10^-8 to 10^15, which bound the decades of the fast way.
constexpr std::array zehnerpotenzen{1e-8, 1e-7, 1e-6, 1e-5, 1e-4, 1e-3, 1e-2, 1e-1, 1e0,  1e1,  1e2,  1e3,
                                    1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

/// 10^22 down to 10^0, each exact as a float: what brings a number of decade i to 15 digits before the point.
constexpr std::array stufen{1e22, 1e21, 1e20, 1e19, 1e18, 1e17, 1e16, 1e15, 1e14, 1e13, 1e12, 1e11,
                            1e10, 1e9,  1e8,  1e7,  1e6,  1e5,  1e4,  1e3,  1e2,  1e1,  1e0};
static_assert(stufen.size() == zehnerpotenzen.size() - 1);

double UeberText(double wert) {
    std::array<char, 32> text{};
    const auto ende = std::to_chars(text.begin(), text.end(), wert, std::chars_format::scientific, 14).ptr;
    // A number that rounds up beyond the type is not read, and stays infinite.
    double gerundet = std::copysign(std::numeric_limits<double>::infinity(), wert);
    std::from_chars(text.begin(), ende, gerundet);
    return gerundet;
}

/// The whole number nearest to betrag * stufe, in [10^14, 10^15], halves to the even one. The product is off
/// by at most 1/16, so its error can turn the rounding only where the product itself is a half.
double Ziffern(double betrag, double stufe) {
    const double produkt = betrag * stufe;
    const double ganz = std::nearbyint(produkt);
    const double rest = produkt - ganz;
    if (std::fabs(rest) == 0.5) {
        const double fehler = std::fma(betrag, stufe, -produkt);
        if (rest > 0 && fehler > 0) return ganz + 1;
        if (rest < 0 && fehler < 0) return ganz - 1;
    }
    return ganz;
}

}  // namespace

double RundeAuf15Stellen(double wert) {
    if (wert == 0) return 0;
    const double betrag = std::fabs(wert);
    if (!(betrag >= zehnerpotenzen.front() && betrag < zehnerpotenzen.back())) return UeberText(wert);
    const auto naechste = std::upper_bound(zehnerpotenzen.begin(), zehnerpotenzen.end(), betrag);
    const double stufe =
        stufen[static_cast<std::size_t>(std::distance(zehnerpotenzen.begin(), naechste) - 1)];
    // Both numbers are exact, so that the one rounding of the division is the reading of the decimal text.
    return std::copysign(Ziffern(betrag, stufe) / stufe, wert);
}

}  // namespace zinfolio
