#include "kern/dates/fremdzahl.h"

#include <algorithm>
#include <array>

#include "kern/dates/textteile.h"

namespace zinfolio {
namespace {

/// Characters that stand for simpler ones.
struct Ersatz {
    std::string_view zeichen;
    std::string_view schlicht;
};
constexpr std::array<Ersatz, 6> ersatzzeichen{{
    {"\u00A0", " "},
    {"\u2007", " "},
    {"\u2009", " "},
    {"\u202F", " "},
    {"\u2212", "-"},
    {"\u2019", "'"},
}};

std::string Vereinfacht(std::string_view text) {
    std::string schlicht(text);
    for (const auto& [zeichen, ersatz] : ersatzzeichen)
        for (auto stelle = schlicht.find(zeichen); stelle != std::string::npos;
             stelle = schlicht.find(zeichen, stelle))
            schlicht.replace(stelle, zeichen.size(), ersatz);
    return schlicht;
}

/// Takes a word from either end, and the blanks behind it.
bool NimmRand(std::string_view& text, std::string_view wort) {
    if (text.starts_with(wort))
        text.remove_prefix(wort.size());
    else if (text.ends_with(wort))
        text.remove_suffix(wort.size());
    else
        return false;
    text = Getrimmt(text);
    return true;
}

bool NimmWaehrung(std::string_view& text) {
    return NimmRand(text, "€") || NimmRand(text, "EUR");
}

bool SindZiffern(std::string_view text) {
    return !text.empty() && std::ranges::all_of(text, IstZiffer);
}

/// The digits of a whole number, grouped by one of `gruppenzeichen` or not at all.
std::optional<std::string> GanzerTeil(std::string_view text, std::string_view gruppenzeichen) {
    const auto erstes = text.find_first_of(gruppenzeichen);
    if (erstes == std::string_view::npos)
        return SindZiffern(text) ? std::optional<std::string>(text) : std::nullopt;
    const char trenner = text[erstes];
    std::string ziffern(text.substr(0, erstes));
    if (!SindZiffern(ziffern) || erstes > 3) return std::nullopt;
    for (text.remove_prefix(erstes); !text.empty(); text.remove_prefix(4)) {
        if (text.size() < 4 || text.front() != trenner || !SindZiffern(text.substr(1, 3)))
            return std::nullopt;
        ziffern += text.substr(1, 3);
    }
    return ziffern;
}

}  // namespace

std::optional<std::string> Fremdzahl(std::string_view text, Dezimalzeichen dezimalzeichen) {
    const bool komma = dezimalzeichen == Dezimalzeichen::komma;
    const std::string schlicht = Vereinfacht(text);
    std::string_view rest = Getrimmt(schlicht);
    const bool benannt = NimmWaehrung(rest);
    const bool negativ = NimmRand(rest, "-");
    if (!negativ) NimmRand(rest, "+");
    if (!benannt) NimmWaehrung(rest);
    const auto trennung = rest.find(komma ? ',' : '.');
    const bool hatDezimalen = trennung != std::string_view::npos;
    const std::string_view dezimalen = hatDezimalen ? rest.substr(trennung + 1) : std::string_view();
    if (hatDezimalen && !SindZiffern(dezimalen)) return std::nullopt;
    auto zahl = trennung == 0 ? std::optional<std::string>("0")
                              : GanzerTeil(rest.substr(0, trennung), komma ? ". '" : ", '");
    if (!zahl) return std::nullopt;
    if (hatDezimalen) zahl->append(",").append(dezimalen);
    if (negativ) zahl->insert(0, "-");
    return zahl;
}

std::optional<std::string> Fremdzahl(std::string_view text) {
    const auto zahl = Fremdzahl(text, Dezimalzeichen::komma);
    return zahl ? zahl : Fremdzahl(text, Dezimalzeichen::punkt);
}

}  // namespace zinfolio
