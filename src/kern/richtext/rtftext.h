#pragma once

#include <string>
#include <string_view>

namespace zinfolio {

/// Appends plain text (UTF-8) to a rich-text file as its body holds it: braces and backslashes escaped,
/// characters of Windows-1252 above 7F as \'hh in lower case, all others as \uN? with one signed 16-bit N for
/// each UTF-16 unit, a tab as \tab, a line feed as \line. Control characters besides these, and bytes that
/// are not well-formed UTF-8, become "?". What is appended has no byte above 7F.
void RtfTextAnhaengen(std::string& ziel, std::string_view utf8);

/// The same for text in a font of pictures, whose bytes above 7F mean other characters: all characters above
/// 7F as \uN?.
void RtfTextInBilderschriftAnhaengen(std::string& ziel, std::string_view utf8);

}  // namespace zinfolio
