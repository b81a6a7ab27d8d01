#include "kern/richtext/richtext.h"

#include <algorithm>
#include <utility>

#include "kern/grund/utf8.h"

namespace zinfolio {
namespace {

constexpr bool IstKeinZeichen(char32_t zeichen) {
    return zeichen > 0x10FFFF || (zeichen >= 0xD800 && zeichen <= 0xDFFF) ||
           (zeichen >= 0xFDD0 && zeichen <= 0xFDEF) || (zeichen & 0xFFFEU) == 0xFFFE;
}

std::string TextInNormalform(std::string_view text) {
    std::string ergebnis;
    while (!text.empty()) {
        const auto gelesen = Utf8Lesen(text);
        text.remove_prefix(gelesen ? gelesen->laenge : 1);
        if (!gelesen) continue;
        if (const auto zeichen = Textzeichen(gelesen->codepunkt)) Utf8Anhaengen(ergebnis, *zeichen);
    }
    return ergebnis;
}

std::vector<Lauf> LaeufeInNormalform(std::vector<Lauf> laeufe) {
    std::vector<Lauf> ergebnis;
    for (Lauf& lauf : laeufe) {
        lauf.text = TextInNormalform(lauf.text);
        if (lauf.text.empty()) continue;
        lauf.format.schrift = Schriftname(lauf.format.schrift);
        lauf.format.groesse = std::clamp<std::int16_t>(lauf.format.groesse, 1, hoechsteGroesse);
        if (!ergebnis.empty() && ergebnis.back().format == lauf.format)
            ergebnis.back().text += lauf.text;
        else
            ergebnis.push_back(std::move(lauf));
    }
    return ergebnis;
}

Liste ListeInNormalform(Liste liste) {
    liste.beginn = std::max<std::int16_t>(liste.beginn, 0);
    if (liste.art == Listenart::keine || liste.art == Listenart::punkte) return {.art = liste.art};
    return liste;
}

}  // namespace

Richtext Normalform(Richtext text) {
    if (text.absaetze.empty()) text.absaetze.resize(1);
    for (Absatz& absatz : text.absaetze) {
        absatz.format = Normalform(std::move(absatz.format));
        absatz.laeufe = LaeufeInNormalform(std::move(absatz.laeufe));
    }
    return text;
}

Absatzformat Normalform(Absatzformat format) {
    for (auto* laenge : {&format.links, &format.ersteZeile, &format.rechts, &format.zeilenabstand})
        *laenge = std::clamp<std::int16_t>(*laenge, -hoechsteLaenge, hoechsteLaenge);
    for (auto* laenge : {&format.davor, &format.danach})
        *laenge = std::clamp<std::int16_t>(*laenge, 0, hoechsteLaenge);
    format.vielfach = format.vielfach && format.zeilenabstand > 0;
    format.liste = ListeInNormalform(format.liste);
    const std::vector<Tabulator> tabulatoren = std::exchange(format.tabulatoren, {});
    format.tabulatoren.reserve(std::min(tabulatoren.size(), hoechsteTabzahl));
    for (const Tabulator& tabulator : tabulatoren)
        TabulatorEinfuegen(format.tabulatoren, tabulator);
    return format;
}

std::optional<char32_t> Textzeichen(char32_t zeichen) {
    constexpr char32_t vertikaltab = 0x0B;
    constexpr char32_t zeilentrenner = 0x2028;
    constexpr char32_t absatztrenner = 0x2029;
    constexpr char32_t objekt = 0xFFFC;
    if (zeichen == '\t' || zeichen == '\n') return zeichen;
    if (zeichen == vertikaltab || zeichen == zeilentrenner || zeichen == absatztrenner) return U'\n';
    if (zeichen < ' ' || zeichen == 0x7F || zeichen == objekt || IstKeinZeichen(zeichen)) return {};
    return zeichen;
}

std::string Schriftname(std::string_view utf8) {
    std::string name = TextInNormalform(utf8);
    std::erase_if(name, [](char zeichen) { return zeichen == ';' || zeichen == '\t' || zeichen == '\n'; });
    name.erase(0, std::min(name.find_first_not_of(' '), name.size()));
    if (name.size() > hoechsterSchriftname) {
        std::size_t ende = hoechsterSchriftname;
        while (IstUtf8Folge(name[ende]))
            --ende;
        name.resize(ende);
    }
    name.erase(name.find_last_not_of(' ') + 1);
    return name.empty() ? std::string(grundschrift) : name;
}

void TabulatorEinfuegen(std::vector<Tabulator>& tabulatoren, Tabulator neu) {
    neu.stelle = std::min(neu.stelle, hoechsteLaenge);
    if (neu.stelle <= 0) return;
    const auto davor = [](const Tabulator& a, const Tabulator& b) { return a.stelle < b.stelle; };
    const auto platz = std::lower_bound(tabulatoren.begin(), tabulatoren.end(), neu, davor);
    if (platz != tabulatoren.end() && platz->stelle == neu.stelle) {
        *platz = neu;
    } else if (tabulatoren.size() < hoechsteTabzahl) {
        tabulatoren.insert(platz, neu);
    }
}

}  // namespace zinfolio
