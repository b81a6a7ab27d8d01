#include <string>

#include "kern/allround/jahreswerte.h"
#include "stapel/auftraege/allroundfelder.h"
#include "stapel/auftraege/rechnungen.h"

namespace zinfolio {
namespace {

struct Jahreswertauftrag {
    SortierteZahlungen Zahlungen;
    std::string Abzins2;
    std::string BarwDatum;
};

constexpr auto jahreswertefelder = Auftragsfelder(Pflichtfeld<&Jahreswertauftrag::Zahlungen>("Zahlungen"),
                                                  Pflichtfeld<&Jahreswertauftrag::Abzins2>("Abzins2"),
                                                  Pflichtfeld<&Jahreswertauftrag::BarwDatum>("BarwDatum"));

std::optional<Ablehnung> RechneJahreswerte(const Jahreswertauftrag& auftrag, JsonSchreiber& ergebnis) {
    LaengePruefen(auftrag.Zahlungen);
    Jahreswerteingabe eingabe{auftrag.Abzins2, auftrag.BarwDatum};
    Zellentabelle tabelle;
    if (auto ablehnung = Jahreswerttabelle(auftrag.Zahlungen.saetze, eingabe, tabelle)) return ablehnung;
    TabelleSchreiben("Zeilen", tabelle, ergebnis);
    return std::nullopt;
}

}  // namespace

constexpr Rechnungsart rechnungJahreswerte = Auftragsart<jahreswertefelder, RechneJahreswerte>("jahreswerte");

}  // namespace zinfolio
