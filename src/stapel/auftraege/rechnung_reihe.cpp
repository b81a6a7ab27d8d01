// Jobs on payment series: effective rate with its derivation, and values at a rate.

#include <string>

#include "kern/dateien/satzdatei.h"
#include "kern/dates/textteile.h"
#include "kern/finmath/herleitung.h"
#include "kern/finmath/reiheauswerten.h"
#include "kern/grund/rechenfehler.h"
#include "kern/staffel/meldungen.h"
#include "stapel/auftraege/herleitungszeilen.h"
#include "stapel/auftraege/kontofelder.h"
#include "stapel/auftraege/listenfelder.h"
#include "stapel/auftraege/rechnungen.h"
#include "stapel/json/feldlesen.h"
#include "stapel/json/feldtafel.h"

namespace zinfolio {
namespace {

constexpr std::string_view keineReihe = "Es müssen erst die Zahlungen eingegeben werden.";

struct Reihenauftrag {
    Reihenliste Zahlungen;
    zinfolio::Effektivmethode Effektivmethode{};
};

constexpr auto reihenfelder = Auftragsfelder(Pflichtfeld<&Reihenauftrag::Zahlungen>("Zahlungen"),
                                             Pflichtfeld<&Reihenauftrag::Effektivmethode>("Effektivmethode"));

struct Wertauftrag {
    Reihenliste Zahlungen;
    zinfolio::Effektivmethode Effektivmethode{};
    double Zinssatz = 0;
};

constexpr auto wertfelder = Auftragsfelder(Pflichtfeld<&Wertauftrag::Zahlungen>("Zahlungen"),
                                           Pflichtfeld<&Wertauftrag::Effektivmethode>("Effektivmethode"),
                                           Pflichtfeld<&Wertauftrag::Zinssatz>("Zinssatz"));

void LaengePruefen(const Reihenliste& reihe) {
    if (reihe.saetze.size() > HoechstzahlSaetze) throw Rechenfehler("Mehr als 32767 Zahlungen.");
}

void ZinssatzSchreiben(const std::optional<double>& zinssatz, JsonSchreiber& ergebnis) {
    ergebnis.Name("Zinssatz");
    zinssatz ? ergebnis.Wert(*zinssatz) : ergebnis.Null();
}

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

}  // namespace

std::optional<Ablehnung> RechneReihe(JsonWert& auftrag, JsonSchreiber& ergebnis) {
    const Reihenauftrag reihe = AuftragLesen(auftrag, reihenfelder);
    LaengePruefen(reihe.Zahlungen);
    const auto& saetze = reihe.Zahlungen.saetze;
    if (saetze.empty()) {
        return Ablehnung{std::string(keineReihe), "Begdatum", std::string(register_::zahlungen)};
    }
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

std::optional<Ablehnung> RechneReihenwert(JsonWert& auftrag, JsonSchreiber& ergebnis) {
    const Wertauftrag reihe = AuftragLesen(auftrag, wertfelder);
    LaengePruefen(reihe.Zahlungen);
    const Reihenauswertung werte =
        ReiheAuswerten(reihe.Zahlungen.saetze, reihe.Effektivmethode, reihe.Zinssatz, Tabellen::schreiben);
    if (!werte.Meldung.empty()) return Ablehnung{werte.Meldung, "", ""};
    ergebnis.Feld("Endwert", werte.Endwert.value());
    ergebnis.Feld("Barwert", werte.Barwert.value());
    TabelleSchreiben("Vendwertberechnung", werte.Vendwertberechnung, ergebnis);
    TabelleSchreiben("Barwertberechnung", werte.Barwertberechnung, ergebnis);
    return std::nullopt;
}

}  // namespace zinfolio
