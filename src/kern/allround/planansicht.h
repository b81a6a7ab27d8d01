#pragma once
// A repayment plan as tables: by year, and with all its rows. Interest and balances are shown with their sign
// turned, payments as they are.

#include <array>
#include <span>
#include <string_view>

#include "kern/allround/zellentabelle.h"
#include "kern/staffel/staffelsatz.h"

namespace zinfolio {

/// The numbers are the indexes of `Combo3`.
enum class Planansicht { jahresweise = 0, unterjaehrig = 1 };

inline constexpr std::array<std::string_view, 2> planansichten{"Jahresweise", "Unterjährig"};

/// The rows of `Kurztableau5R`: date, paid out, paid in, interest, balance. The rate in the header has all
/// its digits and a decimal point.
[[nodiscard]] Zellentabelle Zinsstaffelanzeige2(std::span<const Staffelsatz> kurztableau, double nominalzins);

/// The rows of `Lösungstableau5R` but for conditions: date, what happened, payment, interest, balance.
[[nodiscard]] Zellentabelle Zinsstaffelanzeige1(std::span<const Staffelsatz> tableau, double nominalzins);

}  // namespace zinfolio
