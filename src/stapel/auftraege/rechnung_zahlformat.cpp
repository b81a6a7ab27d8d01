#include "kern/dates/zahlformat.h"
#include "stapel/auftraege/rechnungen.h"

namespace zinfolio {
namespace {

struct Formatierung {
    double Wert = 0;
    std::string_view Muster;
};

constexpr auto zahlformatfelder =
    Auftragsfelder(Pflichtfeld<&Formatierung::Wert>("Wert"), Pflichtfeld<&Formatierung::Muster>("Muster"));

std::optional<Ablehnung> RechneZahlformat(const Formatierung& formatierung, JsonSchreiber& ergebnis) {
    ergebnis.Feld("Text", Format(formatierung.Wert, Zahlmuster::Lesen(formatierung.Muster)));
    return std::nullopt;
}

}  // namespace

constexpr Rechnungsart rechnungZahlformat = Auftragsart<zahlformatfelder, RechneZahlformat>("zahlformat");

}  // namespace zinfolio
