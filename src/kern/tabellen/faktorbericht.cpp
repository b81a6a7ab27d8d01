#include "kern/tabellen/faktorbericht.h"

#include <string_view>
#include <utility>

#include "kern/bericht/tabelle.h"
#include "kern/bericht/textumbruch.h"

namespace zinfolio {
namespace {

/// The width of the head block, and what a character of Arial 10 takes of it on average; both in twips.
constexpr double kopfblockbreite = 5.8 * twipsJeZoll;
constexpr double zeichenbreite = 100;
constexpr std::size_t meisteKopfspalten = 6;
/// At four points, the smallest type of a report, its narrowest columns fill the page.
constexpr std::size_t meisteSeitenspalten = 35;
constexpr std::string_view jahresspalte = "^+1.0in";
constexpr std::string_view satzspalte = "|^1.6in";

void TextAnfuegen(std::vector<std::string>& kopfblock, std::string_view text) {
    const Textmass mass([](char32_t) { return zeichenbreite; });
    for (std::string& zeile : mass.InZeilen(text, kopfblockbreite))
        kopfblock.push_back(std::move(zeile));
}

std::string Zahlungsweise(const Faktorwahl& wahl) {
    std::string zeile = "Zahlungsweise: ";
    zeile.append(rentenrhythmen.at(static_cast<std::size_t>(wahl.rhythmus))).append(" ");
    return zeile.append(rentenfaelligkeiten.at(static_cast<std::size_t>(wahl.faelligkeit)));
}

Berichtstabelle Tabelle(std::shared_ptr<const Faktortabelle> tabelle) {
    const std::size_t spalten = tabelle->Spalten();
    std::string format(jahresspalte);
    for (std::size_t spalte = 1; spalte < spalten; ++spalte)
        format.append(satzspalte);
    Berichtstabelle bericht = BerichtstabelleBilden(FaktortabelleZeigen(std::move(tabelle)), format, 10);
    if (spalten > meisteKopfspalten)
        for (Berichtsspalte& spalte : bericht.spalten)
            spalte.kopf.clear();
    return bericht;
}

}  // namespace

std::optional<Ablehnung> FaktortabellenberichtPruefen(const Faktortabelle& tabelle) {
    if (tabelle.Spalten() <= meisteSeitenspalten) return std::nullopt;
    return Ablehnung{
        "Die Tabelle hat " + std::to_string(tabelle.Spalten() - 1) +
            " Zinssätze. Auf eine Seite passen höchstens " + std::to_string(meisteSeitenspalten - 1) +
            ". Bitte wählen Sie zum Drucken einen kleineren Bereich oder eine größere Schrittweite.",
        "Pro2", ""};
}

Bericht FaktortabellenberichtBilden(const Faktorwahl& wahl, std::shared_ptr<const Faktortabelle> tabelle) {
    const Finanzfaktortext& text = Faktortext(wahl.faktor);
    Bericht bericht;
    bericht.titel = text.eintrag;
    bericht.kopfblockschrift = {.name = "Arial", .punkte = 10};
    bericht.kopfblock = {std::string(text.eintrag), Zahlungsweise(wahl)};
    TextAnfuegen(bericht.kopfblock, text.erklaerung);
    if (tabelle && !tabelle->Leer()) bericht.tabelle = Tabelle(std::move(tabelle));
    return bericht;
}

Bericht EinzelfaktorberichtBilden(const Einzelfaktoreingabe& eingabe, const Einzelfaktor& ergebnis) {
    const Finanzfaktortext& text = Faktortext(eingabe.wahl.faktor);
    Bericht bericht;
    bericht.titel = text.eintrag;
    bericht.kopfblockschrift = {.name = "Arial", .punkte = 10};
    bericht.kopfblock = {std::string(text.eintrag), ""};
    TextAnfuegen(bericht.kopfblock, text.erklaerung);
    for (const std::string& zeile : {std::string(), "Zins  : " + eingabe.Zins2, "Jahre : " + eingabe.Jahre2,
                                     "Betrag: " + eingabe.Betrag2, Zahlungsweise(eingabe.wahl), std::string(),
                                     "Ergebnis: " + ergebnis.Ergebnis, std::string()})
        bericht.kopfblock.push_back(zeile);
    TextAnfuegen(bericht.kopfblock, ergebnis.Erklärung3);
    return bericht;
}

}  // namespace zinfolio
