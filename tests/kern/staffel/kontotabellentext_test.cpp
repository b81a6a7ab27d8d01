#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "kern/bericht/tabellentext.h"
#include "kern/staffel/beispielkonto.h"
#include "kern/staffel/kontoansicht.h"

namespace zinfolio {
namespace kontotabellentext_test {

Staffelsatz MitStand(Staffelsatz satz, double zins, double gutschrift, double stand) {
    satz.Periodenzins = zins;
    satz.Kumulzins = zins;
    satz.Zinsgutschrift = gutschrift;
    satz.Kontostand = stand;
    return satz;
}

/// A condition, a payment with interest of 86.53, and its settlement.
std::vector<Staffelsatz> Auszug(std::string_view text) {
    return {Kondition("01.01.2007", beispielkonditionen),
            MitStand(Zahlung("01.01.2007", 15000, text), 86.53, 0, 15000),
            MitStand(Termin("31.03.2007"), 0, 86.53, 15086.53)};
}

Tabelleninhalt Tabelle(Kontoansicht ansicht, std::vector<Staffelsatz> zeilen) {
    return AnsichtBilden(ansicht, std::make_shared<const std::vector<Staffelsatz>>(std::move(zeilen)));
}

TEST(TabelleAlsText, SpaltenGleichBreitBetraegeRechts) {
    EXPECT_EQ(TabelleAlsText(Tabelle(Kontoansicht::kurzform, Auszug("Einlage"))),
              "Datum       Vorgang     Zahlungsbetrag  Zinsen  Kontostand\n"
              "01.01.2007  Einlage          15.000,00    0,00   15.000,00\n"
              "31.03.2007  Zinstermin            0,00   86,53   15.086,53\n");
}

TEST(TabelleAlsText, LeerzeichenInDenKoepfenWerdenEines) {
    EXPECT_EQ(
        TabelleAlsText(Tabelle(Kontoansicht::detailansicht3, {})),
        "Datum  Vorgang  Guthabenzins 1 bis(t+1) %  Guthabenzins 2 bis(t+1) %  Guthabenlinie bis(t+1)  "
        "Kreditzins 1 bis (t+1) %  Kreditzins 2 bis (t+1) %  Kreditlinie bis(t+1)  Basis für Zinssatz 2  "
        "Betrag (t)  Tage bis (t+1)  Zinsen bis (t+1)  Zinsgutschrift (t)  kumulierte Zinsen bis (t+1)  "
        "Kontostand (t)\n");
}

TEST(TabelleAlsText, UmlauteZaehlenAlsEinZeichen) {
    EXPECT_EQ(TabelleAlsText(Tabelle(Kontoansicht::kurzform, Auszug("Überfällige €"))),
              "Datum       Vorgang        Zahlungsbetrag  Zinsen  Kontostand\n"
              "01.01.2007  Überfällige €       15.000,00    0,00   15.000,00\n"
              "31.03.2007  Zinstermin               0,00   86,53   15.086,53\n");
}

TEST(TabelleAlsText, SteuerzeichenBrechenKeineZeile) {
    EXPECT_EQ(TabelleAlsText(Tabelle(Kontoansicht::kurzform, Auszug("a\r\nb\tc\x7F"
                                                                    "d"))),
              "Datum       Vorgang     Zahlungsbetrag  Zinsen  Kontostand\n"
              "01.01.2007  a b c d          15.000,00    0,00   15.000,00\n"
              "31.03.2007  Zinstermin            0,00   86,53   15.086,53\n");
}

TEST(TabelleAlsText, OhneZeilenBleibtDerKopf) {
    EXPECT_EQ(TabelleAlsText(Tabelle(Kontoansicht::kurzform, {})),
              "Datum  Vorgang  Zahlungsbetrag  Zinsen  Kontostand\n");
}

TEST(TabelleAlsCsv, KopfUndZellenWieSieSind) {
    EXPECT_EQ(TabelleAlsCsv(Tabelle(Kontoansicht::detailansicht1, Auszug("Einlage"))),
              "Datum;Vorgang;Betrag (t);Zinsen bis (t+1);kumulierte Zinsen bis (t+1);Kontostand (t)\n"
              "01.01.2007;Konditionenänderung;0,00;0,00;0,00;0,00\n"
              "01.01.2007;Einlage;15.000,00;86,53;86,53;15.000,00\n"
              "31.03.2007;Zinstermin;0,00;0,00;0,00;15.086,53\n");
}

TEST(TabelleAlsCsv, AlleSpaltenDerDrittenDetailansicht) {
    EXPECT_EQ(
        TabelleAlsCsv(
            Tabelle(Kontoansicht::detailansicht3, std::vector{Kondition("01.01.2007", beispielkonditionen)})),
        "Datum;Vorgang;Guthabenzins 1           bis(t+1)  %;Guthabenzins 2           bis(t+1)  %;"
        "Guthabenlinie            bis(t+1);Kreditzins 1             bis (t+1) %;"
        "Kreditzins 2             bis (t+1) %;Kreditlinie bis(t+1);Basis für Zinssatz 2;Betrag (t);"
        "Tage bis (t+1);Zinsen bis (t+1);Zinsgutschrift (t);kumulierte Zinsen bis (t+1);Kontostand (t)\n"
        "01.01.2007;Konditionenänderung;2;3;10000;8;12;500;Betrag über Limit;0,00;0;0,00;0;0,00;0,00\n");
}

TEST(TabelleAlsCsv, SonderzeichenStehenInAnfuehrungszeichen) {
    const auto zeile = [](std::string_view text) {
        const std::string csv = TabelleAlsCsv(Tabelle(Kontoansicht::kurzform, Auszug(text)));
        const std::size_t anfang = csv.find('\n') + 1;
        return csv.substr(anfang, csv.rfind("\n31.03.2007") - anfang);
    };
    EXPECT_EQ(zeile("a;b"), "01.01.2007;\"a;b\";15.000,00;0,00;15.000,00");
    EXPECT_EQ(zeile("5\"-Rohr"), "01.01.2007;\"5\"\"-Rohr\";15.000,00;0,00;15.000,00");
    EXPECT_EQ(zeile("a\nb"), "01.01.2007;\"a\nb\";15.000,00;0,00;15.000,00");
    EXPECT_EQ(zeile("a\rb"), "01.01.2007;\"a\rb\";15.000,00;0,00;15.000,00");
    EXPECT_EQ(zeile("a, b"), "01.01.2007;a, b;15.000,00;0,00;15.000,00");
}

}  // namespace kontotabellentext_test
}  // namespace zinfolio
