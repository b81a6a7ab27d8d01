#include "kern/richtext/rtfschreiben.h"

#include "kern/richtext/rtfformatwoerter.h"
#include "kern/richtext/rtftabellen.h"
#include "kern/richtext/rtftext.h"

namespace zinfolio {
namespace {

/// Writes paragraph by paragraph, and knows what is in force at the end of what it wrote.
class Rumpfschreiber {
  public:
    Rumpfschreiber(std::string& ziel, const Rtftabellen& tabellen)
        : ziel_(ziel), tabellen_(tabellen), wortanfang_(ziel.size()) {}

    void Schreiben(const Absatz& absatz) {
        Absatzanfang(absatz.format);
        for (const Lauf& lauf : absatz.laeufe) {
            ZeichenwoerterAnhaengen(ziel_, zeichen_, lauf.format, tabellen_);
            zeichen_ = lauf.format;
            WoerterBeenden();
            TextAnhaengen(lauf);
        }
        ziel_ += "\\par\r\n";
        wortanfang_ = ziel_.size();
    }

  private:
    void Absatzanfang(const Absatzformat& format) {
        nummer_ = format.liste == absatz_.liste ? nummer_ + 1 : format.liste.beginn;
        if (format != absatz_) {
            ziel_ += "\\pard";
            ListenanfangAnhaengen(ziel_, format.liste, nummer_, tabellen_);
            AbsatzwoerterAnhaengen(ziel_, format);
            absatz_ = format;
        } else {
            ListenpunktAnhaengen(ziel_, format.liste, nummer_, tabellen_);
        }
    }

    /// A blank ends the words written since the last text. A group needs none.
    void WoerterBeenden() {
        if (ziel_.size() > wortanfang_ && ziel_.back() != '}') ziel_ += ' ';
        wortanfang_ = ziel_.size();
    }

    void TextAnhaengen(const Lauf& lauf) {
        if (IstBilderschrift(lauf.format.schrift))
            RtfTextInBilderschriftAnhaengen(ziel_, lauf.text);
        else
            RtfTextAnhaengen(ziel_, lauf.text);
    }

    std::string& ziel_;
    const Rtftabellen& tabellen_;
    Zeichenformat zeichen_;
    Absatzformat absatz_;
    int nummer_ = 0;
    std::size_t wortanfang_;
};

}  // namespace

std::string RtfSchreiben(const Richtext& text) {
    const Richtext normal = Normalform(text);
    const Rtftabellen tabellen(normal);
    std::string ziel = "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1031";
    tabellen.SchriftenAnhaengen(ziel);
    ziel += "\r\n";
    tabellen.FarbenAnhaengen(ziel);
    ziel += "\\viewkind4\\uc1\\pard\\f0\\fs24 ";
    Rumpfschreiber rumpf(ziel, tabellen);
    for (const Absatz& absatz : normal.absaetze)
        rumpf.Schreiben(absatz);
    return ziel + "}\r\n";
}

}  // namespace zinfolio
