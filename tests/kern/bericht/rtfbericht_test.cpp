#include "kern/bericht/rtfbericht.h"

#include <gmock/gmock.h>

#include "kern/bericht/kleinerbericht.h"

namespace zinfolio {
namespace rtfbericht_test {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

TEST(RtfBericht, EinKleinerBericht) {
    EXPECT_EQ(RtfBericht(KleinerBericht()),
              "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1031"
              "{\\fonttbl{\\f0\\fswiss\\fcharset0 Arial;}{\\f1\\fmodern\\fcharset0 Courier New;}}\r\n"
              "{\\info{\\title K\\'f6ln & Co}}\r\n"
              "\\paperw16838\\paperh11906\\landscape\\margl500\\margr500\\margt500\\margb500\r\n"
              "\\viewkind4\\uc1\r\n"
              "\\sectd\\lndscpsect\r\n"
              "\\pard\\plain\\f1\\fs20   Zins 5 %\\par\r\n"
              "\\par\r\n"
              "\\sect\\sectd\\lndscpsect\\sbkpage\\titlepg\\headery500{\\header\r\n"
              "\\trowd\\trgaph30\\trkeep\\trhdr"
              "\\clvertalb\\clbrdrb\\brdrs\\brdrw10\\cellx1440\\clvertalb\\clbrdrb\\brdrs\\brdrw10\\cellx4320"
              "\\pard\\plain\\intbl\\f0\\fs20\\b\\qc Datum\\cell\\ql Vorgang\\cell\\row\r\n"
              "\\pard\\plain\\fs2\\par}\r\n"
              "\\trowd\\trgaph30\\trkeep"
              "\\clvertalb\\clbrdrb\\brdrs\\brdrw10\\cellx1440\\clvertalb\\clbrdrb\\brdrs\\brdrw10\\cellx4320"
              "\\pard\\plain\\intbl\\f0\\fs20\\b\\qc Datum\\cell\\ql Vorgang\\cell\\row\r\n"
              "\\trowd\\trgaph30\\trkeep\\cellx1440\\cellx4320"
              "\\pard\\plain\\intbl\\qr\\f0\\fs20 01.01.2007\\cell \\{M\\'fcll\\}\\cell\\row\r\n"
              "\\trowd\\trgaph30\\trkeep\\cellx1440\\cellx4320"
              "\\pard\\plain\\intbl\\qr\\f0\\fs20 \\cell <&\"\\u9654?\\cell\\row\r\n"
              "\\pard\\plain\\fs2\\par\r\n"
              "}\r\n");
}

TEST(RtfBericht, HochformatTauschtDasPapier) {
    Bericht bericht = KleinerBericht();
    bericht.querformat = false;
    bericht.rand = 720;
    const std::string rtf = RtfBericht(bericht);
    EXPECT_THAT(rtf, HasSubstr("\r\n\\paperw11906\\paperh16838\\margl720\\margr720\\margt720\\margb720\r\n"));
    EXPECT_THAT(rtf, Not(HasSubstr("landscape")));
    EXPECT_THAT(rtf, Not(HasSubstr("lndscpsect")));
}

TEST(RtfBericht, DieSeitenzeileStehtUeberDemKopfAufJederSeite) {
    Bericht bericht = KleinerBericht();
    bericht.seitenzeile = "Zeile {ü}";
    const std::string rtf = RtfBericht(bericht);
    EXPECT_THAT(rtf, HasSubstr("{\\header\r\n\\trowd\\trgaph30\\trkeep\\trhdr\\cellx4320\\pard\\plain\\intbl"
                               "\\ql\\f0\\fs20\\b Zeile \\{\\'fc\\}\\cell\\row\r\n"
                               "\\trowd\\trgaph30\\trkeep\\trhdr\\clvertalb"));
    EXPECT_THAT(rtf, HasSubstr("\\par}\r\n\\trowd\\trgaph30\\trkeep\\cellx4320\\pard\\plain\\intbl"
                               "\\ql\\f0\\fs20\\b Zeile \\{\\'fc\\}\\cell\\row\r\n"));
}

TEST(RtfBericht, DerTitelStehtEinmalUeberDerTabelle) {
    Bericht bericht = KleinerBericht();
    bericht.titelzeilen = {"Barwert   {ü}", "Zins : 7 %"};
    EXPECT_THAT(RtfBericht(bericht),
                HasSubstr("\\pard\\plain\\fs2\\par}\r\n"
                          "\\trowd\\trgaph30\\trkeep\\cellx4320\\pard\\plain\\intbl\\ql\\f1\\fs20 "
                          "Barwert   \\{\\'fc\\}\\cell\\row\r\n"
                          "\\trowd\\trgaph30\\trkeep\\cellx4320\\pard\\plain\\intbl\\ql\\f1\\fs20 "
                          "Zins : 7 %\\cell\\row\r\n"
                          "\\trowd\\trgaph30\\trkeep\\clvertalb"));
    EXPECT_THAT(RtfBericht(bericht), HasSubstr("{\\header\r\n\\trowd\\trgaph30\\trkeep\\trhdr\\clvertalb"));
}

TEST(RtfBericht, LeereKoepfeGebenKeineKopfzeile) {
    Bericht bericht = KleinerBericht();
    for (Berichtsspalte& spalte : bericht.tabelle.spalten)
        spalte.kopf.clear();
    const std::string rtf = RtfBericht(bericht);
    EXPECT_THAT(rtf, HasSubstr("{\\header\r\n\\pard\\plain\\fs2\\par}\r\n\\trowd"));
    EXPECT_THAT(rtf, Not(HasSubstr("\\trhdr")));
    EXPECT_THAT(rtf, HasSubstr("01.01.2007\\cell"));
}

TEST(RtfBericht, OhneKopfblockBeginntErMitDerTabelle) {
    Bericht bericht = KleinerBericht();
    bericht.kopfblock.clear();
    EXPECT_THAT(RtfBericht(bericht), HasSubstr("\\viewkind4\\uc1\r\n\\sectd\\lndscpsect\\sbkpage\\titlepg"));
}

TEST(RtfBericht, OhneSpaltenHatErNurDenKopfblock) {
    Bericht bericht = KleinerBericht();
    bericht.tabelle = {};
    EXPECT_THAT(RtfBericht(bericht), EndsWith("  Zins 5 %\\par\r\n\\par\r\n}\r\n"));
}

TEST(RtfBericht, EinLeererBerichtIstEinLeeresDokument) {
    EXPECT_THAT(RtfBericht(Bericht{}),
                testing::AllOf(StartsWith("{\\rtf1"), EndsWith("\\viewkind4\\uc1\r\n}\r\n"),
                               Not(HasSubstr("\\title"))));
}

TEST(RtfBericht, OhneZeilenBleibtDerTabellenkopf) {
    Bericht bericht = KleinerBericht();
    bericht.tabelle.zeilen = 0;
    EXPECT_THAT(RtfBericht(bericht),
                EndsWith("\\qc Datum\\cell\\ql Vorgang\\cell\\row\r\n\\pard\\plain\\fs2\\par\r\n}\r\n"));
}

/// How many tables the body has, each with a small paragraph behind it; the page header has one too.
std::size_t Tabellen(std::size_t zeilen) {
    Bericht bericht = KleinerBericht();
    bericht.tabelle.zeilen = zeilen;
    bericht.tabelle.zelle = [](std::size_t, std::size_t) { return "x"; };
    const std::string rtf = RtfBericht(bericht);
    std::size_t anzahl = 0;
    for (auto ort = rtf.find("\\fs2\\par"); ort != std::string::npos; ort = rtf.find("\\fs2\\par", ort + 1))
        ++anzahl;
    return anzahl - 1;
}

TEST(RtfBericht, EineLangeTabelleWirdGeteilt) {
    EXPECT_EQ(Tabellen(1), 1U);
    EXPECT_EQ(Tabellen(500), 1U);
    EXPECT_EQ(Tabellen(501), 2U);
    EXPECT_EQ(Tabellen(1000), 2U);
    EXPECT_EQ(Tabellen(1001), 3U);
}

TEST(RtfBericht, HalbePunktgroessenUndWeitereSchriften) {
    Bericht bericht = KleinerBericht();
    bericht.tabelle.schrift = {.name = "Liberation Sans", .punkte = 7.5};
    bericht.tabelle.kopfschrift = {.name = "Arial", .punkte = 7, .fett = false};
    bericht.kopfblockschrift = {.name = "Arial", .punkte = 12, .fett = true};
    const std::string rtf = RtfBericht(bericht);
    EXPECT_THAT(rtf, HasSubstr("{\\fonttbl{\\f0\\fswiss\\fcharset0 Liberation Sans;}"
                               "{\\f1\\fswiss\\fcharset0 Arial;}}\r\n"));
    EXPECT_THAT(rtf, HasSubstr("\\pard\\plain\\f1\\fs24\\b   Zins"));
    EXPECT_THAT(rtf, HasSubstr("\\intbl\\f1\\fs14\\qc Datum"));
    EXPECT_THAT(rtf, HasSubstr("\\intbl\\qr\\f0\\fs15 01.01"));
}

}  // namespace rtfbericht_test
}  // namespace zinfolio
