#pragma once
// The rows of a repayment plan before it is calculated: payments and interest dates in the order of time.

#include <array>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "kern/finmath/reihensatz.h"
#include "kern/staffel/staffelsatz.h"

namespace zinfolio {

/// When a plan settles its interest. The numbers are the indexes of `Combo4`.
enum class Plantermine {
    zahlungstermine = 0,
    monatsende = 1,
    quartalsende = 2,
    halbjahresende = 3,
    jahresende = 4
};

inline constexpr std::array<std::string_view, 5> plantermine{
    "identisch mit den Zahlungsterminen", "Monatsende", "Quartalsende", "Halbjahresende", "Jahresende"};

/// The first month end of the rhythm behind the first payment; nothing where payments settle themselves. A
/// date beyond the calendar is a `Datumsfehler`.
[[nodiscard]] std::optional<Datum> ErsterPlantermin(const Datum& ersteZahlung, Plantermine termine);

/// Sets all four rates of a condition row, rounded to 4 bytes; a rate beyond that range is a `Rechenfehler`.
void PlansatzSetzen(Staffelsatz& kondition, double zinssatz);

/// Writes the condition row at the rate in percent and the rows behind it to `tableau` (emptied first).
/// Without month ends each payment is settled on its own date, and a longer gap behind it once a year; but
/// each row put into a gap also passes over one of the payments left (wanted): of a gap of three years before
/// the last payment one anniversary alone is settled. With them a payment on a month end comes before the
/// settlement, which follows only when a later payment has passed it, and the last payment's date closes the
/// plan. A fault (a date, more than 32 767 rows) leaves the rows before it. REQUIRES: a series that is not
/// empty.
void PlanzeilenErzeugen(std::span<const Reihensatz> reihe, Plantermine termine,
                        const std::optional<Datum>& ersterTermin, double zinssatz,
                        std::vector<Staffelsatz>& tableau);

}  // namespace zinfolio
