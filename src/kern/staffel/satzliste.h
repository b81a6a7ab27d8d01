#pragma once
// Deleting rows of a list, and bringing them back; taking rows out again that were added.

#include <cstddef>
#include <span>
#include <utility>
#include <vector>

#include "kern/staffel/staffelsatz.h"

namespace zinfolio {

/// What one deletion took: each row with the place (from 0) that it had.
struct Loeschung {
    std::vector<std::pair<std::size_t, Staffelsatz>> saetze;
};

/// Removes the marked rows (places from 0, in any order); the others keep their order.
Loeschung SaetzeLoeschen(std::vector<Staffelsatz>& saetze, std::span<const std::size_t> markiert);

/// Puts deleted rows back to the places they had, or to the end where the list has become shorter.
void LoeschungZuruecknehmen(std::vector<Staffelsatz>& saetze, const Loeschung& loeschung);

/// Takes payments out that were added to the list, wherever a sort has put them since: for each of them the
/// last row of its date, amount and text. One that was changed or deleted meanwhile takes nothing with it.
void ZugangZuruecknehmen(std::vector<Staffelsatz>& saetze, std::span<const Staffelsatz> zugang);

}  // namespace zinfolio
