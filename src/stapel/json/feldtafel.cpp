#include "stapel/json/feldtafel.h"

#include <cstdint>
#include <string>

#include "stapel/json/auftragsfehler.h"

namespace zinfolio::detail {
namespace {

/// The row of a name, searched from `erwartet` on and round: fields mostly come in the order of their table.
std::size_t ZeileSuchen(std::span<const Feldzeile> zeilen, std::string_view name, std::size_t erwartet) {
    for (std::size_t schritt = 0; schritt < zeilen.size(); ++schritt) {
        const std::size_t nummer = (erwartet + schritt) % zeilen.size();
        if (zeilen[nummer].name == name) return nummer;
    }
    return zeilen.size();
}

}  // namespace

void ObjektLesen(JsonWert& wert, std::span<const Feldzeile> zeilen, void* ziel) {
    const char* const anfang = wert.Stelle();
    std::uint64_t gelesen = 0;
    std::size_t erwartet = 0;
    wert.Felder([&](std::string_view name, JsonWert& feld) {
        const std::size_t nummer = ZeileSuchen(zeilen, name, erwartet);
        if (nummer == zeilen.size()) feld.Ungueltig("ist unbekannt");
        const std::uint64_t bit = std::uint64_t{1} << nummer;
        if ((gelesen & bit) != 0) feld.Ungueltig("kommt doppelt vor");
        gelesen |= bit;
        erwartet = nummer + 1;
        zeilen[nummer].lesen(feld, ziel);
    });
    for (std::size_t nummer = 0; nummer < zeilen.size(); ++nummer) {
        if (zeilen[nummer].vorkommen == Vorkommen::darfFehlen || ((gelesen >> nummer) & 1U) != 0) continue;
        throw Auftragsfehler("Das Feld \"" + wert.Feldname(zeilen[nummer].name) + "\" fehlt.", anfang);
    }
}

}  // namespace zinfolio::detail
