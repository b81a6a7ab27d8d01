#include "kern/dates/periodenzinsen.h"
#include "stapel/auftraege/felder.h"
#include "stapel/auftraege/rechnungen.h"

namespace zinfolio {
namespace {

struct Periode {
    Datum Von;
    Datum Bis;
    zinfolio::Verzinsungsmethode Verzinsungsmethode{};
    double Betrag1 = 0;
    float Satz1 = 0;
    double Betrag2 = 0;
    float Satz2 = 0;
};

constexpr auto periodenzinsenfelder =
    Auftragsfelder(Pflichtfeld<&Periode::Von>("Von"), Pflichtfeld<&Periode::Bis>("Bis"),
                   Pflichtfeld<&Periode::Verzinsungsmethode>("Verzinsungsmethode"),
                   Pflichtfeld<&Periode::Betrag1>("Betrag1"), Pflichtfeld<&Periode::Satz1>("Satz1"),
                   Pflichtfeld<&Periode::Betrag2>("Betrag2"), Pflichtfeld<&Periode::Satz2>("Satz2"));

std::optional<Ablehnung> RechnePeriodenzinsen(const Periode& periode, JsonSchreiber& ergebnis) {
    const Periodenergebnis zinsen =
        PeriodenZinsen(periode.Von, periode.Bis, periode.Verzinsungsmethode, {periode.Satz1, periode.Betrag1},
                       {periode.Satz2, periode.Betrag2});
    ergebnis.Feld("Zinstage", zinsen.tage);
    ergebnis.Feld("Zins", zinsen.zins);
    return std::nullopt;
}

}  // namespace

constexpr Rechnungsart rechnungPeriodenzinsen =
    Auftragsart<periodenzinsenfelder, RechnePeriodenzinsen>("periodenzinsen");

}  // namespace zinfolio
