#pragma once
// A chart as data: what every calculator hands to the window that draws, prints and saves it.

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zinfolio {

/// A line of a chart: its name in the legend, and a value for each row.
struct Diagrammreihe {
    std::string name = {};
    std::vector<double> werte = {};

    friend bool operator==(const Diagrammreihe&, const Diagrammreihe&) = default;
};

/// Rows stand side by side at equal distances; each series has as many values as there are row texts.
struct Diagramm {
    /// The headline on paper and the title of the document; empty: none.
    std::string titel = {};
    /// The title of the value axis.
    std::string achsentitel = {};
    /// One unit of the axis is that many euros.
    double teiler = 1;
    /// The labels below the rows. Equal ones may repeat, blanks at either end are for layout alone.
    std::vector<std::string> zeilentexte = {};
    /// What a row is called when the user points at it, such as its whole date; empty: by its label.
    std::vector<std::string> zeilennamen = {};
    std::vector<Diagrammreihe> reihen = {};

    friend bool operator==(const Diagramm&, const Diagramm&) = default;
};

/// A unit of the value axis, and the title that tells it.
struct Diagrammeinheit {
    double teiler = 1;
    std::string_view titel;

    friend bool operator==(const Diagrammeinheit&, const Diagrammeinheit&) = default;
};

/// The titles of a value axis by its unit, and whether an amount of exactly 1 000 000 or 1 000 000 000 counts
/// in the larger unit already.
struct Einheitentitel {
    std::string_view millionen;
    std::string_view tausend;
    std::string_view einzeln;
    bool abDerGrenze = false;
};

/// The unit for a chart whose deciding amount is `betrag`: millions above 1 000 000 000, thousands above
/// 1 000 000, else single euros, negative amounts too.
[[nodiscard]] Diagrammeinheit EinheitWaehlen(double betrag, const Einheitentitel& titel);

/// The year of a row: the last four characters of its date as a number in plain text; "0" for what is none.
[[nodiscard]] std::string Jahrestext(std::string_view datumstext);

/// What the user is told instead of a chart with less than two rows.
inline constexpr std::string_view diagrammBrauchtZweiZeilen =
    "Es ist nur 1 Zahlung vorhanden. Eine Grafikanzeige ist daher nicht möglich.";

/// The rows from `erste` to `letzte` that get their label where two labels must be at least `abstand` rows
/// apart: all of them where that much room is, else the rows at which the text changes (the years' first
/// rows), else every second, fifth, tenth and so on of these, round years if the texts begin with numbers.
/// Where one text holds for nearly all rows, it repeats at equal distances.
/// REQUIRES: `abstand` is at least 1 and `letzte` a row.
[[nodiscard]] std::vector<std::size_t> BeschrifteteZeilen(std::span<const std::string> texte,
                                                          std::size_t erste, std::size_t letzte,
                                                          std::size_t abstand);

}  // namespace zinfolio
