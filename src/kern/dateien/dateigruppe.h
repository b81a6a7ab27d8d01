#pragma once
// Files that are saved and read together: a project's main file and its side files, a plan and its notes.

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "kern/dateien/atomar.h"

namespace zinfolio {

/// How the name of a side file comes from its project's: `vor` + name without ending + `nach`.
struct Beidatei {
    std::string_view vor;
    std::string_view nach;
};

/// The files of a kind of project, as data.
struct Gruppenaufbau {
    /// Four characters, such as ".ZiS".
    std::string_view endung;
    std::span<const Beidatei> beidateien;
};

/// A group of files in one folder. Whoever reads it gets all of them as one save left them, also beside a
/// running save and after one that died; a save replaces all or none. See `Journal` for how.
class Dateigruppe {
  public:
    struct Teil {
        std::filesystem::path datei;
        /// Reads as empty where it is missing; otherwise a missing file is a fault.
        bool darfFehlen = false;
    };

    /// The first file is the main one: it is told first when it is missing, and takes its place last.
    /// REQUIRES: one file or more, all in one folder under names of their own.
    explicit Dateigruppe(std::vector<Teil> teile);

    /// From the file that the user names: side files lie beside it, and are named by its name less the last
    /// four characters. A name that has no more than four is a `Dateifehler`.
    Dateigruppe(const std::filesystem::path& hauptdatei, const Gruppenaufbau& aufbau);

    [[nodiscard]] const std::filesystem::path& Datei(std::size_t i) const { return teile_[i].datei; }
    [[nodiscard]] std::size_t Anzahl() const { return teile_.size(); }

    /// The contents in the order of the files. What a save that died left is put in order first, where that
    /// can be done. Throws `Dateifehler` for the first file that is missing, cannot be read or exceeds
    /// `hoechsteDateilaenge`.
    [[nodiscard]] std::vector<std::string> Lesen() const;

    /// Replaces all files, one content each. Files, journal and folder are on the disk before it ends where
    /// `sicherung` says so. Sweeps what killed saves left in the folder. Throws `Dateifehler`, also for a
    /// content that could not be opened again; all is old then, or all new where only the last fsync of the
    /// folder failed.
    void Speichern(std::span<const std::string_view> inhalte, Sicherung sicherung) const;

  private:
    [[nodiscard]] std::filesystem::path Journalort() const;
    [[nodiscard]] std::optional<std::vector<std::string>> LesenVersuchen() const;
    void InhaltePruefen(std::span<const std::string_view> inhalte) const;
    void Ersetzen(std::span<const std::string_view> inhalte, Sicherung sicherung) const;

    std::vector<Teil> teile_;
};

/// What a save under this name would take from another project, or nothing: the main files of other projects
/// that share the side files (their names differ in the case of the ending alone), and, where there is no
/// main file of this name yet, side files that exist all the same.
struct Fremdbestand {
    std::vector<std::filesystem::path> projekte;
    std::vector<std::filesystem::path> beidateien;

    [[nodiscard]] bool Leer() const { return projekte.empty() && beidateien.empty(); }
};
[[nodiscard]] Fremdbestand FremdbestandSuchen(const std::filesystem::path& hauptdatei,
                                              const Gruppenaufbau& aufbau);

/// The question that a save must ask first; nothing where it takes nothing from others.
[[nodiscard]] std::optional<std::string> Ersetzungsfrage(const std::filesystem::path& hauptdatei,
                                                         const Gruppenaufbau& aufbau);

/// Puts in order what killed saves left in a folder: unfinished groups are set back, temporary files of dead
/// processes removed. What cannot be put in order stays; never throws.
void OrdnerAufraeumen(const std::filesystem::path& ordner) noexcept;

}  // namespace zinfolio
