#include "stapel/auftraege/herleitungszeilen.h"

#include "kern/dates/zahlformat.h"
#include "kern/finmath/herleitung.h"
#include "stapel/json/zeilenpuffer.h"

namespace zinfolio {

void HerleitungSchreiben(std::string_view name, std::span<const Ergebnissatz> zeilen,
                         JsonSchreiber& ergebnis) {
    ergebnis.Name(name);
    ergebnis.ListeAuf();
    Zeilenpuffer zeile;
    for (const Ergebnissatz& satz : zeilen) {
        // Dates and numbers: nothing in them needs an escape.
        std::string_view trenner = "[\"";
        for (const Herleitungszelle zelle : Herleitungszellen()) {
            zeile.Text(trenner);
            zeile.Geschrieben(betragsbreite, [&](char* ziel) { return zelle(satz, ziel); });
            trenner = "\",\"";
        }
        zeile.Fest("\"]");
        ergebnis.Fertiges(zeile.Inhalt());
        zeile.Leeren();
    }
    ergebnis.ListeZu();
}

}  // namespace zinfolio
