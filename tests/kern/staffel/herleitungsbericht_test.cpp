#include "kern/staffel/herleitungsbericht.h"

#include <gmock/gmock.h>

namespace zinfolio {
namespace herleitungsbericht_test {

using testing::ElementsAre;
using testing::IsEmpty;

Herleitungsberichtsdaten Beispieldaten() {
    Ergebnissatz satz;
    satz.Ergebnisdatum = Festtext<10>::AusWindows1252("31.12.2006");
    satz.Ergebnisbetrag = -1000;
    satz.Faktor = 1.1025F;
    satz.Zeilenwert = -1102.5;
    satz.Summenwert = -1102.5;
    satz.Summenbetrag = -1000;
    return {
        .projekt = "Konto.ZiS",
        .methode = Effektivmethode::pangv2000,
        .ezins = "5,00000",
        .zeilen = std::make_shared<const std::vector<Ergebnissatz>>(std::vector{satz}),
    };
}

TEST(Herleitungstabelle, NenntDenZinssatzWieErDasteht) {
    const auto koepfe = [](std::string_view effektivergebnis) {
        std::vector<std::string> texte;
        for (const Tabellenspalte& spalte : HerleitungstabelleBilden(nullptr, effektivergebnis).spalten)
            texte.push_back(spalte.kopf);
        return texte;
    };
    EXPECT_THAT(koepfe("5,00000"), ElementsAre("Datum", "Betrag", "Faktor 5,00000 %", "Vermögensendwert",
                                               "kumulierter Vermögensendwert", "kumulierte Zahlungen"));
    EXPECT_EQ(koepfe(",50000")[2], "Faktor ,50000 %");
    EXPECT_EQ(koepfe(" 5,00000 ")[2], "Faktor 5,00000 %");
    EXPECT_EQ(koepfe("")[2], "Faktor  %");
}

TEST(Herleitungstabelle, OhneZeilenIstSieLeer) {
    EXPECT_EQ(HerleitungstabelleBilden(nullptr, "").zeilen, 0U);
}

TEST(Herleitungsbericht, NenntMethodeZinssatzUndProjektUeberDerTabelle) {
    EXPECT_EQ(HerleitungsberichtBilden(Beispieldaten()).seitenzeile,
              "Herleitung des Effektivzinssatzes: Der kumulierte Vermögensendwert = 0,00 "
              "PAngV2000 : 5,00000 %    *    Konto.ZiS");
}

TEST(Herleitungsbericht, DerZinssatzIstGetrimmt) {
    Herleitungsberichtsdaten daten = Beispieldaten();
    daten.methode = Effektivmethode::pangvAlt;
    daten.ezins = "  0,50000 ";
    daten.projekt.clear();
    EXPECT_EQ(HerleitungsberichtBilden(daten).seitenzeile,
              "Herleitung des Effektivzinssatzes: Der kumulierte Vermögensendwert = 0,00 "
              "PAngV(alt) : 0,50000 %    *    ");
}

TEST(Herleitungsbericht, OhneZinssatzBleibtSeinPlatzLeer) {
    Herleitungsberichtsdaten daten = Beispieldaten();
    daten.methode = Effektivmethode::isma;
    daten.ezins.clear();
    EXPECT_EQ(HerleitungsberichtBilden(daten).seitenzeile,
              "Herleitung des Effektivzinssatzes: Der kumulierte Vermögensendwert = 0,00 "
              "AIDB (ISMA) :  %    *    Konto.ZiS");
}

TEST(Herleitungsbericht, HatSechsSpaltenInArial8) {
    const Bericht bericht = HerleitungsberichtBilden(Beispieldaten());
    EXPECT_THAT(bericht.tabelle.spalten,
                ElementsAre(Berichtsspalte{"Datum", 1728}, Berichtsspalte{"Betrag", 2448},
                            Berichtsspalte{"Faktor", 2448}, Berichtsspalte{"Vermögensendwert", 2448},
                            Berichtsspalte{"kumulierter Vermögensendwert", 2448},
                            Berichtsspalte{"kumulierte Zahlungen", 2448}));
    EXPECT_EQ(bericht.tabelle.kopfschrift, (Berichtsschrift{"Arial", 8, true}));
    EXPECT_EQ(bericht.tabelle.schrift, (Berichtsschrift{"Arial", 8, false}));
}

TEST(Herleitungsbericht, BeginntMitDerTabelle) {
    const Bericht bericht = HerleitungsberichtBilden(Beispieldaten());
    EXPECT_THAT(bericht.kopfblock, IsEmpty());
    EXPECT_TRUE(bericht.querformat);
    EXPECT_EQ(bericht.rand, 500);
}

TEST(Herleitungsbericht, ZeigtDieZellenDerHerleitung) {
    const Berichtstabelle tabelle = HerleitungsberichtBilden(Beispieldaten()).tabelle;
    ASSERT_EQ(tabelle.zeilen, 1U);
    std::vector<std::string> zellen;
    for (std::size_t spalte = 0; spalte < tabelle.spalten.size(); ++spalte)
        zellen.push_back(tabelle.zelle(0, spalte));
    EXPECT_THAT(zellen,
                ElementsAre("31.12.2006", "-1.000,00", "1,1025", "-1.102,50", "-1.102,50", "-1.000,00"));
}

TEST(Herleitungsbericht, OhneZeilenIstDieTabelleLeer) {
    Herleitungsberichtsdaten daten = Beispieldaten();
    daten.zeilen = nullptr;
    EXPECT_EQ(HerleitungsberichtBilden(daten).tabelle.zeilen, 0U);
}

TEST(Herleitungsbericht, HeisstWieDasProjekt) {
    Herleitungsberichtsdaten daten = Beispieldaten();
    EXPECT_EQ(HerleitungsberichtBilden(daten).titel, "Effektivzinssatz Konto.ZiS");
    daten.projekt.clear();
    EXPECT_EQ(HerleitungsberichtBilden(daten).titel, "Effektivzinssatz");
}

}  // namespace herleitungsbericht_test
}  // namespace zinfolio
