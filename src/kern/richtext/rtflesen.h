#pragma once

#include <string_view>

#include "kern/richtext/richtext.h"

namespace zinfolio {

/// Reads a rich-text file (RTF, as rich-text controls and word processors write it) into a document in normal
/// form. Takes every file: what is not known is passed over, what is broken is read as far as it goes, and a
/// file that does not begin as rich text is plain text in Windows-1252. Time and memory are linear in the
/// length of the file; groups may nest to any depth. Pictures, embedded data, headers and footers, notes and
/// comments are dropped; cells of tables come as text with a tab behind each, rows as paragraphs.
[[nodiscard]] Richtext RtfLesen(std::string_view datei);

}  // namespace zinfolio
