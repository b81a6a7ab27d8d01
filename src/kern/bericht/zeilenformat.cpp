#include "kern/bericht/zeilenformat.h"

#include "kern/dates/zahl.h"
#include "kern/dates/zahlformat.h"
#include "kern/grund/utf8.h"

namespace zinfolio {
namespace {

constexpr Zahlmuster mitGruppen = Zahlmuster::Lesen("###,0.00");
constexpr Zahlmuster ohneGruppen = Zahlmuster::Lesen("###0.00");

double Zahlenwert(std::string_view wert) {
    return wert.find('.') == std::string_view::npos ? Zahl(wert) : Punktwert(wert);
}

std::string Werttext(std::string_view wert, std::int16_t zahlformat) {
    if (wert.empty()) wert = "0";
    switch (zahlformat) {
        case zeilenzahlformat::gruppiert:
            return Format(Zahlenwert(wert), mitGruppen);
        case zeilenzahlformat::ungruppiert:
            return Format(Zahlenwert(wert), ohneGruppen);
        default:
            return std::string(wert);
    }
}

}  // namespace

std::string Kopfseitenzeile(std::string_view bezeichnung, std::string_view wert) {
    return Zeilenformat({.Spalte1 = kopfseitenbezeichnung,
                         .Spalte2 = kopfseitenwert,
                         .Bezeichnung = bezeichnung,
                         .Wert = wert});
}

std::string Rechtsbuendig(std::string_view text, int breite) {
    const auto zeichen = static_cast<int>(Zeichenzahl(text));
    std::string ergebnis(static_cast<std::size_t>(zeichen < breite ? breite - zeichen : 0), ' ');
    return ergebnis.append(text);
}

std::string Zeilenformat(const Zeilenangabe& angabe) {
    std::string zeile = Rechtsbuendig(angabe.Bezeichnung, angabe.Spalte1);
    const std::string wert = Werttext(angabe.Wert, angabe.Zahlformat);
    if (angabe.Ausrichtung == zeilenausrichtung::direkt) zeile += wert;
    if (angabe.Ausrichtung == zeilenausrichtung::rechts) zeile += Rechtsbuendig(wert, angabe.Spalte2);
    return zeile;
}

}  // namespace zinfolio
