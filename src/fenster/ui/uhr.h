#pragma once

#include <optional>

#include "kern/dates/datum.h"

namespace zinfolio {

/// The current date. Only forms ask for it; the core is given dates.
[[nodiscard]] Datum Heute();

/// Stops the clock at a date, for tests; nothing sets it going again.
void UhrStellen(std::optional<Datum> heute);

}  // namespace zinfolio
