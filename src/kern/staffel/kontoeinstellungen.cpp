#include "kern/staffel/kontoeinstellungen.h"

#include <array>
#include <vector>

#include "kern/dateien/satzdatei.h"
#include "kern/dateien/selbstwert.h"

namespace zinfolio {
namespace {

using Einstellungssatz = Selbstsatz<30>;

/// The value of record k, if the file has one of that type; nothing for an empty record.
template <class Wert>
std::optional<Wert> Lies(const Satzdatei<Einstellungssatz>& datei,
                         const std::vector<Einstellungssatz>& saetze, std::size_t k) {
    if (k > saetze.size() || std::holds_alternative<std::monostate>(saetze[k - 1].wert)) return std::nullopt;
    if (const auto* wert = std::get_if<Wert>(&saetze[k - 1].wert)) return *wert;
    throw Dateifehler({datei.Pfad(), k}, "Der Satz hält einen Wert der falschen Art.");
}

template <class Auswahl>
std::optional<Auswahl> LiesAuswahl(const Satzdatei<Einstellungssatz>& datei,
                                   const std::vector<Einstellungssatz>& saetze, std::size_t k,
                                   std::size_t anzahl) {
    const auto index = Lies<std::int16_t>(datei, saetze, k);
    if (!index) return std::nullopt;
    if (*index < 0 || static_cast<std::size_t>(*index) >= anzahl) {
        throw Dateifehler({datei.Pfad(), k}, "Die Liste hat keinen Eintrag " + std::to_string(*index) + ".");
    }
    return static_cast<Auswahl>(*index);
}

}  // namespace

void KontoeinstellungenSchreiben(const std::filesystem::path& ordner,
                                 const Kontoeinstellungen& einstellungen) {
    const std::array<Einstellungssatz, 3> saetze{{
        {static_cast<std::int16_t>(einstellungen.Zinsverrechnungsart)},
        {einstellungen.Kontodatum},
        {static_cast<std::int16_t>(einstellungen.Verzinsungsmethode)},
    }};
    Satzdatei<Einstellungssatz>(ordner, "Zinsverrechnung").Schreiben(saetze);
}

Kontoeinstellungswerte KontoeinstellungenLesen(const std::filesystem::path& ordner, std::string_view name) {
    const Satzdatei<Einstellungssatz> datei(ordner, name);
    // Reading would create the file; a new account has none until it is left or saved.
    std::error_code fehler;
    if (!std::filesystem::exists(datei.Pfad(), fehler) && !fehler) return {};
    const auto saetze = datei.Lesen();
    return {
        LiesAuswahl<Zinsverrechnungsart>(datei, saetze, 1, zinsverrechnungsarten.size()),
        Lies<std::string>(datei, saetze, 2),
        LiesAuswahl<Verzinsungsmethode>(datei, saetze, 3, verzinsungsmethoden.size()),
    };
}

}  // namespace zinfolio
