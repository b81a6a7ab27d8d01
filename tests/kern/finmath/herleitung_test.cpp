#include "kern/finmath/herleitung.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

#include "kern/finmath/reihen.h"

namespace zinfolio {
namespace herleitung_test {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

std::vector<std::string> Zellen(const Ergebnissatz& satz) {
    std::vector<std::string> texte;
    for (std::size_t spalte = 0; spalte < Herleitungszellen().size(); ++spalte)
        texte.push_back(Herleitungstext(satz, spalte));
    return texte;
}

TEST(Herleitungszellen, BetraegeMitZweiStellenUndDerFaktorOhneMuster) {
    const Ergebnissatz satz{
        Festtext<10>::AusWindows1252("01.03.2008"), -12345.678, 1.1F, 0, -0.004, 1234567.5};
    EXPECT_THAT(Zellen(satz), ElementsAre("01.03.2008", "-12.345,68", "1,1", "0,00", "0,00", "1.234.567,50"));
}

TEST(Herleitungszellen, DerGroessteBetragHatPlatz) {
    Ergebnissatz satz;
    satz.Ergebnisbetrag = -std::numeric_limits<double>::max();
    // 15 digits of 1.797...e308, 294 zeros behind them: 309 digits in 103 groups.
    const std::string text = Herleitungstext(satz, 1);
    EXPECT_EQ(text.size(), 415U);
    EXPECT_EQ(text.substr(0, 28), "-179.769.313.486.232.000.000");
    EXPECT_EQ(text.substr(text.size() - 7), ".000,00");
}

TEST(Herleitungszellen, DerFaktorHatHoechstensSiebenStellen) {
    Ergebnissatz satz;
    satz.Faktor = 1.23456789F;
    EXPECT_EQ(Zellen(satz)[2], "1,234568");
    satz.Faktor = 1;
    EXPECT_EQ(Zellen(satz)[2], "1");
    satz.Faktor = 1e20F;
    EXPECT_EQ(Zellen(satz)[2], "1E+20");
}

TEST(Herleitungszeilen, DerLetzteKumulierteEndwertIstNull) {
    const auto reihe = Reihe({{"31.12.2006", -1000}, {"31.12.2008", 1102.5}});
    const auto zeilen = Herleitungszeilen(reihe, Effektivmethode::pangv2000, "5,00000");
    ASSERT_THAT(zeilen, SizeIs(2));
    EXPECT_THAT(Zellen(zeilen[0]),
                ElementsAre("31.12.2006", "-1.000,00", "1,1025", "-1.102,50", "-1.102,50", "-1.000,00"));
    EXPECT_THAT(Zellen(zeilen[1]), ElementsAre("31.12.2008", "1.102,50", "1", "1.102,50", "0,00", "102,50"));
}

TEST(Herleitungszeilen, OhneZinssatzWirdMitNullProzentGerechnet) {
    const auto reihe = Reihe({{"31.12.2006", -1000}, {"31.12.2008", -2}});
    const auto zeilen = Herleitungszeilen(reihe, Effektivmethode::isma, "");
    ASSERT_THAT(zeilen, SizeIs(2));
    EXPECT_THAT(Zellen(zeilen[1]),
                ElementsAre("31.12.2008", "-2,00", "1", "-2,00", "-1.002,00", "-1.002,00"));
}

TEST(Herleitungszeilen, EinZinssatzUnterEinsWirdAlsZahlGelesen) {
    // 1.005 ^ 1
    const auto zeilen = Herleitungszeilen(Reihe({{"01.01.2007", -1000}, {"01.01.2008", 1005}}),
                                          Effektivmethode::aidb360, ",50000");
    EXPECT_EQ(Zellen(zeilen[0])[2], "1,005");
}

TEST(Herleitungszeilen, EinFehlerLaesstDieZeilenDavor) {
    auto reihe = Reihe({{"31.12.2006", -1000}, {"31.12.2007", 5}, {"31.12.2008", 1102.5}});
    reihe[1].Tag = 32;
    EXPECT_THAT(Herleitungszeilen(reihe, Effektivmethode::pangv2000, "5,00000"), SizeIs(1));
    EXPECT_THAT(Herleitungszeilen({}, Effektivmethode::pangv2000, "5,00000"), IsEmpty());
}

TEST(Effektivzinsanzeige, SetztDieNullVorDasKomma) {
    EXPECT_EQ(Effektivzinsanzeige(",50000"), "0,50000");
    EXPECT_EQ(Effektivzinsanzeige("-,25000"), "-0,25000");
    EXPECT_EQ(Effektivzinsanzeige("1.234,56700"), "1.234,56700");
    EXPECT_EQ(Effektivzinsanzeige(""), "");
}

TEST(Herleitungsueberschrift, IstWortgleich) {
    EXPECT_EQ(herleitungsueberschrift,
              "Herleitung des Effektivzinssatzes: Der kumulierte Vermögensendwert = 0,00");
}

TEST(Effektivmethoden, HabenIhreListentexte) {
    EXPECT_THAT(effektivmethoden, ElementsAre("PAngV(alt)", "AIDB 360", "AIDB (ISMA)", "PAngV2000"));
    EXPECT_EQ(static_cast<int>(Effektivmethode::pangvAlt), 1);
    EXPECT_EQ(static_cast<int>(Effektivmethode::pangv2000), 4);
}

}  // namespace herleitung_test
}  // namespace zinfolio
