#include "kern/dates/tastenfilter.h"

#include <algorithm>

namespace zinfolio {
namespace {

bool IstZifferntaste(int taste) {
    return taste >= '0' && taste <= '9';
}

bool KommaErlaubt(std::string_view text) {
    return !text.empty() && text.find(',') == std::string_view::npos;
}

bool PunktErlaubt(std::string_view text) {
    const auto punkte = std::count(text.begin(), text.end(), '.');
    if (text.size() >= 2 && punkte < 2) return text.back() != '.';
    return text.size() == 1;
}

constexpr std::size_t datumslaenge = 10;

bool DatumstasteErlaubt(int taste, std::string_view text) {
    if (text.size() >= datumslaenge) return false;
    return taste == '.' ? PunktErlaubt(text) : IstZifferntaste(taste);
}

bool BetragstasteErlaubt(int taste, std::string_view text, ErsteTaste ersteTaste) {
    if (taste == ',') return KommaErlaubt(text);
    if (taste == '-') return text.empty() || !ersteTaste;
    return taste == tasteRueck || IstZifferntaste(taste);
}

}  // namespace

Tastenantwort TasteDatum(int taste, std::string_view text, ErsteTaste ersteTaste) {
    // The old text is selected until the first key, and will be replaced.
    if (!ersteTaste) text = {};
    // More than ten characters, which only a paste can bring, hold even Enter and Backspace back (wanted).
    if (text.size() > datumslaenge) return {0, true, false, true};
    if (taste == tasteEnter) return {0, true, true, true};
    if (taste == tasteRueck) return {taste, true, false, true};
    return {DatumstasteErlaubt(taste, text) ? taste : 0, true, false, true};
}

Tastenantwort TasteBetrag(int taste, std::string_view text, ErsteTaste ersteTaste) {
    if (taste == tasteEnter) {
        const bool unfertig = text == "-," || text == "-" || text == ",";
        return {0, false, !unfertig, true};
    }
    return {BetragstasteErlaubt(taste, text, ersteTaste) ? taste : 0, false, false, true};
}

Tastenantwort TasteGanzzahl(int taste, ErsteTaste ersteTaste) {
    if (taste == tasteEnter) return {0, false, true, ersteTaste};
    return {taste == tasteRueck || IstZifferntaste(taste) ? taste : 0, false, false, ersteTaste};
}

Tastenantwort TasteProzent(int taste, std::string_view text, ErsteTaste ersteTaste) {
    if (taste == ',') return {KommaErlaubt(text) ? taste : 0, false, false, ersteTaste};
    return TasteGanzzahl(taste, ersteTaste);
}

Tastenantwort TasteEnter(int taste, ErsteTaste ersteTaste) {
    if (taste == tasteEnter) return {0, false, true, ersteTaste};
    return {taste, false, false, ersteTaste};
}

Tastenantwort TasteFiltern(Tastenfilter filter, int taste, std::string_view text, ErsteTaste ersteTaste) {
    switch (filter) {
        case Tastenfilter::datum:
            return TasteDatum(taste, text, ersteTaste);
        case Tastenfilter::betrag:
            return TasteBetrag(taste, text, ersteTaste);
        case Tastenfilter::ganzzahl:
            return TasteGanzzahl(taste, ersteTaste);
        case Tastenfilter::prozent:
            return TasteProzent(taste, text, ersteTaste);
        case Tastenfilter::enter:
            break;
    }
    return TasteEnter(taste, ersteTaste);
}

}  // namespace zinfolio
