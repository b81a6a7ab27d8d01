#pragma once

#include <string>

#include "kern/bericht/bericht.h"
#include "kern/bericht/berichtsstrom.h"

namespace zinfolio {

/// Writes a report as an HTML5 page (UTF-8) that needs no other file: the head lines as preformatted text,
/// the table with its header (with the page line above it) repeated on every printed page. True: it is
/// complete; false: `fortschritt` has cancelled it, and what `senke` got is of no use.
[[nodiscard]] bool HtmlBerichtSchreiben(const Bericht& bericht, const Berichtssenke& senke,
                                        const Fortschritt& fortschritt = {});

/// The same as one text.
[[nodiscard]] std::string HtmlBericht(const Bericht& bericht);

}  // namespace zinfolio
