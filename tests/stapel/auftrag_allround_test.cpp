// The jobs of the all-round calculator. What the analyses give is tested with them; here it is how a job
// reads and writes it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "rechnen.h"

namespace zinfolio {
namespace auftrag_allround_test {

using testing::HasSubstr;

constexpr std::string_view allgemeineMeldung =
    "Bitte überprüfen Sie Ihre Angaben. Diese sind offenbar unvollständig oder nicht in sich schlüssig und "
    "lassen daher "
    "die gewünschte Berechnung nicht zu.";

// Out of order: the jobs sort.
const std::string investition =
    R"([{"Datum":"01.01.2006","Betrag":300},{"Datum":"01.01.2005","Betrag":-1000,"Text":"Anfang"},)"
    R"({"Datum":"01.01.2007","Betrag":500},{"Datum":"01.07.2006","Betrag":400}])";

std::string Auftrag(std::string_view rechnung, std::string_view zahlungen, std::string_view felder) {
    return R"({"id":1,"rechnung":")" + std::string(rechnung) + R"(","Zahlungen":)" + std::string(zahlungen) +
           "," + std::string(felder) + "}";
}

std::string Abgelehnt(std::string_view meldung, std::string_view feld, std::string_view tab) {
    return R"({"id":1,"ok":false,"Meldung":")" + std::string(meldung) + R"(","Feld":)" + std::string(feld) +
           R"(,"Register":)" + std::string(tab) + "}";
}

TEST(Wertanalyseauftrag, SortiertUndGibtZellenUndAussagen) {
    EXPECT_EQ(
        Ergebnis(Auftrag("wertanalyse", investition, R"("Anzeigeart":1,"Abzins2":"10","BarwDatum":"")")),
        R"({"id":1,"ok":true,"Zeilen":[["01.01.2005","-1.000,00","-1.000,00","0","0","1,00000","-1.000,00","-1.000,00"],)"
        R"(["01.01.2006","300,00","-700,00","1","0","1,10000","272,73","-727,27"],)"
        R"(["01.07.2006","400,00","-300,00","1","180","1,15500","346,32","-380,95"],)"
        R"(["01.01.2007","500,00","200,00","2","0","1,21000","413,22","32,27"]],)"
        R"("StatAmor":"01.01.2007","DynAmor":"01.01.2007","Dynamorinterpoliert":"18.12.2006",)"
        R"("Label12":"Die Investition / Anlage ist vorteilhaft.","Label13":"Barwert","Label14":"32,27",)"
        R"("Frame1":true,"Farbzeile":4})");
}

TEST(Wertanalyseauftrag, WoDieAnzeigeBleibtWieSieWarIstSieLeer) {
    EXPECT_THAT(Ergebnis(Auftrag("wertanalyse",
                                 R"([{"Datum":"01.01.2005","Betrag":-1},{"Datum":"01.01.2005","Betrag":2}])",
                                 R"("Anzeigeart":2,"Abzins2":"","BarwDatum":"")")),
                HasSubstr(R"("Dynamorinterpoliert":"","Label12":)"));
}

TEST(Wertanalyseauftrag, SpaeteresBarwertdatumVerbirgtDieAmortisation) {
    EXPECT_THAT(Ergebnis(Auftrag("wertanalyse", investition,
                                 R"("Anzeigeart":1,"Abzins2":"","BarwDatum":"01.06.2006")")),
                HasSubstr(R"("Frame1":false,"Farbzeile":0})"));
}

TEST(Wertanalyseauftrag, OhneZahlungenAbgelehntUndFehlerMitDerAllgemeinenMeldung) {
    EXPECT_EQ(Ergebnis(Auftrag("wertanalyse", "[]", R"("Anzeigeart":1,"Abzins2":"","BarwDatum":"")")),
              Abgelehnt("Es müssen erst Zahlungen eingegeben werden.", R"("Begdatum")", R"("Zahlungen")"));
    EXPECT_EQ(Ergebnis(Auftrag("wertanalyse", investition,
                               R"("Anzeigeart":2,"Abzins2":"","BarwDatum":"1.1.2005")")),
              Abgelehnt(allgemeineMeldung, "null", "null"));
    EXPECT_EQ(
        Ergebnis(Auftrag("wertanalyse", investition, R"("Anzeigeart":1,"Abzins2":"-100","BarwDatum":"")")),
        Abgelehnt(allgemeineMeldung, "null", "null"));
}

TEST(Wertanalyseauftrag, AnzeigeartIstEinsOderZwei) {
    EXPECT_THAT(
        Ergebnis(Auftrag("wertanalyse", investition, R"("Anzeigeart":3,"Abzins2":"","BarwDatum":"")")),
        HasSubstr(R"(\"Anzeigeart\")"));
}

TEST(Sensitivitaetsauftrag, LeihtSichDenWertDerAnalyse) {
    const std::string ergebnis =
        Ergebnis(Auftrag("sensitivitaet", investition,
                         R"("Anzeigeart":1,"Abzins2":"10","BarwDatum":"","MiZins":"10","Combo2":2)"));
    EXPECT_THAT(
        ergebnis,
        testing::StartsWith(
            R"({"id":1,"ok":true,"Zeilen":[["5","200,00","110,88","01.01.2007","03.12.2006","1","332"],)"));
    EXPECT_THAT(ergebnis, testing::EndsWith(R"(["15","200,00","-37,50","01.01.2007","Keine","1","353"]]})"));
}

// At 20 % the analysis has no dynamic amortisation and thus nothing to lend.
TEST(Sensitivitaetsauftrag, OhneDynamischeAmortisationIstDerGelieheneWertNull) {
    EXPECT_THAT(Ergebnis(Auftrag("sensitivitaet", investition,
                                 R"("Anzeigeart":1,"Abzins2":"20","BarwDatum":"","MiZins":"10","Combo2":2)")),
                HasSubstr(R"(["5","200,00","110,88","01.01.2007","01.07.2006","1","180"])"));
}

// The analysis borrows -1E+15; on the flat line of the first rate's row that is millions of years.
TEST(Sensitivitaetsauftrag, EinFehlerDerTabelleEndetOhneWorteEinerDerAnalyseMitDerAllgemeinenMeldung) {
    const std::string weit =
        R"([{"Datum":"01.01.2005","Betrag":-1000},{"Datum":"01.01.2006","Betrag":999.99},)"
        R"({"Datum":"01.01.2007","Betrag":0.02}])";
    EXPECT_EQ(
        Ergebnis(Auftrag("sensitivitaet", weit,
                         R"("Anzeigeart":2,"Abzins2":"-99,9999","BarwDatum":"","MiZins":"1e9","Combo2":2)"))
            .substr(0, 17),
        R"({"id":1,"ok":true)");
    EXPECT_EQ(Ergebnis(Auftrag("sensitivitaet", investition,
                               R"("Anzeigeart":1,"Abzins2":"10","BarwDatum":"x1","MiZins":"1","Combo2":2)")),
              Abgelehnt(allgemeineMeldung, "null", "null"));
}

TEST(Sensitivitaetsauftrag, OhneZahlungenAbgelehnt) {
    EXPECT_EQ(Ergebnis(Auftrag("sensitivitaet", "[]",
                               R"("Anzeigeart":1,"Abzins2":"","BarwDatum":"","MiZins":"","Combo2":0)")),
              Abgelehnt("Es müssen erst Zahlungen eingegeben werden.", R"("Begdatum")", R"("Zahlungen")"));
}

TEST(Jahreswertauftrag, GibtDieSpaltenEinsBisSechs) {
    EXPECT_EQ(Ergebnis(Auftrag("jahreswerte", investition, R"("Abzins2":"5","BarwDatum":"31.12.2005")")),
              R"({"id":1,"ok":true,"Zeilen":[["31.12.2005","1.166,27","1.200,00","0,00","1.166,27","0,00"],)"
              R"(["31.12.2006","499,93","500,00","700,00","-666,34","33,66"],)"
              R"(["31.12.2007","0,00","0,00","500,00","-499,93","0,07"]]})");
}

TEST(Jahreswertauftrag, ZuVieleJahreWerdenAbgelehntUndWaehlenDasErsteRegister) {
    EXPECT_EQ(
        Ergebnis(Auftrag("jahreswerte", investition, R"("Abzins2":"5","BarwDatum":"01.01.1605")")),
        Abgelehnt("Die Zahlungsreihe ist zu lang. Prüfen Sie das Barwertdatum und die Zahlungstermine !",
                  "null", R"("Zahlungen")"));
}

TEST(Tilgungsplanauftrag, GibtZinssaetzeTabellenUndKoepfe) {
    EXPECT_EQ(
        Ergebnis(Auftrag("tilgungsplan",
                         R"([{"Datum":"01.01.2007","Betrag":1000},{"Datum":"01.01.2008","Betrag":-1100}])",
                         R"("Combo4":0,"Combo6":0)")),
        R"({"id":1,"ok":true,"nomzins":"10,00000 %","effzinssatz":"10,00000 %","Nominalzins":10,)"
        R"("Jahresweise":[["01.01.2007","1.000,00","0,00","0,00","-1.000,00"],)"
        R"(["01.01.2008","0,00","1.100,00","-100,00","0,00"]],)"
        R"("Unterjährig":[["01.01.2007","Auszahlung","1.000,00","0,00","-1.000,00"],)"
        R"(["01.01.2007","Zinstermin","0,00","0,00","-1.000,00"],)"
        R"(["01.01.2008","Zahlung","-1.100,00","0,00","100,00"],)"
        R"(["01.01.2008","Zinstermin","0,00","-100,00","0,00"]],)"
        R"("Spalten":[["Datum","Auszahlung","Zahlungen","Zinsen nominal  10 %","Kontostand"],)"
        R"(["Datum","Vorgang","Zahlungsbetrag","Zinsen nominal  10 %","Kontostand"]]})");
}

TEST(Tilgungsplanauftrag, EineRichtungUndLeereReiheHabenKeinenPlan) {
    const std::string keiner =
        Abgelehnt("Es gibt nur Ein- bzw. Auszahlungen. Daher existiert kein Tilgungsplan !", "null", "null");
    EXPECT_EQ(Ergebnis(Auftrag("tilgungsplan", "[]", R"("Combo4":0,"Combo6":0)")), keiner);
    EXPECT_EQ(Ergebnis(Auftrag("tilgungsplan", R"([{"Datum":"01.01.2007","Betrag":1000}])",
                               R"("Combo4":0,"Combo6":0)")),
              keiner);
}

TEST(Tilgungsplanauftrag, OhneEffektivzinsAbgelehnt) {
    EXPECT_EQ(
        Ergebnis(Auftrag("tilgungsplan",
                         R"([{"Datum":"01.01.2007","Betrag":1000},{"Datum":"01.01.2007","Betrag":-1000}])",
                         R"("Combo4":1,"Combo6":0)")),
        Abgelehnt("Ein Tilgungsplan konnte rechnerisch nicht ermittelt werden.", "null", "null"));
}

TEST(Tilgungsplanauftrag, EinFehlerEndetOhneWorte) {
    EXPECT_EQ(
        Ergebnis(Auftrag("tilgungsplan",
                         R"([{"Datum":"01.01.2007","Betrag":0.01},{"Datum":"01.01.2008","Betrag":-0.012}])",
                         R"("Combo4":1,"Combo6":0)")),
        Abgelehnt("", "null", "null"));
}

}  // namespace auftrag_allround_test
}  // namespace zinfolio
