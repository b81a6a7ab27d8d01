#include "stapel/auftraege/staffelergebnis.h"

#include <algorithm>

#include "kern/dateien/satzdatei.h"
#include "kern/dates/zahlformat.h"
#include "kern/grund/rechenfehler.h"
#include "kern/staffel/kontoansicht.h"
#include "stapel/auftraege/herleitungszeilen.h"
#include "stapel/auftraege/staffelzeilen.h"

namespace zinfolio {
namespace {

void EffektivzinsSchreiben(const Kontoeffektivzins& effektivzins, JsonSchreiber& schreiber) {
    schreiber.Feld("ezins", effektivzins.ezins);
    schreiber.Feld("Effektivergebnis", effektivzins.Effektivergebnis);
    HerleitungSchreiben("Herleitung", effektivzins.Herleitung(), schreiber);
}

}  // namespace

std::optional<Ablehnung> StaffelRechnen(Staffelergebnis& ergebnis, std::optional<Effektivmethode> methode) {
    Konto& konto = ergebnis.konto;
    if (std::max(konto.zahlungen.size(), konto.konditionen.size()) > HoechstzahlSaetze) {
        throw Rechenfehler("Mehr als 32767 Zahlungen oder Konditionen.");
    }
    if (auto ablehnung = KontoRechnen(konto)) return ablehnung;
    const Kontosummen summen = KontosummenBilden(konto.loesung);
    ergebnis.Gesamtzahlungssumme = Format(summen.Gesamtzahlungssumme, betragsmuster);
    ergebnis.Endvermögen = Format(summen.Endvermögen, betragsmuster);
    ergebnis.Gesamtzinsen = Format(summen.Gesamtzinsen, betragsmuster);
    EndlichkeitPruefen(konto.loesung);
    if (methode) ergebnis.effektivzins = KontoEffektivzinsRechnen(konto.loesung, *methode);
    return std::nullopt;
}

void StaffelergebnisSchreiben(const Staffelergebnis& ergebnis, JsonSchreiber& schreiber) {
    if (!ergebnis.effektivzins) schreiber.Festlegen();
    schreiber.Name("Zeilen");
    StaffelzeilenSchreiben(ergebnis.konto.loesung, schreiber);
    schreiber.Feld("Gesamtzahlungssumme", ergebnis.Gesamtzahlungssumme);
    schreiber.Feld("Endvermögen", ergebnis.Endvermögen);
    schreiber.Feld("Gesamtzinsen", ergebnis.Gesamtzinsen);
    if (ergebnis.effektivzins) EffektivzinsSchreiben(*ergebnis.effektivzins, schreiber);
}

}  // namespace zinfolio
