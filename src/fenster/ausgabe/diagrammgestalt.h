#pragma once

#include <QColor>
#include <QFont>
#include <array>

class QPalette;

namespace zinfolio {

/// What a chart is drawn with: colours and font.
struct Diagrammgestalt {
    QColor grund;
    QColor schriftfarbe;
    QColor gitter;
    /// For the first series, the second; on the ground they differ in lightness too.
    std::array<QColor, 2> linien;
    QFont schrift;
};

/// For the screen: ground and text of a palette, and lines that hold on it, light or dark.
[[nodiscard]] Diagrammgestalt Bildschirmgestalt(const QPalette& palette, const QFont& schrift);

/// For paper and saved pictures: dark on white, the font in pixels of 1/96 inch, so that it keeps its share
/// of the picture on every device.
[[nodiscard]] Diagrammgestalt Papiergestalt();

}  // namespace zinfolio
