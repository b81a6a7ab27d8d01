#include "kern/tabellen/faktortabelle.h"
#include "stapel/auftraege/felder.h"
#include "stapel/auftraege/rechnungen.h"

namespace zinfolio {
namespace {

struct Tabellenauftrag {
    Finanzfaktor Combo1{};
    Schrittweite Combo2{};
    Rentenrhythmus Combo3{};
    Rentenfaelligkeit Combo4{};
    std::string Pro1;
    std::string Pro2;
    std::string J1;
    std::string J2;
};

constexpr auto faktortabellefelder = Auftragsfelder(
    Pflichtfeld<&Tabellenauftrag::Combo1>("Combo1"), Pflichtfeld<&Tabellenauftrag::Combo2>("Combo2"),
    Pflichtfeld<&Tabellenauftrag::Combo3>("Combo3"), Pflichtfeld<&Tabellenauftrag::Combo4>("Combo4"),
    Pflichtfeld<&Tabellenauftrag::Pro1>("Pro1"), Pflichtfeld<&Tabellenauftrag::Pro2>("Pro2"),
    Pflichtfeld<&Tabellenauftrag::J1>("J1"), Pflichtfeld<&Tabellenauftrag::J2>("J2"));

void TabelleSchreiben(const Faktortabelle& tabelle, JsonSchreiber& ergebnis) {
    ergebnis.Festlegen();
    ergebnis.Name("Zeilen");
    ergebnis.ListeAuf();
    for (std::size_t zeile = 0; zeile < tabelle.Zeilen(); ++zeile) {
        ergebnis.ListeAuf();
        for (std::size_t spalte = 0; spalte < tabelle.Spalten(); ++spalte)
            ergebnis.Wert(tabelle.Zelle(zeile, spalte));
        ergebnis.ListeZu();
        ergebnis.Abfliessen();
    }
    ergebnis.ListeZu();
}

std::optional<Ablehnung> RechneFaktortabelle(const Tabellenauftrag& auftrag, JsonSchreiber& ergebnis) {
    Faktortabelle tabelle;
    if (const auto ablehnung = FaktortabelleRechnen({.wahl = {auftrag.Combo1, auftrag.Combo3, auftrag.Combo4},
                                                     .Schrittweite = auftrag.Combo2,
                                                     .Pro1 = auftrag.Pro1,
                                                     .Pro2 = auftrag.Pro2,
                                                     .J1 = auftrag.J1,
                                                     .J2 = auftrag.J2},
                                                    tabelle))
        return Ablehnung{ablehnung->Meldung, "", ""};
    TabelleSchreiben(tabelle, ergebnis);
    return std::nullopt;
}

}  // namespace

constexpr Rechnungsart rechnungFaktortabelle =
    Auftragsart<faktortabellefelder, RechneFaktortabelle>("faktortabelle");

}  // namespace zinfolio
