#pragma once

#include <cmath>

namespace zinfolio {

/// `wert` at `stellen` decimals, halves upwards: floor(F * wert + 0.5) / F with F = 10^stellen. Not symmetric
/// about zero: -2,505 becomes -2,50 and 2,505 becomes 2,51 (binary fractions permitting). The system's
/// rounding of money.
[[nodiscard]] inline double RundeKaufmaennisch(double wert, int stellen) {
    const double faktor = stellen == 2 ? 100.0 : std::pow(10.0, stellen);
    return std::floor(faktor * wert + 0.5) / faktor;
}

}  // namespace zinfolio
