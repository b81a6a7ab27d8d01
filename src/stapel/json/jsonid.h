#pragma once

#include <string>

namespace zinfolio {

/// Deeper nesting in an `id` is refused: nobody needs it, and the walk uses the stack.
inline constexpr int hoechsttiefe = 64;

/// Appends the JSON value as it was written, without white space between its parts, and checks every part of
/// it. `simdjsonwert` is the parser's value. Throws `Auftragsfehler`.
void IdAnhaengen(void* simdjsonwert, std::string& ziel);

}  // namespace zinfolio
