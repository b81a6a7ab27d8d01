#include "kern/grund/windows1252.h"

#include <algorithm>
#include <array>

#include "kern/grund/utf8.h"

namespace zinfolio {
namespace {

// The code points of bytes 80 to 9F; all other bytes stand for the code point of their own number.
constexpr std::array<char32_t, 32> AbByte80{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  // 80: € , ƒ „ … † ‡
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  // 88: ˆ ‰ Š ‹ Œ   Ž
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 90:   ‘ ’ “ ” • – —
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,  // 98: ˜ ™ š › œ   ž Ÿ
};

}  // namespace

std::optional<char> Windows1252Byte(char32_t codepunkt) {
    const bool eigeneNummer = codepunkt < 0x80 || (codepunkt >= 0xA0 && codepunkt <= 0xFF);
    if (eigeneNummer) return static_cast<char>(codepunkt);
    const auto stelle = std::find(AbByte80.begin(), AbByte80.end(), codepunkt);
    if (stelle == AbByte80.end()) return std::nullopt;
    return static_cast<char>(0x80 + (stelle - AbByte80.begin()));
}

std::string NachWindows1252(std::string_view utf8) {
    const auto istAscii = [](char byte) { return static_cast<unsigned char>(byte) < 0x80; };
    if (std::all_of(utf8.begin(), utf8.end(), istAscii)) return std::string(utf8);
    std::string bytes;
    bytes.reserve(utf8.size());
    JedesUtf8Zeichen(
        utf8, [&](char32_t zeichen, std::string_view) { bytes += Windows1252Byte(zeichen).value_or('?'); });
    return bytes;
}

std::string NachUtf8(std::string_view windows1252) {
    std::string utf8;
    utf8.reserve(windows1252.size());
    for (const char zeichen : windows1252) {
        const unsigned byte = static_cast<unsigned char>(zeichen);
        const bool inTabelle = byte >= 0x80 && byte <= 0x9F;
        Utf8Anhaengen(utf8, inTabelle ? AbByte80[byte - 0x80] : static_cast<char32_t>(byte));
    }
    return utf8;
}

}  // namespace zinfolio
