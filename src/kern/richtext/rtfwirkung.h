#pragma once
// What control words do, as functions for the table of words. A word without a number counts as switched on,
// and as 0 where it tells a length.

#include <algorithm>
#include <optional>

#include "kern/richtext/rtfstand.h"

namespace zinfolio::rtfwirkung {

using Zahl = std::optional<int>;

inline std::int16_t Begrenzt(int zahl, std::int16_t hoechstens) {
    return static_cast<std::int16_t>(std::clamp<int>(zahl, -hoechstens, hoechstens));
}

inline bool An(Zahl zahl) {
    return zahl != 0;
}

/// Switches a property of characters or paragraphs.
template <bool Zeichenformat::*merkmal>
void Schalter(Rtfstand& stand, Zahl zahl) {
    stand.Oben().zeichen.*merkmal = An(zahl);
}

template <bool Absatzformat::*merkmal>
void Absatzschalter(Rtfstand& stand, Zahl zahl) {
    stand.Oben().absatz.*merkmal = An(zahl);
}

/// Sets a property to a value, and back to its default by a 0.
template <auto merkmal, auto wert>
void Setzt(Rtfstand& stand, Zahl zahl) {
    stand.Oben().zeichen.*merkmal = An(zahl) ? wert : decltype(wert){};
}

template <auto merkmal, auto wert>
void SetztAbsatz(Rtfstand& stand, Zahl /*zahl*/) {
    stand.Oben().absatz.*merkmal = wert;
}

template <std::int16_t Absatzformat::*laenge>
void Laenge(Rtfstand& stand, Zahl zahl) {
    stand.Oben().absatz.*laenge = Begrenzt(zahl.value_or(0), hoechsteLaenge);
}

template <Tabart art>
void Tabulatorart(Rtfstand& stand, Zahl /*zahl*/) {
    stand.Oben().tabart = art;
}

template <char32_t zeichen>
void Zeichenwort(Rtfstand& stand, Zahl /*zahl*/) {
    stand.Sonderzeichen(zeichen);
}

template <std::optional<Farbe> Zeichenformat::*merkmal>
void Farbwort(Rtfstand& stand, Zahl zahl) {
    stand.Oben().zeichen.*merkmal = stand.farben.Nach(zahl.value_or(0));
}

template <void (Farbtabelle::*ton)(int)>
void Farbanteil(Rtfstand& stand, Zahl zahl) {
    if (stand.Oben().ziel == Rtfziel::farben) (stand.farben.*ton)(zahl.value_or(0));
}

/// Sends the text of the group elsewhere, if it lies in a group of the kind `von`; else nowhere.
template <Rtfziel nach, Rtfziel von = Rtfziel::text>
void Gruppe(Rtfstand& stand, Zahl /*zahl*/) {
    Rtfziel& ziel = stand.Oben().ziel;
    if (ziel != nach) ziel = ziel == von ? nach : Rtfziel::verwerfen;
}

template <Listenart art>
void Listenwort(Rtfstand& stand, Zahl /*zahl*/) {
    if (stand.Oben().ziel == Rtfziel::listenangabe) stand.liste.art = art;
}

void Schriftwahl(Rtfstand& stand, Zahl zahl);
void Zeichensatz(Rtfstand& stand, Zahl zahl);
void Schriftgroesse(Rtfstand& stand, Zahl zahl);
void Hintergrund(Rtfstand& stand, Zahl zahl);
void Standardzeichen(Rtfstand& stand, Zahl zahl);
void Standardabsatz(Rtfstand& stand, Zahl zahl);
void Tabulatorstelle(Rtfstand& stand, Zahl zahl);
void Absatzende(Rtfstand& stand, Zahl zahl);
void Seitenwechsel(Rtfstand& stand, Zahl zahl);
void VerschachtelteZeileEnde(Rtfstand& stand, Zahl zahl);
void KeineTrennung(Rtfstand& stand, Zahl zahl);
void Listenangabe(Rtfstand& stand, Zahl zahl);
void Listenbeginn(Rtfstand& stand, Zahl zahl);
void Unicode(Rtfstand& stand, Zahl zahl);
void Ersatzlaenge(Rtfstand& stand, Zahl zahl);
void Ansicodepage(Rtfstand& stand, Zahl zahl);
void Standardschrift(Rtfstand& stand, Zahl zahl);
void Binaerdaten(Rtfstand& stand, Zahl zahl);

}  // namespace zinfolio::rtfwirkung
