#pragma once

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/types.h>
#include <unistd.h>
#include <utility>

namespace zinfolio {

/// Repeats a system call that a signal interrupted; gives its result, with `errno` set where that is -1.
template <typename Aufruf>
auto OhneUnterbrechung(Aufruf aufruf) {
    auto ergebnis = aufruf();
    while (ergebnis == -1 && errno == EINTR)
        ergebnis = aufruf();
    return ergebnis;
}

/// Owns an open file of the system; -1 is none.
class Deskriptor {
  public:
    /// Opens the file; where that fails, `Offen()` is false and `errno` says why.
    Deskriptor(const std::filesystem::path& datei, int schalter, mode_t rechte = 0)
        : nummer(OhneUnterbrechung([&] { return ::open(datei.c_str(), schalter | O_CLOEXEC, rechte); })) {}
    Deskriptor(Deskriptor&& anderer) noexcept : nummer(std::exchange(anderer.nummer, -1)) {}
    Deskriptor& operator=(Deskriptor&& anderer) noexcept {
        std::swap(nummer, anderer.nummer);
        return *this;
    }
    ~Deskriptor() {
        if (Offen()) ::close(nummer);
    }

    [[nodiscard]] bool Offen() const noexcept { return nummer >= 0; }
    [[nodiscard]] int Nummer() const noexcept { return nummer; }

    /// Closes now; false, with `errno` set, where the system reports a late fault of writing.
    [[nodiscard]] bool Schliessen() noexcept {
        // An interrupted close has let go of the number all the same.
        return ::close(std::exchange(nummer, -1)) == 0 || errno == EINTR;
    }

  private:
    int nummer;
};

}  // namespace zinfolio
