#include "stapel/json/jsonschreiber.h"

#include <gtest/gtest.h>
#include <limits>
#include <stdexcept>

namespace zinfolio {
namespace jsonschreiber_test {

std::string Text(std::string_view text) {
    std::string json;
    JsonSchreiber(json).Wert(text);
    return json;
}

TEST(JsonSchreiber, KommasStehenZwischenDenTeilen) {
    std::string json;
    JsonSchreiber schreiber(json);
    schreiber.ObjektAuf();
    schreiber.Feld("a", 1);
    schreiber.Name("b");
    schreiber.ListeAuf();
    schreiber.Wert(true);
    schreiber.Null();
    schreiber.ListeAuf();
    schreiber.ListeZu();
    schreiber.ListeZu();
    schreiber.Feld("c", std::string("x"));
    schreiber.Feld("d", 2.5F);
    schreiber.ObjektZu();
    EXPECT_EQ(json, R"({"a":1,"b":[true,null,[]],"c":"x","d":2.5})");
}

TEST(JsonSchreiber, UmlauteStehenAlsUtf8) {
    EXPECT_EQ(Text("Endvermögen €"), "\"Endvermögen €\"");
}

TEST(JsonSchreiber, SonderzeichenWerdenUmschrieben) {
    EXPECT_EQ(Text("a\"b\\c"), R"("a\"b\\c")");
    EXPECT_EQ(Text("\n\r\t"), R"("\n\r\t")");
    EXPECT_EQ(Text(std::string_view("\0\x1f", 2)), R"("\u0000\u001f")");
    EXPECT_EQ(Text("/\x7f"), "\"/\x7f\"");
    EXPECT_EQ(Text(""), "\"\"");
}

TEST(JsonSchreiber, UnendlichIstEinFehler) {
    std::string json;
    EXPECT_THROW(JsonSchreiber(json).Wert(std::numeric_limits<double>::infinity()), std::runtime_error);
    EXPECT_THROW(JsonSchreiber(json).Wert(std::numeric_limits<double>::quiet_NaN()), std::runtime_error);
}

TEST(JsonEinzug, JederTeilStehtAufSeinerZeile) {
    EXPECT_EQ(JsonEingezogen(R"({"id":1,"Zeilen":[{"a":1e+05},[true,null]]})"),
              "{\n"
              "  \"id\": 1,\n"
              "  \"Zeilen\": [\n"
              "    {\n"
              "      \"a\": 1e+05\n"
              "    },\n"
              "    [\n"
              "      true,\n"
              "      null\n"
              "    ]\n"
              "  ]\n"
              "}");
}

TEST(JsonEinzug, LeereKlammernBleibenZusammen) {
    EXPECT_EQ(JsonEingezogen(R"({"a":[],"b":{}})"), "{\n  \"a\": [],\n  \"b\": {}\n}");
}

TEST(JsonEinzug, ZeichenInTextenBleiben) {
    EXPECT_EQ(JsonEingezogen(R"(["a,b:{[\"]}\\"])"), "[\n  \"a,b:{[\\\"]}\\\\\"\n]");
}

}  // namespace jsonschreiber_test
}  // namespace zinfolio
