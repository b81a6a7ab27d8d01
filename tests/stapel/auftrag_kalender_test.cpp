#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "rechnen.h"

namespace zinfolio {
namespace auftrag_kalender_test {

struct Fall {
    std::string_view auftrag;
    std::string_view ergebnis;
};

class Kalenderauftrag : public testing::TestWithParam<Fall> {};

TEST_P(Kalenderauftrag, GibtDasErgebnis) {
    EXPECT_EQ(Ergebnis(GetParam().auftrag), GetParam().ergebnis);
}

INSTANTIATE_TEST_SUITE_P(
    Tage, Kalenderauftrag,
    testing::Values(
        Fall{R"({"rechnung":"tage","Von":"01.01.2007","Bis":"31.03.2007","Verzinsungsmethode":0})",
             R"({"id":null,"ok":true,"Zinstage":89})"},
        // January and February of a leap year by the calendar
        Fall{R"({"rechnung":"tage","Von":"01.01.2008","Bis":"01.03.2008","Verzinsungsmethode":4})",
             R"({"id":null,"ok":true,"Zinstage":60})"},
        Fall{R"({"rechnung":"tage","Von":"01.03.2008","Bis":"01.01.2008","Verzinsungsmethode":2})",
             R"({"id":null,"ok":true,"Zinstage":-60})"},
        // whole numbers may have a point, fields may come in any order
        Fall{
            R"({ "Bis" : "31.03.2007", "Verzinsungsmethode" : 3.0, "Von" : "01.01.2007", "rechnung" : "tage" })",
            R"({"id":null,"ok":true,"Zinstage":89})"}));

INSTANTIATE_TEST_SUITE_P(
    Periodenzinsen, Kalenderauftrag,
    testing::Values(
        // 16 * 300 / 365 + 15 * 300 / 366 = 13.1507 + 12.2951
        Fall{R"({"rechnung":"periodenzinsen","Von":"15.12.2007","Bis":"15.01.2008","Verzinsungsmethode":1,)"
             R"("Betrag1":10000,"Satz1":3,"Betrag2":0,"Satz2":0})",
             R"({"id":null,"ok":true,"Zinstage":31,"Zins":25.45})"},
        // 10000 at 2 % and 5000 at 3 % for 89 days of 360: 49.4444 + 37.0833
        Fall{R"({"rechnung":"periodenzinsen","Von":"01.01.2007","Bis":"31.03.2007","Verzinsungsmethode":0,)"
             R"("Betrag1":10000,"Satz1":2,"Betrag2":5000,"Satz2":3})",
             R"({"id":null,"ok":true,"Zinstage":89,"Zins":86.53})"},
        // 3.5 / 100 in 4 bytes is 0.0350000001490...: a cent more on a hundred million
        Fall{R"({"rechnung":"periodenzinsen","Von":"01.01.2007","Bis":"01.01.2008","Verzinsungsmethode":0,)"
             R"("Betrag1":1e8,"Satz1":3.5,"Betrag2":0,"Satz2":0})",
             R"({"id":null,"ok":true,"Zinstage":360,"Zins":3500000.01})"}));

INSTANTIATE_TEST_SUITE_P(
    Datum, Kalenderauftrag,
    testing::Values(Fall{R"({"rechnung":"datum","Feld":"1.2.07","Heute":"15.03.2024"})",
                         R"({"id":null,"ok":true,"Feld":"01.02.2007","Abbruch":false})"},
                    Fall{R"({"rechnung":"datum","Feld":"31.02.2007","Heute":"15.03.2024"})",
                         R"({"id":null,"ok":true,"Feld":"15.03.2024","Abbruch":true})"},
                    Fall{R"({"rechnung":"datum","Feld":"0102","Heute":"15.03.2024","Laenge":6})",
                         R"({"id":null,"ok":true,"Feld":"01.02.","Abbruch":false})"},
                    Fall{R"({"rechnung":"datum","Feld":"3102","Heute":"15.03.2024","Laenge":6})",
                         R"({"id":null,"ok":true,"Feld":"","Abbruch":true})"},
                    Fall{R"({"rechnung":"datum","Feld":"","Heute":"15.03.2024","Laenge":10})",
                         R"({"id":null,"ok":true,"Feld":"","Abbruch":false})"},
                    // escapes in texts and names are read
                    Fall{R"({"rechnung":"datum","F\u0065ld":"1\u002e2.07","Heute":"15.03.2024"})",
                         R"({"id":null,"ok":true,"Feld":"01.02.2007","Abbruch":false})"}));

INSTANTIATE_TEST_SUITE_P(
    Zahlformat, Kalenderauftrag,
    testing::Values(Fall{R"({"rechnung":"zahlformat","Wert":15086.53,"Muster":"###,#0.00"})",
                         R"({"id":null,"ok":true,"Text":"15.086,53"})"},
                    Fall{R"({"rechnung":"zahlformat","Wert":2.675,"Muster":"0.00"})",
                         R"({"id":null,"ok":true,"Text":"2,68"})"},
                    Fall{R"({"rechnung":"zahlformat","Wert":-1e-9,"Muster":"###,##.00"})",
                         R"({"id":null,"ok":true,"Text":",00"})"}));

INSTANTIATE_TEST_SUITE_P(
    Zinstermine, Kalenderauftrag,
    testing::Values(Fall{R"({"rechnung":"zinstermine","Erstdatum":"15.05.2007","Kontodatum":"31.12.2007",)"
                         R"("Zinsverrechnungsart":2})",
                         R"({"id":null,"ok":true,"Termine":["30.06.2007","30.09.2007","31.12.2007"]})"},
                    // a closing date before the first candidate of the year stands alone
                    Fall{R"({"rechnung":"zinstermine","Erstdatum":"01.01.2007","Kontodatum":"15.03.2007",)"
                         R"("Zinsverrechnungsart":2})",
                         R"({"id":null,"ok":true,"Termine":["15.03.2007"]})"},
                    // one that equals the first date settles twice
                    Fall{R"({"rechnung":"zinstermine","Erstdatum":"01.01.2007","Kontodatum":"31.12.2007",)"
                         R"("Zinsverrechnungsart":5})",
                         R"({"id":null,"ok":true,"Termine":["31.12.2007","31.12.2007"]})"}));

TEST(Kalenderauftraege, LaufAusDemKalenderIstDieAllgemeineMeldung) {
    EXPECT_EQ(
        Ergebnis(R"({"id":3,"rechnung":"zinstermine","Erstdatum":"01.12.9999","Kontodatum":"31.12.9999",)"
                 R"("Zinsverrechnungsart":0})"),
        OhneErgebnis(
            "3",
            "Bitte überprüfen Sie Ihre Angaben. Diese sind offenbar unvollständig oder nicht in sich "
            "schlüssig und lassen daher die gewünschte Berechnung nicht zu."));
}

TEST(Kalenderauftraege, UeberlaufDerZinsenIstDieAllgemeineMeldung) {
    EXPECT_THAT(
        Ergebnis(R"({"rechnung":"periodenzinsen","Von":"01.01.2007","Bis":"01.01.2008",)"
                 R"("Verzinsungsmethode":0,"Betrag1":1e308,"Satz1":900,"Betrag2":1e308,"Satz2":900})"),
        testing::StartsWith(R"({"id":null,"ok":false,"Meldung":"Bitte überprüfen Sie Ihre Angaben.)"));
}

}  // namespace auftrag_kalender_test
}  // namespace zinfolio
