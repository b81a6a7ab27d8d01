#pragma once
// The statement as a report.

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "kern/bericht/bericht.h"
#include "kern/staffel/kontoansicht.h"
#include "kern/staffel/kontoeinstellungen.h"
#include "kern/staffel/staffelsatz.h"

namespace zinfolio {

/// What a statement's report shows; texts (UTF-8) as they stand on the form.
struct Kontoberichtsdaten {
    /// The file name of the project; empty: it has none yet.
    std::string projekt;
    Kontoeinstellungen einstellungen;
    /// The effective rate as its field shows it; empty: none was calculated, and its two lines are left out.
    std::string ezins;
    /// The text of its method.
    std::string effektivmethode;
    /// The rows of `ZinsstaffelZins`.
    std::vector<Staffelsatz> konditionen;
    /// The calculated rows, over which the totals go; none: the table is empty.
    std::shared_ptr<const std::vector<Staffelsatz>> loesung;
    Kontoansicht ansicht = Kontoansicht::kurzform;
};

/// How a report shows a view: the columns by `SpaltenformatLesen`, the size of the font in points, and what
/// the preview starts with, in percent.
struct Ansichtsformat {
    std::string_view spalten;
    double punkte;
    int zoom;
};

[[nodiscard]] Ansichtsformat AnsichtsformatVon(Kontoansicht ansicht);

/// The lines of the head page. They are at most 400: where the conditions fill line 399 (counted from 1) and
/// there are more of them, line 400 says so.
[[nodiscard]] std::vector<std::string> Kontokopfblock(const Kontoberichtsdaten& daten);

/// The whole report: head page, and the table of the view. It keeps the calculated rows alive.
[[nodiscard]] Bericht KontoberichtBilden(const Kontoberichtsdaten& daten);

}  // namespace zinfolio
