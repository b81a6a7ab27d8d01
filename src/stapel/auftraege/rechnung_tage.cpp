#include "kern/dates/periodenzinsen.h"
#include "stapel/auftraege/felder.h"
#include "stapel/auftraege/rechnungen.h"

namespace zinfolio {
namespace {

struct Tage {
    Datum Von;
    Datum Bis;
    zinfolio::Verzinsungsmethode Verzinsungsmethode{};
};

constexpr auto tagefelder = Auftragsfelder(Pflichtfeld<&Tage::Von>("Von"), Pflichtfeld<&Tage::Bis>("Bis"),
                                           Pflichtfeld<&Tage::Verzinsungsmethode>("Verzinsungsmethode"));

std::optional<Ablehnung> RechneTage(const Tage& tage, JsonSchreiber& ergebnis) {
    ergebnis.Feld("Zinstage", Zinstage(tage.Von, tage.Bis, tage.Verzinsungsmethode));
    return std::nullopt;
}

}  // namespace

constexpr Rechnungsart rechnungTage = Auftragsart<tagefelder, RechneTage>("tage");

}  // namespace zinfolio
