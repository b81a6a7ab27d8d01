#pragma once
// A calculated account, as the job `staffel` and the command of that name show it.

#include <optional>
#include <string>

#include "kern/grund/ablehnung.h"
#include "kern/staffel/konto.h"
#include "kern/staffel/kontoeffektivzins.h"
#include "stapel/json/jsonschreiber.h"

namespace zinfolio {

/// The account, the texts of the three labels below its statement, and its yield if that was asked for.
struct Staffelergebnis {
    Konto konto{};
    std::string Gesamtzahlungssumme{};
    std::string Endvermögen{};
    std::string Gesamtzinsen{};
    std::optional<Kontoeffektivzins> effektivzins{};
};

/// Calculates `ergebnis.konto` and fills in the rest. Gives the refusal, if there is one. Faults of the
/// calculation are exceptions, also more rows than files can hold and numbers that are not finite.
[[nodiscard]] std::optional<Ablehnung> StaffelRechnen(Staffelergebnis& ergebnis,
                                                      std::optional<Effektivmethode> methode);

/// Appends the fields of a result to an open object. A derivation that cannot be shown is a fault.
void StaffelergebnisSchreiben(const Staffelergebnis& ergebnis, JsonSchreiber& schreiber);

}  // namespace zinfolio
