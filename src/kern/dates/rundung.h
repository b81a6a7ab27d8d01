#pragma once

#include <cmath>
#include <cstdint>

namespace zinfolio {

/// The next whole number below, as std::floor gives it, without a call for numbers that fit into 8 bytes. -0
/// may come as 0.
[[nodiscard]] inline double GanzzahlDarunter(double wert) {
    constexpr double grenze = 4503599627370496.0;  // 2^52: from here on every double is whole
    if (!(std::fabs(wert) < grenze)) return std::floor(wert);
    const auto ganz = static_cast<double>(static_cast<std::int64_t>(wert));
    return ganz > wert ? ganz - 1 : ganz;
}

/// `wert` at `stellen` decimals, halves upwards: floor(F * wert + 0.5) / F with F = 10^stellen. Not symmetric
/// about zero: -2,505 becomes -2,50 and 2,505 becomes 2,51 (binary fractions permitting). The system's
/// rounding of money.
[[nodiscard]] inline double RundeKaufmaennisch(double wert, int stellen) {
    const double faktor = stellen == 2 ? 100.0 : std::pow(10.0, stellen);
    return GanzzahlDarunter(faktor * wert + 0.5) / faktor;
}

}  // namespace zinfolio
