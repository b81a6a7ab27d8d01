// Formats of characters and paragraphs.

#include <gmock/gmock.h>

#include "kern/richtext/lesehilfe.h"

namespace zinfolio {
namespace rtfformat_test {

using testing::ElementsAre;

struct Zeichenfall {
    const char* name;
    const char* woerter;
    Zeichenformat format;
};

class RtfZeichenformat : public testing::TestWithParam<Zeichenfall> {};

TEST_P(RtfZeichenformat, WirdGelesen) {
    EXPECT_EQ(ZeichenformatVon(std::string(GetParam().woerter) + " x"), GetParam().format);
}

const auto name = [](const auto& fall) { return fall.param.name; };

INSTANTIATE_TEST_SUITE_P(
    An, RtfZeichenformat,
    testing::Values(Zeichenfall{"Nichts", "", {}}, Zeichenfall{"Fett", "\\b", {.fett = true}},
                    Zeichenfall{"FettMitEins", "\\b1", {.fett = true}},
                    Zeichenfall{"Kursiv", "\\i", {.kursiv = true}},
                    Zeichenfall{"Durchgestrichen", "\\strike", {.durchgestrichen = true}},
                    Zeichenfall{"Verborgen", "\\v", {.verborgen = true}},
                    Zeichenfall{"Unterstrichen", "\\ul", {.unterstreichung = Unterstreichung::einfach}},
                    Zeichenfall{"Gepunktet", "\\uld", {.unterstreichung = Unterstreichung::gepunktet}},
                    Zeichenfall{"Doppelt", "\\uldb", {.unterstreichung = Unterstreichung::doppelt}},
                    Zeichenfall{"Wortweise", "\\ulw", {.unterstreichung = Unterstreichung::wortweise}},
                    Zeichenfall{"Versalien", "\\caps", {.schreibung = Schreibung::versalien}},
                    Zeichenfall{"Kapitaelchen", "\\scaps", {.schreibung = Schreibung::kapitaelchen}},
                    Zeichenfall{"Tief", "\\sub", {.lage = Zeichenlage::tief}},
                    Zeichenfall{"Hoch", "\\super", {.lage = Zeichenlage::hoch}},
                    Zeichenfall{"Schrift", "\\f4", {.schrift = "Arial"}},
                    Zeichenfall{"Groesse", "\\fs17", {.groesse = 17}},
                    Zeichenfall{"Farbe", "\\cf1", {.farbe = Farbe{255, 0, 0}}},
                    Zeichenfall{"Marker", "\\highlight2", {.hintergrund = Farbe{0, 128, 0}}},
                    Zeichenfall{"Hintergrund", "\\cb2", {.hintergrund = Farbe{0, 128, 0}}},
                    Zeichenfall{"Mehrere", "\\b\\i\\fs40", {.groesse = 40, .fett = true, .kursiv = true}}),
    name);

INSTANTIATE_TEST_SUITE_P(
    Aus, RtfZeichenformat,
    testing::Values(
        Zeichenfall{"Fett", "\\b\\b0", {}}, Zeichenfall{"Kursiv", "\\i\\i0", {}},
        Zeichenfall{"Durchgestrichen", "\\strike\\strike0", {}}, Zeichenfall{"Verborgen", "\\v\\v0", {}},
        Zeichenfall{"UnterstrichenMitNull", "\\ul\\ul0", {}},
        Zeichenfall{"UnterstrichenMitWort", "\\uldb\\ulnone", {}},
        Zeichenfall{"Gepunktet", "\\uld\\uld0", {}}, Zeichenfall{"Wortweise", "\\ulw\\ulw0", {}},
        Zeichenfall{"Versalien", "\\caps\\caps0", {}}, Zeichenfall{"Kapitaelchen", "\\scaps\\scaps0", {}},
        Zeichenfall{"HochMitWort", "\\super\\nosupersub", {}}, Zeichenfall{"TiefMitNull", "\\sub\\sub0", {}},
        Zeichenfall{"GroesseNull", "\\fs40\\fs0", {}}, Zeichenfall{"GroesseOhneZahl", "\\fs40\\fs", {}},
        Zeichenfall{"Farbe", "\\cf1\\cf0", {}}, Zeichenfall{"Marker", "\\highlight1\\highlight0", {}},
        Zeichenfall{"PlainNimmtAlles", "\\b\\i\\ul\\strike\\v\\caps\\sub\\f4\\fs40\\cf1\\cb1\\plain", {}}),
    name);

INSTANTIATE_TEST_SUITE_P(OhneWirkung, RtfZeichenformat,
                         testing::Values(Zeichenfall{"Sprache", "\\lang1031\\langfe1033\\langnp1031", {}},
                                         Zeichenfall{
                                             "Abstaende", "\\kerning1\\expnd5\\expndtw20\\up6\\dn6", {}},
                                         Zeichenfall{"Zierde", "\\embo\\impr\\outl\\shad\\animtext2", {}},
                                         Zeichenfall{"Schutz", "\\protect\\disabled\\noproof", {}},
                                         Zeichenfall{"Unbekannt", "\\waswohl7", {}}),
                         name);

TEST(RtfZeichenformatRegeln, GroesseWirdBegrenzt) {
    EXPECT_EQ(ZeichenformatVon("\\fs99999 x").groesse, 3276);
    EXPECT_EQ(ZeichenformatVon("\\fs-4 x").groesse, 24);
}

TEST(RtfZeichenformatRegeln, KlammerZuBringtDasFormatZurueck) {
    const Richtext text = RtfLesen(Datei(R"(a{\b b}c)"));
    EXPECT_EQ(text.absaetze, (std::vector<Absatz>{{{}, {{"a", {}}, {"b", {.fett = true}}, {"c", {}}}}}));
}

TEST(RtfZeichenformatRegeln, NachbarnGleichenFormatsSindEinLauf) {
    const Richtext text = RtfLesen(Datei(R"(a{\b\b0 b}\i\i0 c)"));
    EXPECT_EQ(text.absaetze, (std::vector<Absatz>{{{}, {{"abc", {}}}}}));
}

TEST(RtfZeichenformatRegeln, FormatGiltUeberDasAbsatzende) {
    const Richtext text = RtfLesen(Datei(R"(\b a\par b)"));
    EXPECT_TRUE(text.absaetze.at(1).laeufe.at(0).format.fett);
}

struct Absatzfall {
    const char* name;
    const char* woerter;
    Absatzformat format;
};

class RtfAbsatzformat : public testing::TestWithParam<Absatzfall> {};

TEST_P(RtfAbsatzformat, WirdGelesen) {
    EXPECT_EQ(AbsatzformatVon(std::string(GetParam().woerter) + " x\\par"), GetParam().format);
}

INSTANTIATE_TEST_SUITE_P(
    Alle, RtfAbsatzformat,
    testing::Values(
        Absatzfall{"Links", "\\qc\\ql", {}}, Absatzfall{"Mitte", "\\qc", {.ausrichtung = Ausrichtung::mitte}},
        Absatzfall{"Rechts", "\\qr", {.ausrichtung = Ausrichtung::rechts}},
        Absatzfall{"Blocksatz", "\\qj", {.ausrichtung = Ausrichtung::blocksatz}},
        Absatzfall{"Einzuege", "\\li720\\fi-360\\ri100", {.links = 720, .ersteZeile = -360, .rechts = 100}},
        Absatzfall{"Abstaende", "\\sb60\\sa120", {.davor = 60, .danach = 120}},
        Absatzfall{"ZeilenabstandGenau", "\\sl-240", {.zeilenabstand = -240}},
        Absatzfall{"ZeilenabstandVielfach", "\\sl360\\slmult1", {.zeilenabstand = 360, .vielfach = true}},
        Absatzfall{"VielfachOhneAbstand", "\\sl0\\slmult1", {}},
        Absatzfall{"Tabulatoren",
                   "\\tx500\\tqr\\tx900\\tqc\\tx1200\\tqdec\\tx1500\\tx1800",
                   {.tabulatoren = {{500, Tabart::links},
                                    {900, Tabart::rechts},
                                    {1200, Tabart::mitte},
                                    {1500, Tabart::dezimal},
                                    {1800, Tabart::links}}}},
        Absatzfall{"TabulatorenGeordnetUndEinfach",
                   "\\tx900\\tx500\\tqr\\tx900\\tx0\\tx-5",
                   {.tabulatoren = {{500, Tabart::links}, {900, Tabart::rechts}}}},
        Absatzfall{"Halten", "\\keep\\keepn", {.zusammenhalten = true, .beimNaechstenHalten = true}},
        Absatzfall{"OhneTrennung", "\\hyph0", {.ohneTrennung = true}},
        Absatzfall{"NeueSeite", "\\pagebb", {.seitenwechselDavor = true}},
        Absatzfall{
            "PardNimmtAlles", "\\qc\\li720\\sb5\\sl9\\slmult1\\tx5\\keep\\keepn\\hyph0\\pagebb\\pard", {}},
        Absatzfall{"Unbekanntes", "\\widctlpar\\nowidctlpar\\ltrpar\\outlinelevel2\\cbpat3", {}},
        Absatzfall{"LaengenBegrenzt", "\\li99999\\ri-99999\\sb-3", {.links = 31680, .rechts = -31680}}),
    name);

TEST(RtfAbsatzformatRegeln, HoechstensZweiunddreissigTabulatoren) {
    std::string woerter;
    for (int stelle = 1; stelle <= 40; ++stelle)
        woerter += "\\tx" + std::to_string(stelle * 100);
    const auto tabulatoren = AbsatzformatVon(woerter + " x").tabulatoren;
    ASSERT_EQ(tabulatoren.size(), 32);
    EXPECT_EQ(tabulatoren.back().stelle, 3200);
}

TEST(RtfAbsatzformatRegeln, GiltWieEsAmAbsatzendeSteht) {
    EXPECT_EQ(AbsatzformatVon(R"(a\qc b\par)").ausrichtung, Ausrichtung::mitte);
    EXPECT_EQ(AbsatzformatVon(R"({\qc a}\par)").ausrichtung, Ausrichtung::links);
    EXPECT_EQ(AbsatzformatVon(R"({\qc a\par})").ausrichtung, Ausrichtung::mitte);
    EXPECT_EQ(AbsatzformatVon(R"(\qc a)").ausrichtung, Ausrichtung::mitte);
}

TEST(RtfAbsatzformatRegeln, GiltFuerDieFolgendenAbsaetzeWeiter) {
    const Richtext text = RtfLesen(Datei(R"(\qc a\par b\par\pard c\par)"));
    EXPECT_EQ(text.absaetze.at(1).format.ausrichtung, Ausrichtung::mitte);
    EXPECT_EQ(text.absaetze.at(2).format.ausrichtung, Ausrichtung::links);
}

TEST(RtfAbsatzformatRegeln, SeitenwechselBeginntEinenAbsatzAufNeuerSeite) {
    const Richtext text = RtfLesen(Datei(R"(a\page b\par c\par)"));
    EXPECT_THAT(Absaetze(text), ElementsAre("a", "b", "c"));
    EXPECT_FALSE(text.absaetze.at(0).format.seitenwechselDavor);
    EXPECT_TRUE(text.absaetze.at(1).format.seitenwechselDavor);
    EXPECT_FALSE(text.absaetze.at(2).format.seitenwechselDavor);
}

TEST(RtfAbsatzformatRegeln, SeitenwechselNachAbsatzendeMachtKeinenLeerenAbsatz) {
    const Richtext text = RtfLesen(Datei(R"(a\par\page b\par)"));
    EXPECT_THAT(Absaetze(text), ElementsAre("a", "b"));
    EXPECT_TRUE(text.absaetze.at(1).format.seitenwechselDavor);
}

}  // namespace rtfformat_test
}  // namespace zinfolio
