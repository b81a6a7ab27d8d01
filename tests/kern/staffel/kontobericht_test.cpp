#include "kern/staffel/kontobericht.h"

#include <gmock/gmock.h>

#include "kern/bericht/seitenmass.h"
#include "kern/grund/utf8.h"
#include "kern/staffel/beispielkonto.h"
#include "kern/staffel/staffelberechnung.h"

namespace zinfolio {
namespace kontobericht_test {

using enum Kontoansicht;
using testing::ElementsAre;
using testing::SizeIs;

std::string Blanks(std::size_t anzahl) {
    std::string text(anzahl, ' ');
    return text;
}

Kontoberichtsdaten Beispieldaten(Kontoansicht ansicht = kurzform) {
    std::vector<Staffelsatz> saetze = Beispielstaffel();
    Staffelberechnung(saetze, Verzinsungsmethode::deutsch);
    Kontoberichtsdaten daten;
    daten.projekt = "Konto.ZiS";
    daten.einstellungen.Zinsverrechnungsart = Zinsverrechnungsart::quartalsende;
    daten.einstellungen.Kontodatum = "31.03.2007";
    daten.konditionen = {saetze.front()};
    daten.loesung = std::make_shared<const std::vector<Staffelsatz>>(std::move(saetze));
    daten.ansicht = ansicht;
    return daten;
}

Kontoberichtsdaten MitKonditionen(std::size_t anzahl, const std::string& ezins) {
    Kontoberichtsdaten daten = Beispieldaten();
    daten.ezins = ezins;
    daten.effektivmethode = "PAngV2000";
    daten.konditionen.assign(anzahl, Kondition("01.01.2007", beispielkonditionen));
    if (anzahl > 0) daten.konditionen.back() = Kondition("31.12.2020", beispielkonditionen);
    return daten;
}

constexpr std::string_view konditionskopf =
    "Zinsdaten                Guthabenzins1         Guthabenzins2          Kreditzins1          Kreditzins2";
constexpr std::string_view weitere = "... und weitere Zinsdaten";

// Labels end at 49, values at 49 + 53 = 102.
TEST(Kontokopfblock, NenntKontoSummenUndKonditionen) {
    EXPECT_THAT(
        Kontokopfblock(Beispieldaten()),
        ElementsAre(Blanks(40) + "Konto.ZiS", Blanks(34) + "Zinsverrechnung" + Blanks(41) + "Quartalsende",
                    Blanks(31) + "Verzinsungsmethode" + Blanks(23) + "30/360 Tage : Deutsche Methode",
                    Blanks(13) + "Datum für Kontoabschluss/-berechnung" + Blanks(43) + "31.03.2007",
                    Blanks(30) + "Gesamtzahlungssumme" + Blanks(44) + "15.000,00",
                    Blanks(37) + "Gesamtzinsen" + Blanks(48) + "86,53",
                    Blanks(38) + "Endvermögen" + Blanks(44) + "15.086,53", konditionskopf,
                    "01.01.2007" + Blanks(19) + "2,00000 %" + Blanks(13) + "3,00000 %" + Blanks(12) +
                        "8,00000 %" + Blanks(11) + "12,00000 %"));
}

TEST(Kontokopfblock, MitEffektivzinssatzHatErZweiZeilenMehr) {
    Kontoberichtsdaten daten = Beispieldaten();
    daten.ezins = "0,50000";
    daten.effektivmethode = "PAngV2000";
    const auto kopfblock = Kontokopfblock(daten);
    ASSERT_THAT(kopfblock, SizeIs(11));
    EXPECT_EQ(kopfblock[4], Blanks(15) + "Effektivzinssatzberechnungsmethode" + Blanks(44) + "PAngV2000");
    EXPECT_EQ(kopfblock[5], Blanks(32) + "Effektivzinssatz " + Blanks(44) + "0,50000 %");
    EXPECT_EQ(kopfblock[6], Blanks(30) + "Gesamtzahlungssumme" + Blanks(44) + "15.000,00");
}

TEST(Kontokopfblock, OhneEffektivzinssatzZaehltDieMethodeNicht) {
    Kontoberichtsdaten daten = Beispieldaten();
    daten.effektivmethode = "PAngV2000";
    EXPECT_EQ(Kontokopfblock(daten), Kontokopfblock(Beispieldaten()));
}

TEST(Kontokopfblock, OhneProjektIstDieErsteZeileLeer) {
    Kontoberichtsdaten daten = Beispieldaten();
    daten.projekt.clear();
    const auto kopfblock = Kontokopfblock(daten);
    ASSERT_THAT(kopfblock, SizeIs(9));
    EXPECT_EQ(kopfblock[0], "");
    EXPECT_EQ(kopfblock[1], Blanks(34) + "Zinsverrechnung" + Blanks(41) + "Quartalsende");
}

TEST(Kontokopfblock, EinLangerProjektnameBleibtGanz) {
    Kontoberichtsdaten daten = Beispieldaten();
    daten.projekt = std::string(60, 'x') + ".ZiS";
    EXPECT_EQ(Kontokopfblock(daten)[0], daten.projekt);
}

TEST(Kontokopfblock, EinLeeresAbschlussdatumIstNull) {
    Kontoberichtsdaten daten = Beispieldaten();
    daten.einstellungen.Kontodatum.clear();
    const auto kopfblock = Kontokopfblock(daten);
    EXPECT_EQ(kopfblock[3], Blanks(13) + "Datum für Kontoabschluss/-berechnung" + Blanks(52) + "0");
}

TEST(Kontokopfblock, SaetzeStehenRechtsUnterIhrerUeberschrift) {
    Kontoberichtsdaten daten = Beispieldaten();
    daten.konditionen = {Kondition(
        "01.01.2007", {.Gutzins1 = 999, .Gutzins2 = -0.125F, .Kreditzins1 = 3.3F, .Kreditzins2 = 0})};
    const std::string zeile = Kontokopfblock(daten).back();
    EXPECT_EQ(zeile.size(), konditionskopf.size());
    const auto endetBei = [&](std::string_view wert) { return zeile.find(wert) + wert.size(); };
    EXPECT_EQ(endetBei("999,00000 %"), konditionskopf.find("zins1 ") + 5);
    EXPECT_EQ(endetBei("-0,12500 %"), konditionskopf.find("zins2 ") + 5);
    EXPECT_EQ(endetBei("3,30000 %"), konditionskopf.find("Kreditzins1") + 11);
    EXPECT_EQ(endetBei(" 0,00000 %"), konditionskopf.find("Kreditzins2") + 11);
}

TEST(Kontokopfblock, EinBeschaedigtesDatumVerschiebtDieSaetzeNicht) {
    for (const std::string_view datum : {"", "\xC4\xD6"}) {
        Kontoberichtsdaten daten = Beispieldaten();
        daten.konditionen = {MitDatumstext(Kondition("01.01.2007", beispielkonditionen), datum)};
        const std::string zeile = Kontokopfblock(daten).back();
        EXPECT_EQ(Zeichenzahl(zeile), konditionskopf.size());
        EXPECT_TRUE(zeile.ends_with(Blanks(11) + "12,00000 %"));
    }
}

TEST(Kontokopfblock, OhneKonditionenEndetErMitDerUeberschrift) {
    EXPECT_EQ(Kontokopfblock(MitKonditionen(0, "")).back(), konditionskopf);
}

// 8 lines come before the conditions, 10 with an effective rate; the last condition may take line 399.
struct Grenzfall {
    std::string ezins;
    std::size_t passend;
};

class Konditionsgrenze : public testing::TestWithParam<Grenzfall> {};

TEST_P(Konditionsgrenze, WasBisZeile399PasstStehtGanzDa) {
    const auto kopfblock = Kontokopfblock(MitKonditionen(GetParam().passend, GetParam().ezins));
    ASSERT_THAT(kopfblock, SizeIs(399));
    EXPECT_THAT(kopfblock[398], testing::StartsWith("31.12.2020")) << "the last condition";
}

TEST_P(Konditionsgrenze, EineMehrUndZeile400SagtEs) {
    const auto kopfblock = Kontokopfblock(MitKonditionen(GetParam().passend + 1, GetParam().ezins));
    ASSERT_THAT(kopfblock, SizeIs(400));
    EXPECT_THAT(kopfblock[398], testing::StartsWith("01.01.2007"));
    EXPECT_EQ(kopfblock[399], weitere) << "in place of the last condition";
}

TEST_P(Konditionsgrenze, TausendSindNichtMehrZeilen) {
    const auto kopfblock = Kontokopfblock(MitKonditionen(1000, GetParam().ezins));
    ASSERT_THAT(kopfblock, SizeIs(400));
    EXPECT_EQ(kopfblock[399], weitere);
}

INSTANTIATE_TEST_SUITE_P(Alle, Konditionsgrenze,
                         testing::Values(Grenzfall{"", 391}, Grenzfall{"5,00000", 389}));

struct Ansichtserwartung {
    Kontoansicht ansicht;
    std::vector<int> breiten;
    std::vector<std::string> koepfe;
    double punkte;
    int zoom;
};

class Kontoberichtsansicht : public testing::TestWithParam<Ansichtserwartung> {};

TEST_P(Kontoberichtsansicht, HatIhreSpaltenSchriftUndVergroesserung) {
    const Ansichtserwartung& erwartung = GetParam();
    const Bericht bericht = KontoberichtBilden(Beispieldaten(erwartung.ansicht));
    std::vector<int> breiten;
    std::vector<std::string> koepfe;
    for (const Berichtsspalte& spalte : bericht.tabelle.spalten) {
        breiten.push_back(spalte.breite);
        koepfe.push_back(spalte.kopf);
        EXPECT_EQ(spalte.kopfausrichtung, Kopfausrichtung::mitte);
    }
    EXPECT_EQ(breiten, erwartung.breiten);
    EXPECT_EQ(koepfe, erwartung.koepfe);
    EXPECT_EQ(bericht.tabelle.kopfschrift, (Berichtsschrift{"Arial", erwartung.punkte, true}));
    EXPECT_EQ(bericht.tabelle.schrift, (Berichtsschrift{"Arial", erwartung.punkte, false}));
    EXPECT_EQ(bericht.zoom, erwartung.zoom);
    EXPECT_EQ(bericht.rand, 500);
    EXPECT_TRUE(bericht.querformat);
    EXPECT_EQ(bericht.kopfblockschrift, (Berichtsschrift{"Courier New", 10, false}));
    EXPECT_EQ(bericht.seitenzeile, "");
    EXPECT_EQ(breiten.size(), Ansichtsspalten(erwartung.ansicht).size());
}

TEST_P(Kontoberichtsansicht, ZeigtDieZellenDerAnsicht) {
    const Kontoberichtsdaten daten = Beispieldaten(GetParam().ansicht);
    const Berichtstabelle tabelle = KontoberichtBilden(daten).tabelle;
    const auto zeilen = Ansichtszeilen(daten.ansicht, *daten.loesung);
    ASSERT_EQ(tabelle.zeilen, zeilen.size());
    const auto spalten = Ansichtsspalten(daten.ansicht);
    for (std::size_t zeile = 0; zeile < zeilen.size(); ++zeile) {
        for (std::size_t spalte = 0; spalte < spalten.size(); ++spalte)
            EXPECT_EQ(tabelle.zelle(zeile, spalte), spalten[spalte].zelle((*daten.loesung)[zeilen[zeile]]));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Alle, Kontoberichtsansicht,
    testing::Values(Ansichtserwartung{kurzform,
                                      {1440, 2880, 2304, 2304, 2304},
                                      {"Datum", "Vorgang", "Zahlungsbetrag", "Zinsen", "Kontostand"},
                                      10,
                                      75},
                    Ansichtserwartung{detailansicht1,
                                      {1440, 2880, 2304, 2304, 2304, 2304},
                                      {"Datum", "Vorgang", "Betrag (t)", "Zinsen bis (t+1)",
                                       "kumulierte Zinsen bis (t+1)", "Kontostand"},
                                      10,
                                      65},
                    Ansichtserwartung{detailansicht2,
                                      {1440, 2880, 1872, 1872, 1872, 1872, 1872, 1872},
                                      {"Datum", "Vorgang", "Betrag (t)", "Tage bis (t+1)", "Zinsen bis (t+1)",
                                       "Zinsgutschrift t", "kumulierte Zinsen bis (t+1)", "Kontostand"},
                                      10,
                                      65},
                    Ansichtserwartung{
                        detailansicht3,
                        {864, 1584, 720, 720, 1152, 720, 720, 1152, 1296, 1152, 864, 1152, 1152, 1152, 1584},
                        {"Datum", "Vorgang", "Zins1(+) bis (t+1)", "Zins2(+) bis (t+1)",
                         "Guthabenlinie bis (t+1)", "Zins1(-) bis (t+1)", "Zins2(-) bis (t+1)",
                         "Kreditlinie bis (t+1)", "Basis für Zinssatz2", "Betrag (t)", "Tage bis (t+1)",
                         "Zinsen bis (t+1)", "Zinsgutschrift (t)", "kumulierte Zinsen bis (t+1)",
                         "Kontostand (t)"},
                        7,
                        65}));

TEST(Kontobericht, KurzformZeigtDasBeispielOhneKonditionen) {
    const Berichtstabelle tabelle = KontoberichtBilden(Beispieldaten()).tabelle;
    ASSERT_EQ(tabelle.zeilen, 2U);
    EXPECT_EQ(tabelle.zelle(0, 0), "01.01.2007");
    EXPECT_EQ(tabelle.zelle(1, 1), "Zinstermin");
    EXPECT_EQ(tabelle.zelle(1, 4), "15.086,53");
}

TEST(Kontobericht, Detailansicht3PasstAufDieSeite) {
    const Bericht bericht = KontoberichtBilden(Beispieldaten(detailansicht3));
    EXPECT_EQ(Spaltenkanten(bericht).back(), Textbreite(bericht)) << "11.1 inches into 15838 twips";
}

TEST(Kontobericht, HaeltSeineZeilenSelbst) {
    Kontoberichtsdaten daten = Beispieldaten();
    const Bericht bericht = KontoberichtBilden(daten);
    const std::weak_ptr<const std::vector<Staffelsatz>> zeilen = daten.loesung;
    daten = {};
    EXPECT_FALSE(zeilen.expired());
    EXPECT_EQ(bericht.tabelle.zelle(1, 4), "15.086,53");
}

TEST(Kontobericht, OhneZeilenIstDieTabelleLeer) {
    Kontoberichtsdaten daten = Beispieldaten(detailansicht3);
    daten.loesung = std::make_shared<const std::vector<Staffelsatz>>();
    EXPECT_EQ(KontoberichtBilden(daten).tabelle.zeilen, 0U);
    EXPECT_THAT(KontoberichtBilden(daten).tabelle.spalten, SizeIs(15));
    daten.loesung = nullptr;
    EXPECT_EQ(KontoberichtBilden(daten).tabelle.zeilen, 0U);
}

TEST(Kontobericht, HeisstWieDasProjekt) {
    Kontoberichtsdaten daten = Beispieldaten();
    EXPECT_EQ(KontoberichtBilden(daten).titel, "Zinsstaffel Konto.ZiS");
    daten.projekt.clear();
    EXPECT_EQ(KontoberichtBilden(daten).titel, "Zinsstaffel");
}

}  // namespace kontobericht_test
}  // namespace zinfolio
