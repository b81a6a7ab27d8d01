#pragma once

#include "kern/bericht/textbericht.h"
#include "kern/tabellen/kurzrechner.h"

namespace zinfolio {

/// The figures and choices of a form as lines for the text viewer, its results at the end.
[[nodiscard]] Textbericht Kurzbericht(const Kurzrechner& rechner, const Kurzeingabe& eingabe);

}  // namespace zinfolio
