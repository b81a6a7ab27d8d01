#pragma once
// How the value of a field is read, by the type of the member that it fills. Each throws an `Auftragsfehler`
// where the value is of another kind or out of range.

#include <cstdint>
#include <string>
#include <string_view>

#include "kern/dates/datum.h"
#include "stapel/json/jsonwert.h"

namespace zinfolio {

/// A real date that stays text on its way into a record. The view lives as long as the job's text.
struct Datumstext {
    std::string_view text;
};

/// The date of a text that `wert` has given; throws where it is none.
Datum DatumVerlangen(const JsonWert& wert, std::string_view text);

void FeldLesen(JsonWert& wert, double& ziel);
/// A number that is rounded to a 4-byte float; one beyond that type's range is refused.
void FeldLesen(JsonWert& wert, float& ziel);
/// The range of the 2-byte type.
void FeldLesen(JsonWert& wert, std::int16_t& ziel);
/// 0 or 1, as check boxes are told.
void FeldLesen(JsonWert& wert, bool& ziel);
void FeldLesen(JsonWert& wert, std::string& ziel);
/// The view lives as long as the job's text.
void FeldLesen(JsonWert& wert, std::string_view& ziel);
void FeldLesen(JsonWert& wert, Datum& ziel);
void FeldLesen(JsonWert& wert, Datumstext& ziel);

}  // namespace zinfolio
