#include <gtest/gtest.h>

#include "rechnen.h"
#include "stapel/json/jsonleser.h"

namespace zinfolio {
namespace auftrag_id_test {

std::string MitId(std::string_view id) {
    return Ergebnis(
        R"({"rechnung":"tage","Von":"01.01.2007","Bis":"31.03.2007","Verzinsungsmethode":0,"id":)" +
        std::string(id) + "}");
}

std::string Ergebnisanfang(std::string_view id) {
    return R"({"id":)" + std::string(id) + R"(,"ok":true,"Zinstage":89})";
}

class Id : public testing::TestWithParam<std::string_view> {};

TEST_P(Id, KommtZurueckWieSieWar) {
    EXPECT_EQ(MitId(GetParam()), Ergebnisanfang(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Werte, Id,
                         testing::Values("1", "-0.50", "1e999", "123456789012345678901234567890", "null",
                                         "true", "false", R"("a")", R"("")", R"("\u00e4\n\"\\/")",
                                         R"("Straße 日本 😀")", "[]", "{}", R"(["[",1,[2],{"a":{}}])",
                                         R"({"":"{","a\"b":[null]})"));

TEST(IdWeissraum, FaelltZwischenDenTeilenWeg) {
    EXPECT_EQ(MitId(" [ 1 , {\"a b\" : \"c  d\" } ]\t"), Ergebnisanfang(R"([1,{"a b":"c  d"}])"));
}

TEST(IdFehlt, DannIstSieNull) {
    EXPECT_EQ(Ergebnis(R"({"rechnung":"tage","Von":"01.01.2007","Bis":"31.03.2007","Verzinsungsmethode":0})"),
              Ergebnisanfang("null"));
}

class FalscheId : public testing::TestWithParam<std::string_view> {};

TEST_P(FalscheId, IstEinFehler) {
    EXPECT_TRUE(MitId(GetParam()).starts_with(R"({"id":null,"ok":false,"Meldung":)")) << MitId(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Werte, FalscheId,
                         testing::Values("nul", "nulll", "True", "01", "1.", "+1", ".5", "1e", "-", "NaN",
                                         "abc", R"("\x")", R"("\ud800")", R"({"\x":1})", "[1,]", "[1 2]",
                                         "{1:2}", R"({"a" 1})", R"({"a":1,})", "]", "", ",", "[1}",
                                         "{\"a\":1]"));

std::string Verschachtelt(int tiefe) {
    const auto anzahl = static_cast<std::size_t>(tiefe);
    return std::string(anzahl, '[') + "1" + std::string(anzahl, ']');
}

TEST(IdTiefe, IstBegrenzt) {
    EXPECT_EQ(MitId(Verschachtelt(hoechsttiefe)), Ergebnisanfang(Verschachtelt(hoechsttiefe)));
    EXPECT_EQ(MitId(Verschachtelt(hoechsttiefe + 1)),
              OhneErgebnis("null", R"(Das Feld \"id\" ist zu tief verschachtelt.)"));
    EXPECT_EQ(MitId(Verschachtelt(1'000'000)),
              OhneErgebnis("null", R"(Das Feld \"id\" ist zu tief verschachtelt.)"));
}

TEST(IdNachFehler, StehtAuchHinterDemFalschenFeld) {
    EXPECT_EQ(Ergebnis(R"({"rechnung":"tage","Von":5,"Foo":{"id":9},"id":[1]})"),
              OhneErgebnis("[1]", R"(Das Feld \"Von\" muss ein Text sein.)"));
}

TEST(IdDoppelt, DieErsteKommtZurueck) {
    EXPECT_EQ(Ergebnis(R"({"id":1,"id":2,"rechnung":"tage"})"),
              OhneErgebnis("1", R"(Das Feld \"id\" kommt doppelt vor.)"));
}

TEST(IdNacheinander, KeineBleibtVomAuftragDavor) {
    Auftragsrechner rechner;
    std::string puffer = R"({"id":1,"rechnung":"x"})" + std::string(nachlauf, ' ');
    std::string ergebnis;
    rechner.Rechnen(std::string_view(puffer).substr(0, puffer.size() - nachlauf), ergebnis);
    ergebnis.clear();
    puffer = "{}" + std::string(nachlauf, ' ');
    rechner.Rechnen(std::string_view(puffer).substr(0, 2), ergebnis);
    EXPECT_EQ(ergebnis, OhneErgebnis("null", R"(Das Feld \"rechnung\" fehlt.)"));
}

}  // namespace auftrag_id_test
}  // namespace zinfolio
