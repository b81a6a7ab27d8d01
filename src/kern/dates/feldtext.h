#pragma once

#include <string>
#include <string_view>

namespace zinfolio {

/// A plain text of a number (`Zahltext`) as an entry field shows it: without an exponent, so that the filters
/// take it and `Zahl` reads it. "5E-05" becomes "0,00005", any other number stays as it is. The text of a
/// damaged number (NaN, infinity) is empty.
[[nodiscard]] std::string Feldtext(std::string_view zahltext);

}  // namespace zinfolio
