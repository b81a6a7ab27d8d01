#pragma once
// Present and terminal value of a series at a rate of the user's, and when its sums pay back.

#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "kern/allround/meldungen.h"
#include "kern/allround/zellentabelle.h"
#include "kern/dates/datum.h"
#include "kern/staffel/staffelsatz.h"

namespace zinfolio {

/// What an analysis values. The numbers are those of `Anzeigeart`.
enum class Wertart : std::int16_t { barwert = 1, endwert = 2 };

/// The controls of an analysis, texts as typed.
struct Werteingabe {
    Wertart Anzeigeart = Wertart::barwert;
    /// The rate in percent; empty: `Abzins` takes its place.
    std::string Abzins2{};
    /// Of less than two characters: the date of the first payment takes its place.
    std::string BarwDatum{};
    std::string Abzins{vorgabezins};
};

/// What the labels beside the table say.
struct Wertaussagen {
    std::string StatAmor;
    std::string DynAmor;
    /// The verdict: whether the value ends at 0 or above.
    std::string Label12;
    /// The name of the value, and the value.
    std::string Label13;
    std::string Label14;

    friend bool operator==(const Wertaussagen&, const Wertaussagen&) = default;
};

/// What an analysis came to. A fault leaves what was finished before it.
struct Wertergebnis {
    /// `Grid3`: date, payment, running sum, years, days, factor, value, running value.
    Zellentabelle Tabelle;
    /// Whether amortisation is shown: a present value must refer to the first payment for that.
    bool Frame1 = true;
    std::optional<Wertaussagen> Aussagen;
    /// No value: the label keeps what it showed before (wanted: two payments on the day of the turn).
    std::optional<std::string> Dynamorinterpoliert;
    /// The row of the dynamic amortisation, counted from 1, where the table colours one.
    std::size_t Farbzeile = 0;
    /// The cumulated value of the row before that one, by its cell; the form keeps the last one there was.
    std::optional<double> Vorwert;
};

/// Values the payments in the order given, and fills empty fields of `eingabe` as the form does. Years of 360
/// days, compounded by whole years and simple within a year. Payments before `BarwDatum` count for nothing in
/// a present value. Refuses an empty series. Throws for a row or field without a date and for numbers that
/// overflow.
[[nodiscard]] std::optional<Ablehnung> WertAnalyse(std::span<const Staffelsatz> zahlungen,
                                                   Werteingabe& eingabe, Wertergebnis& ergebnis);

/// The date so many days later, rounded to a whole day; beyond the calendar a `Datumsfehler`.
[[nodiscard]] Datum PlusGerundeteTage(const Datum& datum, double tage);

}  // namespace zinfolio
