#pragma once

#include <filesystem>

#include "kern/bericht/tabelle.h"

namespace zinfolio {

/// Whether this build can write spreadsheets.
[[nodiscard]] bool TabellendokumentMoeglich();

/// Writes a table as a spreadsheet (.xlsx): real dates, numbers with as many decimals as the user sees, and a
/// header that stays when one scrolls. Throws `Dateifehler`, also for more columns than a spreadsheet has.
void TabellendokumentSchreiben(const std::filesystem::path& datei, const Tabelleninhalt& inhalt);

}  // namespace zinfolio
