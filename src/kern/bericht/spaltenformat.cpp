#include "kern/bericht/spaltenformat.h"

#include <cmath>
#include <stdexcept>

#include "kern/dates/zahl.h"

namespace zinfolio {
namespace {

/// The parts of a text between bars; an empty text has one empty part.
std::vector<std::string_view> AnStrichenTeilen(std::string_view text) {
    std::vector<std::string_view> teile;
    for (;;) {
        const auto strich = text.find('|');
        teile.push_back(text.substr(0, strich));
        if (strich == std::string_view::npos) return teile;
        text.remove_prefix(strich + 1);
    }
}

Kopfausrichtung AusrichtungLesen(std::string_view spalte) {
    if (spalte.find('<') != std::string_view::npos) return Kopfausrichtung::links;
    if (spalte.find('>') != std::string_view::npos) return Kopfausrichtung::rechts;
    return Kopfausrichtung::mitte;
}

int BreiteLesen(std::string_view spalte) {
    const auto ziffern = spalte.find_first_of("0123456789.");
    const double zoll = ziffern == std::string_view::npos ? 0 : Punktwert(spalte.substr(ziffern));
    if (zoll <= 0 || spalte.find("in") == std::string_view::npos) {
        throw std::invalid_argument("Eine Berichtsspalte ohne Breite: " + std::string(spalte));
    }
    return static_cast<int>(std::lround(zoll * twipsJeZoll));
}

}  // namespace

std::vector<Berichtsspalte> SpaltenformatLesen(std::string_view format, std::string_view koepfe) {
    const auto formate = AnStrichenTeilen(format);
    const auto texte = AnStrichenTeilen(koepfe);
    if (formate.size() != texte.size()) {
        throw std::invalid_argument("Ein Bericht mit ungleich vielen Spalten und Köpfen: " +
                                    std::string(koepfe));
    }
    std::vector<Berichtsspalte> spalten;
    spalten.reserve(formate.size());
    for (std::size_t i = 0; i < formate.size(); ++i) {
        spalten.push_back({std::string(texte[i]), BreiteLesen(formate[i]), AusrichtungLesen(formate[i])});
    }
    return spalten;
}

}  // namespace zinfolio
