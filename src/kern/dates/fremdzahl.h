#pragma once
// Numbers as they come from web pages, tables and other people's files.

#include <optional>
#include <string>
#include <string_view>

namespace zinfolio {

enum class Dezimalzeichen { komma, punkt };

/// A number with the given decimal sign, as text of a field: "-1234,56". It may have its sign in front or
/// behind (also U+2212), "€" or "EUR" at either end, and thousands grouped by the other sign, by an
/// apostrophe or by blanks (also hard and narrow ones). Nothing where the text (UTF-8) is not one such
/// number.
[[nodiscard]] std::optional<std::string> Fremdzahl(std::string_view text, Dezimalzeichen dezimalzeichen);

/// The same where nobody knows the decimal sign: the comma, unless only the point makes it a number ("1.234"
/// is 1234).
[[nodiscard]] std::optional<std::string> Fremdzahl(std::string_view text);

}  // namespace zinfolio
