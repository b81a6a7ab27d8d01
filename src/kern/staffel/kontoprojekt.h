#pragma once
// An account as a project: the notes under the name that the user chose, and beside them copies of the three
// working files.

#include <filesystem>
#include <string>
#include <string_view>

#include "kern/staffel/konto.h"

namespace zinfolio {

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

/// Saves the working files of a folder and the notes as a project, over one that exists. All four are
/// complete on the disk before the first takes its place; the project file is the last. Throws `Dateifehler`:
/// for a missing working file, a full disk, a folder or file without right to write, and for a name that a
/// working file of the same folder has. Nothing has changed then, unless the system failed between two files.
void KontoprojektSpeichern(const std::filesystem::path& arbeitsordner,
                           const std::filesystem::path& projektdatei, std::string_view notizen);

/// Copies the side files over the working files of a folder and gives the notes, byte for byte. A file that
/// is missing or cannot be read is a `Dateifehler`; what was copied before it stays.
[[nodiscard]] std::string KontoprojektEinlesen(const std::filesystem::path& arbeitsordner,
                                               const std::filesystem::path& projektdatei);

/// The account of a project, read where it lies: nothing is created or changed. A setting that its record
/// lacks is that of a new account. A missing file and a record without sense are a `Dateifehler`.
[[nodiscard]] Konto KontoprojektLesen(const std::filesystem::path& projektdatei);

}  // namespace zinfolio
