#include "kern/allround/diagramme.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "kern/allround/zahlungen.h"

namespace zinfolio {
namespace diagramme_test {

using testing::ElementsAre;

Zellentabelle Werte(const Zeilen& zeilen) {
    Zellentabelle tabelle(
        {"Datum", "Zahlung", "kumulierte Zahlungen", "Jahre", "Tage", "Divisor", "Barwert", "kum"});
    for (const Zeile& z : zeilen)
        tabelle.Anhaengen(std::array<std::string, 8>{z[0], "", z[1], "", "", "", "", z[2]});
    return tabelle;
}

Diagramm Gezeichnet(const std::variant<Diagramm, Ablehnung>& ergebnis) {
    return std::get<Diagramm>(ergebnis);
}

constexpr std::string_view nurEine =
    "Es ist nur 1 Zahlung vorhanden. Eine Grafikanzeige ist daher nicht möglich.";

TEST(Wertdiagramm, ZweiLinienMitDemJahrUnterJederZeile) {
    const Diagramm diagramm = Gezeichnet(
        Wertdiagramm(Werte({{"01.01.2005", "-1.000,00", "-1.000,00"}, {"01.01.2006", "200,00", "32,27"}}),
                     Wertart::barwert));
    EXPECT_EQ(diagramm.achsentitel, "Angaben in €");
    EXPECT_THAT(diagramm.zeilentexte, ElementsAre("            2005", "            2006"));
    EXPECT_THAT(diagramm.zeilennamen, ElementsAre("01.01.2005", "01.01.2006"));
    ASSERT_EQ(diagramm.reihen.size(), 2U);
    EXPECT_EQ(diagramm.reihen[0].name, "Kumulierte Zahlungen");
    EXPECT_THAT(diagramm.reihen[0].werte, ElementsAre(-1000, 200));
    EXPECT_EQ(diagramm.reihen[1].name, "Kum.Barwert");
    EXPECT_THAT(diagramm.reihen[1].werte, ElementsAre(-1000, 32.27));
}

/// The title of the axis for a deciding amount: that of the last row but one.
std::string Achse(const std::string& betrag) {
    return Gezeichnet(Wertdiagramm(Werte({{"01.01.2005", betrag, "0,00"}, {"01.01.2006", "0,00", "0,00"}}),
                                   Wertart::endwert))
        .achsentitel;
}

TEST(Wertdiagramm, DieVorletzteZeileEntscheidetUeberDieEinheitDieGrenzeGehoertDazu) {
    EXPECT_EQ(Achse("999.999,99"), "Angaben in €");
    EXPECT_EQ(Achse("1.000.000,00"), "Angaben in Tausend €");
    EXPECT_EQ(Achse("999.999.999,99"), "Angaben in Tausend €");
    EXPECT_EQ(Achse("1.000.000.000,00"), "Angaben in Mio. €");
    EXPECT_EQ(Achse("-5.000.000,00"), "Angaben in €");
}

TEST(Wertdiagramm, TeiltDurchDieEinheit) {
    const Diagramm diagramm = Gezeichnet(
        Wertdiagramm(Werte({{"01.01.2005", "2.000.000,00", "1.000,00"}, {"01.01.2006", "0,00", "0,00"}}),
                     Wertart::endwert));
    EXPECT_EQ(diagramm.teiler, 1000);
    EXPECT_EQ(diagramm.reihen[0].werte[0], 2000);
    EXPECT_EQ(diagramm.reihen[1].werte[0], 1);
    EXPECT_EQ(diagramm.reihen[1].name, "Kum.Vermögensendwert");
}

TEST(Wertdiagramm, EineZeileWirdAbgelehnt) {
    EXPECT_EQ(
        std::get<Ablehnung>(Wertdiagramm(Werte({{"01.01.2005", "1,00", "1,00"}}), Wertart::barwert)).Meldung,
        nurEine);
    EXPECT_EQ(std::get<Ablehnung>(Wertdiagramm({}, Wertart::barwert)).Meldung, nurEine);
}

TEST(Sensitivitaetsdiagramm, ZeilenHeissenNachIhremZins) {
    Zellentabelle tabelle({"Zins", "Zahlungen", "Wert", "", "", "", ""});
    tabelle.Anhaengen(std::array<std::string, 7>{"0,5", "10,00", "20,00"});
    tabelle.Anhaengen(std::array<std::string, 7>{"1", "10,00", "2.000.000,00"});
    const Diagramm diagramm = Gezeichnet(Sensitivitaetsdiagramm(tabelle, Wertart::barwert));
    EXPECT_THAT(diagramm.zeilentexte, ElementsAre("0,5 %", "1 %"));
    EXPECT_EQ(diagramm.achsentitel, "Angaben in Tausend €");
    EXPECT_THAT(diagramm.reihen[0].werte, ElementsAre(0.01, 0.01));
    EXPECT_THAT(diagramm.reihen[1].werte, ElementsAre(0.02, 2000));
    EXPECT_EQ(diagramm.reihen[1].name, "Kum.Barwert");
}

Zellentabelle Plan() {
    Zellentabelle tabelle({"Datum", "", "", "", "Kontostand"});
    tabelle.Anhaengen(std::array<std::string, 5>{"31.12.2005", "", "", "", "-1.500,00"});
    tabelle.Anhaengen(std::array<std::string, 5>{"01.10.2006", "", "", "", "0,00"});
    return tabelle;
}

TEST(Plandiagramm, JahresweiseHeissenDieZeilenNachTagUndMonat) {
    const Diagramm diagramm = Gezeichnet(Plandiagramm(Plan(), Planansicht::jahresweise));
    EXPECT_THAT(diagramm.zeilentexte, ElementsAre("            31.12", "            1.1"));
    EXPECT_THAT(diagramm.zeilennamen, ElementsAre("31.12.2005", "01.10.2006"));
    EXPECT_EQ(diagramm.achsentitel, "Angaben in Tausend €");
    EXPECT_EQ(diagramm.reihen.front(), (Diagrammreihe{"Kontostand", {-1.5, 0}}));
}

TEST(Plandiagramm, UnterjaehrigHeissenSieNachDemJahr) {
    EXPECT_THAT(Gezeichnet(Plandiagramm(Plan(), Planansicht::unterjaehrig)).zeilentexte,
                ElementsAre("            2005", "            2006"));
}

TEST(Plandiagramm, EineZeileWirdAbgelehnt) {
    Zellentabelle tabelle({"Datum", "", "", "", "Kontostand"});
    tabelle.Anhaengen(std::array<std::string, 5>{"31.12.2005", "", "", "", "0,00"});
    EXPECT_EQ(std::get<Ablehnung>(Plandiagramm(tabelle, Planansicht::jahresweise)).Meldung, nurEine);
}

}  // namespace diagramme_test
}  // namespace zinfolio
