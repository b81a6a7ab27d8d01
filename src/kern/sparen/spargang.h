#pragma once
// The searches of the family.

#include <optional>

#include "kern/grund/ablehnung.h"
#include "kern/sparen/planversuche.h"
#include "kern/sparen/sparrechnung.h"

namespace zinfolio {

/// A checked plan under calculation. All members outlive it.
struct Spargang {
    const Sparform& form;
    const Sparplan& plan;
    Sparstand& stand;
    Sparergebnis& ergebnis;
    Planversuche& versuche;
};

/// Each search leaves the tables of its last pass and what it found in the result, or gives the refusal of a
/// search without a solution. All faults are exceptions.

/// The first savings rate, in cents, with which the plan reaches `Vwert`. The two bounds hold its trials
/// while the plan has a dynamisation.
[[nodiscard]] std::optional<Ablehnung> SparrateSuchen(Spargang& gang);

/// The initial capital, in cents, with which the plan reaches `Vwert`.
[[nodiscard]] std::optional<Ablehnung> AnfangskapitalSuchen(Spargang& gang);

/// The effective rate of the plan's payments, and from there the nominal rate at which the account ends at
/// `Vermendwert`.
[[nodiscard]] std::optional<Ablehnung> RenditeSuchen(Spargang& gang);

/// The date at which the account first reaches `Vwert`: by days, with a walk day by day where the target lies
/// inside the jump of a payment. A target out of reach ends somewhere without a word (wanted).
[[nodiscard]] std::optional<Ablehnung> AnspardauerSuchen(Spargang& gang);

}  // namespace zinfolio
