#include <vector>

#include "kern/staffel/zinstermine.h"
#include "stapel/auftraege/listenfelder.h"
#include "stapel/auftraege/rechnungen.h"
#include "stapel/json/feldlesen.h"
#include "stapel/json/feldtafel.h"

namespace zinfolio {
namespace {

struct Terminauftrag {
    Datum Erstdatum;
    Datum Kontodatum;
    zinfolio::Zinsverrechnungsart Zinsverrechnungsart{};
};

constexpr auto terminfelder =
    Auftragsfelder(Pflichtfeld<&Terminauftrag::Erstdatum>("Erstdatum"),
                   Pflichtfeld<&Terminauftrag::Kontodatum>("Kontodatum"),
                   Pflichtfeld<&Terminauftrag::Zinsverrechnungsart>("Zinsverrechnungsart"));

}  // namespace

std::optional<Ablehnung> RechneZinstermine(JsonWert& auftrag, JsonSchreiber& ergebnis) {
    const Terminauftrag eingabe = AuftragLesen(auftrag, terminfelder);
    std::vector<Datum> termine;
    Zinstermine(eingabe.Erstdatum, eingabe.Kontodatum, eingabe.Zinsverrechnungsart, termine);
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

}  // namespace zinfolio
