#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "rechnen.h"

namespace zinfolio {
namespace auftrag_sparen_test {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

/// 1000 at the start of 2007 and 100 each month from February on, at 3 percent.
const std::string plan2007 =
    R"("AnfVermögen":"1000","Anfdatum":"01.01.2007","ratdatum1":"01.02.2007","Betrag":"100",)"
    R"("Enddatum":"31.12.2007","Zins":"3")";

std::string Auftrag(std::string_view form, std::string_view felder, std::string_view weiteres = "") {
    return R"({"rechnung":"sparen","Form":")" + std::string(form) + R"(","Felder":{)" + std::string(felder) +
           "}" + std::string(weiteres) + "}";
}

std::string Ablehnungszeile(std::string_view meldung, std::string_view feld, std::string_view register_) {
    return R"({"id":null,"ok":false,"Meldung":")" + std::string(meldung) + R"(","Feld":)" +
           std::string(feld) + R"(,"Register":)" + std::string(register_) + "}";
}

const std::string allgemein = Ablehnungszeile(
    "Bitte überprüfen Sie Ihre Angaben. Diese sind offenbar unvollständig oder nicht in sich schlüssig und "
    "lassen daher die gewünschte Berechnung nicht zu.",
    "null", R"("Daten")");

// By hand: 2.50 for January, each month 0.25 more, 5.07 for the 29 days of December, together 46.32.
TEST(Sparauftrag, Endkapital) {
    const std::string ergebnis = Ergebnis(Auftrag("Form90000", plan2007));
    EXPECT_THAT(ergebnis, StartsWith(R"({"id":null,"ok":true,"Zeilen":[{"Zahlungsart":2,"Zahlungstext":"",)"
                                     R"("Satzdatum":"01.01.2007",)"));
    EXPECT_THAT(ergebnis,
                HasSubstr(R"("Zahlungsart":1,"Zahlungstext":"Anfangsvermögen","Satzdatum":"01.01.2007")"));
    EXPECT_THAT(ergebnis, HasSubstr(R"("Zinsgutschrift":46.32,"Kontostand":2146.32},)"));
    EXPECT_THAT(
        ergebnis,
        HasSubstr(R"("Gesamtzahlungssumme":"2.100,00","EV":"2.146,32","Geszins":"46,32","ezins":"3,)"));
    EXPECT_THAT(ergebnis, EndsWith(R"(","Endkapital":2146.32})"));
}

TEST(Sparauftrag, Sparrate) {
    EXPECT_THAT(
        Ergebnis(Auftrag("Form94000", R"("AnfVermögen":"0","Anfdatum":"01.01.2007",)"
                                      R"("ratdatum1":"01.01.2007","Enddatum":"31.12.2016","Zins":"0",)"
                                      R"("Vwert":"12000")")),
        EndsWith(R"("EV":"12.000,00","Geszins":"0,00","ezins":"0,00000","Sparrate":100})"));
}

TEST(Sparauftrag, Rendite) {
    EXPECT_THAT(Ergebnis(Auftrag("Form92000", R"("AnfVermögen":"1000","Anfdatum":"01.01.2007",)"
                                              R"("ratdatum1":"01.01.2007","Enddatum":"31.12.2016",)"
                                              R"("Betrag":"100","Vermendwert":"16000")")),
                HasSubstr(R"("ezins":"3,78172","Nzins":"3,77921","Nominalzins":3.779207169)"));
}

TEST(Sparauftrag, Anspardauer) {
    EXPECT_THAT(Ergebnis(Auftrag("Form96000", R"("AnfVermögen":"0","Anfdatum":"01.01.2007",)"
                                              R"("ratdatum1":"01.01.2007","Betrag":"100","Zins":"3",)"
                                              R"("Vwert":"1250")")),
                EndsWith(R"("ezins":"","Enddatum":"01.01.2008"})"));
}

TEST(Sparauftrag, Anfangskapital) {
    EXPECT_THAT(Ergebnis(Auftrag("Form99000", R"("Anfdatum":"01.01.2007","ratdatum1":"01.01.2007",)"
                                              R"("Betrag":"100","Enddatum":"31.12.2016","Zins":"3",)"
                                              R"("Vwert":"5000")")),
                EndsWith(R"("Anfangskapital":-6681.8})"));
}

TEST(Sparauftrag, FormDarfHintenStehen) {
    EXPECT_THAT(Ergebnis(R"({"Felder":{)" + plan2007 + R"(},"Form":"Form90000","rechnung":"sparen"})"),
                EndsWith(R"("Endkapital":2146.32})"));
}

TEST(Sparauftrag, ListenUndHaken) {
    EXPECT_THAT(Ergebnis(Auftrag("Form90000", plan2007 + R"(,"Combo1":4,"Check2":0.0,"Combo5":2)")),
                HasSubstr(R"("Gesamtzahlungssumme":"1.100,00")"));
}

TEST(Sparauftrag, Zinstabelle) {
    EXPECT_THAT(
        Ergebnis(Auftrag("Form90000", plan2007, R"(,"Zinstabelle":[["01.07.2007","6"],["01.03.2007","1"]])")),
        HasSubstr(
            R"({"Zahlungsart":2,"Zahlungstext":"","Satzdatum":"01.07.2007","Zahlbetrag":0,"Gutzins1":6)"));
}

TEST(Sparauftrag, EinheitDerAnspardauer) {
    const std::string felder =
        R"("AnfVermögen":"0","Anfdatum":"01.01.2007","ratdatum1":"01.01.2007",)"
        R"("Betrag":"100","Zins":"0","Vwert":"330","Check2":1,"Anzahl":"1","Delta":"10")";
    // Two trials between the same rates agree, and the search ends with them, short of the target (wanted).
    EXPECT_THAT(Ergebnis(Auftrag("Form96000", felder)), EndsWith(R"("Enddatum":"24.02.2007"})"));
    EXPECT_THAT(Ergebnis(Auftrag("Form96000", felder, R"(,"Command6":"€")")),
                EndsWith(R"("Enddatum":"05.03.2007"})"));
}

TEST(Sparauftrag, AblehnungDesPlans) {
    EXPECT_EQ(Ergebnis(Auftrag("Form90000", "")),
              Ablehnungszeile("Bitte das 1. Spardatum eingeben.", R"("ratdatum1")", R"("Daten")"));
}

TEST(Sparauftrag, AblehnungDerTabelle) {
    EXPECT_EQ(Ergebnis(Auftrag("Form90000", plan2007, R"(,"Zinstabelle":[["01.01.2007","6"]])")),
              Ablehnungszeile("Weitere Zinssätze müssen nach dem Anfangsatum 01.01.2007 liegen.",
                              R"x("ZinsWDAt(1)")x", "null"));
    EXPECT_EQ(
        Ergebnis(Auftrag("Form90000", plan2007,
                         R"(,"Zinstabelle":[["01.02.2007","6"],["01.03.2007","1"],["01.04.2007",""]])")),
        Ablehnungszeile("Geben Sie den Zinsbetrag ein", R"x("Zinsbetrag(3)")x", "null"));
}

TEST(Sparauftrag, KeineLoesung) {
    EXPECT_EQ(Ergebnis(Auftrag("Form94000", R"("AnfVermögen":"0","Anfdatum":"01.01.2007",)"
                                            R"("ratdatum1":"01.01.2007","Enddatum":"31.12.2016","Zins":"3",)"
                                            R"("Vwert":"50000","Check2":1,"Check4":1,"Anzahl":"12",)"
                                            R"("MaxSparrate":"200")")),
              Ablehnungszeile("Es wurde keine Lösung gefunden. Heben Sie die Begrenzungen für die Höhe der "
                              "Sparraten auf oder Verändern Sie deren Werte.",
                              R"("Check4")", R"("Daten")"));
    EXPECT_EQ(Ergebnis(Auftrag("Form92000", R"("AnfVermögen":"1000","Anfdatum":"01.01.2007",)"
                                            R"("ratdatum1":"01.01.2007","Enddatum":"31.12.2016",)"
                                            R"("Betrag":"100","Vermendwert":"-5")")),
              Ablehnungszeile("Es wurde keine zulässige Lösung gefunden", "null", R"("Daten")"));
}

TEST(Sparauftrag, FehlerDerRechnung) {
    EXPECT_EQ(Ergebnis(Auftrag("Form90000", plan2007 + R"(,"MaxSparrate":"x","Check2":1,"Check4":1,)"
                                                       R"("Anzahl":"1")")),
              allgemein);
    EXPECT_EQ(Ergebnis(Auftrag("Form99000", R"("Anfdatum":"01.01.2007","ratdatum1":"01.01.2007",)"
                                            R"("Enddatum":"31.12.2016","Zins":"3","Vwert":"5000")")),
              allgemein);
}

TEST(Sparauftrag, FremdesFeldIstKeinAuftrag) {
    EXPECT_EQ(Ergebnis(Auftrag("Form96000", R"("Enddatum":"31.12.2007")")),
              OhneErgebnis("null", R"(Das Feld \"Felder.Enddatum\" gibt es in Form96000 nicht.)"));
    EXPECT_EQ(Ergebnis(Auftrag("Form90000", R"("Betrg":"1")")),
              OhneErgebnis("null", R"(Das Feld \"Felder.Betrg\" ist unbekannt.)"));
    EXPECT_EQ(Ergebnis(Auftrag("Form90000", R"("Zins":"1","Zins":"2")")),
              OhneErgebnis("null", R"(Das Feld \"Felder.Zins\" kommt doppelt vor.)"));
    EXPECT_EQ(Ergebnis(Auftrag("Form90000", plan2007, R"(,"Command6":"%")")),
              OhneErgebnis("null", R"(Das Feld \"Command6\" gibt es in Form90000 nicht.)"));
    EXPECT_EQ(Ergebnis(Auftrag("Form92000", "", R"(,"Zinstabelle":[["01.02.2007","6"]])")),
              OhneErgebnis("null", R"(Das Feld \"Zinstabelle\" gibt es in Form92000 nicht.)"));
}

TEST(Sparauftrag, FalscheArtIstKeinAuftrag) {
    EXPECT_THAT(Ergebnis(Auftrag("Form90000", R"("Zins":3)")), HasSubstr(R"(Felder.Zins)"));
    EXPECT_THAT(Ergebnis(Auftrag("Form90000", R"("Combo1":5)")), HasSubstr(R"(Felder.Combo1)"));
    EXPECT_THAT(Ergebnis(Auftrag("Form90000", R"("Check1":2)")), HasSubstr(R"(Felder.Check1)"));
    EXPECT_THAT(Ergebnis(Auftrag("Form91000", "")), HasSubstr(R"(Das Feld \"Form\" muss)"));
    EXPECT_THAT(Ergebnis(Auftrag("Form90000", "", R"(,"Zinstabelle":[["01.02.2007"]])")),
                HasSubstr(R"(muss ein Datum und einen Zinssatz haben)"));
}

TEST(Sparauftrag, EinundvierzigZeilenSindZuViele) {
    std::string zeilen = R"(["01.02.2007","1"])";
    for (int i = 0; i < 40; ++i)
        zeilen += R"(,["01.02.2007","1"])";
    EXPECT_THAT(Ergebnis(Auftrag("Form90000", plan2007, R"(,"Zinstabelle":[)" + zeilen + "]")),
                HasSubstr("Zinstabelle[40]"));
}

}  // namespace auftrag_sparen_test
}  // namespace zinfolio
