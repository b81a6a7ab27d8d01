#pragma once

#include <span>
#include <string>
#include <vector>

#include "kern/finmath/reiheauswerten.h"
#include "kern/staffel/staffelsatz.h"

namespace zinfolio {

/// The effective rate of a calculated account, and what its working files hold afterwards.
/// `HerleitungstabelleBilden` makes the table of it.
struct Kontoeffektivzins {
    std::vector<Reihensatz> Lösungszahlungsreihe;
    /// The rate's text; empty where there is no rate.
    std::string Effektivergebnis;
    /// The same as the form shows it.
    std::string ezins;
    /// The series valued at the number of `Effektivergebnis`, with tables; at 0 where there is no rate.
    Reihenauswertung bewertung;

    /// The rows of the derivation, up to a fault. Valid as long as this object.
    [[nodiscard]] std::span<const Ergebnissatz> Herleitung() const;
};

/// Turns the account's rows into a series and looks for its rate. Never fails: an account without a rate has
/// an empty `Effektivergebnis`, and no reason is kept (wanted).
[[nodiscard]] Kontoeffektivzins KontoEffektivzinsRechnen(std::span<const Staffelsatz> loesung,
                                                         Effektivmethode methode);

}  // namespace zinfolio
