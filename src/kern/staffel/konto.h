#pragma once
// One account from input to statement: the operation that form and batch command share.

#include <optional>
#include <string>
#include <vector>

#include "kern/dates/verzinsungsmethode.h"
#include "kern/grund/ablehnung.h"
#include "kern/staffel/kontoeinstellungen.h"
#include "kern/staffel/staffelsatz.h"

namespace zinfolio {

/// How far a calculation came: which of the tables it has rebuilt.
enum class Kontostufe { eingabe, termine, gemischt, gerechnet };

/// The account's tables, each the content of the working file of its name, and its settings.
struct Konto {
    /// `Zinsstaffel1`
    std::vector<Staffelsatz> zahlungen;
    /// `ZinsstaffelZins`
    std::vector<Staffelsatz> konditionen;
    /// `Zinsverrechnungstermine`
    std::vector<Staffelsatz> termine;
    /// `Lösungsdatei`
    std::vector<Staffelsatz> loesung;
    Kontoeinstellungen einstellungen;
    Kontostufe stufe = Kontostufe::eingabe;
};

/// Sorts payments and conditions, checks them, builds the settlement calendar, merges, checks again and
/// calculates. A refusal leaves no calculated rows. Run-time faults are exceptions; what was finished by then
/// stands in `konto`.
[[nodiscard]] std::optional<Ablehnung> KontoRechnen(Konto& konto);

/// The input checks before a calculation, in their order: closing date, payments, conditions.
[[nodiscard]] std::optional<Ablehnung> rechenok2(const Konto& konto);

/// The checks of the merged rows: a closing date before all else, a first row that is no condition.
[[nodiscard]] std::optional<Ablehnung> rechnenok(const std::vector<Staffelsatz>& loesung);

}  // namespace zinfolio
