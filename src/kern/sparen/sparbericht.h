#pragma once
// A calculated plan as the user sees it: tables, report, chart, and the text for the viewer.

#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "kern/bericht/bericht.h"
#include "kern/bericht/diagramm.h"
#include "kern/bericht/tabelle.h"
#include "kern/bericht/textbericht.h"
#include "kern/grund/ablehnung.h"
#include "kern/sparen/sparform.h"
#include "kern/staffel/kontoansicht.h"

namespace zinfolio {

/// What a plan's report shows; texts (UTF-8) as they stand on the form.
struct Sparberichtsdaten {
    const Sparform* form = nullptr;
    /// The name of the plan.
    std::string mandant{};
    Sparplan plan{};
    /// The initial capital that was found, where the form solves for it.
    double kapital = 0;
    /// The effective rate as its label shows it; nothing where the label is hidden.
    std::optional<std::string> ezins{};
    /// The nominal rate as its label shows it, where the form solves for it.
    std::string Nzins{};
    /// The calculated rows.
    std::shared_ptr<const std::vector<Staffelsatz>> loesung{};
    Kontoansicht ansicht = Kontoansicht::kurzform;
};

/// How a form's tables differ from those of the account.
[[nodiscard]] Ansichtsregel Sparansichtsregel(const Sparform& form);

/// A view of calculated rows as a table, which keeps them alive.
[[nodiscard]] Tabelleninhalt SparansichtBilden(const Sparform& form, Kontoansicht ansicht,
                                               std::shared_ptr<const std::vector<Staffelsatz>> loesung);

/// The lines of inputs and results at the head of a report.
[[nodiscard]] std::vector<std::string> Eingabeblock(const Sparberichtsdaten& daten);

/// The whole report: head page, and the table of the view. It keeps the calculated rows alive.
[[nodiscard]] Bericht SparberichtBilden(const Sparberichtsdaten& daten);

/// The same as plain text, with the rows of "Kurzform".
[[nodiscard]] Textbericht SpartextBilden(const Sparberichtsdaten& daten);

/// The growth of the plan: balance and payments, one point a row of "Kurzform". Less than two rows are a
/// refusal.
[[nodiscard]] std::variant<Diagramm, Ablehnung> Spardiagramm(const Sparform& form,
                                                             std::span<const Staffelsatz> loesung);

}  // namespace zinfolio
