#pragma once
// The kinds of jobs. A kind is one file `rechnung_NAME.cpp`: the type of its fields, their table, the
// calculation, and the `Rechnungsart` that ties them together under a name. It is entered here, in the list
// below.

#include <array>
#include <optional>
#include <string_view>

#include "kern/grund/ablehnung.h"
#include "stapel/json/feldtafel.h"
#include "stapel/json/jsonschreiber.h"

namespace zinfolio {

/// Reads the fields of `auftrag`, calculates, and appends the result's fields to the open object of
/// `ergebnis`. Gives the refusal, if the calculation refuses; what has been written is then dropped. Throws
/// `Auftragsfehler` where the job is not valid; any other exception is a fault of the calculation.
using Rechnung = std::optional<Ablehnung> (*)(JsonWert& auftrag, JsonSchreiber& ergebnis);

/// A kind by its name in the field `rechnung`.
struct Rechnungsart {
    std::string_view name;
    Rechnung rechnen;
    /// The tab that the form selects after a fault; empty: it stays where it is.
    std::string_view fehlerregister{};
};

/// A kind whose job is read by the table `felder` and handed to `rechne(auftrag, ergebnis)`.
template <const auto& felder, auto rechne>
[[nodiscard]] constexpr Rechnungsart Auftragsart(std::string_view name,
                                                 std::string_view fehlerregister = {}) {
    return {name,
            [](JsonWert& auftrag, JsonSchreiber& ergebnis) -> std::optional<Ablehnung> {
                return rechne(AuftragLesen(auftrag, felder), ergebnis);
            },
            fehlerregister};
}

extern const Rechnungsart rechnungDatum;
extern const Rechnungsart rechnungFaktor;
extern const Rechnungsart rechnungFaktortabelle;
extern const Rechnungsart rechnungJahreswerte;
extern const Rechnungsart rechnungKurz;
extern const Rechnungsart rechnungPeriodenzinsen;
extern const Rechnungsart rechnungReihe;
extern const Rechnungsart rechnungReihenwert;
extern const Rechnungsart rechnungSensitivitaet;
extern const Rechnungsart rechnungSparen;
extern const Rechnungsart rechnungStaffel;
extern const Rechnungsart rechnungTage;
extern const Rechnungsart rechnungTilgungsplan;
extern const Rechnungsart rechnungWertanalyse;
extern const Rechnungsart rechnungZahlformat;
extern const Rechnungsart rechnungZahlungsreihe;
extern const Rechnungsart rechnungZinstermine;

/// All kinds, the most frequent first.
inline constexpr std::array rechnungsarten{
    &rechnungStaffel,        &rechnungReihe,         &rechnungReihenwert,   &rechnungTage,
    &rechnungPeriodenzinsen, &rechnungDatum,         &rechnungZahlformat,   &rechnungZahlungsreihe,
    &rechnungZinstermine,    &rechnungWertanalyse,   &rechnungTilgungsplan, &rechnungSensitivitaet,
    &rechnungJahreswerte,    &rechnungFaktortabelle, &rechnungFaktor,       &rechnungKurz,
    &rechnungSparen,
};

}  // namespace zinfolio
