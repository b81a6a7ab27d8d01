#pragma once
// Terminal and present value of a payment series at a given rate, row by row. Nothing is rounded.
//
// Rows are taken in the order given; the first and the last one are the dates of the series. A row without a
// date, a value that is no number, and an empty series throw (`Datumsfehler`, `Rechenfehler`); a table then
// holds the rows before the fault.

#include <span>
#include <vector>

#include "kern/finmath/effektivmethode.h"
#include "kern/finmath/reihensatz.h"

namespace zinfolio {

/// The value of the whole series at its last date, `zinssatz` in percent per year. With a `tabelle`, its rows
/// are appended there, one for each row of the series; a factor beyond the 4-byte range is a fault then.
double EndwertRechnen(std::span<const Reihensatz> reihe, Effektivmethode methode, double zinssatz,
                      std::vector<Ergebnissatz>* tabelle = nullptr);

/// The value at the first date, likewise. Under `pangvAlt` the two ways differ (wanted): without a table the
/// terminal value is divided by the growth of the whole span, with one each row has a discount of its own, 1
/// where it would be 0.
double BarwertRechnen(std::span<const Reihensatz> reihe, Effektivmethode methode, double zinssatz,
                      std::vector<Ergebnissatz>* tabelle = nullptr);

}  // namespace zinfolio
