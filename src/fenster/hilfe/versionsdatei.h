#pragma once
// What the maker's version file says.

#include <string_view>

namespace zinfolio {

/// The update number of this program, which the version file is compared with.
inline constexpr int aktualisierungsnummer = 2010;

/// A version file shorter than this counts as none: there is no connection.
inline constexpr int kuerzesteVersionsdatei = 2;

/// True where the text of a version file names a newer version: its leading digits and points, read as a
/// number and rounded to a whole one (halves to the even neighbour), lie above the update number. A text that
/// begins otherwise is 0.
[[nodiscard]] bool NenntNeuereVersion(std::string_view text);

}  // namespace zinfolio
