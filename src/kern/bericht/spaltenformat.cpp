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

std::vector<Berichtsspalte> SpaltenformatLesen(std::string_view format) {
    std::vector<Berichtsspalte> spalten;
    for (const std::string_view spalte : AnStrichenTeilen(format))
        spalten.push_back(
            {.kopf = {}, .breite = BreiteLesen(spalte), .kopfausrichtung = AusrichtungLesen(spalte)});
    return spalten;
}

}  // namespace zinfolio
