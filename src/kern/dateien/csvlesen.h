#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace zinfolio {

/// A table text that cannot be read. `what()` is the German reason alone; whoever knows the file adds its
/// name.
class Csvfehler : public std::runtime_error {
  public:
    Csvfehler(std::size_t zeilennummer, const std::string& grund)
        : std::runtime_error(grund), zeile_(zeilennummer) {}

    /// The line at fault, counted from 1.
    [[nodiscard]] std::size_t Zeile() const noexcept { return zeile_; }

  private:
    std::size_t zeile_;
};

/// A row of a table, and the line of the text on which it begins.
struct Csvzeile {
    std::size_t nummer = 1;
    std::vector<std::string> felder;
};

/// The rows of a text with `trenner` between the fields. A field may stand in quotation marks, which then
/// may hold separators, line ends and doubled quotation marks. Lines end with LF or CR LF; empty ones are
/// passed over, and so is a byte order mark. The fields are UTF-8; a text that is none is taken as
/// Windows-1252, as spreadsheets save it. Throws `Csvfehler`, also for a line of more than 1000 fields.
[[nodiscard]] std::vector<Csvzeile> CsvLesen(std::string_view text, char trenner = ';');

}  // namespace zinfolio
