#pragma once
// A table told once: its columns are data, and grid, report, CSV and text show their cells as they come.

#include <cmath>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "kern/bericht/bericht.h"
#include "kern/dates/datum.h"
#include "kern/dates/zahl.h"

namespace zinfolio {

/// What a column holds. Text output puts numbers on the right, dates and words on the left.
enum class Zellart { zahl, datum, text };

/// How the cells of a column lie in a grid.
enum class Zellausrichtung { rechts, links };

/// The content of a cell for programs that calculate with it; a cell that holds neither date nor number is
/// the text that the user sees.
using Zellwert = std::variant<std::string, double, Datum>;

/// A column of a table with rows of one type.
template <class Zeile>
struct Spalte {
    std::string_view kopf;
    /// The text that the user sees in the column for a row (UTF-8).
    std::string (*zelle)(const Zeile& zeile);
    Zellart art = Zellart::zahl;
    /// The number of the cell, where it holds one.
    double (*zahl)(const Zeile& zeile) = nullptr;
    /// The header in reports, where it is another one.
    std::string_view berichtskopf = {};
    Zellausrichtung ausrichtung = Zellausrichtung::rechts;
};

/// The same column without the type of its rows.
struct Tabellenspalte {
    std::string kopf;
    Zellart art = Zellart::zahl;
    /// The header in reports; empty: the same.
    std::string berichtskopf = {};
    Zellausrichtung ausrichtung = Zellausrichtung::rechts;

    friend bool operator==(const Tabellenspalte&, const Tabellenspalte&) = default;
};

/// Stands in a cell whose number is damaged.
inline constexpr std::string_view keineZahl = "?";

/// A table as data. Rows and columns are counted from 0. Cells are asked for when they are needed, in any
/// order and more than once, so that thirty thousand rows cost nothing; the functions own what they read.
struct Tabelleninhalt {
    std::vector<Tabellenspalte> spalten;
    std::size_t zeilen = 0;
    std::function<std::string(std::size_t zeile, std::size_t spalte)> zelle;
    /// The number of a cell, where it has one; may be empty.
    std::function<std::optional<double>(std::size_t zeile, std::size_t spalte)> zahl = {};
    /// The whole row as one line, for screen readers; may be empty.
    std::function<std::string(std::size_t zeile)> zeilentext = {};
    /// The row that stands out by its colour.
    std::optional<std::size_t> hervorgehoben = std::nullopt;
    /// So many of the first columns stay in sight where a grid scrolls sideways.
    std::size_t festeSpalten = 0;

    [[nodiscard]] Zellwert Wert(std::size_t zeile, std::size_t spalte) const;
};

template <class Zeile>
Tabellenspalte OhneZeilentyp(const Spalte<Zeile>& spalte) {
    return {.kopf = std::string(spalte.kopf),
            .art = spalte.art,
            .berichtskopf = std::string(spalte.berichtskopf),
            .ausrichtung = spalte.ausrichtung};
}

/// The text of a cell; `keineZahl` where its number is none, so that a damaged record can still be looked at.
template <class Zeile>
std::string Zelltext(const Spalte<Zeile>& spalte, const Zeile& zeile) {
    if (spalte.zahl && !std::isfinite(spalte.zahl(zeile))) return std::string(keineZahl);
    try {
        return spalte.zelle(zeile);
    } catch (const Zahlfehler&) {
        return std::string(keineZahl);
    }
}

/// The table of some rows, in the order of `gezeigt`: numbers of rows in `*zeilen`.
template <class Zeile>
Tabelleninhalt TabelleBilden(std::vector<Spalte<Zeile>> spalten,
                             std::shared_ptr<const std::vector<Zeile>> zeilen,
                             std::vector<std::size_t> gezeigt) {
    struct Quelle {
        std::vector<Spalte<Zeile>> spalten;
        std::shared_ptr<const std::vector<Zeile>> zeilen;
        std::vector<std::size_t> gezeigt;
    };
    Tabelleninhalt inhalt;
    for (const Spalte<Zeile>& spalte : spalten)
        inhalt.spalten.push_back(OhneZeilentyp(spalte));
    inhalt.zeilen = gezeigt.size();
    const auto quelle =
        std::make_shared<const Quelle>(Quelle{std::move(spalten), std::move(zeilen), std::move(gezeigt)});
    inhalt.zelle = [quelle](std::size_t zeile, std::size_t spalte) {
        return Zelltext(quelle->spalten[spalte], (*quelle->zeilen)[quelle->gezeigt[zeile]]);
    };
    inhalt.zahl = [quelle](std::size_t zeile, std::size_t spalte) -> std::optional<double> {
        const auto zahl = quelle->spalten[spalte].zahl;
        if (!zahl) return std::nullopt;
        return zahl((*quelle->zeilen)[quelle->gezeigt[zeile]]);
    };
    return inhalt;
}

/// The table of all rows.
template <class Zeile>
Tabelleninhalt TabelleBilden(std::vector<Spalte<Zeile>> spalten,
                             std::shared_ptr<const std::vector<Zeile>> zeilen) {
    std::vector<std::size_t> gezeigt(zeilen->size());
    for (std::size_t i = 0; i < gezeigt.size(); ++i)
        gezeigt[i] = i;
    return TabelleBilden(std::move(spalten), std::move(zeilen), std::move(gezeigt));
}

/// A table whose cells are texts already. A row may be shorter than the columns: what it lacks is empty.
[[nodiscard]] Tabelleninhalt TexttabelleBilden(std::vector<Tabellenspalte> spalten,
                                               std::vector<std::vector<std::string>> zeilen);

/// The table of a report: widths and alignment of the headers by a told `format` (`SpaltenformatLesen`), in
/// Arial of `punkte` points. Throws std::invalid_argument where the format has another number of columns.
[[nodiscard]] Berichtstabelle BerichtstabelleBilden(const Tabelleninhalt& inhalt, std::string_view format,
                                                    double punkte);

}  // namespace zinfolio
