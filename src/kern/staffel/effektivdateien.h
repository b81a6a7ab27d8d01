#pragma once

#include <filesystem>

#include "kern/staffel/kontoeffektivzins.h"

namespace zinfolio {

/// Leaves what the account's effective rate leaves in a folder: `Lösungszahlungsreihe`, `Vendwertberechnung`,
/// `Barwertberechnung`. A terminal-value table that a fault prevented is gone; such a present-value table
/// stays as it was. A `Dateifehler` where the folder cannot be written.
void KontoEffektivzinsAblegen(const std::filesystem::path& ordner, const Kontoeffektivzins& ergebnis);

}  // namespace zinfolio
