#include <gtest/gtest.h>

#include "rechnen.h"

namespace zinfolio {
namespace auftrag_ungueltig_test {

/// A job that is none, and what is said about it. `id` is what could still be read of it.
struct Fall {
    std::string auftrag;
    std::string meldung;
    std::string id = "1";
};

class UngueltigerAuftrag : public testing::TestWithParam<Fall> {};

TEST_P(UngueltigerAuftrag, NenntDenGrund) {
    const Fall& fall = GetParam();
    std::string meldung;
    for (const char zeichen : fall.meldung)
        meldung += zeichen == '"' || zeichen == '\\' ? std::string("\\") + zeichen : std::string(1, zeichen);
    EXPECT_EQ(Ergebnis(fall.auftrag), OhneErgebnis(fall.id, meldung));
}

/// A sound job but for the fields given.
std::string Tage(std::string_view felder) {
    return R"({"id":1,"rechnung":"tage","Von":"01.01.2007",)" + std::string(felder) + "}";
}

std::string Konto(std::string_view zahlungen, std::string_view konditionen, std::string_view kontodatum) {
    return R"({"id":1,"rechnung":"staffel","Zahlungen":)" + std::string(zahlungen) + R"(,"Konditionen":)" +
           std::string(konditionen) + R"(,"Kontodatum":)" + std::string(kontodatum) +
           R"(,"Zinsverrechnungsart":5,"Verzinsungsmethode":0})";
}

std::string Kondition(std::string_view gutzins1, std::string_view zweitzinsart) {
    return R"([{"Datum":"01.01.2007","Gutzins1":)" + std::string(gutzins1) +
           R"(,"Gutzins2":0,"Guthabenlinie":0,"Kreditzins1":0,"Kreditzins2":0,"Kreditlinie":0,"Zweitzinsart":)" +
           std::string(zweitzinsart) + "}]";
}

const std::string gutesBis = R"("Bis":"31.01.2007",)";

INSTANTIATE_TEST_SUITE_P(
    KeinJson, UngueltigerAuftrag,
    testing::Values(
        Fall{"hallo", "Der Auftrag ist kein JSON-Objekt.", "null"},
        Fall{"[1,2]", "Der Auftrag ist kein JSON-Objekt.", "null"},
        Fall{"7", "Der Auftrag ist kein JSON-Objekt.", "null"},
        Fall{"\"{}\"", "Der Auftrag ist kein JSON-Objekt.", "null"},
        Fall{R"({"id":1,"rechnung":"tage")",
             "Der Auftrag ist kein gültiges JSON: Klammern, Kommas, Doppelpunkte oder Werte stehen falsch."},
        Fall{R"({"id":1)",
             "Der Auftrag ist kein gültiges JSON: Klammern, Kommas, Doppelpunkte oder Werte stehen falsch."},
        Fall{R"({"id":)", "Das Feld \"id\" enthält kein gültiges JSON.", "null"},
        Fall{R"({"id")",
             "Der Auftrag ist kein gültiges JSON: Klammern, Kommas, Doppelpunkte oder Werte stehen falsch.",
             "null"},
        Fall{"{",
             "Der Auftrag ist kein gültiges JSON: Klammern, Kommas, Doppelpunkte oder Werte stehen falsch.",
             "null"},
        Fall{R"({"id":1,"rechnung":"tage)",
             "Der Auftrag ist kein gültiges JSON: ein Text ist nicht abgeschlossen.", "null"},
        Fall{"{\"id\":1,\"rechnung\":\"ta\xFFge\"}",
             "Der Auftrag ist kein gültiges JSON: die Bytes sind kein UTF-8.", "null"},
        Fall{"{\"id\":1,\"rechnung\":\"ta\tge\"}",
             "Der Auftrag ist kein gültiges JSON: ein Text enthält ein Steuerzeichen.", "null"},
        Fall{std::string("{\"id\":1}\0", 9), "Hinter dem Auftrag steht noch etwas."},
        Fall{R"({"id":1} x)", "Hinter dem Auftrag steht noch etwas."},
        Fall{R"({"id":1,"rechnung":"tage"} {"id":2})", "Hinter dem Auftrag steht noch etwas."},
        Fall{R"({"id":1,"rechnung":"tage"}})", "Hinter dem Auftrag steht noch etwas."},
        Fall{R"({"id":1 "rechnung":"tage"})",
             "Der Auftrag ist kein gültiges JSON: Klammern, Kommas, Doppelpunkte oder Werte stehen falsch."},
        Fall{R"({"id":1,"rechnung":"tage",})",
             "Der Auftrag ist kein gültiges JSON: Klammern, Kommas, Doppelpunkte oder Werte stehen falsch."},
        Fall{R"({id:1})",
             "Der Auftrag ist kein gültiges JSON: Klammern, Kommas, Doppelpunkte oder Werte stehen falsch.",
             "null"},
        Fall{
            R"({"id":1,"rechnung":"tage","Von":"01.01.2007","Bis":"31.01.2007","Verzinsungsmethode":[0})",
            "Der Auftrag ist kein gültiges JSON: Klammern, Kommas, Doppelpunkte oder Werte stehen falsch."}));

INSTANTIATE_TEST_SUITE_P(
    Rechnung, UngueltigerAuftrag,
    testing::Values(Fall{"{}", "Das Feld \"rechnung\" fehlt.", "null"},
                    Fall{R"({"id":1})", "Das Feld \"rechnung\" fehlt."},
                    Fall{R"({"rechnung":5,"id":1})", "Das Feld \"rechnung\" muss ein Text sein."},
                    Fall{R"({"rechnung":"Tage","id":1})",
                         "Das Feld \"rechnung\" nennt eine unbekannte Rechnung: \"Tage\"."},
                    Fall{R"({"id":1,"rechnung":"tage","rechnung":"tage"})",
                         "Das Feld \"rechnung\" kommt doppelt vor."}));

INSTANTIATE_TEST_SUITE_P(
    Felder, UngueltigerAuftrag,
    testing::Values(
        Fall{Tage(R"("Verzinsungsmethode":0)"), "Das Feld \"Bis\" fehlt."},
        Fall{Tage(gutesBis + R"("Verzinsungsmethode":0,"Bis2":1)"), "Das Feld \"Bis2\" ist unbekannt."},
        Fall{Tage(gutesBis + R"("verzinsungsmethode":0)"), "Das Feld \"verzinsungsmethode\" ist unbekannt."},
        Fall{Tage(gutesBis + R"("Verzinsungsmethode":0,"Von":"01.01.2007")"),
             "Das Feld \"Von\" kommt doppelt vor."},
        Fall{Tage(gutesBis + R"("Verzinsungsmethode":0,"V\u006fn":"01.01.2007")"),
             "Das Feld \"Von\" kommt doppelt vor."},
        Fall{Tage(gutesBis + R"("Verzinsungsmethode":0,"id":2)"), "Das Feld \"id\" kommt doppelt vor."},
        Fall{Tage(gutesBis + R"("Verzinsungsmethode":0,"":2)"), "Das Feld \"\" ist unbekannt."},
        Fall{Tage(gutesBis + "\"Verzinsungsmethode\":0,\"" + std::string(70, 'x') + "\":2"),
             "Das Feld \"" + std::string(60, 'x') + "…\" ist unbekannt."},
        Fall{Konto("[]", "[]", R"("","Effektivzins":1)"), "Das Feld \"Effektivzins\" ist unbekannt."},
        Fall{Konto(R"([{"Datum":"01.01.2007","Betrag":1},{"Datum":"01.01.2007"}])", "[]", "\"\""),
             "Das Feld \"Zahlungen[1].Betrag\" fehlt."},
        Fall{Konto(R"([{"Datum":"01.01.2007","Betrag":1,"Betrag":1}])", "[]", "\"\""),
             "Das Feld \"Zahlungen[0].Betrag\" kommt doppelt vor."},
        Fall{Konto(R"([{"Datum":"01.01.2007","Betrag":1,"Zweck":"a"}])", "[]", "\"\""),
             "Das Feld \"Zahlungen[0].Zweck\" ist unbekannt."}));

INSTANTIATE_TEST_SUITE_P(
    Werte, UngueltigerAuftrag,
    testing::Values(
        Fall{Tage(R"("Bis":5,"Verzinsungsmethode":0)"), "Das Feld \"Bis\" muss ein Text sein."},
        Fall{Tage(R"("Bis":null,"Verzinsungsmethode":0)"), "Das Feld \"Bis\" muss ein Text sein."},
        Fall{Tage(R"("Bis":"31.02.2007","Verzinsungsmethode":0)"),
             "Das Feld \"Bis\" muss ein Datum der Form tt.mm.jjjj sein, \"31.02.2007\" ist keines."},
        Fall{Tage(R"("Bis":"1.2.2007","Verzinsungsmethode":0)"),
             "Das Feld \"Bis\" muss ein Datum der Form tt.mm.jjjj sein, \"1.2.2007\" ist keines."},
        Fall{Tage("\"Bis\":\"" + std::string(10'000'000, '1') + R"(","Verzinsungsmethode":0)"),
             "Das Feld \"Bis\" muss ein Datum der Form tt.mm.jjjj sein, \"11111111111111111111…\" ist "
             "keines."},
        Fall{Tage(R"("Bis":"\ud800","Verzinsungsmethode":0)"),
             "Das Feld \"Bis\" enthält eine falsche Umschreibung mit \\."},
        Fall{Tage(R"("Bis":"\x31","Verzinsungsmethode":0)"),
             "Das Feld \"Bis\" enthält eine falsche Umschreibung mit \\."},
        Fall{Tage(gutesBis + R"("Verzinsungsmethode":"0")"),
             "Das Feld \"Verzinsungsmethode\" muss eine ganze Zahl sein."},
        Fall{Tage(gutesBis + R"("Verzinsungsmethode":true)"),
             "Das Feld \"Verzinsungsmethode\" muss eine ganze Zahl sein."},
        Fall{Tage(gutesBis + R"("Verzinsungsmethode":4.5)"),
             "Das Feld \"Verzinsungsmethode\" muss eine ganze Zahl sein."},
        Fall{Tage(gutesBis + R"("Verzinsungsmethode":5)"),
             "Das Feld \"Verzinsungsmethode\" muss eine ganze Zahl von 0 bis 4 sein."},
        Fall{Tage(gutesBis + R"("Verzinsungsmethode":-1)"),
             "Das Feld \"Verzinsungsmethode\" muss eine ganze Zahl von 0 bis 4 sein."},
        Fall{Tage(gutesBis + R"("Verzinsungsmethode":1e300)"),
             "Das Feld \"Verzinsungsmethode\" muss eine ganze Zahl von 0 bis 4 sein."},
        Fall{Konto(R"({"Datum":"01.01.2007","Betrag":1})", "[]", "\"\""),
             "Das Feld \"Zahlungen\" muss eine Liste sein."},
        Fall{Konto("[[]]", "[]", "\"\""), "Das Feld \"Zahlungen[0]\" muss ein Objekt sein."},
        Fall{Konto(R"([{"Datum":"01.01.2007","Betrag":"1"}])", "[]", "\"\""),
             "Das Feld \"Zahlungen[0].Betrag\" muss eine Zahl sein."},
        Fall{Konto(R"([{"Datum":"01.01.2007","Betrag":NaN}])", "[]", "\"\""),
             "Das Feld \"Zahlungen[0].Betrag\" enthält kein gültiges JSON."},
        Fall{Konto(R"([{"Datum":"01.01.2007","Betrag":1e999}])", "[]", "\"\""),
             "Das Feld \"Zahlungen[0].Betrag\" ist zu groß für eine Zahl."},
        Fall{Konto(R"([{"Datum":"01.01.2007","Betrag":-1e999}])", "[]", "\"\""),
             "Das Feld \"Zahlungen[0].Betrag\" ist zu groß für eine Zahl."},
        Fall{Konto(R"([{"Datum":"01.01.2007","Betrag":01}])", "[]", "\"\""),
             "Das Feld \"Zahlungen[0].Betrag\" enthält keine gültige JSON-Zahl."},
        Fall{Konto(R"([{"Datum":"01.01.2007","Betrag":1.}])", "[]", "\"\""),
             "Das Feld \"Zahlungen[0].Betrag\" enthält keine gültige JSON-Zahl."},
        Fall{Konto(R"([{"Datum":"01.01.2007","Betrag":1,"Text":null}])", "[]", "\"\""),
             "Das Feld \"Zahlungen[0].Text\" muss ein Text sein."},
        Fall{Konto(R"([{"Datum":"29.02.2007","Betrag":1}])", "[]", "\"\""),
             "Das Feld \"Zahlungen[0].Datum\" muss ein Datum der Form tt.mm.jjjj sein, \"29.02.2007\" ist "
             "keines."},
        Fall{
            Konto("[]", Kondition("1e39", "1"), "\"\""),
            "Das Feld \"Konditionen[0].Gutzins1\" liegt außerhalb des Bereichs einer 4-Byte-Gleitkommazahl."},
        Fall{Konto("[]", Kondition("0", "1.5"), "\"\""),
             "Das Feld \"Konditionen[0].Zweitzinsart\" muss eine ganze Zahl sein."},
        Fall{Konto("[]", Kondition("0", "32768"), "\"\""),
             "Das Feld \"Konditionen[0].Zweitzinsart\" muss eine ganze Zahl von -32768 bis 32767 sein."},
        Fall{Konto("[]", "[]", "\"heute\""),
             "Das Feld \"Kontodatum\" muss ein Datum der Form tt.mm.jjjj sein, \"heute\" ist keines."},
        Fall{R"({"id":1,"rechnung":"datum","Feld":"","Heute":""})",
             "Das Feld \"Heute\" muss ein Datum der Form tt.mm.jjjj sein, \"\" ist keines."},
        Fall{
            R"({"id":1,"rechnung":"zinstermine","Erstdatum":"01.01.2007","Kontodatum":"","Zinsverrechnungsart":0})",
            "Das Feld \"Kontodatum\" muss ein Datum der Form tt.mm.jjjj sein, \"\" ist keines."},
        Fall{R"({"id":1,"rechnung":"zahlungsreihe","Combo5":3})",
             "Das Feld \"Combo5\" muss eine ganze Zahl von 0 bis 2 sein."},
        Fall{R"({"id":1,"rechnung":"zahlungsreihe","Check1":true})",
             "Das Feld \"Check1\" muss eine ganze Zahl sein."},
        Fall{R"({"id":1,"rechnung":"zahlungsreihe","Check2":2})",
             "Das Feld \"Check2\" muss eine ganze Zahl von 0 bis 1 sein."},
        Fall{R"({"id":1,"rechnung":"zahlungsreihe","Command1":"EUR"})",
             "Das Feld \"Command1\" muss \"%\" oder \"€\" sein."},
        Fall{R"({"id":1,"rechnung":"zahlungsreihe","Betrag":100})",
             "Das Feld \"Betrag\" muss ein Text sein."}));

TEST(UngueltigeAuftraege, VonEinemBisHunderttausendKlammernWirdNichtsUmgeworfen) {
    for (const char klammer : {'[', '{'}) {
        for (const int tiefe : {1, 1000, 100'000}) {
            const std::string felder =
                "\"Verzinsungsmethode\":" + std::string(static_cast<std::size_t>(tiefe), klammer);
            EXPECT_NE(Ergebnis(Tage(gutesBis + felder)).find(R"("ok":false)"), std::string::npos);
        }
    }
}

/// Every job cut anywhere is no job, and every job with one byte replaced has some result.
TEST(UngueltigeAuftraege, JederTorsoUndJedesFalscheByteBekommtEineAntwort) {
    const std::string auftrag = Konto(R"([{"Datum":"01.01.2007","Betrag":1.5,"Text":"a\"b"}])",
                                      Kondition("2", "1"), "\"31.12.2007\"");
    ASSERT_NE(Ergebnis(auftrag).find(R"("ok":true)"), std::string::npos);
    for (std::size_t laenge = 0; laenge < auftrag.size(); ++laenge)
        EXPECT_NE(Ergebnis(auftrag.substr(0, laenge)).find(R"("ok":false)"), std::string::npos) << laenge;
    for (std::size_t stelle = 0; stelle < auftrag.size(); ++stelle) {
        for (const char fremd : {'"', '\\', '{', ']', ',', ':', '0', 'x', '\0', '\xC3'}) {
            std::string falsch = auftrag;
            falsch[stelle] = fremd;
            const std::string ergebnis = Ergebnis(falsch);
            EXPECT_TRUE(ergebnis.starts_with("{\"") && ergebnis.ends_with("}")) << falsch;
        }
    }
}

}  // namespace auftrag_ungueltig_test
}  // namespace zinfolio
