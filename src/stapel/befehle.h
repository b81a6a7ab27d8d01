#pragma once
// The commands of the program. Each gives the exit status; see `ausgangsstatus.h`.

#include <string>

namespace zinfolio {

/// Jobs from standard input, results to standard output, on so many cores.
[[nodiscard]] int BefehlStapel(unsigned kerne);

/// One job from a file ("-" is standard input), its result on indented lines.
[[nodiscard]] int BefehlRechne(const std::string& datei);

}  // namespace zinfolio
