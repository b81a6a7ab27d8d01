#include "fenster/hilfe/impressum.h"

#include <QUrl>

#include "fenster/ui/meldungsfenster.h"

namespace zinfolio {
namespace {

/// What the program is built on, for whoever asks what runs on his machine.
constexpr const char* bibliotheken =
    "Qt %1 (LGPL 3)\nQCustomPlot (GPL 3)\nlibxlsxwriter (BSD)\nsimdjson (Apache 2.0) und CLI11 (BSD) im "
    "Befehl zinfolio-cli";

}  // namespace

void ImpressumZeigen(QWidget* fenster) {
    MeldungZeigen(fenster,
                  {.text = "Zinfolio " ZINFOLIO_VERSION "\nRechner für Zinsen, Renditen und Sparpläne\n\n"
                           "Freie Software unter der GNU General Public License, Version 3 oder neuer.\n"
                           "Ohne jede Gewährleistung.\n\n" +
                           QUrl(ZINFOLIO_SERVER).host() + "\n\nVerwendete Bibliotheken:\n" +
                           QString::fromUtf8(bibliotheken).arg(QString::fromLatin1(qVersion())),
                   .titel = "Impressum"},
                  Meldungsart::hinweis);
}

}  // namespace zinfolio
