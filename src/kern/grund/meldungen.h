#pragma once
// The texts that all calculators share, word for word as forms and batch command show them.

#include <string_view>

namespace zinfolio::meldung {

/// After a run-time fault in a guarded operation of any form.
inline constexpr std::string_view angabenFehler =
    "Bitte überprüfen Sie Ihre Angaben. Diese sind offenbar unvollständig oder nicht in sich schlüssig und "
    "lassen "
    "daher die gewünschte Berechnung nicht zu.";

}  // namespace zinfolio::meldung
