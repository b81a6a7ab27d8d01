#include "kern/bericht/htmlbericht.h"

#include <gmock/gmock.h>

#include "kern/bericht/kleinerbericht.h"

namespace zinfolio {
namespace htmlbericht_test {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

TEST(HtmlBericht, EinKleinerBericht) {
    const std::string html = HtmlBericht(KleinerBericht());
    EXPECT_THAT(html, StartsWith("<!DOCTYPE html>\n"
                                 "<html lang=\"de\">\n"
                                 "<head>\n"
                                 "<meta charset=\"utf-8\">\n"
                                 "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
                                 "<title>Köln &amp; Co</title>\n"
                                 "<style>\n"
                                 ":root { color-scheme: light dark; }\n"
                                 "@page { size: A4 landscape; margin: 25pt; }\n"));
    EXPECT_THAT(html,
                EndsWith("</style>\n"
                         "</head>\n"
                         "<body>\n"
                         "<pre>\n"
                         "  Zins 5 %\n"
                         "\n"
                         "</pre>\n"
                         "<table>\n"
                         "<colgroup><col style=\"width: 72pt\"><col style=\"width: 144pt\"></colgroup>\n"
                         "<thead>\n"
                         "<tr><th scope=\"col\">Datum</th>"
                         "<th scope=\"col\" style=\"text-align: left\">Vorgang</th></tr>\n"
                         "</thead>\n"
                         "<tbody>\n"
                         "<tr><td>01.01.2007</td><td>{Müll}</td></tr>\n"
                         "<tr><td></td><td>&lt;&amp;&quot;▶</td></tr>\n"
                         "</tbody>\n"
                         "</table>\n"
                         "</body>\n"
                         "</html>\n"));
}

TEST(HtmlBericht, SchriftenUndBreitenStehenInDerStilvorlage) {
    const std::string html = HtmlBericht(KleinerBericht());
    EXPECT_THAT(html, HasSubstr("pre { margin: 0 0 1.5rem; font: 10pt \"Courier New\", monospace; }\n"));
    EXPECT_THAT(html,
                HasSubstr("width: 216pt; border-collapse: collapse; font: 10pt \"Arial\", sans-serif;"));
    EXPECT_THAT(html, HasSubstr("th { font: bold 10pt \"Arial\", sans-serif;"));
}

TEST(HtmlBericht, DerKopfWirdBeimDruckenWiederholtUndZeilenBleibenGanz) {
    const std::string html = HtmlBericht(KleinerBericht());
    EXPECT_THAT(html, HasSubstr("thead { display: table-header-group;"));
    EXPECT_THAT(html, HasSubstr("tr { break-inside: avoid; }\n"));
    EXPECT_THAT(html, HasSubstr("  pre + table { break-before: page; }\n"));
}

TEST(HtmlBericht, HochformatUndRandStehenInDerSeitenregel) {
    Bericht bericht = KleinerBericht();
    bericht.querformat = false;
    bericht.rand = 721;
    EXPECT_THAT(HtmlBericht(bericht), HasSubstr("@page { size: A4 portrait; margin: 36.05pt; }\n"));
}

TEST(HtmlBericht, DieSeitenzeileStehtImTabellenkopf) {
    Bericht bericht = KleinerBericht();
    bericht.seitenzeile = "a  <b>";
    EXPECT_THAT(HtmlBericht(bericht),
                HasSubstr("<thead>\n<tr><th class=\"seitenzeile\" colspan=\"2\">a  &lt;b&gt;</th></tr>\n"
                          "<tr><th scope=\"col\">Datum"));
}

TEST(HtmlBericht, DerTitelIstDieUeberschriftDerTabelle) {
    Bericht bericht = KleinerBericht();
    bericht.titelzeilen = {"Barwert   <b>", "Zins : 7 %"};
    EXPECT_THAT(HtmlBericht(bericht),
                HasSubstr("<table>\n<caption>Barwert   &lt;b&gt;\nZins : 7 %</caption>\n<colgroup>"));
}

TEST(HtmlBericht, LeereKoepfeGebenKeineKopfzeile) {
    Bericht bericht = KleinerBericht();
    for (Berichtsspalte& spalte : bericht.tabelle.spalten)
        spalte.kopf.clear();
    const std::string html = HtmlBericht(bericht);
    EXPECT_THAT(html, HasSubstr("<thead>\n</thead>\n"));
    EXPECT_THAT(html, HasSubstr("<td>01.01.2007</td>"));
}

TEST(HtmlBericht, EineLeereErsteZeileBleibt) {
    Bericht bericht = KleinerBericht();
    bericht.kopfblock = {"", "x"};
    EXPECT_THAT(HtmlBericht(bericht), HasSubstr("<pre>\n\nx\n</pre>\n"))
        << "the first line end behind the tag does not count";
}

TEST(HtmlBericht, OhneKopfblockBeginntErMitDerTabelle) {
    Bericht bericht = KleinerBericht();
    bericht.kopfblock.clear();
    EXPECT_THAT(HtmlBericht(bericht), HasSubstr("<body>\n<table>\n"));
}

TEST(HtmlBericht, OhneSpaltenHatErNurDenKopfblock) {
    Bericht bericht = KleinerBericht();
    bericht.tabelle = {};
    EXPECT_THAT(HtmlBericht(bericht), EndsWith("\n\n</pre>\n</body>\n</html>\n"));
}

TEST(HtmlBericht, EinLeererBerichtHatTrotzdemEinenTitel) {
    const std::string html = HtmlBericht(Bericht{});
    EXPECT_THAT(html, HasSubstr("<title>Bericht</title>"));
    EXPECT_THAT(html, EndsWith("<body>\n</body>\n</html>\n"));
}

TEST(HtmlBericht, OhneZeilenBleibtDerTabellenkopf) {
    Bericht bericht = KleinerBericht();
    bericht.tabelle.zeilen = 0;
    EXPECT_THAT(HtmlBericht(bericht), HasSubstr("</tr>\n</thead>\n<tbody>\n</tbody>\n</table>\n"));
}

TEST(HtmlBericht, EinSchriftnameBrichtNichtAusSeinerRegelAus) {
    Bericht bericht = KleinerBericht();
    bericht.tabelle.schrift.name = "A\"; } </style><b>\\\n";
    const std::string html = HtmlBericht(bericht);
    EXPECT_THAT(html, HasSubstr("font: 10pt \"A; } /styleb\", sans-serif"));
    EXPECT_THAT(html, Not(HasSubstr("<b>")));
}

}  // namespace htmlbericht_test
}  // namespace zinfolio
