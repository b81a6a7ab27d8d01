#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace zinfolio {

/// A call that cannot be carried out; `what()` is German and names the part at fault.
class Aufruffehler : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// A word of the call as messages name it.
[[nodiscard]] inline std::string Angefuehrt(std::string_view text) {
    return "\"" + std::string(text) + "\"";
}

}  // namespace zinfolio
