#include "kern/bericht/seitenlayout.h"

#include <algorithm>
#include <array>
#include <gmock/gmock.h>
#include <string>

#include "kern/bericht/spaltenformat.h"

namespace zinfolio {
namespace seitenlayout_test {

using testing::ElementsAre;

constexpr auto kopfblock = Berichtsseite::Art::kopfblock;
constexpr auto tabelle = Berichtsseite::Art::tabelle;

/// Each character is 100 twips wide in every font.
double Hundert(Schriftrolle, char32_t) {
    return 100;
}

Seitenlayout Layout(const Bericht& bericht) {
    return SeitenlayoutBilden(bericht, Hundert);
}

/// A table (Arial 10) of columns that want these widths; all its cells hold the same text.
Bericht Tabellenbericht(const std::vector<int>& breiten, std::size_t zeilen, const std::string& text = "x") {
    Bericht bericht;
    for (const int breite : breiten)
        bericht.tabelle.spalten.push_back({"K", breite, Kopfausrichtung::mitte});
    bericht.tabelle.zeilen = zeilen;
    bericht.tabelle.zelle = [text](std::size_t, std::size_t) { return text; };
    return bericht;
}

/// The same with one text in one row, and "x" elsewhere.
void Setze(Bericht& bericht, std::size_t zeile, std::size_t spalte, const std::string& text) {
    bericht.tabelle.zelle = [=, davor = bericht.tabelle.zelle](std::size_t z, std::size_t s) {
        return z == zeile && s == spalte ? text : davor(z, s);
    };
}

TEST(Seiten, EinLeererBerichtHatEineLeereSeite) {
    const Seitenlayout layout = Layout({});
    EXPECT_THAT(layout.seiten, ElementsAre(Berichtsseite{Berichtsseite::Art::leer, 0, 0}));
    EXPECT_EQ(layout.papierbreite, 16838);
    EXPECT_EQ(layout.papierhoehe, 11906);
}

TEST(Seiten, HochformatStehtHochkant) {
    Bericht bericht;
    bericht.querformat = false;
    EXPECT_EQ(Layout(bericht).papierbreite, 11906);
    EXPECT_EQ(Layout(bericht).papierhoehe, 16838);
}

TEST(Kopfseiten, SiebenundvierzigZeilenFuellenEineSeite) {
    Bericht bericht;
    bericht.kopfblock.assign(47, "Zeile");
    EXPECT_THAT(Layout(bericht).seiten, ElementsAre(Berichtsseite{kopfblock, 0, 47}));
    bericht.kopfblock.emplace_back("noch eine");
    EXPECT_THAT(Layout(bericht).seiten,
                ElementsAre(Berichtsseite{kopfblock, 0, 47}, Berichtsseite{kopfblock, 47, 48}));
}

TEST(Kopfseiten, VierhundertZeilenBrauchenNeunSeiten) {
    Bericht bericht;
    bericht.kopfblock.assign(400, "Zeile");
    const Seitenlayout layout = Layout(bericht);
    ASSERT_EQ(layout.seiten.size(), 9U);
    EXPECT_EQ(layout.seiten.back(), (Berichtsseite{kopfblock, 376, 400}));
}

TEST(Kopfseiten, EineZeileBreiterAlsDieSeiteMachtDieSchriftKleiner) {
    Bericht bericht;
    bericht.kopfblock = {std::string(158, 'x')};
    EXPECT_EQ(Layout(bericht).kopfblockfaktor, 1);
    bericht.kopfblock = {std::string(200, 'x'), "kurz"};
    const Seitenlayout layout = Layout(bericht);
    EXPECT_DOUBLE_EQ(layout.kopfblockfaktor, 15838.0 / 20000);
    // 200 twips * 0.7919 * 1.15
    EXPECT_EQ(layout.kopfblockzeile, 182);
}

TEST(Spalten, BehaltenIhreBreiteWoPlatzIst) {
    const Seitenlayout layout = Layout(Tabellenbericht({1440, 2880}, 3));
    EXPECT_THAT(layout.kanten, ElementsAre(0, 1440, 4320));
    EXPECT_EQ(layout.tabellenfaktor, 1);
}

TEST(Spalten, WachsenFuerEinWortDasMehrBraucht) {
    Bericht bericht = Tabellenbericht({1440, 2880}, 3);
    Setze(bericht, 2, 0, "12345678901234567890");
    // 20 characters, and 60 twips on each side
    EXPECT_THAT(Layout(bericht).kanten, ElementsAre(0, 2120, 5000));
}

TEST(Spalten, WachsenNichtFuerEinenTextDerBrechenKann) {
    Bericht bericht = Tabellenbericht({1440, 2880}, 3);
    Setze(bericht, 2, 0, "1234567890 1234567890");
    EXPECT_THAT(Layout(bericht).kanten, ElementsAre(0, 1440, 4320));
}

TEST(Spalten, WachsenAuchFuerEinenKopf) {
    Bericht bericht = Tabellenbericht({1440, 2880}, 3);
    bericht.tabelle.spalten[0].kopf = "12345678901234567890 und";
    EXPECT_THAT(Layout(bericht).kanten, ElementsAre(0, 2120, 5000));
}

TEST(Spalten, TeilenSichDieSeiteImVerhaeltnis) {
    EXPECT_THAT(Layout(Tabellenbericht({10000, 10000, 10000}, 1)).kanten, ElementsAre(0, 5279, 10559, 15838));
    EXPECT_THAT(Layout(Tabellenbericht({20000, 10000}, 1)).kanten, ElementsAre(0, 10559, 15838));
}

TEST(Spalten, KeineWirdSchmalerAlsIhrWort) {
    Bericht bericht = Tabellenbericht({10000, 10000, 10000}, 1);
    Setze(bericht, 0, 1, std::string(80, '9'));
    // 8 120 for the word, the rest in halves
    EXPECT_THAT(Layout(bericht).kanten, ElementsAre(0, 3859, 11979, 15838));
    EXPECT_EQ(Layout(bericht).tabellenfaktor, 1);
}

TEST(Spalten, ZuVieleBreiteWoerterMachenDieSchriftKleiner) {
    const Bericht bericht = Tabellenbericht({1440, 1440}, 1, std::string(100, '9'));
    const Seitenlayout layout = Layout(bericht);
    EXPECT_DOUBLE_EQ(layout.tabellenfaktor, 15838.0 / 20240);
    EXPECT_THAT(layout.kanten, ElementsAre(0, 7919, 15838));
    EXPECT_EQ(layout.tabellenzeile, 180);
    const Zeilenbild bild = ZeileUmbrechen(bericht, layout, Textmass([](char32_t) { return 100.0; }), 0);
    EXPECT_THAT(bild.zellen[0], ElementsAre(std::string(100, '9')));
}

TEST(Spalten, UnterVierPunktBrechenWoerter) {
    const Bericht bericht = Tabellenbericht({1440, 1440}, 1, std::string(300, '9'));
    const Seitenlayout layout = Layout(bericht);
    EXPECT_DOUBLE_EQ(layout.tabellenfaktor, 0.4);
    EXPECT_THAT(layout.kanten, ElementsAre(0, 7919, 15838));
    // 7 919 less 2 * 24 at 40 twips a character
    const Zeilenbild bild = ZeileUmbrechen(bericht, layout, Textmass([](char32_t) { return 100.0; }), 0);
    EXPECT_THAT(bild.zellen[1], ElementsAre(std::string(196, '9'), std::string(104, '9')));
}

TEST(Tabellenseiten, AchtunddreissigZeilenFuellenEineSeite) {
    const Seitenlayout layout = Layout(Tabellenbericht({1440}, 100));
    EXPECT_EQ(layout.kopfhoehe, 230 + 4 * 24);
    EXPECT_THAT(layout.seiten, ElementsAre(Berichtsseite{tabelle, 0, 38}, Berichtsseite{tabelle, 38, 76},
                                           Berichtsseite{tabelle, 76, 100}));
}

TEST(Tabellenseiten, EineVolleSeiteHatKeineLeereHinterSich) {
    EXPECT_EQ(Layout(Tabellenbericht({1440}, 38)).seiten.size(), 1U);
    EXPECT_EQ(Layout(Tabellenbericht({1440}, 39)).seiten.size(), 2U);
}

TEST(Tabellenseiten, FolgenAufDieKopfseiten) {
    Bericht bericht = Tabellenbericht({1440}, 2);
    bericht.kopfblock = {"Konto"};
    EXPECT_THAT(Layout(bericht).seiten,
                ElementsAre(Berichtsseite{kopfblock, 0, 1}, Berichtsseite{tabelle, 0, 2}));
}

TEST(Tabellenseiten, EineTabelleOhneZeilenZeigtIhrenKopf) {
    EXPECT_THAT(Layout(Tabellenbericht({1440}, 0)).seiten, ElementsAre(Berichtsseite{tabelle, 0, 0}));
}

TEST(Tabellenseiten, LeereKoepfeNehmenKeinenPlatz) {
    Bericht bericht = Tabellenbericht({1440, 1440}, 1);
    EXPECT_GT(Layout(bericht).kopfhoehe, 0);
    for (Berichtsspalte& spalte : bericht.tabelle.spalten)
        spalte.kopf.clear();
    EXPECT_EQ(Layout(bericht).kopfhoehe, 0);
}

TEST(Tabellenseiten, DieSeitenzeileNimmtPlatz) {
    Bericht bericht = Tabellenbericht({1440}, 40);
    bericht.seitenzeile = "Herleitung";
    const Seitenlayout layout = Layout(bericht);
    EXPECT_EQ(layout.seitenzeilenhoehe, 230 + 2 * 24);
    EXPECT_EQ(layout.seiten.front(), (Berichtsseite{tabelle, 0, 37}));
}

TEST(Tabellenseiten, DerTitelNimmtPlatzAufDerErstenSeite) {
    Bericht bericht = Tabellenbericht({5000, 5000}, 80);
    bericht.titelzeilen = {"Barwert   Solar", "Zins : 7 %"};
    const Seitenlayout layout = Layout(bericht);
    EXPECT_THAT(layout.titel, ElementsAre("Barwert   Solar", "Zins : 7 %"));
    EXPECT_EQ(layout.titelhoehe, 2 * 230 + 2 * 24);
    // 10 906 - 326 - 508 = 36 * 278 + 64; without the title 38 rows fit.
    EXPECT_THAT(layout.seiten, ElementsAre(Berichtsseite{tabelle, 0, 36}, Berichtsseite{tabelle, 36, 74},
                                           Berichtsseite{tabelle, 74, 80}));
    EXPECT_TRUE(HatTitel(layout, layout.seiten[0]));
    EXPECT_FALSE(HatTitel(layout, layout.seiten[1]));
}

TEST(Tabellenseiten, EinLangerKopfBrichtInZeilen) {
    Bericht bericht = Tabellenbericht({720, 1440}, 40);
    bericht.tabelle.spalten[0].kopf = "Tage bis (t+1)";
    const Seitenlayout layout = Layout(bericht);
    EXPECT_THAT(layout.koepfe[0], ElementsAre("Tage", "bis", "(t+1)"));
    EXPECT_EQ(layout.kopfhoehe, 3 * 230 + 4 * 24);
    // 10 906 - 786 = 36 * 278 + 112
    EXPECT_EQ(layout.seiten.front(), (Berichtsseite{tabelle, 0, 36}));
}

TEST(Tabellenzeilen, WachsenMitIhrenTextzeilen) {
    Bericht bericht = Tabellenbericht({720, 720}, 40);
    Setze(bericht, 5, 1, "Miete Köln");
    const Seitenlayout layout = Layout(bericht);
    const Textmass mass([](char32_t) { return 100.0; });
    EXPECT_EQ(ZeileUmbrechen(bericht, layout, mass, 4).hoehe, 278);
    const Zeilenbild bild = ZeileUmbrechen(bericht, layout, mass, 5);
    EXPECT_EQ(bild.hoehe, 2 * 230 + 2 * 24);
    EXPECT_THAT(bild.zellen, ElementsAre(ElementsAre("x"), ElementsAre("Miete", "Köln")));
    // 36 rows of 278 and one of 508 leave 64
    EXPECT_EQ(layout.seiten.front(), (Berichtsseite{tabelle, 0, 37}));
}

TEST(Tabellenzeilen, WerdenNieGeteilt) {
    Bericht bericht = Tabellenbericht({720, 720}, 40);
    Setze(bericht, 37, 1, "Miete Köln");
    // 37 rows leave 294, which is not enough for 508
    EXPECT_THAT(Layout(bericht).seiten,
                ElementsAre(Berichtsseite{tabelle, 0, 37}, Berichtsseite{tabelle, 37, 40}));
}

TEST(Tabellenzeilen, EineHoeherAlsDieSeiteStehtAllein) {
    std::string text;
    for (int i = 0; i < 60; ++i)
        text += "Miete ";
    Bericht bericht = Tabellenbericht({720}, 3);
    Setze(bericht, 1, 0, text);
    EXPECT_THAT(Layout(bericht).seiten,
                ElementsAre(Berichtsseite{tabelle, 0, 1}, Berichtsseite{tabelle, 1, 2},
                            Berichtsseite{tabelle, 2, 3}));
}

TEST(Tabellenzeilen, JedeStehtGenauEinmalUndPasst) {
    Bericht bericht = Tabellenbericht({1200, 1200}, 5000);
    bericht.tabelle.zelle = [](std::size_t zeile, std::size_t spalte) {
        std::string text = "1";
        for (std::size_t i = 0; i < (zeile * 7919 + spalte) % 23 % 5; ++i)
            text += " Buchung";
        return text;
    };
    const Seitenlayout layout = Layout(bericht);
    const Textmass mass([](char32_t) { return 100.0; });
    std::size_t naechste = 0;
    for (const Berichtsseite& seite : layout.seiten) {
        EXPECT_EQ(seite.von, naechste);
        int hoehe = layout.kopfhoehe;
        for (; naechste < seite.bis; ++naechste)
            hoehe += ZeileUmbrechen(bericht, layout, mass, naechste).hoehe;
        EXPECT_LE(hoehe, 10906);
    }
    EXPECT_EQ(naechste, 5000U);
}

TEST(Tabellenzeilen, NurWasBrechenKannWirdZweimalGefragt) {
    Bericht bericht = Tabellenbericht({720, 1440}, 1000);
    std::array<int, 2> gefragt{};
    bericht.tabelle.zelle = [&](std::size_t, std::size_t spalte) {
        ++gefragt.at(spalte);
        return spalte == 0 ? "Miete Mai" : "100,00";
    };
    (void)Layout(bericht);
    EXPECT_THAT(gefragt, ElementsAre(2000, 1000));
}

TEST(Detailansicht3, FuelltDieSeiteGenau) {
    Bericht bericht;
    bericht.tabelle.spalten = SpaltenformatLesen(
        "^+0.6in|^1.1in|^0.5in|^0.5in|^0.8in|^0.5in|^0.5in|^0.8in|^0.9in|^0.8in|^0.6in|^0.8in|^0.8in|^0.8in|"
        "^1.1in");
    const Seitenlayout layout = Layout(bericht);
    // 11.1 inches are wanted; the page has 15 838 twips.
    EXPECT_EQ(layout.kanten.size(), 16U);
    EXPECT_EQ(layout.kanten[1], 856);
    EXPECT_EQ(layout.kanten[2], 2426);
    EXPECT_EQ(layout.kanten.back(), 15838);
    EXPECT_TRUE(std::is_sorted(layout.kanten.begin(), layout.kanten.end()));
}

}  // namespace seitenlayout_test
}  // namespace zinfolio
