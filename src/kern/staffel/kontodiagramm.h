#pragma once
// The growth of an account as a chart: what was paid in, and that plus interest.

#include <span>
#include <string_view>
#include <variant>

#include "kern/bericht/diagramm.h"
#include "kern/grund/ablehnung.h"
#include "kern/staffel/staffelsatz.h"

namespace zinfolio {

/// What tells one calculator's chart of this kind from another's.
struct Kontodiagrammtexte {
    Einheitentitel einheiten;
    /// The names of the two series: the balance, and the running total of the payments.
    std::string_view kontostand;
    std::string_view zahlungen;
    /// Blanks around the year of a row's label.
    std::string_view vorJahr;
    std::string_view nachJahr;
};

inline constexpr Kontodiagrammtexte kontodiagrammtexte{
    .einheiten = {.millionen = "Zahlungen + Zinsen in Mio. €",
                  .tausend = "Zahlungen + Zinsen in Tausend €",
                  .einzeln = "Zahlungen + Zinsen in €"},
    .kontostand = "kumulierte Zahlungen + Zinsen",
    .zahlungen = "kumulierte Zahlungen",
    .vorJahr = " ",
    .nachJahr = "            ",
};

/// The chart of the rows with the numbers `zeilen` (from 0) of a calculated account, by what their cells in
/// the view "Kurzform" show: amounts are rounded to cents. The last balance alone decides the unit. Less than
/// two rows are a refusal. An amount that is no number is a `Zahlfehler`.
[[nodiscard]] std::variant<Diagramm, Ablehnung> Kontodiagramm(std::span<const Staffelsatz> loesung,
                                                              std::span<const std::size_t> zeilen,
                                                              const Kontodiagrammtexte& texte);

/// The same of the rows that "Kurzform" shows, for the account's own calculator.
[[nodiscard]] std::variant<Diagramm, Ablehnung> Kontodiagramm(std::span<const Staffelsatz> loesung);

}  // namespace zinfolio
