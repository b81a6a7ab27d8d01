#include "stapel/herleitungszeilen.h"

#include "finmath/herleitung.h"

namespace zinfolio {

void HerleitungSchreiben(std::string_view name, std::span<const Ergebnissatz> zeilen,
                         JsonSchreiber& ergebnis) {
    ergebnis.Name(name);
    ergebnis.ListeAuf();
    for (const Ergebnissatz& satz : zeilen) {
        ergebnis.ListeAuf();
        for (const Herleitungszelle zelle : Herleitungszellen())
            ergebnis.Wert(std::string_view(zelle(satz)));
        ergebnis.ListeZu();
    }
    ergebnis.ListeZu();
}

}  // namespace zinfolio
