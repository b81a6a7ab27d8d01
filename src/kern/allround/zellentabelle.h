#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "kern/bericht/tabelle.h"

namespace zinfolio {

/// A calculated table: headers and cell texts (UTF-8) as the user sees them. Charts and differences take the
/// numbers of these texts.
class Zellentabelle {
  public:
    Zellentabelle() = default;
    explicit Zellentabelle(std::vector<std::string> kopftexte) : koepfe(std::move(kopftexte)) {}

    [[nodiscard]] const std::vector<std::string>& Koepfe() const { return koepfe; }
    [[nodiscard]] std::size_t Spalten() const { return koepfe.size(); }
    [[nodiscard]] std::size_t Zeilen() const { return koepfe.empty() ? 0 : zellen.size() / koepfe.size(); }

    /// The cells of a row, counted from 0. Valid until the table changes.
    [[nodiscard]] std::span<const std::string> Zeile(std::size_t zeile) const {
        return std::span(zellen).subspan(zeile * Spalten(), Spalten());
    }
    [[nodiscard]] const std::string& Zelle(std::size_t zeile, std::size_t spalte) const {
        return Zeile(zeile)[spalte];
    }

    void Reservieren(std::size_t zeilen) { zellen.reserve(zeilen * Spalten()); }

    /// REQUIRES: N is the number of columns.
    template <std::size_t N>
    void Anhaengen(std::array<std::string, N>&& zeile) {
        for (std::string& zelle : zeile)
            zellen.push_back(std::move(zelle));
    }

    void Setzen(std::size_t zeile, std::size_t spalte, std::string text) {
        zellen[zeile * Spalten() + spalte] = std::move(text);
    }

    friend bool operator==(const Zellentabelle&, const Zellentabelle&) = default;

  private:
    std::vector<std::string> koepfe;
    std::vector<std::string> zellen;
};

/// The same for grid, report, CSV and text, which take its cells as they stand; `arten` by columns, from left
/// to right.
[[nodiscard]] Tabelleninhalt InhaltBilden(std::shared_ptr<const Zellentabelle> tabelle,
                                          std::span<const Zellart> arten);

}  // namespace zinfolio
