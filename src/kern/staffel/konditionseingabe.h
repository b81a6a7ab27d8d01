#pragma once
// The entry of interest conditions.

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "kern/grund/ablehnung.h"
#include "kern/staffel/staffelsatz.h"

namespace zinfolio {

/// The entry controls as they stand, texts as typed.
struct Konditionseingabe {
    std::string Gültigdatum;
    std::string Gutzins1;
    std::string Gutzins2;
    std::string Guthabenlinie;
    std::string Kreditzins1;
    std::string Kreditzins2;
    std::string Kreditlinie;
    /// 1: "Für den Gesamtkontostand", 2: "Nur für den das Limit überschreitenden Betrag"
    std::int16_t Zweitzinsart = 1;

    friend bool operator==(const Konditionseingabe&, const Konditionseingabe&) = default;
};

/// Whether the check looks for another row of the same date: for a new row, not for a changed one.
enum class Doppelpruefung { aus, an };

/// Outcome of the check: a refusal or a warning to show (its `Feld` gets the focus), and whether the entry
/// counts as accepted from now on.
struct Konditionspruefung {
    std::optional<Ablehnung> hinweis;
    bool angenommen = false;

    /// A warning names no field that would have to be entered anew.
    [[nodiscard]] bool IstWarnung() const { return hinweis && hinweis->Feld.empty(); }
};

/// True where a rate text is above 999 % and is therefore emptied.
[[nodiscard]] bool ZinssatzZuGross(std::string_view text);

/// Fills the empty fields with "0" and checks the entry against the rows that exist. A refusal clears the
/// acceptance, a clean pass sets it, and a warning leaves it as it was: so an entry with a warning that
/// follows a refusal is not stored (wanted). A field that is no number is a `Zahlfehler`.
[[nodiscard]] Konditionspruefung KonditionPruefen(Konditionseingabe& eingabe,
                                                  std::span<const Staffelsatz> vorhandene,
                                                  Doppelpruefung doppelt, bool angenommenBisher);

/// The row of a checked entry.
[[nodiscard]] Staffelsatz KonditionErzeugen(const Konditionseingabe& eingabe);

/// The entry that shows a row again; a `Zweitzinsart` of 0 comes back as 1.
[[nodiscard]] Konditionseingabe KonditionZurEingabe(const Staffelsatz& satz);

}  // namespace zinfolio
