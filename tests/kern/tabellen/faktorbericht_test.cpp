#include "kern/tabellen/faktorbericht.h"

#include <gtest/gtest.h>

namespace zinfolio {
namespace faktorbericht_test {

using Zeilen = std::vector<std::string>;

constexpr Faktorwahl wahl{Finanzfaktor::AbF, Rentenrhythmus::alle2Monate, Rentenfaelligkeit::vorschuessig};

/// So many rates from 1 % on, over two years.
Bericht Tabellenbericht(int saetze) {
    auto tabelle = std::make_shared<Faktortabelle>();
    const Faktortabelleneingabe eingabe{wahl, Schrittweite::halb, "1", "1", "1", "2"};
    Faktortabelleneingabe weiter = eingabe;
    weiter.Pro2 = std::to_string(10 + 5 * (saetze - 1));
    weiter.Pro2.insert(weiter.Pro2.size() - 1, ",");
    EXPECT_EQ(FaktortabelleRechnen(weiter, *tabelle), std::nullopt);
    EXPECT_EQ(tabelle->Spalten(), static_cast<std::size_t>(saetze) + 1);
    return FaktortabellenberichtBilden(wahl, tabelle);
}

Zeilen Koepfe(const Bericht& bericht) {
    Zeilen koepfe;
    for (const Berichtsspalte& spalte : bericht.tabelle.spalten)
        koepfe.push_back(spalte.kopf);
    return koepfe;
}

TEST(Faktortabellenbericht, DerKopfblockNenntFaktorZahlungsweiseUndErklaerung) {
    const Bericht bericht = Tabellenbericht(1);
    EXPECT_EQ(bericht.titel, "AbF Abzinsungsfaktor (Kapitalbarwert)");
    EXPECT_EQ(bericht.kopfblock,
              (Zeilen{"AbF Abzinsungsfaktor (Kapitalbarwert)", "Zahlungsweise: Alle 2 Monate vorschüssig",
                      "Zinst einen nach n Perioden fälligen Geldbetrag K(n) unter Berücksichtigung von",
                      "Zins und Zinseszins auf einen jetzt fälligen Geldbetrag K(0) ab."}));
    EXPECT_EQ(bericht.kopfblockschrift, (Berichtsschrift{.name = "Arial", .punkte = 10}));
}

TEST(Faktortabellenbericht, DerTabellenkopfKommtAusDerErstenZeile) {
    const Bericht bericht = Tabellenbericht(2);
    EXPECT_EQ(Koepfe(bericht), (Zeilen{"Jahr / Zins ", " 1 % ", " 1,5 %"}));
    EXPECT_EQ(bericht.tabelle.spalten[0].breite, 1440);
    EXPECT_EQ(bericht.tabelle.spalten[2].breite, 2304);
    EXPECT_EQ(bericht.tabelle.kopfschrift, (Berichtsschrift{.name = "Arial", .punkte = 10, .fett = true}));
}

TEST(Faktortabellenbericht, DieZellenSindDieDerTabelleOhneIhreKopfzeile) {
    const Bericht bericht = Tabellenbericht(1);
    ASSERT_EQ(bericht.tabelle.zeilen, 2U);
    EXPECT_EQ(bericht.tabelle.zelle(0, 0), "1");
    EXPECT_EQ(bericht.tabelle.zelle(0, 1), "0,9900990");
    EXPECT_EQ(bericht.tabelle.zelle(1, 0), "2");
    EXPECT_EQ(bericht.tabelle.zelle(1, 1), "0,9802960");
}

TEST(Faktortabellenbericht, BisSechsSpaltenHatSieEinenKopf) {
    EXPECT_EQ(Koepfe(Tabellenbericht(5)),
              (Zeilen{"Jahr / Zins ", " 1 % ", " 1,5 % ", " 2 % ", " 2,5 % ", " 3 %"}));
}

TEST(Faktortabellenbericht, MitMehrAlsSechsSpaltenHatSieKeinenKopf) {
    const Bericht bericht = Tabellenbericht(6);
    EXPECT_EQ(Koepfe(bericht), Zeilen(7, ""));
    EXPECT_EQ(bericht.tabelle.zelle(0, 6), "0,9661836");
}

TEST(Faktortabellenbericht, OhneTabelleBleibtDerKopfblock) {
    EXPECT_TRUE(FaktortabellenberichtBilden(wahl, nullptr).tabelle.spalten.empty());
    EXPECT_TRUE(FaktortabellenberichtBilden(wahl, std::make_shared<Faktortabelle>()).tabelle.spalten.empty());
}

/// What the user is told who wants to print a table from the first year on, at whole rates.
std::string Abgelehnt(Finanzfaktor faktor, const char* von, const char* bis, const char* jahre) {
    Faktortabelle tabelle;
    const Faktorwahl jaehrlich{faktor, Rentenrhythmus::jaehrlich, Rentenfaelligkeit::nachschuessig};
    EXPECT_EQ(FaktortabelleRechnen({jaehrlich, Schrittweite::ganz, von, bis, "1", jahre}, tabelle),
              std::nullopt);
    const auto ablehnung = FaktortabellenberichtPruefen(tabelle);
    EXPECT_EQ(ablehnung ? ablehnung->Feld : "Pro2", "Pro2");
    return ablehnung ? ablehnung->Meldung : "";
}

std::string ZuViele(const char* saetze, const char* hoechstens) {
    return std::string("Die Tabelle hat ") + saetze + " Zinssätze. Auf eine Seite passen höchstens " +
           hoechstens +
           ". Bitte wählen Sie zum Drucken einen kleineren Bereich oder eine größere Schrittweite.";
}

// In twips at four points: 44.5 a digit, 22.3 a comma or point, 48 around a column, 92.5 for the years.
TEST(Faktortabellenbericht, WasAufKeineSeitePasstWirdAbgelehnt) {
    // "0,9900990" needs 426.3, of which 36 fit into 15 838 - 92.5.
    EXPECT_EQ(Abgelehnt(Finanzfaktor::AbF, "1", "36", "1"), "");
    EXPECT_EQ(Abgelehnt(Finanzfaktor::AbF, "1", "37", "1"), ZuViele("37", "36"));
    // "1.003,0030010" needs 582.1, of which 27 fit.
    EXPECT_EQ(Abgelehnt(Finanzfaktor::AuF, "900", "926", "3"), "");
    EXPECT_EQ(Abgelehnt(Finanzfaktor::AuF, "900", "927", "3"), ZuViele("28", "27"));
}

TEST(Faktortabellenbericht, EinEinzelnerSatzWirdImmerGedruckt) {
    // 10^308, with more digits than a page is wide.
    EXPECT_EQ(Abgelehnt(Finanzfaktor::AuF, "900", "900", "308"), "");
    EXPECT_EQ(FaktortabellenberichtPruefen(Faktortabelle()), std::nullopt);
}

TEST(Einzelfaktorbericht, LaesstDieLeerzeichenDesSatzesStehen) {
    Einzelfaktoreingabe eingabe{wahl, "4,5", "15", "12000"};
    eingabe.wahl.faktor = Finanzfaktor::DSF;
    Einzelfaktor ergebnis;
    ASSERT_EQ(EinzelfaktorRechnen(eingabe, ergebnis), std::nullopt);
    std::string text;
    for (const std::string& zeile : EinzelfaktorberichtBilden(eingabe, ergebnis).kopfblock)
        text += zeile + " ";
    EXPECT_NE(text.find("vorschüssig Alle 2 Monate  ausbezahlt wird"), std::string::npos) << text;
}

TEST(Einzelfaktorbericht, NenntEingabenErgebnisUndSatz) {
    const Einzelfaktoreingabe eingabe{wahl, "4,5", "15", "12000"};
    Einzelfaktor ergebnis;
    ASSERT_EQ(EinzelfaktorRechnen(eingabe, ergebnis), std::nullopt);
    EXPECT_EQ(EinzelfaktorberichtBilden(eingabe, ergebnis).kopfblock,
              (Zeilen{"AbF Abzinsungsfaktor (Kapitalbarwert)", "",
                      "Zinst einen nach n Perioden fälligen Geldbetrag K(n) unter Berücksichtigung von",
                      "Zins und Zinseszins auf einen jetzt fälligen Geldbetrag K(0) ab.", "", "Zins  : 4,5",
                      "Jahre : 15", "Betrag: 12000", "Zahlungsweise: Alle 2 Monate vorschüssig", "",
                      "Ergebnis: 6.200,64530779", "",
                      "Ein Betrag von 12000 € , der in 15 Jahren fällig wird, hat bei einem Zinssatz von",
                      "4,5 % einen Wert am heutigen Tage von 6.200,65 €"}));
}

}  // namespace faktorbericht_test
}  // namespace zinfolio
