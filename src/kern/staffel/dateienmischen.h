#pragma once

#include <optional>
#include <span>
#include <vector>

#include "kern/grund/ablehnung.h"
#include "kern/staffel/staffelsatz.h"

namespace zinfolio {

/// The sources of a statement, each in order of date.
struct Staffelquellen {
    std::span<const Staffelsatz> zahlungen;
    std::span<const Staffelsatz> konditionen;
    std::span<const Staffelsatz> termine;
};

/// Merges payments, conditions and settlement dates into `loesung` (emptied first), by date and up to the
/// closing date included; on one day the condition comes first, then the payments, then the settlement.
/// Refuses where payments or conditions are missing. A damaged date and more than 32 767 rows are faults; the
/// rows so far stay in `loesung`.
[[nodiscard]] std::optional<Ablehnung> dateienmischen(const Staffelquellen& quellen, Datum abschluss,
                                                      std::vector<Staffelsatz>& loesung);

/// The refusal for an account without payments, or without conditions; nothing where both exist.
[[nodiscard]] std::optional<Ablehnung> QuellenPruefen(std::span<const Staffelsatz> zahlungen,
                                                      std::span<const Staffelsatz> konditionen);

}  // namespace zinfolio
