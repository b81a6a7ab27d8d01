#pragma once
// The table that shows how an effective rate carries every payment of a series to its end: its last cumulated
// value is zero at the right rate. Grid, report and batch command show its cells as they come.

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "kern/finmath/effektivmethode.h"
#include "kern/finmath/reihensatz.h"

namespace zinfolio {

inline constexpr std::string_view herleitungsueberschrift =
    "Herleitung des Effektivzinssatzes: Der kumulierte Vermögensendwert = 0,00";

/// Writes the text that the user sees in a column for a row to a place of `betragsbreite` characters; gives
/// its end.
using Herleitungszelle = char* (*)(const Ergebnissatz& satz, char* ziel);

/// The cells from left to right: date, amount, factor, terminal value, cumulated terminal value, cumulated
/// payments.
[[nodiscard]] std::span<const Herleitungszelle> Herleitungszellen();

/// One of these cells as a text of its own.
[[nodiscard]] std::string Herleitungstext(const Ergebnissatz& satz, std::size_t spalte);

/// The number that the table is built with: that of the rate's text, 0 where it is empty.
[[nodiscard]] double Herleitungszinssatz(std::string_view effektivergebnis);

/// The rows of the table, up to the first fault.
[[nodiscard]] std::vector<Ergebnissatz> Herleitungszeilen(std::span<const Reihensatz> reihe,
                                                          Effektivmethode methode,
                                                          std::string_view effektivergebnis);

/// A rate's text as result fields show it, with its zero before the comma: "0,50000"; empty for an empty
/// text.
[[nodiscard]] std::string Effektivzinsanzeige(std::string_view effektivergebnis);

}  // namespace zinfolio
