#include "fenster/ui/platzhalterfarbe.h"

#include <QApplication>
#include <QEvent>
#include <QPalette>

namespace zinfolio {
namespace {

/// The colour of text, a little of the background in it.
void Anpassen() {
    constexpr int deckkraft = 160;
    QPalette palette = QApplication::palette();
    QColor farbe = palette.color(QPalette::Text);
    farbe.setAlpha(deckkraft);
    if (palette.color(QPalette::PlaceholderText) == farbe) return;
    palette.setColor(QPalette::PlaceholderText, farbe);
    QApplication::setPalette(palette);
}

}  // namespace

Platzhalterfarbe::Platzhalterfarbe() {
    Anpassen();
    qApp->installEventFilter(this);
}

bool Platzhalterfarbe::eventFilter(QObject* ziel, QEvent* ereignis) {
    if (ziel == qApp && ereignis->type() == QEvent::ApplicationPaletteChange) Anpassen();
    return QObject::eventFilter(ziel, ereignis);
}

}  // namespace zinfolio
