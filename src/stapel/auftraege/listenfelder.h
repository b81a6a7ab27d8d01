#pragma once
// How the choice of a list is read from a job: by its index, or by what the form stores for it.

#include "kern/dates/verzinsungsmethode.h"
#include "kern/finmath/effektivmethode.h"
#include "kern/staffel/zahlungseingabe.h"
#include "kern/staffel/zinstermine.h"
#include "stapel/json/feldlesen.h"

namespace zinfolio {

/// List indexes.
void FeldLesen(JsonWert& wert, Verzinsungsmethode& ziel);
void FeldLesen(JsonWert& wert, Zinsverrechnungsart& ziel);
void FeldLesen(JsonWert& wert, Abstandseinheit& ziel);
/// The stored value, list index plus 1.
void FeldLesen(JsonWert& wert, Effektivmethode& ziel);
/// The caption of the button: "%" or "€".
void FeldLesen(JsonWert& wert, Deltaeinheit& ziel);

}  // namespace zinfolio
