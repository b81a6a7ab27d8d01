#pragma once

#include <optional>
#include <string_view>

#include "kern/richtext/rtfstand.h"

namespace zinfolio {

/// A control word that the reader knows.
struct Steuerwort {
    std::string_view wort;
    void (*wirkung)(Rtfstand& stand, std::optional<int> zahl);
    /// Whether the word says where the text of its group goes; only such a word may follow `\*`.
    bool gruppenwort = false;
};

/// The entry of a control word; null for one that is not known, which has no effect.
[[nodiscard]] const Steuerwort* SteuerwortSuchen(std::string_view wort);

}  // namespace zinfolio
