#pragma once
// The commands of the program. Each gives the exit status; see `ausgangsstatus.h`.

#include <string>

#include "stapel/befehle/staffelaufruf.h"

namespace zinfolio {

/// Jobs from standard input, results to standard output, on so many cores.
[[nodiscard]] int BefehlStapel(unsigned kerne);

/// One job from a file ("-" is standard input), its result on indented lines.
[[nodiscard]] int BefehlRechne(const std::string& datei);

/// A saved account, or one from tables: a view of its statement, and reports. Throws `Aufruffehler` where an
/// output would take the place of an input.
[[nodiscard]] int BefehlStaffel(const Staffelaufruf& aufruf);

}  // namespace zinfolio
