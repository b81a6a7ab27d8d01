#pragma once
// An account as a project: the notes under the name that the user chose, and beside them copies of the three
// working files.

#include <array>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "kern/dateien/dateibefund.h"
#include "kern/dateien/dateigruppe.h"
#include "kern/staffel/konto.h"

namespace zinfolio {

/// The ending of a project and the names of its side files.
[[nodiscard]] const Gruppenaufbau& Kontoprojektaufbau();

/// The four files of a project.
struct Projektpfade {
    /// From the file that the user names: the side files lie beside it, and their names end with its name
    /// less the last four characters. A name that has no more than four is a `Dateifehler`.
    explicit Projektpfade(const std::filesystem::path& projektdatei);

    /// The notes, a rich-text document.
    std::filesystem::path projekt;
    /// "Zinsstaffel1…", a copy of `Zinsstaffel1`
    std::filesystem::path zahlungen;
    /// "Zinsstaffelzins…", a copy of `ZinsstaffelZins`
    std::filesystem::path konditionen;
    /// "Zinsverrechnung…", a copy of `Zinsverrechnung`
    std::filesystem::path einstellungen;
};

/// A project as it lies on the disk: read as a whole and found to make sense.
struct Kontoprojekt {
    /// Byte for byte.
    std::string notizen;
    /// A setting that its record lacks is that of a new account.
    Konto konto;
    /// What a calculation would pass over in silence.
    std::vector<Befund> befunde;
    /// The three side files, byte for byte: payments, conditions, settings.
    std::array<std::string, 3> beidateien;
};

/// Saves the working files of a folder and the notes as a project, over one that exists: all four files or
/// none, see `Dateigruppe`. Throws `Dateifehler`: for a missing working file, a full disk, a folder or file
/// without right to write, a file too large to be opened again, and for a name that a working file of the
/// same folder has.
void KontoprojektSpeichern(const std::filesystem::path& arbeitsordner,
                           const std::filesystem::path& projektdatei, std::string_view notizen);

/// The whole project, read where it lies: nothing is created or changed, except that a save that died is set
/// back. A missing file, a record of another kind than its file's and one without sense are a `Dateifehler`.
[[nodiscard]] Kontoprojekt KontoprojektLesen(const std::filesystem::path& projektdatei);

/// Puts the side files in the place of the working files of a folder, all three or none. Throws
/// `Dateifehler`.
void KontoprojektUebernehmen(const std::filesystem::path& arbeitsordner, const Kontoprojekt& projekt);

}  // namespace zinfolio
