#pragma once

#include <span>
#include <string>

#include "kern/staffel/staffelsatz.h"
#include "stapel/json/jsonschreiber.h"

namespace zinfolio {

/// Throws a `Rechenfehler` for rows with a number that is not finite, or together too large to be one.
void EndlichkeitPruefen(std::span<const Staffelsatz> zeilen);

/// Writes calculated rows as a list of objects, as the next value: the fields of a record in their order,
/// without those that only files need. REQUIRES: finite numbers.
void StaffelzeilenSchreiben(std::span<const Staffelsatz> zeilen, JsonSchreiber& ergebnis);

}  // namespace zinfolio
