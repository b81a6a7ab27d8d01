#pragma once

#include <array>
#include <string>

#include "kern/bericht/bericht.h"

namespace zinfolio {

/// A report of two head lines and a table of two columns and two rows, with characters that need care.
inline Bericht KleinerBericht() {
    Bericht bericht;
    bericht.titel = "Köln & Co";
    bericht.kopfblock = {"  Zins 5 %", ""};
    bericht.tabelle.spalten = {{"Datum", 1440, Kopfausrichtung::mitte},
                               {"Vorgang", 2880, Kopfausrichtung::links}};
    bericht.tabelle.zeilen = 2;
    bericht.tabelle.zelle = [](std::size_t zeile, std::size_t spalte) -> std::string {
        constexpr std::array<std::array<const char*, 2>, 2> zellen{{{"01.01.2007", "{Müll}"}, {"", "<&\"▶"}}};
        return zellen.at(zeile).at(spalte);
    };
    return bericht;
}

}  // namespace zinfolio
