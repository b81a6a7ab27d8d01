#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "kern/bericht/tabelle.h"
#include "kern/finmath/effektivmethode.h"
#include "kern/finmath/reihensatz.h"

namespace zinfolio {

/// What the report of an effective rate shows; texts (UTF-8) as they stand on the form.
struct Herleitungsberichtsdaten {
    /// The file name of the project; empty: it has none yet.
    std::string projekt;
    Effektivmethode methode = Effektivmethode::pangv2000;
    /// The rate as its field shows it; empty: there is none.
    std::string ezins;
    /// The account has been changed since: the report says so.
    bool veraltet = false;
    /// The rows of the derivation; none: the table is empty.
    std::shared_ptr<const std::vector<Ergebnissatz>> zeilen;
};

/// The derivation as a table, which keeps its rows alive: the third header names the rate, the text as it
/// stands, but not in reports. No rows: a table without any.
[[nodiscard]] Tabelleninhalt HerleitungstabelleBilden(std::shared_ptr<const std::vector<Ergebnissatz>> zeilen,
                                                      std::string_view effektivergebnis);

/// The derivation as a report: it has no head page, and a line above the table on every page that names
/// method, rate and project. It keeps the rows alive.
[[nodiscard]] Bericht HerleitungsberichtBilden(const Herleitungsberichtsdaten& daten);

}  // namespace zinfolio
