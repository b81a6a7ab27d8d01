#include "kern/grund/windows1252.h"

#include <gtest/gtest.h>

namespace zinfolio {
namespace windows1252_test {

struct Fall {
    std::string_view utf8;
    std::string_view windows1252;
};

class BeideRichtungen : public testing::TestWithParam<Fall> {};

TEST_P(BeideRichtungen, EntsprechenSich) {
    EXPECT_EQ(NachWindows1252(GetParam().utf8), GetParam().windows1252);
    EXPECT_EQ(NachUtf8(GetParam().windows1252), GetParam().utf8);
}

INSTANTIATE_TEST_SUITE_P(Text, BeideRichtungen,
                         testing::Values(Fall{"", ""}, Fall{"Rate 1 ~", "Rate 1 ~"},
                                         Fall{"Müller", "M\xFCller"}, Fall{"ÄÖÜß", "\xC4\xD6\xDC\xDF"},
                                         Fall{"5 € – „gut“", "5 \x80 \x96 \x84gut\x93"}));

// The last byte below the table, its ends, the first above it, and the highest.
INSTANTIATE_TEST_SUITE_P(Raender, BeideRichtungen,
                         testing::Values(Fall{"\x7F", "\x7F"}, Fall{"€", "\x80"}, Fall{"Ÿ", "\x9F"},
                                         Fall{"\u00A0", "\xA0"}, Fall{"ÿ", "\xFF"}));

// 81, 8D, 8F, 90 and 9D stand for no character.
INSTANTIATE_TEST_SUITE_P(Luecken, BeideRichtungen,
                         testing::Values(Fall{"\xC2\x81", "\x81"}, Fall{"\xC2\x8D", "\x8D"},
                                         Fall{"\xC2\x8F", "\x8F"}, Fall{"\xC2\x90", "\x90"},
                                         Fall{"\xC2\x9D", "\x9D"}));

class WirdFragezeichen : public testing::TestWithParam<Fall> {};

TEST_P(WirdFragezeichen, JeCodepunktEines) {
    EXPECT_EQ(NachWindows1252(GetParam().utf8), GetParam().windows1252);
}

INSTANTIATE_TEST_SUITE_P(FehlendeZeichen, WirdFragezeichen,
                         testing::Values(Fall{"Łódź",
                                              "?\xF3"
                                              "d?"},
                                         Fall{"日本", "??"}, Fall{"a😀b", "a?b"},
                                         Fall{"\xC2\x80", "?"},  // the control character that € displaced
                                         Fall{"u\xCC\x88", "u?"}));  // a combining mark is a code point

INSTANTIATE_TEST_SUITE_P(KeinUtf8, WirdFragezeichen,
                         testing::Values(Fall{"a\xFF"
                                              "b",
                                              "a?b"},
                                         Fall{"\x80", "?"},                 // continuation alone
                                         Fall{"\xC3", "?"},                 // cut at the end
                                         Fall{"\xC3(", "?("},               // cut by another character
                                         Fall{"\xE2\x82", "??"},            // two bytes of €
                                         Fall{"\xC0\xAF", "??"},            // overlong "/"
                                         Fall{"\xE0\x80\xAF", "???"},       // overlong "/"
                                         Fall{"\xED\xA0\x80", "???"},       // surrogate
                                         Fall{"\xF4\x90\x80\x80", "????"},  // beyond the last code point
                                         Fall{"M\xFCller", "M?ller"}));     // Windows-1252 already

TEST(Windows1252, AlleBytesUeberstehenDenWegHinUndZurueck) {
    for (int byte = 0; byte < 256; ++byte) {
        const std::string text(1, static_cast<char>(byte));
        EXPECT_EQ(NachWindows1252(NachUtf8(text)), text) << byte;
    }
}

TEST(Windows1252, NullbyteImTextBleibt) {
    const std::string text("a\0b", 3);
    EXPECT_EQ(NachWindows1252(text), text);
    EXPECT_EQ(NachUtf8(text), text);
}

}  // namespace windows1252_test
}  // namespace zinfolio
