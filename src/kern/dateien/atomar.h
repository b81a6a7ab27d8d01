#pragma once

#include <cstddef>
#include <filesystem>
#include <span>
#include <string_view>

namespace zinfolio {

class Deskriptor;

/// How long a save that was reported as done must last. `Fluechtig`: over a crash of the program (working
/// files, which each calculation rewrites). `Dauerhaft`: over a power failure too (whatever the user named).
enum class Sicherung { Fluechtig, Dauerhaft };

/// A new content for a file, complete on the disk beside its target but not yet in its place. Whatever
/// happens on the way, the target is wholly old or wholly new. Files that belong together are a
/// `Dateigruppe`.
///
/// The target may be missing. An existing one keeps its permissions (not its owner, ACL or extended
/// attributes) and must be a regular file that may be written; a new one gets what the umask leaves of 0666.
/// A symbolic link stays, its destination is replaced.
class AtomareDatei {
  public:
    /// Writes the temporary file, `Dauerhaft` down to the disk. Throws `Dateifehler`, and then leaves nothing
    /// behind.
    AtomareDatei(const std::filesystem::path& zieldatei, std::span<const std::byte> inhalt, Sicherung dauer);
    AtomareDatei(AtomareDatei&& andere) noexcept;
    AtomareDatei& operator=(AtomareDatei&& andere) noexcept;
    /// Removes the temporary file unless the save was completed.
    ~AtomareDatei();

    /// Puts the content in the place of the target. Throws `Dateifehler`; the target is old then, or new when
    /// only the fsync of its folder failed. REQUIRES: not completed and not moved from.
    void Vollenden();

    /// The same without the fsync of the folder, for whoever renames several files.
    void Einsetzen();

    /// The file that is replaced: absolute, behind all symbolic links.
    [[nodiscard]] const std::filesystem::path& Ziel() const { return ziel; }

  private:
    AtomareDatei(std::filesystem::path zieldatei, Sicherung dauer) noexcept;
    [[nodiscard]] Deskriptor VorlaeufigAnlegen(unsigned rechte);
    void Fuellen(std::span<const std::byte> inhalt);
    void Verwerfen() noexcept;

    std::filesystem::path ziel;
    std::filesystem::path vorlaeufig;  // empty: there is none
    Sicherung sicherung;
};

/// The bytes of a text, for the constructor above. The span lives as long as the text.
[[nodiscard]] inline std::span<const std::byte> AlsBytes(std::string_view text) {
    return std::as_bytes(std::span(text));
}

/// Replaces the content of one file, all or nothing; see `AtomareDatei`. Throws `Dateifehler`.
void AtomarSchreiben(const std::filesystem::path& datei, std::span<const std::byte> inhalt,
                     Sicherung sicherung);
void AtomarSchreiben(const std::filesystem::path& datei, std::string_view inhalt, Sicherung sicherung);

}  // namespace zinfolio
