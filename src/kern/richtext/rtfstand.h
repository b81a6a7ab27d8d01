#pragma once
// What the reader of rich text knows between two pieces of its file.

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "kern/richtext/rtfaufbau.h"
#include "kern/richtext/rtfkopf.h"

namespace zinfolio {

/// Where the text of a group goes.
enum class Rtfziel : std::uint8_t {
    text,
    verwerfen,
    schriften,
    farben,
    listenangabe,
    listennachtext,
    objekt,
    verschachtelteZeile,
};

/// What a brace saves and brings back.
struct Rtfzustand {
    Zeichenformat zeichen;
    Codepage codepage = Codepage::windows1252;
    Absatzformat absatz;
    Tabart tabart = Tabart::links;
    Rtfziel ziel = Rtfziel::text;
    /// `\ucN`: how many characters behind `\uN` stand in for it.
    int ersatzlaenge = 1;
};

/// The groups that are open, at most 1000: what lies deeper shares the state of the thousandth.
class Gruppenstapel {
  public:
    static constexpr std::size_t hoechsteTiefe = 1000;

    [[nodiscard]] Rtfzustand& Oben() { return zustaende_.back(); }
    [[nodiscard]] bool NurDieAeussere() const { return zustaende_.size() == 1 && ueberzaehlig_ == 0; }
    void Auf();
    /// REQUIRES: not `NurDieAeussere`.
    void Zu();

  private:
    std::vector<Rtfzustand> zustaende_ = std::vector<Rtfzustand>(1);
    std::size_t ueberzaehlig_ = 0;
};

/// The whole state of the reader, and how text goes where the open group wants it.
struct Rtfstand {
    Gruppenstapel gruppen;
    Schriftentabelle schriften;
    Farbtabelle farben;
    Textaufbau aufbau;
    /// The list that a group `\pn` tells.
    Liste liste;
    /// Characters that stand in for one that was read, and are passed over.
    int ersatzRest = 0;
    /// Bytes of `\binN` that come next.
    std::size_t binaerRest = 0;
    /// Behind `\*`: a group that is not known is passed over.
    bool verzichtbar = false;

    [[nodiscard]] Rtfzustand& Oben() { return gruppen.Oben(); }
    [[nodiscard]] bool ImText() { return Oben().ziel == Rtfziel::text; }

    void Text(std::string_view ascii);
    void Byte(unsigned char byte);
    /// A character of Unicode that a word stands for.
    void Sonderzeichen(char32_t zeichen);
    /// A UTF-16 unit by `\uN`.
    void Einheit(std::uint16_t einheit);
    void AbsatzEnde();
    void GruppeAuf();
    void GruppeZu();
};

}  // namespace zinfolio
