#include "kern/allround/allroundstand.h"

#include <utility>

namespace zinfolio {

void Allroundstand::Uebernehmen(Wertergebnis neues) {
    if (neues.Vorwert) Vorwert = *neues.Vorwert;
    // An empty series is refused before the frame of amortisation is looked at.
    if (neues.Tabelle.Spalten() == 0) neues.Frame1 = Werte.Frame1;
    if (!neues.Aussagen) neues.Aussagen = std::move(Werte.Aussagen);
    if (!neues.Dynamorinterpoliert) neues.Dynamorinterpoliert = std::move(Werte.Dynamorinterpoliert);
    Werte = std::move(neues);
}

void Allroundstand::Uebernehmen(Reihenzins neuer) {
    if (!neuer.Effektivergebnis.empty()) GefundenerZins = neuer;
    Zins = std::move(neuer);
}

void Allroundstand::Uebernehmen(Tilgungsplan neuer) {
    Plan = std::move(neuer);
    PlanAngezeigt = true;
}

}  // namespace zinfolio
