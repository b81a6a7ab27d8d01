#pragma once
// Payments from files as banks give them, and from rows pasted out of tables.

#include <string>
#include <string_view>
#include <vector>

#include "kern/dateien/satzdatei.h"
#include "kern/staffel/staffelsatz.h"

namespace zinfolio {

/// A line that is not taken.
struct Importausfall {
    /// Counted from 1.
    std::size_t zeile = 0;
    /// The line's fields, for the user to recognise it; a long one is cut.
    std::string inhalt{};
    std::string grund{};

    friend bool operator==(const Importausfall&, const Importausfall&) = default;
};

/// What a text would bring; nothing is kept before somebody accepts it.
struct Zahlungsimport {
    /// In the order of the text.
    std::vector<Staffelsatz> zahlungen{};
    std::vector<Importausfall> ausfaelle{};
    /// The headers of the columns that were taken; empty where the text has no header line.
    std::string datumskopf{};
    std::string betragskopf{};
    std::string textkopf{};
};

/// Reads payments from the text of a table: fields between semicolons, tabs or commas, UTF-8 or Windows-1252,
/// with lines of the bank before its header line. Columns are found by their headers (`BankspaltenLesen`),
/// without a header line by what they hold. The decimal sign is the comma unless all amounts that decide it
/// have a point. A line without a real date or a clear amount is not taken, nor is one in another currency
/// than the euro, nor are those beyond `hoechstens` payments. Throws `Csvfehler` for a text that is no table
/// or holds no column with dates and amounts.
[[nodiscard]] Zahlungsimport ZahlungenEinlesen(std::string_view bytes,
                                               std::size_t hoechstens = HoechstzahlSaetze);

}  // namespace zinfolio
