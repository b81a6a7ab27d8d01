#include "kern/dates/periodenzinsen.h"

#include <cmath>
#include <gtest/gtest.h>
#include <ostream>
#include <string>

#include "kern/dates/datumsliteral.h"

namespace zinfolio {
namespace periodenzinsen_test {

using enum Verzinsungsmethode;

/// The nearest cent of a hand calculation that lies at no half cent.
double Cent(double betrag) {
    return std::round(100 * betrag) / 100;
}

struct Periode {
    std::string von;
    std::string bis;
    Verzinsungsmethode methode;
    double betrag;
    float satz;
    int tage;
    double zins;

    friend std::ostream& operator<<(std::ostream& strom, const Periode& periode) {
        return strom << periode.betrag << " at " << periode.satz << " %, " << periode.von << " bis "
                     << periode.bis << ", method " << static_cast<int>(periode.methode);
    }
};

class PeriodenZinsenTest : public testing::TestWithParam<Periode> {};

TEST_P(PeriodenZinsenTest, GibtTageUndZins) {
    const auto& [von, bis, methode, betrag, satz, tage, zins] = GetParam();
    const auto ergebnis = PeriodenZinsen(Datum::Lesen(von), Datum::Lesen(bis), methode, {satz, betrag}, {});
    EXPECT_EQ(ergebnis.tage, tage);
    EXPECT_EQ(ergebnis.zins, Cent(zins));
}

TEST_P(PeriodenZinsenTest, EinBetragAnZweiterStelleTraegtDenselbenZins) {
    const auto& [von, bis, methode, betrag, satz, tage, zins] = GetParam();
    const auto ergebnis = PeriodenZinsen(Datum::Lesen(von), Datum::Lesen(bis), methode, {}, {satz, betrag});
    EXPECT_EQ(ergebnis.tage, tage);
    EXPECT_EQ(ergebnis.zins, Cent(zins));
}

TEST_P(PeriodenZinsenTest, SchuldTraegtDenGegenzins) {
    const auto& [von, bis, methode, betrag, satz, tage, zins] = GetParam();
    const auto ergebnis = PeriodenZinsen(Datum::Lesen(von), Datum::Lesen(bis), methode, {satz, -betrag}, {});
    EXPECT_EQ(ergebnis.zins, Cent(-zins));
}

INSTANTIATE_TEST_SUITE_P(
    InEinemGemeinjahr, PeriodenZinsenTest,
    testing::Values(Periode{"01.02.2007", "01.05.2007", deutsch, 10000, 3, 90, 90 * 300.0 / 360},
                    Periode{"01.02.2007", "01.05.2007", englisch, 10000, 3, 89, 89 * 300.0 / 365},
                    Periode{"01.02.2007", "01.05.2007", franzoesisch, 10000, 3, 89, 89 * 300.0 / 360},
                    Periode{"01.02.2007", "01.05.2007", dreissig365, 10000, 3, 90, 90 * 300.0 / 365},
                    Periode{"01.02.2007", "01.05.2007", kalender365, 10000, 3, 89, 89 * 300.0 / 365}));

INSTANTIATE_TEST_SUITE_P(
    InEinemSchaltjahr, PeriodenZinsenTest,
    testing::Values(Periode{"01.02.2008", "01.05.2008", deutsch, 10000, 3, 90, 90 * 300.0 / 360},
                    Periode{"01.02.2008", "01.05.2008", englisch, 10000, 3, 90, 90 * 300.0 / 366},
                    Periode{"01.02.2008", "01.05.2008", franzoesisch, 10000, 3, 90, 90 * 300.0 / 360},
                    Periode{"01.02.2008", "01.05.2008", dreissig365, 10000, 3, 90, 90 * 300.0 / 365},
                    Periode{"01.02.2008", "01.05.2008", kalender365, 10000, 3, 90, 90 * 300.0 / 365},
                    Periode{"01.01.2008", "31.12.2008", englisch, 10000, 3, 365, 365 * 300.0 / 366}));

INSTANTIATE_TEST_SUITE_P(
    UeberEinJahresende, PeriodenZinsenTest,
    testing::Values(
        Periode{"15.12.2007", "15.01.2008", deutsch, 10000, 3, 30, 30 * 300.0 / 360},
        Periode{"15.12.2007", "15.01.2008", englisch, 10000, 3, 31, 16 * 300.0 / 365 + 15 * 300.0 / 366},
        Periode{"15.12.2007", "15.01.2008", franzoesisch, 10000, 3, 31, 31 * 300.0 / 360},
        Periode{"15.12.2007", "15.01.2008", dreissig365, 10000, 3, 30, 30 * 300.0 / 365},
        Periode{"15.12.2007", "15.01.2008", kalender365, 10000, 3, 31, 31 * 300.0 / 365},
        Periode{"15.12.2008", "15.01.2009", englisch, 10000, 3, 31, 16 * 300.0 / 366 + 15 * 300.0 / 365},
        Periode{"31.12.2007", "01.01.2008", englisch, 366000, 3, 1, 1 * 10980.0 / 366},
        Periode{"15.12.2007", "31.12.2007", englisch, 365000, 3, 16, 16 * 10950.0 / 365}));

// At 100 % the interest of a year is the amount, so these are the published year fractions in millionths.
// Source: the ISDA memo "EMU and Market Conventions" (1998), as carried by the QuantLib test suite; across a
// year's end its cut lies at 01.01., ours at 31.12., which moves one day.
INSTANTIATE_TEST_SUITE_P(
    VeroeffentlichteJahresbruchteile, PeriodenZinsenTest,
    testing::Values(Periode{"01.02.1999", "01.07.1999", englisch, 1e6, 100, 150, 410958.904110},
                    Periode{"30.01.2000", "30.06.2000", englisch, 1e6, 100, 152, 415300.546448},
                    Periode{"15.08.2002", "15.07.2003", englisch, 1e6, 100, 334, 915068.493151},
                    Periode{"01.11.2003", "01.05.2004", englisch, 1e6, 100, 182, 60e6 / 365 + 122e6 / 366},
                    Periode{"01.07.1999", "01.07.2000", englisch, 1e6, 100, 366, 183e6 / 365 + 183e6 / 366},
                    Periode{"15.07.2003", "15.01.2004", englisch, 1e6, 100, 184, 169e6 / 365 + 15e6 / 366}));

// Source: the function reference of two spreadsheet programs, year fractions.
INSTANTIATE_TEST_SUITE_P(
    JahresbruchteileAusTabellenkalkulationen, PeriodenZinsenTest,
    testing::Values(Periode{"15.12.2009", "30.06.2010", deutsch, 1e6, 100, 195, 541666.666667},
                    Periode{"15.12.2009", "30.06.2010", englisch, 1e6, 100, 197, 539726.027397},
                    Periode{"15.12.2009", "30.06.2010", franzoesisch, 1e6, 100, 197, 547222.222222},
                    Periode{"15.12.2009", "30.06.2010", kalender365, 1e6, 100, 197, 539726.027397},
                    Periode{"01.01.2012", "30.07.2012", deutsch, 1e6, 100, 209, 580555.56},
                    Periode{"01.01.2012", "30.07.2012", englisch, 1e6, 100, 211, 576502.73},
                    Periode{"01.01.2012", "30.07.2012", franzoesisch, 1e6, 100, 211, 586111.11},
                    Periode{"01.01.2012", "30.07.2012", kalender365, 1e6, 100, 211, 578082.19}));

// Exercises of a mathematics forum, on a year of 360 days; periods of that many days on months of 30 days.
INSTANTIATE_TEST_SUITE_P(VeroeffentlichteAufgaben, PeriodenZinsenTest,
                         testing::Values(Periode{"01.01.2007", "07.08.2007", deutsch, 72000, 5, 216, 2160},
                                         Periode{"01.01.2007", "25.05.2007", deutsch, 153000, 4, 144, 2448},
                                         Periode{"01.01.2007", "09.03.2007", deutsch, 54000, 7.5F, 68, 765},
                                         Periode{"01.01.2007", "08.03.2007", deutsch, 48000, 6, 67, 536}));

// The cut is made once, at the first year's end; all days behind it go on the length of the last year.
INSTANTIATE_TEST_SUITE_P(
    UeberMehrereJahresenden, PeriodenZinsenTest,
    testing::Values(
        // 2008 lies inside with its 366 days, and counts by 2010's 365: three years and a day.
        Periode{"31.12.2007", "31.12.2010", englisch, 36500, 100, 1096, 1096 * 100.0},
        Periode{"31.12.2005", "31.12.2008", englisch, 36600, 100, 1096, 1096 * 100.0},
        Periode{"01.07.2006", "01.07.2009", englisch, 10000, 3, 1096, 183 * 300.0 / 365 + 913 * 300.0 / 365},
        // From a leap year over a common year into a second one.
        Periode{"01.07.2008", "01.07.2010", englisch, 10000, 3, 730, 183 * 300.0 / 366 + 547 * 300.0 / 365},
        // From a common year over a leap year into a common one, and into a leap year over three common ones.
        Periode{"01.07.2007", "01.07.2009", englisch, 1e6, 100, 731, 183e6 / 365 + 548e6 / 365},
        Periode{"01.07.2004", "01.07.2008", englisch, 1e6, 100, 1461, 183e6 / 366 + 1278e6 / 366}));

// Dates in the wrong order count days backwards; the cut stays at the end of the year of the first date
// given.
INSTANTIATE_TEST_SUITE_P(
    Vertauscht, PeriodenZinsenTest,
    testing::Values(Periode{"01.05.2007", "01.02.2007", deutsch, 10000, 3, -90, -90 * 300.0 / 360},
                    Periode{"01.05.2007", "01.02.2007", englisch, 10000, 3, -89, -89 * 300.0 / 365},
                    Periode{"01.05.2007", "01.02.2007", franzoesisch, 10000, 3, -89, -89 * 300.0 / 360},
                    Periode{"01.05.2007", "01.02.2007", dreissig365, 10000, 3, -90, -90 * 300.0 / 365},
                    Periode{"01.05.2007", "01.02.2007", kalender365, 10000, 3, -89, -89 * 300.0 / 365},
                    // 351 days on to 31.12.2008, 382 back from there.
                    Periode{"15.01.2008", "15.12.2007", englisch, 1e6, 100, -31, 351e6 / 366 - 382e6 / 365}));

}  // namespace periodenzinsen_test
}  // namespace zinfolio
