#pragma once

#include <filesystem>
#include <optional>

#include "kern/dateien/deskriptor.h"

namespace zinfolio {

/// A hold on a file or folder that the kernel keeps (flock): it ends with this object or with the process,
/// however that ends. What the file holds, and who made it, does not matter.
class Sperre {
  public:
    enum class Zustand {
        gehalten,
        besetzt,      ///< another program, or another object of this one, holds it
        unmoeglich,   ///< the file system knows no locks
        gescheitert,  ///< `Fehlernummer()` says why
    };

    /// Takes hold of what exists at this path; never waits.
    explicit Sperre(const std::filesystem::path& pfad);
    /// The same; a missing file is created. A lock file that cannot be opened (a socket, a dead link) is made
    /// anew.
    [[nodiscard]] static Sperre AnDatei(const std::filesystem::path& datei);

    [[nodiscard]] Zustand Stand() const { return zustand_; }
    [[nodiscard]] bool Gehalten() const { return zustand_ == Zustand::gehalten; }
    [[nodiscard]] int Fehlernummer() const { return fehlernummer_; }

    /// Tries once more where it was taken.
    void Nochmals();

  private:
    explicit Sperre(Deskriptor offene);

    Deskriptor deskriptor_;
    Zustand zustand_ = Zustand::gescheitert;
    int fehlernummer_ = 0;
};

}  // namespace zinfolio
