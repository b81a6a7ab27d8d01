#pragma once
// The four quick savings calculators: one design, a descriptor each.

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "kern/finmath/ratensparen.h"
#include "kern/grund/ablehnung.h"

namespace zinfolio {

enum class Kurzform { Form4b, Form5b, Form7b, Form8b };

/// The figures that a field stands for.
enum class Kurzgroesse { rate, jahre, tage, zins, kapital, endwert };
inline constexpr std::size_t kurzgroessen = 6;

/// The caption of its field, letter for letter.
[[nodiscard]] std::string_view Kurzbeschriftung(Kurzgroesse groesse);

/// A choice of option buttons: what the file holds for it, and its caption.
struct Kurzwahl {
    std::int16_t wert;
    std::string_view text;
};

/// The choice of that value, or nullptr.
[[nodiscard]] const Kurzwahl* KurzwahlSuchen(std::span<const Kurzwahl> liste, std::int16_t wert);

inline constexpr std::array<Kurzwahl, 6> kurzzahlweisen{{{12, "monatlich"},
                                                         {6, "alle 2 Monate"},
                                                         {4, "vierteljährlich"},
                                                         {3, "alle 4 Monate"},
                                                         {2, "halbjährlich"},
                                                         {1, "jährlich"}}};
inline constexpr std::array<Kurzwahl, 2> kurzzahlungsmodi{
    {{zahlungsmodus::sofort, "1. Zahlung sofort fällig"},
     {zahlungsmodus::nachIntervall, "1. Zahlung nach Ablauf 1. Zahlungsintervall fällig"}}};

/// What stands on a form: the texts of its fields, as typed or as shown, and its two choices.
struct Kurzeingabe {
    std::array<std::string, kurzgroessen> texte;
    /// Payments a year, one of `kurzzahlweisen`.
    std::int16_t m = 12;
    std::int16_t Zahlungsmodus = zahlungsmodus::sofort;

    [[nodiscard]] std::string& operator[](Kurzgroesse groesse) {
        return texte[static_cast<std::size_t>(groesse)];
    }
    [[nodiscard]] const std::string& operator[](Kurzgroesse groesse) const {
        return texte[static_cast<std::size_t>(groesse)];
    }

    friend bool operator==(const Kurzeingabe&, const Kurzeingabe&) = default;
};

/// A field of a form; the name is fixed.
struct Kurzfeld {
    Kurzgroesse groesse;
    std::string_view name;
    bool ergebnis = false;
};

/// What one form differs in from the others.
struct Kurzrechner {
    Kurzform form;
    /// "Form4b".
    std::string_view name;
    std::string_view titel;
    /// Its file in the working folder.
    std::string_view datei;
    /// All figures in the order of the form, results last.
    std::array<Kurzfeld, kurzgroessen> felder;
    /// The figures of the records 1 to 5; nothing where the form leaves one out. 6 is m, 7 the
    /// `Zahlungsmodus`.
    std::array<std::optional<Kurzgroesse>, 5> saetze;
    /// What is refused before the calculation; may be null.
    std::optional<Ablehnung> (*pruefen)(const Ratensparplan& plan);
    void (*rechnen)(Ratensparplan& plan);
};

/// In the order of `Kurzform`.
[[nodiscard]] std::span<const Kurzrechner> AlleKurzrechner();
[[nodiscard]] const Kurzrechner& KurzrechnerVon(Kurzform form);

/// "Berechnen": puts "0" into the empty fields of the input, calculates, and shows all figures by "###,0.00",
/// a yield with its percent sign. Gives the refusal, and an empty one where the calculation ends silently (a
/// text that is no number, an overflow, a search without end); results stay as they were then.
[[nodiscard]] std::optional<Ablehnung> KurzRechnen(const Kurzrechner& rechner, Kurzeingabe& eingabe);

}  // namespace zinfolio
