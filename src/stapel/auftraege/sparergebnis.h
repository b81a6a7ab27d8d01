#pragma once

#include "kern/sparen/sparrechnung.h"
#include "stapel/json/jsonschreiber.h"

namespace zinfolio {

/// Appends the result of a savings plan, without a refusal, to the open object of the job `sparen`. Numbers
/// that are not finite are a fault.
void SparergebnisSchreiben(const Sparform& form, const Sparergebnis& gerechnet, JsonSchreiber& ergebnis);

}  // namespace zinfolio
