#pragma once
// An account's payments and conditions as tables that spreadsheets write.

#include <string_view>
#include <vector>

#include "kern/dateien/csvlesen.h"
#include "kern/staffel/staffelsatz.h"

namespace zinfolio {

/// Rows of `Datum;Betrag;Beschreibung` behind a line with these words: a real date tt.mm.jjjj, an amount in
/// German notation (a point only between thousands), a text. Throws `Csvfehler`.
[[nodiscard]] std::vector<Staffelsatz> ZahlungenAusCsv(std::string_view text);

/// The same for `Datum;Gutzins1;Gutzins2;Guthabenlinie;Kreditzins1;Kreditzins2;Kreditlinie;Zweitzinsart`;
/// rates are percent per year, the last field is a whole number.
[[nodiscard]] std::vector<Staffelsatz> KonditionenAusCsv(std::string_view text);

}  // namespace zinfolio
