#pragma once
// The kinds of jobs. Each calculation reads its fields, calls the core and writes its result fields.

#include <optional>
#include <span>
#include <string_view>

#include "kern/grund/ablehnung.h"
#include "stapel/json/jsonschreiber.h"
#include "stapel/json/jsonwert.h"

namespace zinfolio {

/// Reads the fields of `auftrag`, calculates, and appends the result's fields to the open object of
/// `ergebnis`. Gives the refusal, if the calculation refuses; what has been written is then dropped. Throws
/// `Auftragsfehler` where the job is not valid; any other exception is a fault of the calculation.
using Rechnung = std::optional<Ablehnung> (*)(JsonWert& auftrag, JsonSchreiber& ergebnis);

std::optional<Ablehnung> RechneTage(JsonWert& auftrag, JsonSchreiber& ergebnis);
std::optional<Ablehnung> RechnePeriodenzinsen(JsonWert& auftrag, JsonSchreiber& ergebnis);
std::optional<Ablehnung> RechneDatum(JsonWert& auftrag, JsonSchreiber& ergebnis);
std::optional<Ablehnung> RechneZahlformat(JsonWert& auftrag, JsonSchreiber& ergebnis);
std::optional<Ablehnung> RechneZahlungsreihe(JsonWert& auftrag, JsonSchreiber& ergebnis);
std::optional<Ablehnung> RechneZinstermine(JsonWert& auftrag, JsonSchreiber& ergebnis);
std::optional<Ablehnung> RechneStaffel(JsonWert& auftrag, JsonSchreiber& ergebnis);
std::optional<Ablehnung> RechneReihe(JsonWert& auftrag, JsonSchreiber& ergebnis);
std::optional<Ablehnung> RechneReihenwert(JsonWert& auftrag, JsonSchreiber& ergebnis);

/// A kind by its name in the field `rechnung`.
struct Rechnungsart {
    std::string_view name;
    Rechnung rechnen;
};

/// All kinds.
[[nodiscard]] std::span<const Rechnungsart> Rechnungsarten();

}  // namespace zinfolio
