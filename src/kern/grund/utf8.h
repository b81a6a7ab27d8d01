#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace zinfolio {

/// Bytes of the longest character.
inline constexpr std::size_t hoechsteUtf8Laenge = 4;

/// A character at the start of a UTF-8 text, and how many bytes it takes.
struct Utf8Zeichen {
    char32_t codepunkt;
    std::size_t laenge;
};

/// The first character of a text; nothing where its bytes are not well-formed UTF-8 (overlong forms and
/// surrogates are not). REQUIRES: the text is not empty.
[[nodiscard]] std::optional<Utf8Zeichen> Utf8Lesen(std::string_view utf8);

/// True where all of a text is well-formed UTF-8.
[[nodiscard]] bool IstUtf8(std::string_view text);

/// True for a byte that continues a character.
[[nodiscard]] constexpr bool IstUtf8Folge(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// Characters of a text (bytes that continue a character do not count).
[[nodiscard]] constexpr std::size_t Zeichenzahl(std::string_view utf8) {
    std::size_t anzahl = 0;
    for (const char byte : utf8)
        anzahl += IstUtf8Folge(byte) ? 0U : 1U;
    return anzahl;
}

/// At most `hoechstens` characters of a UTF-8 text, with "…" behind where something was cut.
[[nodiscard]] std::string Gekuerzt(std::string_view utf8, std::size_t hoechstens);

/// The first character of a text; one byte as U+FFFD where its bytes are not well-formed UTF-8. REQUIRES: the
/// text is not empty.
[[nodiscard]] inline Utf8Zeichen Utf8Naechstes(std::string_view utf8) {
    const auto byte = static_cast<unsigned char>(utf8.front());
    if (byte < 0x80) return {byte, 1};
    return Utf8Lesen(utf8).value_or(Utf8Zeichen{U'\uFFFD', 1});
}

/// Gives each character of a text to `arbeit`, with its bytes as they stand; what is not well-formed goes
/// byte by byte as U+FFFD.
template <class Arbeit>
void JedesUtf8Zeichen(std::string_view utf8, Arbeit arbeit) {
    while (!utf8.empty()) {
        const Utf8Zeichen zeichen = Utf8Naechstes(utf8);
        arbeit(zeichen.codepunkt, utf8.substr(0, zeichen.laenge));
        utf8.remove_prefix(zeichen.laenge);
    }
}

/// A text without its last characters; empty where it has no more than so many.
[[nodiscard]] std::string_view OhneLetzteZeichen(std::string_view utf8, std::size_t anzahl);

/// Appends a character as UTF-8. REQUIRES: a Unicode character, no surrogate.
void Utf8Anhaengen(std::string& utf8, char32_t codepunkt);

}  // namespace zinfolio
