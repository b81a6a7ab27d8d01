#pragma once

#include <QString>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "kern/dateien/sperre.h"

namespace zinfolio {

/// The program's hold on its working folder. Two running programs would overwrite each other's working files,
/// so a second one is refused while the first lives; after a crash the next one takes over at once. What the
/// lock file holds, and what it is, does not matter: the kernel keeps the lock.
class Ordnersperre {
  public:
    explicit Ordnersperre(const std::filesystem::path& ordner);

    /// True where this program holds the folder, or where its file system knows no locks.
    [[nodiscard]] bool Gehalten() const;

    /// True where another running program holds it.
    [[nodiscard]] bool Besetzt() const;

  private:
    Sperre sperre_;
};

/// What the program answers on the command line alone, without a display: its help, its version; nothing for
/// any other first argument.
[[nodiscard]] std::optional<std::string> Auskunft(std::string_view argument);

/// True where leaving a calculator leads back to the start screen: the command line is empty or names the
/// program by its fixed name, "Zinfolio.exe".
[[nodiscard]] bool KehrtZumStartZurueck(const QString& kommandozeile);

}  // namespace zinfolio
