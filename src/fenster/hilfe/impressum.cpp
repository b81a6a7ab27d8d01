#include "fenster/hilfe/impressum.h"

#include <QUrl>

#include "fenster/ui/meldungsfenster.h"

namespace zinfolio {
namespace {

struct Bibliothek {
    const char* name;
    /// the one that was built with; empty: this program is built without it
    const char* version;
    const char* lizenz;
};

/// What the program and its batch command are built on, for whoever asks what runs on his machine.
QString Bibliotheken() {
    QString text;
    for (const auto& [name, version, lizenz] : {
             Bibliothek{"Qt", qVersion(), "LGPL 3"},
             Bibliothek{"QCustomPlot", ZINFOLIO_MIT_QCUSTOMPLOT, "GPL 3 oder neuer"},
             Bibliothek{"libxlsxwriter", ZINFOLIO_MIT_XLSXWRITER, "BSD 2"},
             Bibliothek{"simdjson", ZINFOLIO_MIT_SIMDJSON, "Apache 2.0, in zinfolio-cli"},
             Bibliothek{"CLI11", ZINFOLIO_MIT_CLI11, "BSD 3, in zinfolio-cli"},
         })
        if (*version != '\0') text += QString("\n%1 %2 (%3)").arg(name, version, lizenz);
    return text;
}

}  // namespace

void ImpressumZeigen(QWidget* fenster) {
    MeldungZeigen(fenster,
                  {.text = "Zinfolio " ZINFOLIO_VERSION "\nRechner für Zinsen, Renditen und Sparpläne\n\n"
                           "Freie Software unter der GNU General Public License, Version 3 oder neuer.\n"
                           "Ohne jede Gewährleistung.\n\n" +
                           QUrl(ZINFOLIO_SERVER).host() + "\n\nVerwendete Bibliotheken:" + Bibliotheken(),
                   .titel = "Impressum"},
                  Meldungsart::hinweis);
}

}  // namespace zinfolio
