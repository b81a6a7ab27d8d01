#pragma once
// The settlement calendar: when an account's interest is credited.

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

#include "kern/dates/datum.h"

namespace zinfolio {

/// How often interest is settled. The numbers are the list indexes and the stored values.
enum class Zinsverrechnungsart : std::int16_t {
    monatsende = 0,
    alle2Monate = 1,
    quartalsende = 2,
    alle4Monate = 3,
    halbjahresende = 4,
    jahresende = 5,
};

/// The texts of the list, by index.
inline constexpr std::array<std::string_view, 6> zinsverrechnungsarten{
    "Monatsende", "Alle 2 Monate", "Quartalsende", "Alle 4 Monate", "Halbjahresende", "Jahresende",
};

/// The last day of the month in which the rhythm's first period of the year ends. REQUIRES: a year of the
/// calendar.
[[nodiscard]] Datum ErsterZinstermin(int jahr, Zinsverrechnungsart art);

/// The month end one period later. Leaving the calendar is a `Datumsfehler`.
[[nodiscard]] Datum NaechsterZinstermin(Datum datum, Zinsverrechnungsart art);

/// The settlement dates of an account whose first payment is on `erstdatum` and which closes on `kontodatum`;
/// the closing date is always the last one. Dates lie on the month ends of a grid that starts at the rhythm's
/// first candidate in the year of the first payment. `termine` is emptied first; when the calendar is left
/// (December 9999) or 32 767 dates are exceeded, a `Datumsfehler` ends the walk and the dates so far stay.
void Zinstermine(Datum erstdatum, Datum kontodatum, Zinsverrechnungsart art, std::vector<Datum>& termine);

}  // namespace zinfolio
