#pragma once
// The pages of a report: where the columns of its table lie, where texts break into lines, and which rows
// share a page. All sizes are twips; the paper is A4.

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "kern/bericht/bericht.h"
#include "kern/bericht/textumbruch.h"

namespace zinfolio {

/// What a text of a report is drawn as: a line of the head pages or of the title, a header (or the line above
/// it), a cell.
enum class Schriftrolle { kopfblock, kopf, zelle };

/// The advance of a character in twips, in the font of a role at the size that the report names.
using Zeichenmass = std::function<double(Schriftrolle, char32_t)>;

/// What stands on a page: lines of the head block or rows of the table, from `von` up to before `bis`.
struct Berichtsseite {
    enum class Art { leer, kopfblock, tabelle };

    Art art = Art::leer;
    std::size_t von = 0;
    std::size_t bis = 0;

    friend bool operator==(const Berichtsseite&, const Berichtsseite&) = default;
};

struct Seitenlayout {
    int papierbreite = 0;
    int papierhoehe = 0;
    int rand = 0;
    /// What the font sizes that the report names are multiplied with, at most 1.
    double kopfblockfaktor = 1;
    double tabellenfaktor = 1;
    /// The heights of single lines of text.
    int kopfblockzeile = 0;
    int kopfzeile = 0;
    int tabellenzeile = 0;
    /// What a cell keeps free at the left and right of its text, and above and below.
    int zellrand = 0;
    int zellabstand = 0;
    /// The edges of the columns, counted from the left margin: the left one of the first, then the right
    /// ones.
    std::vector<int> kanten;
    /// The title lines, the line above the header, and the headers of the columns, broken into lines.
    std::vector<std::string> titel;
    std::vector<std::string> seitenzeile;
    std::vector<std::vector<std::string>> koepfe;
    /// What the title takes at the top of the table's first page, and the other two at the top of each.
    int titelhoehe = 0;
    int seitenzeilenhoehe = 0;
    int kopfhoehe = 0;
    /// At least one.
    std::vector<Berichtsseite> seiten;
};

/// The title stands on the table's first page.
[[nodiscard]] inline bool HatTitel(const Seitenlayout& layout, const Berichtsseite& seite) {
    return !layout.titel.empty() && seite.art == Berichtsseite::Art::tabelle && seite.von == 0;
}

/// A row of the table as it is drawn: the lines of each cell, and the height of the row.
struct Zeilenbild {
    std::vector<std::vector<std::string>> zellen;
    int hoehe = 0;
};

/// Lays a report out in time linear in its cells. Columns keep the widths that they want as long as the page
/// has room for them, else they share it in proportion; none becomes narrower than its widest word. Where the
/// words alone are wider than the page, the table's fonts shrink until they fit, down to four points; words
/// break only below that. Head lines never break, their font shrinks.
[[nodiscard]] Seitenlayout SeitenlayoutBilden(const Bericht& bericht, const Zeichenmass& mass);

/// A row in the columns of a layout. REQUIRES: `zellenmass` measures as the layout was measured with.
[[nodiscard]] Zeilenbild ZeileUmbrechen(const Bericht& bericht, const Seitenlayout& layout,
                                        const Textmass& zellenmass, std::size_t zeile);

}  // namespace zinfolio
