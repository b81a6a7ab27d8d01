#pragma once
// A payment series as a project: a marker under the name that the user chose, and beside it payments and
// notes.

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "kern/dateien/dateibefund.h"
#include "kern/dateien/dateigruppe.h"
#include "kern/staffel/staffelsatz.h"

namespace zinfolio {

/// The ending of a project and the names of its side files: "ZahlungenT…" and "…Rendite".
[[nodiscard]] const Gruppenaufbau& Reihenprojektaufbau();

/// A project as it lies on the disk: read as a whole and found to make sense.
struct Reihenprojekt {
    /// In the order of their file.
    std::vector<Staffelsatz> zahlungen;
    /// The file of the payments, byte for byte.
    std::string zahlungsdatei;
    /// A rich-text document, byte for byte.
    std::string notizen;
    /// What a calculation would pass over in silence.
    std::vector<Befund> befunde;
};

/// A missing file, a record that is no payment and more records than a file may have are a `Dateifehler`.
[[nodiscard]] Reihenprojekt ReihenprojektLesen(const std::filesystem::path& projektdatei);

/// Saves `ZahlungenT` of a folder and the notes as a project, over one that exists: all three files or none.
/// The marker holds one line with the name that the project had before (wanted), empty where it had none.
/// Throws `Dateifehler`.
void ReihenprojektSpeichern(const std::filesystem::path& arbeitsordner,
                            const std::filesystem::path& projektdatei, std::string_view vorherigerName,
                            std::string_view notizen);

/// Puts the payments in the place of `ZahlungenT` of a folder. Throws `Dateifehler`.
void ReihenprojektUebernehmen(const std::filesystem::path& arbeitsordner, const Reihenprojekt& projekt);

}  // namespace zinfolio
