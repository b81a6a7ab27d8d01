#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "kern/grund/ablehnung.h"

namespace zinfolio {

/// The number of a field; an empty one counts as 0. Throws `Zahlfehler` where the text is no number.
[[nodiscard]] double Feldzahl(std::string_view text);

/// A field that must hold another number than 0: its text, where the number goes, its name, and what the user
/// is told otherwise.
struct Pflichtzahl {
    std::string_view text;
    double& ziel;
    std::string_view name;
    std::string_view meldung;
};

/// Reads fields in their order, up to the first that holds 0. Throws `Zahlfehler` where a text is no number.
[[nodiscard]] std::optional<Ablehnung> PflichtzahlenLesen(std::span<const Pflichtzahl> felder);

}  // namespace zinfolio
