#pragma once
// A report as data: what every calculator hands to print preview, printer, PDF, RTF, HTML and clipboard.

#include <algorithm>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace zinfolio {

/// 1440 of them are an inch.
inline constexpr int twipsJeZoll = 1440;

enum class Kopfausrichtung { links, mitte, rechts };

/// A font by its name; the size is in points.
struct Berichtsschrift {
    std::string name = "Arial";
    double punkte = 10;
    bool fett = false;

    friend bool operator==(const Berichtsschrift&, const Berichtsschrift&) = default;
};

/// A column: its header, how wide it wants to be (twips), and how the header lies in it.
struct Berichtsspalte {
    std::string kopf;
    int breite = 0;
    Kopfausrichtung kopfausrichtung = Kopfausrichtung::mitte;

    friend bool operator==(const Berichtsspalte&, const Berichtsspalte&) = default;
};

/// The table of a report. Its header row is repeated on every page; cells lie on the right.
struct Berichtstabelle {
    std::vector<Berichtsspalte> spalten;
    Berichtsschrift kopfschrift{.name = "Arial", .punkte = 10, .fett = true};
    Berichtsschrift schrift{.name = "Arial", .punkte = 10};
    std::size_t zeilen = 0;
    /// The text of a cell (UTF-8), counted from 0. It may be asked for in any order and more than once, and
    /// owns what it reads.
    std::function<std::string(std::size_t zeile, std::size_t spalte)> zelle;
};

/// Whether the table's header row is shown; one of empty texts is not.
[[nodiscard]] inline bool HatKopf(const Berichtstabelle& tabelle) {
    return std::any_of(tabelle.spalten.begin(), tabelle.spalten.end(),
                       [](const Berichtsspalte& spalte) { return !spalte.kopf.empty(); });
}

/// A report has two sections: head pages of text lines, and the table on pages of its own. Either may be
/// empty.
struct Bericht {
    /// Names the document, in the file's properties and in the window.
    std::string titel;
    /// The lines of the head pages, in columns of single characters.
    std::vector<std::string> kopfblock;
    Berichtsschrift kopfblockschrift{.name = "Courier New", .punkte = 10};
    /// Lines above the table on its first page, in the font of the head pages.
    std::vector<std::string> titelzeilen;
    /// The line above the table's header on every page; empty: none.
    std::string seitenzeile;
    Berichtstabelle tabelle;
    bool querformat = true;
    /// All four margins, in twips.
    int rand = 500;
    /// What the preview starts with, in percent.
    int zoom = 75;
};

}  // namespace zinfolio
