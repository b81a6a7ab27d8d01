#include <string>

#include "kern/allround/meldungen.h"
#include "kern/dateien/satzdatei.h"
#include "kern/dates/textteile.h"
#include "kern/finmath/herleitung.h"
#include "kern/finmath/reiheauswerten.h"
#include "kern/grund/rechenfehler.h"
#include "stapel/auftraege/ergebnisse.h"
#include "stapel/auftraege/felder.h"
#include "stapel/auftraege/rechnungen.h"

namespace zinfolio {
namespace {

struct Reihenauftrag {
    Reihenliste Zahlungen;
    zinfolio::Effektivmethode Effektivmethode{};
};

constexpr auto felder = Auftragsfelder(Pflichtfeld<&Reihenauftrag::Zahlungen>("Zahlungen"),
                                       Pflichtfeld<&Reihenauftrag::Effektivmethode>("Effektivmethode"));

void ZinssatzSchreiben(const std::optional<double>& zinssatz, JsonSchreiber& ergebnis) {
    ergebnis.Name("Zinssatz");
    zinssatz ? ergebnis.Wert(*zinssatz) : ergebnis.Null();
}

std::optional<Ablehnung> Rechne(const Reihenauftrag& reihe, JsonSchreiber& ergebnis) {
    if (reihe.Zahlungen.saetze.size() > HoechstzahlSaetze) throw Rechenfehler("Mehr als 32767 Zahlungen.");
    const auto& saetze = reihe.Zahlungen.saetze;
    if (saetze.empty()) return OhneZahlungen(meldung::erstDieZahlungen);
    const Reihenauswertung rate = ReiheAuswerten(saetze, reihe.Effektivmethode);
    const bool gefunden = !rate.Effektivzins.empty();
    ergebnis.Feld("Effektivergebnis", rate.Effektivzins);
    ergebnis.Feld("Effzins", Effektivzinsanzeige(rate.Effektivzins));
    ZinssatzSchreiben(gefunden ? rate.Zinssatz : std::nullopt, ergebnis);
    ergebnis.Feld("Meld", Getrimmt(rate.Meldung));
    const auto zeilen = gefunden ? Herleitungszeilen(saetze, reihe.Effektivmethode, rate.Effektivzins)
                                 : std::vector<Ergebnissatz>();
    HerleitungSchreiben("Zeilen", zeilen, ergebnis);
    return std::nullopt;
}

}  // namespace

constexpr Rechnungsart rechnungReihe = Auftragsart<felder, Rechne>("reihe");

}  // namespace zinfolio
