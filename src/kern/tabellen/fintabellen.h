#pragma once

#include <filesystem>

#include "kern/tabellen/einzelfaktor.h"
#include "kern/tabellen/faktortabelle.h"

namespace zinfolio {

/// The last input of the financial tables, which lies in the file `Fintabellen` of the working folder. The
/// factor of the single calculation is not kept.
struct Fintabellen {
    Faktortabelleneingabe tabelle;
    Einzelfaktoreingabe einzeln;

    friend bool operator==(const Fintabellen&, const Fintabellen&) = default;
};

/// Reads the file; a missing one, and a record without a value, leave the defaults. Throws `Dateifehler` for
/// a damaged one.
[[nodiscard]] Fintabellen FintabellenLesen(const std::filesystem::path& ordner);

/// Writes 13 records of 300 bytes, one self-describing value each. Throws `Dateifehler`.
void FintabellenSchreiben(const std::filesystem::path& ordner, const Fintabellen& eingabe);

}  // namespace zinfolio
