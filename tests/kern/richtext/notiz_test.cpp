// What a note may hold, and what of a file a note keeps.

#include "kern/richtext/notiz.h"

#include <gtest/gtest.h>

#include "kern/richtext/rtflesen.h"
#include "kern/richtext/rtfschreiben.h"

namespace zinfolio {
namespace notiz_test {

Richtext Text(std::initializer_list<std::string> absaetze) {
    Richtext text{.absaetze = {}};
    for (const std::string& absatz : absaetze) {
        text.absaetze.emplace_back();
        if (!absatz.empty()) text.absaetze.back().laeufe.push_back({.text = absatz});
    }
    return text;
}

TEST(Notizmass, LeeresDokumentHatEinenAbsatzUndKeinZeichen) {
    EXPECT_EQ(Mass(Richtext{}), (Richtextmass{.zeichen = 0, .absaetze = 1}));
}

TEST(Notizmass, UmlauteUndAbsatzendenZaehlenEinfach) {
    EXPECT_EQ(Mass(Text({"für", "", "€𝄞"})), (Richtextmass{.zeichen = 3 + 1 + 0 + 1 + 2, .absaetze = 3}));
}

TEST(Notizmass, GrenzeSelbstPasstNochEinsMehrNicht) {
    const Richtextmass grenze{.zeichen = 5, .absaetze = 2};
    EXPECT_TRUE(PasstIn({.zeichen = 5, .absaetze = 2}, grenze));
    EXPECT_FALSE(PasstIn({.zeichen = 6, .absaetze = 2}, grenze));
    EXPECT_FALSE(PasstIn({.zeichen = 5, .absaetze = 3}, grenze));
}

TEST(Notizanfang, KleinesDokumentBleibtGanz) {
    const Richtext text = Text({"eins", "", "zwei"});
    EXPECT_EQ(Anfang(text, {.zeichen = 10, .absaetze = 3}), text);
}

TEST(Notizanfang, ZeichenWerdenNichtZerschnitten) {
    EXPECT_EQ(Anfang(Text({"üä€"}), {.zeichen = 2, .absaetze = 9}), Text({"üä"}));
}

TEST(Notizanfang, AbsatzendenZaehlenMit) {
    EXPECT_EQ(Anfang(Text({"ab", "cd", "ef"}), {.zeichen = 4, .absaetze = 9}), Text({"ab", "c"}));
    EXPECT_EQ(Anfang(Text({"ab", "cd", "ef"}), {.zeichen = 99, .absaetze = 2}), Text({"ab", "cd"}));
}

TEST(Grundschrift, AndereSchriftWirdCourierZwoelf) {
    Richtext text = Text({"x"});
    text.absaetze[0].laeufe[0].format = {.schrift = "Arial", .groesse = 40, .fett = true};
    text = InGrundschrift(text);
    EXPECT_EQ(text.absaetze[0].laeufe[0].format,
              (Zeichenformat{.schrift = "Courier New", .groesse = 24, .fett = true}));
}

TEST(Grundschrift, GewaehlteGroesseDerGrundschriftBleibt) {
    Richtext text = Text({"x"});
    text.absaetze[0].laeufe[0].format.groesse = 36;
    EXPECT_EQ(InGrundschrift(RtfLesen(RtfSchreiben(text))), text);
}

TEST(FremdeTeile, BilderUndFussnotenSindFremd) {
    EXPECT_TRUE(HatFremdeTeile(R"({\rtf1\ansi Bild: {\pict\wmetafile8 0102} Ende})"));
    EXPECT_TRUE(HatFremdeTeile(R"({\rtf1 Text{\*\shppict{\pict\pngblip 00}}})"));
    EXPECT_TRUE(HatFremdeTeile(R"({\rtf1 Text{\footnote klein}})"));
    EXPECT_TRUE(HatFremdeTeile(R"({\rtf1 {\object\objemb{\result x}}})"));
}

TEST(FremdeTeile, WasWirSchreibenHatKeine) {
    EXPECT_FALSE(HatFremdeTeile(RtfSchreiben(Text({"pict", "\\pict {object}"}))));
}

TEST(FremdeTeile, BytesEinesBildesSindKeineWoerter) {
    EXPECT_FALSE(HatFremdeTeile("{\\rtf1 {\\*\\unbekannt\\bin6 \\pict }x}"));
}

TEST(FremdeTeile, SchlichterTextHatKeine) {
    EXPECT_FALSE(HatFremdeTeile(R"(Nur Text mit \pict darin)"));
    EXPECT_FALSE(HatFremdeTeile(""));
}

}  // namespace notiz_test
}  // namespace zinfolio
