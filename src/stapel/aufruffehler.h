#pragma once

#include <stdexcept>

namespace zinfolio {

/// A call that cannot be carried out; `what()` is German and names the part at fault.
class Aufruffehler : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

}  // namespace zinfolio
