#pragma once
// What the tables at the head of a rich-text file say: fonts and colours.

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "kern/richtext/codepage.h"
#include "kern/richtext/richtext.h"

namespace zinfolio {

/// A font as text takes it: its name in normal form, and what its bytes stand for. Text in the font Symbol is
/// read as the characters that it shows, which stand in the document's standard font.
struct Rtfschrift {
    std::string name{grundschrift};
    Codepage codepage = Codepage::windows1252;
};

/// The fonts of `\fonttbl`, taken in as its words and characters come by.
class Schriftentabelle {
  public:
    /// `\ansicpgN`: the code page of fonts whose charset has none.
    void AnsiSetzen(Codepage ansi) { ansi_ = ansi; }
    /// `\deffN`: the font of text without one.
    void StandardSetzen(int nummer) { standard_ = nummer; }

    /// `\fN` inside the table: what follows is about this font.
    void Beginnen(int nummer);
    void ZeichensatzSetzen(int fcharset);
    /// Characters of the name; a semicolon ends it.
    void Zeichen(char32_t zeichen);
    /// The end of the table, or of a font's group.
    void Abschliessen();

    /// The code page in which the table is written where it is now.
    [[nodiscard]] Codepage Namenscodepage() const;

    /// A font by its number; the standard font where there is none such.
    [[nodiscard]] Rtfschrift Schrift(int nummer) const;
    [[nodiscard]] Rtfschrift Standard() const { return Schrift(standard_); }

  private:
    struct Eintrag {
        std::string name;
        int fcharset = -1;
    };

    [[nodiscard]] const Eintrag* Suche(int nummer) const;
    [[nodiscard]] Rtfschrift Aus(const Eintrag& eintrag) const;
    [[nodiscard]] std::string Standardname() const;

    // Ordered, since numbers chosen with malice would fill one bucket of a hash table.
    std::map<int, Eintrag> eintraege_;
    std::optional<int> offen_;
    Eintrag neu_;
    int standard_ = 0;
    Codepage ansi_ = Codepage::windows1252;
};

/// The colours of `\colortbl`, taken in as its words and semicolons come by.
class Farbtabelle {
  public:
    void Rot(int anteil) { Anteil(&Farbe::rot, anteil); }
    void Gruen(int anteil) { Anteil(&Farbe::gruen, anteil); }
    void Blau(int anteil) { Anteil(&Farbe::blau, anteil); }
    /// A semicolon.
    void EintragEnde();

    /// A colour by its number; nothing for the automatic colour and for a number beyond the table.
    [[nodiscard]] std::optional<Farbe> Nach(int nummer) const;

  private:
    void Anteil(std::uint8_t Farbe::*ton, int anteil);

    std::vector<std::optional<Farbe>> farben_;
    std::optional<Farbe> neu_;
};

}  // namespace zinfolio
