#pragma once
// Deleting rows of a list, and bringing them back.

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

}  // namespace zinfolio
