#include "fenster/ui/fenstergroesse.h"

#include <QSettings>
#include <QWidget>

namespace zinfolio {
namespace {

QSettings Ablage() {
    return QSettings("Zinfolio", "Fenster");
}

}  // namespace

void FenstergroesseHolen(QWidget& fenster, QSize anfang) {
    if (!fenster.restoreGeometry(Ablage().value(fenster.objectName()).toByteArray())) fenster.resize(anfang);
}

void FenstergroesseMerken(const QWidget& fenster) {
    Ablage().setValue(fenster.objectName(), fenster.saveGeometry());
}

}  // namespace zinfolio
