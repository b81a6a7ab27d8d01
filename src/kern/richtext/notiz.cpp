#include "kern/richtext/notiz.h"

#include <algorithm>
#include <array>

#include "kern/grund/utf8.h"
#include "kern/richtext/rtfzerleger.h"

namespace zinfolio {
namespace {

/// Words that begin a part which a document has no place for.
constexpr std::array<std::string_view, 14> fremdeTeile{
    "pict",    "object", "footnote", "annotation", "header",  "headerl", "headerr",
    "headerf", "footer", "footerl",  "footerr",    "footerf", "shp",     "do"};

/// So many characters from the start of a text.
std::string_view Anfangszeichen(std::string_view utf8, std::size_t zeichen) {
    std::size_t i = 0;
    while (i < utf8.size() && (zeichen > 0 || IstUtf8Folge(utf8[i]))) {
        if (!IstUtf8Folge(utf8[i])) --zeichen;
        ++i;
    }
    return utf8.substr(0, i);
}

/// Takes so much of a paragraph as is left, and takes that off.
Absatz Absatzanfang(const Absatz& absatz, std::size_t& rest) {
    Absatz anfang{.format = absatz.format, .laeufe = {}};
    for (const Lauf& lauf : absatz.laeufe) {
        if (rest == 0) break;
        anfang.laeufe.push_back(
            {.text = std::string(Anfangszeichen(lauf.text, rest)), .format = lauf.format});
        rest -= Zeichenzahl(anfang.laeufe.back().text);
    }
    return anfang;
}

}  // namespace

Richtextmass Mass(const Richtext& text) {
    Richtextmass mass{.zeichen = 0, .absaetze = text.absaetze.size()};
    for (const Absatz& absatz : text.absaetze) {
        for (const Lauf& lauf : absatz.laeufe)
            mass.zeichen += Zeichenzahl(lauf.text);
    }
    mass.zeichen += mass.absaetze - 1;
    return mass;
}

Richtext Anfang(const Richtext& text, const Richtextmass& grenze) {
    Richtext anfang{.absaetze = {}};
    std::size_t rest = grenze.zeichen;
    for (const Absatz& absatz : text.absaetze) {
        if (anfang.absaetze.size() == grenze.absaetze) break;
        anfang.absaetze.push_back(Absatzanfang(absatz, rest));
        if (rest == 0) break;
        --rest;
    }
    return anfang;
}

Richtext InGrundschrift(Richtext text) {
    for (Absatz& absatz : text.absaetze) {
        for (Lauf& lauf : absatz.laeufe) {
            if (lauf.format.schrift == grundschrift) continue;
            lauf.format.schrift = grundschrift;
            lauf.format.groesse = grundgroesse;
        }
    }
    return Normalform(std::move(text));
}

bool HatFremdeTeile(std::string_view datei) {
    if (!datei.starts_with("{\\rtf")) return false;
    Rtfzerleger zerleger(datei);
    for (;;) {
        const Rtfstueck stueck = zerleger.Naechstes();
        if (stueck.art == Rtfstueck::Art::ende) return false;
        if (stueck.art != Rtfstueck::Art::wort) continue;
        if (std::ranges::find(fremdeTeile, stueck.text) != fremdeTeile.end()) return true;
        if (stueck.text == "bin" && stueck.zahl.value_or(0) > 0)
            zerleger.Ueberspringen(static_cast<std::size_t>(*stueck.zahl));
    }
}

}  // namespace zinfolio
