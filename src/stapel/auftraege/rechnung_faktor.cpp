#include "kern/tabellen/einzelfaktor.h"
#include "stapel/auftraege/felder.h"
#include "stapel/auftraege/rechnungen.h"

namespace zinfolio {
namespace {

struct Faktorauftrag {
    Finanzfaktor Combo7{};
    Rentenrhythmus Combo5{};
    Rentenfaelligkeit Combo6{};
    std::string Zins2;
    std::string Jahre2;
    std::string Betrag2;
};

constexpr auto faktorfelder = Auftragsfelder(
    Pflichtfeld<&Faktorauftrag::Combo7>("Combo7"), Pflichtfeld<&Faktorauftrag::Combo5>("Combo5"),
    Pflichtfeld<&Faktorauftrag::Combo6>("Combo6"), Pflichtfeld<&Faktorauftrag::Zins2>("Zins2"),
    Pflichtfeld<&Faktorauftrag::Jahre2>("Jahre2"), Pflichtfeld<&Faktorauftrag::Betrag2>("Betrag2"));

std::optional<Ablehnung> RechneFaktor(const Faktorauftrag& auftrag, JsonSchreiber& ergebnis) {
    Einzelfaktor faktor;
    if (const auto ablehnung = EinzelfaktorRechnen({.wahl = {auftrag.Combo7, auftrag.Combo5, auftrag.Combo6},
                                                    .Zins2 = auftrag.Zins2,
                                                    .Jahre2 = auftrag.Jahre2,
                                                    .Betrag2 = auftrag.Betrag2},
                                                   faktor))
        return Ablehnung{ablehnung->Meldung, "", ""};
    ergebnis.Feld("Ergebnis", faktor.Ergebnis);
    ergebnis.Feld("Erklärung3", faktor.Erklärung3);
    return std::nullopt;
}

}  // namespace

constexpr Rechnungsart rechnungFaktor = Auftragsart<faktorfelder, RechneFaktor>("faktor");

}  // namespace zinfolio
