#include "kern/bericht/textumbruch.h"

#include <algorithm>
#include <utility>

#include "kern/grund/utf8.h"

namespace zinfolio {
namespace {

/// Edges and margins of columns are whole twips: a word that was measured to fit may be a little wider than
/// its column in the end.
constexpr double toleranz = 4;

/// The lines of one text while they grow.
class Zeilenbau {
  public:
    explicit Zeilenbau(double platz) : platz_(platz + toleranz) {}

    [[nodiscard]] bool Passt(double breite) const { return breite <= platz_; }
    [[nodiscard]] bool Leer() const { return zeile_.empty(); }

    void Wort(std::string_view wort, double breite, double leerzeichen) {
        if (!Leer() && !Passt(breite_ + leerzeichen + breite)) Umbrechen();
        if (!Leer()) {
            zeile_ += ' ';
            breite_ += leerzeichen;
        }
        zeile_ += wort;
        breite_ += breite;
    }

    void Umbrechen() {
        zeile_.erase(zeile_.find_last_not_of(' ') + 1);
        zeilen_.push_back(std::exchange(zeile_, {}));
        breite_ = 0;
    }

    std::vector<std::string> Ergebnis() {
        if (!Leer() || zeilen_.empty()) Umbrechen();
        return std::move(zeilen_);
    }

  private:
    double platz_;
    double breite_ = 0;
    std::string zeile_;
    std::vector<std::string> zeilen_;
};

}  // namespace

Textmass::Textmass(Zeichenbreite breite) : breite_(std::move(breite)) {
    for (std::size_t i = 0; i < haeufige_.size(); ++i)
        haeufige_.at(i) = breite_(static_cast<char32_t>(i));
}

double Textmass::Vorschub(char32_t zeichen) const {
    return zeichen < haeufige_.size() ? haeufige_[zeichen] : breite_(zeichen);
}

Textbreiten Textmass::Messen(std::string_view text) const {
    Textbreiten breiten;
    double wort = 0;
    JedesUtf8Zeichen(text, [&](char32_t zeichen, std::string_view) {
        const double vorschub = Vorschub(zeichen);
        breiten.ganz += vorschub;
        wort = zeichen == U' ' ? 0 : wort + vorschub;
        breiten.wort = std::max(breiten.wort, wort);
    });
    return breiten;
}

/// How many bytes of a word fit, at least one character.
std::size_t Textmass::Passend(std::string_view wort, double platz) const {
    std::size_t bytes = 0;
    double breite = 0;
    while (bytes < wort.size()) {
        const auto [zeichen, laenge] = Utf8Naechstes(wort.substr(bytes));
        breite += Vorschub(zeichen);
        if (bytes > 0 && breite > platz + toleranz) break;
        bytes += laenge;
    }
    return bytes;
}

std::vector<std::string> Textmass::InZeilen(std::string_view text, double platz) const {
    Zeilenbau zeilen(platz);
    if (zeilen.Passt(Messen(text).ganz)) return {std::string(text)};
    while (!text.empty()) {
        std::string_view wort = text.substr(0, text.find(' '));
        text.remove_prefix(std::min(text.size(), wort.size() + 1));
        while (!zeilen.Passt(Messen(wort).ganz)) {
            const std::size_t teil = Passend(wort, platz);
            if (teil == wort.size()) break;
            if (!zeilen.Leer()) zeilen.Umbrechen();
            zeilen.Wort(wort.substr(0, teil), 0, 0);
            zeilen.Umbrechen();
            wort.remove_prefix(teil);
        }
        zeilen.Wort(wort, Messen(wort).ganz, Vorschub(U' '));
    }
    return zeilen.Ergebnis();
}

}  // namespace zinfolio
