// Tables, lists, and groups that are passed over.

#include <gmock/gmock.h>

#include "kern/richtext/lesehilfe.h"

namespace zinfolio {
namespace rtfgruppen_test {

using testing::ElementsAre;

TEST(RtfTabelle, ZellenWerdenTabulatorenUndZeilenAbsaetze) {
    EXPECT_THAT(Rumpf(R"(\trowd\trgaph30\trhdr\cellx1000\cellx2000\intbl a\cell b\cell\row)"
                      R"(\trowd\cellx1000\cellx2000\intbl c\cell d\cell\row\pard danach\par)"),
                ElementsAre("a\tb\t", "c\td\t", "danach"));
}

TEST(RtfTabelle, VerschachtelteZellenUndZeilen) {
    EXPECT_THAT(Rumpf(R"(\pard\intbl\itap2 x\nestcell y\nestcell{\*\nesttableprops\trowd\cellx500\nestrow})"
                      R"({\nonesttables\par nur ohne}aussen\cell\row)"),
                ElementsAre("x\ty\t", "aussen\t"));
}

struct Listenfall {
    const char* name;
    const char* woerter;
    Liste liste;
};

class RtfListe : public testing::TestWithParam<Listenfall> {};

TEST_P(RtfListe, WirdGelesen) {
    const std::string rumpf =
        std::string(R"(\pard{\pntext\f0 1.\tab}{\*\pn)") + GetParam().woerter + "} x\\par";
    EXPECT_EQ(AbsatzformatVon(rumpf), (Absatzformat{.liste = GetParam().liste}));
    EXPECT_THAT(Rumpf(rumpf), ElementsAre(" x"));
}

INSTANTIATE_TEST_SUITE_P(
    Arten, RtfListe,
    testing::Values(
        Listenfall{"Punkte", R"(\pnlvlblt\pnf1\pnindent0{\pntxtb\'B7})", {.art = Listenart::punkte}},
        Listenfall{
            "Zahlen", R"(\pnlvlbody\pnf0\pnindent0\pnstart1\pndec{\pntxta.})", {.art = Listenart::dezimal}},
        Listenfall{"Kleinbuchstaben", R"(\pnlvlbody\pnlcltr{\pntxta.})", {.art = Listenart::kleinbuchstaben}},
        Listenfall{"Grossbuchstaben", R"(\pnlvlbody\pnucltr{\pntxta.})", {.art = Listenart::grossbuchstaben}},
        Listenfall{"Kleinroemisch", R"(\pnlvlbody\pnlcrm{\pntxta.})", {.art = Listenart::kleinroemisch}},
        Listenfall{"Grossroemisch", R"(\pnlvlbody\pnucrm{\pntxta.})", {.art = Listenart::grossroemisch}},
        Listenfall{"MitKlammer",
                   R"(\pnlvlbody\pndec{\pntxtb(}{\pntxta)})",
                   {.art = Listenart::dezimal, .nach = Nachzeichen::klammer}},
        Listenfall{"OhneNachzeichen",
                   R"(\pnlvlbody\pndec)",
                   {.art = Listenart::dezimal, .nach = Nachzeichen::keins}},
        Listenfall{"BeginntSpaeter",
                   R"(\pnlvlbody\pnstart7\pndec{\pntxta.})",
                   {.art = Listenart::dezimal, .beginn = 7}},
        Listenfall{"BeginnBegrenzt",
                   R"(\pnlvlbody\pnstart-3\pndec{\pntxta.})",
                   {.art = Listenart::dezimal, .beginn = 0}},
        Listenfall{"PunkteHabenKeinenBeginn", R"(\pnlvlblt\pnstart7)", {.art = Listenart::punkte}},
        Listenfall{"NurEingerueckt", R"(\pnlvlcont)", {}}),
    [](const auto& fall) { return fall.param.name; });

TEST(RtfListen, WeiterePunkteUndEndeDurchPard) {
    const Richtext text =
        RtfLesen(Datei("\\pard{\\pntext\\f1\\'B7\\tab}{\\*\\pn\\pnlvlblt\\pnf1\\pnindent0{\\pntxtb\\'B7}}"
                       "\\fi-200\\li200 eins\\par\r\n"
                       "{\\pntext\\f1\\'B7\\tab}zwei\\par\r\n\\pard danach\\par\r\n"));
    const Absatzformat punkt{.links = 200, .ersteZeile = -200, .liste = {.art = Listenart::punkte}};
    EXPECT_EQ(text.absaetze, (std::vector<Absatz>{
                                 {punkt, {{"eins", {}}}}, {punkt, {{"zwei", {}}}}, {{}, {{"danach", {}}}}}));
}

TEST(RtfListen, ListenwoerterAusserhalbDerAngabeWirkenNicht) {
    EXPECT_EQ(AbsatzformatVon(R"(\pnlvlblt\pndec x)"), Absatzformat{});
}

struct Gruppenfall {
    const char* name;
    const char* rumpf;
};

class RtfGruppeOhneText : public testing::TestWithParam<Gruppenfall> {};

TEST_P(RtfGruppeOhneText, WirdUebergangen) {
    EXPECT_THAT(Rumpf("a" + std::string(GetParam().rumpf) + "b"), ElementsAre("ab"));
}

INSTANTIATE_TEST_SUITE_P(
    Alle, RtfGruppeOhneText,
    testing::Values(
        Gruppenfall{"Unbekannte", R"({\*\foo x})"},
        Gruppenfall{"UnbekannteMitUntergruppen", R"({\*\foo x{\bar y{\*\baz z}}})"},
        Gruppenfall{"UnbekannteMitAbsatzUndText", R"({\*\foo x\par\tab\bullet\'e4\u228?{\b y\par}})"},
        Gruppenfall{"BekanntesWortMitStern", R"({\*\b x})"},
        Gruppenfall{"Stylesheet", R"({\stylesheet{\s1 Standard;}})"},
        Gruppenfall{"Info", R"({\info{\title Titel}{\author Name}})"},
        Gruppenfall{"Pict", R"({\pict\wmetafile8\picw100\pich100 0100090000})"},
        Gruppenfall{"Shppict", R"({\*\shppict{\pict\pngblip 89504e47}})"},
        Gruppenfall{"Nonshppict", R"({\nonshppict{\pict\wmetafile8 0100}})"},
        Gruppenfall{"Objdata", R"({\object\objemb{\*\objclass Paint}{\*\objdata 0105})"
                               "}"},
        Gruppenfall{"Header", R"({\header Kopf\par})"}, Gruppenfall{"Headerl", R"({\headerl Kopf})"},
        Gruppenfall{"Headerr", R"({\headerr Kopf})"}, Gruppenfall{"Headerf", R"({\headerf Kopf})"},
        Gruppenfall{"Footer", R"({\footer Fuss\par})"}, Gruppenfall{"Footerl", R"({\footerl Fuss})"},
        Gruppenfall{"Footerr", R"({\footerr Fuss})"}, Gruppenfall{"Footerf", R"({\footerf Fuss})"},
        Gruppenfall{"Footnote", R"({\footnote Note})"}, Gruppenfall{"Annotation", R"({\*\annotation Note})"},
        Gruppenfall{"Listtable", R"({\*\listtable{\list{\listlevel{\leveltext\'01.;}}}})"},
        Gruppenfall{"Listoverridetable", R"({\listoverridetable x})"},
        Gruppenfall{"Revtbl", R"({\revtbl Unbekannt;})"},
        Gruppenfall{"Generator", R"({\*\generator Schreiber 1.0;})"},
        Gruppenfall{"Themedata", R"({\*\themedata 504b})"},
        Gruppenfall{"Datastore", R"({\*\datastore 0105})"}, Gruppenfall{"Xmlnstbl", R"({\*\xmlnstbl x})"},
        Gruppenfall{"Fldinst", R"({\field{\*\fldinst HYPERLINK "x"}})"},
        Gruppenfall{"FldinstOhneStern", R"({\field{\fldinst PAGE}})"},
        Gruppenfall{"Pntext", R"({\pntext\f1\'B7\tab})"},
        Gruppenfall{"ErgebnisInUebergangenem", R"({\info{\object{\result x}}})"},
        Gruppenfall{"SchriftenInUebergangenem", R"({\info{\fonttbl{\f0 Arial;}}})"}),
    [](const auto& fall) { return fall.param.name; });

TEST(RtfGruppen, ErgebnisEinesFeldesBleibt) {
    EXPECT_THAT(Rumpf(R"({\field{\*\fldinst{ HYPERLINK "http://x" }}{\fldrslt{\ul Verweis}}})"),
                ElementsAre("Verweis"));
}

TEST(RtfGruppen, ErgebnisEinesObjektsBleibt) {
    EXPECT_THAT(Rumpf(R"(a{\object\objemb weg{\*\objdata 0105}{\result{\b Ersatz}}weg}b)"),
                ElementsAre("aErsatzb"));
}

TEST(RtfGruppen, SternGiltNurFuerDasNaechsteWort) {
    EXPECT_THAT(Rumpf(R"(a{\*}{\b b}\*{c}{\i d})"), ElementsAre("abcd"));
}

TEST(RtfBinaer, DatenWerdenUebersprungen) {
    EXPECT_THAT(Rumpf(R"(a{\pict\bin6 {{\}}\}b)"), ElementsAre("ab"));
    EXPECT_THAT(Rumpf(R"(a\bin2 }}b)"), ElementsAre("ab"));
}

TEST(RtfBinaer, LaengeNullUndNegativUeberspringenNichts) {
    EXPECT_THAT(Rumpf(R"(a\bin0 b\bin-7 c\bin d)"), ElementsAre("abcd"));
}

TEST(RtfBinaer, DatenAlsErsatzzeichenWerdenMituebersprungen) {
    EXPECT_THAT(Rumpf(R"(\u945\bin3 }}}b)"), ElementsAre("αb"));
}

TEST(RtfBinaer, UeberDasDateiendeHinausEndetDerText) {
    EXPECT_THAT(Rumpf(R"(a\par b\bin999999999 c)"), ElementsAre("a", "b"));
    EXPECT_THAT(Rumpf(R"(a\bin99999999999999999999 c)"), ElementsAre("a"));
}

}  // namespace rtfgruppen_test
}  // namespace zinfolio
