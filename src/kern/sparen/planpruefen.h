#pragma once

#include <optional>
#include <string_view>

#include "kern/grund/ablehnung.h"
#include "kern/sparen/sparplan.h"

namespace zinfolio {

struct Sparform;

/// One check of a plan: what it refuses, the words, and the control that gets the focus.
struct Planpruefung {
    bool (*verletzt)(const Sparplan& plan, double kapital);
    std::string_view meldung;
    std::string_view feld;
};

/// Validates a plan before a calculation: fills empty numbers with "0", moves `Anfdatum` to `ratdatum1` where
/// there is no initial capital, and runs the form's checks in their order up to the first that refuses. A
/// field is read as a number or date where its check stands; a text that is none is a `Zahlfehler` or
/// `Datumsfehler`. `plan` keeps what has been filled in.
[[nodiscard]] std::optional<Ablehnung> PlanPruefen(const Sparform& form, Sparplan& plan,
                                                   const Sparstand& stand);

/// The checks that the forms choose from.
namespace planpruefung {
extern const Planpruefung anfangsdatum;
extern const Planpruefung enddatum;
extern const Planpruefung zins;
extern const Planpruefung vermoegensendwert;
extern const Planpruefung endvermoegen;
extern const Planpruefung sparrateNachAnfang;
extern const Planpruefung endeNachAnfang;
extern const Planpruefung hoechstens150Jahre;
/// Target and initial capital of the plan, or of the search for the capital.
extern const Planpruefung differenz;
extern const Planpruefung differenzZumKapital;
extern const Planpruefung anzahl;
extern const Planpruefung stufen;
extern const Planpruefung maximum;
extern const Planpruefung minimum;
extern const Planpruefung zielNichtKleiner;
}  // namespace planpruefung

}  // namespace zinfolio
