#pragma once

#include <filesystem>

#include "kern/sparen/sparrechnung.h"

namespace zinfolio {

/// Leaves in a folder what a calculation of the form leaves in its working files, as far as it came: also
/// where a refusal or a fault ended it. A `Dateifehler` where the folder cannot be written.
void SparergebnisAblegen(const std::filesystem::path& ordner, const Sparform& form,
                         const Sparergebnis& ergebnis);

/// Leaves the series of an effective rate that was asked for later.
void SparreiheAblegen(const std::filesystem::path& ordner, const Sparergebnis& ergebnis);

}  // namespace zinfolio
