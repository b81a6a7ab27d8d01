#pragma once
// A table as text.

#include <string>

#include "kern/bericht/tabelle.h"

namespace zinfolio {

/// Lines of equally wide columns, the header first: numbers on the right, dates and words on the left. UTF-8.
[[nodiscard]] std::string TabelleAlsText(const Tabelleninhalt& tabelle);

/// The header and the cells as they are, with semicolons; quoted where a spreadsheet would misread them.
/// UTF-8.
[[nodiscard]] std::string TabelleAlsCsv(const Tabelleninhalt& tabelle);

}  // namespace zinfolio
