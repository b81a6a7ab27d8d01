#pragma once

#include <span>
#include <vector>

#include "kern/finmath/reihensatz.h"
#include "kern/staffel/staffelsatz.h"

namespace zinfolio {

/// The payment series of a calculated account as its owner sees it: each payment with its sign reversed,
/// conditions and settlements passed over, and a closing row with date and balance of the last row, of
/// whichever kind. At the account's own yield the series is worth nothing. Never fails: a fault (a damaged
/// date, an account without a row, more rows than a file holds) ends the series with the rows before it.
[[nodiscard]] std::vector<Reihensatz> ReiheAusLoesung(std::span<const Staffelsatz> loesung);

/// The same without the closing row.
[[nodiscard]] std::vector<Reihensatz> ReiheAusLoesungOhneSchluss(std::span<const Staffelsatz> loesung);

}  // namespace zinfolio
