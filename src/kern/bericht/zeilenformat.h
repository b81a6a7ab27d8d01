#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zinfolio {

/// How a value stands in a line; the numbers are fixed. Any other number leaves the value out.
namespace zeilenausrichtung {
inline constexpr std::int16_t nurBezeichnung = 0;
inline constexpr std::int16_t direkt = 1;
inline constexpr std::int16_t rechts = 2;
}  // namespace zeilenausrichtung

/// How a value is written; the numbers are fixed. Any other number leaves it as it is.
namespace zeilenzahlformat {
inline constexpr std::int16_t unveraendert = 0;
inline constexpr std::int16_t gruppiert = 1;
inline constexpr std::int16_t ungruppiert = 2;
}  // namespace zeilenzahlformat

/// A label and a value (UTF-8) for one line of fixed columns, counted in characters.
struct Zeilenangabe {
    /// Where the label ends.
    std::int16_t Spalte1 = 0;
    /// How wide the field of a right-aligned value is.
    std::int16_t Spalte2 = 0;
    std::string_view Bezeichnung = {};
    std::string_view Wert = {};
    std::int16_t Ausrichtung = zeilenausrichtung::rechts;
    std::int16_t Zahlformat = zeilenzahlformat::unveraendert;
};

/// The line: the label, brought by leading blanks to end at `Spalte1`, then the value. An empty value is "0".
/// `Zahlformat` 1 writes it by "###,0.00", 2 by "###0.00"; a value with a point is read by its longest
/// leading number with the point as decimal sign, one without in German notation, and is a `Zahlfehler` if it
/// is no number. `Ausrichtung` 1 appends it directly, 2 right-aligned in a field of `Spalte2` characters. A
/// label or value that is longer than its column stays whole. A value is read also where `Ausrichtung` leaves
/// it out.
[[nodiscard]] std::string Zeilenformat(const Zeilenangabe& angabe);

/// Where the labels of a report's head page end, and how wide its values are, in characters.
inline constexpr std::int16_t kopfseitenbezeichnung = 49;
inline constexpr std::int16_t kopfseitenwert = 53;

/// A line of a report's head page: the label, and the value as it is.
[[nodiscard]] std::string Kopfseitenzeile(std::string_view bezeichnung, std::string_view wert);

/// The text with so many leading blanks that it has `breite` characters; a longer one as it is.
[[nodiscard]] std::string Rechtsbuendig(std::string_view text, int breite);

}  // namespace zinfolio
