// Accounts that take several turns: debit, limits, dates out of order.
#include <gtest/gtest.h>

#include "kern/staffel/beispielkonto.h"
#include "kern/staffel/staffelberechnung.h"

namespace zinfolio {
namespace kontoverlauf_test {

using enum Verzinsungsmethode;
using Saetze = std::vector<Staffelsatz>;

Saetze Gerechnet(Saetze saetze, Verzinsungsmethode methode = deutsch) {
    Staffelberechnung(saetze, methode);
    return saetze;
}

/// The first row's interest of an amount that lies from 01.01. to 31.03.2007, 89 days of 360.
double Quartalszins(double betrag, std::int16_t zweitzinsart) {
    Konditionen kondition = beispielkonditionen;
    kondition.Zweitzinsart = zweitzinsart;
    return Gerechnet(
               {Kondition("01.01.2007", kondition), Zahlung("01.01.2007", betrag), Termin("31.03.2007")})[1]
        .Periodenzins;
}

TEST(Kontoverlauf, SollzinsenSindNegativUndMindernDenStand) {
    // 500 at 8 % and 500 at 12 %: 9,889 + 14,833 = 24,72.
    const Saetze saetze = Gerechnet(
        {Kondition("01.01.2007", beispielkonditionen), Zahlung("01.01.2007", -1000), Termin("31.03.2007")});
    EXPECT_EQ(saetze[1].Periodenzins, -24.72);
    EXPECT_EQ(saetze[1].Kumulzins, -24.72);
    EXPECT_EQ(saetze[2].Zinsgutschrift, -24.72);
    EXPECT_EQ(saetze[2].Kontostand, -1000 - 24.72);
}

TEST(Kontoverlauf, GenauAnDerLinieGiltDerZweiteSatz) {
    EXPECT_EQ(Quartalszins(9999.99, 1), 49.44);  // 2 %
    EXPECT_EQ(Quartalszins(10000, 1), 74.17);    // 3 % on the whole
    EXPECT_EQ(Quartalszins(10000, 2), 49.44);    // 3 % on nothing
    EXPECT_EQ(Quartalszins(10000, 0), 49.44);    // an old row is split as by 2
    EXPECT_EQ(Quartalszins(-499.99, 1), -9.89);  // 8 %
    EXPECT_EQ(Quartalszins(-500, 1), -14.83);    // 12 % on the whole
    EXPECT_EQ(Quartalszins(-500, 2), -9.89);
    EXPECT_EQ(Quartalszins(-500, 0), -9.89);
}

TEST(Kontoverlauf, BeideZweitzinsartenUeberDerLinie) {
    EXPECT_EQ(Quartalszins(15000, 1), 111.25);
    EXPECT_EQ(Quartalszins(15000, 2), 86.53);
    EXPECT_EQ(Quartalszins(15000, 0), 86.53);
    EXPECT_EQ(Quartalszins(-1000, 1), -29.67);
    EXPECT_EQ(Quartalszins(-1000, 2), -24.72);
    EXPECT_EQ(Quartalszins(-1000, 0), -24.72);
}

TEST(Kontoverlauf, HalbeCentGehenAufBeidenSeitenNachOben) {
    // 12,5 % is an exact eighth: 1 for a year of 360 days bears 0,125.
    const auto jahreszins = [](double betrag) {
        return Gerechnet({Kondition("01.01.2007", Einheitszins(12.5F)), Zahlung("01.01.2007", betrag),
                          Termin("01.01.2008")})[1]
            .Periodenzins;
    };
    EXPECT_EQ(jahreszins(1), 0.13);
    EXPECT_EQ(jahreszins(-1), -0.12);
    EXPECT_EQ(jahreszins(0.08), 0.01);
    EXPECT_EQ(jahreszins(-0.03), 0);
}

TEST(Kontoverlauf, SatzUndQuotientSindVierByteBreit) {
    // A year of 100 000 000: 3,5 % as 4-byte quotient is 0,0350000001490..., 3,3 % is 0,0329999998211...
    const auto jahreszins = [](float satz) {
        return Gerechnet({Kondition("01.01.2007", Einheitszins(satz)), Zahlung("01.01.2007", 100000000),
                          Termin("01.01.2008")})[1]
            .Periodenzins;
    };
    EXPECT_EQ(jahreszins(3.5F), 3500000.01);
    EXPECT_EQ(jahreszins(3.3F), 3299999.98);
    EXPECT_EQ(jahreszins(12.5F), 12500000);
}

TEST(Kontoverlauf, GerundetWirdEinmalJeZeileAufDerSummeBeiderTeile) {
    const Konditionen kondition{
        .Gutzins1 = 0.78125F, .Gutzins2 = 0.78125F, .Guthabenlinie = 1, .Zweitzinsart = 2};
    // 0,78125 % is an exact 1/128: half a year bears 0,0039 on each part, which alone would round to nothing.
    const Saetze saetze =
        Gerechnet({Kondition("01.01.2007", kondition), Zahlung("01.01.2007", 2), Termin("01.07.2007")});
    EXPECT_EQ(saetze[1].Periodenzins, 0.01);
}

TEST(Kontoverlauf, NulldurchgangWirktErstInDerNaechstenZeile) {
    const Saetze saetze =
        Gerechnet({Kondition("30.12.2006", beispielkonditionen), Zahlung("30.12.2006", -400),
                   Zahlung("30.03.2007", 1000), Termin("30.06.2007")});
    EXPECT_EQ(saetze[1].Zinstage, 90);
    EXPECT_EQ(saetze[1].Periodenzins, -8) << "400 at 8 % for a quarter";
    EXPECT_EQ(saetze[2].Kontostand, 600);
    EXPECT_EQ(saetze[2].Periodenzins, 3) << "600 at 2 % for a quarter";
    EXPECT_EQ(saetze[2].Kumulzins, -5);
    EXPECT_EQ(saetze[3].Kontostand, 595);
}

TEST(Kontoverlauf, ReiheAusserDerOrdnungZaehltRueckwaerts) {
    const Saetze saetze = Gerechnet(
        {Kondition("01.01.2007", Einheitszins(5)), Zahlung("01.07.2007", 1000), Termin("01.01.2007")});
    EXPECT_EQ(saetze[1].Zinstage, -180);
    EXPECT_EQ(saetze[1].Periodenzins, -25);
    EXPECT_EQ(saetze[2].Kontostand, 975);
}

TEST(Kontoverlauf, AbschlussVorDerErstenZahlungErgibtEinLeeresKonto) {
    const Saetze saetze = Gerechnet({Kondition("01.01.2007", Einheitszins(5)), Termin("15.02.2007")});
    EXPECT_EQ(saetze[0].Zinstage, 44);
    EXPECT_EQ(saetze[0].Periodenzins, 0);
    EXPECT_EQ(saetze[1].Kontostand, 0);
    EXPECT_EQ(saetze[1].Zinsgutschrift, 0);
}

TEST(Kontoverlauf, EinLeeresKontoIstKeinFehler) {
    EXPECT_NO_THROW(Staffelberechnung({}, deutsch));
}

}  // namespace kontoverlauf_test
}  // namespace zinfolio
