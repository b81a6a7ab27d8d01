#pragma once
// The entry of payments: single ones, regular series, and series that step up or down by stages.

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "kern/grund/ablehnung.h"
#include "kern/staffel/staffelsatz.h"

namespace zinfolio {

/// The unit of the spacing between payments. The numbers are the list indexes.
enum class Abstandseinheit { tage = 0, monate = 1, jahre = 2 };

inline constexpr std::array<std::string_view, 3> abstandseinheiten{"Tagen", "Monaten", "Jahre"};

/// The unit of the change per stage.
enum class Deltaeinheit { prozent, betrag };

/// The entry controls as they stand: texts as typed, boxes and lists by their choice.
struct Zahlungseingabe {
    std::string Begdatum{};
    std::string Betrag{};
    std::string Beschreibung{};
    std::string Ratzahl = "1";
    std::string Abstand = "1";
    std::string Stufen{};
    std::string Delta{};
    /// unit of `Abstand`
    Abstandseinheit Combo5 = Abstandseinheit::monate;
    /// stages on
    bool Check1 = false;
    /// following payments on the last day of their month
    bool Check2 = false;
    /// unit of `Delta`
    Deltaeinheit Command1 = Deltaeinheit::prozent;

    friend bool operator==(const Zahlungseingabe&, const Zahlungseingabe&) = default;
};

/// Whether a payment may have an amount of 0.
enum class Nullbetrag { abgelehnt, erlaubt };

/// Fills the empty fields with their defaults and checks: stages without their number, no date, no amount. A
/// `Betrag` that is no number is a `Zahlfehler`.
[[nodiscard]] std::optional<Ablehnung> ZahlungseingabePruefen(Zahlungseingabe& eingabe,
                                                              Nullbetrag nullbetrag = Nullbetrag::abgelehnt);

/// True where the entry makes a series, which is shown before it is taken over.
[[nodiscard]] bool IstZahlungsreihe(const Zahlungseingabe& eingabe);

/// Appends the payments of a checked entry to `ziel`. Monthly payments keep the day of the first one as far
/// as a month has it: 31.01., 28.02., 31.03. A stage's amount is rounded to cents and the next stage builds
/// on it. Faults (a number that is none, a date beyond the calendar, more than 32 767 rows in `ziel`) leave
/// the rows so far.
void ZahlungenErzeugen(const Zahlungseingabe& eingabe, std::vector<Staffelsatz>& ziel);

/// The estimated date of the series' last payment, "" where the fields do not tell one; the day of the first
/// payment is not restored after a short month (wanted). A number that is none, or a date beyond the
/// calendar, is a fault.
[[nodiscard]] std::string Datumrech(const Zahlungseingabe& eingabe);

/// True where `begdatum` is the last day of a month other than the 31st: then the month-end rule is offered.
[[nodiscard]] bool MonatsendeAngeboten(std::string_view begdatum);

}  // namespace zinfolio
