#pragma once
// Tables that commands read in place of a project.

#include <string>
#include <string_view>
#include <vector>

#include "kern/staffel/staffelsatz.h"

namespace zinfolio {

/// Reads a table from a file ("-" is standard input) by `lesen`, which throws `Csvfehler`. Throws a
/// `Kanalfehler` that names file, line and reason.
[[nodiscard]] std::vector<Staffelsatz> TabelleLesen(const std::string& datei,
                                                    std::vector<Staffelsatz> (*lesen)(std::string_view text));

/// The name of an input in messages: as typed, or "Standardeingabe".
[[nodiscard]] std::string Eingabename(const std::string& datei);

}  // namespace zinfolio
