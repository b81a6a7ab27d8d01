#include "kern/tabellen/feldwert.h"

#include <string>

#include "kern/dates/zahl.h"

namespace zinfolio {

double Feldzahl(std::string_view text) {
    return text.empty() ? 0 : Zahl(text);
}

std::optional<Ablehnung> PflichtzahlenLesen(std::span<const Pflichtzahl> felder) {
    for (const Pflichtzahl& feld : felder) {
        feld.ziel = Feldzahl(feld.text);
        if (feld.ziel == 0) return Ablehnung{std::string(feld.meldung), std::string(feld.name), ""};
    }
    return std::nullopt;
}

}  // namespace zinfolio
