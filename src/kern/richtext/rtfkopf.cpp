#include "kern/richtext/rtfkopf.h"

#include <algorithm>
#include <utility>

#include "kern/grund/utf8.h"

namespace zinfolio {

void Schriftentabelle::Beginnen(int nummer) {
    Abschliessen();
    offen_ = nummer;
}

void Schriftentabelle::ZeichensatzSetzen(int fcharset) {
    neu_.fcharset = fcharset;
}

void Schriftentabelle::Zeichen(char32_t zeichen) {
    if (zeichen == ';') return Abschliessen();
    if (offen_ && neu_.name.size() <= 2 * hoechsterSchriftname) Utf8Anhaengen(neu_.name, zeichen);
}

void Schriftentabelle::Abschliessen() {
    Eintrag fertig = std::exchange(neu_, {});
    if (!offen_) return;
    fertig.name = Schriftname(fertig.name);
    eintraege_.insert_or_assign(*offen_, std::move(fertig));
    offen_.reset();
}

Codepage Schriftentabelle::Namenscodepage() const {
    const Codepage codepage = CodepageAusZeichensatz(neu_.fcharset, ansi_);
    return codepage == Codepage::symbol ? ansi_ : codepage;
}

const Schriftentabelle::Eintrag* Schriftentabelle::Suche(int nummer) const {
    const auto eintrag = eintraege_.find(nummer);
    return eintrag == eintraege_.end() ? nullptr : &eintrag->second;
}

Rtfschrift Schriftentabelle::Schrift(int nummer) const {
    if (const Eintrag* eintrag = Suche(nummer)) return Aus(*eintrag);
    if (const Eintrag* eintrag = Suche(standard_)) return Aus(*eintrag);
    return {.codepage = ansi_};
}

Rtfschrift Schriftentabelle::Aus(const Eintrag& eintrag) const {
    const Codepage codepage = CodepageAusZeichensatz(eintrag.fcharset, ansi_);
    if (codepage != Codepage::symbol) return {eintrag.name, codepage};
    if (eintrag.name != "Symbol") return {eintrag.name, Codepage::eigene};
    return {Standardname(), Codepage::symbol};
}

std::string Schriftentabelle::Standardname() const {
    const Eintrag* standard = Suche(standard_);
    return standard && standard->name != "Symbol" ? standard->name : std::string(grundschrift);
}

void Farbtabelle::Anteil(std::uint8_t Farbe::*ton, int anteil) {
    if (!neu_) neu_ = Farbe{};
    (*neu_).*ton = static_cast<std::uint8_t>(std::clamp(anteil, 0, 255));
}

void Farbtabelle::EintragEnde() {
    farben_.push_back(std::exchange(neu_, {}));
}

std::optional<Farbe> Farbtabelle::Nach(int nummer) const {
    if (nummer < 0 || static_cast<std::size_t>(nummer) >= farben_.size()) return {};
    return farben_[static_cast<std::size_t>(nummer)];
}

}  // namespace zinfolio
