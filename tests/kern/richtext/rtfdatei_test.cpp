// Whole files: what Windows writes, what is broken, what is no rich text at all.

#include <gmock/gmock.h>

#include "kern/richtext/lesehilfe.h"

namespace zinfolio {
namespace rtfdatei_test {

using namespace std::string_literals;
using testing::ElementsAre;

TEST(RtfDatei, TypischeDateiMitNullbyteAmEnde) {
    const std::string datei =
        "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1031{\\fonttbl{\\f0\\fnil\\fcharset0 Courier New;}}\r\n"
        "\\viewkind4\\uc1\\pard\\f0\\fs24 Zinsen f\\'fcr 2007\\par\r\n"
        "\\b Summe:\\b0\\tab 5 \\'80\\par\r\n}\r\n\0"s;
    const Zeichenformat fett{.fett = true};
    EXPECT_EQ(RtfLesen(datei).absaetze, (std::vector<Absatz>{{{}, {{"Zinsen für 2007", {}}}},
                                                             {{}, {{"Summe:", fett}, {"\t5 €", {}}}}}));
}

TEST(RtfDatei, LeereNotizen) {
    EXPECT_EQ(RtfLesen(Datei("\\par\r\n")), Richtext{});
    EXPECT_EQ(RtfLesen(Datei("")), Richtext{});
    EXPECT_EQ(RtfLesen("{\\rtf1}"), Richtext{});
    EXPECT_EQ(RtfLesen("{\\rtf"), Richtext{});
}

TEST(RtfDatei, LetztesAbsatzendeMachtKeinenAbsatz) {
    EXPECT_THAT(Rumpf(R"(a\par)"), ElementsAre("a"));
    EXPECT_THAT(Rumpf(R"(a)"), ElementsAre("a"));
    EXPECT_THAT(Rumpf(R"(a\par\par)"), ElementsAre("a", ""));
    EXPECT_THAT(Rumpf(R"(\par a)"), ElementsAre("", "a"));
}

TEST(RtfDatei, NachDerLetztenKlammerZaehltNichts) {
    EXPECT_THAT(Absaetze(RtfLesen("{\\rtf1 a}b\\par{c}")), ElementsAre("a"));
    EXPECT_THAT(Absaetze(RtfLesen("{\\rtf1 a}}}}")), ElementsAre("a"));
}

TEST(RtfDatei, FehlendeKlammernAmEnde) {
    EXPECT_THAT(Absaetze(RtfLesen("{\\rtf1 a{\\b b{\\i c")), ElementsAre("abc"));
    EXPECT_THAT(Absaetze(RtfLesen("{\\rtf1 a\\par b\\")), ElementsAre("a", "b"));
    EXPECT_THAT(Absaetze(RtfLesen("{\\rtf1 a\\'")), ElementsAre("a"));
    EXPECT_THAT(Absaetze(RtfLesen("{\\rtf1 a\\'4")), ElementsAre("a"));
    EXPECT_THAT(Absaetze(RtfLesen("{\\rtf1 a\\fs")), ElementsAre("a"));
    EXPECT_THAT(Absaetze(RtfLesen("{\\rtf1 a{\\*\\foo b")), ElementsAre("a"));
    EXPECT_THAT(Absaetze(RtfLesen("{\\rtf1{\\fonttbl{\\f0 Ari")), ElementsAre(""));
}

TEST(RtfDatei, ZweitausendKlammern) {
    const std::string innen = std::string(2000, '{') + "x" + std::string(2000, '}');
    EXPECT_THAT(Rumpf("a" + innen + "b"), ElementsAre("axb"));
}

TEST(RtfDatei, FormatUeberstehtZweitausendKlammern) {
    std::string innen;
    for (int tiefe = 0; tiefe < 2000; ++tiefe)
        innen += "{\\b ";
    const Richtext text = RtfLesen(Datei(innen + "x" + std::string(2000, '}') + "y"));
    EXPECT_EQ(text.absaetze, (std::vector<Absatz>{{{}, {{"x", {.fett = true}}, {"y", {}}}}}));
}

TEST(RtfDatei, JenseitsVonTausendKlammernGiltDerZustandDerTausendsten) {
    // The file's own brace is the first; b and c both lie in the thousandth group.
    const Richtext text = RtfLesen(Datei(std::string(998, '{') + "a{{{\\b b}c}d}e" + std::string(998, '}')));
    const Zeichenformat fett{.fett = true};
    EXPECT_EQ(text.absaetze, (std::vector<Absatz>{{{}, {{"a", {}}, {"bcd", fett}, {"e", {}}}}}));
}

TEST(RtfDatei, ZweitausendUnbekannteGruppen) {
    std::string innen;
    for (int tiefe = 0; tiefe < 2000; ++tiefe)
        innen += "{\\*\\foo ";
    EXPECT_THAT(Rumpf("a" + innen + "x" + std::string(2000, '}') + "b"), ElementsAre("ab"));
}

TEST(RtfDatei, NullbytesMittendrinZaehlenNicht) {
    EXPECT_THAT(Absaetze(RtfLesen("{\\rtf1 a\0b}"s)), ElementsAre("ab"));
}

TEST(RtfDatei, LangesWortUndLangeZahl) {
    EXPECT_THAT(Rumpf("\\" + std::string(100000, 'q') + std::string(100000, '7') + " x"), ElementsAre("x"));
}

TEST(KeinRtf, IstTextInWindows1252) {
    EXPECT_EQ(RtfLesen("5 \x80 f\xFCr").absaetze, (std::vector<Absatz>{{{}, {{"5 € für", {}}}}}));
}

TEST(KeinRtf, ZeilenendenAllerArtenTrennenAbsaetze) {
    EXPECT_THAT(Absaetze(RtfLesen("a\r\nb\nc\rd\r\n\r\ne")), ElementsAre("a", "b", "c", "d", "", "e"));
}

TEST(KeinRtf, LetztesZeilenendeMachtKeinenAbsatz) {
    EXPECT_THAT(Absaetze(RtfLesen("a\r\n")), ElementsAre("a"));
    EXPECT_THAT(Absaetze(RtfLesen("\r\n")), ElementsAre(""));
}

TEST(KeinRtf, KlammernUndSchraegstricheSindText) {
    EXPECT_THAT(Absaetze(RtfLesen("{\\rt x}\t\\b")), ElementsAre("{\\rt x}\t\\b"));
    EXPECT_THAT(Absaetze(RtfLesen(" {\\rtf1 x}")), ElementsAre(" {\\rtf1 x}"));
}

TEST(KeinRtf, LeereDateiUndNullbytes) {
    EXPECT_EQ(RtfLesen(""), Richtext{});
    EXPECT_EQ(RtfLesen("\0\0"s), Richtext{});
}

}  // namespace rtfdatei_test
}  // namespace zinfolio
