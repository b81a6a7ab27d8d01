#pragma once

#include <cstdint>

namespace zinfolio {

/// What the bytes of a font stand for. `symbol` is the encoding of the font Symbol; `eigene` that of any
/// other font of pictures, whose characters above 7F lie in the private use area from U+F000 on.
enum class Codepage : std::uint8_t {
    windows1250,
    windows1251,
    windows1252,
    windows1253,
    windows1254,
    windows1257,
    symbol,
    eigene,
};

/// The code page by its number in `\ansicpg`; 1252 for one that is not among these.
[[nodiscard]] Codepage CodepageAusNummer(int nummer);

/// The code page by a font's `\fcharset`; `ansi` where the charset has none of its own.
[[nodiscard]] Codepage CodepageAusZeichensatz(int fcharset, Codepage ansi);

/// The character of a byte. For a byte without one it is the control character of its number below A0, as in
/// `NachUtf8`, else 0; in `symbol` always 0.
[[nodiscard]] char32_t Zeichen(Codepage codepage, unsigned char byte);

}  // namespace zinfolio
