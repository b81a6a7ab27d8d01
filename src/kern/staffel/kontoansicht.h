#pragma once
// The statement as tables: four views over the same calculated rows. A view is data; grid, report and batch
// command show its cells as they come.

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "kern/bericht/tabelle.h"
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

/// What the column "Vorgang" shows for a payment.
enum class Zahlungsvorgang : std::uint8_t {
    /// Its trimmed text, or "Zahlung" where it has none.
    textOderZahlung,
    /// Its trimmed text, which may be empty.
    text,
    /// "Zahlung", whatever its text.
    zahlung,
};

/// What the calculators that show a statement do differently.
struct Ansichtsregel {
    Zahlungsvorgang vorgang = Zahlungsvorgang::textOderZahlung;
    /// `kurzform` shows the conditions too.
    bool konditionenInKurzform = false;
};

using Kontospalte = Spalte<Staffelsatz>;

/// The columns of a view from left to right.
[[nodiscard]] std::vector<Kontospalte> Ansichtsspalten(Kontoansicht ansicht, const Ansichtsregel& regel = {});

/// The numbers (from 0) of the rows that a view shows: all of them, but no conditions in `kurzform`.
[[nodiscard]] std::vector<std::size_t> Ansichtszeilen(Kontoansicht ansicht,
                                                      std::span<const Staffelsatz> loesung,
                                                      const Ansichtsregel& regel = {});

/// A view of calculated rows as a table, which keeps them alive. No rows: a table without any.
[[nodiscard]] Tabelleninhalt AnsichtBilden(Kontoansicht ansicht,
                                           std::shared_ptr<const std::vector<Staffelsatz>> loesung,
                                           const Ansichtsregel& regel = {});

/// Totals over the rows of `kurzform`, as labels, reports and results show them: amounts with two decimals.
struct Kontosummen {
    std::string Gesamtzahlungssumme{};
    /// The balance of the last row shown.
    std::string Endvermögen{};
    /// `Endvermögen` less `Gesamtzahlungssumme`.
    std::string Gesamtzinsen{};
};

[[nodiscard]] Kontosummen KontosummenBilden(std::span<const Staffelsatz> loesung,
                                            const Ansichtsregel& regel = {});

}  // namespace zinfolio
