// Stands in for the module that writes PDF: tells in the file what it was given.

#include <cstdint>
#include <fstream>
#include <string>

#include "kern/bericht/bericht.h"

extern "C" const std::uint64_t ZinfolioBerichtslayout;
const std::uint64_t ZinfolioBerichtslayout = PROBE_BERICHTSLAYOUT;

extern "C" int ZinfolioBerichtAlsPdf(const zinfolio::Bericht* bericht, const char* datei,
                                     std::string* fehler) {
    const zinfolio::Berichtstabelle& tabelle = bericht->tabelle;
    std::ofstream strom(datei);
    strom << bericht->titel << ": " << tabelle.spalten.size() << " Spalten, " << tabelle.zeilen
          << " Zeilen, zuletzt " << tabelle.zelle(tabelle.zeilen - 1, tabelle.spalten.size() - 1) << '\n';
    if (strom.flush()) return 0;
    *fehler = "Die Probe kann \"" + std::string(datei) + "\" nicht schreiben.";
    return 1;
}
