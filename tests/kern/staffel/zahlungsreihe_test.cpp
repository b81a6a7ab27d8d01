// The rows that an entry of payments makes.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "kern/dates/zahl.h"
#include "kern/grund/rechenfehler.h"
#include "kern/staffel/beispielkonto.h"
#include "kern/staffel/zahlungseingabe.h"

namespace zinfolio {
namespace zahlungsreihe_test {

using enum Abstandseinheit;
using testing::DoubleEq;
using testing::ElementsAre;
using Saetze = std::vector<Staffelsatz>;
using Texte = std::vector<std::string>;

Zahlungseingabe Reihe(std::string_view begdatum, std::string_view ratzahl, Abstandseinheit einheit = monate,
                      std::string_view abstand = "1") {
    Zahlungseingabe eingabe;
    eingabe.Begdatum = begdatum;
    eingabe.Betrag = "100";
    eingabe.Ratzahl = ratzahl;
    eingabe.Abstand = abstand;
    eingabe.Combo5 = einheit;
    eingabe.Delta = "0";
    return eingabe;
}

Saetze Erzeugt(const Zahlungseingabe& eingabe) {
    Saetze saetze;
    ZahlungenErzeugen(eingabe, saetze);
    return saetze;
}

Texte Daten(const Saetze& saetze) {
    Texte daten;
    for (const Staffelsatz& satz : saetze)
        daten.emplace_back(satz.Satzdatum.Roh());
    return daten;
}

std::vector<double> Betraege(const Saetze& saetze) {
    std::vector<double> betraege;
    for (const Staffelsatz& satz : saetze)
        betraege.push_back(satz.Zahlbetrag);
    return betraege;
}

TEST(ZahlungenErzeugen, EineZahlungIstEinZahlungssatz) {
    Zahlungseingabe eingabe = Reihe("15.03.2007", "1");
    eingabe.Betrag = "-1250,5";
    eingabe.Beschreibung = "Miete Köln";
    EXPECT_THAT(Erzeugt(eingabe), ElementsAre(Zahlungssatz("15.03.2007", -1250.5, "Miete Köln")));
}

TEST(ZahlungenErzeugen, HaengtHintenAn) {
    Saetze saetze{Zahlung("01.01.2008", 1)};
    ZahlungenErzeugen(Reihe("01.01.2007", "2"), saetze);
    EXPECT_THAT(Daten(saetze), ElementsAre("01.01.2008", "01.01.2007", "01.02.2007"));
}

TEST(ZahlungenErzeugen, JedeZeileDerReiheTraegtTextUndSchluessel) {
    Zahlungseingabe eingabe = Reihe("31.01.2007", "2");
    eingabe.Beschreibung = "Rate";
    EXPECT_THAT(Erzeugt(eingabe), ElementsAre(Zahlungssatz("31.01.2007", 100, "Rate"),
                                              Zahlungssatz("28.02.2007", 100, "Rate")));
}

struct Datumsfall {
    Zahlungseingabe eingabe;
    Texte erwartet;
};

class ReihendatenTest : public testing::TestWithParam<Datumsfall> {};

TEST_P(ReihendatenTest, Daten) {
    EXPECT_EQ(Daten(Erzeugt(GetParam().eingabe)), GetParam().erwartet);
}

INSTANTIATE_TEST_SUITE_P(
    DerAnkertagBleibtSoweitDerMonatIhnHat, ReihendatenTest,
    testing::Values(
        Datumsfall{Reihe("15.11.2007", "3"), {"15.11.2007", "15.12.2007", "15.01.2008"}},
        Datumsfall{Reihe("31.01.2007", "4"), {"31.01.2007", "28.02.2007", "31.03.2007", "30.04.2007"}},
        Datumsfall{Reihe("31.01.2008", "3"), {"31.01.2008", "29.02.2008", "31.03.2008"}},
        Datumsfall{Reihe("30.01.2007", "4"), {"30.01.2007", "28.02.2007", "30.03.2007", "30.04.2007"}},
        Datumsfall{Reihe("29.01.2007", "3"), {"29.01.2007", "28.02.2007", "29.03.2007"}},
        Datumsfall{Reihe("28.02.2007", "3"), {"28.02.2007", "28.03.2007", "28.04.2007"}},
        Datumsfall{Reihe("31.08.2007", "3", monate, "3"), {"31.08.2007", "30.11.2007", "29.02.2008"}},
        Datumsfall{Reihe("31.12.2007", "2", monate, "12"), {"31.12.2007", "31.12.2008"}}));

INSTANTIATE_TEST_SUITE_P(
    TageUndJahre, ReihendatenTest,
    testing::Values(
        Datumsfall{Reihe("15.02.2008", "3", tage, "14"), {"15.02.2008", "29.02.2008", "14.03.2008"}},
        Datumsfall{Reihe("31.12.2007", "2", tage), {"31.12.2007", "01.01.2008"}},
        // The calendar addition clips, and the clipped day is forgotten.
        Datumsfall{Reihe("29.02.2008", "3", jahre, "2"), {"29.02.2008", "28.02.2010", "28.02.2012"}},
        Datumsfall{Reihe("30.06.2007", "2", jahre), {"30.06.2007", "30.06.2008"}}));

INSTANTIATE_TEST_SUITE_P(
    OhneAbstandAmSelbenTag, ReihendatenTest,
    testing::Values(Datumsfall{Reihe("31.01.2007", "2", monate, "0"), {"31.01.2007", "31.01.2007"}},
                    Datumsfall{Reihe("31.01.2007", "2", monate, ""), {"31.01.2007", "31.01.2007"}},
                    Datumsfall{Reihe("31.01.2007", "2", tage, ""), {"31.01.2007", "31.01.2007"}}));

INSTANTIATE_TEST_SUITE_P(OhneAnzahlNurDieErste, ReihendatenTest,
                         testing::Values(Datumsfall{Reihe("31.01.2007", "0"), {"31.01.2007"}},
                                         Datumsfall{Reihe("31.01.2007", ""), {"31.01.2007"}},
                                         Datumsfall{Reihe("31.01.2007", "1"), {"31.01.2007"}}));

Zahlungseingabe AmMonatsende(Zahlungseingabe eingabe) {
    eingabe.Check2 = true;
    return eingabe;
}

INSTANTIATE_TEST_SUITE_P(
    MonatsletzterGiltNurBeiMonaten, ReihendatenTest,
    testing::Values(
        Datumsfall{AmMonatsende(Reihe("28.02.2007", "3")), {"28.02.2007", "31.03.2007", "30.04.2007"}},
        Datumsfall{AmMonatsende(Reihe("30.04.2007", "3")), {"30.04.2007", "31.05.2007", "30.06.2007"}},
        Datumsfall{AmMonatsende(Reihe("30.11.2007", "4")),
                   {"30.11.2007", "31.12.2007", "31.01.2008", "29.02.2008"}},
        Datumsfall{AmMonatsende(Reihe("30.04.2007", "2", tage, "31")), {"30.04.2007", "31.05.2007"}},
        Datumsfall{AmMonatsende(Reihe("30.04.2007", "2", tage, "30")), {"30.04.2007", "30.05.2007"}},
        Datumsfall{AmMonatsende(Reihe("28.02.2007", "2", jahre)), {"28.02.2007", "28.02.2008"}}));

Zahlungseingabe Stufig(std::string_view betrag, std::string_view ratzahl, std::string_view stufen,
                       std::string_view delta, Deltaeinheit einheit = Deltaeinheit::prozent) {
    Zahlungseingabe eingabe = Reihe("01.01.2007", ratzahl);
    eingabe.Betrag = betrag;
    eingabe.Check1 = true;
    eingabe.Stufen = stufen;
    eingabe.Delta = delta;
    eingabe.Command1 = einheit;
    return eingabe;
}

TEST(Stufen, JeStufeEineZahlung) {
    const Saetze saetze = Erzeugt(Stufig("100", "1", "3", "10"));
    EXPECT_THAT(Daten(saetze), ElementsAre("01.01.2007", "01.02.2007", "01.03.2007"));
    EXPECT_THAT(Betraege(saetze), ElementsAre(100, 110, 121));
}

TEST(Stufen, MehrereZahlungenJeStufe) {
    const Saetze saetze = Erzeugt(Stufig("100", "2", "3", "10"));
    EXPECT_THAT(Betraege(saetze), ElementsAre(100, 100, 110, 110, 121, 121));
    EXPECT_EQ(Daten(saetze).back(), "01.06.2007");
}

TEST(Stufen, JedeStufeIstGerundetUndDieNaechsteBautDaraufAuf) {
    // 0,13 / 0,143 -> 0,14 / 0,154 -> 0,15; unrounded the third would be 0,1573 -> 0,16.
    EXPECT_THAT(Betraege(Erzeugt(Stufig("0,13", "1", "3", "10"))), ElementsAre(0.13, 0.14, 0.15));
    EXPECT_THAT(Betraege(Erzeugt(Stufig("-0,13", "1", "3", "10"))), ElementsAre(-0.13, -0.14, -0.15));
}

TEST(Stufen, AbwaertsInProzentUndBetrag) {
    EXPECT_THAT(Betraege(Erzeugt(Stufig("100", "1", "3", "-10"))), ElementsAre(100, 90, 81));
    EXPECT_THAT(Betraege(Erzeugt(Stufig("100", "1", "3", "-60", Deltaeinheit::betrag))),
                ElementsAre(100, 40, -20));
}

TEST(Stufen, EinBetragWirdAddiertUndNichtGerundet) {
    EXPECT_THAT(Betraege(Erzeugt(Stufig("100", "1", "3", "0,125", Deltaeinheit::betrag))),
                ElementsAre(100, 100.125, 100.25));
}

TEST(Stufen, EineKeineOderOhneAnzahlZahlungen) {
    EXPECT_THAT(Betraege(Erzeugt(Stufig("100", "2", "1", "10"))), ElementsAre(100, 100));
    EXPECT_THAT(Betraege(Erzeugt(Stufig("100", "2", "0", "10"))), ElementsAre(100, 100));
    EXPECT_THAT(Betraege(Erzeugt(Stufig("100", "0", "3", "10"))), ElementsAre(100));
}

TEST(Stufen, OhneHaekchenKeine) {
    Zahlungseingabe eingabe = Stufig("100", "2", "3", "10");
    eingabe.Check1 = false;
    EXPECT_THAT(Betraege(Erzeugt(eingabe)), ElementsAre(100, 100));
}

TEST(Stufen, DerAnkertagGiltAuchUeberDieStufen) {
    Zahlungseingabe eingabe = Stufig("100", "1", "3", "10");
    eingabe.Begdatum = "31.01.2007";
    EXPECT_THAT(Daten(Erzeugt(eingabe)), ElementsAre("31.01.2007", "28.02.2007", "31.03.2007"));
}

template <typename Fehler>
Saetze BisZumFehler(const Zahlungseingabe& eingabe, Saetze saetze = {}) {
    EXPECT_THROW(ZahlungenErzeugen(eingabe, saetze), Fehler);
    return saetze;
}

TEST(ZahlungenErzeugenFehler, AmEndeDesKalendersBleibenDieZeilenDavor) {
    EXPECT_THAT(Daten(BisZumFehler<Datumsfehler>(Reihe("31.10.9999", "4"))),
                ElementsAre("31.10.9999", "30.11.9999", "31.12.9999"));
    EXPECT_THAT(Daten(BisZumFehler<Datumsfehler>(Reihe("30.12.9999", "4", tage))),
                ElementsAre("30.12.9999", "31.12.9999"));
    EXPECT_THAT(Daten(BisZumFehler<Datumsfehler>(Reihe("01.01.9998", "4", jahre))),
                ElementsAre("01.01.9998", "01.01.9999"));
    // The last of December 9999 is found by walking over it.
    EXPECT_THAT(Daten(BisZumFehler<Datumsfehler>(AmMonatsende(Reihe("30.11.9999", "2")))),
                ElementsAre("30.11.9999"));
}

TEST(ZahlungenErzeugenFehler, MehrAls32767Zeilen) {
    Saetze gerade(32765, Zahlung("01.01.2007", 1));
    ZahlungenErzeugen(Reihe("01.01.2007", "2"), gerade);
    EXPECT_EQ(gerade.size(), 32767U);
    const Saetze voll =
        BisZumFehler<Rechenfehler>(Reihe("01.01.2007", "3"), Saetze(32766, Zahlung("01.01.2007", 1)));
    EXPECT_EQ(voll.size(), 32767U);
    EXPECT_EQ(voll.back(), Zahlung("01.01.2007", 100));
}

TEST(ZahlungenErzeugenFehler, KeineZahlInEinemFeldDasGebrauchtWird) {
    EXPECT_THAT(Daten(BisZumFehler<Zahlfehler>(Reihe("01.01.2007", "3", monate, "x"))),
                ElementsAre("01.01.2007"));
    EXPECT_THAT(Daten(BisZumFehler<Zahlfehler>(Stufig("100", "2", "2", "x"))),
                ElementsAre("01.01.2007", "01.02.2007"));
}

}  // namespace zahlungsreihe_test
}  // namespace zinfolio
