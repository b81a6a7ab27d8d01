#include "fenster/ui/fenstergroesse.h"

#include <QScreen>
#include <QSettings>
#include <QStyle>
#include <QWidget>

namespace zinfolio {
namespace {

QSettings Ablage() {
    return QSettings("Zinfolio", "Fenster");
}

}  // namespace

QSize Bildschirmplatz(const QWidget& fenster) {
    const int titelzeile = fenster.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    return fenster.screen()->availableSize() - QSize(0, titelzeile);
}

void FenstergroesseHolen(QWidget& fenster, QSize anfang) {
    const bool gemerkt = fenster.restoreGeometry(Ablage().value(fenster.objectName()).toByteArray());
    const QSize groesse = gemerkt ? fenster.size() : anfang;
    fenster.resize(groesse.boundedTo(Bildschirmplatz(fenster)));
}

void FenstergroesseMerken(const QWidget& fenster) {
    Ablage().setValue(fenster.objectName(), fenster.saveGeometry());
}

}  // namespace zinfolio
