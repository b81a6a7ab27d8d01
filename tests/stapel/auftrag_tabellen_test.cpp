#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "rechnen.h"

namespace zinfolio {
namespace auftrag_tabellen_test {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

constexpr std::string_view still = R"({"id":null,"ok":false,"Meldung":"","Feld":null,"Register":null})";

std::string Tabelle(std::string_view felder) {
    return Ergebnis(R"({"rechnung":"faktortabelle","Combo1":0,"Combo2":4,"Combo3":5,"Combo4":0,)" +
                    std::string(felder) + "}");
}

TEST(Faktortabellenauftrag, GibtDieKopfzeileZuerst) {
    EXPECT_EQ(Tabelle(R"("Pro1":"3","Pro2":"4","J1":"1","J2":"2")"),
              R"({"id":null,"ok":true,"Zeilen":[["Jahr / Zins","3","3,5","4"],)"
              R"(["1","1,0300000","1,0350000","1,0400000"],["2","1,0609000","1,0712250","1,0816000"]]})");
}

TEST(Faktortabellenauftrag, AblehnungenNennenWederFeldNochRegister) {
    EXPECT_EQ(Tabelle(R"("Pro1":"","Pro2":"4","J1":"1","J2":"2")"),
              OhneErgebnis("null", "Geben Sie bitte den 1. Prozentsatz ein. (grösser als 0)"));
    EXPECT_EQ(Tabelle(R"("Pro1":"5","Pro2":"4","J1":"1","J2":"2")"),
              OhneErgebnis("null", "Die 1. Prozentangabe darf nicht vor der 2. Prozentangabe liegen."));
}

TEST(Faktortabellenauftrag, UeberlaufEndetMitDerAllgemeinenMeldung) {
    EXPECT_THAT(Tabelle(R"("Pro1":"10","Pro2":"10","J1":"1","J2":"9999")"),
                HasSubstr(R"("ok":false,"Meldung":"Bitte überprüfen Sie Ihre Angaben.)"));
    EXPECT_THAT(Tabelle(R"("Pro1":"1","Pro2":"1e6","J1":"1","J2":"2")"),
                HasSubstr(R"("ok":false,"Meldung":"Bitte überprüfen Sie Ihre Angaben.)"));
}

TEST(Faktortabellenauftrag, EineMillionWerte) {
    // 0,1 to 500 in steps of 0,5: 1000 rates; 380 years of them stay below 10^308.
    const std::string ergebnis = Tabelle(R"("Pro1":"0,1","Pro2":"500","J1":"1","J2":"380")");
    EXPECT_THAT(ergebnis, StartsWith(R"({"id":null,"ok":true,"Zeilen":[["Jahr / Zins","0,1","0,6",)"));
    EXPECT_THAT(ergebnis, EndsWith(R"("]]})"));
    EXPECT_GT(ergebnis.size(), 380U * 1000U * 10U);
}

TEST(Faktortabellenauftrag, EinIndexAusserhalbDerListeIstUngueltig) {
    EXPECT_EQ(Ergebnis(R"({"rechnung":"faktortabelle","Combo1":6})"),
              OhneErgebnis("null", R"(Das Feld \"Combo1\" muss eine ganze Zahl von 0 bis 5 sein.)"));
    EXPECT_EQ(Ergebnis(R"({"rechnung":"faktortabelle","Combo4":2})"),
              OhneErgebnis("null", R"(Das Feld \"Combo4\" muss eine ganze Zahl von 0 bis 1 sein.)"));
}

TEST(Faktorauftrag, ErgebnisUndSatz) {
    EXPECT_EQ(
        Ergebnis(
            R"({"rechnung":"faktor","Combo7":0,"Combo5":0,"Combo6":0,"Zins2":"10","Jahre2":"2","Betrag2":"100"})"),
        R"({"id":null,"ok":true,"Ergebnis":"121,00000000","Erklärung3":"Ein Betrag von 100 € , der heute zu einem )"
        R"(Zinssatz von 10 % über 2 Jahre angelegt wird, ergibt einen Vermögensendwert von 121,00 € nach 2 Jahren"})");
}

TEST(Faktorauftrag, WirdOhneBetragAbgelehnt) {
    EXPECT_EQ(
        Ergebnis(
            R"({"rechnung":"faktor","Combo7":5,"Combo5":5,"Combo6":1,"Zins2":"10","Jahre2":"2","Betrag2":"0"})"),
        OhneErgebnis("null", "Geben Sie bitte den Betrag ein."));
}

std::string Kurz(std::string_view form, std::string_view felder,
                 std::string_view wahl = R"("m":1,"Zahlungsmodus":1)") {
    return Ergebnis(R"({"rechnung":"kurz","Form":")" + std::string(form) + R"(",)" + std::string(felder) +
                    "," + std::string(wahl) + "}");
}

TEST(Kurzauftrag, EndkapitalZeigtAlleFelderMitZweiStellen) {
    EXPECT_EQ(
        Kurz("Form4b", R"("rate":"100","Laufzeitjahre":"1","Lauftage":"360","Zins":"10","Kap":"")"),
        R"({"id":null,"ok":true,"rate":"100,00","Laufzeitjahre":"2,00","Lauftage":"0,00","Zins":"10,00",)"
        R"("Kap":"0,00","Vwert":"231,00"})");
}

TEST(Kurzauftrag, RateRenditeUndDauer) {
    EXPECT_EQ(
        Kurz("Form5b", R"("Vendwert":"15.000","Laufjahre":"10","Lauftage":"0","Zins":"5","kap":"0")",
             R"("m":12,"Zahlungsmodus":1)"),
        R"({"id":null,"ok":true,"Vendwert":"15.000,00","Laufjahre":"10,00","Lauftage":"0,00","Zins":"5,00",)"
        R"("kap":"0,00","rate":"96,76"})");
    EXPECT_EQ(
        Kurz("Form7b", R"("Vendwert":"1120","Laufjahre":"1","Lauftage":"0","rate":"0","kap":"1000")"),
        R"({"id":null,"ok":true,"Vendwert":"1.120,00","Laufjahre":"1,00","Lauftage":"0,00","rate":"0,00",)"
        R"("kap":"1.000,00","Zins":"12,00%"})");
    EXPECT_EQ(Kurz("Form8b", R"("Vendwert":"15000","Zins":"5","rate":"100","kap":"0")",
                   R"("m":12,"Zahlungsmodus":1)"),
              R"({"id":null,"ok":true,"Vendwert":"15.000,00","Zins":"5,00","rate":"100,00","kap":"0,00",)"
              R"("Laufjahre":"9,00","Lauftage":"261,00"})");
}

TEST(Kurzauftrag, WasImErgebnisfeldStehtZaehltNicht) {
    EXPECT_THAT(
        Kurz("Form4b",
             R"("rate":"100","Laufzeitjahre":"1","Lauftage":"0","Zins":"10","Kap":"0","Vwert":"alt")"),
        HasSubstr(R"("Vwert":"110,00")"));
    EXPECT_THAT(
        Kurz("Form8b",
             R"("Vendwert":"1050","Zins":"5","rate":"0","kap":"1000","Laufjahre":"x","Lauftage":"y")"),
        HasSubstr(R"("Laufjahre":"1,00","Lauftage":"0,00")"));
}

TEST(Kurzauftrag, RenditeWirdOhneLaufzeitOderEinzahlungAbgelehnt) {
    EXPECT_EQ(Kurz("Form7b", R"("Vendwert":"1","Laufjahre":"","Lauftage":"0","rate":"0","kap":"0")"),
              OhneErgebnis("null", "Die Laufzeit in Jahren oder Tagen muss grösser als 0 sein."));
    EXPECT_EQ(Kurz("Form7b", R"("Vendwert":"1","Laufjahre":"1","Lauftage":"0","rate":"0","kap":"0")"),
              OhneErgebnis("null", "Das Anfangsvermögen oder die Sparrate müssen grösser als 0 sein."));
}

TEST(Kurzauftrag, JederFehlerEndetStill) {
    EXPECT_EQ(Kurz("Form4b", R"("rate":"x","Laufzeitjahre":"1","Lauftage":"0","Zins":"10","Kap":"0")"),
              still);
    EXPECT_EQ(Kurz("Form4b", R"("rate":"1","Laufzeitjahre":"40000","Lauftage":"0","Zins":"10","Kap":"0")"),
              still);
    EXPECT_EQ(Kurz("Form4b", R"("rate":"1","Laufzeitjahre":"9000","Lauftage":"0","Zins":"10","Kap":"0")"),
              still);
    EXPECT_EQ(Kurz("Form8b", R"("Vendwert":"100","Zins":"5","rate":"0","kap":"0")"), still);
}

TEST(Kurzauftrag, FelderAndererFormenSindUnbekanntUndEigeneNoetig) {
    EXPECT_EQ(Kurz("Form4b", R"("rate":"1","Laufjahre":"1","Lauftage":"0","Zins":"1","Kap":"0")"),
              OhneErgebnis("null", R"(Das Feld \"Laufzeitjahre\" fehlt.)"));
    EXPECT_EQ(Kurz("Form5b", R"("Vendwert":"1","Laufjahre":"1","Lauftage":"0","Zins":"1","Kap":"0")"),
              OhneErgebnis("null", R"(Das Feld \"Kap\" ist unbekannt.)"));
    EXPECT_EQ(Kurz("Form5b", R"("nichts":"1")"),
              OhneErgebnis("null", R"(Das Feld \"nichts\" ist unbekannt.)"));
}

TEST(Kurzauftrag, FormZahlweiseUndModusAusIhrenListen) {
    EXPECT_EQ(
        Kurz("Form6b", R"("rate":"1")"),
        OhneErgebnis("null",
                     R"(Das Feld \"Form\" muss \"Form4b\", \"Form5b\", \"Form7b\" oder \"Form8b\" sein.)"));
    EXPECT_EQ(Kurz("Form4b", R"("rate":"1")", R"("m":5)"),
              OhneErgebnis("null", R"(Das Feld \"m\" muss 12, 6, 4, 3, 2 oder 1 sein.)"));
    EXPECT_EQ(Kurz("Form4b", R"("rate":"1")", R"("Zahlungsmodus":3)"),
              OhneErgebnis("null", R"(Das Feld \"Zahlungsmodus\" muss eine ganze Zahl von 1 bis 2 sein.)"));
}

}  // namespace auftrag_tabellen_test
}  // namespace zinfolio
