#include "kern/tabellen/faktorbericht.h"

#include <algorithm>
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
/// What a page holds at four points, the smallest type of a report: twips between its margins, and what each
/// column and each character needs of them.
constexpr double seitenbreite = 15838;
constexpr double spaltenrand = 48;
constexpr double zifferbreite = 44.5;
constexpr double satzzeichenbreite = 22.3;
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

double Textbreite(std::string_view text) {
    double breite = 0;
    for (const char zeichen : text)
        breite += zeichen == ',' || zeichen == '.' ? satzzeichenbreite : zifferbreite;
    return breite;
}

/// What a column of rates needs for its longest factors, the least and the largest one.
double Spaltenbedarf(const Faktortabelle& tabelle, std::size_t spalte) {
    std::size_t kleinster = 1;
    std::size_t groesster = 1;
    for (std::size_t zeile = 2; zeile < tabelle.Zeilen(); ++zeile) {
        if (tabelle.Wert(zeile, spalte) < tabelle.Wert(kleinster, spalte)) kleinster = zeile;
        if (tabelle.Wert(zeile, spalte) > tabelle.Wert(groesster, spalte)) groesster = zeile;
    }
    return spaltenrand + std::max(Textbreite(tabelle.Zelle(kleinster, spalte)),
                                  Textbreite(tabelle.Zelle(groesster, spalte)));
}

/// How many columns of rates fit on a page, beside that of the years; a single one is printed in any case.
std::size_t PassendeSaetze(const Faktortabelle& tabelle) {
    double platz = seitenbreite - spaltenrand - Textbreite(tabelle.Zelle(tabelle.Zeilen() - 1, 0));
    for (std::size_t spalte = 1; spalte < tabelle.Spalten(); ++spalte) {
        platz -= Spaltenbedarf(tabelle, spalte);
        if (platz < 0) return std::max<std::size_t>(spalte - 1, 1);
    }
    return tabelle.Spalten() - 1;
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
    if (tabelle.Leer()) return std::nullopt;
    const std::size_t passend = PassendeSaetze(tabelle);
    if (passend + 1 == tabelle.Spalten()) return std::nullopt;
    return Ablehnung{"Die Tabelle hat " + std::to_string(tabelle.Spalten() - 1) +
                         " Zinssätze. Auf eine Seite passen höchstens " + std::to_string(passend) +
                         ". Bitte wählen Sie zum Drucken einen kleineren Bereich oder eine größere "
                         "Schrittweite.",
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
