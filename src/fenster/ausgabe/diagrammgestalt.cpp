#include "fenster/ausgabe/diagrammgestalt.h"

#include <QPalette>

namespace zinfolio {
namespace {

constexpr std::array linienAufHell{qRgb(0x12, 0x5a, 0xa8), qRgb(0xc2, 0x55, 0x00)};
constexpr std::array linienAufDunkel{qRgb(0x6c, 0xb4, 0xff), qRgb(0xff, 0xae, 0x5c)};

/// A fifth of the way from the ground to the text.
QColor Gitterfarbe(const QColor& grund, const QColor& schrift) {
    const auto mitte = [](int von, int bis) { return von + (bis - von) / 5; };
    return {mitte(grund.red(), schrift.red()), mitte(grund.green(), schrift.green()),
            mitte(grund.blue(), schrift.blue())};
}

Diagrammgestalt Gestalt(const QColor& grund, const QColor& schriftfarbe, const QFont& schrift) {
    const auto& linien = grund.lightness() < 128 ? linienAufDunkel : linienAufHell;
    return {grund,
            schriftfarbe,
            Gitterfarbe(grund, schriftfarbe),
            {QColor(linien[0]), QColor(linien[1])},
            schrift};
}

}  // namespace

Diagrammgestalt Bildschirmgestalt(const QPalette& palette, const QFont& schrift) {
    return Gestalt(palette.color(QPalette::Base), palette.color(QPalette::Text), schrift);
}

Diagrammgestalt Papiergestalt() {
    QFont schrift("Arial");
    schrift.setPixelSize(14);
    return Gestalt(Qt::white, Qt::black, schrift);
}

}  // namespace zinfolio
