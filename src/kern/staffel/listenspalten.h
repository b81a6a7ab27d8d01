#pragma once

#include <vector>

#include "kern/bericht/tabelle.h"
#include "kern/staffel/staffelsatz.h"

namespace zinfolio {

/// A list of payments: date, amount in euro, description.
[[nodiscard]] std::vector<Spalte<Staffelsatz>> Zahlungsspalten();

/// A list of conditions: date, rates in percent per year, limits in euro, and what the second rate is for.
[[nodiscard]] std::vector<Spalte<Staffelsatz>> Konditionsspalten();

}  // namespace zinfolio
