#pragma once

namespace zinfolio {

class Tabelle;

/// Gives a table its commands: copy, copy with headers, save as CSV or spreadsheet, search, larger and
/// smaller. They stand in its context menu and have their keys while the table has the focus.
void TabellenbefehleAnlegen(Tabelle& tabelle);

}  // namespace zinfolio
