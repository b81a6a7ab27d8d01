#pragma once

#include <functional>
#include <optional>

namespace zinfolio {

/// The search gives up after so many rounds.
inline constexpr int hoechstrundenNominalsuche = 100'000;

/// Searches the rate (percent) at which `endstand`, the closing balance of a plan by its rate, is 0: secant
/// steps from `start` and `start` - 0.05, until a balance is below 0.001 or two in a row differ by less than
/// 0.0001, in both cases the last rate stands. Nothing where `hoechstrundenNominalsuche` rounds end without.
/// A search that has come into a ring is not walked to its end, but `endstand` is last called with the rate
/// of that end. Two equal balances at the start are a `Rechenfehler`; and it throws whatever `endstand`
/// throws. REQUIRES: `endstand` gives the same balance for the same rate.
[[nodiscard]] std::optional<double> NominalzinsSuchen(double start,
                                                      const std::function<double(double)>& endstand);

}  // namespace zinfolio
