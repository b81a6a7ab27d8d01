#include "kern/staffel/satzliste.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "kern/staffel/beispielkonto.h"

namespace zinfolio {
namespace satzliste_test {

using testing::ElementsAre;
using testing::IsEmpty;
using Saetze = std::vector<Staffelsatz>;

class SatzlisteTest : public testing::Test {
  protected:
    Saetze saetze{Zahlung("01.01.2007", 1), Zahlung("01.02.2007", 2), Zahlung("01.03.2007", 3),
                  Zahlung("01.04.2007", 4), Zahlung("01.05.2007", 5)};
    const Saetze vorher = saetze;

    [[nodiscard]] std::vector<double> Betraege() const {
        std::vector<double> betraege;
        for (const Staffelsatz& satz : saetze)
            betraege.push_back(satz.Zahlbetrag);
        return betraege;
    }
    template <typename... Plaetze>
    Loeschung Loesche(Plaetze... plaetze) {
        return SaetzeLoeschen(saetze, std::array<std::size_t, sizeof...(plaetze)>{plaetze...});
    }
};

TEST_F(SatzlisteTest, DieUebrigenBehaltenIhreOrdnung) {
    Loesche(1U, 3U);
    EXPECT_THAT(Betraege(), ElementsAre(1, 3, 5));
}

TEST_F(SatzlisteTest, MarkierteInBeliebigerFolge) {
    Loesche(4U, 0U, 2U);
    EXPECT_THAT(Betraege(), ElementsAre(2, 4));
}

TEST_F(SatzlisteTest, AlleUndKeine) {
    const Loeschung keine = Loesche();
    EXPECT_EQ(saetze, vorher);
    EXPECT_THAT(keine.saetze, IsEmpty());
    Loesche(0U, 1U, 2U, 3U, 4U);
    EXPECT_THAT(saetze, IsEmpty());
}

TEST_F(SatzlisteTest, DieLoeschungNenntDiePlaetze) {
    const Loeschung loeschung = Loesche(3U, 1U);
    ASSERT_EQ(loeschung.saetze.size(), 2U);
    for (const auto& [platz, satz] : loeschung.saetze)
        EXPECT_EQ(satz, vorher[platz]) << platz;
}

TEST_F(SatzlisteTest, ZurueckgenommenIstAllesWieVorher) {
    LoeschungZuruecknehmen(saetze, Loesche(4U, 0U, 2U));
    EXPECT_EQ(saetze, vorher);
    LoeschungZuruecknehmen(saetze, Loesche(0U, 1U, 2U, 3U, 4U));
    EXPECT_EQ(saetze, vorher);
    LoeschungZuruecknehmen(saetze, Loesche(1U, 2U));
    EXPECT_EQ(saetze, vorher);
    LoeschungZuruecknehmen(saetze, Loeschung{});
    EXPECT_EQ(saetze, vorher);
}

TEST_F(SatzlisteTest, ZweiLoeschungenInUmgekehrterFolgeZurueckgenommen) {
    const Loeschung erste = Loesche(0U, 3U);
    const Loeschung zweite = Loesche(1U);
    EXPECT_THAT(Betraege(), ElementsAre(2, 5));
    LoeschungZuruecknehmen(saetze, zweite);
    EXPECT_THAT(Betraege(), ElementsAre(2, 3, 5));
    LoeschungZuruecknehmen(saetze, erste);
    EXPECT_EQ(saetze, vorher);
}

TEST_F(SatzlisteTest, InKuerzererListeKommenSieAnsEnde) {
    const Loeschung loeschung = Loesche(4U);
    saetze.resize(1);
    LoeschungZuruecknehmen(saetze, loeschung);
    EXPECT_THAT(Betraege(), ElementsAre(1, 5));
}

TEST_F(SatzlisteTest, EinZugangGehtAuchAusSortierterListe) {
    const Saetze zugang{Zahlung("15.02.2007", 7), Zahlung("15.01.2007", 8)};
    saetze.insert(saetze.begin() + 2, zugang[0]);
    saetze.insert(saetze.begin() + 1, zugang[1]);
    ZugangZuruecknehmen(saetze, zugang);
    EXPECT_EQ(saetze, vorher);
}

TEST_F(SatzlisteTest, VonGleichenGehtDerLetzteUndNurEinerJeZugang) {
    saetze.push_back(Zahlung("01.01.2007", 1));
    ZugangZuruecknehmen(saetze, Saetze{Zahlung("01.01.2007", 1)});
    EXPECT_EQ(saetze, vorher);
}

TEST_F(SatzlisteTest, EinGeaenderterZugangNimmtNichtsMit) {
    ZugangZuruecknehmen(saetze, Saetze{Zahlung("01.01.2007", 1.5), Zahlung("02.01.2007", 1)});
    EXPECT_EQ(saetze, vorher);
}

}  // namespace satzliste_test
}  // namespace zinfolio
