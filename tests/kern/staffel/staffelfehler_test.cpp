// Calculations that end in a fault: the rows before it are finished, it and the later ones are untouched.
#include <cmath>
#include <gtest/gtest.h>

#include "kern/dates/tage30.h"
#include "kern/grund/rechenfehler.h"
#include "kern/staffel/beispielkonto.h"
#include "kern/staffel/staffelberechnung.h"

namespace zinfolio {
namespace staffelfehler_test {

using enum Verzinsungsmethode;
using Saetze = std::vector<Staffelsatz>;

/// Six rows, 30 days apart from row 2 on; every row but the first two changes when it is calculated.
Saetze SechsZeilen() {
    return {
        Kondition("01.01.2007", Einheitszins(5)), Zahlung("01.01.2007", 1000), Zahlung("01.02.2007", 1000),
        Kondition("01.03.2007", Einheitszins(6)), Zahlung("01.04.2007", 1000), Termin("01.05.2007")};
}

template <typename Fehler>
void ScheitertNach(std::size_t fertige, const Saetze& vorher, const Saetze& ganz,
                   Verzinsungsmethode methode) {
    Saetze saetze = vorher;
    EXPECT_THROW(Staffelberechnung(saetze, methode), Fehler);
    for (std::size_t i = 0; i < saetze.size(); ++i)
        EXPECT_EQ(saetze[i], i < fertige ? ganz[i] : vorher[i]) << "row " << i + 1;
}

class BeschaedigtesDatumTest : public testing::TestWithParam<Verzinsungsmethode> {};

TEST_P(BeschaedigtesDatumTest, TrifftDieZeileDavorDieBisZuIhmZaehlt) {
    Saetze ganz = SechsZeilen();
    Staffelberechnung(ganz, GetParam());
    for (std::size_t k = 1; k < 6; ++k) {
        Saetze vorher = SechsZeilen();
        vorher[k] = MitDatumstext(vorher[k], "31.02.2007");
        ScheitertNach<Datumsfehler>(k - 1, vorher, ganz, GetParam());
    }
}

TEST_P(BeschaedigtesDatumTest, InDerErstenZeileBleibtAllesUnberuehrt) {
    Saetze vorher = SechsZeilen();
    vorher[0] = MitDatumstext(vorher[0], "01-01-2007");
    ScheitertNach<Datumsfehler>(0, vorher, vorher, GetParam());
}

TEST_P(BeschaedigtesDatumTest, NullbytesSindKeinDatum) {
    Saetze ganz = SechsZeilen();
    Staffelberechnung(ganz, GetParam());
    Saetze vorher = SechsZeilen();
    vorher[3].Satzdatum = {};
    ScheitertNach<Datumsfehler>(2, vorher, ganz, GetParam());
}

INSTANTIATE_TEST_SUITE_P(AlleMethoden, BeschaedigtesDatumTest,
                         testing::Values(deutsch, englisch, franzoesisch, dreissig365, kalender365));

TEST(BeschaedigtesDatum, EndetNurBeimZaehlenMitTage30ImFehlerDerDasProgrammBeendet) {
    for (const auto methode : {deutsch, dreissig365}) {
        Saetze saetze = SechsZeilen();
        saetze[3] = MitDatumstext(saetze[3], "31.02.2007");
        EXPECT_THROW(Staffelberechnung(saetze, methode), Tage30Fehler);
    }
    for (const auto methode : {englisch, franzoesisch, kalender365}) {
        Saetze saetze = SechsZeilen();
        saetze[3] = MitDatumstext(saetze[3], "31.02.2007");
        try {
            Staffelberechnung(saetze, methode);
            ADD_FAILURE() << "no fault";
        } catch (const Tage30Fehler&) {
            ADD_FAILURE() << "calendar days do not go through Tage30";
        } catch (const Datumsfehler&) {
            SUCCEED();
        }
    }
}

TEST(BeschaedigtesDatum, AnFremderZeileTrifftDieZeileDavor) {
    Saetze ganz = SechsZeilen();
    Staffelberechnung(ganz, franzoesisch);
    Saetze vorher = SechsZeilen();
    vorher[3].Zahlungsart = 9;
    vorher[3] = MitDatumstext(vorher[3], "irgendwas");
    ScheitertNach<Datumsfehler>(2, vorher, ganz, franzoesisch);
}

TEST(Ueberlauf, DesStandes) {
    // Twice 1e308 on one day: the first row has no days and is finished, the sum is beyond 8-byte floats.
    const Saetze vorher{Kondition("01.01.2007", Einheitszins(5)), Zahlung("01.01.2007", 1e308),
                        Zahlung("01.01.2007", 1e308), Termin("31.03.2007")};
    Saetze ganz = vorher;
    ganz[1].kondition = Einheitszins(5);
    ganz[1].Kontostand = 1e308;
    ScheitertNach<Rechenfehler>(2, vorher, ganz, deutsch);
}

TEST(Ueberlauf, DerPeriodenzinsen) {
    // 1e308 at 100 % times 90 days.
    const Saetze vorher{Kondition("01.01.2007", Einheitszins(100)), Zahlung("01.01.2007", 1e308),
                        Termin("01.04.2007")};
    for (const auto methode : {deutsch, englisch, franzoesisch, dreissig365, kalender365})
        ScheitertNach<Rechenfehler>(1, vorher, vorher, methode);
}

TEST(Ueberlauf, TrifftErstDieZeileDieUeberlaeuft) {
    // A day at 50 % of almost all that 8 bytes hold: balance and interest are numbers yet, their sum is not.
    const Saetze vorher{Kondition("01.01.2007", Einheitszins(50)), Zahlung("01.01.2007", 1.797e308),
                        Termin("02.01.2007")};
    Saetze ganz = vorher;
    const double zins = std::floor(100 * (1.797e308 * 0.5 / 360) + 0.5) / 100;
    ASSERT_TRUE(std::isinf(1.797e308 + zins));
    ganz[1].kondition = Einheitszins(50);
    ganz[1].Kontostand = 1.797e308;
    ganz[1].Zinstage = 1;
    ganz[1].Periodenzins = zins;
    ganz[1].Kumulzins = zins;
    ScheitertNach<Rechenfehler>(2, vorher, ganz, deutsch);
}

TEST(Ueberlauf, ImSoll) {
    const Saetze vorher{Kondition("01.01.2007", Einheitszins(100)), Zahlung("01.01.2007", -1e308),
                        Termin("01.04.2007")};
    ScheitertNach<Rechenfehler>(1, vorher, vorher, deutsch);
}

TEST(Ueberlauf, HarmloseGroesseDavorGehtDurch) {
    Saetze saetze{Kondition("01.01.2007", Einheitszins(50)), Zahlung("01.01.2007", 1e300),
                  Termin("01.01.2008")};
    Staffelberechnung(saetze, deutsch);
    EXPECT_DOUBLE_EQ(saetze[2].Kontostand, 1.5e300);
}

TEST(ErsteZeile, OhneKonditionIstEinFehler) {
    const Saetze mitZahlung{Zahlung("01.01.2007", 1000), Kondition("02.01.2007", Einheitszins(5)),
                            Termin("31.03.2007")};
    ScheitertNach<Rechenfehler>(0, mitZahlung, mitZahlung, deutsch);
    const Saetze mitTermin{Termin("31.12.2006"), Kondition("01.01.2007", Einheitszins(5)),
                           Zahlung("01.01.2007", 1000)};
    ScheitertNach<Rechenfehler>(0, mitTermin, mitTermin, deutsch);
}

}  // namespace staffelfehler_test
}  // namespace zinfolio
