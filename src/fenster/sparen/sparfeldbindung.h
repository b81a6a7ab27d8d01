#pragma once

#include "fenster/ui/feldzeile.h"
#include "kern/sparen/sparfeld.h"

namespace zinfolio {

/// The row of a control of the family: its name, its kind, and the member of the plan that it shows.
[[nodiscard]] Feldzeile<Sparplan> SparfeldGebunden(const Sparfeld& feld);

}  // namespace zinfolio
