#pragma once
// What a note may hold, and what of a file a note keeps: rules on documents, for the notes of every
// calculator.

#include <cstddef>
#include <string_view>

#include "kern/richtext/richtext.h"

namespace zinfolio {

/// The extent of a document: characters (a break between paragraphs is one), and paragraphs.
struct Richtextmass {
    std::size_t zeichen = 0;
    std::size_t absaetze = 0;

    friend bool operator==(const Richtextmass&, const Richtextmass&) = default;
};

/// What can be edited. A larger note can be shown in part and kept.
inline constexpr Richtextmass hoechsteNotiz{.zeichen = std::size_t{1} << 20, .absaetze = 20'000};

[[nodiscard]] Richtextmass Mass(const Richtext& text);

/// Whether both extents lie within those of the other.
[[nodiscard]] constexpr bool PasstIn(const Richtextmass& mass, const Richtextmass& grenze) {
    return mass.zeichen <= grenze.zeichen && mass.absaetze <= grenze.absaetze;
}

/// The beginning of a document, as far as `grenze` reaches; whole where it fits.
[[nodiscard]] Richtext Anfang(const Richtext& text, const Richtextmass& grenze);

/// The document as the notes show a file: all in `grundschrift`, and text of another font in `grundgroesse`.
/// A size that was chosen for the basic font stays, and so do bold, italic, underlined and all else.
[[nodiscard]] Richtext InGrundschrift(Richtext text);

/// Whether a rich-text file has parts that a document has no place for (pictures, objects, footnotes,
/// headers), so that writing what was read would lose them. False for a file that is no rich text.
[[nodiscard]] bool HatFremdeTeile(std::string_view datei);

}  // namespace zinfolio
