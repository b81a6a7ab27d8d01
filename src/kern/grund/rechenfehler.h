#pragma once

#include <stdexcept>

namespace zinfolio {

/// A fault inside a calculation: an overflow, a count beyond its limit, a row that cannot be calculated. The
/// trap of the running operation catches it; its text names the place for whoever looks for the cause.
class Rechenfehler : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

}  // namespace zinfolio
