#pragma once
// How fields that several kinds of jobs share are read. Each throws an `Auftragsfehler` where the value is of
// another kind or out of range. What a field is without any knowledge of accounts stands in `feldtafel.h`.

#include <vector>

#include "kern/dates/verzinsungsmethode.h"
#include "kern/finmath/effektivmethode.h"
#include "kern/finmath/reihensatz.h"
#include "kern/staffel/staffelsatz.h"
#include "kern/staffel/zahlungseingabe.h"
#include "kern/staffel/zinstermine.h"
#include "kern/tabellen/faktortabelle.h"
#include "stapel/json/feldtafel.h"

namespace zinfolio {

/// List indexes.
void FeldLesen(JsonWert& wert, Verzinsungsmethode& ziel);
void FeldLesen(JsonWert& wert, Zinsverrechnungsart& ziel);
void FeldLesen(JsonWert& wert, Abstandseinheit& ziel);
void FeldLesen(JsonWert& wert, Finanzfaktor& ziel);
void FeldLesen(JsonWert& wert, Rentenrhythmus& ziel);
void FeldLesen(JsonWert& wert, Rentenfaelligkeit& ziel);
void FeldLesen(JsonWert& wert, Schrittweite& ziel);
/// The stored value, list index plus 1.
void FeldLesen(JsonWert& wert, Effektivmethode& ziel);
/// The caption of the button: "%" or "€".
void FeldLesen(JsonWert& wert, Deltaeinheit& ziel);

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

void FeldLesen(JsonWert& wert, Zahlungsliste& ziel);
void FeldLesen(JsonWert& wert, Konditionsliste& ziel);
void FeldLesen(JsonWert& wert, Reihenliste& ziel);

}  // namespace zinfolio
