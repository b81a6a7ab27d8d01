#include "kern/grund/utf8.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace zinfolio {
namespace utf8_test {

using Zeichen = std::pair<char32_t, std::string>;

std::vector<Zeichen> Zerlegt(std::string_view text) {
    std::vector<Zeichen> zeichen;
    JedesUtf8Zeichen(
        text, [&](char32_t codepunkt, std::string_view bytes) { zeichen.emplace_back(codepunkt, bytes); });
    return zeichen;
}

TEST(JedesUtf8Zeichen, GibtZeichenMitIhrenBytes) {
    EXPECT_EQ(Zerlegt("aé€😀"), (std::vector<Zeichen>{{U'a', "a"}, {U'é', "é"}, {U'€', "€"}, {U'😀', "😀"}}));
    EXPECT_TRUE(Zerlegt("").empty());
}

TEST(JedesUtf8Zeichen, GestoertesGehtByteFuerByteAlsErsatzzeichen) {
    EXPECT_EQ(Zerlegt("\xC3\xE2\x82x"),
              (std::vector<Zeichen>{{0xFFFD, "\xC3"}, {0xFFFD, "\xE2"}, {0xFFFD, "\x82"}, {U'x', "x"}}));
}

TEST(OhneLetzteZeichen, ZaehltZeichenUndNichtBytes) {
    EXPECT_EQ(OhneLetzteZeichen("Öl.ZiS", 4), "Öl");
    EXPECT_EQ(OhneLetzteZeichen("xäöüß", 4), "x");
    EXPECT_EQ(OhneLetzteZeichen("ü\xFF\xFE\xFD\xFC", 4), "ü");
    EXPECT_EQ(OhneLetzteZeichen("äöüß", 4), "");
    EXPECT_EQ(OhneLetzteZeichen("x", 4), "");
}

TEST(Zeichenzahl, ZaehltZeichenNichtBytes) {
    EXPECT_EQ(Zeichenzahl(""), 0U);
    EXPECT_EQ(Zeichenzahl("abc"), 3U);
    EXPECT_EQ(Zeichenzahl("äöü"), 3U);
    EXPECT_EQ(Zeichenzahl("5 €"), 3U);
    EXPECT_EQ(Zeichenzahl("\xF0\x9F\x98\x80"), 1U);
}

}  // namespace utf8_test
}  // namespace zinfolio
