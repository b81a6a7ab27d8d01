#pragma once
// The search for an amount in whole cents at which a balance meets its target.

#include <functional>

namespace zinfolio {

/// A trial and how far the balance is from its target with it, currency.
struct Suchpunkt {
    double x = 0;
    double f = 0;
};

/// The two latest trials of a search, `neu` the newer.
struct Sekante {
    Suchpunkt alt;
    Suchpunkt neu;
};

/// The point at which the line through both trials meets zero. A `Rechenfehler` where they lie level, and
/// where the point is no finite number.
[[nodiscard]] double Sekantenschritt(const Sekante& sekante);

/// What the search needs of its plan.
struct Suchaufgabe {
    /// How far a trial is from the target.
    std::function<double(double x)> abweichung;
    /// Takes a trial back between its bounds; empty: there are none.
    std::function<double(double x)> begrenzen;
};

/// A search without a limit of its own ends after so many rounds, without a solution.
inline constexpr int hoechstzahlRunden = 100'000;

/// Steps from the two start trials until two deviations agree to a tenth of a cent, each trial rounded to
/// cents. Balances are rounded row by row, so that trials can run in a ring: when a pair of them comes again,
/// the member of the ring with the smallest deviation is the result, the first reached among equals. The
/// result of a search that ran out of rounds has a deviation that is no number.
[[nodiscard]] Suchpunkt CentsucheLaufen(const Suchaufgabe& aufgabe, Sekante sekante);

}  // namespace zinfolio
