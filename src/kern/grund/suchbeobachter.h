#pragma once

#include <cstddef>
#include <functional>
#include <stdexcept>

namespace zinfolio {

/// Hears how many rounds a calculation has made. Returning false stops it. Empty: nobody listens.
using Suchbeobachter = std::function<bool(std::size_t runden)>;

/// A calculation that its observer has stopped; nothing of it counts.
class RechnungAbgebrochen : public std::runtime_error {
  public:
    RechnungAbgebrochen() : std::runtime_error("Die Berechnung wurde abgebrochen.") {}
};

}  // namespace zinfolio
