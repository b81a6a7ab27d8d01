#pragma once

#include <QString>

class QWidget;

namespace zinfolio {

/// A place in the handbook: chapter, heading within it, and the name of a field below that heading; the last
/// two may be empty.
struct Hilfethema {
    QString kapitel;
    QString ueberschrift = {};
    QString feld = {};

    friend bool operator==(const Hilfethema&, const Hilfethema&) = default;
};

/// Where the handbook speaks of a widget: the chapter of its window, the heading of the tab or view that
/// shows it, and its own caption. A window that has no chapter is explained on the first page.
[[nodiscard]] Hilfethema ThemaVon(const QWidget* element);

/// The anchor of a heading: lower case, blanks as hyphens, punctuation gone.
[[nodiscard]] QString Sprungziel(const QString& ueberschrift);

}  // namespace zinfolio
