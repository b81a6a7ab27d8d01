#include "kern/bericht/htmltext.h"

#include <algorithm>

#include "kern/grund/utf8.h"

namespace zinfolio {
namespace {

constexpr char32_t ersatzzeichen = 0xFFFD;

/// True for the bytes that stand in HTML as they are.
constexpr bool IstSchlicht(char zeichen) {
    return (zeichen >= ' ' && zeichen < '\x7F' && zeichen != '&' && zeichen != '<' && zeichen != '>' &&
            zeichen != '"') ||
           zeichen == '\n' || zeichen == '\t';
}

constexpr bool IstUnerlaubt(char32_t codepunkt) {
    return codepunkt < 0xA0 || (codepunkt & 0xFFFEU) == 0xFFFE ||
           (codepunkt >= 0xFDD0 && codepunkt <= 0xFDEF);
}

/// Appends the first character, which is not a plain one, and tells how many bytes it took.
std::size_t BesonderesAnhaengen(std::string& ziel, std::string_view utf8) {
    switch (utf8.front()) {
        case '&':
            ziel += "&amp;";
            return 1;
        case '<':
            ziel += "&lt;";
            return 1;
        case '>':
            ziel += "&gt;";
            return 1;
        case '"':
            ziel += "&quot;";
            return 1;
        default:
            break;
    }
    const auto zeichen = Utf8Lesen(utf8);
    const bool erlaubt = zeichen && !IstUnerlaubt(zeichen->codepunkt);
    Utf8Anhaengen(ziel, erlaubt ? zeichen->codepunkt : ersatzzeichen);
    return zeichen ? zeichen->laenge : 1;
}

}  // namespace

void HtmlTextAnhaengen(std::string& ziel, std::string_view utf8) {
    while (!utf8.empty()) {
        const auto besonderes = std::find_if_not(utf8.begin(), utf8.end(), IstSchlicht);
        ziel.append(utf8.begin(), besonderes);
        utf8.remove_prefix(static_cast<std::size_t>(besonderes - utf8.begin()));
        if (!utf8.empty()) utf8.remove_prefix(BesonderesAnhaengen(ziel, utf8));
    }
}

}  // namespace zinfolio
