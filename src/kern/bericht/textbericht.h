#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace zinfolio {

/// The file between a calculator and the text viewer, in the working folder.
inline constexpr const char* textberichtsdatei = "RTF2.RTF";

/// A result as plain text lines (UTF-8), for the text viewer.
struct Textbericht {
    std::string titel;
    std::vector<std::string> zeilen;
    std::string schlusstext;
};

/// Writes `RTF2.RTF` in the working folder: two empty lines, the title, two empty lines, the lines, two lines
/// of one blank, the closing text. Windows-1252. Throws `Dateifehler`.
void TextberichtSchreiben(const std::filesystem::path& arbeitsordner, const Textbericht& bericht);

/// The text of `RTF2.RTF` as UTF-8, each line ended by a line feed, whatever ends it in the file. A missing
/// file is an empty text. Throws `Dateifehler` for one that cannot be read.
[[nodiscard]] std::string TextberichtLesen(const std::filesystem::path& arbeitsordner);

}  // namespace zinfolio
