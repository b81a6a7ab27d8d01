#pragma once
// One savings plan from its fields to its result: the operation that forms and batch command share.

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "kern/finmath/effektivmethode.h"
#include "kern/finmath/reihensatz.h"
#include "kern/grund/ablehnung.h"
#include "kern/grund/suchbeobachter.h"
#include "kern/sparen/planlauf.h"
#include "kern/staffel/kontoansicht.h"

namespace zinfolio {

/// What a calculation shows and leaves behind. After a fault, and after a refusal on its way, it holds the
/// tables that were reached.
struct Sparergebnis {
    Sparlauf lauf;
    /// `Lösungszahlungsreihe`, where the calculation wrote it.
    std::optional<std::vector<Reihensatz>> Lösungszahlungsreihe;
    Kontosummen summen;
    /// The effective rate as its label shows it; empty where there is none, or none was calculated.
    std::string ezins;
    /// The nominal rate as its label shows it, where the form solves for it.
    std::string Nzins;
    /// What the form solves for: currency, or percent per year; nothing where it is a date.
    double loesung = 0;
    /// The end date, where the form solves for it.
    std::string Enddatum;
    /// Passes through the account.
    std::size_t durchlaeufe = 0;
};

/// Checks the plan, calculates it and solves for what its form asks. Gives the refusal, where there is one.
/// `plan` keeps what the checks fill in and sort; `stand` is what the form keeps for its next calculation.
/// Faults are exceptions.
[[nodiscard]] std::optional<Ablehnung> SparplanRechnen(const Sparform& form, Sparplan& plan, Sparstand& stand,
                                                       Sparergebnis& ergebnis,
                                                       const Suchbeobachter& beobachter = {});

/// The effective rate of a calculated plan by the method of its list, into `ezins` and the series.
void EffzinsRechnen(const Sparplan& plan, Sparergebnis& ergebnis);

}  // namespace zinfolio
