#include "kern/dates/einfuegetext.h"

#include <algorithm>

#include "kern/dates/fremdzahl.h"
#include "kern/dates/textteile.h"

namespace zinfolio {
namespace {

bool NurZiffernUnd(std::string_view text, char zeichen) {
    return std::ranges::all_of(text, [zeichen](char c) { return IstZiffer(c) || c == zeichen; });
}

bool IstZahlfeld(std::string_view text, bool mitVorzeichen) {
    if (mitVorzeichen && text.starts_with('-')) text.remove_prefix(1);
    return NurZiffernUnd(text, ',') && std::ranges::count(text, ',') <= 1 && !text.starts_with(',');
}

bool IstDatumsfeld(std::string_view text) {
    return NurZiffernUnd(text, '.') && std::ranges::count(text, '.') <= 2 && text.size() <= 10;
}

/// Without the blanks, tabs and line ends that a copied cell brings along.
std::string_view OhneRand(std::string_view text) {
    constexpr std::string_view leerraum = " \t\r\n";
    const auto erstes = text.find_first_not_of(leerraum);
    if (erstes == std::string_view::npos) return {};
    return text.substr(erstes, text.find_last_not_of(leerraum) - erstes + 1);
}

bool Passt(Tastenfilter filter, std::string_view text) {
    switch (filter) {
        case Tastenfilter::datum:
            return IstDatumsfeld(text);
        case Tastenfilter::betrag:
            return IstZahlfeld(text, true);
        case Tastenfilter::prozent:
            return IstZahlfeld(text, false);
        case Tastenfilter::ganzzahl:
            return std::ranges::all_of(text, IstZiffer);
        case Tastenfilter::enter:
            break;
    }
    return true;
}

}  // namespace

std::optional<std::string> Einfuegetext(Tastenfilter filter, std::string_view davor,
                                        std::string_view eingefuegt, std::string_view dahinter) {
    if (filter == Tastenfilter::enter) return std::string(eingefuegt);
    const std::string_view inhalt = OhneRand(eingefuegt);
    auto neu = filter == Tastenfilter::datum ? std::optional<std::string>(inhalt) : Fremdzahl(inhalt);
    if (!neu || !Passt(filter, std::string(davor).append(*neu).append(dahinter))) return std::nullopt;
    return neu;
}

}  // namespace zinfolio
