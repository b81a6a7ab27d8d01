#pragma once
// One pass of a savings plan through the account: payments, settlement dates, conditions, merge, walk.

#include <optional>
#include <vector>

#include "kern/dates/datum.h"
#include "kern/sparen/sparform.h"
#include "kern/staffel/staffelsatz.h"

namespace zinfolio {

/// What a search tries in place of the plan's own fields; what is not set comes from the plan.
struct Planprobe {
    /// The initial capital, currency.
    std::optional<double> kapital{};
    /// The first rate, currency.
    std::optional<double> rate{};
    /// The nominal rate, percent per year.
    std::optional<double> zins{};
    /// The end of the plan.
    std::optional<Datum> ende{};
    /// One more payment at the end: minus the end value.
    bool mitEndvermoegen = false;
};

/// What a pass leaves in the working files; a table that it did not come to is not there.
struct Sparlauf {
    std::optional<std::vector<Staffelsatz>> zahlungen{};
    std::optional<std::vector<Staffelsatz>> termine{};
    std::optional<std::vector<Staffelsatz>> konditionen{};
    /// `Lösungsdatei`
    std::optional<std::vector<Staffelsatz>> loesung{};
};

/// The payments of a plan: the initial capital, and the rates up to its end. `ziel` is emptied first; a
/// fault (a field that is no number, a date beyond the calendar, more than 32 767 rows, an overflow) leaves
/// the rows so far. With the month-end rule the last rate may lie behind the end: the end is tested before
/// the rule moves the date (wanted).
void RatenErzeugen(const Sparform& form, const Sparplan& plan, const Planprobe& probe,
                   std::vector<Staffelsatz>& ziel);

/// The conditions of a plan: its rate from `Anfdatum` on, and the changes up to `Enddatum`. Faults as above,
/// also for a rate beyond the 4-byte range.
void KonditionenSchreiben(const Sparform& form, const Sparplan& plan, const Planprobe& probe,
                          std::vector<Staffelsatz>& ziel);

/// Runs one pass. Each table is emptied when its step begins, so that a fault leaves those behind it as they
/// were. All faults are exceptions.
void Planlauf(const Sparform& form, const Sparplan& plan, const Planprobe& probe, Sparlauf& lauf);

/// The balance of the last row, currency. No rows are a `Rechenfehler`.
[[nodiscard]] double LetzterKontostand(const Sparlauf& lauf);

/// The amount of row 1 and the first rate, as field or search gives them.
[[nodiscard]] double Startkapital(const Sparplan& plan, const Planprobe& probe);
[[nodiscard]] double Startrate(const Sparplan& plan, const Planprobe& probe);

/// The date at which the plan ends.
[[nodiscard]] Datum Planende(const Sparplan& plan, const Planprobe& probe);

/// A number as the 4-byte rate of a record; beyond that type's range a `Rechenfehler`.
[[nodiscard]] float Satzzins(double prozent);

}  // namespace zinfolio
