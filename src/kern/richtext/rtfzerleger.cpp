#include "kern/richtext/rtfzerleger.h"

#include <algorithm>
#include <charconv>

namespace zinfolio {
namespace {

using Art = Rtfstueck::Art;

constexpr bool IstBuchstabe(char zeichen) {
    return (zeichen >= 'a' && zeichen <= 'z') || (zeichen >= 'A' && zeichen <= 'Z');
}

constexpr bool IstZiffer(char zeichen) {
    return zeichen >= '0' && zeichen <= '9';
}

constexpr bool IstText(char zeichen) {
    return zeichen >= ' ' && zeichen <= '~' && zeichen != '\\' && zeichen != '{' && zeichen != '}';
}

/// Control characters that stand for nothing where they stand by themselves.
constexpr bool IstFuellung(char zeichen) {
    const auto byte = static_cast<unsigned char>(zeichen);
    return (byte < ' ' && zeichen != '\t') || byte == 0x7F;
}

/// A byte that a bad \'hh may swallow.
constexpr bool GiltAlsZiffer(char zeichen) {
    return IstText(zeichen) || static_cast<unsigned char>(zeichen) >= 0x80;
}

std::size_t Laenge(std::string_view text, bool (*gehoertDazu)(char)) {
    return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), gehoertDazu) - text.begin());
}

Rtfstueck Symbol(char zeichen) {
    return {.art = Art::symbol, .text = {}, .zahl = {}, .byte = static_cast<unsigned char>(zeichen)};
}

}  // namespace

Rtfstueck Rtfzerleger::Naechstes() {
    Ueberspringen(Laenge(rest_, IstFuellung));
    if (rest_.empty()) return {};
    const char zeichen = rest_.front();
    if (IstText(zeichen)) return Text();
    rest_.remove_prefix(1);
    switch (zeichen) {
        case '{':
            return {.art = Art::gruppeAuf, .text = {}, .zahl = {}};
        case '}':
            return {.art = Art::gruppeZu, .text = {}, .zahl = {}};
        case '\\':
            return Steuerung();
        case '\t':
            return Symbol('\t');
        default:
            return {.art = Art::byte, .text = {}, .zahl = {}, .byte = static_cast<unsigned char>(zeichen)};
    }
}

void Rtfzerleger::Ueberspringen(std::size_t bytes) {
    rest_.remove_prefix(std::min(bytes, rest_.size()));
}

Rtfstueck Rtfzerleger::Text() {
    const std::size_t laenge = Laenge(rest_, IstText);
    const Rtfstueck stueck{.art = Art::text, .text = rest_.substr(0, laenge), .zahl = {}};
    Ueberspringen(laenge);
    return stueck;
}

Rtfstueck Rtfzerleger::Steuerung() {
    if (rest_.empty()) return {};
    const char zeichen = rest_.front();
    if (IstBuchstabe(zeichen)) return Wort();
    Ueberspringen(1);
    return zeichen == '\'' ? Hexbyte() : Symbol(zeichen);
}

Rtfstueck Rtfzerleger::Wort() {
    Rtfstueck stueck{.art = Art::wort, .text = rest_.substr(0, Laenge(rest_, IstBuchstabe)), .zahl = {}};
    Ueberspringen(stueck.text.size());
    stueck.zahl = Zahl();
    if (rest_.starts_with(' ')) Ueberspringen(1);
    return stueck;
}

std::optional<int> Rtfzerleger::Zahl() {
    const bool negativ = rest_.starts_with('-');
    const std::size_t ziffern = Laenge(rest_.substr(negativ ? 1 : 0), IstZiffer);
    if (ziffern == 0) return {};
    const std::string_view text = rest_.substr(0, ziffern + (negativ ? 1 : 0));
    Ueberspringen(text.size());
    int zahl = 0;
    const auto gelesen = std::from_chars(text.data(), text.data() + text.size(), zahl);
    if (gelesen.ec == std::errc()) return zahl;
    constexpr int grenze = 0x7FFFFFFF;
    return negativ ? -grenze : grenze;
}

Rtfstueck Rtfzerleger::Hexbyte() {
    const std::string_view ziffern = rest_.substr(0, Laenge(rest_.substr(0, 2), GiltAlsZiffer));
    Ueberspringen(ziffern.size());
    unsigned char byte = 0;
    const char* const ende = ziffern.data() + ziffern.size();
    const auto gelesen = std::from_chars(ziffern.data(), ende, byte, 16);
    const bool gut = ziffern.size() == 2 && gelesen.ec == std::errc() && gelesen.ptr == ende;
    if (!gut) return Symbol('\'');
    return {.art = Art::byte, .text = {}, .zahl = {}, .byte = byte};
}

}  // namespace zinfolio
