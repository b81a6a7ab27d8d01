#include "kern/dates/datumpruefen.h"
#include "stapel/auftraege/rechnungen.h"

namespace zinfolio {
namespace {

struct Eingabedatum {
    std::string_view Feld;
    Datum Heute;
    std::int16_t Laenge = 10;
};

constexpr auto datumfelder =
    Auftragsfelder(Pflichtfeld<&Eingabedatum::Feld>("Feld"), Pflichtfeld<&Eingabedatum::Heute>("Heute"),
                   Kannfeld<&Eingabedatum::Laenge>("Laenge"));

std::optional<Ablehnung> RechneDatum(const Eingabedatum& eingabe, JsonSchreiber& ergebnis) {
    const Datumspruefung pruefung = DatumPruefen(eingabe.Feld, eingabe.Heute, eingabe.Laenge);
    ergebnis.Feld("Feld", pruefung.feld);
    ergebnis.Feld("Abbruch", pruefung.abbruch);
    return std::nullopt;
}

}  // namespace

constexpr Rechnungsart rechnungDatum = Auftragsart<datumfelder, RechneDatum>("datum");

}  // namespace zinfolio
