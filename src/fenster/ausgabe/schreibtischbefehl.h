#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zinfolio {

/// The words of a desktop entry's "Exec" line. Of its field codes remain "%f" for a file and "%u" for its
/// URL, one of them, at the end where the line has none; the others fall away. Quotes and their escapes are
/// undone. An empty line has no words.
[[nodiscard]] std::vector<std::string> BefehlZerlegen(std::string_view zeile);

}  // namespace zinfolio
