#pragma once
// The present value of what is still to come at each year's end.

#include <cstddef>
#include <optional>
#include <span>
#include <string>

#include "kern/allround/meldungen.h"
#include "kern/allround/zellentabelle.h"
#include "kern/staffel/staffelsatz.h"

namespace zinfolio {

/// The controls of the table, texts as typed.
struct Jahreswerteingabe {
    /// The rate in percent. Empty: "0" takes its place, not the default rate (wanted).
    std::string Abzins2;
    std::string BarwDatum;
};

/// More year ends than that are refused.
inline constexpr std::size_t hoechstzahlJahreswerte = 310;

/// Fills `tabelle` with a row for each year's end, from the one on or before `BarwDatum` to that of the last
/// payment's year: date; value of all later payments; their sum; payments of the year; change of the value;
/// interest of the year. The last three are differences of the cents that the other cells show (wanted).
/// Refuses an empty series, and more than `hoechstzahlJahreswerte` rows: `tabelle` then holds these without
/// the differences. Throws for a row or field without a date and for numbers that overflow.
[[nodiscard]] std::optional<Ablehnung> Jahreswerttabelle(std::span<const Staffelsatz> zahlungen,
                                                         Jahreswerteingabe& eingabe, Zellentabelle& tabelle);

}  // namespace zinfolio
