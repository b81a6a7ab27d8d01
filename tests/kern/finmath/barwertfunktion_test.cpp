#include "kern/finmath/barwertfunktion.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "kern/finmath/bewertung.h"
#include "kern/finmath/effektivsuche.h"
#include "kern/finmath/erzeugtereihen.h"
#include "kern/finmath/reiheauswerten.h"
#include "kern/finmath/reihen.h"

namespace zinfolio {
namespace barwertfunktion_test {

TEST(Barwertfunktion, NachbarnAmSelbenTagTeilenEinePotenz) {
    const auto reihe =
        Reihe({{"01.01.2007", -1000}, {"01.07.2007", 10}, {"01.07.2007", 20}, {"01.01.2008", 1100}});
    EXPECT_EQ(Barwertfunktion(reihe, Effektivmethode::aidb360).Potenzen(), 3U);
    EXPECT_EQ(Barwertfunktion(reihe, Effektivmethode::isma).Potenzen(), 3U);
}

TEST(Barwertfunktion, MethodeEinsPotenziertNurJeJahr) {
    // Rests of 1, 0, 0 and 0 whole years, and the whole span.
    const auto reihe =
        Reihe({{"01.01.2007", -1000}, {"01.07.2007", 10}, {"01.10.2007", 20}, {"01.01.2008", 1100}});
    EXPECT_EQ(Barwertfunktion(reihe, Effektivmethode::pangvAlt).Potenzen(), 3U);
}

TEST(Barwertfunktion, EinZinssatzDerKeineZahlIstScheitert) {
    const Barwertfunktion barwert(Reihe({{"01.01.2007", 1000}}), Effektivmethode::aidb360);
    EXPECT_EQ(barwert(5), 1000);
    EXPECT_THROW(static_cast<void>(barwert(std::numeric_limits<double>::quiet_NaN())), Rechenfehler);
    EXPECT_THROW(static_cast<void>(barwert(std::numeric_limits<double>::infinity())), Rechenfehler);
}

TEST(Barwertfunktion, LeereReiheUndTageDieEsNichtGibt) {
    EXPECT_THROW(Barwertfunktion({}, Effektivmethode::isma), Rechenfehler);
    auto reihe = Reihe({{"01.01.2007", -1000}, {"01.01.2008", 1100}});
    reihe[1].Tag = 32;
    EXPECT_THROW(Barwertfunktion(reihe, Effektivmethode::isma), Datumsfehler);
}

class ReihensucheTest : public testing::TestWithParam<Effektivmethode> {};

TEST_P(ReihensucheTest, BarwertBeimGefundenenZinssatzIstFastNull) {
    Reihenerzeuger erzeuger(3201);
    int genau = 0;
    for (int runde = 0; runde < 500; ++runde) {
        const auto reihe = erzeuger.Geordnet(40);
        const auto zinssatz = ReiheAuswerten(reihe, GetParam()).Zinssatz;
        if (!zinssatz) continue;
        const double barwert = BarwertRechnen(reihe, GetParam(), *zinssatz);
        ASSERT_LE(std::fabs(barwert), 1) << runde;
        genau += std::fabs(barwert) < 0.00001 ? 1 : 0;
    }
    EXPECT_GT(genau, 200);
}

TEST_P(ReihensucheTest, EineNullZwischenZweiZahlungenAendertDenZinssatzNicht) {
    Reihenerzeuger erzeuger(3202);
    for (int runde = 0; runde < 300; ++runde) {
        const auto reihe = erzeuger.Geordnet(20);
        const auto platz = static_cast<std::size_t>(erzeuger.Zahl(1, static_cast<int>(reihe.size()) - 1));
        auto mitNull = reihe;
        Reihensatz null = reihe[platz];
        null.Reihenbetrag = 0;
        mitNull.insert(mitNull.begin() + static_cast<std::ptrdiff_t>(platz), null);
        const Reihenauswertung ohne = ReiheAuswerten(reihe, GetParam());
        const Reihenauswertung mit = ReiheAuswerten(mitNull, GetParam());
        ASSERT_EQ(mit.Zinssatz, ohne.Zinssatz) << runde;
        ASSERT_EQ(mit.Meldung, ohne.Meldung) << runde;
    }
}

INSTANTIATE_TEST_SUITE_P(AlleMethoden, ReihensucheTest, testing::ValuesIn(alleMethoden));

TEST(Reihensuche, MethodenZweiUndVierStimmenAufGanzenJahrenUeberein) {
    Reihenerzeuger erzeuger(3203);
    int gefunden = 0;
    for (int runde = 0; runde < 500; ++runde) {
        const auto reihe = erzeuger.GanzeJahre(25);
        const Reihenauswertung aidb = ReiheAuswerten(reihe, Effektivmethode::aidb360);
        const Reihenauswertung pangv = ReiheAuswerten(reihe, Effektivmethode::pangv2000);
        ASSERT_EQ(aidb.Zinssatz, pangv.Zinssatz) << runde;
        ASSERT_EQ(aidb.Effektivzins, pangv.Effektivzins) << runde;
        gefunden += aidb.Zinssatz ? 1 : 0;
    }
    EXPECT_GT(gefunden, 200);
}

}  // namespace barwertfunktion_test
}  // namespace zinfolio
