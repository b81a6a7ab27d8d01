#pragma once

#include <span>
#include <string_view>

#include "kern/finmath/reihensatz.h"
#include "stapel/json/jsonschreiber.h"

namespace zinfolio {

/// Appends the derivation of an effective rate as a field: a list of rows, each a list of the cell texts. A
/// cell that cannot be shown is a fault.
void HerleitungSchreiben(std::string_view name, std::span<const Ergebnissatz> zeilen,
                         JsonSchreiber& ergebnis);

}  // namespace zinfolio
