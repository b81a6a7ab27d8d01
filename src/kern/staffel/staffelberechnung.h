#pragma once

#include <span>

#include "kern/dates/periodenzinsen.h"
#include "kern/staffel/staffelsatz.h"

namespace zinfolio {

/// The rates and the parts of a balance that they apply to. A balance exactly at the limit has reached it.
struct Zinsbasen {
    Zinsbasis erste;
    Zinsbasis zweite;
};

/// Chooses rates and bases for a balance (currency, debit negative) under the conditions in force.
[[nodiscard]] Zinsbasen ZinsbasenWaehlen(double kontostand, const Konditionen& kondition);

/// Walks the merged rows of an account: carries the balance, counts the days to the next row, computes and
/// rounds the interest of each period, accrues it and credits it on settlement rows. Works in place; row 1
/// must be a condition. A damaged date, an overflow or a first row of another kind is a fault: the rows
/// before it are finished, it and those behind it are untouched.
void Staffelberechnung(std::span<Staffelsatz> saetze, Verzinsungsmethode methode);

}  // namespace zinfolio
