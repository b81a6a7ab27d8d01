#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "kern/finmath/effektivmethode.h"
#include "kern/finmath/reihensatz.h"

namespace zinfolio {

namespace meldung {
/// The blank in front is part of the text.
inline constexpr std::string_view keinVorzeichenwechsel =
    " Es gibt nur Ein- bzw. nur Auszahlungen. Ein Effektivzinssatz existiert nicht !";
/// After any fault while valuing, also where no rate was sought; and where a search ends far from zero.
inline constexpr std::string_view keinEffektivzinssatz = "Es wurde kein Effektivzinssatz gefunden.";
}  // namespace meldung

/// What valuing a series yields; what was not asked for, or not reached before a fault, is empty.
struct Reihenauswertung {
    /// Terminal value at the last date and present value at the first one, currency, unrounded.
    std::optional<double> Endwert;
    std::optional<double> Barwert;
    /// Percent per year, unrounded.
    std::optional<double> Zinssatz;
    /// `Zinssatz` with five decimals and no zero before the comma: ",50000".
    std::string Effektivzins;
    /// The dates of the first and the last row.
    std::string Bardatum;
    std::string Enddatum;
    /// Why there is no result; empty where there is one.
    std::string Meldung;
    /// The tables, up to the row before a fault; no value where the file of that name stays as it was.
    std::optional<std::vector<Ergebnissatz>> Vendwertberechnung;
    std::optional<std::vector<Ergebnissatz>> Barwertberechnung;
};

/// Whether `Vendwertberechnung` and `Barwertberechnung` are wanted.
enum class Tabellen { keine, schreiben };

/// The effective rate: the rate per year at which the present value of the series is zero. Refuses a series
/// without a change of sign before it searches. Never throws for bad rows or numbers: they end in
/// `keinEffektivzinssatz`.
[[nodiscard]] Reihenauswertung ReiheAuswerten(std::span<const Reihensatz> reihe, Effektivmethode methode);

/// Terminal and present value at a rate in percent per year. Faults end likewise, with the same words, though
/// no rate was sought.
[[nodiscard]] Reihenauswertung ReiheAuswerten(std::span<const Reihensatz> reihe, Effektivmethode methode,
                                              double zinssatz, Tabellen tabellen);

}  // namespace zinfolio
