#pragma once
// Random documents in normal form, the same on every machine.

#include <array>
#include <random>
#include <string>
#include <string_view>

#include "kern/richtext/richtext.h"

namespace zinfolio {

class Zufallstext {
  public:
    explicit Zufallstext(std::uint64_t saat) : zufall_(saat) {}

    /// A document of up to six paragraphs.
    [[nodiscard]] Richtext Dokument() {
        Richtext text{.absaetze = {}};
        const int absaetze = Bis(6);
        Absatzformat format;
        for (int i = 0; i < absaetze; ++i) {
            if (Bis(2) == 0) format = Absatzart();
            text.absaetze.push_back({.format = format, .laeufe = Laeufe()});
        }
        return Normalform(std::move(text));
    }

    /// A whole number from 0 to one less than `grenze`.
    [[nodiscard]] int Bis(int grenze) {
        return static_cast<int>(zufall_() % static_cast<std::uint64_t>(grenze));
    }

    [[nodiscard]] Zeichenformat Zeichenart() {
        static constexpr std::array<std::string_view, 6> schriften{
            "Courier New", "Arial", "Wingdings", "Düne Ω", "Symbol", "Times New Roman"};
        Zeichenformat format;
        if (Selten()) format.schrift = schriften[static_cast<std::size_t>(Bis(6))];
        if (Selten()) format.groesse = static_cast<std::int16_t>(1 + Bis(hoechsteGroesse));
        format.fett = Selten();
        format.kursiv = Selten();
        format.durchgestrichen = Selten();
        format.verborgen = Selten();
        if (Selten()) format.unterstreichung = static_cast<Unterstreichung>(Bis(5));
        if (Selten()) format.lage = static_cast<Zeichenlage>(Bis(3));
        if (Selten()) format.schreibung = static_cast<Schreibung>(Bis(3));
        if (Selten()) format.farbe = Farbton();
        if (Selten()) format.hintergrund = Farbton();
        return format;
    }

    [[nodiscard]] Absatzformat Absatzart() {
        Absatzformat format;
        if (Selten()) format.ausrichtung = static_cast<Ausrichtung>(Bis(4));
        for (auto* laenge : {&format.links, &format.ersteZeile, &format.rechts, &format.davor, &format.danach,
                             &format.zeilenabstand})
            if (Selten()) *laenge = static_cast<std::int16_t>(Bis(2 * hoechsteLaenge) - hoechsteLaenge);
        for (auto* schalter : {&format.vielfach, &format.zusammenhalten, &format.beimNaechstenHalten,
                               &format.ohneTrennung, &format.seitenwechselDavor})
            *schalter = Selten();
        if (Selten()) format.liste = {Listenart(Bis(7)), Nachzeichen(Bis(3)), std::int16_t(Bis(32768))};
        const int tabulatoren = Selten() ? Bis(40) : 0;
        for (int i = 0; i < tabulatoren; ++i)
            format.tabulatoren.push_back({std::int16_t(Bis(hoechsteLaenge)), Tabart(Bis(4))});
        return format;
    }

  private:
    [[nodiscard]] bool Selten() { return Bis(4) == 0; }

    [[nodiscard]] Farbe Farbton() {
        const auto ton = [this] { return static_cast<std::uint8_t>(Bis(3) * 127); };
        return {ton(), ton(), ton()};
    }

    [[nodiscard]] std::vector<Lauf> Laeufe() {
        std::vector<Lauf> laeufe(static_cast<std::size_t>(Bis(5)));
        for (Lauf& lauf : laeufe)
            lauf = {.text = Text(), .format = Zeichenart()};
        return laeufe;
    }

    /// Text with what makes trouble: delimiters, digits and signs behind words, everything that is escaped.
    [[nodiscard]] std::string Text() {
        static constexpr std::array<std::string_view, 24> stuecke{
            "a", "Z", " ", "  ",         "7",      "-",      "\\",     "{", "}", "\t",     "\n",     "ä",
            "ß", "€", "α", "\U0001F600", "\u00A0", "\u00AD", "\u0081", "?", "*", "\uFFFD", "\uF0B7", ";",
        };
        std::string text;
        const int anzahl = Bis(9);
        for (int i = 0; i < anzahl; ++i)
            text += stuecke[static_cast<std::size_t>(Bis(24))];
        return text;
    }

    std::mt19937_64 zufall_;
};

}  // namespace zinfolio
