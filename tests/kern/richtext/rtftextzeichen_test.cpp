// How a file says its characters: escapes, code pages, Unicode and what stands in for it.

#include <gmock/gmock.h>

#include "kern/richtext/lesehilfe.h"

namespace zinfolio {
namespace rtftextzeichen_test {

using testing::ElementsAre;

struct Fall {
    const char* name;
    const char* rumpf;
    const char* text;
};

class RtfTextzeichenfall : public testing::TestWithParam<Fall> {};

TEST_P(RtfTextzeichenfall, WerdenSoGelesen) {
    EXPECT_THAT(Rumpf(GetParam().rumpf), ElementsAre(GetParam().text));
}

const auto name = [](const auto& fall) { return fall.param.name; };

INSTANTIATE_TEST_SUITE_P(Schlicht, RtfTextzeichenfall,
                         testing::Values(Fall{"Text", "Guthaben 3,5 %", "Guthaben 3,5 %"},
                                         Fall{"KlammernUndSchraegstrich", R"(\{a\}\\b)", "{a}\\b"},
                                         Fall{"EinLeerzeichenBeendetDasWort", R"(\b a)", "a"},
                                         Fall{"ZweitesLeerzeichenIstText", R"(\b  a)", " a"},
                                         Fall{"ZahlBeendetDasWort", R"(\b0x)", "x"},
                                         Fall{"StrichOhneZifferIstText", R"(\b-x)", "-x"},
                                         Fall{"RoheZeilenendenZaehlenNicht", "a\r\nb\nc\rd", "abcd"},
                                         Fall{"RoherTabulator", "a\tb", "a\tb"},
                                         Fall{"RoheSteuerzeichenFallenWeg",
                                              "a\x01\x7F"
                                              "b",
                                              "ab"},
                                         Fall{"RohesByteNachCodepage", "f\xFCr", "für"}),
                         name);

INSTANTIATE_TEST_SUITE_P(
    Symbole, RtfTextzeichenfall,
    testing::Values(Fall{"FestesLeerzeichen", R"(a\~b)", "a\u00A0b"},
                    Fall{"FesterBindestrich", R"(a\_b)", "a\u2011b"},
                    Fall{"TrennstelleFaelltWeg", R"(a\-b)", "ab"},
                    Fall{"UnbekanntesSymbolFaelltWeg", R"(a\|b)", "ab"},
                    Fall{"SchraegstrichVorTabulator", "a\\\tb", "a\tb"},
                    Fall{"TabWort", R"(a\tab b)", "a\tb"}, Fall{"ZeileWort", R"(a\line b)", "a\nb"},
                    Fall{"Punkt", R"(\bullet)", "•"}, Fall{"Striche", R"(\endash\emdash)", "–—"},
                    Fall{"Anfuehrungen", R"(\lquote a\rquote\ldblquote b\rdblquote)", "‘a’“b”"}),
    name);

INSTANTIATE_TEST_SUITE_P(Hexbytes, RtfTextzeichenfall,
                         testing::Values(Fall{"KleineZiffern", R"(f\'fcr)", "für"},
                                         Fall{"GrosseZiffern", R"(f\'FCr)", "für"},
                                         Fall{"Euro", R"(5 \'80)", "5 €"},
                                         Fall{"AsciiBleibtAscii", R"(\'41)", "A"},
                                         Fall{"KlammerAlsByteSchliesstNichts", R"(\'7da)", "}a"},
                                         Fall{"SchlechteZiffernFallenWeg", R"(a\'zzb)", "ab"},
                                         Fall{"EineSchlechteZiffer", R"(a\'4gb)", "ab"},
                                         Fall{"KlammerIstKeineZiffer", R"({a\'4}b)", "ab"},
                                         Fall{"SchraegstrichIstKeineZiffer", R"(a\'4\'41)", "aA"},
                                         Fall{"SteuerzeichenAlsByteFaelltWeg", R"(a\'01b)", "ab"}),
                         name);

INSTANTIATE_TEST_SUITE_P(Schriften, RtfTextzeichenfall,
                         // 1250 has ę at EA, where 1252 has ê.
                         testing::Values(Fall{"WestlichEA", R"(\'ea)", "ê"},
                                         Fall{"OestlichEA", R"(\f2\'ea)", "ę"},
                                         Fall{"OestlichRoh", "\\f2\xEA", "ę"},
                                         Fall{"NachDerGruppeWiederWestlich", R"({\f2\'ea}\'ea)", "ęê"},
                                         Fall{"PunktDerSchriftSymbol", R"(\f1\'b7)", "•"},
                                         Fall{"BuchstabenDerSchriftSymbol", R"(\f1 abD)", "αβΔ"},
                                         Fall{"SymbolImPrivatbereich", R"(\f1\u-3913 ?)", "•"},
                                         Fall{"LueckeInSymbol", R"(\f1 x\'90y)", "ξψ"},
                                         Fall{"AndereBilderschrift", R"(\f3\'fcJ)", "\uF0FCJ"},
                                         Fall{"UnbekannteSchriftIstDieErste", R"(\f99\'ea)", "ê"}),
                         name);

INSTANTIATE_TEST_SUITE_P(
    Unicode, RtfTextzeichenfall,
    testing::Values(
        Fall{"Euro", R"(5 \u8364?)", "5 €"}, Fall{"NegativUeberHalbemBereich", R"(\u-257?)", "\uFEFF"},
        Fall{"PositivUeberHalbemBereich", R"(\u65279?)", "\uFEFF"},
        Fall{"ErsatzAlsHexbyte", R"(\u8364\'80 x)", "€ x"}, Fall{"ErsatzAlsWort", R"(\u8226\bullet x)", "•x"},
        Fall{"ErsatzAlsSymbol", R"(\u160\~x)", "\u00A0x"},
        Fall{"ErsatzAlsSchlechtesHexbyte", R"(\u945\'zzx)", "αx"},
        Fall{"ZeilenendeZaehltNichtAlsErsatz", "\\u945\r\n?x", "αx"},
        Fall{"KeinErsatz", R"(\uc0\u945 x)", "αx"}, Fall{"ZweiErsatzzeichen", R"(\uc2\u945 ??x)", "αx"},
        Fall{"DreiUeberStueckgrenzen", R"(\uc3\u945 ?\'3f\tab x)", "αx"},
        Fall{"UcGiltInDerGruppe", R"({\uc0\u945 x}\u946 yz)", "αxβz"},
        Fall{"KlammerZuBeendetErsatz", R"({\u945}x)", "αx"},
        Fall{"KlammerAufBeendetErsatz", R"(\u945{\b x})", "αx"}, Fall{"ErsatzAmDateiende", R"(\u945)", "α"},
        Fall{"OhneZahl", R"(\u ?x)", "\uFFFDx"}, Fall{"ZahlAusserhalb", R"(\u128512?x)", "\uFFFDx"},
        Fall{"ZahlUeberInt", R"(\u99999999999999999999?x)", "\uFFFDx"},
        Fall{"TabulatorAlsUnicode", R"(a\u9?b)", "a\tb"}, Fall{"NullFaelltWeg", R"(a\u0?b)", "ab"},
        Fall{"Zeilentrenner", R"(a\u8232?b)", "a\nb"},
        Fall{"KeinZeichenFaelltWeg", R"(a\u-560?\u-1?b)", "ab"},
        Fall{"ObjektplatzFaelltWeg", R"(a\u-4?b)", "ab"}),
    name);

INSTANTIATE_TEST_SUITE_P(
    // U+1F600 = D83D DE00 = -10179, -8704 as signed 16-bit numbers.
    Ersatzpaare, RtfTextzeichenfall,
    testing::Values(Fall{"Paar", R"(\u-10179?\u-8704?)", "\U0001F600"},
                    Fall{"PaarOhneErsatz", R"(\uc0\u-10179\u-8704 x)", "\U0001F600x"},
                    Fall{"PaarUeberKlammern", R"(\u-10179?{\b\u-8704?})", "\U0001F600"},
                    Fall{"HalbesVorText", R"(\u-10179?x)", "\uFFFDx"},
                    Fall{"HalbesVorHalbem", R"(\u-10179?\u-10179?\u-8704?)", "\uFFFD\U0001F600"},
                    Fall{"ZweiteHaelfteAllein", R"(\u-8704?x)", "\uFFFDx"},
                    Fall{"HalbesAmEnde", R"(x\u-10179?)", "x\uFFFD"},
                    Fall{"HalbesAlleinAmEnde", R"(\u-10179?)", "\uFFFD"}),
    name);

TEST(RtfTextzeichen, HalbesPaarVorAbsatzendeBleibtImAbsatz) {
    EXPECT_THAT(Rumpf(R"(x\u-10179?\par\u-8704?)"), ElementsAre("x\uFFFD", "\uFFFD"));
}

TEST(RtfTextzeichen, SchraegstrichVorZeilenendeIstAbsatzende) {
    EXPECT_THAT(Rumpf("a\\\nb\\\r\nc"), ElementsAre("a", "b", "c"));
}

TEST(RtfTextzeichen, TextInSymbolStehtInDerStandardschrift) {
    EXPECT_EQ(ZeichenformatVon(R"(\f1 a)").schrift, "Courier New");
    EXPECT_EQ(ZeichenformatVon(R"(\f3 a)").schrift, "Wingdings");
}

struct Zeichensatz {
    int fcharset;
    const char* text;
};

class Zeichensaetze : public testing::TestWithParam<Zeichensatz> {};

// Bytes E0 and FE in the code page of each charset.
TEST_P(Zeichensaetze, BestimmenDieCodepage) {
    const std::string datei = R"({\rtf1\ansi\ansicpg1251{\fonttbl{\f0\fcharset)" +
                              std::to_string(GetParam().fcharset) + R"( X;}}\f0\'e0\'fe})";
    EXPECT_THAT(Absaetze(RtfLesen(datei)), ElementsAre(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(Alle, Zeichensaetze,
                         testing::Values(Zeichensatz{0, "àþ"}, Zeichensatz{1, "àþ"}, Zeichensatz{161, "ΰώ"},
                                         Zeichensatz{162, "àş"}, Zeichensatz{186, "ąž"},
                                         Zeichensatz{204, "аю"}, Zeichensatz{238, "ŕţ"},
                                         // None of its own: the file's.
                                         Zeichensatz{128, "аю"}));

class Ansicodepages : public testing::TestWithParam<std::pair<int, const char*>> {};

TEST_P(Ansicodepages, GeltenOhneZeichensatz) {
    const std::string datei = R"({\rtf1\ansi\ansicpg)" + std::to_string(GetParam().first) + R"(\'e0\'fe})";
    EXPECT_THAT(Absaetze(RtfLesen(datei)), ElementsAre(GetParam().second));
}

INSTANTIATE_TEST_SUITE_P(Alle, Ansicodepages,
                         testing::Values(std::pair{1250, "ŕţ"}, std::pair{1251, "аю"}, std::pair{1252, "àþ"},
                                         std::pair{1253, "ΰώ"}, std::pair{1254, "àş"}, std::pair{1257, "ąž"},
                                         // Not known: as 1252.
                                         std::pair{932, "àþ"}, std::pair{0, "àþ"}));

}  // namespace rtftextzeichen_test
}  // namespace zinfolio
