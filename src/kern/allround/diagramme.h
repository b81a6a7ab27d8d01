#pragma once
// The charts of the all-round calculator. They show the numbers of the tables' cells, thus whole cents.

#include <variant>

#include "kern/allround/planansicht.h"
#include "kern/allround/wertanalyse.h"
#include "kern/allround/zellentabelle.h"
#include "kern/bericht/diagramm.h"
#include "kern/grund/ablehnung.h"

namespace zinfolio {

/// Running payments and running value by the rows of an analysis. The unit goes by the payments of the last
/// row but one. Less than two rows are a refusal.
[[nodiscard]] std::variant<Diagramm, Ablehnung> Wertdiagramm(const Zellentabelle& tabelle, Wertart art);

/// Payments and value by the rates of a sensitivity table; the unit goes by the value of the last row.
[[nodiscard]] std::variant<Diagramm, Ablehnung> Sensitivitaetsdiagramm(const Zellentabelle& tabelle,
                                                                       Wertart art);

/// The balance of a plan in thousands. Rows of the view by year are labelled with day and month, "31.12",
/// those of all rows with the year (wanted). Less than two rows are a refusal.
[[nodiscard]] std::variant<Diagramm, Ablehnung> Plandiagramm(const Zellentabelle& tabelle,
                                                             Planansicht ansicht);

}  // namespace zinfolio
