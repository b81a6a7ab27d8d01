#include "kern/allround/reihenzins.h"

#include "kern/dates/textteile.h"
#include "kern/finmath/herleitung.h"

namespace zinfolio {

Reihenzins EffektivzinsRechnen(std::span<const Reihensatz> reihe, Effektivmethode methode) {
    const Reihenauswertung suche = ReiheAuswerten(reihe, methode);
    Reihenzins zins{.methode = methode,
                    .Effektivergebnis = suche.Effektivzins,
                    .Effzins = Effektivzinsanzeige(suche.Effektivzins),
                    .Meld = std::string(Getrimmt(suche.Meldung)),
                    .bewertung = {}};
    if (!zins.Effektivergebnis.empty()) {
        zins.bewertung =
            ReiheAuswerten(reihe, methode, Herleitungszinssatz(zins.Effektivergebnis), Tabellen::schreiben);
    }
    return zins;
}

std::shared_ptr<const std::vector<Ergebnissatz>> Endwertzeilen(const Reihenzins& zins) {
    return std::make_shared<const std::vector<Ergebnissatz>>(
        zins.bewertung.Vendwertberechnung.value_or(std::vector<Ergebnissatz>()));
}

}  // namespace zinfolio
