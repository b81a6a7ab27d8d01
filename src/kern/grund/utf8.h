#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace zinfolio {

/// A character at the start of a UTF-8 text, and how many bytes it takes.
struct Utf8Zeichen {
    char32_t codepunkt;
    std::size_t laenge;
};

/// The first character of a text; nothing where its bytes are not well-formed UTF-8 (overlong forms and
/// surrogates are not). REQUIRES: the text is not empty.
[[nodiscard]] std::optional<Utf8Zeichen> Utf8Lesen(std::string_view utf8);

/// Appends a character as UTF-8. REQUIRES: a Unicode character, no surrogate.
void Utf8Anhaengen(std::string& utf8, char32_t codepunkt);

}  // namespace zinfolio
