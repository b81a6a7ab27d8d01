#pragma once

#include "kern/grund/ablehnung.h"
#include "stapel/json/jsonschreiber.h"

namespace zinfolio {

/// Appends the fields of a refusal to the open object of a result: `Meldung`, `Feld` and `Register`, the last
/// two null where there is none.
void AblehnungsfelderSchreiben(const Ablehnung& ablehnung, JsonSchreiber& schreiber);

}  // namespace zinfolio
