#pragma once
// Sizes of a report on paper, in twips. The paper is A4.

#include <vector>

#include "kern/bericht/bericht.h"

namespace zinfolio {

inline constexpr int a4Lang = 16838;
inline constexpr int a4Kurz = 11906;

[[nodiscard]] constexpr int Papierbreite(bool querformat) {
    return querformat ? a4Lang : a4Kurz;
}

[[nodiscard]] constexpr int Papierhoehe(bool querformat) {
    return querformat ? a4Kurz : a4Lang;
}

/// The room between the margins at the left and at the right.
[[nodiscard]] inline int Textbreite(const Bericht& bericht) {
    return Papierbreite(bericht.querformat) - 2 * bericht.rand;
}

/// The right edges of the table's columns, counted from the left margin. Columns that are together wider than
/// the room between the margins are narrowed in proportion; narrower ones stay as they are.
[[nodiscard]] std::vector<int> Spaltenkanten(const Bericht& bericht);

}  // namespace zinfolio
