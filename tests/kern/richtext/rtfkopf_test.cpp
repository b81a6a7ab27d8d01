// The head of a file: fonts, colours, and words that only have to be borne.

#include <gmock/gmock.h>

#include "kern/richtext/lesehilfe.h"

namespace zinfolio {
namespace rtfkopf_test {

using testing::ElementsAre;

Zeichenformat Format(const std::string& datei) {
    return RtfLesen(datei).absaetze.at(0).laeufe.at(0).format;
}

std::string Schrift(const std::string& tabelle, const std::string& wahl = "\\f1") {
    return Format("{\\rtf1\\ansi{\\fonttbl" + tabelle + "}" + wahl + " x}").schrift;
}

TEST(RtfKopf, WortlisteDesKopfesIstKeinText) {
    const auto text =
        RtfLesen(R"({\rtf1\ansi\mac\pc\pca\ansicpg1252\deff0\deflang1031\deflangfe1031\viewkind4\uc1 x})");
    EXPECT_THAT(Absaetze(text), ElementsAre("x"));
}

TEST(RtfKopf, SchriftHatDenNamenDerTabelle) {
    EXPECT_EQ(Schrift(R"({\f0\fnil Courier New;}{\f1\froman\fcharset0 Times New Roman;})"),
              "Times New Roman");
}

TEST(RtfKopf, JedeSchriftfamilieWirdErtragen) {
    for (const char* familie : {"fnil", "froman", "fswiss", "fmodern", "fscript", "fdecor", "ftech", "fbidi"})
        EXPECT_EQ(Schrift(std::string("{\\f1\\") + familie + " Name;}"), "Name") << familie;
}

TEST(RtfKopf, TabelleOhneGruppen) {
    EXPECT_EQ(Schrift(R"(\f0\fnil Eins;\f1\fnil Zwei;)", "\\f1"), "Zwei");
    EXPECT_EQ(Schrift(R"(\f0\fnil Eins;\f1\fnil Zwei;)", "\\f0"), "Eins");
}

TEST(RtfKopf, ErsatznameUndUnbekannteUntergruppenGehoerenNichtZumNamen) {
    EXPECT_EQ(Schrift(R"({\f1\fswiss{\*\panose 020b0604}\fcharset0 Arial{\*\falt Helvetica};})"), "Arial");
}

TEST(RtfKopf, NameMitUmlautNachZeichensatzUndUnicode) {
    EXPECT_EQ(Schrift(R"({\f1\fcharset238 Pre\'eane;})"), "Preęne");
    EXPECT_EQ(Schrift(R"({\f1\fcharset0 D\u252?ne;})"), "Düne");
}

TEST(RtfKopf, NameOhneSemikolonEndetMitDerGruppe) {
    EXPECT_EQ(Schrift(R"({\f1 Arial}{\f2 Tahoma;})"), "Arial");
    EXPECT_EQ(Schrift(R"({\f0 Tahoma;}{\f1 Arial})"), "Arial");
}

TEST(RtfKopf, LeererNameIstDieGrundschrift) {
    EXPECT_EQ(Schrift(R"({\f1 ;})"), "Courier New");
}

TEST(RtfKopf, UeberlangerNameWirdGekuerzt) {
    EXPECT_EQ(Schrift("{\\f1 " + std::string(1000, 'a') + ";}"), std::string(64, 'a'));
}

TEST(RtfKopf, DeffGiltOhneSchriftwahlUndNachPlain) {
    const std::string tabelle = R"({\rtf1\deff1{\fonttbl{\f0 Eins;}{\f1\fcharset238 Zwei;}})";
    EXPECT_EQ(Format(tabelle + " x}").schrift, "Zwei");
    EXPECT_EQ(Format(tabelle + "\\f0\\plain x}").schrift, "Zwei");
    EXPECT_EQ(Format(tabelle + "\\f7 x}").schrift, "Zwei");
    EXPECT_THAT(Absaetze(RtfLesen(tabelle + R"(\'ea})")), ElementsAre("ę"));
}

TEST(RtfKopf, OhneTabelleGiltDieGrundschrift) {
    EXPECT_EQ(Format("{\\rtf1 x}"), Zeichenformat{});
    EXPECT_EQ(Format("{\\rtf1\\f5 x}").schrift, "Courier New");
}

TEST(RtfKopf, FarbenZaehlenAbDemErstenEintrag) {
    const std::string kopf = R"({\rtf1{\colortbl ;\red255\green0\blue0;\red0\green128\blue64;})";
    EXPECT_EQ(Format(kopf + "\\cf1 x}").farbe, (Farbe{255, 0, 0}));
    EXPECT_EQ(Format(kopf + "\\cf2 x}").farbe, (Farbe{0, 128, 64}));
    EXPECT_EQ(Format(kopf + "\\cf1\\cf0 x}").farbe, std::nullopt);
    EXPECT_EQ(Format(kopf + "\\cf3 x}").farbe, std::nullopt);
    EXPECT_EQ(Format(kopf + "\\cf-1 x}").farbe, std::nullopt);
}

TEST(RtfKopf, ErsterEintragKannEineFarbeSein) {
    const std::string kopf = R"({\rtf1{\colortbl\red1\green2\blue3;})";
    EXPECT_EQ(Format(kopf + "\\cf0 x}").farbe, (Farbe{1, 2, 3}));
    // The ground has no number 0.
    EXPECT_EQ(Format(kopf + "\\highlight0\\cb0 x}").hintergrund, std::nullopt);
}

TEST(RtfKopf, FarbanteileWerdenBegrenztUndFehlendeSindNull) {
    const std::string kopf = R"({\rtf1{\colortbl ;\red999\green-5;})";
    EXPECT_EQ(Format(kopf + "\\cf1 x}").farbe, (Farbe{255, 0, 0}));
}

TEST(RtfKopf, FarbwoerterAusserhalbDerTabelleWirkenNicht) {
    EXPECT_EQ(Format(R"({\rtf1{\colortbl ;\red9;}\red77\cf1 x})").farbe, (Farbe{9, 0, 0}));
}

}  // namespace rtfkopf_test
}  // namespace zinfolio
