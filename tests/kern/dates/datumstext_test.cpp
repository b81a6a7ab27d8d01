// Date texts put together and taken apart by position.

#include <gtest/gtest.h>
#include <string>

#include "kern/dates/datum.h"
#include "kern/dates/textteile.h"

namespace zinfolio {
namespace datumstext_test {

TEST(DatumAusTeilen, ErgaenztFuehrendeNullUndJahrtausend) {
    EXPECT_EQ(DatumAusTeilen("01", "02", "2007"), "01.02.2007");
    EXPECT_EQ(DatumAusTeilen("1", "2", "2007"), "01.02.2007");
    EXPECT_EQ(DatumAusTeilen("1", "2", "07"), "01.02.2007");
    EXPECT_EQ(DatumAusTeilen("31", "12", "99"), "31.12.2099");
}

TEST(DatumAusTeilen, TrimmtJedenTeilZuerst) {
    EXPECT_EQ(DatumAusTeilen(" 1", "2 ", " 07 "), "01.02.2007");
    EXPECT_EQ(DatumAusTeilen("  31  ", " 12", "2007   "), "31.12.2007");
}

TEST(DatumAusTeilen, LaesstAndereLaengenStehenUndPrueftNichts) {
    EXPECT_EQ(DatumAusTeilen("1", "2", "7"), "01.02.7");
    EXPECT_EQ(DatumAusTeilen("1", "2", "107"), "01.02.107");
    EXPECT_EQ(DatumAusTeilen("001", "123", "20071"), "001.123.20071");
    EXPECT_EQ(DatumAusTeilen("", "", ""), "..");
    EXPECT_EQ(DatumAusTeilen(" ", "  ", "   "), "..");
    EXPECT_EQ(DatumAusTeilen("x", "99", "ab"), "0x.99.20ab");
}

TEST(Datumsschluessel, IstJahrMonatTagAlsZahl) {
    EXPECT_EQ(Datumsschluessel("01.02.2007"), 20070201.0);
    EXPECT_EQ(Datumsschluessel("31.12.9999"), 99991231.0);
    EXPECT_EQ(Datumsschluessel("01.01.0100"), 1000101.0);
}

TEST(Datumsschluessel, OrdnetWieDerKalender) {
    EXPECT_LT(Datumsschluessel("31.12.2006"), Datumsschluessel("01.01.2007"));
    EXPECT_LT(Datumsschluessel("31.01.2007"), Datumsschluessel("01.02.2007"));
    EXPECT_LT(Datumsschluessel("09.02.2007"), Datumsschluessel("10.02.2007"));
}

TEST(Datumsschluessel, LiestNachStellenUndPrueftDenKalenderNicht) {
    EXPECT_EQ(Datumsschluessel("99.99.2007"), 20079999.0);
    EXPECT_EQ(Datumsschluessel("01/02/2007"), 20070201.0);
    EXPECT_EQ(Datumsschluessel("01.02.2007 abends"), 20070201.0);
    EXPECT_EQ(Datumsschluessel("01.02.07"), 70201.0);  // position 7-10 holds two digits
}

TEST(Datumsschluessel, OhneZahlIstEinFehler) {
    for (const char* text : {"", ".", "tt.mm.jjjj", "0x.02.2007", "01.0y.2007", "01.02.200z", "01.02.20 7",
                             "äöüäöü", "ty.ni.infi", "c).ab.nan("}) {
        EXPECT_THROW(static_cast<void>(Datumsschluessel(text)), Datumsfehler) << text;
    }
}

TEST(Schluesseltext, StelltDieStellenUmWasAuchDortSteht) {
    EXPECT_EQ(Schluesseltext("01.02.2007"), "20070201");
    EXPECT_EQ(Schluesseltext("tt.mm.jjjj"), "jjjjmmtt");
    EXPECT_EQ(Schluesseltext("01.02.07"), "070201");
    EXPECT_EQ(Schluesseltext("01.02."), "0201");
    EXPECT_EQ(Schluesseltext("01"), "01");
    EXPECT_EQ(Schluesseltext(""), "");
    EXPECT_EQ(Schluesseltext("01.02.2007 abends"), "20070201");
}

TEST(DatumNebenEinemNachbarn, IstDasselbeWieAlleinGelesen) {
    // Every neighbour of every two digits, in a common and a leap February, and across months and years.
    for (const char* const ende : {".02.2007", ".02.2008", ".04.2007", ".12.2006"}) {
        const std::string nachbartext = std::string("15") + ende;
        const Datum nachbar = Datum::Lesen(nachbartext);
        for (const char* const eigenes :
             {".02.2007", ".02.2008", ".04.2007", ".12.2006", ".13.2007", ".02.20x7"}) {
            for (int tag = 0; tag < 100; ++tag) {
                const std::string text = (tag < 10 ? "0" : "") + std::to_string(tag) + eigenes;
                const auto allein = Datum::Versuche(text);
                const auto daneben = Datum::VersucheNeben(text, nachbar, nachbartext);
                ASSERT_EQ(daneben.has_value(), allein.has_value()) << text;
                if (!allein) continue;
                ASSERT_EQ(daneben->Text(), text);
                ASSERT_EQ(daneben->Tageszahl(), allein->Tageszahl()) << text;
            }
        }
    }
}

TEST(DatumNebenEinemNachbarn, EinTagOhneZiffernIstKeiner) {
    const Datum nachbar = Datum::Lesen("15.02.2007");
    EXPECT_FALSE(Datum::VersucheNeben("x1.02.2007", nachbar, "15.02.2007"));
    EXPECT_FALSE(Datum::VersucheNeben("1 .02.2007", nachbar, "15.02.2007"));
    EXPECT_FALSE(Datum::VersucheNeben("29.02.2007", nachbar, "15.02.2007"));
    EXPECT_EQ(Datum::VersucheNeben("28.02.2007", nachbar, "15.02.2007"), Datum::Lesen("28.02.2007"));
}

TEST(Textteile, TrimmtLeerzeichenAnBeidenEnden) {
    EXPECT_EQ(Getrimmt("  a b "), "a b");
    EXPECT_EQ(Getrimmt("ab"), "ab");
    EXPECT_EQ(Getrimmt("   "), "");
    EXPECT_EQ(Getrimmt(""), "");
}

}  // namespace datumstext_test
}  // namespace zinfolio
