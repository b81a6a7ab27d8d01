#include "stapel/herleitungszeilen.h"

#include <string>

#include "finmath/herleitung.h"

namespace zinfolio {

void HerleitungSchreiben(std::string_view name, std::span<const Ergebnissatz> zeilen,
                         JsonSchreiber& ergebnis) {
    ergebnis.Name(name);
    ergebnis.ListeAuf();
    std::string zeile;
    for (const Ergebnissatz& satz : zeilen) {
        // Dates and numbers: nothing in them needs an escape.
        zeile = "[";
        for (const Herleitungszelle zelle : Herleitungszellen()) {
            zeile += '"';
            zeile += zelle(satz);
            zeile += "\",";
        }
        zeile.back() = ']';
        ergebnis.Fertiges(zeile);
    }
    ergebnis.ListeZu();
}

}  // namespace zinfolio
