#pragma once

#include <cmath>
#include <stdexcept>

namespace zinfolio {

/// A fault inside a calculation: an overflow, a count beyond its limit, a row that cannot be calculated. The
/// trap of the running operation catches it; its text names the place for whoever looks for the cause.
class Rechenfehler : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The number itself; infinity and NaN are a `Rechenfehler`.
inline double Endlich(double wert) {
    if (!std::isfinite(wert)) throw Rechenfehler("Das Ergebnis ist keine endliche Zahl.");
    return wert;
}

}  // namespace zinfolio
