#include <string>

#include "kern/allround/meldungen.h"
#include "kern/dateien/satzdatei.h"
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

constexpr auto reihefelder = Auftragsfelder(Pflichtfeld<&Reihenauftrag::Zahlungen>("Zahlungen"),
                                            Pflichtfeld<&Reihenauftrag::Effektivmethode>("Effektivmethode"));

std::optional<Ablehnung> RechneReihe(const Reihenauftrag& reihe, JsonSchreiber& ergebnis) {
    if (reihe.Zahlungen.saetze.size() > HoechstzahlSaetze) throw Rechenfehler(UeberHoechstzahl("Zahlungen"));
    const auto& saetze = reihe.Zahlungen.saetze;
    if (saetze.empty()) return OhneZahlungen(meldung::erstDieZahlungen);
    ReihenzinsSchreiben(saetze, reihe.Effektivmethode, ergebnis);
    return std::nullopt;
}

}  // namespace

constexpr Rechnungsart rechnungReihe = Auftragsart<reihefelder, RechneReihe>("reihe");

}  // namespace zinfolio
