#include "fenster/start/impressum.h"

#include "fenster/ui/meldungsfenster.h"

namespace zinfolio {

void ImpressumZeigen(QWidget* fenster) {
    MeldungZeigen(fenster,
                  {.text = "Zinfolio " ZINFOLIO_VERSION "\nRechner für Zinsen, Renditen und Sparpläne\n\n"
                           "Freie Software unter der GNU General Public License, Version 3 oder neuer.\n"
                           "Ohne jede Gewährleistung.",
                   .titel = "Impressum"},
                  Meldungsart::hinweis);
}

}  // namespace zinfolio
