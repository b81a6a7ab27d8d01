// The expectations were worked out by hand from the rule of each column.

#include "kern/allround/wertanalyse.h"

#include <cmath>
#include <gtest/gtest.h>
#include <stdexcept>

#include "kern/allround/zahlungen.h"
#include "kern/grund/rechenfehler.h"

namespace zinfolio {
namespace wertanalyse_test {

Wertergebnis Analyse(const std::vector<Staffelsatz>& zahlungen, Werteingabe eingabe) {
    Wertergebnis ergebnis;
    EXPECT_EQ(WertAnalyse(zahlungen, eingabe, ergebnis), std::nullopt);
    return ergebnis;
}

Wertergebnis Barwert(const std::vector<Staffelsatz>& zahlungen, std::string zins = "10",
                     std::string datum = "") {
    return Analyse(zahlungen, {Wertart::barwert, std::move(zins), std::move(datum)});
}

Wertergebnis Endwert(const std::vector<Staffelsatz>& zahlungen, std::string zins = "10") {
    return Analyse(zahlungen, {Wertart::endwert, std::move(zins), ""});
}

// 300 / 1,1 = 272,72727; 400 / (1,1 * 1,05) = 346,32035; 500 / 1,21 = 413,22314.
TEST(WertAnalyse, BarwertTeiltJedeZahlungDurchIhrenFaktor) {
    EXPECT_EQ(AlleZeilen(Barwert(Investition()).Tabelle),
              (Zeilen{{"01.01.2005", "-1.000,00", "-1.000,00", "0", "0", "1,00000", "-1.000,00", "-1.000,00"},
                      {"01.01.2006", "300,00", "-700,00", "1", "0", "1,10000", "272,73", "-727,27"},
                      {"01.07.2006", "400,00", "-300,00", "1", "180", "1,15500", "346,32", "-380,95"},
                      {"01.01.2007", "500,00", "200,00", "2", "0", "1,21000", "413,22", "32,27"}}));
}

TEST(WertAnalyse, EndwertVervielfachtBisZurLetztenZahlungDieDenFaktor1Hat) {
    EXPECT_EQ(AlleZeilen(Endwert(Investition()).Tabelle),
              (Zeilen{{"01.01.2005", "-1.000,00", "-1.000,00", "2", "0", "1,21000", "-1.210,00", "-1.210,00"},
                      {"01.01.2006", "300,00", "-700,00", "1", "0", "1,10000", "330,00", "-880,00"},
                      {"01.07.2006", "400,00", "-300,00", "0", "180", "1,05000", "420,00", "-460,00"},
                      {"01.01.2007", "500,00", "200,00", "0", "0", "1,00000", "500,00", "40,00"}}));
}

TEST(WertAnalyse, KoepfeNennenDenZinsWieGetippt) {
    EXPECT_EQ(Barwert(Investition(), "7,50").Tabelle.Koepfe(),
              (Zeile{"Datum", "Zahlung", "kumulierte Zahlungen", "Jahre", "Tage", "Divisor (Zins= 7,50 %)",
                     "Barwert", "kumulierter Barwert"}));
    EXPECT_EQ(Endwert(Investition(), "7,50").Tabelle.Koepfe(),
              (Zeile{"Datum", "Zahlung", "kumulierte Zahlungen", "Jahre", "Tage", "Faktor (Zins= 7,50 %)",
                     "Vermögensendwert", "kum. Vermögensendwert"}));
}

TEST(WertAnalyse, AussagenNennenWertUrteilUndAmortisation) {
    EXPECT_EQ(Barwert(Investition()).Aussagen,
              (Wertaussagen{"01.01.2007", "01.01.2007", "Die Investition / Anlage ist vorteilhaft.",
                            "Barwert", "32,27"}));
    EXPECT_EQ(Endwert(Investition()).Aussagen,
              (Wertaussagen{"01.01.2007", "01.01.2007", "Die Investition / Anlage ist vorteilhaft.",
                            "Vermögensendwert", "40,00"}));
}

// At 20 %: -1000 + 250 + 400/1,32 + 500/1,44 = -99,75.
TEST(WertAnalyse, UnterNullIstNichtVorteilhaftUndDynamischKeine) {
    const Wertergebnis ergebnis = Barwert(Investition(), "20");
    EXPECT_EQ(ergebnis.Aussagen,
              (Wertaussagen{"01.01.2007", "Keine", "Die Investition / Anlage ist nicht vorteilhaft.",
                            "Barwert", "-99,75"}));
    EXPECT_EQ(ergebnis.Dynamorinterpoliert, "Keine");
    EXPECT_EQ(ergebnis.Farbzeile, 0U);
    EXPECT_EQ(ergebnis.Vorwert, std::nullopt);
}

// From -380,95 to 32,27 in 184 days: 380,95 / 413,22 * 184 = 169,6 days behind 01.07.2006.
TEST(WertAnalyse, InterpoliertGeradlinigInKalendertagen) {
    const Wertergebnis ergebnis = Barwert(Investition());
    EXPECT_EQ(ergebnis.Dynamorinterpoliert, "18.12.2006");
    EXPECT_EQ(ergebnis.Farbzeile, 4U);
    EXPECT_EQ(ergebnis.Vorwert, -380.95);
}

// The sums behind the cells are -0,004 and 0,996; the cells -0,00 and 1,00 put the zero on the first day.
TEST(WertAnalyse, InterpoliertMitDenZellentextenNichtMitDenSummen) {
    const Wertergebnis ergebnis = Barwert(Zahlungen({{"01.01.2006", -0.004}, {"01.01.2007", 1}}), "0");
    EXPECT_EQ(ergebnis.Tabelle.Zelle(0, 7), "0,00");
    EXPECT_EQ(ergebnis.Dynamorinterpoliert, "01.01.2006");
}

TEST(WertAnalyse, JederBarwertGehtMitFuenfNachkommastellenInDieSumme) {
    // 1 / 1,03 = 0,970873786 becomes 0,97087; a thousand of them are 970,87, unrounded ones would be too; the
    // difference shows from 100000 on: 97087,00 against 97087,38.
    std::vector<Staffelsatz> zahlungen = Zahlungen({{"01.01.2006", 0}});
    for (int i = 0; i < 1000; ++i)
        zahlungen.push_back(Zahlungssatz("01.01.2007", 0.0001, ""));
    // 0,0001 / 1,03 = 0,00009709 rounds to 0,0001.
    EXPECT_EQ(Barwert(zahlungen, "3").Aussagen->Label14, "0,10");
    for (Staffelsatz& zahlung : zahlungen)
        zahlung.Zahlbetrag *= 0.05;
    // 0,000005 / 1,03 = 0,00000485 rounds to 0.
    EXPECT_EQ(Barwert(zahlungen, "3").Aussagen->Label14, "0,00");
}

TEST(WertAnalyse, NachMehrerenWendenZaehltDieLetzte) {
    const auto zahlungen = Zahlungen({{"01.01.2005", -100},
                                      {"01.01.2006", 150},
                                      {"01.01.2007", -100},
                                      {"01.01.2008", 60},
                                      {"01.01.2009", 1}});
    const Wertergebnis ergebnis = Barwert(zahlungen, "0");
    EXPECT_EQ(ergebnis.Aussagen->StatAmor, "01.01.2008");
    EXPECT_EQ(ergebnis.Aussagen->DynAmor, "01.01.2008");
    EXPECT_EQ(ergebnis.Farbzeile, 4U);
}

// The sum of the payments stays at 0 or above from 2006 on, the value at 100 % turns in 2005 and stays.
TEST(WertAnalyse, StatischUndDynamischWendenUnabhaengig) {
    const auto zahlungen = Zahlungen({{"01.01.2005", 100}, {"01.01.2006", -150}, {"01.01.2007", 50}});
    const Wertergebnis ergebnis = Barwert(zahlungen, "100");
    EXPECT_EQ(ergebnis.Aussagen->StatAmor, "01.01.2007");
    EXPECT_EQ(ergebnis.Aussagen->DynAmor, "01.01.2005");
}

TEST(WertAnalyse, EineSummeVonGenauNullIstGedeckt) {
    const Wertergebnis ergebnis = Barwert(Zahlungen({{"01.01.2005", -100}, {"01.01.2006", 100}}), "0");
    EXPECT_EQ(ergebnis.Aussagen->StatAmor, "01.01.2006");
    EXPECT_EQ(ergebnis.Aussagen->Label12, "Die Investition / Anlage ist vorteilhaft.");
}

TEST(WertAnalyse, ErsteZahlungAlleinUeberNullGibtDatenAberKeineInterpolierung) {
    const Wertergebnis ergebnis = Barwert(Zahlungen({{"01.01.2005", 100}, {"01.01.2006", 5}}));
    EXPECT_EQ(ergebnis.Aussagen->StatAmor, "01.01.2005");
    EXPECT_EQ(ergebnis.Aussagen->DynAmor, "01.01.2005");
    EXPECT_EQ(ergebnis.Dynamorinterpoliert, "Keine");
    EXPECT_EQ(ergebnis.Farbzeile, 0U);
}

TEST(WertAnalyse, ZweiZahlungenAmTagDerWendeLassenDieAnzeigeStehenUndFaerbenDieZeile) {
    const Wertergebnis ergebnis = Barwert(Zahlungen({{"01.01.2005", -100}, {"01.01.2005", 120}}));
    EXPECT_EQ(ergebnis.Dynamorinterpoliert, std::nullopt);
    EXPECT_EQ(ergebnis.Farbzeile, 2U);
    EXPECT_EQ(ergebnis.Vorwert, -100);
}

TEST(WertAnalyse, EineZahlungHatDenFaktor1) {
    EXPECT_EQ(AlleZeilen(Barwert(Zahlungen({{"31.12.2005", 7}})).Tabelle),
              (Zeilen{{"31.12.2005", "7,00", "7,00", "0", "0", "1,00000", "7,00", "7,00"}}));
}

TEST(WertAnalyse, Genau360TageSindEinJahrOhneResttage) {
    const Wertergebnis ergebnis = Barwert(Zahlungen({{"30.01.2005", -1}, {"31.01.2006", 1.1}}));
    EXPECT_EQ(AlleZeilen(ergebnis.Tabelle)[1],
              (Zeile{"31.01.2006", "1,10", "0,10", "1", "0", "1,10000", "1,00", "0,00"}));
}

TEST(WertAnalyse, ZahlungenVorDemBarwertdatumZaehlenNicht) {
    const Wertergebnis ergebnis = Barwert(Investition(), "10", "01.06.2006");
    EXPECT_EQ(AlleZeilen(ergebnis.Tabelle),
              (Zeilen{{"01.07.2006", "400,00", "400,00", "0", "30", "1,00833", "396,69", "396,69"},
                      {"01.01.2007", "500,00", "900,00", "0", "210", "1,05833", "472,44", "869,14"}}));
    EXPECT_FALSE(ergebnis.Frame1);
}

TEST(WertAnalyse, BarwertdatumHinterDemEndeLaesstNichtsUebrig) {
    const Wertergebnis ergebnis = Barwert(Investition(), "10", "02.01.2007");
    EXPECT_EQ(ergebnis.Tabelle.Zeilen(), 0U);
    EXPECT_EQ(ergebnis.Aussagen,
              (Wertaussagen{"Keine", "Keine", "Die Investition / Anlage ist nicht vorteilhaft.", "Barwert",
                            "0,00"}));
    EXPECT_EQ(ergebnis.Dynamorinterpoliert, "Keine");
}

// 01.01.1605 to 01.01.2005: 1,1 ^ 400 = 3,6064E+16.
TEST(WertAnalyse, BarwertdatumVierhundertJahreVorher) {
    const Wertergebnis ergebnis = Barwert(Zahlungen({{"01.01.2005", 3.6e16}}), "10", "01.01.1605");
    EXPECT_EQ(ergebnis.Tabelle.Zelle(0, 3), "400");
    EXPECT_EQ(ergebnis.Tabelle.Zelle(0, 6), "1,00");
    EXPECT_FALSE(ergebnis.Frame1);
}

TEST(WertAnalyse, BarwertdatumSpieltFuerDenEndwertKeineRolle) {
    const Wertergebnis ergebnis = Analyse(Investition(), {Wertart::endwert, "10", "01.06.2006"});
    EXPECT_EQ(ergebnis.Tabelle.Zeilen(), 4U);
    EXPECT_TRUE(ergebnis.Frame1);
}

TEST(WertAnalyse, BarwertdatumWirdAuchFuerDenEndwertGelesen) {
    Werteingabe eingabe{Wertart::endwert, "10", "01.13.2006"};
    Wertergebnis ergebnis;
    EXPECT_THROW(static_cast<void>(WertAnalyse(Investition(), eingabe, ergebnis)), Datumsfehler);
}

TEST(WertAnalyse, KurzesBarwertdatumWirdDasDerErstenZahlung) {
    for (const char* datum : {"", "1", "ä"}) {
        Werteingabe eingabe{Wertart::barwert, "10", datum};
        Wertergebnis ergebnis;
        EXPECT_EQ(WertAnalyse(Investition(), eingabe, ergebnis), std::nullopt);
        EXPECT_EQ(eingabe.BarwDatum, "01.01.2005");
        EXPECT_TRUE(ergebnis.Frame1);
    }
}

TEST(WertAnalyse, LeererZinsNimmtDieVoreinstellung) {
    Werteingabe eingabe{.Abzins = "7,5"};
    Wertergebnis ergebnis;
    EXPECT_EQ(WertAnalyse(Investition(), eingabe, ergebnis), std::nullopt);
    EXPECT_EQ(eingabe.Abzins2, "7,5");
    EXPECT_EQ(ergebnis.Tabelle.Zelle(1, 5), "1,07500");
}

TEST(WertAnalyse, ZinsOhneZahlIstNull) {
    EXPECT_EQ(Spaltentexte(Barwert(Investition(), "abc").Tabelle, 5),
              (Zeile{"1,00000", "1,00000", "1,00000", "1,00000"}));
    EXPECT_EQ(Barwert(Investition(), "0").Aussagen->Label14, "200,00");
}

// -50 %: 1 / 0,5 = 2; half a year at simple interest 0,75.
TEST(WertAnalyse, NegativerZinsVergroessert) {
    const auto zahlungen = Zahlungen({{"01.01.2005", 0}, {"01.07.2005", 3}, {"01.01.2006", 1}});
    EXPECT_EQ(Spaltentexte(Barwert(zahlungen, "-50").Tabelle, 6), (Zeile{"0,00", "4,00", "2,00"}));
}

TEST(WertAnalyse, ZinsVonEinerMillion) {
    EXPECT_EQ(Spaltentexte(Endwert(Zahlungen({{"01.01.2005", 1}, {"01.01.2007", 1}}), "1000000").Tabelle, 6),
              (Zeile{"100.020.001,00", "1,00"}));
}

TEST(WertAnalyse, ZinsVonMinusHundertIstEinFehlerWoEinGanzesJahrVergeht) {
    Werteingabe eingabe{Wertart::barwert, "-100", ""};
    Wertergebnis ergebnis;
    EXPECT_THROW(static_cast<void>(WertAnalyse(Investition(), eingabe, ergebnis)), Rechenfehler);
    EXPECT_EQ(Spaltentexte(Endwert(Investition(), "-100").Tabelle, 6),
              (Zeile{"0,00", "0,00", "200,00", "500,00"}));
}

TEST(WertAnalyse, EinFehlerLaesstDieZeilenVorIhmUndKeineAussagen) {
    auto zahlungen = Investition();
    zahlungen[2] = Beschaedigt();
    Werteingabe eingabe{Wertart::barwert, "10", ""};
    Wertergebnis ergebnis;
    EXPECT_THROW(static_cast<void>(WertAnalyse(zahlungen, eingabe, ergebnis)), Datumsfehler);
    EXPECT_EQ(Spaltentexte(ergebnis.Tabelle, 0), (Zeile{"01.01.2005", "01.01.2006"}));
    EXPECT_EQ(ergebnis.Aussagen, std::nullopt);
}

TEST(WertAnalyse, UeberlaufIstEinFehler) {
    Werteingabe eingabe{Wertart::endwert, "1e6", ""};
    Wertergebnis ergebnis;
    EXPECT_THROW(static_cast<void>(WertAnalyse(Zahlungen({{"01.01.2005", 1e308}, {"01.01.2006", 1e308}}),
                                               eingabe, ergebnis)),
                 std::runtime_error);
}

TEST(WertAnalyse, LeereReiheWirdAbgelehntDerZinsIstDannSchonVorbelegt) {
    Werteingabe eingabe;
    Wertergebnis ergebnis;
    EXPECT_EQ(WertAnalyse({}, eingabe, ergebnis),
              (Ablehnung{"Es müssen erst Zahlungen eingegeben werden.", "Begdatum", "Zahlungen"}));
    EXPECT_EQ(eingabe.Abzins2, "10");
}

}  // namespace wertanalyse_test
}  // namespace zinfolio
