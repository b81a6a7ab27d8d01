#include "kern/richtext/rtfaufbau.h"

#include <string>
#include <utility>

#include "kern/grund/utf8.h"

namespace zinfolio {
namespace {

constexpr char32_t ersatzzeichen = 0xFFFD;

constexpr bool ErsteHaelfte(char32_t einheit) {
    return einheit >= 0xD800 && einheit <= 0xDBFF;
}

constexpr bool ZweiteHaelfte(char32_t einheit) {
    return einheit >= 0xDC00 && einheit <= 0xDFFF;
}

constexpr char32_t Paar(char32_t erste, char32_t zweite) {
    return 0x10000 + ((erste - 0xD800) << 10U) + (zweite - 0xDC00);
}

}  // namespace

void Textaufbau::Text(std::string_view ascii, const Zeichenformat& format) {
    HalbesPaarBeenden(format);
    Anhaengen(ascii, format);
}

void Textaufbau::Zeichen(char32_t zeichen, const Zeichenformat& format) {
    HalbesPaarBeenden(format);
    const auto text = Textzeichen(zeichen);
    if (!text) return;
    std::string utf8;
    Utf8Anhaengen(utf8, *text);
    Anhaengen(utf8, format);
}

void Textaufbau::Einheit(std::uint16_t einheit, const Zeichenformat& format) {
    if (ZweiteHaelfte(einheit) && halbesPaar_ != 0) {
        Zeichen(Paar(std::exchange(halbesPaar_, 0), einheit), format);
    } else if (ErsteHaelfte(einheit)) {
        HalbesPaarBeenden(format);
        halbesPaar_ = einheit;
    } else {
        Zeichen(ZweiteHaelfte(einheit) ? ersatzzeichen : einheit, format);
    }
}

void Textaufbau::AbsatzEnde(const Absatzformat& format) {
    HalbesPaarBeenden(offen_.laeufe.empty() ? Zeichenformat{} : offen_.laeufe.back().format);
    offen_.format = Normalform(format);
    if (std::exchange(neueSeite_, false)) offen_.format.seitenwechselDavor = true;
    fertig_.absaetze.push_back(std::exchange(offen_, {}));
}

void Textaufbau::Seitenwechsel(const Absatzformat& format) {
    if (!offen_.laeufe.empty() || halbesPaar_ != 0) AbsatzEnde(format);
    neueSeite_ = true;
}

Richtext Textaufbau::Fertig(const Absatzformat& letztesFormat) {
    const bool offen = !offen_.laeufe.empty() || halbesPaar_ != 0;
    if (offen || fertig_.absaetze.empty()) AbsatzEnde(letztesFormat);
    return std::exchange(fertig_, {.absaetze = {}});
}

void Textaufbau::HalbesPaarBeenden(const Zeichenformat& format) {
    if (std::exchange(halbesPaar_, 0) != 0) Zeichen(ersatzzeichen, format);
}

void Textaufbau::Anhaengen(std::string_view utf8, const Zeichenformat& format) {
    auto& laeufe = offen_.laeufe;
    if (laeufe.empty() || laeufe.back().format != format) laeufe.push_back({.text = {}, .format = format});
    laeufe.back().text += utf8;
}

}  // namespace zinfolio
