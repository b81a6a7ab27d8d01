#include "fenster/ui/deutsch.h"

#include <QApplication>
#include <QLocale>
#include <QTranslator>

namespace zinfolio {

void DeutscheTexteLaden(QApplication& programm) {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    auto* uebersetzer = new QTranslator(&programm);
    if (uebersetzer->load(":/uebersetzungen/qtbase_de.qm")) QCoreApplication::installTranslator(uebersetzer);
}

}  // namespace zinfolio
