#include "stapel/json/jsoneinzug.h"

#include <gtest/gtest.h>

namespace zinfolio {
namespace {

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

}  // namespace
}  // namespace zinfolio
