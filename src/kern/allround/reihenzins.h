#pragma once
// The effective rate of a payment series by a method of the user's, and how it carries each payment to the
// end.

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "kern/finmath/reiheauswerten.h"

namespace zinfolio {

/// What the search came to. Without a rate there is no table, and what showed the last one keeps it.
struct Reihenzins {
    Effektivmethode methode = Effektivmethode::pangv2000;
    /// The rate with five decimals and no zero before the comma; empty: there is none.
    std::string Effektivergebnis;
    /// The same as its field shows it.
    std::string Effzins;
    /// Why there is none, without blanks at either end.
    std::string Meld;
    /// Where there is a rate: the series valued at the number of its text, with tables.
    Reihenauswertung bewertung;
};

/// Never throws for a series without a rate.
[[nodiscard]] Reihenzins EffektivzinsRechnen(std::span<const Reihensatz> reihe, Effektivmethode methode);

/// The rows of the table, up to a fault while valuing.
[[nodiscard]] std::shared_ptr<const std::vector<Ergebnissatz>> Endwertzeilen(const Reihenzins& zins);

}  // namespace zinfolio
