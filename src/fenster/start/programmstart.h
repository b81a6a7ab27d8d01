#pragma once

#include <QString>
#include <filesystem>
#include <memory>

class QLockFile;

namespace zinfolio {

/// The program's hold on its working folder. Two running programs would overwrite each other's working files,
/// so a second one is refused while the first lives; after a crash the next one takes over at once.
class Ordnersperre {
  public:
    explicit Ordnersperre(const std::filesystem::path& ordner);
    ~Ordnersperre();

    /// True where this program holds the folder.
    [[nodiscard]] bool Gehalten() const;

    /// True where another running program holds it.
    [[nodiscard]] bool Besetzt() const;

  private:
    std::unique_ptr<QLockFile> sperre_;
};

/// True where leaving a calculator leads back to the start screen: the command line is empty or names the
/// program by its fixed name, "Zinfolio.exe".
[[nodiscard]] bool KehrtZumStartZurueck(const QString& kommandozeile);

}  // namespace zinfolio
