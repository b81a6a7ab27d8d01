#include "kern/allround/ansichten.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "kern/allround/jahreswerte.h"
#include "kern/allround/sensitivitaet.h"
#include "kern/allround/zahlungen.h"

namespace zinfolio {
namespace ansichten_test {

using testing::ElementsAre;

Wertergebnis Analyse(Wertart art) {
    Werteingabe eingabe{.Anzeigeart = art};
    Wertergebnis ergebnis;
    EXPECT_EQ(WertAnalyse(Investition(), eingabe, ergebnis), std::nullopt);
    return ergebnis;
}

Zeile Koepfe(const Bericht& bericht) {
    Zeile koepfe;
    for (const Berichtsspalte& spalte : bericht.tabelle.spalten)
        koepfe.push_back(spalte.kopf);
    return koepfe;
}

/// The widths of the columns in tenths of an inch.
std::vector<int> Breiten(const Bericht& bericht) {
    std::vector<int> breiten;
    for (const Berichtsspalte& spalte : bericht.tabelle.spalten)
        breiten.push_back(spalte.breite * 10 / twipsJeZoll);
    return breiten;
}

TEST(Wertansicht, HebtDieZeileDerDynamischenAmortisationHervor) {
    const Tabelleninhalt inhalt = WertansichtBilden(Analyse(Wertart::barwert));
    EXPECT_EQ(inhalt.zeilen, 4U);
    EXPECT_EQ(inhalt.hervorgehoben, 3U);
    EXPECT_EQ(inhalt.spalten[5].kopf, "Divisor (Zins= 10 %)");
    EXPECT_EQ(inhalt.zelle(1, 6), "272,73");
    EXPECT_EQ(inhalt.zahl(1, 6), 272.73);
    EXPECT_EQ(inhalt.zahl(1, 0), std::nullopt);
}

TEST(Wertansicht, OhneAnalyseIstSieLeer) {
    EXPECT_EQ(WertansichtBilden({}).zeilen, 0U);
    EXPECT_EQ(WertansichtBilden({}).hervorgehoben, std::nullopt);
}

TEST(Jahresansicht, ZeigtDieArbeitsspalteNicht) {
    Jahreswerteingabe eingabe{"5", "31.12.2005"};
    Zellentabelle tabelle;
    EXPECT_EQ(Jahreswerttabelle(Investition(), eingabe, tabelle), std::nullopt);
    const Tabelleninhalt inhalt = JahresansichtBilden(tabelle);
    ASSERT_EQ(inhalt.spalten.size(), 5U);
    EXPECT_EQ(inhalt.spalten[2].kopf, "Zahlungen in t");
    EXPECT_EQ(inhalt.zelle(1, 1), "499,93");
    EXPECT_EQ(inhalt.zelle(1, 2), "700,00");
    EXPECT_EQ(inhalt.zahl(1, 4), 33.66);
}

TEST(Sensitivitaetsansicht, HatDieZellenDerTabelle) {
    Sensitivitaetseingabe eingabe{.MiZins = "10"};
    Zellentabelle tabelle;
    EXPECT_EQ(SensitivitaetRechnen(Investition(), eingabe, tabelle), std::nullopt);
    const Tabelleninhalt inhalt = SensitivitaetsansichtBilden(tabelle);
    EXPECT_EQ(inhalt.zeilen, 11U);
    EXPECT_EQ(inhalt.zelle(0, 2), "110,88");
    EXPECT_EQ(inhalt.zahl(10, 0), 15);
}

TEST(Allroundbericht, Barwert) {
    const Bericht bericht = AllroundberichtBilden(
        {.projekt = "Solar", .Abzins2 = "7,5", .tabelle = WertansichtBilden(Analyse(Wertart::barwert))});
    EXPECT_THAT(bericht.titelzeilen, ElementsAre("Barwert       Solar", "Zins : 7,500000 %"));
    EXPECT_EQ(bericht.seitenzeile, "");
    EXPECT_EQ(bericht.titel, "Barwert       Solar");
    EXPECT_THAT(Koepfe(bericht), ElementsAre("Datum", "Zahlung", "kumulierte Zahlungen", "Jahre", "Tage",
                                             "Divisor", "Barwert", "kumulierter Barwert"));
    EXPECT_THAT(Breiten(bericht), ElementsAre(10, 16, 16, 6, 6, 16, 16, 16));
    EXPECT_EQ(bericht.tabelle.schrift.name, "Arial");
    EXPECT_EQ(bericht.tabelle.zelle(3, 7), "32,27");
    EXPECT_TRUE(bericht.kopfblock.empty());
}

TEST(Allroundbericht, OhneProjektBleibenDieLeerzeichenDesTitels) {
    const Bericht bericht = AllroundberichtBilden({.art = Anzeigeart::endwert,
                                                   .Abzins2 = "abc",
                                                   .tabelle = WertansichtBilden(Analyse(Wertart::endwert))});
    EXPECT_THAT(bericht.titelzeilen, ElementsAre("Vermögensendwert       ", "Zins : 0,000000 %"));
    EXPECT_EQ(Koepfe(bericht)[5], "Faktor");
    EXPECT_EQ(Koepfe(bericht)[7], "kum.Verm-Endwerte");
}

TEST(Allroundbericht, Effektivzinssatz) {
    const Tabelleninhalt tabelle = TexttabelleBilden({{"1"}, {"2"}, {"3"}, {"4"}, {"5"}, {"6"}}, {{"x"}});
    const Bericht bericht = AllroundberichtBilden({.art = Anzeigeart::effektivzins,
                                                   .projekt = "P",
                                                   .Effektivergebnis = ",50000",
                                                   .methode = "AIDB 360",
                                                   .tabelle = tabelle});
    EXPECT_THAT(bericht.titelzeilen,
                ElementsAre("Effektivzinssatz       P", "Zins : 0,500000 %", "Berechnung nach AIDB 360"));
    EXPECT_THAT(Koepfe(bericht), ElementsAre("Datum", "Zahlung", "Faktor", "Vermögensendwert",
                                             "kum.Verm-Endwerte", "kum.Zahlungen"));
}

TEST(Allroundbericht, OhneEffektivzinssatzStehtNichtNullDa) {
    const Bericht bericht =
        AllroundberichtBilden({.art = Anzeigeart::effektivzins,
                               .projekt = "P",
                               .methode = "AIDB 360",
                               .tabelle = TexttabelleBilden({{"1"}, {"2"}, {"3"}, {"4"}, {"5"}, {"6"}}, {})});
    EXPECT_THAT(bericht.titelzeilen, ElementsAre("Effektivzinssatz       P", "Zins : keiner gefunden",
                                                 "Berechnung nach AIDB 360"));
}

TEST(Allroundbericht, SensitivitaetNenntDenWertIhrerAnalyse) {
    const Tabelleninhalt tabelle = TexttabelleBilden({{"1"}, {"2"}, {"3"}, {"4"}, {"5"}, {"6"}, {"7"}}, {});
    const Bericht barwerte =
        AllroundberichtBilden({.art = Anzeigeart::sensitivitaet, .projekt = "P", .tabelle = tabelle});
    EXPECT_THAT(barwerte.titelzeilen, ElementsAre("Amortisationsdauer(Dynamische)     P"));
    EXPECT_THAT(Koepfe(barwerte),
                ElementsAre("Zins", "kumulierte Zahlungen", " kumulierter Barwert ", "Statische Amortisation",
                            "Dynamische Amortisation", "Jahre", "Tage"));
    EXPECT_THAT(Breiten(barwerte), ElementsAre(10, 16, 16, 16, 16, 10, 10));
    const Bericht endwerte = AllroundberichtBilden(
        {.art = Anzeigeart::sensitivitaet, .wertart = Wertart::endwert, .tabelle = tabelle});
    EXPECT_EQ(Koepfe(endwerte)[2], " kumulierter Vermögensendwert ");
}

TEST(Allroundbericht, Tilgungsplaene) {
    Allroundberichtsdaten daten{
        .art = Anzeigeart::planJahresweise,
        .projekt = "Haus",
        .zinstermine = "Monatsende",
        .nomzins = "4,00000 %",
        .effzinssatz = "4,07415 %",
        .tabelle = PlanansichtBilden(Zinsstaffelanzeige2({}, 4), Planansicht::jahresweise)};
    EXPECT_THAT(AllroundberichtBilden(daten).titelzeilen,
                ElementsAre("Tilgungstabelle  : Haus", "Zinstermine      : Monatsende",
                            "Nominalzins      : 4,00000 %", "Effektivzinssatz : 4,07415 %"));
    EXPECT_THAT(Koepfe(AllroundberichtBilden(daten)),
                ElementsAre("Datum", "Auszahlungen", "Zahlungen", "Zinsen", "Kontostand"));
    EXPECT_THAT(Breiten(AllroundberichtBilden(daten)), ElementsAre(10, 16, 16, 16, 16));
    daten.art = Anzeigeart::planUnterjaehrig;
    EXPECT_THAT(Koepfe(AllroundberichtBilden(daten)),
                ElementsAre("Datum", "Vorgang", "Zahlung", "Zinsen", "Kontostand"));
}

TEST(Jahresbericht, HatDieKoepfeSeinesGitters) {
    Jahreswerteingabe eingabe{"5", "31.12.2005"};
    Zellentabelle tabelle;
    ASSERT_EQ(Jahreswerttabelle(Investition(), eingabe, tabelle), std::nullopt);
    const Bericht bericht = JahresberichtBilden("P", "5", JahresansichtBilden(tabelle));
    EXPECT_THAT(bericht.titelzeilen,
                ElementsAre("Barwerttabelle für alle Jahre       P", "Zins : 5,000000 %"));
    EXPECT_THAT(Koepfe(bericht),
                ElementsAre("Stichtag", "Barwert", "Zahlungen in t", "Delta Barwert", "Zinseffekt in t"));
    EXPECT_THAT(Breiten(bericht), ElementsAre(10, 16, 16, 16, 16));
    EXPECT_EQ(bericht.tabelle.zelle(1, 4), "33,66");
}

}  // namespace ansichten_test
}  // namespace zinfolio
