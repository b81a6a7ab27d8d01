#include "fenster/hilfe/versionsdatei.h"

#include <charconv>
#include <cmath>

namespace zinfolio {

bool NenntNeuereVersion(std::string_view text) {
    while (text.starts_with(' '))
        text.remove_prefix(1);
    double zahl = 0;
    std::from_chars(text.data(), text.data() + text.size(), zahl, std::chars_format::fixed);
    // Rounding mode is the default one: halves to the even neighbour.
    return std::nearbyint(zahl) > aktualisierungsnummer;
}

}  // namespace zinfolio
