#pragma once

#include <QString>

#include "kern/bericht/bericht.h"

namespace zinfolio {

/// A report with a head page of two lines and a table whose rows are numbered: "Nr00000", "Nr00001", ... 38
/// rows fill a page.
inline Bericht Nummernbericht(std::size_t zeilen) {
    Bericht bericht;
    bericht.titel = "Zinsstaffel Köln (1) \\ 2";
    bericht.kopfblock = {"Zinsverrechnung      Jahresende", "Endvermögen            1.234,56"};
    bericht.tabelle.spalten = {{"Datum", 1440, Kopfausrichtung::mitte},
                               {"Vorgang", 2880, Kopfausrichtung::mitte},
                               {"Kontostand", 2304, Kopfausrichtung::mitte}};
    bericht.tabelle.zeilen = zeilen;
    bericht.tabelle.zelle = [](std::size_t zeile, std::size_t spalte) -> std::string {
        if (spalte == 0) return "31.12.2007";
        if (spalte == 1) return "Nr" + QString::number(zeile).rightJustified(5, '0').toStdString();
        return "1.234,56";
    };
    return bericht;
}

}  // namespace zinfolio
