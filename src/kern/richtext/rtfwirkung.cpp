#include "kern/richtext/rtfwirkung.h"

namespace zinfolio::rtfwirkung {
namespace {

void SchriftSetzen(Rtfzustand& zustand, const Rtfschrift& schrift) {
    zustand.zeichen.schrift = schrift.name;
    zustand.codepage = schrift.codepage;
}

}  // namespace

void Schriftwahl(Rtfstand& stand, Zahl zahl) {
    const int nummer = zahl.value_or(0);
    if (stand.Oben().ziel == Rtfziel::schriften) {
        stand.schriften.Beginnen(nummer);
    } else if (stand.ImText()) {
        SchriftSetzen(stand.Oben(), stand.schriften.Schrift(nummer));
    }
}

void Zeichensatz(Rtfstand& stand, Zahl zahl) {
    if (stand.Oben().ziel == Rtfziel::schriften) stand.schriften.ZeichensatzSetzen(zahl.value_or(0));
}

void Schriftgroesse(Rtfstand& stand, Zahl zahl) {
    const int groesse = zahl.value_or(0);
    stand.Oben().zeichen.groesse = groesse > 0 ? Begrenzt(groesse, hoechsteGroesse) : grundgroesse;
}

void Hintergrund(Rtfstand& stand, Zahl zahl) {
    const int nummer = zahl.value_or(0);
    // Number 0 takes the background away, whatever the table says of it.
    stand.Oben().zeichen.hintergrund = nummer == 0 ? std::nullopt : stand.farben.Nach(nummer);
}

void Standardzeichen(Rtfstand& stand, Zahl /*zahl*/) {
    stand.Oben().zeichen = {};
    SchriftSetzen(stand.Oben(), stand.schriften.Standard());
}

void Standardabsatz(Rtfstand& stand, Zahl /*zahl*/) {
    stand.Oben().absatz = {};
    stand.Oben().tabart = Tabart::links;
}

void Tabulatorstelle(Rtfstand& stand, Zahl zahl) {
    Rtfzustand& zustand = stand.Oben();
    TabulatorEinfuegen(zustand.absatz.tabulatoren,
                       {Begrenzt(zahl.value_or(0), hoechsteLaenge), zustand.tabart});
    zustand.tabart = Tabart::links;
}

void Absatzende(Rtfstand& stand, Zahl /*zahl*/) {
    stand.AbsatzEnde();
}

void Seitenwechsel(Rtfstand& stand, Zahl /*zahl*/) {
    if (stand.ImText()) stand.aufbau.Seitenwechsel(stand.Oben().absatz);
}

void VerschachtelteZeileEnde(Rtfstand& stand, Zahl /*zahl*/) {
    const bool zeile = stand.ImText() || stand.Oben().ziel == Rtfziel::verschachtelteZeile;
    if (zeile) stand.aufbau.AbsatzEnde(stand.Oben().absatz);
}

void KeineTrennung(Rtfstand& stand, Zahl zahl) {
    stand.Oben().absatz.ohneTrennung = zahl == 0;
}

void Listenangabe(Rtfstand& stand, Zahl zahl) {
    Gruppe<Rtfziel::listenangabe>(stand, zahl);
    stand.liste = {.nach = Nachzeichen::keins};
}

void Listenbeginn(Rtfstand& stand, Zahl zahl) {
    constexpr int groesste = 32767;
    stand.liste.beginn = static_cast<std::int16_t>(std::clamp(zahl.value_or(1), 0, groesste));
}

void Unicode(Rtfstand& stand, Zahl zahl) {
    constexpr int einheiten = 0x10000;
    constexpr int kleinste = -0x8000;
    constexpr int keinZeichen = 0xFFFD;
    const int nummer = zahl.value_or(keinZeichen);
    const bool einheit = nummer >= kleinste && nummer < einheiten;
    stand.Einheit(static_cast<std::uint16_t>(einheit ? nummer : keinZeichen));
    stand.ersatzRest = stand.Oben().ersatzlaenge;
}

void Ersatzlaenge(Rtfstand& stand, Zahl zahl) {
    stand.Oben().ersatzlaenge = std::max(zahl.value_or(1), 0);
}

void Ansicodepage(Rtfstand& stand, Zahl zahl) {
    const Codepage ansi = CodepageAusNummer(zahl.value_or(0));
    stand.schriften.AnsiSetzen(ansi);
    stand.Oben().codepage = ansi;
}

void Standardschrift(Rtfstand& stand, Zahl zahl) {
    stand.schriften.StandardSetzen(zahl.value_or(0));
}

void Binaerdaten(Rtfstand& stand, Zahl zahl) {
    stand.binaerRest = static_cast<std::size_t>(std::max(zahl.value_or(0), 0));
}

}  // namespace zinfolio::rtfwirkung
