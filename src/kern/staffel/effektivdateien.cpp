#include "kern/staffel/effektivdateien.h"

#include "kern/dateien/satzdatei.h"

namespace zinfolio {

void KontoEffektivzinsAblegen(const std::filesystem::path& ordner, const Kontoeffektivzins& ergebnis) {
    const Satzdatei<Ergebnissatz> endwerte(ordner, "Vendwertberechnung");
    const Satzdatei<Ergebnissatz> barwerte(ordner, "Barwertberechnung");
    Satzdatei<Reihensatz>(ordner, "Lösungszahlungsreihe").Schreiben(ergebnis.Lösungszahlungsreihe);
    endwerte.Loeschen();
    if (const auto& tabelle = ergebnis.bewertung.Vendwertberechnung) endwerte.Schreiben(*tabelle);
    if (const auto& tabelle = ergebnis.bewertung.Barwertberechnung) barwerte.Schreiben(*tabelle);
}

}  // namespace zinfolio
