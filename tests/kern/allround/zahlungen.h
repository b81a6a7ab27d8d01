#pragma once
// Short ways to write the input of the all-round calculator in a test, and to look at its tables.

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kern/allround/zahlungsreihe.h"
#include "kern/allround/zellentabelle.h"
#include "kern/staffel/staffelsatz.h"

namespace zinfolio {

/// Zahlungen({{"01.01.2007", -1000}, {"01.01.2008", 1100}})
inline std::vector<Staffelsatz> Zahlungen(
    std::initializer_list<std::pair<std::string_view, double>> zahlungen) {
    std::vector<Staffelsatz> saetze;
    for (const auto& [datum, betrag] : zahlungen)
        saetze.push_back(Zahlungssatz(datum, betrag, ""));
    return saetze;
}

/// The same as a series.
inline std::vector<Reihensatz> Planreihe(
    std::initializer_list<std::pair<std::string_view, double>> zahlungen) {
    std::vector<Reihensatz> reihe;
    ReiheSchreiben(Zahlungen(zahlungen), reihe);
    return reihe;
}

using Zeile = std::vector<std::string>;
using Zeilen = std::vector<Zeile>;

inline Zeilen AlleZeilen(const Zellentabelle& tabelle) {
    Zeilen zeilen;
    for (std::size_t i = 0; i < tabelle.Zeilen(); ++i)
        zeilen.emplace_back(tabelle.Zeile(i).begin(), tabelle.Zeile(i).end());
    return zeilen;
}

/// The cells of one column from top to bottom.
inline Zeile Spaltentexte(const Zellentabelle& tabelle, std::size_t spalte) {
    Zeile zellen;
    for (std::size_t i = 0; i < tabelle.Zeilen(); ++i)
        zellen.push_back(tabelle.Zelle(i, spalte));
    return zellen;
}

/// An investment that pays back on its last date.
inline std::vector<Staffelsatz> Investition() {
    return Zahlungen({{"01.01.2005", -1000}, {"01.01.2006", 300}, {"01.07.2006", 400}, {"01.01.2007", 500}});
}

/// A payment whose date is no date.
inline Staffelsatz Beschaedigt() {
    Staffelsatz satz = Zahlungssatz("01.01.2006", 1, "");
    satz.Satzdatum = Festtext<10>::AusWindows1252("31.02.2006");
    return satz;
}

}  // namespace zinfolio
