#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace zinfolio {

/// By which rule a payment series is valued. The numbers are the stored values: list index plus 1.
enum class Effektivmethode : std::int16_t {
    /// The older German price regulation: `Tage30`, interest compounded on the anniversaries of the first
    /// date, simple interest on years of 360 days between them.
    pangvAlt = 1,
    /// `Tage30` over 360 as the exponent.
    aidb360 = 2,
    /// Actual days over 365 as the exponent, also in a leap year.
    isma = 3,
    /// `Tage30` taken apart into years of 365 days, months of 30.4166666 days and single days, over 365 as
    /// the exponent: the year of 12 equal months of 98/7/EC and 2008/48/EC, Annex I.
    pangv2000 = 4,
};

/// The texts of the list, by index.
inline constexpr std::array<std::string_view, 4> effektivmethoden{
    "PAngV(alt)",
    "AIDB 360",
    "AIDB (ISMA)",
    "PAngV2000",
};

[[nodiscard]] constexpr std::string_view Effektivmethodentext(Effektivmethode methode) {
    return effektivmethoden.at(static_cast<std::size_t>(methode) - 1);
}

}  // namespace zinfolio
