#pragma once
// A table of one factor over a range of rates and years.

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "kern/bericht/tabelle.h"
#include "kern/grund/ablehnung.h"
#include "kern/tabellen/finanzfaktor.h"

namespace zinfolio {

/// List index of the step between two rates.
enum class Schrittweite { zehntel, zweiZehntel, dreiZehntel, vierZehntel, halb, ganz };

inline constexpr std::array<std::string_view, 6> schrittweiten{"0.1", "0.2", "0.3", "0.4", "0.5", "1.0"};

/// What is asked for: the factor, and the texts of the fields as typed.
struct Faktortabelleneingabe {
    Faktorwahl wahl;
    zinfolio::Schrittweite Schrittweite = Schrittweite::zehntel;
    /// First and last rate in percent per year.
    std::string Pro1;
    std::string Pro2;
    /// First and last year.
    std::string J1;
    std::string J2;

    friend bool operator==(const Faktortabelleneingabe&, const Faktortabelleneingabe&) = default;
};

/// The table as the grid shows it: its first row holds the rates, its first column the years.
class Faktortabelle {
  public:
    Faktortabelle() = default;

    [[nodiscard]] bool Leer() const { return werte_.empty(); }
    /// With the header row and the column of the years; 0 for an empty table.
    [[nodiscard]] std::size_t Zeilen() const { return Leer() ? 0 : jahre_.size() + 1; }
    [[nodiscard]] std::size_t Spalten() const { return Leer() ? 0 : saetze_.size() + 1; }
    /// The text of a cell, counted from 0.
    [[nodiscard]] std::string Zelle(std::size_t zeile, std::size_t spalte) const;
    /// Its number. REQUIRES: not the cell of the top left corner.
    [[nodiscard]] double Wert(std::size_t zeile, std::size_t spalte) const;

  private:
    friend std::optional<Ablehnung> FaktortabelleRechnen(const Faktortabelleneingabe& eingabe,
                                                         Faktortabelle& tabelle);

    std::vector<double> saetze_;
    std::vector<double> jahre_;
    /// Row by row.
    std::vector<double> werte_;
};

/// More values are no table that anyone reads; only negative years come there before the factors overflow.
inline constexpr std::size_t hoechstzahlFaktoren = std::size_t{1} << 23;

/// Checks the fields in their order, an empty one counts as 0, and fills the table; or gives the refusal and
/// leaves the table as it was. A field that holds no number, a factor that is no finite number a table
/// beyond 32767 rates or years, or beyond `hoechstzahlFaktoren`, are faults (`Zahlfehler`, `Rechenfehler`);
/// the table is as it was then, too.
[[nodiscard]] std::optional<Ablehnung> FaktortabelleRechnen(const Faktortabelleneingabe& eingabe,
                                                            Faktortabelle& tabelle);

/// The table for grid and report, which it keeps alive: the first row is the header, in reports with the
/// percent sign of its rates.
[[nodiscard]] Tabelleninhalt FaktortabelleZeigen(std::shared_ptr<const Faktortabelle> tabelle);

}  // namespace zinfolio
