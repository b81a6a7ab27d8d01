#include "kern/allround/jahreswerte.h"

#include <gtest/gtest.h>

#include "kern/allround/zahlungen.h"
#include "kern/grund/rechenfehler.h"

namespace zinfolio {
namespace jahreswerte_test {

Zellentabelle Tabelle(const std::vector<Staffelsatz>& zahlungen, std::string zins, std::string datum) {
    Jahreswerteingabe eingabe{std::move(zins), std::move(datum)};
    Zellentabelle tabelle;
    EXPECT_EQ(Jahreswerttabelle(zahlungen, eingabe, tabelle), std::nullopt);
    return tabelle;
}

// 5 %. From 31.12.2005: 300/(1 + 0,05/360) + 400/(1 + 0,05*181/360) + 500/(1,05*(1 + 0,05/360)) = 1166,27.
TEST(Jahreswerte, WerteDerNochKommendenZahlungenAnJedemJahresende) {
    EXPECT_EQ(AlleZeilen(Tabelle(Investition(), "5", "31.12.2005")),
              (Zeilen{{"31.12.2005", "1.166,27", "1.200,00", "0,00", "1.166,27", "0,00"},
                      {"31.12.2006", "499,93", "500,00", "700,00", "-666,34", "33,66"},
                      {"31.12.2007", "0,00", "0,00", "500,00", "-499,93", "0,07"}}));
}

TEST(Jahreswerte, ErsterStichtagIstDasJahresendeVorDemBarwertdatum) {
    EXPECT_EQ(AlleZeilen(Tabelle(Investition(), "5", "15.06.2005")),
              (Zeilen{{"31.12.2004", "110,88", "200,00", "0,00", "110,88", "0,00"},
                      {"31.12.2005", "1.166,27", "1.200,00", "-1.000,00", "1.055,39", "55,39"},
                      {"31.12.2006", "499,93", "500,00", "700,00", "-666,34", "33,66"},
                      {"31.12.2007", "0,00", "0,00", "500,00", "-499,93", "0,07"}}));
}

TEST(Jahreswerte, Koepfe) {
    EXPECT_EQ(Tabelle(Investition(), "5", "31.12.2005").Koepfe(),
              (Zeile{"Stichtag", "Barwert", "kum. Zahlungen gesamt", "Zahlungen in t", "Delta Barwert",
                     "Zinseffekt in t"}));
}

TEST(Jahreswerte, BarwertdatumAmJahresendeIstDerErsteStichtagUndDieLetzteZeileIstNull) {
    const Zellentabelle tabelle =
        Tabelle(Zahlungen({{"01.06.2006", 100}, {"01.06.2010", 100}}), "3", "31.12.2005");
    EXPECT_EQ(Spaltentexte(tabelle, 0),
              (Zeile{"31.12.2005", "31.12.2006", "31.12.2007", "31.12.2008", "31.12.2009", "31.12.2010"}));
    EXPECT_EQ(tabelle.Zelle(5, 1), "0,00");
}

TEST(Jahreswerte, ZahlungAmStichtagIstSchonGezahlt) {
    EXPECT_EQ(AlleZeilen(Tabelle(Zahlungen({{"01.06.2006", 10}, {"31.12.2007", 100}}), "0", "31.12.2005")),
              (Zeilen{{"31.12.2005", "110,00", "110,00", "0,00", "110,00", "0,00"},
                      {"31.12.2006", "100,00", "100,00", "10,00", "-10,00", "0,00"},
                      {"31.12.2007", "0,00", "0,00", "100,00", "-100,00", "0,00"}}));
}

TEST(Jahreswerte, LeererZinsIstNullUndNichtDieVoreinstellung) {
    Jahreswerteingabe eingabe{"", "31.12.2005"};
    Zellentabelle tabelle;
    EXPECT_EQ(Jahreswerttabelle(Investition(), eingabe, tabelle), std::nullopt);
    EXPECT_EQ(eingabe.Abzins2, "0");
    EXPECT_EQ(tabelle.Zelle(0, 1), "1.200,00");
}

// Three payments of a third of a cent: their sum is 0,01, the later two 0,0067 show as 0,01, the last as
// 0,00.
TEST(Jahreswerte, DifferenzenRechnenMitDenCentsDerZellen) {
    const double drittel = 0.01 / 3;
    const auto zahlungen =
        Zahlungen({{"01.06.2006", drittel}, {"01.06.2007", drittel}, {"01.06.2008", drittel}});
    const Zellentabelle tabelle = Tabelle(zahlungen, "0", "31.12.2005");
    EXPECT_EQ(Spaltentexte(tabelle, 2), (Zeile{"0,01", "0,01", "0,00", "0,00"}));
    EXPECT_EQ(Spaltentexte(tabelle, 3), (Zeile{"0,00", "0,00", "0,01", "0,00"}));
    EXPECT_EQ(Spaltentexte(tabelle, 4), (Zeile{"0,01", "0,00", "-0,01", "0,00"}));
}

TEST(Jahreswerte, BarwertdatumHinterDemEndeGibtEineZeile) {
    EXPECT_EQ(AlleZeilen(Tabelle(Investition(), "5", "01.01.2020")),
              (Zeilen{{"31.12.2019", "0,00", "0,00", "0,00", "0,00", "0,00"}}));
}

TEST(Jahreswerte, DreihundertzehnZeilenGehenEineMehrNicht) {
    const auto zahlungen = Zahlungen({{"01.01.2005", 1}, {"01.01.2010", 1}});
    EXPECT_EQ(Tabelle(zahlungen, "5", "31.12.1701").Zeilen(), 310U);
    Jahreswerteingabe eingabe{"5", "31.12.1700"};
    Zellentabelle tabelle;
    EXPECT_EQ(
        Jahreswerttabelle(zahlungen, eingabe, tabelle),
        (Ablehnung{"Die Zahlungsreihe ist zu lang. Prüfen Sie das Barwertdatum und die Zahlungstermine !", "",
                   "Zahlungen"}));
}

TEST(Jahreswerte, BarwertdatumVierhundertJahreVorher) {
    Jahreswerteingabe eingabe{"5", "01.01.1605"};
    Zellentabelle tabelle;
    EXPECT_EQ(Jahreswerttabelle(Investition(), eingabe, tabelle)->Register, "Zahlungen");
}

TEST(Jahreswerte, BarwertdatumAmAnfangDesKalendersIstEinFehler) {
    for (const char* datum : {"31.12.0100", "01.01.0100", "01.01.0101"}) {
        Jahreswerteingabe eingabe{"5", datum};
        Zellentabelle tabelle;
        EXPECT_THROW(static_cast<void>(Jahreswerttabelle(Investition(), eingabe, tabelle)), Datumsfehler)
            << datum;
    }
}

TEST(Jahreswerte, OhneBarwertdatumUndMitBeschaedigterZahlungEinFehler) {
    Jahreswerteingabe eingabe{"5", ""};
    Zellentabelle tabelle;
    EXPECT_THROW(static_cast<void>(Jahreswerttabelle(Investition(), eingabe, tabelle)), Datumsfehler);
    eingabe.BarwDatum = "31.12.2005";
    auto zahlungen = Investition();
    zahlungen[1] = Beschaedigt();
    EXPECT_THROW(static_cast<void>(Jahreswerttabelle(zahlungen, eingabe, tabelle)), Datumsfehler);
}

TEST(Jahreswerte, ZinsVonMinusHundertIstEinFehler) {
    Jahreswerteingabe eingabe{"-100", "31.12.2004"};
    Zellentabelle tabelle;
    EXPECT_THROW(static_cast<void>(Jahreswerttabelle(Investition(), eingabe, tabelle)), Rechenfehler);
}

TEST(Jahreswerte, LeereReiheWirdAbgelehnt) {
    Jahreswerteingabe eingabe{"5", "31.12.2005"};
    Zellentabelle tabelle;
    EXPECT_EQ(Jahreswerttabelle({}, eingabe, tabelle),
              (Ablehnung{"Es müssen erst Zahlungen eingegeben werden.", "Begdatum", "Zahlungen"}));
}

}  // namespace jahreswerte_test
}  // namespace zinfolio
