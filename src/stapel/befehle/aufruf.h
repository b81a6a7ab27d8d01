#pragma once
// A call of the program: what it ends with.

#include <stdexcept>
#include <string>
#include <string_view>

namespace zinfolio {

/// The exit status.
namespace status {
inline constexpr int fertig = 0;
/// A calculation was refused; in a batch, at least one job has no result.
inline constexpr int abgelehnt = 1;
/// A wrong call, an input that cannot be read or is no valid job, an output that cannot be written.
inline constexpr int falsch = 2;
}  // namespace status

/// A call that cannot be carried out; `what()` is German and names the part at fault.
class Aufruffehler : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// A word of the call as messages name it.
[[nodiscard]] inline std::string Angefuehrt(std::string_view text) {
    return "\"" + std::string(text) + "\"";
}

/// Reads the command line and runs its command. Gives the exit status; wrong calls are told on standard
/// error. Throws what the command throws but `Aufruffehler`.
[[nodiscard]] int Aufrufen(int argc, const char* const* argv);

}  // namespace zinfolio
