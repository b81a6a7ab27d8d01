#include "stapel/auftraege/allroundfelder.h"

#include "kern/dateien/satzdatei.h"
#include "kern/grund/rechenfehler.h"
#include "kern/staffel/staffelsortierung.h"
#include "stapel/auftraege/felder.h"

namespace zinfolio {

void FeldLesen(JsonWert& wert, SortierteZahlungen& ziel) {
    Zahlungsliste liste;
    FeldLesen(wert, liste);
    ziel.saetze = std::move(liste.saetze);
    SortiereZahlungen(ziel.saetze);
}

void FeldLesen(JsonWert& wert, Wertart& ziel) {
    ziel = static_cast<Wertart>(wert.Ganzzahl(1, 2));
}

void FeldLesen(JsonWert& wert, Plantermine& ziel) {
    ziel = static_cast<Plantermine>(wert.Ganzzahl(0, static_cast<std::int64_t>(plantermine.size()) - 1));
}

void LaengePruefen(const SortierteZahlungen& zahlungen) {
    if (zahlungen.saetze.size() > HoechstzahlSaetze) throw Rechenfehler("Mehr als 32767 Zahlungen.");
}

void TabelleSchreiben(std::string_view name, const Zellentabelle& tabelle, JsonSchreiber& ergebnis) {
    ergebnis.Name(name);
    ergebnis.ListeAuf();
    for (std::size_t zeile = 0; zeile < tabelle.Zeilen(); ++zeile) {
        ergebnis.ListeAuf();
        for (const std::string& zelle : tabelle.Zeile(zeile))
            ergebnis.Wert(std::string_view(zelle));
        ergebnis.ListeZu();
    }
    ergebnis.ListeZu();
}

}  // namespace zinfolio
