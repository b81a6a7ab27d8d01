#pragma once
// The payments of the all-round calculator as the series that valuation works on.

#include <span>
#include <vector>

#include "kern/finmath/reihensatz.h"
#include "kern/staffel/staffelsatz.h"

namespace zinfolio {

/// Turns the payments, in the order given and with the signs they have, into rows of `reihe` (emptied first).
/// A row without a date is a `Datumsfehler`, more than 32 767 rows a `Rechenfehler`; the rows before stay.
void ReiheSchreiben(std::span<const Staffelsatz> zahlungen, std::vector<Reihensatz>& reihe);

/// True where at least one amount is below 0 and at least one above.
[[nodiscard]] bool HatBeideRichtungen(std::span<const Reihensatz> reihe);

}  // namespace zinfolio
