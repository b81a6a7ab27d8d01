#pragma once

#include <vector>

#include "kern/finmath/reihensatz.h"
#include "kern/staffel/staffelsatz.h"
#include "stapel/json/jsonwert.h"

namespace zinfolio {

/// The list `Zahlungen` of a job: objects of `Datum`, `Betrag` and perhaps `Text`.
struct Zahlungsliste {
    std::vector<Staffelsatz> saetze;
};

/// The list `Konditionen` of a job: objects of `Datum` and the seven fields of `Konditionen`.
struct Konditionsliste {
    std::vector<Staffelsatz> saetze;
};

/// The same list `Zahlungen` as the rows of a payment series, in the order given.
struct Reihenliste {
    std::vector<Reihensatz> saetze;
};

/// Each throws an `Auftragsfehler`.
void FeldLesen(JsonWert& wert, Zahlungsliste& ziel);
void FeldLesen(JsonWert& wert, Konditionsliste& ziel);
void FeldLesen(JsonWert& wert, Reihenliste& ziel);

}  // namespace zinfolio
