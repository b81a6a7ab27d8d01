#pragma once
// Valuation and search once more, the slow and obvious way: every row read and counted anew at every rate,
// rounding through text, nothing prepared and nothing shared. The fast way is held against it, bit for bit.

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "kern/finmath/effektivmethode.h"
#include "kern/finmath/reihensatz.h"

namespace zinfolio::woertlich {

/// A number by way of its text with 15 significant digits.
double UeberText(double wert);

struct Bewertung {
    std::optional<double> endwert;
    std::optional<double> barwert;
    std::optional<std::vector<Ergebnissatz>> vendwertberechnung;
    std::optional<std::vector<Ergebnissatz>> barwertberechnung;
};

Bewertung Bewerten(std::span<const Reihensatz> reihe, Effektivmethode methode, double zinssatz,
                   bool tabellen);

/// Present value without a table; nothing where it fails.
std::optional<double> Barwert(std::span<const Reihensatz> reihe, Effektivmethode methode, double zinssatz);

struct Suche {
    std::optional<double> zinssatz;
    std::string meldung;
};

Suche Suchen(std::span<const Reihensatz> reihe, Effektivmethode methode);

}  // namespace zinfolio::woertlich
