#pragma once

#include <memory>
#include <optional>

#include "kern/bericht/bericht.h"
#include "kern/tabellen/einzelfaktor.h"
#include "kern/tabellen/faktortabelle.h"

namespace zinfolio {

/// Refuses a table that no page can hold.
[[nodiscard]] std::optional<Ablehnung> FaktortabellenberichtPruefen(const Faktortabelle& tabelle);

/// A table of factors as a report. Its header shows the rates of the table's top row, on every page; with
/// more than 6 columns there is none, which is wanted. It keeps the table alive; none: the report has its
/// head page alone.
[[nodiscard]] Bericht FaktortabellenberichtBilden(const Faktorwahl& wahl,
                                                  std::shared_ptr<const Faktortabelle> tabelle);

/// The single calculation as a report of one page of text.
[[nodiscard]] Bericht EinzelfaktorberichtBilden(const Einzelfaktoreingabe& eingabe,
                                                const Einzelfaktor& ergebnis);

}  // namespace zinfolio
