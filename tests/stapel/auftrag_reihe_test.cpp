#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "rechnen.h"

namespace zinfolio {
namespace auftrag_reihe_test {

using testing::HasSubstr;
using testing::Not;

/// 1000 out, 1100 back after a year of 360 days.
constexpr std::string_view jahr =
    R"([{"Datum":"01.01.2007","Betrag":-1000},{"Datum":"01.01.2008","Betrag":1100}])";

std::string Reihe(std::string_view zahlungen, std::string_view rest) {
    return R"({"id":1,"rechnung":"reihe","Zahlungen":)" + std::string(zahlungen) + std::string(rest) + "}";
}

std::string Reihenwert(std::string_view zahlungen, std::string_view rest) {
    return R"({"id":1,"rechnung":"reihenwert","Zahlungen":)" + std::string(zahlungen) + std::string(rest) +
           "}";
}

TEST(Reihenauftrag, ZehnProzentEinesJahresMitHerleitung) {
    const std::string ergebnis = Ergebnis(Reihe(jahr, R"(,"Effektivmethode":2)"));
    EXPECT_THAT(ergebnis, HasSubstr(R"("ok":true,"Effektivergebnis":"10,00000","Effzins":"10,00000")"));
    EXPECT_THAT(
        ergebnis,
        HasSubstr(
            R"("Meld":"","Zeilen":[["01.01.2007","-1.000,00","1,1","-1.100,00","-1.100,00","-1.000,00"],)"
            R"(["01.01.2008","1.100,00","1","1.100,00","0,00","100,00"]])"));
}

TEST(Reihenauftrag, RateUnterEinemProzentHatNurInDerAnzeigeEineNull) {
    const std::string ergebnis =
        Ergebnis(Reihe(R"([{"Datum":"01.01.2007","Betrag":-1000},{"Datum":"01.01.2008","Betrag":1005}])",
                       R"(,"Effektivmethode":4)"));
    EXPECT_THAT(ergebnis, HasSubstr(R"("Effektivergebnis":",50000","Effzins":"0,50000")"));
}

TEST(Reihenauftrag, OhneVorzeichenwechselGibtEsKeineRateAberEinErgebnis) {
    EXPECT_EQ(
        Ergebnis(Reihe(R"([{"Datum":"01.01.2007","Betrag":5}])", R"(,"Effektivmethode":1)")),
        R"({"id":1,"ok":true,"Effektivergebnis":"","Effzins":"","Zinssatz":null,)"
        R"("Meld":"Es gibt nur Ein- bzw. nur Auszahlungen. Ein Effektivzinssatz existiert nicht !","Zeilen":[]})");
}

TEST(Reihenauftrag, LeereListeWirdWieImFensterAbgelehnt) {
    EXPECT_EQ(Ergebnis(Reihe("[]", R"(,"Effektivmethode":1)")),
              R"({"id":1,"ok":false,"Meldung":"Es müssen erst die Zahlungen eingegeben werden.",)"
              R"("Feld":"Begdatum","Register":"Zahlungen"})");
}

TEST(Reihenauftrag, DieReihenfolgeBleibtWieGegeben) {
    // The later payment first: negative day counts, one row on each side of its end date.
    const std::string ergebnis =
        Ergebnis(Reihe(R"([{"Datum":"01.01.2008","Betrag":1100},{"Datum":"01.01.2007","Betrag":-1000}])",
                       R"(,"Effektivmethode":2)"));
    EXPECT_THAT(ergebnis, HasSubstr(R"("Zeilen":[["01.01.2008")"));
}

TEST(Reihenauftrag, MethodeVonEinsBisVier) {
    EXPECT_EQ(Ergebnis(Reihe(jahr, R"(,"Effektivmethode":0)")),
              OhneErgebnis("1", R"(Das Feld \"Effektivmethode\" muss eine ganze Zahl von 1 bis 4 sein.)"));
    EXPECT_EQ(Ergebnis(Reihe(jahr, R"(,"Effektivmethode":5)")),
              OhneErgebnis("1", R"(Das Feld \"Effektivmethode\" muss eine ganze Zahl von 1 bis 4 sein.)"));
}

TEST(Reihenauftrag, DatumDasKeinesIstWirdMitSeinerStelleGenannt) {
    EXPECT_THAT(Ergebnis(Reihe(R"([{"Datum":"31.02.2007","Betrag":1}])", R"(,"Effektivmethode":1)")),
                HasSubstr(R"(Zahlungen[0].Datum)"));
}

TEST(Reihenwertauftrag, BeimNullzinsSindBeideWerteDieSumme) {
    EXPECT_EQ(Ergebnis(Reihenwert(jahr, R"(,"Effektivmethode":3,"Zinssatz":0)")),
              R"({"id":1,"ok":true,"Endwert":100,"Barwert":100,"Vendwertberechnung":[)"
              R"({"Ergebnisdatum":"01.01.2007","Ergebnisbetrag":-1000,"Faktor":1,"Zeilenwert":-1000,)"
              R"("Summenwert":-1000,"Summenbetrag":-1000},)"
              R"({"Ergebnisdatum":"01.01.2008","Ergebnisbetrag":1100,"Faktor":1,"Zeilenwert":1100,)"
              R"("Summenwert":100,"Summenbetrag":100}],"Barwertberechnung":[)"
              R"({"Ergebnisdatum":"01.01.2007","Ergebnisbetrag":-1000,"Faktor":1,"Zeilenwert":-1000,)"
              R"("Summenwert":-1000,"Summenbetrag":-1000},)"
              R"({"Ergebnisdatum":"01.01.2008","Ergebnisbetrag":1100,"Faktor":1,"Zeilenwert":1100,)"
              R"("Summenwert":100,"Summenbetrag":100}]})");
}

TEST(Reihenwertauftrag, UnterMinusHundertProzentMitGebrochenemExponentenScheitertMitDerMeldungDerSuche) {
    // 90 of 360 days: the fourth root of a negative number.
    const std::string_view quartal =
        R"([{"Datum":"01.01.2007","Betrag":-1000},{"Datum":"01.04.2007","Betrag":1100}])";
    EXPECT_EQ(Ergebnis(Reihenwert(quartal, R"(,"Effektivmethode":2,"Zinssatz":-101)")),
              OhneErgebnis("1", "Es wurde kein Effektivzinssatz gefunden."));
}

TEST(Reihenwertauftrag, LeereReiheScheitertBeimLesenDerErstenZeile) {
    EXPECT_EQ(Ergebnis(Reihenwert("[]", R"(,"Effektivmethode":1,"Zinssatz":5)")),
              OhneErgebnis("1", "Es wurde kein Effektivzinssatz gefunden."));
}

TEST(Reihenwertauftrag, MehrZeilenAlsEineDateiFasstScheiternMitDerMeldungDerSuche) {
    const auto mit = [](int anzahl) {
        std::string zahlungen = R"([{"Datum":"01.01.2007","Betrag":1})";
        for (int i = 1; i < anzahl; ++i)
            zahlungen += R"(,{"Datum":"01.01.2007","Betrag":1})";
        return Ergebnis(Reihenwert(zahlungen + "]", R"(,"Effektivmethode":3,"Zinssatz":5)"));
    };
    EXPECT_THAT(mit(32767), HasSubstr(R"("ok":true,"Endwert":32767,"Barwert":32767,)"));
    EXPECT_EQ(mit(32768), OhneErgebnis("1", "Es wurde kein Effektivzinssatz gefunden."));
}

TEST(Staffelauftrag, MitEffektivmethodeTraegtErDieRenditeDesKontos) {
    // 1000 for 360 days at 10 %: 1100 come back.
    const std::string auftrag =
        R"({"rechnung":"staffel","Zahlungen":[{"Datum":"31.12.2006","Betrag":1000}],"Konditionen":[)"
        R"({"Datum":"31.12.2006","Gutzins1":10,"Gutzins2":0,"Guthabenlinie":5000,"Kreditzins1":0,"Kreditzins2":0,)"
        R"("Kreditlinie":1,"Zweitzinsart":1}],"Kontodatum":"31.12.2007","Zinsverrechnungsart":5,)"
        R"("Verzinsungsmethode":0)";
    EXPECT_THAT(
        Ergebnis(auftrag + R"(,"Effektivmethode":4})"),
        HasSubstr(R"("Gesamtzinsen":"100,00","ezins":"10,00000","Effektivergebnis":"10,00000","Herleitung":[)"
                  R"(["31.12.2006","-1.000,00","1,1","-1.100,00","-1.100,00","-1.000,00"],)"
                  R"(["31.12.2007","1.100,00","1","1.100,00","0,00","100,00"]]})"));
    EXPECT_THAT(Ergebnis(auftrag + "}"), Not(HasSubstr("ezins")));
}

}  // namespace auftrag_reihe_test
}  // namespace zinfolio
