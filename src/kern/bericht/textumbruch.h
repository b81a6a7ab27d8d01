#pragma once
// How wide a text is, and where it breaks into lines.

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace zinfolio {

/// The advance of a character in one font, in twips.
using Zeichenbreite = std::function<double(char32_t)>;

/// How wide a text is as a whole, and how wide its widest part without a blank is; in twips.
struct Textbreiten {
    double ganz = 0;
    double wort = 0;
};

/// Measures texts (UTF-8) in one font by summing up the advances of their characters. A byte that is no UTF-8
/// counts as U+FFFD.
class Textmass {
  public:
    explicit Textmass(Zeichenbreite breite);

    [[nodiscard]] Textbreiten Messen(std::string_view text) const;

    /// The lines of a text in a column, at least one. Lines break at blanks, which vanish there and
    /// nowhere else; a word that
    /// is wider than the column breaks between characters.
    [[nodiscard]] std::vector<std::string> InZeilen(std::string_view text, double platz) const;

  private:
    [[nodiscard]] double Vorschub(char32_t zeichen) const;
    [[nodiscard]] std::size_t Passend(std::string_view wort, double platz) const;

    Zeichenbreite breite_;
    /// The advances of the characters that nearly all texts are made of.
    std::array<double, 256> haeufige_{};
};

}  // namespace zinfolio
