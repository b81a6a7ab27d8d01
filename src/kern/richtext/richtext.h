#pragma once
// A document of rich text as values. Lengths of paragraphs are twips (1/1440 inch), sizes of type half
// points.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zinfolio {

/// Font and size (in half points) of text without a format of its own.
inline constexpr std::string_view grundschrift = "Courier New";
inline constexpr std::int16_t grundgroesse = 24;

/// Bounds of a document in normal form: a size in half points, a length in twips, the length of a font's name
/// in bytes, the tab stops of a paragraph.
inline constexpr std::int16_t hoechsteGroesse = 3276;
inline constexpr std::int16_t hoechsteLaenge = 31680;
inline constexpr std::size_t hoechsterSchriftname = 64;
inline constexpr std::size_t hoechsteTabzahl = 32;

struct Farbe {
    std::uint8_t rot = 0;
    std::uint8_t gruen = 0;
    std::uint8_t blau = 0;

    bool operator==(const Farbe&) const = default;
};

enum class Unterstreichung : std::uint8_t { keine, einfach, gepunktet, doppelt, wortweise };
enum class Zeichenlage : std::uint8_t { normal, hoch, tief };
enum class Schreibung : std::uint8_t { normal, versalien, kapitaelchen };

/// How text looks. A colour that is not set is the reader's own.
struct Zeichenformat {
    std::string schrift{grundschrift};
    std::int16_t groesse = grundgroesse;
    bool fett = false;
    bool kursiv = false;
    bool durchgestrichen = false;
    bool verborgen = false;
    Unterstreichung unterstreichung = Unterstreichung::keine;
    Zeichenlage lage = Zeichenlage::normal;
    Schreibung schreibung = Schreibung::normal;
    std::optional<Farbe> farbe = {};
    std::optional<Farbe> hintergrund = {};

    bool operator==(const Zeichenformat&) const = default;
};

/// Text of one format (UTF-8). A tab is \t, a line break within the paragraph \n.
struct Lauf {
    std::string text = {};
    Zeichenformat format = {};

    bool operator==(const Lauf&) const = default;
};

enum class Ausrichtung : std::uint8_t { links, rechts, mitte, blocksatz };
enum class Tabart : std::uint8_t { links, mitte, rechts, dezimal };

struct Tabulator {
    std::int16_t stelle = 0;
    Tabart art = Tabart::links;

    bool operator==(const Tabulator&) const = default;
};

enum class Listenart : std::uint8_t {
    keine,
    punkte,
    dezimal,
    kleinbuchstaben,
    grossbuchstaben,
    kleinroemisch,
    grossroemisch,
};
enum class Nachzeichen : std::uint8_t { punkt, klammer, keins };

/// The list that a paragraph is an item of. Items one below the other with the same value are one list.
struct Liste {
    Listenart art = Listenart::keine;
    /// What stands behind a number.
    Nachzeichen nach = Nachzeichen::punkt;
    /// The number of the first item.
    std::int16_t beginn = 1;

    bool operator==(const Liste&) const = default;
};

struct Absatzformat {
    Ausrichtung ausrichtung = Ausrichtung::links;
    std::int16_t links = 0;
    /// Of the first line, against `links`.
    std::int16_t ersteZeile = 0;
    std::int16_t rechts = 0;
    std::int16_t davor = 0;
    std::int16_t danach = 0;
    /// Of the lines: 0 by the font; a multiple in 240ths where `vielfach`; else at least so many twips, and
    /// exactly so many where negative.
    std::int16_t zeilenabstand = 0;
    bool vielfach = false;
    bool zusammenhalten = false;
    bool beimNaechstenHalten = false;
    bool ohneTrennung = false;
    bool seitenwechselDavor = false;
    Liste liste = {};
    std::vector<Tabulator> tabulatoren = {};

    bool operator==(const Absatzformat&) const = default;
};

struct Absatz {
    Absatzformat format = {};
    std::vector<Lauf> laeufe = {};

    bool operator==(const Absatz&) const = default;
};

/// A document. The empty document has one empty paragraph.
struct Richtext {
    std::vector<Absatz> absaetze = std::vector<Absatz>(1);

    bool operator==(const Richtext&) const = default;
};

/// The document in the one form that equal documents share, which reading and writing keep:
/// at least one paragraph; no run without text, no neighbours of equal format; text that is well-formed UTF-8
/// of characters as `Textzeichen` gives them; font names trimmed, not empty, within their bound and without
/// control characters and semicolons; sizes and lengths within their bounds; tab stops in order, one at a
/// place, all right of 0; `vielfach` only with a line distance above 0; a list's details only where it has
/// numbers.
[[nodiscard]] Richtext Normalform(Richtext text);
[[nodiscard]] Absatzformat Normalform(Absatzformat format);

/// A character as it stands in text: breaks of lines and paragraphs within it are \n; nothing for what is no
/// text: other control characters below 80, noncharacters, the placeholder of an object, and what Unicode
/// lacks.
[[nodiscard]] std::optional<char32_t> Textzeichen(char32_t zeichen);

/// A font's name in normal form; `grundschrift` where nothing is left of it.
[[nodiscard]] std::string Schriftname(std::string_view utf8);

/// Puts a tab stop among the stops of a paragraph: in order, in the place of one that stands there; not where
/// there are `hoechsteTabzahl` of them.
void TabulatorEinfuegen(std::vector<Tabulator>& tabulatoren, Tabulator neu);

}  // namespace zinfolio
