#include "kern/tabellen/kurzbericht.h"

#include "kern/bericht/zeilenformat.h"

namespace zinfolio {
namespace {

std::string Zeile(std::string_view bezeichnung, std::string_view wert) {
    return Zeilenformat({.Spalte1 = 30, .Spalte2 = 53, .Bezeichnung = bezeichnung, .Wert = wert});
}

std::string_view Wahltext(std::span<const Kurzwahl> liste, std::int16_t wert) {
    const Kurzwahl* wahl = KurzwahlSuchen(liste, wert);
    return wahl == nullptr ? std::string_view() : wahl->text;
}

void FelderAnfuegen(Textbericht& bericht, const Kurzrechner& rechner, const Kurzeingabe& eingabe,
                    bool ergebnisse) {
    for (const Kurzfeld& feld : rechner.felder)
        if (feld.ergebnis == ergebnisse)
            bericht.zeilen.push_back(Zeile(Kurzbeschriftung(feld.groesse), eingabe[feld.groesse]));
}

}  // namespace

Textbericht Kurzbericht(const Kurzrechner& rechner, const Kurzeingabe& eingabe) {
    Textbericht bericht{std::string(rechner.titel), {}, "Zinfolio"};
    FelderAnfuegen(bericht, rechner, eingabe, false);
    bericht.zeilen.push_back(Zeile("Zahlweise", Wahltext(kurzzahlweisen, eingabe.m)));
    bericht.zeilen.push_back(Zeile("Zahlungsmodus", Wahltext(kurzzahlungsmodi, eingabe.Zahlungsmodus)));
    bericht.zeilen.emplace_back();
    FelderAnfuegen(bericht, rechner, eingabe, true);
    return bericht;
}

}  // namespace zinfolio
