#include "kern/dates/tastenfilter.h"

#include <gtest/gtest.h>
#include <ostream>
#include <set>
#include <string>

namespace zinfolio {

static void PrintTo(const Tastenantwort& antwort, std::ostream* strom) {
    *strom << "{taste " << antwort.taste << ", caretAnsEnde " << antwort.caretAnsEnde << ", naechstesFeld "
           << antwort.naechstesFeld << ", ersteTaste " << antwort.ersteTaste << "}";
}

namespace tastenfilter_test {

constexpr int enter = 13;
constexpr int rueck = 8;

/// The keys from -300 to 300 and a few far ones that a filter lets through.
template <class Filter>
std::set<int> Durchgelassene(Filter filter) {
    std::set<int> tasten;
    for (int taste = -300; taste <= 300; ++taste) {
        if (filter(taste).taste != 0) tasten.insert(taste);
    }
    for (const int taste : {-32768, 48 + 65536, 8364, 32767}) {
        if (filter(taste).taste != 0) tasten.insert(taste);
    }
    return tasten;
}

std::set<int> ZiffernUnd(std::set<int> weitere) {
    for (const char ziffer : std::string("0123456789"))
        weitere.insert(ziffer);
    return weitere;
}

/// The answer of a date field: the caret goes to the end and the field has had its first key, whatever the
/// key was.
Tastenantwort Datumsantwort(int taste, bool naechstesFeld = false) {
    return {taste, true, naechstesFeld, true};
}

TEST(TasteDatum, LaesstZiffernPunktUndBackspaceDurch) {
    EXPECT_EQ(TasteDatum('5', "", true), Datumsantwort('5'));
    EXPECT_EQ(TasteDatum('.', "31", true), Datumsantwort('.'));
    EXPECT_EQ(TasteDatum(rueck, "31", true), Datumsantwort(rueck));
    EXPECT_EQ(TasteDatum(rueck, "", true), Datumsantwort(rueck));
    EXPECT_EQ(TasteDatum(',', "31", true), Datumsantwort(0));
    EXPECT_EQ(Durchgelassene([](int taste) { return TasteDatum(taste, "31", true); }),
              ZiffernUnd({'.', rueck}));
    EXPECT_EQ(Durchgelassene([](int taste) { return TasteDatum(taste, "", true); }), ZiffernUnd({rueck}));
}

TEST(TasteDatum, EnterGehtWeiterAuchBeiVollemFeld) {
    EXPECT_EQ(TasteDatum(enter, "", true), Datumsantwort(0, true));
    EXPECT_EQ(TasteDatum(enter, "1.2", true), Datumsantwort(0, true));
    EXPECT_EQ(TasteDatum(enter, "01.02.2007", true), Datumsantwort(0, true));
    EXPECT_EQ(TasteDatum(enter, "01.02.2007", false), Datumsantwort(0, true));
}

TEST(TasteDatum, PunktNichtAmAnfang) {
    EXPECT_EQ(TasteDatum('.', "", true).taste, 0);
    EXPECT_EQ(TasteDatum('.', "3", true).taste, '.');
    EXPECT_EQ(TasteDatum('.', "01.02.2007", false).taste, 0) << "the old text is selected";
    EXPECT_EQ(TasteDatum('.', "31", false).taste, 0) << "the old text is selected";
}

TEST(TasteDatum, KeineZweiPunkteHintereinander) {
    EXPECT_EQ(TasteDatum('.', "31.", true).taste, 0);
    EXPECT_EQ(TasteDatum('.', "3.", true).taste, 0);
    EXPECT_EQ(TasteDatum('.', "31.1", true).taste, '.');
    EXPECT_EQ(TasteDatum('.', "31.12", true).taste, '.');
}

TEST(TasteDatum, KeinDritterPunkt) {
    EXPECT_EQ(TasteDatum('.', "31.12.", true).taste, 0);
    EXPECT_EQ(TasteDatum('.', "31.12.2", true).taste, 0);
    EXPECT_EQ(TasteDatum('.', "1.1.1.1", true).taste, 0);
}

TEST(TasteDatum, HoechstensZehnZeichen) {
    EXPECT_EQ(TasteDatum('7', "01.02.200", true).taste, '7');
    EXPECT_EQ(TasteDatum('7', "01.02.2007", true).taste, 0);
    EXPECT_EQ(TasteDatum('.', "010220071", true).taste, '.');
    EXPECT_EQ(TasteDatum('.', "0102200711", true).taste, 0);
    EXPECT_EQ(TasteDatum(rueck, "01.02.2007", true).taste, rueck);
    EXPECT_EQ(TasteDatum('7', "01.02.2007", false).taste, '7') << "the key replaces the selected text";
}

// The length is looked at before Enter and Backspace are.
TEST(TasteDatum, MehrAlsZehnZeichenHaltenJedeTasteAuf) {
    for (const int taste :
         {static_cast<int>('7'), static_cast<int>('.'), enter, rueck, static_cast<int>('x')}) {
        EXPECT_EQ(TasteDatum(taste, "01.02.20071", true), Datumsantwort(0)) << taste;
    }
    EXPECT_EQ(TasteDatum(enter, "01.02.20071", false), Datumsantwort(0, true));
    EXPECT_EQ(TasteDatum(rueck, "01.02.20071", false), Datumsantwort(rueck));
    EXPECT_EQ(TasteDatum('7', "01.02.20071", false), Datumsantwort('7'));
}

/// The answer of an amount field: the field has had its first key.
Tastenantwort Betragsantwort(int taste, bool naechstesFeld = false) {
    return {taste, false, naechstesFeld, true};
}

TEST(TasteBetrag, LaesstZiffernBackspaceKommaUndVorzeichenDurch) {
    EXPECT_EQ(TasteBetrag('5', "12", true), Betragsantwort('5'));
    EXPECT_EQ(TasteBetrag('5', "12", false), Betragsantwort('5'));
    EXPECT_EQ(TasteBetrag('x', "12", false), Betragsantwort(0));
    EXPECT_EQ(Durchgelassene([](int taste) { return TasteBetrag(taste, "12", true); }),
              ZiffernUnd({',', rueck}));
    EXPECT_EQ(Durchgelassene([](int taste) { return TasteBetrag(taste, "", true); }),
              ZiffernUnd({'-', rueck}));
    EXPECT_EQ(Durchgelassene([](int taste) { return TasteBetrag(taste, "12", false); }),
              ZiffernUnd({',', '-', rueck}));
    EXPECT_EQ(Durchgelassene([](int taste) { return TasteBetrag(taste, "1,5", true); }), ZiffernUnd({rueck}));
}

TEST(TasteBetrag, EnterGehtWeiterAusserBeiHalbemAnfang) {
    for (const char* fertig : {"", "0", "5", "-5", "-,5", ",5", "-0", "--", ",-", "-,,"}) {
        EXPECT_EQ(TasteBetrag(enter, fertig, true), Betragsantwort(0, true)) << fertig;
    }
    for (const char* unfertig : {"-", ",", "-,"}) {
        EXPECT_EQ(TasteBetrag(enter, unfertig, true), Betragsantwort(0)) << unfertig;
        EXPECT_EQ(TasteBetrag(enter, unfertig, false), Betragsantwort(0)) << unfertig;
    }
}

TEST(TasteBetrag, EinKommaUndNichtAmAnfang) {
    EXPECT_EQ(TasteBetrag(',', "", true).taste, 0);
    EXPECT_EQ(TasteBetrag(',', "5", true).taste, ',');
    EXPECT_EQ(TasteBetrag(',', "-", true).taste, ',');
    EXPECT_EQ(TasteBetrag(',', "5,", true).taste, 0);
    EXPECT_EQ(TasteBetrag(',', "5,25", true).taste, 0);
}

TEST(TasteBetrag, KommaSiehtDenAltenTextAuchWennErMarkiertIst) {
    EXPECT_EQ(TasteBetrag(',', "100", false).taste, ',');
    EXPECT_EQ(TasteBetrag(',', "1,5", false).taste, 0);
    EXPECT_EQ(TasteBetrag(',', "", false).taste, 0);
}

TEST(TasteBetrag, MinusNurAlsErstesZeichen) {
    EXPECT_EQ(TasteBetrag('-', "", true).taste, '-');
    EXPECT_EQ(TasteBetrag('-', "", false).taste, '-');
    EXPECT_EQ(TasteBetrag('-', "12", true).taste, 0);
    EXPECT_EQ(TasteBetrag('-', "-", true).taste, 0);
    EXPECT_EQ(TasteBetrag('-', "12", false).taste, '-') << "over the selected old text";
}

TEST(TasteGanzzahl, LaesstNurZiffernUndBackspaceDurch) {
    EXPECT_EQ(TasteGanzzahl('5', true), (Tastenantwort{'5', false, false, true}));
    EXPECT_EQ(TasteGanzzahl(enter, true), (Tastenantwort{0, false, true, true}));
    EXPECT_EQ(TasteGanzzahl('-', true), (Tastenantwort{0, false, false, true}));
    EXPECT_EQ(Durchgelassene([](int taste) { return TasteGanzzahl(taste, true); }), ZiffernUnd({rueck}));
}

TEST(TasteProzent, LaesstZiffernEinKommaUndBackspaceDurch) {
    EXPECT_EQ(TasteProzent('5', "3", true), (Tastenantwort{'5', false, false, true}));
    EXPECT_EQ(TasteProzent(enter, "3", true), (Tastenantwort{0, false, true, true}));
    EXPECT_EQ(TasteProzent(enter, ",", true), (Tastenantwort{0, false, true, true}));
    EXPECT_EQ(TasteProzent(',', "", true), (Tastenantwort{0, false, false, true}));
    EXPECT_EQ(TasteProzent(',', "0", true), (Tastenantwort{',', false, false, true}));
    EXPECT_EQ(TasteProzent(',', "0,", true), (Tastenantwort{0, false, false, true}));
    EXPECT_EQ(TasteProzent(',', "3,5", false), (Tastenantwort{0, false, false, false}));
    EXPECT_EQ(Durchgelassene([](int taste) { return TasteProzent(taste, "3", true); }),
              ZiffernUnd({',', rueck}));
    EXPECT_EQ(Durchgelassene([](int taste) { return TasteProzent(taste, "", true); }), ZiffernUnd({rueck}));
    EXPECT_EQ(Durchgelassene([](int taste) { return TasteProzent(taste, "", false); }), ZiffernUnd({rueck}));
}

TEST(TasteEnter, LaesstAllesAusserEnterDurch) {
    EXPECT_EQ(TasteEnter(enter, false), (Tastenantwort{0, false, true, false}));
    for (int taste = -300; taste <= 300; ++taste) {
        if (taste == enter) continue;
        EXPECT_EQ(TasteEnter(taste, false), (Tastenantwort{taste, false, false, false})) << taste;
    }
}

TEST(ErsteTaste, AendernNurDatumUndBetrag) {
    for (const int taste :
         {enter, rueck, static_cast<int>('5'), static_cast<int>(','), static_cast<int>('x'), 0}) {
        EXPECT_TRUE(TasteDatum(taste, "1", false).ersteTaste) << taste;
        EXPECT_TRUE(TasteBetrag(taste, "1", false).ersteTaste) << taste;
        for (const bool vorher : {false, true}) {
            EXPECT_EQ(TasteGanzzahl(taste, vorher).ersteTaste, vorher) << taste;
            EXPECT_EQ(TasteProzent(taste, "1", vorher).ersteTaste, vorher) << taste;
            EXPECT_EQ(TasteEnter(taste, vorher).ersteTaste, vorher) << taste;
        }
    }
}

TEST(TasteFiltern, WaehltDenFilterDesFeldes) {
    for (int taste = 0; taste <= 300; ++taste) {
        for (const char* text : {"", "-", "12", "1,5", "31.12", "01.02.20071"}) {
            for (const bool erste : {false, true}) {
                ASSERT_EQ(TasteFiltern(Tastenfilter::datum, taste, text, erste),
                          TasteDatum(taste, text, erste));
                ASSERT_EQ(TasteFiltern(Tastenfilter::betrag, taste, text, erste),
                          TasteBetrag(taste, text, erste));
                ASSERT_EQ(TasteFiltern(Tastenfilter::ganzzahl, taste, text, erste),
                          TasteGanzzahl(taste, erste));
                ASSERT_EQ(TasteFiltern(Tastenfilter::prozent, taste, text, erste),
                          TasteProzent(taste, text, erste));
                ASSERT_EQ(TasteFiltern(Tastenfilter::enter, taste, text, erste), TasteEnter(taste, erste));
            }
        }
    }
}

}  // namespace tastenfilter_test
}  // namespace zinfolio
