#pragma once
// The projects that the user opened or saved last, over all calculators.

#include <QStringList>
#include <functional>

class QMenu;
class QWidget;

namespace zinfolio {

/// Projects with this ending (without its point; empty: with any), newest first, as whole paths: at the most
/// ten of each ending. A file that is not there now is left out, but not forgotten: its stick may come back.
[[nodiscard]] QStringList LetzteProjekte(const QString& endung = {});

/// Puts a project in front of all others.
void ProjektMerken(const QString& datei);

/// Forgets all projects with this ending.
void LetzteProjekteVergessen(const QString& endung);

/// The name of a project's file and its folder, the user's own written as "~".
[[nodiscard]] QString Projektbezeichnung(const QString& datei);

/// The submenu "Zuletzt geöffnet", filled anew each time it opens; `oeffnen` is given the file that the user
/// chose.
[[nodiscard]] QMenu* NeuesProjektmenue(QWidget* eltern, const QString& endung,
                                       const std::function<void(const QString&)>& oeffnen);

}  // namespace zinfolio
