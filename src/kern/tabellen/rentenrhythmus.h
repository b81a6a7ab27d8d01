#pragma once
// How often, and at which end of the period, the payments of a financial factor are made.

#include <array>
#include <cstddef>
#include <string_view>

namespace zinfolio {

/// List index of `Zahlungsweise`.
enum class Rentenrhythmus { monatlich, alle2Monate, vierteljaehrlich, alle4Monate, halbjaehrlich, jaehrlich };

inline constexpr std::array<std::string_view, 6> rentenrhythmen{
    "Monatlich", "Alle 2 Monate", "Vierteljährlich", "Alle 4 Monate", "Halbjährlich", "Jährlich"};

/// List index of the payment's end of the period.
enum class Rentenfaelligkeit { nachschuessig, vorschuessig };

inline constexpr std::array<std::string_view, 2> rentenfaelligkeiten{"nachschüssig", "vorschüssig"};

/// m, the payments of a year.
[[nodiscard]] constexpr double Zahlungszahl(Rentenrhythmus rhythmus) {
    constexpr std::array<double, 6> zahlungen{12, 6, 4, 3, 2, 1};
    return zahlungen.at(static_cast<std::size_t>(rhythmus));
}

/// q, the part of the yearly worth that bears no interest: (m + 1) / 2 in advance, (m - 1) / 2 in arrears.
[[nodiscard]] constexpr double Rentenkonstante(Rentenrhythmus rhythmus, Rentenfaelligkeit faelligkeit) {
    const double m = Zahlungszahl(rhythmus);
    return (faelligkeit == Rentenfaelligkeit::vorschuessig ? m + 1 : m - 1) / 2;
}

}  // namespace zinfolio
