#pragma once

#include <string>

#include "kern/bericht/bericht.h"
#include "kern/bericht/berichtsstrom.h"

namespace zinfolio {

/// Writes a report as a rich-text file: the head lines as paragraphs, the table in a section of
/// its own behind them, its header (with the page line above it) on each of its pages. Lines end in CR
/// LF, no byte is above 7F. True: it is complete; false: `fortschritt` has cancelled it, and what `senke` got
/// is of no use.
[[nodiscard]] bool RtfBerichtSchreiben(const Bericht& bericht, const Berichtssenke& senke,
                                       const Fortschritt& fortschritt = {});

/// The same as one text.
[[nodiscard]] std::string RtfBericht(const Bericht& bericht);

}  // namespace zinfolio
