#pragma once
// What the jobs of the all-round calculator, and the command beside them, share.

#include <vector>

#include "kern/allround/planzeilen.h"
#include "kern/allround/tilgungsplan.h"
#include "kern/allround/wertanalyse.h"
#include "kern/allround/zellentabelle.h"
#include "kern/staffel/staffelsatz.h"
#include "stapel/json/feldtafel.h"
#include "stapel/json/jsonschreiber.h"

namespace zinfolio {

/// The list `Zahlungen` of a job in the order that the calculator's tabs bring it into.
struct SortierteZahlungen {
    std::vector<Staffelsatz> saetze;
};

/// Each throws an `Auftragsfehler`.
void FeldLesen(JsonWert& wert, SortierteZahlungen& ziel);
/// 1 or 2.
void FeldLesen(JsonWert& wert, Wertart& ziel);
/// List index.
void FeldLesen(JsonWert& wert, Plantermine& ziel);

/// Throws a `Rechenfehler` for more payments than a file holds.
void LaengePruefen(const SortierteZahlungen& zahlungen);

/// Appends the cells of a table as a field: a list of rows, each a list of texts.
void TabelleSchreiben(std::string_view name, const Zellentabelle& tabelle, JsonSchreiber& ergebnis);

/// Appends the fields of a complete analysis to an open object.
void WertergebnisSchreiben(const Wertergebnis& werte, JsonSchreiber& ergebnis);

/// Appends the fields of a complete plan to an open object.
void PlanSchreiben(const Tilgungsplan& plan, JsonSchreiber& ergebnis);

}  // namespace zinfolio
