#pragma once
// Which columns of a bank's table hold what, told by their headers.

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "kern/dateien/csvlesen.h"

namespace zinfolio {

/// The numbers of columns, counted from 0.
struct Bankspalten {
    std::size_t datum = 0;
    /// Signed amounts; nothing where debit and credit have columns of their own.
    std::optional<std::size_t> betrag{};
    std::optional<std::size_t> soll{};
    std::optional<std::size_t> haben{};
    /// "S" or "H" beside an amount without a sign.
    std::optional<std::size_t> kennzeichen{};
    std::optional<std::size_t> text{};
    std::optional<std::size_t> waehrung{};
};

/// The columns that a header line names; nothing where it is none: it must name a date and amounts. Of
/// several dates the value date counts, by which banks reckon interest; of several texts the one that says
/// most.
[[nodiscard]] std::optional<Bankspalten> BankspaltenLesen(std::span<const std::string> kopf);

/// The columns of lines without a header: the first that holds a date, the first behind it that holds a
/// number, and the first other one that is not empty. Nothing where the line has no date and number.
[[nodiscard]] std::optional<Bankspalten> BankspaltenRaten(std::span<const std::string> felder);

/// A date as banks write it, as tt.mm.jjjj: 1.2.2024, 01.02.24 (years of two digits fall in the 2000s),
/// 2024-02-01. Nothing where the text is no real date.
[[nodiscard]] std::optional<std::string> Bankdatum(std::string_view text);

}  // namespace zinfolio
