// Writes a document with everything that a reader should show to the standard output.

#include <iostream>
#include <utility>

#include "kern/richtext/rtfschreiben.h"

namespace {

using namespace zinfolio;

void Anfuegen(Richtext& text, const Absatzformat& format, std::vector<Lauf> laeufe) {
    Absatz& absatz = text.absaetze.emplace_back();
    absatz.format = format;
    absatz.laeufe = std::move(laeufe);
}

}  // namespace

int main() {
    const Absatzformat punkte{.links = 200, .ersteZeile = -200, .liste = {.art = Listenart::punkte}};
    const Absatzformat zahlen{
        .links = 200, .ersteZeile = -200, .liste = {.art = Listenart::dezimal, .beginn = 7}};
    Richtext text{.absaetze = {}};
    Anfuegen(text, {}, {{"Zinsen für Öl & Ähren, groß: 5 € {geschweift} \\ schräg", {}}});
    Anfuegen(text, {.ausrichtung = Ausrichtung::mitte},
             {{"fett", {.fett = true}},
              {" ", {}},
              {"kursiv", {.kursiv = true}},
              {" ", {}},
              {"unterstrichen", {.unterstreichung = Unterstreichung::einfach}},
              {" ", {}},
              {"klein", {.schrift = "Arial", .groesse = 12, .farbe = Farbe{255, 0, 0}}},
              {" groß", {.groesse = 48}}});
    Anfuegen(text, {}, {{"griechisch: αω", {}}});
    Anfuegen(text, punkte, {{"erster Punkt", {}}});
    Anfuegen(text, punkte, {{"zweiter Punkt", {}}});
    Anfuegen(text, zahlen, {{"siebter", {}}});
    Anfuegen(text, zahlen, {{"achter", {}}});
    Anfuegen(text, {}, {{"Ende", {}}});
    std::cout << RtfSchreiben(text);
    return std::cout.good() ? 0 : 1;
}
