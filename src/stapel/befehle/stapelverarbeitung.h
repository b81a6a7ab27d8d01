#pragma once

#include "stapel/auftraege/auftragsrechner.h"
#include "stapel/befehle/fliessband.h"
#include "stapel/befehle/zeilenleser.h"

namespace zinfolio {

/// Calculates one job a line from `quelle`, passes over blank lines, and gives one result a line to `senke`,
/// in the order of the jobs and the same bytes for any number of threads. Reads on only as results are
/// written, so the memory stays bounded. `kerne` is the number of calculating threads; with 1 there is none
/// beside the caller. True where every job was calculated. What `quelle` or `senke` throws comes through,
/// that of `senke` no later than after the next piece of input.
[[nodiscard]] bool StapelRechnen(Quelle quelle, Senke senke, unsigned kerne);

/// Calculates a single line; true where it was calculated, or blank. Appends result and line end; `abfluss`
/// as in `Auftragsrechner`.
bool ZeileRechnen(std::string_view zeile, Auftragsrechner& rechner, std::string& ergebnis,
                  const Rueckruf<void()>* abfluss = nullptr);

}  // namespace zinfolio
