#pragma once
// A savings plan as its form holds it: the texts of the fields, the choices of lists and boxes.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace zinfolio {

/// The list `Combo1`, by index, and the months between two rates that its entries mean.
inline constexpr std::array<std::string_view, 5> zahlungsweisen{
    "Monatlich", "Alle 2 Monate", "Quartalsweise", "Halbjährlich", "Jährlich",
};
inline constexpr std::array<int, 5> zahlungsmonate{1, 2, 3, 6, 12};

/// Rows of the table of rate changes.
inline constexpr std::size_t zinstabellenzeilen = 40;

/// The units of a change in a plan whose one button tells it.
inline constexpr std::string_view einheitProzent = "%";
inline constexpr std::string_view einheitBetrag = "€";

/// All fields of the family by their control names; a form has those that its descriptor lists. Texts are as
/// typed. The defaults are those of a plan that nobody has filled in.
struct Sparplan {
    std::string AnfVermögen;
    std::string Anfdatum;
    std::string ratdatum1;
    std::string Betrag;
    std::string Enddatum;
    /// Percent per year.
    std::string Zins;
    std::string Vwert;
    std::string Vermendwert;
    /// Index of `zahlungsweisen`.
    std::int16_t Combo1 = 0;
    /// Index of `verzinsungsmethoden`.
    std::int16_t Combo2 = 0;
    /// Index of `zinsverrechnungsarten`.
    std::int16_t Combo4 = 5;
    /// Index of `effektivmethoden`.
    std::int16_t Combo5 = 3;
    /// Following payments on the last day of their month.
    std::int16_t Check1 = 0;
    /// Dynamisation of the payments.
    std::int16_t Check2 = 0;
    std::string Anzahl;
    std::string Delta;
    std::string Delta2;
    std::int16_t Check3 = 0;
    std::string DynAnz;
    std::int16_t Check4 = 0;
    std::string MaxSparrate;
    std::int16_t Check5 = 0;
    std::string MinSparrate;
    /// The unit of `Delta` where a button tells it.
    std::string Command6{einheitProzent};
    std::array<std::string, zinstabellenzeilen> ZinsWDAt;
    std::array<std::string, zinstabellenzeilen> Zinsbetrag;

    friend bool operator==(const Sparplan&, const Sparplan&) = default;
};

/// What a form keeps from one calculation to the next while it is open.
struct Sparstand {
    /// The initial capital that was found last; the plan that solves for it has no field of it.
    double kapital = 0;
    /// How far the last search for a rate stayed from its target. A plan whose yield is zero skips the search
    /// and is judged by it (wanted).
    double abweichung = 0;
};

/// Months between two rates.
[[nodiscard]] constexpr int Zahlungsmonate(const Sparplan& plan) {
    return zahlungsmonate.at(static_cast<std::size_t>(plan.Combo1));
}

}  // namespace zinfolio
