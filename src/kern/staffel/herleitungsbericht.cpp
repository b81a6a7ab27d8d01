#include "kern/staffel/herleitungsbericht.h"

#include <string_view>
#include <utility>

#include "kern/bericht/spaltenformat.h"
#include "kern/dates/textteile.h"
#include "kern/finmath/herleitung.h"

namespace zinfolio {
namespace {

constexpr std::string_view format = "^+1.2in|^1.7in|^1.7in|^1.7in|^1.7in|^1.7in";
constexpr std::string_view koepfe =
    "Datum|Betrag|Faktor|Vermögensendwert|kumulierter Vermögensendwert|kumulierte Zahlungen";
constexpr double punkte = 8;

std::string Seitenzeile(const Herleitungsberichtsdaten& daten) {
    std::string zeile(herleitungsueberschrift);
    zeile.append(" ").append(Effektivmethodentext(daten.methode));
    zeile.append(" : ").append(Getrimmt(daten.ezins)).append(" %    *    ").append(daten.projekt);
    return zeile;
}

}  // namespace

Bericht HerleitungsberichtBilden(const Herleitungsberichtsdaten& daten) {
    auto saetze = daten.zeilen ? daten.zeilen : std::make_shared<const std::vector<Ergebnissatz>>();
    const std::size_t anzahl = saetze->size();
    Bericht bericht;
    bericht.titel = daten.projekt.empty() ? "Effektivzinssatz" : "Effektivzinssatz " + daten.projekt;
    bericht.seitenzeile = Seitenzeile(daten);
    bericht.tabelle = {
        .spalten = SpaltenformatLesen(format, koepfe),
        .kopfschrift = {.name = "Arial", .punkte = punkte, .fett = true},
        .schrift = {.name = "Arial", .punkte = punkte},
        .zeilen = anzahl,
        .zelle = [saetze = std::move(saetze)](
                     std::size_t zeile,
                     std::size_t spalte) { return Herleitungstext((*saetze)[zeile], spalte); },
    };
    return bericht;
}

}  // namespace zinfolio
