#pragma once

#include <string_view>

#include "stapel/json/jsonschreiber.h"

namespace zinfolio {

/// True for ASCII text that stands in JSON as it is, without escapes.
[[nodiscard]] constexpr bool IstSchlicht(std::string_view text) {
    unsigned fremd = 0;
    for (const char zeichen : text) {
        const auto byte = static_cast<unsigned char>(zeichen);
        fremd |= static_cast<unsigned>(byte < 0x20) | static_cast<unsigned>(byte >= 0x80) |
                 static_cast<unsigned>(byte == '"') | static_cast<unsigned>(byte == '\\');
    }
    return fremd == 0;
}

/// Writes a text of a record (Windows-1252) as the next value.
void SatztextSchreiben(std::string_view windows1252, JsonSchreiber& ergebnis);

}  // namespace zinfolio
