#pragma once

#include <vector>

#include "kern/staffel/staffelsatz.h"

namespace zinfolio {

/// Sorts payments by the numeric value of their `Sortierschluessel`, in exactly the order that a selection
/// sort with swaps leaves: for i = 1 to n the first row with the smallest key among i to n changes places
/// with row i. Rows of one date thus may leave their entry order (wanted: their order decides the statement).
/// O(n log n).
void SortiereZahlungen(std::vector<Staffelsatz>& zahlungen);

/// The same for conditions.
void SortiereKonditionen(std::vector<Staffelsatz>& konditionen);

}  // namespace zinfolio
