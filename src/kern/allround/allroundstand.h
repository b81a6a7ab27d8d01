#pragma once

#include <string>

#include "kern/allround/ansichten.h"
#include "kern/allround/planansicht.h"
#include "kern/allround/reihenzins.h"
#include "kern/allround/tilgungsplan.h"
#include "kern/allround/wertanalyse.h"

namespace zinfolio {

/// What the window of the all-round calculator keeps from one calculation to the next, all of it.
/// Calculations themselves keep nothing: each gives its result to one of the functions here.
struct Allroundstand {
    /// What is shown: print, charts and ways back go by it.
    zinfolio::Anzeigeart Anzeigeart = zinfolio::Anzeigeart::barwert;

    /// The last analysis. A label that a fault did not reach keeps what it showed.
    Wertergebnis Werte;
    /// What the sensitivity table borrows: from the last analysis that had such a value, 0 before.
    double Vorwert = 0;

    /// Eleven rates, as last calculated.
    Zellentabelle Sensitivitaet;

    /// The last search for an effective rate, and the last one that found a rate: its table stays in sight.
    Reihenzins Zins;
    Reihenzins GefundenerZins;

    /// The last plan that was found: without words it stays where a fault ends the next one.
    Tilgungsplan Plan;
    /// Whether there was one since the window was opened.
    bool PlanAngezeigt = false;

    /// Takes over an analysis, as far as it came.
    void Uebernehmen(Wertergebnis neues);
    void Uebernehmen(Reihenzins neuer);
    /// REQUIRES: a complete plan.
    void Uebernehmen(Tilgungsplan neuer);

    [[nodiscard]] Wertart Analyseart() const {
        return Anzeigeart == zinfolio::Anzeigeart::endwert ? Wertart::endwert : Wertart::barwert;
    }
};

}  // namespace zinfolio
