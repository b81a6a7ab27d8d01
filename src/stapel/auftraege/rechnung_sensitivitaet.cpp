#include <string>

#include "kern/allround/sensitivitaet.h"
#include "kern/allround/stillrechnen.h"
#include "stapel/auftraege/allroundfelder.h"
#include "stapel/auftraege/rechnungen.h"

namespace zinfolio {
namespace {

/// Index of the step between two rates.
struct Sensitivitaetsschritt {
    std::size_t index = 0;
};

void FeldLesen(JsonWert& wert, Sensitivitaetsschritt& ziel) {
    ziel.index =
        static_cast<std::size_t>(wert.Ganzzahl(0, static_cast<std::int64_t>(zinsschritte.size()) - 1));
}

struct Sensitivitaetsauftrag {
    SortierteZahlungen Zahlungen;
    Wertart Anzeigeart{};
    std::string Abzins2;
    std::string BarwDatum;
    std::string MiZins;
    Sensitivitaetsschritt Combo2;
};

constexpr auto sensitivitaetfelder =
    Auftragsfelder(Pflichtfeld<&Sensitivitaetsauftrag::Zahlungen>("Zahlungen"),
                   Pflichtfeld<&Sensitivitaetsauftrag::Anzeigeart>("Anzeigeart"),
                   Pflichtfeld<&Sensitivitaetsauftrag::Abzins2>("Abzins2"),
                   Pflichtfeld<&Sensitivitaetsauftrag::BarwDatum>("BarwDatum"),
                   Pflichtfeld<&Sensitivitaetsauftrag::MiZins>("MiZins"),
                   Pflichtfeld<&Sensitivitaetsauftrag::Combo2>("Combo2"));

std::optional<Ablehnung> RechneSensitivitaet(const Sensitivitaetsauftrag& auftrag, JsonSchreiber& ergebnis) {
    LaengePruefen(auftrag.Zahlungen);
    const auto& zahlungen = auftrag.Zahlungen.saetze;
    // The table borrows a value from the analysis that the form has run before it.
    Werteingabe analyse{auftrag.Anzeigeart, auftrag.Abzins2, auftrag.BarwDatum};
    Wertergebnis werte;
    if (auto ablehnung = WertAnalyse(zahlungen, analyse, werte)) return ablehnung;
    Sensitivitaetseingabe eingabe{.Anzeigeart = auftrag.Anzeigeart,
                                  .MiZins = auftrag.MiZins,
                                  .Combo2 = auftrag.Combo2.index,
                                  .Vorwert = werte.Vorwert.value_or(0)};
    return StillRechnen([&]() -> std::optional<Ablehnung> {
        Zellentabelle tabelle;
        if (auto ablehnung = SensitivitaetRechnen(zahlungen, eingabe, tabelle)) return ablehnung;
        TabelleSchreiben("Zeilen", tabelle, ergebnis);
        return std::nullopt;
    });
}

}  // namespace

constexpr Rechnungsart rechnungSensitivitaet =
    Auftragsart<sensitivitaetfelder, RechneSensitivitaet>("sensitivitaet");

}  // namespace zinfolio
