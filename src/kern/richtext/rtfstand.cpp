#include "kern/richtext/rtfstand.h"

namespace zinfolio {
namespace {

void ListennachtextNehmen(Liste& liste, char zeichen) {
    if (zeichen == '.') liste.nach = Nachzeichen::punkt;
    if (zeichen == ')') liste.nach = Nachzeichen::klammer;
}

/// Fonts of pictures have their characters from U+F000 on as well; those of Symbol are known.
char32_t AusPrivatbereich(Codepage codepage, char32_t zeichen) {
    const bool bild = codepage == Codepage::symbol && zeichen >= 0xF020 && zeichen <= 0xF0FF;
    return bild ? Zeichen(codepage, static_cast<unsigned char>(zeichen & 0xFFU)) : zeichen;
}

constexpr bool IstErsatzhaelfte(std::uint16_t einheit) {
    return einheit >= 0xD800 && einheit <= 0xDFFF;
}

}  // namespace

void Gruppenstapel::Auf() {
    if (zustaende_.size() == hoechsteTiefe) {
        ++ueberzaehlig_;
    } else {
        zustaende_.push_back(Rtfzustand(zustaende_.back()));
    }
}

void Gruppenstapel::Zu() {
    if (ueberzaehlig_ > 0) {
        --ueberzaehlig_;
    } else {
        zustaende_.pop_back();
    }
}

void Rtfstand::Text(std::string_view ascii) {
    if (ImText() && Oben().codepage != Codepage::symbol) return aufbau.Text(ascii, Oben().zeichen);
    if (Oben().ziel == Rtfziel::verwerfen) return;
    for (const char zeichen : ascii)
        Byte(static_cast<unsigned char>(zeichen));
}

void Rtfstand::Byte(unsigned char byte) {
    switch (Oben().ziel) {
        case Rtfziel::text:
            return aufbau.Zeichen(Zeichen(Oben().codepage, byte), Oben().zeichen);
        case Rtfziel::schriften:
            return schriften.Zeichen(Zeichen(schriften.Namenscodepage(), byte));
        case Rtfziel::farben:
            if (byte == ';') farben.EintragEnde();
            return;
        case Rtfziel::listennachtext:
            return ListennachtextNehmen(liste, static_cast<char>(byte));
        default:
            return;
    }
}

void Rtfstand::Sonderzeichen(char32_t zeichen) {
    if (ImText()) aufbau.Zeichen(zeichen, Oben().zeichen);
}

void Rtfstand::Einheit(std::uint16_t einheit) {
    if (ImText()) {
        const char32_t zeichen = AusPrivatbereich(Oben().codepage, einheit);
        aufbau.Einheit(static_cast<std::uint16_t>(zeichen), Oben().zeichen);
    } else if (Oben().ziel == Rtfziel::schriften && !IstErsatzhaelfte(einheit)) {
        schriften.Zeichen(einheit);
    }
}

void Rtfstand::AbsatzEnde() {
    if (ImText()) aufbau.AbsatzEnde(Oben().absatz);
}

void Rtfstand::GruppeAuf() {
    gruppen.Auf();
}

void Rtfstand::GruppeZu() {
    const Rtfziel zuvor = Oben().ziel;
    gruppen.Zu();
    if (zuvor == Rtfziel::schriften) schriften.Abschliessen();
    if (zuvor == Oben().ziel) return;
    if (zuvor == Rtfziel::listenangabe && ImText()) Oben().absatz.liste = liste;
    if (zuvor == Rtfziel::schriften && ImText()) {
        const Rtfschrift standard = schriften.Standard();
        Oben().zeichen.schrift = standard.name;
        Oben().codepage = standard.codepage;
    }
}

}  // namespace zinfolio
