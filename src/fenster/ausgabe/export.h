#pragma once
// Where a report goes from its preview.

#include <QString>
#include <filesystem>
#include <functional>

#include "fenster/ausgabe/seitenmaler.h"
#include "kern/bericht/bericht.h"

class QWidget;

namespace zinfolio {

/// The indexes of the list of targets.
enum class Exportziel { drucker, pdf, rtf, htm, zwischenspeicher };

/// What an export needs to know of the preview.
struct Exportauftrag {
    QWidget* fenster = nullptr;
    /// Where `Zwispei.rtf` and `Zwispei.htm` lie.
    std::filesystem::path arbeitsordner;
    /// The filter of the save dialog; %1 stands for the ending.
    QString filter = "Ratenspardateien (*.%1) |*.%1";
};

/// The chosen file with the ending of its kind: the folder, then the last part of the name without its last
/// four characters, then the ending with its point. A name of four characters or less stays whole.
[[nodiscard]] std::filesystem::path Exportname(const std::filesystem::path& gewaehlt, const QString& endung);

/// Lets the user choose printer and pages and prints. A cancelled dialog is quiet; a printer that takes
/// nothing is told.
void DruckerExport(const Exportauftrag& auftrag, const Seitenmaler& maler);

/// Asks for a name and writes the PDF file. Cancelling is quiet and leaves no file; a file that cannot be
/// written is told.
void PdfExport(const Exportauftrag& auftrag, const Seitenmaler& maler);

/// Writes the report into the fixed file of its kind (`rtf` or `htm`), asks for a name and copies it there.
/// Cancelling is quiet; a file that cannot be written is told.
void TextExport(const Exportauftrag& auftrag, Exportziel ziel, const Bericht& bericht);

/// Puts a page (from 0) on the clipboard as a picture.
void ZwischenspeicherExport(const Seitenmaler& maler, int seite);

}  // namespace zinfolio
