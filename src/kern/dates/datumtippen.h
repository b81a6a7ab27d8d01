#pragma once

#include <string>
#include <string_view>

namespace zinfolio {

/// Helps while a date is typed: puts the points in and strikes digits that no date can have. Called with each
/// changed text of the field and the code of the last key (8 is Backspace, which takes the point along with
/// the digit before it); gives the text that the field shall show.
[[nodiscard]] std::string DatumTippen(std::string_view feld, int letzteTaste);

}  // namespace zinfolio
