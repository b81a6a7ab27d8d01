#pragma once

namespace zinfolio {

/// Reads the command line and runs its command. Gives the exit status; wrong calls are told on standard
/// error. Throws `Kanalfehler` and `std::bad_alloc`.
[[nodiscard]] int Aufrufen(int argc, const char* const* argv);

}  // namespace zinfolio
