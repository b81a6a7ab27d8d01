#pragma once

#include <vector>

namespace zinfolio {

/// The widths of columns that want `wunsch`, need `mindest`, and have `platz` together. Where there is room,
/// each gets what it wants or needs; else the columns share the room in proportion to what they want, and
/// none gets less than it needs. REQUIRES: as many needs as wishes, their sum at most `platz`.
[[nodiscard]] std::vector<double> Spaltenbreiten(const std::vector<double>& wunsch,
                                                 const std::vector<double>& mindest, double platz);

}  // namespace zinfolio
