#pragma once
// Reports of real accounts, for what reads them from outside and for what measures them.

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kern/dates/datum.h"
#include "kern/staffel/herleitungsbericht.h"
#include "kern/staffel/kontobericht.h"
#include "kern/staffel/kontoeffektivzins.h"
#include "kern/staffel/staffelberechnung.h"

namespace zinfolio {

/// A calculated account of so many rows, three days apart from 2000 on: a condition in each hundred rows, a
/// settlement in each thirty, payments with all kinds of texts.
inline std::vector<Staffelsatz> Probekonto(std::size_t zeilen) {
    constexpr std::array<std::string_view, 5> texte{"Miete Köln", "", "Kauf <5 & \"mehr\">", "Rate {1} \\ 2",
                                                    "Überweisung Großmarkt 25"};
    std::vector<Staffelsatz> saetze;
    Datum datum = *Datum::Aus(2000, 1, 1);
    for (std::size_t i = 0; i < zeilen; ++i, datum = PlusTage(datum, 3)) {
        const auto schritt = static_cast<double>(i % 9);
        if (i % 100 == 0) {
            saetze.push_back(Konditionssatz(datum.Text(), {.Gutzins1 = 0.5F,
                                                           .Gutzins2 = 1.25F,
                                                           .Guthabenlinie = 10'000,
                                                           .Kreditzins1 = 9.75F,
                                                           .Kreditzins2 = 14.5F,
                                                           .Kreditlinie = 5'000,
                                                           .Zweitzinsart = 2}));
        } else if (i % 30 == 29) {
            saetze.push_back(Zinsterminsatz(datum));
        } else {
            saetze.push_back(Zahlungssatz(datum.Text(), 12345.67 - 3000.1 * schritt, texte[i % 5]));
        }
    }
    Staffelberechnung(saetze, Verzinsungsmethode::deutsch);
    return saetze;
}

inline Bericht Probekontobericht(Kontoansicht ansicht, std::size_t zeilen) {
    auto saetze = std::make_shared<const std::vector<Staffelsatz>>(Probekonto(zeilen));
    Kontoberichtsdaten daten;
    daten.projekt = "Kontokorrent Müller & Söhne.ZiS";
    daten.einstellungen.Zinsverrechnungsart = Zinsverrechnungsart::quartalsende;
    daten.einstellungen.Kontodatum = "31.12.2024";
    daten.ezins = "3,14159";
    daten.effektivmethode = "PAngV2000";
    daten.loesung = saetze;
    daten.ansicht = ansicht;
    for (const Staffelsatz& satz : *saetze)
        if (satz.Zahlungsart == zahlungsart::kondition) daten.konditionen.push_back(satz);
    return KontoberichtBilden(daten);
}

inline Bericht Probeherleitung(std::size_t zeilen) {
    const auto methode = Effektivmethode::pangv2000;
    const Kontoeffektivzins ergebnis = KontoEffektivzinsRechnen(Probekonto(zeilen), methode);
    const auto herleitung = ergebnis.Herleitung();
    return HerleitungsberichtBilden({
        .projekt = "Kontokorrent Müller & Söhne.ZiS",
        .methode = methode,
        .ezins = ergebnis.ezins,
        .zeilen = std::make_shared<const std::vector<Ergebnissatz>>(herleitung.begin(), herleitung.end()),
    });
}

}  // namespace zinfolio
