#pragma once
// How what several kinds of jobs, and the commands beside them, give is written.

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "kern/finmath/reihensatz.h"
#include "kern/grund/ablehnung.h"
#include "kern/staffel/konto.h"
#include "kern/staffel/kontoansicht.h"
#include "kern/staffel/kontoeffektivzins.h"
#include "stapel/json/jsonschreiber.h"

namespace zinfolio {

/// Appends the fields of a refusal to the open object of a result: `Meldung`, `Feld` and `Register`, the last
/// two null where there is none.
void AblehnungsfelderSchreiben(const Ablehnung& ablehnung, JsonSchreiber& schreiber);

/// Writes a text of a record (Windows-1252) as the next value.
void SatztextSchreiben(std::string_view windows1252, JsonSchreiber& ergebnis);

/// Appends rows of cell texts (UTF-8), as the user sees them, as a field: a list of lists.
void ZelltexteSchreiben(std::string_view name, std::span<const std::vector<std::string>> zeilen,
                        JsonSchreiber& ergebnis);

/// Throws a `Rechenfehler` for a row with a number that is not finite: a record may hold one, a result may
/// not.
void EndlichkeitPruefen(std::span<const Staffelsatz> zeilen);

/// Appends calculated rows as the field `Zeilen`: objects of the fields of a record in their order, without
/// those that only files need. REQUIRES: finite numbers.
void StaffelzeilenSchreiben(std::span<const Staffelsatz> zeilen, JsonSchreiber& ergebnis);

/// Appends the derivation of an effective rate as a field: a list of rows, each a list of the cell texts. A
/// cell that cannot be shown is a fault.
void HerleitungSchreiben(std::string_view name, std::span<const Ergebnissatz> zeilen,
                         JsonSchreiber& ergebnis);

/// Looks for the effective rate of a series that is not empty and appends the fields of the job `reihe`. A
/// derivation that cannot be shown is a fault.
void ReihenzinsSchreiben(std::span<const Reihensatz> reihe, Effektivmethode methode, JsonSchreiber& ergebnis);

/// The account, the three totals of its statement, and its yield if that was asked for.
struct Staffelergebnis {
    Konto konto{};
    Kontosummen summen{};
    std::optional<Kontoeffektivzins> effektivzins{};
};

/// Calculates `ergebnis.konto` and fills in the rest. Gives the refusal, if there is one. Faults of the
/// calculation are exceptions, also more rows than files can hold and numbers that are not finite.
[[nodiscard]] std::optional<Ablehnung> StaffelRechnen(Staffelergebnis& ergebnis,
                                                      std::optional<Effektivmethode> methode);

/// Appends the fields of a result to an open object. A derivation that cannot be shown is a fault.
void StaffelergebnisSchreiben(const Staffelergebnis& ergebnis, JsonSchreiber& schreiber);

}  // namespace zinfolio
