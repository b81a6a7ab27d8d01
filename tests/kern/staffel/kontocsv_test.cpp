#include "kern/staffel/kontocsv.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <ostream>
#include <string>

#include "kern/staffel/beispielkonto.h"

namespace zinfolio {
namespace kontocsv_test {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string zahlungskopf = "Datum;Betrag;Beschreibung\n";
const std::string konditionskopf =
    "Datum;Gutzins1;Gutzins2;Guthabenlinie;Kreditzins1;Kreditzins2;Kreditlinie;Zweitzinsart\n";

TEST(ZahlungenAusCsv, InDerOrdnungDerTabelle) {
    EXPECT_THAT(
        ZahlungenAusCsv(zahlungskopf + "01.02.2007;-1.234,56;Miete\n01.01.2007;+15000; für Öl \n"),
        ElementsAre(Zahlung("01.02.2007", -1234.56, "Miete"), Zahlung("01.01.2007", 15000, " für Öl ")));
}

TEST(ZahlungenAusCsv, ZahlenSindDeutsch) {
    const auto saetze = ZahlungenAusCsv(
        zahlungskopf + "01.01.2007;-1.005;\n01.01.2007; ,5 ;\n01.01.2007;5,;\n01.01.2007;-0,005;\n");
    ASSERT_EQ(saetze.size(), 4U);
    EXPECT_EQ(saetze[0].Zahlbetrag, -1005);
    EXPECT_EQ(saetze[1].Zahlbetrag, 0.5);
    EXPECT_EQ(saetze[2].Zahlbetrag, 5);
    EXPECT_EQ(saetze[3].Zahlbetrag, -0.005);
}

class GruppierungTest : public testing::TestWithParam<std::string> {};

TEST_P(GruppierungTest, EinPunktDerKeineTausenderTrenntIstEinFehlerDerZeile) {
    try {
        (void)ZahlungenAusCsv(zahlungskopf + "01.01.2007;5;\n02.01.2007;" + GetParam() + ";\n");
        FAIL() << "kein Fehler";
    } catch (const Csvfehler& fehler) {
        EXPECT_EQ(fehler.Zeile(), 3U);
        EXPECT_EQ(fehler.what(),
                  "Das Feld \"Betrag\" hat ein Dezimalkomma, ein Punkt trennt nur Tausender: \"" +
                      GetParam() + "\".");
    }
}

INSTANTIATE_TEST_SUITE_P(Betraege, GruppierungTest,
                         testing::Values("1.00", "1.0", "1.", ".5", "-1.5", "12.3456", "1234.567", "1.2345",
                                         "1.234.56", "1..234", ".123", "1.00,50", "1.234.5,00"));

TEST(ZahlungenAusCsv, TausenderDuerfenGetrenntSein) {
    const auto saetze = ZahlungenAusCsv(
        zahlungskopf + "01.01.2007;+1.234;\n01.01.2007; 12.345.678,9 ;\n01.01.2007;-123.456,;\n");
    ASSERT_EQ(saetze.size(), 3U);
    EXPECT_EQ(saetze[0].Zahlbetrag, 1234);
    EXPECT_EQ(saetze[1].Zahlbetrag, 12345678.9);
    EXPECT_EQ(saetze[2].Zahlbetrag, -123456);
}

TEST(ZahlungenAusCsv, BeschreibungDarfLeerSeinUndWirdWieImSatzAbgeschnitten) {
    const auto saetze =
        ZahlungenAusCsv(zahlungskopf + "29.02.2008;0;\n01.01.2007;1;1234567890123456789012345Rest\n");
    ASSERT_EQ(saetze.size(), 2U);
    EXPECT_EQ(saetze[0], Zahlung("29.02.2008", 0));
    EXPECT_EQ(saetze[1].Zahlungstext.Roh(), "1234567890123456789012345");
}

TEST(ZahlungenAusCsv, NurDieKopfzeileIstEineLeereListe) {
    EXPECT_THAT(ZahlungenAusCsv(zahlungskopf), IsEmpty());
    EXPECT_THAT(ZahlungenAusCsv("\xEF\xBB\xBF\r\nDatum;Betrag;Beschreibung\r\n\r\n"), IsEmpty());
    EXPECT_THAT(ZahlungenAusCsv("\"Datum\";\"Betrag\";\"Beschreibung\""), IsEmpty());
}

TEST(KonditionenAusCsv, AlleFelderInIhrerOrdnung) {
    EXPECT_THAT(KonditionenAusCsv(konditionskopf + "01.01.2007;2;3,0;10.000,00;8,00;12;500;2\n"),
                ElementsAre(Kondition("01.01.2007", beispielkonditionen)));
}

TEST(KonditionenAusCsv, SaetzeSindVierByteZahlen) {
    const auto saetze = KonditionenAusCsv(konditionskopf + "01.01.2007;3,3;-0,1;0,1;0;999;1,7;-32768\n");
    ASSERT_EQ(saetze.size(), 1U);
    EXPECT_EQ(saetze[0].kondition.Gutzins1, 3.3F);
    EXPECT_EQ(saetze[0].kondition.Gutzins2, -0.1F);
    EXPECT_EQ(saetze[0].kondition.Guthabenlinie, 0.1);
    EXPECT_EQ(saetze[0].kondition.Kreditzins2, 999.0F);
    EXPECT_EQ(saetze[0].kondition.Kreditlinie, 1.7);
    EXPECT_EQ(saetze[0].kondition.Zweitzinsart, -32768);
}

struct Fehlerfall {
    std::string text;
    std::size_t zeile;
    std::string grund;
};

void PrintTo(const Fehlerfall& fall, std::ostream* strom) {
    *strom << testing::PrintToString(fall.text);
}

void ExpectFehler(const Fehlerfall& fall, std::vector<Staffelsatz> (*lesen)(std::string_view)) {
    try {
        (void)lesen(fall.text);
        ADD_FAILURE() << "kein Fehler";
    } catch (const Csvfehler& fehler) {
        EXPECT_EQ(fehler.Zeile(), fall.zeile);
        EXPECT_EQ(fehler.what(), fall.grund);
    }
}

class ZahlungenfehlerTest : public testing::TestWithParam<Fehlerfall> {};

TEST_P(ZahlungenfehlerTest, NenntZeileUndGrund) {
    ExpectFehler(GetParam(), ZahlungenAusCsv);
}

const std::string falscherKopf = "Die erste Zeile muss \"Datum;Betrag;Beschreibung\" lauten.";

INSTANTIATE_TEST_SUITE_P(Kopf, ZahlungenfehlerTest,
                         testing::Values(Fehlerfall{"", 1, falscherKopf}, Fehlerfall{"\n\n", 1, falscherKopf},
                                         Fehlerfall{"01.01.2007;1;a\n", 1, falscherKopf},
                                         Fehlerfall{"\nDatum;Betrag\n", 2, falscherKopf},
                                         Fehlerfall{"datum;betrag;beschreibung", 1, falscherKopf},
                                         Fehlerfall{"Betrag;Datum;Beschreibung", 1, falscherKopf},
                                         Fehlerfall{"Datum,Betrag,Beschreibung", 1, falscherKopf},
                                         Fehlerfall{konditionskopf, 1, falscherKopf}));

INSTANTIATE_TEST_SUITE_P(
    Felderzahl, ZahlungenfehlerTest,
    testing::Values(Fehlerfall{zahlungskopf + "01.01.2007;1", 2,
                               "Die Zahl der Felder ist 2, muss aber 3 sein: Datum;Betrag;Beschreibung."},
                    Fehlerfall{zahlungskopf + "01.01.2007;1;a\n\n01.01.2007;1;a;b", 4,
                               "Die Zahl der Felder ist 4, muss aber 3 sein: Datum;Betrag;Beschreibung."},
                    Fehlerfall{zahlungskopf + " \n", 2,
                               "Die Zahl der Felder ist 1, muss aber 3 sein: Datum;Betrag;Beschreibung."}));

Fehlerfall Datumsfall(const std::string& datum) {
    return {zahlungskopf + "01.01.2007;1;a\n" + datum + ";1;a\n", 3,
            "Das Feld \"Datum\" muss ein Datum der Form tt.mm.jjjj sein, \"" + datum + "\" ist keines."};
}

INSTANTIATE_TEST_SUITE_P(Datum, ZahlungenfehlerTest,
                         testing::Values(Datumsfall(""), Datumsfall("29.02.2007"), Datumsfall("1.1.2007"),
                                         Datumsfall("01.01.07"), Datumsfall("2007-01-01"),
                                         Datumsfall("01.01.2007 "), Datumsfall("01.01.0099"),
                                         Datumsfall("morgen")));

Fehlerfall Betragsfall(const std::string& betrag) {
    return {zahlungskopf + "01.01.2007;" + betrag + ";a\n", 2,
            "Das Feld \"Betrag\" muss eine Zahl sein, \"" + betrag + "\" ist keine."};
}

INSTANTIATE_TEST_SUITE_P(Betrag, ZahlungenfehlerTest,
                         testing::Values(Betragsfall(""), Betragsfall("abc"), Betragsfall("1,2,3"),
                                         Betragsfall("1e3"), Betragsfall("10 000"), Betragsfall("1,234.56"),
                                         Betragsfall("5 €"), Betragsfall("nan")));

TEST(ZahlungenAusCsv, LangesUnsinnigesFeldWirdInDerMeldungGekuerzt) {
    ExpectFehler({zahlungskopf + "01.01.2007;" + std::string(50, 'x') + ";a", 2,
                  "Das Feld \"Betrag\" muss eine Zahl sein, \"" + std::string(40, 'x') + "…\" ist keine."},
                 ZahlungenAusCsv);
}

class KonditionenfehlerTest : public testing::TestWithParam<Fehlerfall> {};

TEST_P(KonditionenfehlerTest, NenntZeileUndGrund) {
    ExpectFehler(GetParam(), KonditionenAusCsv);
}

INSTANTIATE_TEST_SUITE_P(
    Felder, KonditionenfehlerTest,
    testing::Values(
        Fehlerfall{
            zahlungskopf, 1,
            "Die erste Zeile muss "
            "\"Datum;Gutzins1;Gutzins2;Guthabenlinie;Kreditzins1;Kreditzins2;Kreditlinie;Zweitzinsart\" "
            "lauten."},
        Fehlerfall{konditionskopf + "1.1.07;2;3;0;8;12;500;2", 2,
                   "Das Feld \"Datum\" muss ein Datum der Form tt.mm.jjjj sein, \"1.1.07\" ist keines."},
        Fehlerfall{konditionskopf + "01.01.2007;2;x;0;8;12;500;2", 2,
                   "Das Feld \"Gutzins2\" muss eine Zahl sein, \"x\" ist keine."},
        Fehlerfall{konditionskopf + "01.01.2007;2;3;0;8;12;;2", 2,
                   "Das Feld \"Kreditlinie\" muss eine Zahl sein, \"\" ist keine."},
        Fehlerfall{konditionskopf + "01.01.2007;2;3;0;1" + std::string(39, '0') + ";12;500;2", 2,
                   "Das Feld \"Kreditzins1\" liegt außerhalb des Bereichs einer 4-Byte-Gleitkommazahl: \"1" +
                       std::string(39, '0') + "\"."},
        Fehlerfall{
            konditionskopf + "01.01.2007;2;3;0;8;12;500;1,5", 2,
            "Das Feld \"Zweitzinsart\" muss eine ganze Zahl von -32768 bis 32767 sein, \"1,5\" ist keine."},
        Fehlerfall{konditionskopf + "01.01.2007;2;3;0;8;12;500;32768", 2,
                   "Das Feld \"Zweitzinsart\" muss eine ganze Zahl von -32768 bis 32767 sein, \"32768\" ist "
                   "keine."}));

}  // namespace kontocsv_test
}  // namespace zinfolio
