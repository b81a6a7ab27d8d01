#pragma once
// What was typed into a date field becomes a `Datumstext`, or is refused.

#include <string>
#include <string_view>

#include "kern/dates/datum.h"

namespace zinfolio {

/// Outcome of leaving a date field: its new text; whether the field keeps the focus; the message, empty if
/// none.
struct Datumspruefung {
    std::string feld;
    bool abbruch = false;
    std::string_view meldung;
};

inline constexpr std::string_view meldungUngueltigesDatum =
    "Ungültiges Datum. Das Datum wird auf ein gültiges Datum gesetzt.";
inline constexpr std::string_view meldungUngueltigesDatumOhneJahr = "Ungültiges Datum.";

/// True for what passes the check of a date field although it is no date: nothing, or a single character.
[[nodiscard]] bool IstNochKeinDatum(std::string_view feld);

/// True where an entry has no date: the same, or a text of the value 0.
[[nodiscard]] bool DatumFehlt(std::string_view feld);

/// Completes short forms (1.2.07, 010207) to tt.mm.jjjj; years of fewer than four digits fall in the 2000s,
/// without a century window. A text that is no real date is replaced by `heute` and keeps the focus; what
/// `IstNochKeinDatum` passes as it is. `laenge` 10 is a full date; any other length a date without its year
/// (tt.mm.), emptied when wrong.
[[nodiscard]] Datumspruefung DatumPruefen(std::string_view feld, Datum heute, int laenge = 10);

}  // namespace zinfolio
