#pragma once
// Numbers by pattern, as every table, label and report shows them.

#include <cstddef>
#include <string>
#include <string_view>

namespace zinfolio {

/// A `Format` pattern such as "###,#0.00". Patterns differ in three things: grouping by points (a comma left
/// of the point), the least number of digits before the decimal sign (the count of "0" there), and the
/// decimals.
struct Zahlmuster {
    bool gruppiert = false;
    int mindestziffern = 0;
    int nachkommastellen = 0;

    /// Reads a pattern text; what is neither "0", "#", "," nor "." has no meaning.
    [[nodiscard]] static constexpr Zahlmuster Lesen(std::string_view muster) {
        Zahlmuster ergebnis;
        bool nachPunkt = false;
        for (const char zeichen : muster) {
            if (zeichen == '.') {
                nachPunkt = true;
            } else if (nachPunkt) {
                ergebnis.nachkommastellen += zeichen == '0' || zeichen == '#' ? 1 : 0;
            } else if (zeichen == ',') {
                ergebnis.gruppiert = true;
            } else if (zeichen == '0') {
                ++ergebnis.mindestziffern;
            }
        }
        return ergebnis;
    }

    friend constexpr bool operator==(const Zahlmuster&, const Zahlmuster&) = default;
};

/// Amounts of currency: "15.086,53", "0,05".
inline constexpr Zahlmuster betragsmuster = Zahlmuster::Lesen("###,#0.00");
/// Amounts of a preview, without a leading zero: ",50".
inline constexpr Zahlmuster vorschaumuster = Zahlmuster::Lesen("###,##.00");
/// Rates in the list of conditions: "3,5000".
inline constexpr Zahlmuster konditionsmuster = Zahlmuster::Lesen("###,#0.0000");

/// The number by a pattern: its decimal text with 15 significant digits, rounded with halves away from zero
/// (2,675 by "0.00" is 2,68). A value that rounds to zero shows no minus sign. NaN and infinity are a
/// `Zahlfehler`.
[[nodiscard]] std::string Format(double wert, const Zahlmuster& muster);

/// Room for any amount by `betragsmuster`; the longest is minus the largest float, with 309 digits.
inline constexpr std::size_t betragsbreite = 1 + 309 + 102 + 3;

/// `Format` by `betragsmuster`, written to a place of `betragsbreite` characters. Gives the end of the text.
[[nodiscard]] char* BetragSchreiben(char* ziel, double wert);

/// The same of a text that holds a number by `Zahl`; the format of an empty text is empty.
[[nodiscard]] std::string Format(std::string_view zahltext, const Zahlmuster& muster);

}  // namespace zinfolio
