#include "kern/dateien/csvlesen.h"

#include <algorithm>
#include <utility>

#include "kern/grund/utf8.h"
#include "kern/grund/windows1252.h"

namespace zinfolio {
namespace {

/// Far more than any table; a file of nothing but semicolons must not fill the memory.
constexpr std::size_t hoechsteFelderzahl = 1000;

class Csvleser {
  public:
    Csvleser(std::string_view text, char trenner)
        : rest_(text), trenner_(trenner), feldende_({trenner, '\n'}) {}

    /// The next row that is not empty; false at the end.
    bool Naechste(Csvzeile& zeile) {
        while (NimmZeilenende()) {
        }
        if (rest_.empty()) return false;
        zeile = {.nummer = nummer_, .felder = {}};
        do {
            if (zeile.felder.size() == hoechsteFelderzahl)
                throw Csvfehler(nummer_,
                                "Die Zeile hat mehr als " + std::to_string(hoechsteFelderzahl) + " Felder.");
            zeile.felder.push_back(rest_.starts_with('"') ? Angefuehrtes() : Schlichtes());
        } while (Nimm({&trenner_, 1}));
        if (!rest_.empty() && !NimmZeilenende())
            throw Csvfehler(nummer_, "Hinter dem schließenden Anführungszeichen steht noch etwas.");
        return true;
    }

  private:
    bool Nimm(std::string_view anfang) {
        if (!rest_.starts_with(anfang)) return false;
        rest_.remove_prefix(anfang.size());
        return true;
    }

    bool NimmZeilenende() {
        if (!Nimm("\r\n") && !Nimm("\n")) return false;
        ++nummer_;
        return true;
    }

    std::string Schlichtes() {
        const std::size_t ende = std::min(rest_.find_first_of(feldende_), rest_.size());
        const bool vorZeilenende = ende > 0 && ende < rest_.size() && rest_[ende] == '\n';
        const std::size_t laenge = vorZeilenende && rest_[ende - 1] == '\r' ? ende - 1 : ende;
        std::string feld(rest_.substr(0, laenge));
        rest_.remove_prefix(laenge);
        return feld;
    }

    std::string Angefuehrtes() {
        const std::size_t beginn = nummer_;
        std::string feld;
        do {
            rest_.remove_prefix(1);
            const std::size_t ende = rest_.find('"');
            if (ende == std::string_view::npos)
                throw Csvfehler(beginn, "Ein Anführungszeichen wird nicht geschlossen.");
            const std::string_view stueck = rest_.substr(0, ende);
            nummer_ += static_cast<std::size_t>(std::count(stueck.begin(), stueck.end(), '\n'));
            feld += stueck;
            rest_.remove_prefix(ende + 1);
            // A second quotation mark right behind the first one belongs to the text.
            if (rest_.starts_with('"')) feld += '"';
        } while (rest_.starts_with('"'));
        return feld;
    }

    std::string_view rest_;
    char trenner_;
    std::string feldende_;
    std::size_t nummer_ = 1;
};

}  // namespace

std::vector<Csvzeile> CsvLesen(std::string_view text, char trenner) {
    constexpr std::string_view marke = "\xEF\xBB\xBF";
    if (text.starts_with(marke)) text.remove_prefix(marke.size());
    const std::string umgesetzt = IstUtf8(text) ? std::string() : NachUtf8(text);
    Csvleser leser(umgesetzt.empty() ? text : umgesetzt, trenner);
    std::vector<Csvzeile> zeilen;
    for (Csvzeile zeile; leser.Naechste(zeile);)
        zeilen.push_back(std::move(zeile));
    return zeilen;
}

}  // namespace zinfolio
