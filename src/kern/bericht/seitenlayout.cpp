#include "kern/bericht/seitenlayout.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numeric>
#include <string_view>

#include "kern/bericht/seitenmass.h"
#include "kern/bericht/spaltenbreiten.h"

namespace zinfolio {
namespace {

constexpr int twipsJePunkt = 20;
/// In parts of a font's size.
constexpr double zeilenhoehe = 1.15;
constexpr double seitenrandDerZelle = 0.3;
constexpr double hoehenrandDerZelle = 0.12;
constexpr double kleinstePunkte = 4;

int Anteil(const Berichtsschrift& schrift, double faktor, double anteil) {
    return std::max(1, static_cast<int>(std::lround(schrift.punkte * twipsJePunkt * faktor * anteil)));
}

int Textplatz(const Seitenlayout& layout) {
    return layout.papierbreite - 2 * layout.rand;
}

int Hoehenplatz(const Seitenlayout& layout) {
    return layout.papierhoehe - 2 * layout.rand;
}

/// The room for text in a column, in twips at the font size that the report names.
double Zellplatz(const Seitenlayout& layout, std::size_t spalte) {
    const int breite = layout.kanten[spalte + 1] - layout.kanten[spalte] - 2 * layout.zellrand;
    return std::max(0, breite) / layout.tabellenfaktor;
}

int Zeilenhoehe(const Seitenlayout& layout, std::size_t textzeilen) {
    return static_cast<int>(textzeilen) * layout.tabellenzeile + 2 * layout.zellabstand;
}

void KopfblockLegen(Seitenlayout& layout, const Bericht& bericht, const Textmass& mass) {
    double breiteste = 0;
    for (const std::string& zeile : bericht.kopfblock)
        breiteste = std::max(breiteste, mass.Messen(zeile).ganz);
    if (breiteste > Textplatz(layout)) layout.kopfblockfaktor = Textplatz(layout) / breiteste;
    layout.kopfblockzeile = Anteil(bericht.kopfblockschrift, layout.kopfblockfaktor, zeilenhoehe);
    const auto jeSeite = static_cast<std::size_t>(std::max(1, Hoehenplatz(layout) / layout.kopfblockzeile));
    const std::size_t zeilen = bericht.kopfblock.size();
    for (std::size_t von = 0; von < zeilen; von += jeSeite)
        layout.seiten.push_back({Berichtsseite::Art::kopfblock, von, std::min(von + jeSeite, zeilen)});
}

/// What the texts of each column need, at the font size that the report names.
std::vector<Textbreiten> Spaltenbedarf(const Berichtstabelle& tabelle, const Textmass& kopf,
                                       const Textmass& zelle) {
    std::vector<Textbreiten> bedarf;
    bedarf.reserve(tabelle.spalten.size());
    for (const Berichtsspalte& spalte : tabelle.spalten)
        bedarf.push_back({.ganz = 0, .wort = kopf.Messen(spalte.kopf).wort});
    for (std::size_t zeile = 0; zeile < tabelle.zeilen; ++zeile) {
        for (std::size_t spalte = 0; spalte < bedarf.size(); ++spalte) {
            const Textbreiten breiten = zelle.Messen(tabelle.zelle(zeile, spalte));
            bedarf[spalte].ganz = std::max(bedarf[spalte].ganz, breiten.ganz);
            bedarf[spalte].wort = std::max(bedarf[spalte].wort, breiten.wort);
        }
    }
    return bedarf;
}

void SpaltenLegen(Seitenlayout& layout, const Berichtstabelle& tabelle,
                  const std::vector<Textbreiten>& bedarf) {
    std::vector<double> wunsch;
    std::vector<double> mindest;
    const int zellrand = Anteil(tabelle.schrift, 1, seitenrandDerZelle);
    for (std::size_t spalte = 0; spalte < bedarf.size(); ++spalte) {
        wunsch.push_back(tabelle.spalten[spalte].breite);
        mindest.push_back(bedarf[spalte].wort + 2 * zellrand);
    }
    const double platz = Textplatz(layout);
    const double summe = std::accumulate(mindest.begin(), mindest.end(), 0.0);
    if (summe > platz) {
        layout.tabellenfaktor =
            std::max(platz / summe, std::min(1.0, kleinstePunkte / tabelle.schrift.punkte));
        for (double& breite : mindest)
            breite *= platz / summe;
    }
    layout.zellrand = Anteil(tabelle.schrift, layout.tabellenfaktor, seitenrandDerZelle);
    double kante = 0;
    layout.kanten.push_back(0);
    for (const double breite : Spaltenbreiten(wunsch, mindest, platz))
        layout.kanten.push_back(static_cast<int>(std::lround(kante += breite)));
}

void TitelLegen(Seitenlayout& layout, const Bericht& bericht, const Textmass& mass) {
    if (bericht.titelzeilen.empty()) return;
    for (const std::string& zeile : bericht.titelzeilen)
        std::ranges::move(mass.InZeilen(zeile, Textplatz(layout) / layout.kopfblockfaktor),
                          std::back_inserter(layout.titel));
    layout.titelhoehe =
        static_cast<int>(layout.titel.size()) * layout.kopfblockzeile + 2 * layout.zellabstand;
}

void KopfLegen(Seitenlayout& layout, const Bericht& bericht, const Textmass& mass) {
    layout.kopfzeile = Anteil(bericht.tabelle.kopfschrift, layout.tabellenfaktor, zeilenhoehe);
    if (!bericht.seitenzeile.empty()) {
        layout.seitenzeile = mass.InZeilen(bericht.seitenzeile, Textplatz(layout) / layout.tabellenfaktor);
        layout.seitenzeilenhoehe =
            static_cast<int>(layout.seitenzeile.size()) * layout.kopfzeile + 2 * layout.zellabstand;
    }
    std::size_t zeilen = 1;
    for (std::size_t spalte = 0; spalte < bericht.tabelle.spalten.size(); ++spalte) {
        layout.koepfe.push_back(
            mass.InZeilen(bericht.tabelle.spalten[spalte].kopf, Zellplatz(layout, spalte)));
        zeilen = std::max(zeilen, layout.koepfe.back().size());
    }
    if (HatKopf(bericht.tabelle))
        layout.kopfhoehe = static_cast<int>(zeilen) * layout.kopfzeile + 4 * layout.zellabstand;
}

/// The columns in which at least one cell is wider than its column.
std::vector<std::size_t> Umbruchspalten(const Seitenlayout& layout, const std::vector<Textbreiten>& bedarf) {
    std::vector<std::size_t> spalten;
    for (std::size_t spalte = 0; spalte < bedarf.size(); ++spalte)
        if (bedarf[spalte].ganz > Zellplatz(layout, spalte)) spalten.push_back(spalte);
    return spalten;
}

/// The height of each row, without looking at cells that cannot break.
class Zeilenhoehen {
  public:
    Zeilenhoehen(const Seitenlayout& layout, const Berichtstabelle& tabelle, const Textmass& mass,
                 const std::vector<Textbreiten>& bedarf)
        : layout_(layout), tabelle_(tabelle), mass_(mass), spalten_(Umbruchspalten(layout, bedarf)) {}

    [[nodiscard]] int operator()(std::size_t zeile) const {
        std::size_t textzeilen = 1;
        for (const std::size_t spalte : spalten_) {
            const auto zeilen = mass_.InZeilen(tabelle_.zelle(zeile, spalte), Zellplatz(layout_, spalte));
            textzeilen = std::max(textzeilen, zeilen.size());
        }
        return Zeilenhoehe(layout_, textzeilen);
    }

  private:
    const Seitenlayout& layout_;
    const Berichtstabelle& tabelle_;
    const Textmass& mass_;
    std::vector<std::size_t> spalten_;
};

void ZeilenVerteilen(Seitenlayout& layout, std::size_t zeilen, const Zeilenhoehen& hoehen) {
    const int platz = Hoehenplatz(layout) - layout.seitenzeilenhoehe - layout.kopfhoehe;
    Berichtsseite seite{Berichtsseite::Art::tabelle, 0, 0};
    int belegt = layout.titelhoehe;
    for (std::size_t zeile = 0; zeile < zeilen; ++zeile) {
        const int hoehe = hoehen(zeile);
        if (belegt + hoehe > platz && seite.bis > seite.von) {
            layout.seiten.push_back(seite);
            seite.von = zeile;
            belegt = 0;
        }
        belegt += hoehe;
        seite.bis = zeile + 1;
    }
    layout.seiten.push_back(seite);
}

void TabelleLegen(Seitenlayout& layout, const Bericht& bericht, const Zeichenmass& mass) {
    const Berichtstabelle& tabelle = bericht.tabelle;
    const Textmass kopf([&](char32_t zeichen) { return mass(Schriftrolle::kopf, zeichen); });
    const Textmass zelle([&](char32_t zeichen) { return mass(Schriftrolle::zelle, zeichen); });
    const std::vector<Textbreiten> bedarf = Spaltenbedarf(tabelle, kopf, zelle);
    SpaltenLegen(layout, tabelle, bedarf);
    layout.tabellenzeile = Anteil(tabelle.schrift, layout.tabellenfaktor, zeilenhoehe);
    layout.zellabstand = Anteil(tabelle.schrift, layout.tabellenfaktor, hoehenrandDerZelle);
    TitelLegen(layout, bericht,
               Textmass([&](char32_t zeichen) { return mass(Schriftrolle::kopfblock, zeichen); }));
    KopfLegen(layout, bericht, kopf);
    ZeilenVerteilen(layout, tabelle.zeilen, Zeilenhoehen(layout, tabelle, zelle, bedarf));
}

}  // namespace

Seitenlayout SeitenlayoutBilden(const Bericht& bericht, const Zeichenmass& mass) {
    Seitenlayout layout;
    layout.papierbreite = Papierbreite(bericht.querformat);
    layout.papierhoehe = Papierhoehe(bericht.querformat);
    layout.rand = bericht.rand;
    KopfblockLegen(layout, bericht,
                   Textmass([&](char32_t zeichen) { return mass(Schriftrolle::kopfblock, zeichen); }));
    if (!bericht.tabelle.spalten.empty()) TabelleLegen(layout, bericht, mass);
    if (layout.seiten.empty()) layout.seiten.emplace_back();
    return layout;
}

Zeilenbild ZeileUmbrechen(const Bericht& bericht, const Seitenlayout& layout, const Textmass& zellenmass,
                          std::size_t zeile) {
    Zeilenbild bild;
    std::size_t textzeilen = 1;
    for (std::size_t spalte = 0; spalte < layout.koepfe.size(); ++spalte) {
        bild.zellen.push_back(
            zellenmass.InZeilen(bericht.tabelle.zelle(zeile, spalte), Zellplatz(layout, spalte)));
        textzeilen = std::max(textzeilen, bild.zellen.back().size());
    }
    bild.hoehe = Zeilenhoehe(layout, textzeilen);
    return bild;
}

}  // namespace zinfolio
