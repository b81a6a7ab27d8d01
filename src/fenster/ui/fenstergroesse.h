#pragma once

#include <QSize>

class QWidget;

namespace zinfolio {

/// What the screen of a window has room for, below a title bar.
[[nodiscard]] QSize Bildschirmplatz(const QWidget& fenster);

/// Gives a window the size and place that it had when it was last closed, else `anfang`; never more than the
/// screen has room for.
void FenstergroesseHolen(QWidget& fenster, QSize anfang);

/// Remembers the window's size and place under its object name.
void FenstergroesseMerken(const QWidget& fenster);

}  // namespace zinfolio
