#pragma once

#include <string>

#include "kern/richtext/richtext.h"

namespace zinfolio {

/// A document as a rich-text file (RTF) in the manner of the rich-text controls of Windows: lines end by CR
/// LF, text is escaped for Windows-1252, no byte lies above 7F. Writes the document's normal form, so that
/// `RtfLesen(RtfSchreiben(d)) == Normalform(d)`; equal documents give equal bytes.
[[nodiscard]] std::string RtfSchreiben(const Richtext& text);

}  // namespace zinfolio
