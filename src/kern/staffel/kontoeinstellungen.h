#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "kern/dateien/dateibefund.h"
#include "kern/dates/verzinsungsmethode.h"
#include "kern/staffel/zinstermine.h"

namespace zinfolio {

/// How an account is settled: rhythm, day-count method, and the text of the closing date.
struct Kontoeinstellungen {
    zinfolio::Zinsverrechnungsart Zinsverrechnungsart = zinfolio::Zinsverrechnungsart::jahresende;
    std::string Kontodatum;
    zinfolio::Verzinsungsmethode Verzinsungsmethode = zinfolio::Verzinsungsmethode::deutsch;
};

/// What a statement was calculated by, as one line beside it: method, rhythm, closing date.
[[nodiscard]] std::string Rechengrundlage(const Kontoeinstellungen& einstellungen);

/// The same as read back: a value that its record lacks is not there.
struct Kontoeinstellungswerte {
    std::optional<zinfolio::Zinsverrechnungsart> Zinsverrechnungsart;
    std::optional<std::string> Kontodatum;
    std::optional<zinfolio::Verzinsungsmethode> Verzinsungsmethode;
};

/// Writes the file `Zinsverrechnung` of a folder: three records of 30 bytes, one self-describing value each.
/// A `Dateifehler` where the folder cannot be written.
void KontoeinstellungenSchreiben(const std::filesystem::path& ordner,
                                 const Kontoeinstellungen& einstellungen);

/// Reads it back, or a copy of it under another name (UTF-8). A missing file gives no values and is not
/// created, a short one those that it holds wholly; a record that holds something else than its value, or a
/// list index that the list lacks, is a `Dateifehler`.
[[nodiscard]] Kontoeinstellungswerte KontoeinstellungenLesen(const std::filesystem::path& ordner,
                                                             std::string_view name = "Zinsverrechnung");

/// The same from the bytes of a file; `datei` is named in a fault. A value that the file's end cuts off is no
/// value, and is added to `befunde`.
[[nodiscard]] Kontoeinstellungswerte KontoeinstellungenAus(std::span<const std::byte> bytes,
                                                           const std::filesystem::path& datei,
                                                           std::vector<Befund>& befunde);

}  // namespace zinfolio
