#pragma once

#include <QSize>

class QWidget;

namespace zinfolio {

/// Gives a window the size and place that it had when it was last closed, else `anfang`.
void FenstergroesseHolen(QWidget& fenster, QSize anfang);

/// Remembers the window's size and place under its object name.
void FenstergroesseMerken(const QWidget& fenster);

}  // namespace zinfolio
