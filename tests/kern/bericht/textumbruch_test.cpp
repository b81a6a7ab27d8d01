#include "kern/bericht/textumbruch.h"

#include <gmock/gmock.h>

namespace zinfolio {
namespace textumbruch_test {

/// A font in which each character is 100 twips wide, and a blank 50.
Textmass Mass() {
    return Textmass([](char32_t zeichen) { return zeichen == U' ' ? 50.0 : 100.0; });
}

TEST(TextMessen, ZeichenWerdenSummiert) {
    EXPECT_EQ(Mass().Messen("Miete").ganz, 500);
    EXPECT_EQ(Mass().Messen("Miete").wort, 500);
}

TEST(TextMessen, DasBreitesteWortZaehlt) {
    const Textbreiten breiten = Mass().Messen("Miete im Januar 25");
    EXPECT_EQ(breiten.ganz, 15 * 100 + 3 * 50);
    EXPECT_EQ(breiten.wort, 600);
}

TEST(TextMessen, EinUmlautIstEinZeichen) {
    EXPECT_EQ(Mass().Messen("Köln").ganz, 400);
    EXPECT_EQ(Mass().Messen("5 €").ganz, 250);
}

TEST(TextMessen, EinFalschesByteIstEinZeichen) {
    EXPECT_EQ(Mass().Messen("a\xff\xfe").ganz, 300);
}

TEST(TextMessen, NichtsIstNichtBreit) {
    EXPECT_EQ(Mass().Messen("").ganz, 0);
    EXPECT_EQ(Mass().Messen("  ").ganz, 100);
    EXPECT_EQ(Mass().Messen("  ").wort, 0);
}

struct Umbruchfall {
    const char* text;
    double platz;
    std::vector<std::string> zeilen;
};

class TextInZeilen : public testing::TestWithParam<Umbruchfall> {};

TEST_P(TextInZeilen, BrichtAnLeerzeichen) {
    EXPECT_EQ(Mass().InZeilen(GetParam().text, GetParam().platz), GetParam().zeilen);
}

INSTANTIATE_TEST_SUITE_P(
    Faelle, TextInZeilen,
    testing::Values(Umbruchfall{"Miete", 500, {"Miete"}}, Umbruchfall{"", 500, {""}},
                    Umbruchfall{"Miete Mai", 850, {"Miete Mai"}},
                    Umbruchfall{"Miete Mai", 840, {"Miete", "Mai"}}, Umbruchfall{"a b c", 250, {"a b", "c"}},
                    Umbruchfall{"a bb c dd", 350, {"a bb", "c dd"}},
                    Umbruchfall{"a  b c", 300, {"a  b", "c"}},
                    Umbruchfall{"Miete  Mai", 500, {"Miete", "Mai"}}, Umbruchfall{" Miete", 500, {"Miete"}},
                    Umbruchfall{"Miete ", 500, {"Miete"}}, Umbruchfall{"    ", 100, {""}}));

INSTANTIATE_TEST_SUITE_P(LangeWoerter, TextInZeilen,
                         testing::Values(Umbruchfall{"abcdefgh", 300, {"abc", "def", "gh"}},
                                         Umbruchfall{"ab cdef h", 300, {"ab", "cde", "f h"}},
                                         Umbruchfall{"äöü", 200, {"äö", "ü"}},
                                         Umbruchfall{"ab", 50, {"a", "b"}}, Umbruchfall{"ab", 0, {"a", "b"}},
                                         Umbruchfall{"a\xff\xfe", 200, {"a\xff", "\xfe"}}));

}  // namespace textumbruch_test
}  // namespace zinfolio
