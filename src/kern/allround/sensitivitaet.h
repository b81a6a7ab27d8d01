#pragma once
// The valuation repeated for eleven rates around a middle one.

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "kern/allround/meldungen.h"
#include "kern/allround/wertanalyse.h"
#include "kern/allround/zellentabelle.h"
#include "kern/staffel/staffelsatz.h"

namespace zinfolio {

/// The steps between two rates, percent; the texts of the list are labels alone.
inline constexpr std::array<double, 7> zinsschritte{0.1, 0.5, 1, 2, 3, 4, 5};
inline constexpr std::array<std::string_view, 7> zinsschritttexte{"0.1", "0.5", "1.0", "2.0",
                                                                  "3.0", "4.0", "5.0"};
inline constexpr std::size_t sensitivitaetszeilen = 11;

/// The controls of the table, texts as typed, and what it borrows.
struct Sensitivitaetseingabe {
    Wertart Anzeigeart = Wertart::barwert;
    /// The middle rate in percent; empty: `Abzins` takes its place.
    std::string MiZins{};
    /// Index of the step.
    std::size_t Combo2 = 2;
    std::string Abzins{vorgabezins};
    /// `Wertergebnis::Vorwert` of the last analysis that had one; 0 where none ran.
    double Vorwert = 0;
};

/// Fills `tabelle` with the eleven rows: rate, sum of payments, cumulated value, static date, interpolated
/// dynamic date, years and days from the first payment to that date. The first rate is no less than 0.
///
/// It is no repetition of `WertAnalyse` (all wanted): the present value is that of the first payment; the sum
/// is rounded to cents at each payment; a static date stays where the sum falls below 0 again; the straight
/// line starts from the borrowed value, not from that of the row's own rate; a row without an interpolated
/// date repeats years and days of the row before it, and with two payments on the day of the turn the date
/// too.
///
/// Refuses an empty series. Throws for a row without a date, a date beyond the calendar and for numbers that
/// overflow; `tabelle` is untouched then.
[[nodiscard]] std::optional<Ablehnung> SensitivitaetRechnen(std::span<const Staffelsatz> zahlungen,
                                                            Sensitivitaetseingabe& eingabe,
                                                            Zellentabelle& tabelle);

}  // namespace zinfolio
