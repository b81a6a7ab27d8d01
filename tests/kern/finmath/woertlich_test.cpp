// The fast way against the slow and obvious one: the same bits, the same tables, the same failures.

#include "kern/finmath/woertlich.h"

#include <bit>
#include <cstdint>
#include <gtest/gtest.h>

#include "kern/finmath/barwertfunktion.h"
#include "kern/finmath/erzeugtereihen.h"
#include "kern/finmath/reiheauswerten.h"
#include "kern/finmath/reihen.h"

namespace zinfolio {
namespace woertlich_test {

std::optional<std::uint64_t> Bits(const std::optional<double>& wert) {
    return wert ? std::optional(std::bit_cast<std::uint64_t>(*wert)) : std::nullopt;
}

/// The tables as their files hold them.
std::vector<std::byte> Dateibytes(const std::optional<std::vector<Ergebnissatz>>& tabelle) {
    std::vector<std::byte> bytes;
    for (const Ergebnissatz& satz : tabelle.value_or(std::vector<Ergebnissatz>())) {
        std::array<std::byte, Ergebnissatz::Satzlaenge> zeile{};
        satz.Schreiben(zeile);
        bytes.insert(bytes.end(), zeile.begin(), zeile.end());
    }
    return bytes;
}

class WoertlichTest : public testing::TestWithParam<Effektivmethode> {
  protected:
    /// How many of the compared searches found a rate.
    int gefunden = 0;

    void VergleicheSuche(const std::vector<Reihensatz>& reihe) {
        const Reihenauswertung schnell = ReiheAuswerten(reihe, GetParam());
        const woertlich::Suche langsam = woertlich::Suchen(reihe, GetParam());
        ASSERT_EQ(Bits(schnell.Zinssatz), Bits(langsam.zinssatz));
        ASSERT_EQ(schnell.Meldung, langsam.meldung);
        gefunden += schnell.Zinssatz ? 1 : 0;
    }

    void VergleicheWerte(const std::vector<Reihensatz>& reihe, double zinssatz, bool tabellen) {
        const Reihenauswertung schnell =
            ReiheAuswerten(reihe, GetParam(), zinssatz, tabellen ? Tabellen::schreiben : Tabellen::keine);
        const woertlich::Bewertung langsam = woertlich::Bewerten(reihe, GetParam(), zinssatz, tabellen);
        ASSERT_EQ(Bits(schnell.Endwert), Bits(langsam.endwert)) << zinssatz;
        ASSERT_EQ(Bits(schnell.Barwert), Bits(langsam.barwert)) << zinssatz;
        ASSERT_EQ(schnell.Vendwertberechnung.has_value(), langsam.vendwertberechnung.has_value());
        ASSERT_EQ(schnell.Barwertberechnung.has_value(), langsam.barwertberechnung.has_value());
        ASSERT_EQ(Dateibytes(schnell.Vendwertberechnung), Dateibytes(langsam.vendwertberechnung)) << zinssatz;
        ASSERT_EQ(Dateibytes(schnell.Barwertberechnung), Dateibytes(langsam.barwertberechnung)) << zinssatz;
    }
};

TEST_P(WoertlichTest, SucheGeordneterReihen) {
    Reihenerzeuger erzeuger(3101);
    for (int runde = 0; runde < 1500; ++runde)
        ASSERT_NO_FATAL_FAILURE(VergleicheSuche(erzeuger.Geordnet(60))) << runde;
    EXPECT_GT(gefunden, 300);
}

TEST_P(WoertlichTest, SucheUngeordneterReihen) {
    Reihenerzeuger erzeuger(3102);
    for (int runde = 0; runde < 1500; ++runde)
        ASSERT_NO_FATAL_FAILURE(VergleicheSuche(erzeuger.Ungeordnet(12))) << runde;
    EXPECT_GT(gefunden, 100);
}

TEST_P(WoertlichTest, SucheLangerReihen) {
    Reihenerzeuger erzeuger(3103);
    for (int runde = 0; runde < 20; ++runde)
        ASSERT_NO_FATAL_FAILURE(VergleicheSuche(erzeuger.Geordnet(1500))) << runde;
}

TEST_P(WoertlichTest, WerteUndTabellen) {
    Reihenerzeuger erzeuger(3104);
    for (int runde = 0; runde < 3000; ++runde) {
        const auto reihe = runde % 2 == 0 ? erzeuger.Geordnet(20) : erzeuger.Ungeordnet(8);
        ASSERT_NO_FATAL_FAILURE(VergleicheWerte(reihe, erzeuger.Zinssatz(), runde % 3 > 0)) << runde;
    }
}

TEST_P(WoertlichTest, BarwertfunktionHatDieBitsDesEinzelnenBarwerts) {
    Reihenerzeuger erzeuger(3105);
    for (int runde = 0; runde < 1000; ++runde) {
        const auto reihe = erzeuger.GanzeJahre(30);
        const double zinssatz = erzeuger.Zinssatz();
        const auto erwartet = woertlich::Barwert(reihe, GetParam(), zinssatz);
        const Barwertfunktion barwert(reihe, GetParam());
        if (erwartet) {
            ASSERT_EQ(Bits(barwert(zinssatz)), Bits(erwartet)) << runde << ", " << zinssatz;
        } else {
            ASSERT_THROW(static_cast<void>(barwert(zinssatz)), Rechenfehler) << runde << ", " << zinssatz;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(AlleMethoden, WoertlichTest, testing::ValuesIn(alleMethoden));

}  // namespace woertlich_test
}  // namespace zinfolio
