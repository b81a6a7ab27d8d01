#include "kern/bericht/seitenmass.h"

#include <algorithm>
#include <cstdint>

namespace zinfolio {

std::vector<int> Spaltenkanten(const Bericht& bericht) {
    std::vector<std::int64_t> kanten;
    kanten.reserve(bericht.tabelle.spalten.size());
    std::int64_t summe = 0;
    for (const Berichtsspalte& spalte : bericht.tabelle.spalten)
        kanten.push_back(summe += spalte.breite);
    const std::int64_t platz = std::min<std::int64_t>(summe, Textbreite(bericht));
    std::vector<int> ergebnis;
    ergebnis.reserve(kanten.size());
    for (const std::int64_t kante : kanten)
        ergebnis.push_back(static_cast<int>(summe == 0 ? 0 : kante * platz / summe));
    return ergebnis;
}

}  // namespace zinfolio
