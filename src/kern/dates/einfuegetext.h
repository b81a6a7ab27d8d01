#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "kern/dates/tastenfilter.h"

namespace zinfolio {

/// What a pasted text (UTF-8) puts between the texts before and behind it in a field: a number in the field's
/// own notation, however it is written (`Fremdzahl`), a date or free text as it stands. Nothing where the
/// field could not hold the whole.
[[nodiscard]] std::optional<std::string> Einfuegetext(Tastenfilter filter, std::string_view davor,
                                                      std::string_view eingefuegt, std::string_view dahinter);

}  // namespace zinfolio
