// What the calculation writes into a row of each kind.
#include "kern/staffel/staffelberechnung.h"

#include <gtest/gtest.h>

#include "kern/staffel/beispielkonto.h"

namespace zinfolio {
namespace staffelberechnung_test {

using enum Verzinsungsmethode;
using Saetze = std::vector<Staffelsatz>;

Saetze Gerechnet(Saetze saetze, Verzinsungsmethode methode = deutsch) {
    Staffelberechnung(saetze, methode);
    return saetze;
}

/// A row with numbers in every calculated field, as a second calculation over the same file would meet it.
Staffelsatz Vorbelegt(Staffelsatz satz) {
    satz.Zinstage = 99;
    satz.Periodenzins = 98;
    satz.Kumulzins = 97;
    satz.Zinsgutschrift = 77;
    satz.Kontostand = 95;
    return satz;
}

TEST(Staffelberechnung, BeispielAufDenCent) {
    // 10 000 at 2 % and 5 000 at 3 % for 89 days: 49,444 + 37,083 = 86,53.
    const Saetze saetze = Gerechnet(Beispielstaffel());

    Staffelsatz kondition = Beispielstaffel()[0];
    EXPECT_EQ(saetze[0], kondition) << "no days, no balance: nothing changes";

    Staffelsatz zahlung = Beispielstaffel()[1];
    zahlung.kondition = beispielkonditionen;
    zahlung.Zinstage = 89;
    zahlung.Periodenzins = 86.53;
    zahlung.Kumulzins = 86.53;
    zahlung.Kontostand = 15000;
    EXPECT_EQ(saetze[1], zahlung);

    Staffelsatz termin = Beispielstaffel()[2];
    termin.kondition = beispielkonditionen;
    termin.Zinsgutschrift = 86.53;
    termin.Kontostand = 15000 + 86.53;
    EXPECT_EQ(saetze[2], termin);
}

TEST(Staffelberechnung, DieLetzteZeileHatKeineTageUndKeineZinsen) {
    const Saetze saetze = Gerechnet({Kondition("01.01.2007", Einheitszins(5)), Zahlung("01.01.2007", 1000),
                                     Vorbelegt(Zahlung("01.07.2007", 500))});
    EXPECT_EQ(saetze[2].Zinstage, 0);
    EXPECT_EQ(saetze[2].Periodenzins, 0);
    EXPECT_EQ(saetze[2].Kumulzins, 25) << "half a year of 1 000, not credited";
    EXPECT_EQ(saetze[2].Zinsgutschrift, 0);
    EXPECT_EQ(saetze[2].Kontostand, 1500);
}

TEST(Zahlungszeilen, UeberschreibenAlleErgebnisfelder) {
    Saetze saetze = Beispielstaffel();
    saetze[1] = Vorbelegt(saetze[1]);
    saetze[1].Kumulzins = 0;  // the first row looks at it, see below
    EXPECT_EQ(Gerechnet(saetze), Gerechnet(Beispielstaffel()));
}

TEST(Zahlungszeilen, LassenTextSchluesselUndReservefeldStehen) {
    Saetze saetze = Beispielstaffel();
    saetze[1] = Zahlung("01.01.2007", 15000, "Anlage");
    saetze[1].Reservefeld = 4711;
    const Staffelsatz zeile = Gerechnet(saetze)[1];
    EXPECT_EQ(zeile.Zahlungstext.Getrimmt(), "Anlage");
    EXPECT_EQ(zeile.Sortierschluessel.Roh(), "20070101  ");
    EXPECT_EQ(zeile.Reservefeld, 4711);
    EXPECT_EQ(zeile.Zahlbetrag, 15000);
}

TEST(Zahlungszeilen, ZweiAnEinemTagVerzinsenDenStandNachBeiden) {
    const Saetze saetze = Gerechnet({Kondition("01.01.2007", Einheitszins(5)), Zahlung("01.02.2007", 1000),
                                     Zahlung("01.02.2007", 800), Termin("01.08.2007")});
    EXPECT_EQ(saetze[0].Zinstage, 30);
    EXPECT_EQ(saetze[1].Zinstage, 0);
    EXPECT_EQ(saetze[1].Periodenzins, 0);
    EXPECT_EQ(saetze[1].Kontostand, 1000);
    EXPECT_EQ(saetze[2].Zinstage, 180);
    EXPECT_EQ(saetze[2].Periodenzins, 45) << "1 800 at 5 % for half a year";
    EXPECT_EQ(saetze[3].Kontostand, 1845);
}

TEST(Zahlungszeilen, UebernehmenDieKonditionDerZeileDarueber) {
    Saetze saetze = Beispielstaffel();
    saetze[1].kondition = Einheitszins(99);
    saetze[2].kondition = Einheitszins(99);
    saetze = Gerechnet(saetze);
    EXPECT_EQ(saetze[1].kondition, beispielkonditionen);
    EXPECT_EQ(saetze[2].kondition, beispielkonditionen);
}

TEST(Konditionszeilen, WirkenVonIhremTagAnUndLassenDieZinsgutschriftStehen) {
    Staffelsatz wechsel = Vorbelegt(Kondition("01.07.2007", Einheitszins(5)));
    wechsel.Zahlbetrag = 66;
    const Saetze saetze = Gerechnet({Kondition("01.01.2007", Einheitszins(2)), Zahlung("01.01.2007", 1000),
                                     wechsel, Termin("31.12.2007")});
    EXPECT_EQ(saetze[1].Periodenzins, 10) << "half a year at 2 %";
    const Staffelsatz& zeile = saetze[2];
    EXPECT_EQ(zeile.kondition, Einheitszins(5));
    EXPECT_EQ(zeile.Zahlbetrag, 0);
    EXPECT_EQ(zeile.Kontostand, 1000);
    EXPECT_EQ(zeile.Zinstage, 179);
    EXPECT_EQ(zeile.Periodenzins, 24.86) << "1 000 at 5 % for 179 days";
    EXPECT_EQ(zeile.Kumulzins, 10 + 24.86);
    EXPECT_EQ(zeile.Zinsgutschrift, 77) << "not touched";
    EXPECT_EQ(saetze[3].Zinsgutschrift, 10 + 24.86);
    EXPECT_EQ(saetze[3].kondition, Einheitszins(5));
}

TEST(Konditionszeilen, DieErsteBeginntBeiNullWasAuchInIhrSteht) {
    Saetze saetze = Beispielstaffel();
    saetze[0] = Vorbelegt(saetze[0]);
    saetze[0].Zahlbetrag = 66;
    saetze = Gerechnet(saetze);
    EXPECT_EQ(saetze[0].Zahlbetrag, 0);
    EXPECT_EQ(saetze[0].Kontostand, 0);
    EXPECT_EQ(saetze[0].Zinstage, 0);
    EXPECT_EQ(saetze[0].Periodenzins, 0);
    EXPECT_EQ(saetze[0].Kumulzins, 0);
    EXPECT_EQ(saetze[0].Zinsgutschrift, 77);
    EXPECT_EQ(saetze[1].Kumulzins, 86.53);
}

TEST(Konditionszeilen, DieErsteNimmtDieKumuliertenZinsenDerZweitenZeileWieSieSteht) {
    // Wanted: it is 0 in a merged file, and shows only where a calculated one is calculated again.
    Saetze saetze = Beispielstaffel();
    saetze[1].Kumulzins = 5;
    saetze = Gerechnet(saetze);
    EXPECT_EQ(saetze[0].Kumulzins, 5);
    EXPECT_EQ(saetze[1].Kumulzins, 5 + 86.53);
    EXPECT_EQ(saetze[2].Zinsgutschrift, 5 + 86.53);
}

TEST(Konditionszeilen, EineAlleinHatNullUeberall) {
    Saetze saetze = Gerechnet({Vorbelegt(Kondition("01.01.2007", Einheitszins(5)))});
    EXPECT_EQ(saetze[0].Kumulzins, 0);
    EXPECT_EQ(saetze[0].Kontostand, 0);
    EXPECT_EQ(saetze[0].Zinstage, 0);
    EXPECT_EQ(saetze[0].Zinsgutschrift, 77);
}

TEST(Zinstermine, SchreibenGutUndBeginnenNeu) {
    // 1 000 at 5 %: 12,50 a quarter of 90 days; then 1 012,50 for 90 days bring 12,66 (12,65625).
    const Saetze saetze = Gerechnet({Kondition("30.12.2006", Einheitszins(5)), Zahlung("30.12.2006", 1000),
                                     Termin("31.03.2007"), Termin("30.06.2007")});
    EXPECT_EQ(saetze[1].Periodenzins, 12.5);
    EXPECT_EQ(saetze[2].Kontostand, 1012.5);
    EXPECT_EQ(saetze[2].Zinsgutschrift, 12.5);
    EXPECT_EQ(saetze[2].Periodenzins, 12.66);
    EXPECT_EQ(saetze[2].Kumulzins, 12.66);
    EXPECT_EQ(saetze[3].Kontostand, 1012.5 + 12.66);
    EXPECT_EQ(saetze[3].Zinsgutschrift, 12.66);
    EXPECT_EQ(saetze[3].Kumulzins, 0);
}

TEST(Zinstermine, OhneAufgelaufeneZinsenSchreibenNullGut) {
    const Saetze saetze = Gerechnet({Kondition("01.01.2007", Einheitszins(5)), Termin("31.03.2007"),
                                     Zahlung("31.03.2007", 1000), Vorbelegt(Termin("31.03.2007"))});
    EXPECT_EQ(saetze[1].Zinsgutschrift, 0);
    EXPECT_EQ(saetze[1].Kontostand, 0);
    EXPECT_EQ(saetze[3].Zinsgutschrift, 0);
    EXPECT_EQ(saetze[3].Kontostand, 1000);
    EXPECT_EQ(saetze[3].Kumulzins, 0);
}

TEST(FremdeZeilen, BleibenUnveraendertUndZaehlenAlsVorgaenger) {
    for (const std::int16_t art : std::initializer_list<std::int16_t>{0, 4, 7, -1, 32767}) {
        Staffelsatz fremd = Vorbelegt(Termin("31.01.2007"));
        fremd.Zahlungsart = art;
        fremd.Zahlbetrag = 66;
        fremd.kondition = Einheitszins(9);
        fremd.Kontostand = 500;
        fremd.Kumulzins = 3;
        const Saetze saetze =
            Gerechnet({Kondition("01.01.2007", Einheitszins(5)), Zahlung("01.01.2007", 1000), fremd,
                       Zahlung("01.03.2007", 100), Termin("31.03.2007")});
        EXPECT_EQ(saetze[1].Zinstage, 29) << "counted to the foreign row";
        EXPECT_EQ(saetze[2], fremd) << "Zahlungsart " << art;
        EXPECT_EQ(saetze[3].Kontostand, 600);
        EXPECT_EQ(saetze[3].kondition, Einheitszins(9));
        EXPECT_EQ(saetze[3].Zinstage, 29);
        EXPECT_EQ(saetze[3].Periodenzins, 4.35) << "600 at 9 % for 29 days";
        EXPECT_EQ(saetze[3].Kumulzins, 3 + 4.35);
    }
}

}  // namespace staffelberechnung_test
}  // namespace zinfolio
