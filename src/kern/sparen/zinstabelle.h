#pragma once
// The table of rate changes: later dates with a new rate each, kept in order of date.

#include <optional>
#include <string_view>

#include "kern/grund/ablehnung.h"
#include "kern/sparen/sparplan.h"

namespace zinfolio {

/// Orders the rows by date; rows of one date keep their order unless a swap moves one of them. A date text of
/// less than four characters counts as the latest. A text whose positions hold no number is a `Datumsfehler`.
void ZinstabelleSortieren(Sparplan& plan);

/// Sorts, then checks: the first change must lie behind `Anfdatum`, every date needs a rate, and no later
/// rate may be 0. Rows without a date are emptied. `Feld` of a refusal names the row: "Zinsbetrag(3)". A date
/// or rate that is none is a fault.
[[nodiscard]] std::optional<Ablehnung> ZinstabellePruefen(Sparplan& plan);

/// True where the plan holds rate changes.
[[nodiscard]] bool ZinstabelleMarkieren(const Sparplan& plan);

/// The columns of the table by their controls.
enum class Zinsspalte { datum, betrag };

/// Why a key may not be typed into row `zeile` (from 0): rows above must be filled first, and a date comes
/// before its rate. Nothing where it may.
[[nodiscard]] std::optional<Ablehnung> ZinszeileGesperrt(const Sparplan& plan, std::size_t zeile,
                                                         Zinsspalte spalte);

/// The control of a row (from 0) by name: "ZinsWDAt(1)".
[[nodiscard]] std::string Zinszeilenname(std::size_t zeile, Zinsspalte spalte);

}  // namespace zinfolio
