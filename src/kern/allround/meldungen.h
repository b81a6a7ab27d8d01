#pragma once
// The texts of the all-round calculator, word for word as form and batch command show them.

#include <string>
#include <string_view>

#include "kern/grund/ablehnung.h"
#include "kern/staffel/meldungen.h"

namespace zinfolio {

namespace meldung {
/// Where the effective rate of a series is asked for.
inline constexpr std::string_view erstDieZahlungen = "Es müssen erst die Zahlungen eingegeben werden.";
/// Where an analysis or a plan is.
inline constexpr std::string_view erstZahlungen = "Es müssen erst Zahlungen eingegeben werden.";
inline constexpr std::string_view keinPlanInEineRichtung =
    "Es gibt nur Ein- bzw. Auszahlungen. Daher existiert kein Tilgungsplan !";
inline constexpr std::string_view keinTilgungsplan =
    "Ein Tilgungsplan konnte rechnerisch nicht ermittelt werden.";
inline constexpr std::string_view reiheZuLang =
    "Die Zahlungsreihe ist zu lang. Prüfen Sie das Barwertdatum und die Zahlungstermine !";
}  // namespace meldung

/// The refusal of a series without payments.
[[nodiscard]] inline Ablehnung OhneZahlungen(std::string_view text) {
    return {std::string(text), "Begdatum", std::string(register_::zahlungen)};
}

/// What stands in the place of a date that does not exist.
inline constexpr std::string_view keinDatum = "Keine";

/// The rate in percent that a new form starts with.
inline constexpr std::string_view vorgabezins = "10";

}  // namespace zinfolio
