#pragma once
// The results of the all-round calculator as tables and as reports, and what is told by which of them is
// shown.

#include <cstdint>
#include <string>

#include "kern/allround/planansicht.h"
#include "kern/allround/wertanalyse.h"
#include "kern/bericht/bericht.h"
#include "kern/bericht/tabelle.h"

namespace zinfolio {

/// Which result the calculator shows; reports and ways back go by it. The numbers are fixed.
enum class Anzeigeart : std::int16_t {
    barwert = 1,
    endwert = 2,
    effektivzins = 3,
    sensitivitaet = 4,
    planJahresweise = 5,
    planUnterjaehrig = 6,
};

/// `Grid3`, with the row of the dynamic amortisation standing out.
[[nodiscard]] Tabelleninhalt WertansichtBilden(const Wertergebnis& ergebnis);
/// `Grid4`
[[nodiscard]] Tabelleninhalt SensitivitaetsansichtBilden(const Zellentabelle& tabelle);
/// `grid6`, without the working column.
[[nodiscard]] Tabelleninhalt JahresansichtBilden(const Zellentabelle& tabelle);
/// `grid5`; the table of one of the two views of a plan.
[[nodiscard]] Tabelleninhalt PlanansichtBilden(const Zellentabelle& tabelle, Planansicht ansicht);

/// What a report shows; texts (UTF-8) as they stand on the form. Of the rates only those of its kind are
/// read.
struct Allroundberichtsdaten {
    Anzeigeart art = Anzeigeart::barwert;
    /// Empty: the project has no name yet.
    std::string projekt{};
    /// The rate of an analysis, as typed.
    std::string Abzins2{};
    /// The effective rate, and the text of its method.
    std::string Effektivergebnis{};
    std::string methode{};
    /// Which analysis a sensitivity table belongs to.
    Wertart wertart = Wertart::barwert;
    /// The text of the plan's interest dates, and its rates.
    std::string zinstermine{};
    std::string nomzins{};
    std::string effzinssatz{};
    Tabelleninhalt tabelle{};
};

/// The title lines stand above the table on its first page.
[[nodiscard]] Bericht AllroundberichtBilden(const Allroundberichtsdaten& daten);

/// The same for the values by years, which have no `Anzeigeart`: the table by the headers of its grid.
[[nodiscard]] Bericht JahresberichtBilden(const std::string& projekt, const std::string& Abzins2,
                                          const Tabelleninhalt& tabelle);

}  // namespace zinfolio
