#pragma once
// A payment series as an account: the nominal rate at which it ends at zero, and its statement.

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "kern/allround/meldungen.h"
#include "kern/allround/planzeilen.h"
#include "kern/dates/verzinsungsmethode.h"
#include "kern/finmath/reihensatz.h"
#include "kern/grund/suchbeobachter.h"
#include "kern/staffel/staffelsatz.h"

namespace zinfolio {

/// What a plan depends on besides its series.
struct Planeingabe {
    Plantermine Combo4 = Plantermine::monatsende;
    Verzinsungsmethode Combo6 = Verzinsungsmethode::deutsch;
};

/// A plan as far as it came; a file whose rows are not there stays as it was.
struct Tilgungsplan {
    /// `Lösungstableau5R`: condition, payments and settlements, calculated at the last rate tried.
    std::optional<std::vector<Staffelsatz>> Tableau;
    /// `Kurztableau5R`: a row for each calendar year, see `KurztableauBilden`.
    std::optional<std::vector<Staffelsatz>> Kurztableau;
    /// Percent per year; not rounded.
    double Nominalzins = 0;
    /// The rates as their fields show them, with their " %".
    std::string nomzins;
    std::string effzinssatz;
};

/// Finds the nominal rate and calculates the plan. Refuses an empty series, one without an effective rate by
/// PAngV2000, and a search that does not end. A fault (a date beyond the calendar, too many rows, equal
/// balances at the start of the search, an overflow) is an exception; what was finished by then stands in
/// `plan`. `beobachter` hears the rounds of the search.
[[nodiscard]] std::optional<Ablehnung> TilgungsplanRechnen(std::span<const Reihensatz> reihe,
                                                           const Planeingabe& eingabe, Tilgungsplan& plan,
                                                           const Suchbeobachter& beobachter = {});

/// The rows of a calculated plan by calendar year, in fields that mean something else there: `Satzdatum` of
/// the year's last row, `Zahlbetrag` what was paid in (positive), `Guthabenlinie` what was paid out,
/// `Kreditlinie` the balance, `Zinsgutschrift` the interest, `Kumulzins` the repayment (paid in less
/// interest).
[[nodiscard]] std::vector<Staffelsatz> KurztableauBilden(std::span<const Staffelsatz> tableau);

}  // namespace zinfolio
