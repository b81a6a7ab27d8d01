#include "stapel/json/feldtafel.h"

#include <cmath>
#include <limits>

#include "kern/grund/utf8.h"
#include "stapel/json/auftragsfehler.h"

namespace zinfolio {
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

void detail::ObjektLesen(JsonWert& wert, std::span<const Feldzeile> zeilen, void* ziel) {
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

Datum DatumVerlangen(const JsonWert& wert, std::string_view text) {
    const auto datum = Datum::Versuche(text);
    if (datum) return *datum;
    constexpr std::size_t zeigbar = 20;
    wert.Ungueltig("muss ein Datum der Form tt.mm.jjjj sein, \"" + Gekuerzt(text, zeigbar) + "\" ist keines");
}

void FeldLesen(JsonWert& wert, double& ziel) {
    ziel = wert.Zahl();
}

void FeldLesen(JsonWert& wert, float& ziel) {
    ziel = static_cast<float>(wert.Zahl());
    if (!std::isfinite(ziel)) wert.Ungueltig("liegt außerhalb des Bereichs einer 4-Byte-Gleitkommazahl");
}

void FeldLesen(JsonWert& wert, std::int16_t& ziel) {
    using Grenzen = std::numeric_limits<std::int16_t>;
    ziel = static_cast<std::int16_t>(wert.Ganzzahl(Grenzen::min(), Grenzen::max()));
}

void FeldLesen(JsonWert& wert, bool& ziel) {
    ziel = wert.Ganzzahl(0, 1) == 1;
}

void FeldLesen(JsonWert& wert, std::string& ziel) {
    ziel = wert.Text();
}

void FeldLesen(JsonWert& wert, std::string_view& ziel) {
    ziel = wert.Text();
}

void FeldLesen(JsonWert& wert, Datum& ziel) {
    ziel = DatumVerlangen(wert, wert.Text());
}

void FeldLesen(JsonWert& wert, Datumstext& ziel) {
    ziel.text = wert.Text();
    DatumVerlangen(wert, ziel.text);
}

}  // namespace zinfolio
