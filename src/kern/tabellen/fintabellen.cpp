#include "kern/tabellen/fintabellen.h"

#include <array>

#include "kern/dateien/selbstwertaufbau.h"

namespace zinfolio {
namespace {

constexpr auto datei = "Fintabellen";

/// A row for a member of the table's input or of the single calculation's.
template <auto teil, auto glied>
constexpr Selbstwertzeile<Fintabellen> Feld(std::size_t satz, std::size_t eintraege = 0) {
    return Selbstfeld < [](auto& f) -> auto& {
        return f.*teil.*glied;
    }
    , Fintabellen > (satz, {.eintraege = eintraege});
}

template <auto teil, auto glied>
constexpr Selbstwertzeile<Fintabellen> Wahl(std::size_t satz, std::size_t eintraege) {
    return Selbstfeld < [](auto& f) -> auto& {
        return (f.*teil).wahl.*glied;
    }
    , Fintabellen > (satz, {.eintraege = eintraege});
}

constexpr auto tab = &Fintabellen::tabelle;
constexpr auto einzeln = &Fintabellen::einzeln;

constexpr std::array fintabellenzeilen{
    Wahl<tab, &Faktorwahl::faktor>(1, finanzfaktoren.size()),
    Feld<tab, &Faktortabelleneingabe::Schrittweite>(2, schrittweiten.size()),
    Feld<tab, &Faktortabelleneingabe::Pro1>(3),
    Feld<tab, &Faktortabelleneingabe::Pro2>(4),
    Feld<tab, &Faktortabelleneingabe::J1>(5),
    Feld<tab, &Faktortabelleneingabe::J2>(6),
    Wahl<tab, &Faktorwahl::rhythmus>(7, rentenrhythmen.size()),
    Wahl<tab, &Faktorwahl::faelligkeit>(8, rentenfaelligkeiten.size()),
    Feld<einzeln, &Einzelfaktoreingabe::Zins2>(9),
    Feld<einzeln, &Einzelfaktoreingabe::Jahre2>(10),
    Feld<einzeln, &Einzelfaktoreingabe::Betrag2>(11),
    Wahl<einzeln, &Faktorwahl::rhythmus>(12, rentenrhythmen.size()),
    Wahl<einzeln, &Faktorwahl::faelligkeit>(13, rentenfaelligkeiten.size()),
};

constexpr Selbstwertaufbau<Fintabellen> fintabellenaufbau{300, fintabellenzeilen};

}  // namespace

Fintabellen FintabellenLesen(const std::filesystem::path& ordner) {
    return fintabellenaufbau.Lesen(ordner / datei);
}

void FintabellenSchreiben(const std::filesystem::path& ordner, const Fintabellen& eingabe) {
    fintabellenaufbau.Schreiben(ordner / datei, eingabe);
}

}  // namespace zinfolio
