#include <string>
#include <vector>

#include "kern/staffel/zahlungseingabe.h"
#include "stapel/auftraege/ergebnisse.h"
#include "stapel/auftraege/felder.h"
#include "stapel/auftraege/rechnungen.h"

namespace zinfolio {
namespace {

constexpr auto zahlungsreihefelder = Auftragsfelder(
    Pflichtfeld<&Zahlungseingabe::Begdatum>("Begdatum"), Pflichtfeld<&Zahlungseingabe::Betrag>("Betrag"),
    Pflichtfeld<&Zahlungseingabe::Ratzahl>("Ratzahl"), Pflichtfeld<&Zahlungseingabe::Abstand>("Abstand"),
    Pflichtfeld<&Zahlungseingabe::Stufen>("Stufen"), Pflichtfeld<&Zahlungseingabe::Delta>("Delta"),
    Pflichtfeld<&Zahlungseingabe::Combo5>("Combo5"), Pflichtfeld<&Zahlungseingabe::Check1>("Check1"),
    Pflichtfeld<&Zahlungseingabe::Check2>("Check2"), Pflichtfeld<&Zahlungseingabe::Command1>("Command1"),
    Pflichtfeld<&Zahlungseingabe::Beschreibung>("Beschreibung"));

void ZahlungSchreiben(const Staffelsatz& zahlung, JsonSchreiber& ergebnis) {
    ergebnis.ObjektAuf();
    ergebnis.Name("Datum");
    SatztextSchreiben(zahlung.Satzdatum.Getrimmt(), ergebnis);
    ergebnis.Feld("Betrag", zahlung.Zahlbetrag);
    ergebnis.Name("Text");
    SatztextSchreiben(zahlung.Zahlungstext.Getrimmt(), ergebnis);
    ergebnis.ObjektZu();
}

std::optional<Ablehnung> RechneZahlungsreihe(Zahlungseingabe eingabe, JsonSchreiber& ergebnis) {
    // The label is kept up while the fields are typed, thus before the check fills the empty ones.
    const std::string letztesDatum = Datumrech(eingabe);
    if (auto ablehnung = ZahlungseingabePruefen(eingabe)) return ablehnung;
    std::vector<Staffelsatz> zahlungen;
    ZahlungenErzeugen(eingabe, zahlungen);
    ergebnis.Name("Zahlungen");
    ergebnis.ListeAuf();
    for (const Staffelsatz& zahlung : zahlungen)
        ZahlungSchreiben(zahlung, ergebnis);
    ergebnis.ListeZu();
    ergebnis.Feld("Datumrech", letztesDatum);
    return std::nullopt;
}

}  // namespace

constexpr Rechnungsart rechnungZahlungsreihe =
    Auftragsart<zahlungsreihefelder, RechneZahlungsreihe>("zahlungsreihe");

}  // namespace zinfolio
