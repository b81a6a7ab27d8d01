#include "kern/richtext/rtftext.h"

#include <cstdint>

#include "kern/grund/utf8.h"
#include "kern/grund/windows1252.h"

namespace zinfolio {
namespace {

void EinheitAnhaengen(std::string& ziel, char32_t einheit) {
    ziel += "\\u";
    ziel += std::to_string(static_cast<std::int16_t>(static_cast<std::uint16_t>(einheit)));
    ziel += '?';
}

void UnicodeAnhaengen(std::string& ziel, char32_t codepunkt) {
    if (codepunkt < 0x10000) return EinheitAnhaengen(ziel, codepunkt);
    EinheitAnhaengen(ziel, 0xD800 + ((codepunkt - 0x10000) >> 10U));
    EinheitAnhaengen(ziel, 0xDC00 + ((codepunkt - 0x10000) & 0x3FFU));
}

void ByteAnhaengen(std::string& ziel, char byte) {
    constexpr std::string_view ziffern = "0123456789abcdef";
    const auto wert = static_cast<unsigned char>(byte);
    ziel += "\\'";
    ziel += ziffern[wert >> 4U];
    ziel += ziffern[wert & 0xFU];
}

void AsciiAnhaengen(std::string& ziel, char zeichen) {
    switch (zeichen) {
        case '\\':
        case '{':
        case '}':
            ziel += '\\';
            ziel += zeichen;
            return;
        case '\t':
            ziel += "\\tab ";
            return;
        case '\n':
            ziel += "\\line ";
            return;
        default:
            ziel += zeichen < ' ' || zeichen == '\x7F' ? '?' : zeichen;
    }
}

void ZeichenAnhaengen(std::string& ziel, char32_t codepunkt) {
    const auto byte = Windows1252Byte(codepunkt);
    // 80 to 9F as characters are controls, which the code page shares with nobody.
    if (byte && codepunkt > 0x9F) return ByteAnhaengen(ziel, *byte);
    UnicodeAnhaengen(ziel, codepunkt);
}

void TextAnhaengen(std::string& ziel, std::string_view utf8, void (*hohesZeichen)(std::string&, char32_t)) {
    while (!utf8.empty()) {
        const auto zeichen = Utf8Lesen(utf8);
        if (!zeichen) {
            ziel += '?';
        } else if (zeichen->codepunkt < 0x80) {
            AsciiAnhaengen(ziel, utf8.front());
        } else {
            hohesZeichen(ziel, zeichen->codepunkt);
        }
        utf8.remove_prefix(zeichen ? zeichen->laenge : 1);
    }
}

}  // namespace

void RtfTextAnhaengen(std::string& ziel, std::string_view utf8) {
    TextAnhaengen(ziel, utf8, ZeichenAnhaengen);
}

void RtfTextInBilderschriftAnhaengen(std::string& ziel, std::string_view utf8) {
    TextAnhaengen(ziel, utf8, UnicodeAnhaengen);
}

}  // namespace zinfolio
