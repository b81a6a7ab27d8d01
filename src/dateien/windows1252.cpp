#include "dateien/windows1252.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

namespace zinfolio {
namespace {

// The code points of bytes 80 to 9F; all other bytes stand for the code point of their own number.
constexpr std::array<char32_t, 32> AbByte80{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  // 80: € , ƒ „ … † ‡
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  // 88: ˆ ‰ Š ‹ Œ   Ž
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 90:   ‘ ’ “ ” • – —
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,  // 98: ˜ ™ š › œ   ž Ÿ
};

struct Zeichen {
    char32_t codepunkt;
    std::size_t laenge;
};

constexpr unsigned Byte(char c) {
    return static_cast<unsigned char>(c);
}

// Length of the sequence that a leading byte announces, and the least code point that needs so many bytes.
struct Vorspann {
    std::size_t laenge;
    char32_t mindestens;
    unsigned nutzbits;
};

constexpr std::optional<Vorspann> VorspannAus(unsigned byte) {
    if (byte < 0x80) return Vorspann{1, 0, 0x7F};
    if ((byte & 0xE0U) == 0xC0) return Vorspann{2, 0x80, 0x1F};
    if ((byte & 0xF0U) == 0xE0) return Vorspann{3, 0x800, 0x0F};
    if ((byte & 0xF8U) == 0xF0) return Vorspann{4, 0x10000, 0x07};
    return std::nullopt;
}

constexpr bool IstZeichen(char32_t codepunkt) {
    const bool ersatzbereich = codepunkt >= 0xD800 && codepunkt <= 0xDFFF;
    return codepunkt <= 0x10FFFF && !ersatzbereich;
}

std::optional<Zeichen> ErstesZeichen(std::string_view utf8) {
    const auto vorspann = VorspannAus(Byte(utf8.front()));
    if (!vorspann || utf8.size() < vorspann->laenge) return std::nullopt;
    char32_t codepunkt = Byte(utf8.front()) & vorspann->nutzbits;
    for (const char folge : utf8.substr(1, vorspann->laenge - 1)) {
        if ((Byte(folge) & 0xC0U) != 0x80) return std::nullopt;
        codepunkt = (codepunkt << 6U) | (Byte(folge) & 0x3FU);
    }
    if (codepunkt < vorspann->mindestens || !IstZeichen(codepunkt)) return std::nullopt;
    return Zeichen{codepunkt, vorspann->laenge};
}

char ByteAus(char32_t codepunkt) {
    const bool eigeneNummer = codepunkt < 0x80 || (codepunkt >= 0xA0 && codepunkt <= 0xFF);
    if (eigeneNummer) return static_cast<char>(codepunkt);
    const auto stelle = std::find(AbByte80.begin(), AbByte80.end(), codepunkt);
    return stelle == AbByte80.end() ? '?' : static_cast<char>(0x80 + (stelle - AbByte80.begin()));
}

// Nothing in the code page lies beyond three bytes of UTF-8.
void Anhaengen(std::string& utf8, char32_t codepunkt) {
    if (codepunkt < 0x80) {
        utf8 += static_cast<char>(codepunkt);
    } else if (codepunkt < 0x800) {
        utf8 += static_cast<char>(0xC0U | (codepunkt >> 6U));
        utf8 += static_cast<char>(0x80U | (codepunkt & 0x3FU));
    } else {
        utf8 += static_cast<char>(0xE0U | (codepunkt >> 12U));
        utf8 += static_cast<char>(0x80U | ((codepunkt >> 6U) & 0x3FU));
        utf8 += static_cast<char>(0x80U | (codepunkt & 0x3FU));
    }
}

}  // namespace

std::string NachWindows1252(std::string_view utf8) {
    const auto istAscii = [](char byte) { return static_cast<unsigned char>(byte) < 0x80; };
    if (std::all_of(utf8.begin(), utf8.end(), istAscii)) return std::string(utf8);
    std::string bytes;
    bytes.reserve(utf8.size());
    while (!utf8.empty()) {
        const auto zeichen = ErstesZeichen(utf8);
        bytes += zeichen ? ByteAus(zeichen->codepunkt) : '?';
        utf8.remove_prefix(zeichen ? zeichen->laenge : 1);
    }
    return bytes;
}

std::string NachUtf8(std::string_view windows1252) {
    std::string utf8;
    utf8.reserve(windows1252.size());
    for (const char zeichen : windows1252) {
        const unsigned byte = Byte(zeichen);
        const bool inTabelle = byte >= 0x80 && byte <= 0x9F;
        Anhaengen(utf8, inTabelle ? AbByte80[byte - 0x80] : static_cast<char32_t>(byte));
    }
    return utf8;
}

}  // namespace zinfolio
