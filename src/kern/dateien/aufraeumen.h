#pragma once

#include <filesystem>

#include "kern/dateien/sperre.h"

namespace zinfolio {

/// Holds a folder for a save; waits for another one that is under way, some seconds at most. Throws a
/// `Dateifehler` that names the file to be saved. A file system without locks is no fault; there the save
/// goes without.
[[nodiscard]] Sperre OrdnerHalten(const std::filesystem::path& datei);

/// Sets back what killed saves of the folder left, and removes the temporary files of dead processes. A group
/// other than that of `eigenesJournal` that cannot be set back stays as it is; the own one throws
/// `Dateifehler`. REQUIRES: the folder is held.
void ResteBeseitigen(const std::filesystem::path& ordner, const std::filesystem::path& eigenesJournal);

}  // namespace zinfolio
