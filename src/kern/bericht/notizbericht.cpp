#include "kern/bericht/notizbericht.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "kern/bericht/textumbruch.h"

namespace zinfolio {
namespace {

/// Characters of Courier New in 12 points between the margins of an upright page.
constexpr double zeichenJeZeile = 75;

void Umbrechen(std::string_view zeile, const Textmass& mass, std::vector<std::string>& ziel) {
    for (std::string& teil : mass.InZeilen(zeile, zeichenJeZeile))
        ziel.push_back(std::move(teil));
}

std::string Text(const Absatz& absatz) {
    std::string text;
    for (const Lauf& lauf : absatz.laeufe)
        text += lauf.text;
    return text;
}

}  // namespace

Bericht NotizberichtBilden(const Richtext& notiz, const std::string& titel) {
    const Textmass mass([](char32_t) { return 1.0; });
    Bericht bericht;
    bericht.titel = titel;
    bericht.querformat = false;
    bericht.kopfblockschrift = {.name = std::string(grundschrift), .punkte = grundgroesse / 2.0};
    for (const Absatz& absatz : notiz.absaetze) {
        const std::string text = Text(absatz);
        for (std::size_t anfang = 0; anfang <= text.size();) {
            const std::size_t ende = std::min(text.find('\n', anfang), text.size());
            Umbrechen(std::string_view(text).substr(anfang, ende - anfang), mass, bericht.kopfblock);
            anfang = ende + 1;
        }
    }
    while (!bericht.kopfblock.empty() && bericht.kopfblock.back().empty())
        bericht.kopfblock.pop_back();
    return bericht;
}

}  // namespace zinfolio
