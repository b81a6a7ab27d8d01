#pragma once
// The one door for file dialogs: forms ask through it, tests answer through it.

#include <QString>
#include <filesystem>
#include <functional>
#include <optional>

class QWidget;

namespace zinfolio {

/// What a form asks for. Saving asks before it overwrites; opening takes only files that exist.
struct Dateifrage {
    enum class Zweck { oeffnen, speichern };

    Zweck zweck = Zweck::speichern;
    QString titel;
    /// Name and pattern with a bar between: "Zahlungsdateien (*.ZiS) |*.ZiS".
    QString filter;
    /// The ending that a saved file has: "ZiS". A name without it gets it, also one that holds points.
    QString endung;
    /// The name that stands in the dialog at first; a whole path, a name, or empty.
    QString vorgabe = {};
};

/// The file that the user chose, with its whole path; nothing where the dialog was cancelled. The current
/// folder of the program is the same afterwards.
[[nodiscard]] std::optional<std::filesystem::path> DateiFragen(QWidget* fenster, const Dateifrage& frage);

/// The name that a save dialog proposes for what stands in a window: that of the window's project
/// (`QWidget::windowFilePath`, without an ending), else `ersatz`; with its ending.
[[nodiscard]] QString Namensvorschlag(const QWidget& element, const QString& ersatz, const QString& endung);

/// Whether a file may be written: true where there is none, or where the user says so.
[[nodiscard]] bool DarfUeberschreiben(QWidget* fenster, const std::filesystem::path& datei);

/// What stands in for the user: is given each question and answers it.
using Dateizeuge = std::function<std::optional<std::filesystem::path>(const Dateifrage&)>;

/// Lets `zeuge` answer every question instead of showing a dialog, for tests; an empty one shows them again.
/// Gives who answered so far.
Dateizeuge DateifragenUmleiten(Dateizeuge zeuge);

}  // namespace zinfolio
