#include "kern/dates/einfuegetext.h"

#include <gtest/gtest.h>

namespace zinfolio {
namespace einfuegetext_test {

using enum Tastenfilter;

std::optional<std::string> Ins(Tastenfilter filter, std::string_view eingefuegt) {
    return Einfuegetext(filter, "", eingefuegt, "");
}

TEST(Einfuegetext, BetraegeWieSieVonSeitenUndTabellenKommen) {
    for (const char* text : {"1234.56", "1,234.56", "1.234,56", "1 234,56 €", " 1234,56\n"})
        EXPECT_EQ(Ins(betrag, text), "1234,56") << text;
    EXPECT_EQ(Ins(betrag, "\u22125,00"), "-5,00");
    EXPECT_EQ(Ins(betrag, "5,00-"), "-5,00");
}

TEST(Einfuegetext, WasKeineZahlIstWirdAbgelehnt) {
    for (const char* text : {"", "abc", "12 und 13", "1,2,3", "5E-05"})
        EXPECT_EQ(Ins(betrag, text), std::nullopt) << text;
}

TEST(Einfuegetext, EinProzentsatzHatKeinVorzeichenEineAnzahlKeinKomma) {
    EXPECT_EQ(Ins(prozent, "3.5"), "3,5");
    EXPECT_EQ(Ins(prozent, "-3,5"), std::nullopt);
    EXPECT_EQ(Ins(ganzzahl, "12"), "12");
    EXPECT_EQ(Ins(ganzzahl, "1,5"), std::nullopt);
    EXPECT_EQ(Ins(ganzzahl, "-1"), std::nullopt);
}

TEST(Einfuegetext, ZaehltMitDemWasSchonDasteht) {
    EXPECT_EQ(Einfuegetext(betrag, "12", "34", ",5"), "34");
    EXPECT_EQ(Einfuegetext(betrag, "1,2", "3,4", ""), std::nullopt);
    EXPECT_EQ(Einfuegetext(betrag, "12", "-3", ""), std::nullopt);
}

TEST(Einfuegetext, EinDatumHatZiffernUndHoechstensZweiPunkte) {
    EXPECT_EQ(Ins(datum, " 01.02.2007 "), "01.02.2007");
    EXPECT_EQ(Ins(datum, "1.2.07"), "1.2.07");
    EXPECT_EQ(Ins(datum, "morgen"), std::nullopt);
    EXPECT_EQ(Ins(datum, "01.02.2007.1"), std::nullopt);
    EXPECT_EQ(Einfuegetext(datum, "01.02.", "20077", ""), std::nullopt);
}

TEST(Einfuegetext, FreierTextBleibtWieErIst) {
    EXPECT_EQ(Ins(enter, " 1,234.56 €"), " 1,234.56 €");
}

}  // namespace einfuegetext_test
}  // namespace zinfolio
