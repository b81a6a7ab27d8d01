#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace zinfolio {

/// A system call that a piece of work makes: its number in the kernel's table, and whether it opens a folder.
struct Systemruf {
    long nummer = 0;
    bool ordner = false;
};

/// What became of a piece of work in a process of its own.
struct Beschussergebnis {
    bool getroffen = false;  ///< the call was reached
    bool getoetet = false;
    int status = 0;               ///< of the exit, where it was not killed
    std::vector<Systemruf> rufe;  ///< all that were made while the work ran
};

/// A fault at one system call of a piece of work.
struct Schuss {
    std::size_t ruf = 0;
    /// The `errno` with which the call fails without being made; 0 kills the process before it.
    int fehler = 0;
};

/// Runs `arbeit` in a child process whose system calls are watched, with at most one fault. The child's exit
/// status is what `arbeit` gives. Calls that concern memory, time and the process itself do not count.
[[nodiscard]] Beschussergebnis Beschiessen(const std::function<int()>& arbeit,
                                           const std::optional<Schuss>& schuss = std::nullopt);

/// False where system calls cannot be watched here: another processor, or a sanitizer, which makes calls of
/// its own.
[[nodiscard]] bool BeschussMoeglich();

/// "rename", for messages; the number for the rest.
[[nodiscard]] std::string Rufname(const Systemruf& ruf);

}  // namespace zinfolio
