#pragma once

#include <QString>

namespace zinfolio {

/// The program that hands a file of rich text to the application which the user's desktop has for it. Empty
/// where the desktop has none, or the tools that know it are missing. Asks them, which takes a moment.
[[nodiscard]] QString Textverarbeitung();

/// Starts such a program with a file and does not wait for it. False where it cannot be started.
[[nodiscard]] bool TextverarbeitungStarten(const QString& programm, const QString& datei);

}  // namespace zinfolio
