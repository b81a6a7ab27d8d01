#include <vector>

#include "kern/staffel/zinstermine.h"
#include "stapel/auftraege/felder.h"
#include "stapel/auftraege/rechnungen.h"

namespace zinfolio {
namespace {

struct Terminauftrag {
    Datum Erstdatum;
    Datum Kontodatum;
    zinfolio::Zinsverrechnungsart Zinsverrechnungsart{};
};

constexpr auto zinsterminefelder =
    Auftragsfelder(Pflichtfeld<&Terminauftrag::Erstdatum>("Erstdatum"),
                   Pflichtfeld<&Terminauftrag::Kontodatum>("Kontodatum"),
                   Pflichtfeld<&Terminauftrag::Zinsverrechnungsart>("Zinsverrechnungsart"));

std::optional<Ablehnung> RechneZinstermine(const Terminauftrag& auftrag, JsonSchreiber& ergebnis) {
    std::vector<Datum> termine;
    Zinstermine(auftrag.Erstdatum, auftrag.Kontodatum, auftrag.Zinsverrechnungsart, termine);
    ergebnis.Festlegen();
    ergebnis.Name("Termine");
    ergebnis.ListeAuf();
    for (const Datum termin : termine) {
        ergebnis.Wert(std::string_view(termin.Text()));
        ergebnis.Abfliessen();
    }
    ergebnis.ListeZu();
    return std::nullopt;
}

}  // namespace

constexpr Rechnungsart rechnungZinstermine = Auftragsart<zinsterminefelder, RechneZinstermine>("zinstermine");

}  // namespace zinfolio
