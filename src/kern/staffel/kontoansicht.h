#pragma once
// The statement as tables: four views over the same calculated rows. A view is data; grid, report and batch
// command show its cells as they come.

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "kern/staffel/staffelsatz.h"

namespace zinfolio {

/// The numbers are the list indexes.
enum class Kontoansicht { kurzform = 0, detailansicht1 = 1, detailansicht2 = 2, detailansicht3 = 3 };

/// The texts of the list, by index.
inline constexpr std::array<std::string_view, 4> kontoansichten{
    "Kurzform",
    "Detailansicht 1",
    "Detailansicht 2",
    "Detailansicht 3",
};

/// One column: its header, and the text that the user sees in it for a row (UTF-8).
struct Ansichtsspalte {
    std::string_view kopf;
    std::string (*zelle)(const Staffelsatz& satz);
};

/// The columns of a view from left to right.
[[nodiscard]] std::span<const Ansichtsspalte> Ansichtsspalten(Kontoansicht ansicht);

/// The numbers (from 0) of the rows that a view shows: all of them, but no conditions in `kurzform`.
[[nodiscard]] std::vector<std::size_t> Ansichtszeilen(Kontoansicht ansicht,
                                                      std::span<const Staffelsatz> loesung);

/// Totals over the rows of `kurzform`, as labels, reports and results show them: amounts with two decimals.
struct Kontosummen {
    std::string Gesamtzahlungssumme{};
    /// The balance of the last row shown.
    std::string Endvermögen{};
    /// `Endvermögen` less `Gesamtzahlungssumme`.
    std::string Gesamtzinsen{};
};

[[nodiscard]] Kontosummen KontosummenBilden(std::span<const Staffelsatz> loesung);

}  // namespace zinfolio
