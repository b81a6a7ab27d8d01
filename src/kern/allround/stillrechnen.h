#pragma once

#include <optional>
#include <stdexcept>

#include "kern/grund/ablehnung.h"

namespace zinfolio {

/// Runs a calculation of which nothing is told when a fault ends it: that becomes a refusal without words.
template <typename Rechenweg>
std::optional<Ablehnung> StillRechnen(Rechenweg rechenweg) {
    try {
        return rechenweg();
    } catch (const std::runtime_error&) {
        return Ablehnung{};
    }
}

}  // namespace zinfolio
