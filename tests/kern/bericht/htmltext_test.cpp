#include "kern/bericht/htmltext.h"

#include <gmock/gmock.h>

namespace zinfolio {
namespace htmltext_test {

std::string Html(std::string_view text) {
    std::string html = ">";
    HtmlTextAnhaengen(html, text);
    return html;
}

TEST(HtmlText, SchlichterTextBleibtUndWirdAngehaengt) {
    EXPECT_EQ(Html("Miete 12,50 'x' {y} \\z"), ">Miete 12,50 'x' {y} \\z");
    EXPECT_EQ(Html(""), ">");
}

TEST(HtmlText, WasHtmlBedeutetWirdUmschrieben) {
    EXPECT_EQ(Html("<b a=\"1\">&amp;"), ">&lt;b a=&quot;1&quot;&gt;&amp;amp;");
    EXPECT_EQ(Html("&&"), ">&amp;&amp;");
}

TEST(HtmlText, UmlauteBleibenUtf8) {
    EXPECT_EQ(Html("Köln 5 € 😀\u00A0"), ">Köln 5 € 😀\u00A0");
}

TEST(HtmlText, TabUndZeilenendeBleiben) {
    EXPECT_EQ(Html("a\tb\nc"), ">a\tb\nc");
}

TEST(HtmlText, UnerlaubtesWirdDasErsatzzeichen) {
    using namespace std::string_view_literals;
    EXPECT_EQ(Html("a\0b\x1B\rc\x7F"sv), ">a\uFFFDb\uFFFD\uFFFDc\uFFFD");
    EXPECT_EQ(Html("\xC2\x81 \xC2\x9F"), ">\uFFFD \uFFFD") << "controls above 7F";
    EXPECT_EQ(Html("\xEF\xBF\xBF \xEF\xB7\x90 \xF0\x9F\xBF\xBE"), ">\uFFFD \uFFFD \uFFFD")
        << "U+FFFF, U+FDD0, U+1FFFE";
    EXPECT_EQ(Html("\xFFx\xC3"), ">\uFFFDx\uFFFD") << "no UTF-8";
}

}  // namespace htmltext_test
}  // namespace zinfolio
