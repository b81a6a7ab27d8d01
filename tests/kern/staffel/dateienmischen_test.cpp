#include "kern/staffel/dateienmischen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "kern/dates/datumsliteral.h"
#include "kern/grund/rechenfehler.h"
#include "kern/staffel/beispielkonto.h"

namespace zinfolio {
namespace dateienmischen_test {

using testing::ElementsAre;
using testing::IsEmpty;
using Saetze = std::vector<Staffelsatz>;

const Saetze eineKondition{Kondition("01.01.2007", beispielkonditionen)};

struct Quellen {
    Saetze zahlungen;
    Saetze konditionen = eineKondition;
    Saetze termine;
};

Saetze Mischen(const Quellen& q, Datum abschluss) {
    Saetze loesung{Zahlung("01.01.1999", 1, "alt")};
    EXPECT_EQ(dateienmischen({q.zahlungen, q.konditionen, q.termine}, abschluss, loesung), std::nullopt);
    return loesung;
}

TEST(Dateienmischen, OrdnetDieDreiQuellenNachDatum) {
    const Quellen q{.zahlungen = {Zahlung("15.01.2007", 1), Zahlung("15.05.2007", 2)},
                    .konditionen = {Kondition("01.01.2007", {}), Kondition("01.04.2007", {})},
                    .termine = {Termin("31.03.2007"), Termin("30.06.2007")}};
    EXPECT_THAT(Uebersicht(Mischen(q, "30.06.2007"_datum)),
                ElementsAre("2 01.01.2007", "1 15.01.2007", "3 31.03.2007", "2 01.04.2007", "1 15.05.2007",
                            "3 30.06.2007"));
}

TEST(Dateienmischen, AnEinemTagKonditionDannZahlungenDannZinstermin) {
    const Quellen q{.zahlungen = {Zahlung("31.03.2007", 1, "b"), Zahlung("31.03.2007", 2, "a")},
                    .konditionen = {Kondition("31.03.2007", {}), Kondition("31.03.2007", {})},
                    .termine = {Termin("31.03.2007"), Termin("31.03.2007")}};
    EXPECT_THAT(Uebersicht(Mischen(q, "31.03.2007"_datum)),
                ElementsAre("2 31.03.2007", "2 31.03.2007", "1 31.03.2007 b", "1 31.03.2007 a",
                            "3 31.03.2007", "3 31.03.2007"));
}

TEST(Dateienmischen, ZeilenKommenUnveraendertHerueber) {
    Quellen q{.zahlungen = {Zahlung("15.01.2007", -5, "Köln")}, .termine = {Termin("31.03.2007")}};
    q.zahlungen[0].Kontostand = 9;
    q.zahlungen[0].Reservefeld = 7;
    q.konditionen[0].Zinsgutschrift = 3;
    EXPECT_THAT(Mischen(q, "31.03.2007"_datum), ElementsAre(q.konditionen[0], q.zahlungen[0], q.termine[0]));
}

TEST(Dateienmischen, ZeilenNachDemAbschlussFallenWeg) {
    const Quellen q{.zahlungen = {Zahlung("15.01.2007", 1), Zahlung("31.03.2007", 2, "am Abschluss"),
                                  Zahlung("01.04.2007", 3, "danach")},
                    .konditionen = {Kondition("01.01.2007", {}), Kondition("01.04.2007", {})},
                    .termine = {Termin("31.03.2007")}};
    EXPECT_THAT(Uebersicht(Mischen(q, "31.03.2007"_datum)),
                ElementsAre("2 01.01.2007", "1 15.01.2007", "1 31.03.2007 am Abschluss", "3 31.03.2007"));
}

TEST(Dateienmischen, ErsteKonditionNachDerErstenZahlungStehtHinterIhr) {
    const Quellen q{.zahlungen = {Zahlung("01.01.2007", 1)},
                    .konditionen = {Kondition("02.01.2007", {})},
                    .termine = {Termin("31.03.2007")}};
    EXPECT_THAT(Uebersicht(Mischen(q, "31.03.2007"_datum)),
                ElementsAre("1 01.01.2007", "2 02.01.2007", "3 31.03.2007"));
}

TEST(Dateienmischen, EineQuelleAusserDerReiheEndetFrueh) {
    // The first settlement date lies behind the closing date: the row of the closing date is not reached.
    const Quellen q{.zahlungen = {Zahlung("15.05.2007", 1)},
                    .termine = {Termin("30.06.2007"), Termin("20.06.2007")}};
    EXPECT_THAT(Uebersicht(Mischen(q, "20.06.2007"_datum)), ElementsAre("2 01.01.2007", "1 15.05.2007"));
}

TEST(Dateienmischen, UnsortierteZahlungenWartenAufIhreVorgaenger) {
    const Quellen q{.zahlungen = {Zahlung("15.05.2007", 1), Zahlung("15.01.2007", 2)},
                    .termine = {Termin("31.03.2007"), Termin("30.06.2007")}};
    EXPECT_THAT(Uebersicht(Mischen(q, "30.06.2007"_datum)),
                ElementsAre("2 01.01.2007", "3 31.03.2007", "1 15.05.2007", "1 15.01.2007", "3 30.06.2007"));
}

TEST(Dateienmischen, LiegtAllesNachDemAbschlussIstDasErgebnisLeer) {
    const Quellen q{.zahlungen = {Zahlung("15.05.2007", 1)}, .termine = {Termin("30.06.2007")}};
    EXPECT_THAT(Mischen(q, "31.12.2006"_datum), IsEmpty());
}

TEST(DateienmischenAmLetztenTag, ZeilenVom31129999GehenVerlorenWeilSoDasEndeAussieht) {
    const Quellen q{.zahlungen = {Zahlung("15.01.2007", 1), Zahlung("31.12.9999", 2)},
                    .termine = {Termin("30.11.9999"), Termin("31.12.9999")}};
    EXPECT_THAT(Uebersicht(Mischen(q, "31.12.9999"_datum)),
                ElementsAre("2 01.01.2007", "1 15.01.2007", "3 30.11.9999"));
}

TEST(DateienmischenAmLetztenTag, BeginntAllesDortSoKommtDieErsteKonditionNochDurch) {
    const Quellen q{.zahlungen = {Zahlung("31.12.9999", 1)},
                    .konditionen = {Kondition("31.12.9999", {})},
                    .termine = {Termin("31.12.9999")}};
    EXPECT_THAT(Uebersicht(Mischen(q, "31.12.9999"_datum)), ElementsAre("2 31.12.9999"));
}

TEST(DateienmischenAmLetztenTag, EineZweiteKonditionKommtNichtMehrDurch) {
    const Quellen q{.zahlungen = {Zahlung("31.12.9999", 1)},
                    .konditionen = {Kondition("31.12.9999", {}), Kondition("31.12.9999", {})},
                    .termine = {Termin("31.12.9999")}};
    EXPECT_THAT(Uebersicht(Mischen(q, "31.12.9999"_datum)), ElementsAre("2 31.12.9999"));
}

TEST(DateienmischenOhneQuelle, FehlendeZahlungenWerdenZuerstGemeldet) {
    const Ablehnung keineZahlungen{"Es existieren keine Zahlungsdaten. Eine Berechnung ist nicht möglich", "",
                                   "Zahlungen"};
    const Saetze termine{Termin("31.03.2007")};
    Saetze loesung;
    EXPECT_EQ(dateienmischen({{}, eineKondition, termine}, "31.03.2007"_datum, loesung), keineZahlungen);
    EXPECT_EQ(dateienmischen({{}, {}, termine}, "31.03.2007"_datum, loesung), keineZahlungen);
    EXPECT_EQ(QuellenPruefen({}, {}), keineZahlungen);
}

TEST(DateienmischenOhneQuelle, FehlendeKonditionenWerdenGemeldet) {
    const Ablehnung keineKonditionen{
        "Es existieren keine Zinsdaten. Eine Berechnung ist nicht möglich. Geben Sie im Register Zinssätze "
        "die "
        "Zinsdaten ein und beenden Sie die Eingabe durch Drücken des Buttons <Eingabe übernehmen>.",
        "", "Zinssätze"};
    const Saetze zahlungen{Zahlung("15.01.2007", 1)};
    const Saetze termine{Termin("31.03.2007")};
    Saetze loesung;
    EXPECT_EQ(dateienmischen({zahlungen, {}, termine}, "31.03.2007"_datum, loesung), keineKonditionen);
    EXPECT_EQ(QuellenPruefen(zahlungen, {}), keineKonditionen);
    EXPECT_EQ(QuellenPruefen(zahlungen, eineKondition), std::nullopt);
}

TEST(DateienmischenMitFehler, BeschaedigtesDatumLaesstDieZeilenDavorStehen) {
    const Saetze zahlungen{Zahlung("15.01.2007", 1), MitDatumstext(Zahlung("15.02.2007", 2), "30.02.2007")};
    const Saetze termine{Termin("31.03.2007")};
    Saetze loesung;
    EXPECT_THROW((void)dateienmischen({zahlungen, eineKondition, termine}, "31.03.2007"_datum, loesung),
                 Datumsfehler);
    EXPECT_THAT(Uebersicht(loesung), ElementsAre("2 01.01.2007", "1 15.01.2007"));
}

TEST(DateienmischenMitFehler, BeschaedigtesDatumHinterDemAbschlussStoertNicht) {
    const Saetze zahlungen{Zahlung("15.01.2007", 1), Zahlung("15.05.2007", 2),
                           MitDatumstext(Zahlung("15.02.2007", 3), "kein Datum")};
    const Saetze termine{Termin("31.03.2007")};
    Saetze loesung;
    EXPECT_EQ(dateienmischen({zahlungen, eineKondition, termine}, "31.03.2007"_datum, loesung), std::nullopt);
    EXPECT_THAT(Uebersicht(loesung), ElementsAre("2 01.01.2007", "1 15.01.2007", "3 31.03.2007"));
}

TEST(DateienmischenMitFehler, MehrAls32767ZeilenLassen32767Stehen) {
    const Saetze termine{Termin("31.03.2007")};
    Saetze loesung;
    const Saetze gerade(32765, Zahlung("15.01.2007", 1));
    EXPECT_EQ(dateienmischen({gerade, eineKondition, termine}, "31.03.2007"_datum, loesung), std::nullopt);
    EXPECT_EQ(loesung.size(), 32767U);
    EXPECT_EQ(loesung.back(), termine[0]);

    const Saetze zuviel(32766, Zahlung("15.01.2007", 1));
    EXPECT_THROW((void)dateienmischen({zuviel, eineKondition, termine}, "31.03.2007"_datum, loesung),
                 Rechenfehler);
    EXPECT_EQ(loesung.size(), 32767U);
    EXPECT_EQ(loesung.front(), eineKondition[0]);
    EXPECT_EQ(loesung.back(), zuviel[0]);
}

}  // namespace dateienmischen_test
}  // namespace zinfolio
