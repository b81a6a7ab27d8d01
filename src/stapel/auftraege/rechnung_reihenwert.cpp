#include "kern/finmath/reiheauswerten.h"
#include "stapel/auftraege/felder.h"
#include "stapel/auftraege/rechnungen.h"

namespace zinfolio {
namespace {

struct Reihenwertauftrag {
    Reihenliste Zahlungen;
    zinfolio::Effektivmethode Effektivmethode{};
    double Zinssatz = 0;
};

constexpr auto reihenwertfelder =
    Auftragsfelder(Pflichtfeld<&Reihenwertauftrag::Zahlungen>("Zahlungen"),
                   Pflichtfeld<&Reihenwertauftrag::Effektivmethode>("Effektivmethode"),
                   Pflichtfeld<&Reihenwertauftrag::Zinssatz>("Zinssatz"));

void TabelleSchreiben(std::string_view name, const std::optional<std::vector<Ergebnissatz>>& tabelle,
                      JsonSchreiber& ergebnis) {
    ergebnis.Name(name);
    ergebnis.ListeAuf();
    for (const Ergebnissatz& satz : tabelle.value_or(std::vector<Ergebnissatz>())) {
        ergebnis.ObjektAuf();
        ergebnis.Feld("Ergebnisdatum", satz.Ergebnisdatum.Getrimmt());
        ergebnis.Feld("Ergebnisbetrag", satz.Ergebnisbetrag);
        ergebnis.Feld("Faktor", satz.Faktor);
        ergebnis.Feld("Zeilenwert", satz.Zeilenwert);
        ergebnis.Feld("Summenwert", satz.Summenwert);
        ergebnis.Feld("Summenbetrag", satz.Summenbetrag);
        ergebnis.ObjektZu();
    }
    ergebnis.ListeZu();
}

std::optional<Ablehnung> RechneReihenwert(const Reihenwertauftrag& reihe, JsonSchreiber& ergebnis) {
    const Reihenauswertung werte =
        ReiheAuswerten(reihe.Zahlungen.saetze, reihe.Effektivmethode, reihe.Zinssatz, Tabellen::schreiben);
    if (!werte.Meldung.empty()) return Ablehnung{werte.Meldung, "", ""};
    ergebnis.Feld("Endwert", werte.Endwert.value());
    ergebnis.Feld("Barwert", werte.Barwert.value());
    TabelleSchreiben("Vendwertberechnung", werte.Vendwertberechnung, ergebnis);
    TabelleSchreiben("Barwertberechnung", werte.Barwertberechnung, ergebnis);
    return std::nullopt;
}

}  // namespace

constexpr Rechnungsart rechnungReihenwert = Auftragsart<reihenwertfelder, RechneReihenwert>("reihenwert");

}  // namespace zinfolio
