#pragma once
// One factor, applied to one amount and explained in a sentence.

#include <optional>
#include <string>

#include "kern/grund/ablehnung.h"
#include "kern/tabellen/finanzfaktor.h"

namespace zinfolio {

/// What is asked for: the factor, and the texts of the fields as typed.
struct Einzelfaktoreingabe {
    Faktorwahl wahl;
    /// Percent per year.
    std::string Zins2;
    std::string Jahre2;
    std::string Betrag2;

    friend bool operator==(const Einzelfaktoreingabe&, const Einzelfaktoreingabe&) = default;
};

/// The texts that the user sees.
struct Einzelfaktor {
    std::string Ergebnis;
    std::string Erklärung3;

    friend bool operator==(const Einzelfaktor&, const Einzelfaktor&) = default;
};

/// Checks the fields in their order, an empty one counts as 0, and calculates; or gives the refusal and
/// leaves the result as it was. A field that holds no number (`Zahlfehler`) and a result that is no finite
/// number
/// (`Rechenfehler`) are faults.
[[nodiscard]] std::optional<Ablehnung> EinzelfaktorRechnen(const Einzelfaktoreingabe& eingabe,
                                                           Einzelfaktor& ergebnis);

}  // namespace zinfolio
