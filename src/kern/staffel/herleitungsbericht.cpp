#include "kern/staffel/herleitungsbericht.h"

#include <array>
#include <string_view>
#include <utility>

#include "kern/dates/textteile.h"
#include "kern/finmath/herleitung.h"

namespace zinfolio {
namespace {

constexpr std::string_view format = "^+1.2in|^1.7in|^1.7in|^1.7in|^1.7in|^1.7in";
constexpr double punkte = 8;

std::string Seitenzeile(const Herleitungsberichtsdaten& daten) {
    std::string zeile(herleitungsueberschrift);
    zeile.append(" ").append(Effektivmethodentext(daten.methode));
    zeile.append(" : ").append(Getrimmt(daten.ezins)).append(" %    *    ").append(daten.projekt);
    if (daten.veraltet) zeile.append("    *    gehört nicht mehr zum Konto");
    return zeile;
}

template <std::size_t Stelle>
std::string Zelle(const Ergebnissatz& satz) {
    return Herleitungstext(satz, Stelle);
}

template <auto Feld>
double Zahlenwert(const Ergebnissatz& satz) {
    return satz.*Feld;
}

constexpr std::string_view faktorkopf = "Faktor";
constexpr std::size_t faktorspalte = 2;

constexpr std::array herleitungsspalten{
    Spalte<Ergebnissatz>{.kopf = "Datum", .zelle = Zelle<0>, .art = Zellart::datum},
    Spalte<Ergebnissatz>{
        .kopf = "Betrag", .zelle = Zelle<1>, .zahl = Zahlenwert<&Ergebnissatz::Ergebnisbetrag>},
    Spalte<Ergebnissatz>{
        .kopf = faktorkopf, .zelle = Zelle<faktorspalte>, .zahl = Zahlenwert<&Ergebnissatz::Faktor>},
    Spalte<Ergebnissatz>{
        .kopf = "Vermögensendwert", .zelle = Zelle<3>, .zahl = Zahlenwert<&Ergebnissatz::Zeilenwert>},
    Spalte<Ergebnissatz>{.kopf = "kumulierter Vermögensendwert",
                         .zelle = Zelle<4>,
                         .zahl = Zahlenwert<&Ergebnissatz::Summenwert>},
    Spalte<Ergebnissatz>{
        .kopf = "kumulierte Zahlungen", .zelle = Zelle<5>, .zahl = Zahlenwert<&Ergebnissatz::Summenbetrag>},
};

}  // namespace

Tabelleninhalt HerleitungstabelleBilden(std::shared_ptr<const std::vector<Ergebnissatz>> zeilen,
                                        std::string_view effektivergebnis) {
    if (!zeilen) zeilen = std::make_shared<const std::vector<Ergebnissatz>>();
    Tabelleninhalt inhalt = TabelleBilden<Ergebnissatz>(
        {herleitungsspalten.begin(), herleitungsspalten.end()}, std::move(zeilen));
    Tabellenspalte& faktor = inhalt.spalten[faktorspalte];
    faktor.kopf.append(" ").append(Getrimmt(effektivergebnis)).append(" %");
    faktor.berichtskopf = faktorkopf;
    return inhalt;
}

Bericht HerleitungsberichtBilden(const Herleitungsberichtsdaten& daten) {
    Bericht bericht;
    bericht.titel = daten.projekt.empty() ? "Effektivzinssatz" : "Effektivzinssatz " + daten.projekt;
    bericht.seitenzeile = Seitenzeile(daten);
    bericht.tabelle =
        BerichtstabelleBilden(HerleitungstabelleBilden(daten.zeilen, daten.ezins), format, punkte);
    return bericht;
}

}  // namespace zinfolio
