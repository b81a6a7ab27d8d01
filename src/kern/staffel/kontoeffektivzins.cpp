#include "kern/staffel/kontoeffektivzins.h"

#include "kern/finmath/herleitung.h"
#include "kern/staffel/reiheausloesung.h"

namespace zinfolio {

std::span<const Ergebnissatz> Kontoeffektivzins::Herleitung() const {
    const auto& tabelle = bewertung.Vendwertberechnung;
    return tabelle ? std::span<const Ergebnissatz>(*tabelle) : std::span<const Ergebnissatz>();
}

Kontoeffektivzins KontoEffektivzinsRechnen(std::span<const Staffelsatz> loesung, Effektivmethode methode) {
    Kontoeffektivzins ergebnis;
    ergebnis.Lösungszahlungsreihe = ReiheAusLoesung(loesung);
    ergebnis.Effektivergebnis = ReiheAuswerten(ergebnis.Lösungszahlungsreihe, methode).Effektivzins;
    ergebnis.ezins = Effektivzinsanzeige(ergebnis.Effektivergebnis);
    ergebnis.bewertung = ReiheAuswerten(ergebnis.Lösungszahlungsreihe, methode,
                                        Herleitungszinssatz(ergebnis.Effektivergebnis), Tabellen::schreiben);
    return ergebnis;
}

}  // namespace zinfolio
