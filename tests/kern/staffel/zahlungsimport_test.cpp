#include "kern/staffel/zahlungsimport.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <ostream>

#include "kern/dateien/csvlesen.h"
#include "kern/grund/windows1252.h"
#include "kern/staffel/bankspalten.h"
#include "kern/staffel/beispielkonto.h"

namespace zinfolio {

void PrintTo(const Importausfall& ausfall, std::ostream* strom) {
    *strom << ausfall.zeile << ": " << ausfall.inhalt << ": " << ausfall.grund;
}

namespace zahlungsimport_test {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(ZahlungenEinlesen, KurzeJahreUndWindows1252) {
    const Zahlungsimport ergebnis = ZahlungenEinlesen(NachWindows1252(
        "\"Auftragskonto\";\"Buchungstag\";\"Valutadatum\";\"Buchungstext\";\"Verwendungszweck\";\"Betrag\";"
        "\"Waehrung\"\r\n"
        "\"DE00\";\"31.01.24\";\"01.02.24\";\"DAUERAUFTRAG\";\"Miete für Köln\";\"-780,00\";\"EUR\"\r\n"
        "\"DE00\";\"02.02.24\";\"02.02.24\";\"GEHALT\";\"\";\"2.310,47\";\"EUR\"\r\n"));
    EXPECT_THAT(ergebnis.zahlungen,
                ElementsAre(Zahlung("01.02.2024", -780, "Miete für Köln"), Zahlung("02.02.2024", 2310.47)));
    EXPECT_THAT(ergebnis.ausfaelle, IsEmpty());
    EXPECT_EQ(ergebnis.datumskopf, "Valutadatum") << "interest runs from the value date";
    EXPECT_EQ(ergebnis.betragskopf, "Betrag");
    EXPECT_EQ(ergebnis.textkopf, "Verwendungszweck");
}

TEST(ZahlungenEinlesen, ZeilenDerBankVorUndHinterDerTabelle) {
    const Zahlungsimport ergebnis = ZahlungenEinlesen(
        "\xEF\xBB\xBF\"Girokonto\";\"DE00 0000\"\n"
        "\"Kontostand vom 31.01.2024:\";\"1.234,56 €\"\n\n"
        "\"Buchungsdatum\";\"Wertstellung\";\"Status\";\"Verwendungszweck\";\"Betrag (€)\"\n"
        "\"02.01.2024\";\"03.01.2024\";\"Gebucht\";\"Brot\nund Butter\";\"-3,50 €\"\n"
        "\"04.01.2024\";\"\";\"Vorgemerkt\";\"Kino\";\"-9,00 €\"\n"
        "\"Summe\";\"\";\"\";\"\";\"-12,50 €\"\n");
    EXPECT_THAT(ergebnis.zahlungen, ElementsAre(Zahlung("03.01.2024", -3.5, "Brot und Butter")));
    EXPECT_THAT(ergebnis.ausfaelle,
                ElementsAre(Importausfall{7, "04.01.2024 | Vorgemerkt | Kino | -9,00 €", "Das Datum fehlt."},
                            Importausfall{8, "Summe | -12,50 €", "Das Datum fehlt."}));
}

TEST(ZahlungenEinlesen, KommasPunkteUndIsodaten) {
    const Zahlungsimport ergebnis = ZahlungenEinlesen(
        "Datum,Empfänger,Betrag (EUR)\n2024-01-02,\"Bäcker, "
        "Alt\",-3.50\n2024-01-03,Lohn,\"1,234.00\"\n2024-01-04,Bar,1000\n");
    EXPECT_THAT(ergebnis.zahlungen,
                ElementsAre(Zahlung("02.01.2024", -3.5, "Bäcker, Alt"), Zahlung("03.01.2024", 1234, "Lohn"),
                            Zahlung("04.01.2024", 1000, "Bar")));
    EXPECT_THAT(ergebnis.ausfaelle, IsEmpty());
}

TEST(ZahlungenEinlesen, SollUndHabenInEigenenSpalten) {
    const Zahlungsimport ergebnis = ZahlungenEinlesen(
        "Buchungstag;Soll;Haben;Text\n01.02.2024;5,00;;a\n02.02.2024;;6,00;b\n"
        "03.02.2024;-7,00;0,00;c\n04.02.2024;0,00;8,00;d\n05.02.2024;1;2;e\n06.02.2024;;;f\n");
    EXPECT_THAT(ergebnis.zahlungen,
                ElementsAre(Zahlung("01.02.2024", -5, "a"), Zahlung("02.02.2024", 6, "b"),
                            Zahlung("03.02.2024", -7, "c"), Zahlung("04.02.2024", 8, "d")));
    EXPECT_THAT(ergebnis.ausfaelle, ElementsAre(Importausfall{6, "05.02.2024 | 1 | 2 | e",
                                                              "Soll und Haben stehen nebeneinander."},
                                                Importausfall{7, "06.02.2024 | f", "Der Betrag fehlt."}));
    EXPECT_EQ(ergebnis.betragskopf, "Soll/Haben");
}

TEST(ZahlungenEinlesen, EinKennzeichenGibtDasVorzeichen) {
    const Zahlungsimport ergebnis =
        ZahlungenEinlesen("Valuta;Umsatz;S/H\n01.02.2024;5,00;S\n02.02.2024;6,00;H\n03.02.2024;-7,00;Soll\n");
    EXPECT_THAT(ergebnis.zahlungen,
                ElementsAre(Zahlung("01.02.2024", -5), Zahlung("02.02.2024", 6), Zahlung("03.02.2024", -7)));
}

TEST(ZahlungenEinlesen, EigeneTabellenUndEingefuegteZeilen) {
    EXPECT_THAT(ZahlungenEinlesen("Datum;Betrag;Beschreibung\n01.01.2007;15.000,00;Für 3 €\n").zahlungen,
                ElementsAre(Zahlung("01.01.2007", 15000, "Für 3 €")));
    const Zahlungsimport eingefuegt =
        ZahlungenEinlesen("1.1.2007\tMiete\t-780\n\t\t\n2.1.2007\tLohn\t2.000,50");
    EXPECT_THAT(eingefuegt.zahlungen,
                ElementsAre(Zahlung("01.01.2007", -780, "Miete"), Zahlung("02.01.2007", 2000.5, "Lohn")));
    EXPECT_THAT(eingefuegt.ausfaelle, ElementsAre(Importausfall{2, "", "Das Datum fehlt."}));
    EXPECT_EQ(eingefuegt.datumskopf, "");
}

TEST(ZahlungenEinlesen, WasNichtEindeutigIstWirdNichtGenommen) {
    const Zahlungsimport ergebnis = ZahlungenEinlesen(
        "Datum;Betrag;Währung\n31.02.2024;1,00;EUR\n01.02.2024;1.00;EUR\n"
        "01.02.2024;0,00;EUR\n01.02.2024;1,00;USD\n01.02.2024\n01.02.2024;1,00;€\n");
    EXPECT_THAT(ergebnis.zahlungen, ElementsAre(Zahlung("01.02.2024", 1)));
    EXPECT_THAT(
        ergebnis.ausfaelle,
        ElementsAre(Importausfall{2, "31.02.2024 | 1,00 | EUR", "\"31.02.2024\" ist kein Datum."},
                    Importausfall{3, "01.02.2024 | 1.00 | EUR", "\"1.00\" ist kein Betrag."},
                    Importausfall{4, "01.02.2024 | 0,00 | EUR", "Der Betrag ist 0."},
                    Importausfall{5, "01.02.2024 | 1,00 | USD", "Der Betrag hat die Währung \"USD\"."},
                    Importausfall{6, "01.02.2024", "Der Betrag fehlt."}));
}

TEST(ZahlungenEinlesen, EinKontoHatHoechstens32767Zahlungen) {
    std::string text = "Datum;Betrag\n";
    for (int i = 0; i < 32768; ++i)
        text += "01.01.2024;1\n";
    const Zahlungsimport ergebnis = ZahlungenEinlesen(text);
    EXPECT_EQ(ergebnis.zahlungen.size(), 32767U);
    EXPECT_THAT(ergebnis.ausfaelle, ElementsAre(Importausfall{32769, "01.01.2024 | 1",
                                                              "Mehr als 32767 Zahlungen hat kein Konto."}));
}

TEST(ZahlungenEinlesen, EinVollesKontoNimmtNurNochWasPlatzHat) {
    const Zahlungsimport ergebnis =
        ZahlungenEinlesen("Datum;Betrag\n01.01.2024;1\n02.01.2024;2\n03.01.2024;3\n", 2);
    EXPECT_EQ(ergebnis.zahlungen.size(), 2U);
    EXPECT_THAT(ergebnis.ausfaelle,
                ElementsAre(Importausfall{4, "03.01.2024 | 3", "Mehr als 32767 Zahlungen hat kein Konto."}));
    EXPECT_TRUE(ZahlungenEinlesen("Datum;Betrag\n01.01.2024;1\n", 0).zahlungen.empty());
}

TEST(ZahlungenEinlesen, OhneDatumUndBetragIstEsKeineTabelle) {
    for (const std::string_view text :
         {"", "Hallo", "Datum;Text\n01.01.2024;Miete\n", "Name;Betrag\nMiete;5,00\n"})
        EXPECT_THROW((void)ZahlungenEinlesen(text), Csvfehler) << text;
}

struct Datumsfall {
    std::string text;
    std::string datum;
};

class BankdatumTest : public testing::TestWithParam<Datumsfall> {};

TEST_P(BankdatumTest, Wird) {
    EXPECT_EQ(Bankdatum(GetParam().text).value_or("keines"), GetParam().datum);
}

INSTANTIATE_TEST_SUITE_P(
    Daten, BankdatumTest,
    testing::Values(Datumsfall{"01.02.2024", "01.02.2024"}, Datumsfall{" 1.2.2024 ", "01.02.2024"},
                    Datumsfall{"01.02.24", "01.02.2024"}, Datumsfall{"29.02.99", "keines"},
                    Datumsfall{"31.12.99", "31.12.2099"}, Datumsfall{"2024-02-29", "29.02.2024"},
                    Datumsfall{"2023-02-29", "keines"}));

INSTANTIATE_TEST_SUITE_P(
    Keine, BankdatumTest,
    testing::Values(Datumsfall{"", "keines"}, Datumsfall{"01.02.", "keines"},
                    Datumsfall{"01.02.224", "keines"}, Datumsfall{"01/02/2024", "keines"},
                    Datumsfall{"01-02-2024", "keines"}, Datumsfall{"001.02.2024", "keines"},
                    Datumsfall{"01.02.20245", "keines"}, Datumsfall{"-1.02.2024", "keines"},
                    Datumsfall{"1. 2.2024", "keines"}, Datumsfall{"01.02.2024 12:00", "keines"}));

}  // namespace zahlungsimport_test
}  // namespace zinfolio
