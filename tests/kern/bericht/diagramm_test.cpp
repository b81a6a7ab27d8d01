#include "kern/bericht/diagramm.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zinfolio {
namespace diagramm_test {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using Texte = std::vector<std::string>;

constexpr Einheitentitel titel{.millionen = "Mio", .tausend = "Tsd", .einzeln = "Euro"};
constexpr Einheitentitel titelAbDerGrenze{
    .millionen = "Mio", .tausend = "Tsd", .einzeln = "Euro", .abDerGrenze = true};

struct Einheitenfall {
    double betrag;
    Diagrammeinheit ueberDerGrenze;
    Diagrammeinheit abDerGrenze;
};

class EinheitWaehlenNachBetrag : public testing::TestWithParam<Einheitenfall> {};

TEST_P(EinheitWaehlenNachBetrag, GrenzenZaehlenJeNachRechner) {
    EXPECT_EQ(EinheitWaehlen(GetParam().betrag, titel), GetParam().ueberDerGrenze);
    EXPECT_EQ(EinheitWaehlen(GetParam().betrag, titelAbDerGrenze), GetParam().abDerGrenze);
}

INSTANTIATE_TEST_SUITE_P(Betraege, EinheitWaehlenNachBetrag,
                         testing::Values(Einheitenfall{15086.53, {1, "Euro"}, {1, "Euro"}},
                                         Einheitenfall{0, {1, "Euro"}, {1, "Euro"}},
                                         Einheitenfall{-5e9, {1, "Euro"}, {1, "Euro"}},
                                         Einheitenfall{999999.99, {1, "Euro"}, {1, "Euro"}},
                                         Einheitenfall{1e6, {1, "Euro"}, {1e3, "Tsd"}},
                                         Einheitenfall{1000000.01, {1e3, "Tsd"}, {1e3, "Tsd"}},
                                         Einheitenfall{1e9, {1e3, "Tsd"}, {1e6, "Mio"}},
                                         Einheitenfall{1000000000.01, {1e6, "Mio"}, {1e6, "Mio"}}));

TEST(Jahrestext, IstDieJahreszahlDesDatums) {
    EXPECT_EQ(Jahrestext("31.03.2007"), "2007");
    EXPECT_EQ(Jahrestext("01.01.0100"), "100");
}

TEST(Jahrestext, OhneZahlIstNull) {
    EXPECT_EQ(Jahrestext(""), "0");
    EXPECT_EQ(Jahrestext("kein Datum"), "0");
    EXPECT_EQ(Jahrestext("7"), "7");
}

/// The texts of the rows that get a label, of all rows.
Texte Beschriftet(const Texte& texte, std::size_t abstand) {
    Texte ergebnis;
    for (const std::size_t zeile : BeschrifteteZeilen(texte, 0, texte.size() - 1, abstand))
        ergebnis.push_back(texte[zeile]);
    return ergebnis;
}

/// `jeJahr` rows for each year from `anfang` on.
Texte Jahre(int anfang, int anzahl, int jeJahr) {
    Texte texte;
    for (int i = 0; i < anzahl * jeJahr; ++i)
        texte.push_back(" " + std::to_string(anfang + i / jeJahr) + "            ");
    return texte;
}

TEST(BeschrifteteZeilen, GenugPlatzZeigtJedeZeileAuchGleicheJahre) {
    EXPECT_THAT(Beschriftet({"2006", "2007", "2007", "2007"}, 1),
                ElementsAre("2006", "2007", "2007", "2007"));
}

TEST(BeschrifteteZeilen, WenigPlatzZeigtDenAnfangJedesJahres) {
    EXPECT_THAT(BeschrifteteZeilen(Jahre(2020, 5, 12), 0, 59, 4), ElementsAre(0, 12, 24, 36, 48));
}

TEST(BeschrifteteZeilen, NochWenigerPlatzZeigtRundeJahre) {
    EXPECT_THAT(Beschriftet(Jahre(1997, 12, 1), 2),
                ElementsAre(" 1998            ", " 2000            ", " 2002            ",
                            " 2004            ", " 2006            ", " 2008            "));
    EXPECT_THAT(BeschrifteteZeilen(Jahre(1998, 50, 10), 0, 499, 50),
                ElementsAre(20, 70, 120, 170, 220, 270, 320, 370, 420, 470));
    EXPECT_THAT(BeschrifteteZeilen(Jahre(1998, 50, 10), 0, 499, 51), ElementsAre(20, 120, 220, 320, 420));
}

TEST(BeschrifteteZeilen, AngeschnittenesErstesJahrWeichtDemZweiten) {
    Texte texte = Jahre(2021, 3, 10);
    texte.insert(texte.begin(), "2020");
    EXPECT_THAT(BeschrifteteZeilen(texte, 0, 30, 5), ElementsAre(1, 11, 21));
}

TEST(BeschrifteteZeilen, EinEinzigesJahrWiederholtSich) {
    EXPECT_THAT(BeschrifteteZeilen(Jahre(2025, 1, 100), 0, 99, 30), ElementsAre(0, 30, 60, 90));
}

TEST(BeschrifteteZeilen, EinTextFastAllerZeilenWiederholtSich) {
    Texte texte(29, "31.12");
    texte.emplace_back("28.12");
    EXPECT_THAT(BeschrifteteZeilen(texte, 0, 29, 4), ElementsAre(0, 4, 8, 12, 16, 20, 24, 28));
    // Three quarters are not nearly all.
    EXPECT_THAT(BeschrifteteZeilen(texte, 26, 29, 2), ElementsAre(26, 29));
}

TEST(BeschrifteteZeilen, AusschnittBeginntMitSeinerErstenZeile) {
    EXPECT_THAT(BeschrifteteZeilen(Jahre(2020, 5, 12), 6, 30, 4), ElementsAre(6, 12, 24));
    EXPECT_THAT(BeschrifteteZeilen(Jahre(2020, 5, 12), 7, 7, 1), ElementsAre(7));
}

TEST(BeschrifteteZeilen, ZweiJahreZuDichtBeieinanderZeigenEines) {
    EXPECT_THAT(Beschriftet({"2006", "2007"}, 5), SizeIs(1));
}

TEST(BeschrifteteZeilen, TexteOhneZahlWerdenAbgezaehlt) {
    EXPECT_THAT(Beschriftet({"a", "b", "c", "d", "e", "f"}, 2), ElementsAre("a", "c", "e"));
}

/// Years with one row beside years with hundreds: whatever remains keeps its distance.
TEST(BeschrifteteZeilen, UngleicheJahreUeberlappenNie) {
    Texte texte;
    for (int jahr = 1900; jahr < 2000; ++jahr)
        texte.insert(texte.end(), jahr % 7 == 0 ? 300 : 1 + static_cast<std::size_t>(jahr % 3),
                     std::to_string(jahr));
    for (const std::size_t abstand : {2U, 3U, 10U, 77U, 400U, 5000U}) {
        const auto zeilen = BeschrifteteZeilen(texte, 0, texte.size() - 1, abstand);
        ASSERT_THAT(zeilen, testing::Not(IsEmpty()));
        for (std::size_t i = 1; i < zeilen.size(); ++i)
            EXPECT_GE(zeilen[i] - zeilen[i - 1], abstand);
    }
}

}  // namespace diagramm_test
}  // namespace zinfolio
