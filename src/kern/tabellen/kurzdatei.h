#pragma once

#include <filesystem>

#include "kern/tabellen/kurzrechner.h"

namespace zinfolio {

/// Reads the form's file in the working folder; a missing one, and a record without a value, leave the
/// defaults. Throws `Dateifehler` for a damaged one.
[[nodiscard]] Kurzeingabe KurzeingabeLesen(const std::filesystem::path& ordner, const Kurzrechner& rechner);

/// Writes records of 100 bytes, one self-describing value each. Throws `Dateifehler`.
void KurzeingabeSchreiben(const std::filesystem::path& ordner, const Kurzrechner& rechner,
                          const Kurzeingabe& eingabe);

}  // namespace zinfolio
