#pragma once

#include <string_view>
#include <vector>

#include "kern/bericht/bericht.h"

namespace zinfolio {

/// Reads the table language of report formats: columns between bars, each with alignment marks and a width in
/// inches, "^+1.0in|^2.0in". "<" lays the header to the left, ">" to the right, "^" into the middle; "+"
/// marks the first column and has no effect of its own, since all cells lie on the right. A mark may stand
/// behind the width ("1.6in^"). The columns come without their header texts. Throws std::invalid_argument for
/// a column without a width.
[[nodiscard]] std::vector<Berichtsspalte> SpaltenformatLesen(std::string_view format);

}  // namespace zinfolio
