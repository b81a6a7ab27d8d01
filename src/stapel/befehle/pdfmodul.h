#pragma once

#include <string>

#include "kern/bericht/bericht.h"

namespace zinfolio {

/// Writes a report as a PDF file. That needs fonts and a painter, which this program does without: they are
/// in a module beside it that is loaded here. Gives a German message where the module is missing or fails,
/// else an empty text.
[[nodiscard]] std::string PdfSchreiben(const Bericht& bericht, const std::string& datei);

}  // namespace zinfolio
