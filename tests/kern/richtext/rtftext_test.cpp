#include "kern/richtext/rtftext.h"

#include <gmock/gmock.h>

namespace zinfolio {
namespace rtftext_test {

struct Fall {
    const char* name;
    std::string text;
    std::string rtf;
};

class RtfText : public testing::TestWithParam<Fall> {};

TEST_P(RtfText, WirdSoGeschrieben) {
    std::string ziel = "vorher ";
    RtfTextAnhaengen(ziel, GetParam().text);
    EXPECT_EQ(ziel, "vorher " + GetParam().rtf);
}

INSTANTIATE_TEST_SUITE_P(
    Text, RtfText,
    testing::Values(Fall{"Schlicht", "Guthaben 3,5 %", "Guthaben 3,5 %"}, Fall{"Leer", "", ""},
                    Fall{"KlammernUndSchraegstrich", "{a}\\b", "\\{a\\}\\\\b"},
                    Fall{"Umlaute", "Zinsstaffel für Öl", "Zinsstaffel f\\'fcr \\'d6l"},
                    // U+20AC has byte 80 in the code page.
                    Fall{"Euro", "5 €", "5 \\'80"}, Fall{"LetztesDerCodepage", "ÿ", "\\'ff"},
                    Fall{"GriechischIstNichtInDerCodepage", "α", "\\u945?"},
                    // U+FFFD = 65533, as a signed 16-bit number 65533 - 65536 = -3.
                    Fall{"UeberHalbemBereichNegativ", "\uFFFD", "\\u-3?"},
                    // U+1F600 = D83D DE00 in UTF-16: 55357 - 65536 = -10179, 56832 - 65536 = -8704.
                    Fall{"ErsatzpaarInZweiEinheiten", "\U0001F600", "\\u-10179?\\u-8704?"},
                    // U+0081 has no letter in the code page.
                    Fall{"SteuerzeichenDerOberenHaelfte", "\u0081", "\\u129?"},
                    Fall{"TabulatorUndZeilenwechsel", "a\tb\nc", "a\\tab b\\line c"},
                    Fall{"AndereSteuerzeichenWerdenFragezeichen", std::string("a\x01\x7F", 3), "a??"},
                    Fall{"KaputtesUtf8", "a\xC3", "a?"}),
    [](const auto& fall) { return fall.param.name; });

}  // namespace rtftext_test
}  // namespace zinfolio
