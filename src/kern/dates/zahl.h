#pragma once
// Numbers from text and as plain text. Text of fields is German (points group, the comma is the decimal
// sign).

#include <cstddef>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace zinfolio {

/// A text that is no number, or a number that a whole-number type cannot hold.
class Zahlfehler : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The number of a whole text in German notation: blanks at either end, a sign, points anywhere before the
/// comma (they are dropped: "1.5" is 15), one comma. "5,", ",5" and "+5" are numbers. Anything else (an empty
/// text, an exponent, a second comma, a point behind the comma, an inner blank), and a number beyond 8-byte
/// floats, is a `Zahlfehler`.
[[nodiscard]] double Zahl(std::string_view text);

/// The same without the exception: nothing where `Zahl` fails.
[[nodiscard]] std::optional<double> ZahlVersuch(std::string_view text);

/// The longest leading number of a text by the same grammar, else 0: "12,5 %" is 12.5, "abc" is 0.
[[nodiscard]] double Zahlwert(std::string_view text);

/// The longest leading number with the point as decimal sign, else 0; for texts that the program itself has
/// put together: "02.20" is 2.2.
[[nodiscard]] double Punktwert(std::string_view text);

/// A float as a 2-byte whole number, halves to the even neighbour; beyond that type a `Zahlfehler`.
[[nodiscard]] std::int16_t Ganzzahl16(double wert);

/// Plain text of a number: at most 15 significant digits (7 for a 4-byte float), the comma as decimal sign,
/// no grouping; a whole number has no comma, -0 is "0", very large or small ones have an exponent: "1E+20".
[[nodiscard]] std::string Zahltext(double wert);
[[nodiscard]] std::string Zahltext(float wert);

/// Room for the plain text of any 4-byte float: "-1,234567E-38".
inline constexpr std::size_t zahltextbreite = 16;

/// `Zahltext`, written to a place of `zahltextbreite` characters. Gives the end of the text.
[[nodiscard]] char* ZahltextSchreiben(char* ziel, float wert);

}  // namespace zinfolio
