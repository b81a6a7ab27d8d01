#include "kern/richtext/rtfschreiben.h"

#include <gmock/gmock.h>

namespace zinfolio {
namespace rtfschreiben_test {

const std::string kopf =
    "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1031{\\fonttbl{\\f0\\fmodern\\fcharset0 Courier New;}}\r\n";
const std::string anfang = "\\viewkind4\\uc1\\pard\\f0\\fs24 ";

Richtext Aus(std::vector<Lauf> laeufe, Absatzformat format = {}) {
    return {.absaetze = {{std::move(format), std::move(laeufe)}}};
}

/// The body of a file in which no other font and no colour is used.
std::string Rumpf(const Richtext& text) {
    const std::string datei = RtfSchreiben(text);
    EXPECT_TRUE(datei.starts_with(kopf + anfang)) << datei;
    EXPECT_TRUE(datei.ends_with("}\r\n")) << datei;
    const std::size_t davor = kopf.size() + anfang.size();
    return datei.substr(davor, datei.size() - davor - 3);
}

TEST(RtfSchreiben, SchlichterText) {
    EXPECT_EQ(RtfSchreiben(Aus({{"Text", {}}})), kopf + anfang + "Text\\par\r\n}\r\n");
}

TEST(RtfSchreiben, LeeresDokument) {
    EXPECT_EQ(RtfSchreiben({}), kopf + anfang + "\\par\r\n}\r\n");
    EXPECT_EQ(RtfSchreiben({.absaetze = {}}), kopf + anfang + "\\par\r\n}\r\n");
}

TEST(RtfSchreiben, TextWirdGeschuetztUndIstAscii) {
    EXPECT_EQ(Rumpf(Aus({{"{a}\\ für 5 € α \U0001F600\tb\nc", {}}})),
              "\\{a\\}\\\\ f\\'fcr 5 \\'80 \\u945? \\u-10179?\\u-8704?\\tab b\\line c\\par\r\n");
}

TEST(RtfSchreiben, LeerzeichenAmAbsatzanfangBleibt) {
    EXPECT_EQ(Rumpf({.absaetze = {{{}, {{" a", {}}}}, {{}, {{" b", {}}}}}}), " a\\par\r\n b\\par\r\n");
}

TEST(RtfSchreiben, NurWasSichAendertMitEinemLeerzeichenAmEnde) {
    EXPECT_EQ(
        Rumpf(Aus({{"a", {}}, {"b", {.fett = true}}, {"c", {.fett = true, .kursiv = true}}, {" d", {}}})),
        "a\\b b\\i c\\b0\\i0  d\\par\r\n");
}

TEST(RtfSchreiben, FormatGiltUeberDasAbsatzendeWeiter) {
    const Zeichenformat fett{.fett = true};
    EXPECT_EQ(Rumpf({.absaetze = {{{}, {{"a", fett}}}, {{}, {{"b", fett}}}, {{}, {{"c", {}}}}}}),
              "\\b a\\par\r\nb\\par\r\n\\b0 c\\par\r\n");
}

TEST(RtfSchreiben, AlleZeichenformate) {
    const auto rumpf = [](const Zeichenformat& format) { return Rumpf(Aus({{"a", format}, {"b", {}}})); };
    EXPECT_EQ(rumpf({.groesse = 40}), "\\fs40 a\\fs24 b\\par\r\n");
    EXPECT_EQ(rumpf({.durchgestrichen = true}), "\\strike a\\strike0 b\\par\r\n");
    EXPECT_EQ(rumpf({.verborgen = true}), "\\v a\\v0 b\\par\r\n");
    EXPECT_EQ(rumpf({.unterstreichung = Unterstreichung::einfach}), "\\ul a\\ulnone b\\par\r\n");
    EXPECT_EQ(rumpf({.unterstreichung = Unterstreichung::gepunktet}), "\\uld a\\ulnone b\\par\r\n");
    EXPECT_EQ(rumpf({.unterstreichung = Unterstreichung::doppelt}), "\\uldb a\\ulnone b\\par\r\n");
    EXPECT_EQ(rumpf({.unterstreichung = Unterstreichung::wortweise}), "\\ulw a\\ulnone b\\par\r\n");
    EXPECT_EQ(rumpf({.lage = Zeichenlage::hoch}), "\\super a\\nosupersub b\\par\r\n");
    EXPECT_EQ(rumpf({.lage = Zeichenlage::tief}), "\\sub a\\nosupersub b\\par\r\n");
    EXPECT_EQ(rumpf({.schreibung = Schreibung::versalien}), "\\caps a\\caps0 b\\par\r\n");
    EXPECT_EQ(rumpf({.schreibung = Schreibung::kapitaelchen}), "\\scaps a\\scaps0 b\\par\r\n");
}

TEST(RtfSchreiben, SchriftenMitFamilieUndZeichensatz) {
    const std::string datei = RtfSchreiben(Aus({{"a", {.schrift = "Arial"}},
                                                {"b", {.schrift = "Times New Roman"}},
                                                {"c", {.schrift = "Wingdings"}},
                                                {"d", {.schrift = "Düne"}},
                                                {"e", {.schrift = "Arial"}}}));
    EXPECT_EQ(
        datei,
        "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1031{\\fonttbl{\\f0\\fmodern\\fcharset0 Courier New;}"
        "{\\f1\\fswiss\\fcharset0 Arial;}{\\f2\\froman\\fcharset0 Times New Roman;}"
        "{\\f3\\fnil\\fcharset2 Wingdings;}{\\f4\\fnil\\fcharset0 D\\'fcne;}}\r\n" +
            anfang + "\\f1 a\\f2 b\\f3 c\\f4 d\\f1 e\\par\r\n}\r\n");
}

TEST(RtfSchreiben, BilderschriftBekommtNurUnicode) {
    // The byte DF of such a font would be another character than the sharp s, U+00DF = 223.
    const std::string datei = RtfSchreiben(Aus({{"Jß\uF0FC", {.schrift = "Wingdings"}}, {"ß", {}}}));
    EXPECT_TRUE(datei.ends_with("\\f1 J\\u223?\\u-3844?\\f0 \\'df\\par\r\n}\r\n")) << datei;
}

TEST(RtfSchreiben, FarbtabelleNurWoFarbenSind) {
    const Farbe rot{255, 0, 0};
    const Farbe gelb{255, 255, 0};
    EXPECT_EQ(
        RtfSchreiben(Aus({{"a", {.farbe = rot}}, {"b", {.farbe = rot, .hintergrund = gelb}}, {"c", {}}})),
        kopf + "{\\colortbl ;\\red255\\green0\\blue0;\\red255\\green255\\blue0;}\r\n" + anfang +
            "\\cf1 a\\highlight2 b\\cf0\\highlight0 c\\par\r\n}\r\n");
}

TEST(RtfSchreiben, AbsatzformatNurWoEsSichAendert) {
    const Absatzformat mitte{.ausrichtung = Ausrichtung::mitte};
    EXPECT_EQ(Rumpf({.absaetze = {{{}, {{"a", {}}}}, {mitte, {{"b", {}}}}, {mitte, {}}, {{}, {{"c", {}}}}}}),
              "a\\par\r\n\\pard\\qc b\\par\r\n\\par\r\n\\pard c\\par\r\n");
}

TEST(RtfSchreiben, AlleAbsatzformate) {
    const auto rumpf = [](const Absatzformat& format) { return Rumpf(Aus({{"a", {}}}, format)); };
    EXPECT_EQ(rumpf({.ausrichtung = Ausrichtung::rechts}), "\\pard\\qr a\\par\r\n");
    EXPECT_EQ(rumpf({.ausrichtung = Ausrichtung::blocksatz}), "\\pard\\qj a\\par\r\n");
    EXPECT_EQ(rumpf({.links = 720, .ersteZeile = -360, .rechts = 100}),
              "\\pard\\fi-360\\li720\\ri100 a\\par\r\n");
    EXPECT_EQ(rumpf({.davor = 60, .danach = 120}), "\\pard\\sb60\\sa120 a\\par\r\n");
    EXPECT_EQ(rumpf({.zeilenabstand = 360, .vielfach = true}), "\\pard\\sl360\\slmult1 a\\par\r\n");
    EXPECT_EQ(rumpf({.zeilenabstand = -240}), "\\pard\\sl-240 a\\par\r\n");
    EXPECT_EQ(rumpf({.tabulatoren = {{500, Tabart::links},
                                     {900, Tabart::rechts},
                                     {950, Tabart::mitte},
                                     {999, Tabart::dezimal}}}),
              "\\pard\\tx500\\tqr\\tx900\\tqc\\tx950\\tqdec\\tx999 a\\par\r\n");
    EXPECT_EQ(rumpf({.zusammenhalten = true,
                     .beimNaechstenHalten = true,
                     .ohneTrennung = true,
                     .seitenwechselDavor = true}),
              "\\pard\\keep\\keepn\\pagebb\\hyph0 a\\par\r\n");
}

TEST(RtfSchreiben, ListeMitPunkten) {
    const Absatzformat punkt{.links = 200, .ersteZeile = -200, .liste = {.art = Listenart::punkte}};
    EXPECT_EQ(
        RtfSchreiben({.absaetze = {{punkt, {{"eins", {}}}}, {punkt, {{"zwei", {}}}}, {{}, {{"drei", {}}}}}}),
        "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1031{\\fonttbl{\\f0\\fmodern\\fcharset0 Courier New;}"
        "{\\f1\\fnil\\fcharset2 Symbol;}}\r\n" +
            anfang +
            "\\pard{\\pntext\\f1\\'B7\\tab}{\\*\\pn\\pnlvlblt\\pnf1\\pnindent0{\\pntxtb\\'B7}}\\fi-"
            "200\\li200 "
            "eins\\par\r\n{\\pntext\\f1\\'B7\\tab}zwei\\par\r\n\\pard drei\\par\r\n}\r\n");
}

TEST(RtfSchreiben, ListeMitZahlen) {
    const Absatzformat zahl{.liste = {.art = Listenart::dezimal, .beginn = 9}};
    const Absatzformat klammer{.liste = {.art = Listenart::kleinbuchstaben, .nach = Nachzeichen::klammer}};
    EXPECT_EQ(Rumpf({.absaetze = {{zahl, {{"a", {}}}}, {zahl, {{"b", {}}}}, {klammer, {{"c", {}}}}}}),
              "\\pard{\\pntext\\f0 "
              "9.\\tab}{\\*\\pn\\pnlvlbody\\pnf0\\pnindent0\\pnstart9\\pndec{\\pntxta.}}a\\par\r\n"
              "{\\pntext\\f0 10.\\tab}b\\par\r\n"
              "\\pard{\\pntext\\f0 "
              "a)\\tab}{\\*\\pn\\pnlvlbody\\pnf0\\pnindent0\\pnstart1\\pnlcltr{\\pntxta)}}c\\par\r\n");
}

TEST(RtfSchreiben, ZaehltUeberEinAnderesAbsatzformatDerselbenListeWeiter) {
    const Liste liste{.art = Listenart::grossroemisch, .nach = Nachzeichen::keins};
    EXPECT_EQ(
        Rumpf({.absaetze = {{{.liste = liste}, {}},
                            {{.ausrichtung = Ausrichtung::mitte, .liste = liste}, {}}}}),
        "\\pard{\\pntext\\f0 I\\tab}{\\*\\pn\\pnlvlbody\\pnf0\\pnindent0\\pnstart1\\pnucrm}\\par\r\n"
        "\\pard{\\pntext\\f0 II\\tab}{\\*\\pn\\pnlvlbody\\pnf0\\pnindent0\\pnstart1\\pnucrm}\\qc\\par\r\n");
}

}  // namespace rtfschreiben_test
}  // namespace zinfolio
