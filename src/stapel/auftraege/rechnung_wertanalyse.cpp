#include <string>

#include "kern/allround/wertanalyse.h"
#include "stapel/auftraege/allroundfelder.h"
#include "stapel/auftraege/rechnungen.h"

namespace zinfolio {
namespace {

struct Wertauftrag {
    SortierteZahlungen Zahlungen;
    Wertart Anzeigeart{};
    std::string Abzins2;
    std::string BarwDatum;
};

constexpr auto wertanalysefelder = Auftragsfelder(
    Pflichtfeld<&Wertauftrag::Zahlungen>("Zahlungen"), Pflichtfeld<&Wertauftrag::Anzeigeart>("Anzeigeart"),
    Pflichtfeld<&Wertauftrag::Abzins2>("Abzins2"), Pflichtfeld<&Wertauftrag::BarwDatum>("BarwDatum"));

std::optional<Ablehnung> RechneWertanalyse(const Wertauftrag& auftrag, JsonSchreiber& ergebnis) {
    LaengePruefen(auftrag.Zahlungen);
    Werteingabe eingabe{auftrag.Anzeigeart, auftrag.Abzins2, auftrag.BarwDatum};
    Wertergebnis werte;
    if (auto ablehnung = WertAnalyse(auftrag.Zahlungen.saetze, eingabe, werte)) return ablehnung;
    WertergebnisSchreiben(werte, ergebnis);
    return std::nullopt;
}

}  // namespace

constexpr Rechnungsart rechnungWertanalyse = Auftragsart<wertanalysefelder, RechneWertanalyse>("wertanalyse");

}  // namespace zinfolio
