#pragma once

#include <cstddef>
#include <functional>

namespace zinfolio {

/// Hears how far a long export is, in steps that never go back: first 0 of `von`, at the end `von` of `von`,
/// with `von` at least 1. Returning false cancels the export. Empty: nobody listens.
using Fortschritt = std::function<bool(std::size_t erledigt, std::size_t von)>;

}  // namespace zinfolio
