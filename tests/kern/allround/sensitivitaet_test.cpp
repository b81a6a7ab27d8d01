#include "kern/allround/sensitivitaet.h"

#include <gtest/gtest.h>
#include <stdexcept>

#include "kern/allround/zahlungen.h"

namespace zinfolio {
namespace sensitivitaet_test {

Zellentabelle Tabelle(const std::vector<Staffelsatz>& zahlungen, Sensitivitaetseingabe eingabe) {
    Zellentabelle tabelle;
    EXPECT_EQ(SensitivitaetRechnen(zahlungen, eingabe, tabelle), std::nullopt);
    return tabelle;
}

/// The borrowed value of the investment's analysis at 10 %.
constexpr double vorwert = -380.95;

// The sums are those of the analysis in whole cents at each payment; e.g. at 5 %: -1000 + 285,71 + 371,66 +
// 453,51 = 110,88. The straight line falls from the borrowed -380,95 at every rate: at 5 % the value rises
// from -342,63 to 110,88 in 184 days, so 380,95 / 453,51 * 184 = 155 days behind 01.07.2006.
TEST(Sensitivitaet, ElfZeilenUmDenMittlerenZins) {
    EXPECT_EQ(AlleZeilen(Tabelle(Investition(), {.MiZins = "10", .Vorwert = vorwert})),
              (Zeilen{{"5", "200,00", "110,88", "01.01.2007", "03.12.2006", "1", "332"},
                      {"6", "200,00", "94,39", "01.01.2007", "06.12.2006", "1", "335"},
                      {"7", "200,00", "78,28", "01.01.2007", "09.12.2006", "1", "338"},
                      {"8", "200,00", "62,58", "01.01.2007", "12.12.2006", "1", "341"},
                      {"9", "200,00", "47,24", "01.01.2007", "15.12.2006", "1", "344"},
                      {"10", "200,00", "32,27", "01.01.2007", "18.12.2006", "1", "347"},
                      {"11", "200,00", "17,65", "01.01.2007", "21.12.2006", "1", "350"},
                      {"12", "200,00", "3,39", "01.01.2007", "24.12.2006", "1", "353"},
                      {"13", "200,00", "-10,56", "01.01.2007", "Keine", "1", "353"},
                      {"14", "200,00", "-24,19", "01.01.2007", "Keine", "1", "353"},
                      {"15", "200,00", "-37,50", "01.01.2007", "Keine", "1", "353"}}));
}

TEST(Sensitivitaet, EndwerteZaehlenBisZurLetztenZahlung) {
    const Zellentabelle tabelle =
        Tabelle(Investition(), {.Anzeigeart = Wertart::endwert, .MiZins = "10", .Vorwert = -460});
    EXPECT_EQ(tabelle.Koepfe()[2], "kumulierter Vermögensendwert");
    EXPECT_EQ(Spaltentexte(tabelle, 2), (Zeile{"122,50", "106,40", "90,10", "73,60", "56,90", "40,00",
                                               "22,90", "5,60", "-11,90", "-29,60", "-47,50"}));
    // 460 / 500 * 184 = 169 days at each rate.
    EXPECT_EQ(tabelle.Zelle(0, 4), "17.12.2006");
    EXPECT_EQ(tabelle.Zelle(7, 4), "17.12.2006");
}

TEST(Sensitivitaet, Koepfe) {
    EXPECT_EQ(Tabelle(Investition(), {}).Koepfe(),
              (Zeile{"Zins", "kumulierte Zahlungen", "kumulierter Barwert", "Statische Amortisation",
                     "Dynamische Amortisation", "Jahre", "Tage"}));
}

TEST(Sensitivitaet, OhneGeliehenenWertBeginntDieGeradeBeiNull) {
    EXPECT_EQ(Tabelle(Investition(), {.MiZins = "10"}).Zelle(0, 4), "01.07.2006");
}

TEST(Sensitivitaet, UnterNullWirdDerAnfangAbgeschnittenUndDerMittlereZinsIstNichtDieSechsteZeile) {
    EXPECT_EQ(Spaltentexte(Tabelle(Investition(), {.MiZins = "0,3", .Combo2 = 0}), 0),
              (Zeile{"0", "0,1", "0,2", "0,3", "0,4", "0,5", "0,6", "0,7", "0,8", "0,9", "1"}));
    EXPECT_EQ(Spaltentexte(Tabelle(Investition(), {.MiZins = "2"}), 0),
              (Zeile{"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}));
    EXPECT_EQ(Tabelle(Investition(), {.MiZins = "-50"}).Zelle(0, 0), "0");
}

TEST(Sensitivitaet, SchrittweiteKommtAusDerListennummer) {
    constexpr std::array letzte{"30,5", "32,5", "35", "40", "45", "50", "55"};
    for (std::size_t i = 0; i < letzte.size(); ++i)
        EXPECT_EQ(Tabelle(Investition(), {.MiZins = "30", .Combo2 = i}).Zelle(10, 0), letzte[i]);
}

TEST(Sensitivitaet, LeererMittlererZinsNimmtDieVoreinstellung) {
    Sensitivitaetseingabe eingabe{.Abzins = "8"};
    Zellentabelle tabelle;
    EXPECT_EQ(SensitivitaetRechnen(Investition(), eingabe, tabelle), std::nullopt);
    EXPECT_EQ(eingabe.MiZins, "8");
    EXPECT_EQ(tabelle.Zelle(5, 0), "8");
}

TEST(Sensitivitaet, MittlererZinsOhneZahlIstNull) {
    EXPECT_EQ(Tabelle(Investition(), {.MiZins = "x"}).Zelle(10, 0), "10");
}

TEST(Sensitivitaet, ReiheDieNieNullErreichtHatKeineDaten) {
    const Zellentabelle tabelle =
        Tabelle(Zahlungen({{"01.01.2005", -100}, {"01.01.2006", 50}}), {.MiZins = "5"});
    EXPECT_EQ(Spaltentexte(tabelle, 3), Zeile(11, "Keine"));
    EXPECT_EQ(Spaltentexte(tabelle, 4), Zeile(11, "Keine"));
    EXPECT_EQ(Spaltentexte(tabelle, 5), Zeile(11, ""));
    EXPECT_EQ(Spaltentexte(tabelle, 6), Zeile(11, ""));
}

// 110 / 1,10 = 100 exactly; from 11 % on the value is negative.
TEST(Sensitivitaet, ZeileOhneDatumWiederholtJahreUndTageDerZeileDavor) {
    const Zellentabelle tabelle =
        Tabelle(Zahlungen({{"01.01.2005", -100}, {"01.01.2006", 110}}), {.MiZins = "10", .Vorwert = -100});
    EXPECT_EQ(AlleZeilen(tabelle)[5], (Zeile{"10", "10,00", "0,00", "01.01.2006", "01.01.2006", "1", "0"}));
    EXPECT_EQ(AlleZeilen(tabelle)[6], (Zeile{"11", "10,00", "-0,90", "01.01.2006", "Keine", "1", "0"}));
}

TEST(Sensitivitaet, StatischesDatumBleibtAuchWoDieSummeWiederUnterNullFaellt) {
    const Zellentabelle tabelle =
        Tabelle(Zahlungen({{"01.01.2005", -100}, {"01.01.2006", 150}, {"01.01.2007", -80}}), {.MiZins = "5"});
    EXPECT_EQ(Spaltentexte(tabelle, 3), Zeile(11, "01.01.2006"));
    EXPECT_EQ(Spaltentexte(tabelle, 1), Zeile(11, "-30,00"));
}

TEST(Sensitivitaet, SummeWirdBeiJederZahlungAufCentsGerundet) {
    // Ten times 0,004 each rounded away is 0,00.
    std::vector<Staffelsatz> zahlungen;
    for (int i = 0; i < 10; ++i)
        zahlungen.push_back(Zahlungssatz("01.01.2005", 0.004, ""));
    EXPECT_EQ(Tabelle(zahlungen, {.MiZins = "5"}).Zelle(5, 2), "0,00");
    EXPECT_EQ(Tabelle(zahlungen, {.MiZins = "5"}).Zelle(5, 1), "0,04");
}

TEST(Sensitivitaet, ZweiZahlungenAmTagDerWendeLassenDasDatumDerZeileDavor) {
    EXPECT_EQ(
        Spaltentexte(Tabelle(Zahlungen({{"01.01.2005", -100}, {"01.01.2005", 120}}), {.MiZins = "5"}), 4),
        Zeile(11, ""));
}

TEST(Sensitivitaet, ErsteZahlungUeberNullHatKeinInterpoliertesDatum) {
    EXPECT_EQ(Spaltentexte(Tabelle(Zahlungen({{"01.01.2005", 100}, {"01.01.2006", 5}}), {.MiZins = "5"}), 4),
              Zeile(11, "Keine"));
}

TEST(Sensitivitaet, DatumHinterDemKalenderIstEinFehlerUndLaesstDieTabelle) {
    Zellentabelle tabelle = Tabelle(Investition(), {});
    const Zellentabelle vorher = tabelle;
    Sensitivitaetseingabe eingabe{.MiZins = "10", .Vorwert = -1e12};
    EXPECT_THROW(static_cast<void>(SensitivitaetRechnen(Investition(), eingabe, tabelle)), Datumsfehler);
    EXPECT_EQ(tabelle, vorher);
}

TEST(Sensitivitaet, ZinsVonEinerMillion) {
    const Zellentabelle tabelle = Tabelle(Investition(), {.MiZins = "1000000"});
    EXPECT_EQ(tabelle.Zelle(5, 0), "1000000");
    // -1000 + 300/10001 + 400/(10001*5001) + 500/10001^2, in cents at each payment.
    EXPECT_EQ(tabelle.Zelle(5, 2), "-999,97");
}

TEST(Sensitivitaet, BeschaedigteZahlungIstEinFehler) {
    Sensitivitaetseingabe eingabe;
    Zellentabelle tabelle;
    auto zahlungen = Investition();
    zahlungen.push_back(Beschaedigt());
    EXPECT_THROW(static_cast<void>(SensitivitaetRechnen(zahlungen, eingabe, tabelle)), Datumsfehler);
}

TEST(Sensitivitaet, LeereReiheWirdAbgelehnt) {
    Sensitivitaetseingabe eingabe;
    Zellentabelle tabelle;
    EXPECT_EQ(SensitivitaetRechnen({}, eingabe, tabelle),
              (Ablehnung{"Es müssen erst Zahlungen eingegeben werden.", "Begdatum", "Zahlungen"}));
}

}  // namespace sensitivitaet_test
}  // namespace zinfolio
