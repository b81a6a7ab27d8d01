#include "kern/grund/utf8.h"

#include <vector>

namespace zinfolio {
namespace {

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

/// The six low bits from `stelle` on as a byte that continues a character.
char Folgebyte(char32_t codepunkt, unsigned stelle) {
    return static_cast<char>(0x80U | ((codepunkt >> stelle) & 0x3FU));
}

}  // namespace

std::optional<Utf8Zeichen> Utf8Lesen(std::string_view utf8) {
    const auto vorspann = VorspannAus(Byte(utf8.front()));
    if (!vorspann || utf8.size() < vorspann->laenge) return std::nullopt;
    char32_t codepunkt = Byte(utf8.front()) & vorspann->nutzbits;
    for (const char folge : utf8.substr(1, vorspann->laenge - 1)) {
        if (!IstUtf8Folge(folge)) return std::nullopt;
        codepunkt = (codepunkt << 6U) | (Byte(folge) & 0x3FU);
    }
    if (codepunkt < vorspann->mindestens || !IstZeichen(codepunkt)) return std::nullopt;
    return Utf8Zeichen{codepunkt, vorspann->laenge};
}

bool IstUtf8(std::string_view text) {
    while (!text.empty()) {
        const auto zeichen = Utf8Lesen(text);
        if (!zeichen) return false;
        text.remove_prefix(zeichen->laenge);
    }
    return true;
}

std::string Gekuerzt(std::string_view utf8, std::size_t hoechstens) {
    std::size_t ende = 0;
    for (std::size_t zeichen = 0; ende < utf8.size(); ++ende) {
        if (!IstUtf8Folge(utf8[ende]) && zeichen++ == hoechstens) break;
    }
    std::string text(utf8.substr(0, ende));
    if (ende < utf8.size()) text += "…";
    return text;
}

std::string_view OhneLetzteZeichen(std::string_view utf8, std::size_t anzahl) {
    std::vector<std::size_t> anfaenge;
    std::size_t stelle = 0;
    JedesUtf8Zeichen(utf8, [&](char32_t, std::string_view bytes) {
        anfaenge.push_back(stelle);
        stelle += bytes.size();
    });
    return anfaenge.size() <= anzahl ? std::string_view()
                                     : utf8.substr(0, anfaenge[anfaenge.size() - anzahl]);
}

void Utf8Anhaengen(std::string& utf8, char32_t codepunkt) {
    if (codepunkt < 0x80) {
        utf8 += static_cast<char>(codepunkt);
        return;
    }
    if (codepunkt < 0x800) {
        utf8 += static_cast<char>(0xC0U | (codepunkt >> 6U));
    } else if (codepunkt < 0x10000) {
        utf8 += static_cast<char>(0xE0U | (codepunkt >> 12U));
        utf8 += Folgebyte(codepunkt, 6);
    } else {
        utf8 += static_cast<char>(0xF0U | (codepunkt >> 18U));
        utf8 += Folgebyte(codepunkt, 12);
        utf8 += Folgebyte(codepunkt, 6);
    }
    utf8 += Folgebyte(codepunkt, 0);
}

}  // namespace zinfolio
