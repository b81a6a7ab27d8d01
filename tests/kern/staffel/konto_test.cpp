#include "kern/staffel/konto.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "kern/staffel/beispielkonto.h"

namespace zinfolio {
namespace konto_test {

using testing::ElementsAre;

const Ablehnung datumFehlt{"Das Kontoschluss/-berechnungsdatum fehlt", "Kontodatum", "Zinsverrechnung"};
const Ablehnung keineZahlungen{"Es existieren keine Zahlungsdaten. Eine Berechnung ist nicht möglich", "",
                               "Zahlungen"};
const Ablehnung keineZinsdaten{
    "Es existieren keine Zinsdaten. Eine Berechnung ist nicht möglich. Geben Sie im Register Zinssätze die "
    "Zinsdaten ein und beenden Sie die Eingabe durch Drücken des Buttons <Eingabe übernehmen>.",
    "", "Zinssätze"};
const Ablehnung abschlussZuFrueh{"Das Datum für den Kontoabschluss liegt vor dem ersten Zahlungsdatum.",
                                 "Kontodatum", "Zinsverrechnung"};
const Ablehnung keineZinssaetze{
    "Eine Berechnung ist nicht möglich, da für die erste Zahlung keine gültigen Zinssätze existieren, bzw. "
    "die "
    "Gültigkeit der Zinskonditionen erst nach dem ersten Zahlungsdatum beginnt.",
    "", "Zinssätze"};

/// 15 000 from New Year 2007, closed on a date, settled by the quarter.
Konto Beispielkonto(std::string_view kontodatum) {
    Konto konto;
    konto.zahlungen = {Zahlung("01.01.2007", 15000)};
    konto.konditionen = {Kondition("01.01.2007", beispielkonditionen)};
    konto.einstellungen = {Zinsverrechnungsart::quartalsende, std::string(kontodatum),
                           Verzinsungsmethode::deutsch};
    return konto;
}

TEST(KontoRechnen, BeispielVonDerEingabeBisZumAuszug) {
    Konto konto = Beispielkonto("30.06.2007");
    EXPECT_EQ(KontoRechnen(konto), std::nullopt);
    EXPECT_EQ(konto.stufe, Kontostufe::gerechnet);
    EXPECT_THAT(Uebersicht(konto.termine), ElementsAre("3 31.03.2007", "3 30.06.2007"));
    EXPECT_THAT(Uebersicht(konto.loesung),
                ElementsAre("2 01.01.2007", "1 01.01.2007", "3 31.03.2007", "3 30.06.2007"));
    EXPECT_EQ(konto.loesung[1].Periodenzins, 86.53);
    EXPECT_EQ(konto.loesung[2].Zinsgutschrift, 86.53);
    // 10 000 at 2 % and 5 086,53 at 3 % for 90 days: 50 + 38,149.
    EXPECT_EQ(konto.loesung[2].Periodenzins, 88.15);
    EXPECT_EQ(konto.loesung[3].Kontostand, 15000 + 86.53 + 88.15);
    EXPECT_EQ(konto.loesung[3].Periodenzins, 0);
}

TEST(KontoRechnen, SortiertDieEingabe) {
    Konto konto = Beispielkonto("30.06.2007");
    konto.zahlungen = {Zahlung("01.02.2007", 1), Zahlung("01.01.2007", 2)};
    konto.konditionen = {Kondition("01.03.2007", {}), Kondition("01.01.2007", {})};
    EXPECT_EQ(KontoRechnen(konto), std::nullopt);
    EXPECT_THAT(Uebersicht(konto.zahlungen), ElementsAre("1 01.01.2007", "1 01.02.2007"));
    EXPECT_THAT(Uebersicht(konto.konditionen), ElementsAre("2 01.01.2007", "2 01.03.2007"));
}

TEST(KontoRechnen, NochmalsGerechnetErgibtDasselbe) {
    Konto konto = Beispielkonto("30.06.2007");
    EXPECT_EQ(KontoRechnen(konto), std::nullopt);
    const std::vector<Staffelsatz> erstes = konto.loesung;
    EXPECT_EQ(KontoRechnen(konto), std::nullopt);
    EXPECT_EQ(konto.loesung, erstes);
}

TEST(KontoRechnen, AbschlussAmErstenTerminSchreibtZweimalGut) {
    Konto konto = Beispielkonto("31.03.2007");
    EXPECT_EQ(KontoRechnen(konto), std::nullopt);
    EXPECT_THAT(Uebersicht(konto.loesung),
                ElementsAre("2 01.01.2007", "1 01.01.2007", "3 31.03.2007", "3 31.03.2007"));
    EXPECT_EQ(konto.loesung[2].Zinsgutschrift, 86.53);
    EXPECT_EQ(konto.loesung[3].Zinsgutschrift, 0);
    EXPECT_EQ(konto.loesung[3].Kontostand, 15000 + 86.53);
}

TEST(KontoRechnen, ZahlungAmAbschlusstagGehoertZumKonto) {
    Konto konto = Beispielkonto("15.02.2007");
    konto.zahlungen.push_back(Zahlung("15.02.2007", 100, "mit"));
    konto.zahlungen.push_back(Zahlung("16.02.2007", 100, "ohne"));
    konto.konditionen.push_back(Kondition("16.02.2007", {}));
    EXPECT_EQ(KontoRechnen(konto), std::nullopt);
    EXPECT_THAT(Uebersicht(konto.loesung),
                ElementsAre("2 01.01.2007", "1 01.01.2007", "1 15.02.2007 mit", "3 15.02.2007"));
    EXPECT_EQ(konto.loesung[2].Zinstage, 0);
    EXPECT_EQ(konto.loesung[3].Periodenzins, 0);
}

TEST(KontoRechnen, ErsterTerminHinterDemAbschlussLaesstDieAbschlusszeileWeg) {
    Konto konto = Beispielkonto("20.06.2007");
    konto.zahlungen = {Zahlung("15.05.2007", 15000)};
    EXPECT_EQ(KontoRechnen(konto), std::nullopt);
    EXPECT_THAT(Uebersicht(konto.termine), ElementsAre("3 30.06.2007", "3 20.06.2007"));
    EXPECT_THAT(Uebersicht(konto.loesung), ElementsAre("2 01.01.2007", "1 15.05.2007"));
    EXPECT_EQ(konto.loesung[1].Kontostand, 15000);
    EXPECT_EQ(konto.loesung[1].Zinstage, 0);
}

TEST(KontoRechnenAblehnung, DasFehlendeDatumKommtZuerst) {
    Konto leer;
    EXPECT_EQ(KontoRechnen(leer), datumFehlt);
    EXPECT_EQ(leer.stufe, Kontostufe::eingabe);
    Konto ohneDatum = Beispielkonto("");
    EXPECT_EQ(KontoRechnen(ohneDatum), datumFehlt);
    EXPECT_EQ(rechenok2(ohneDatum), datumFehlt);
}

TEST(KontoRechnenAblehnung, DannDieFehlendenZahlungen) {
    Konto konto = Beispielkonto("31.03.2007");
    konto.zahlungen.clear();
    EXPECT_EQ(KontoRechnen(konto), keineZahlungen);
    konto.konditionen.clear();
    EXPECT_EQ(KontoRechnen(konto), keineZahlungen);
    EXPECT_EQ(rechenok2(konto), keineZahlungen);
    EXPECT_EQ(konto.stufe, Kontostufe::eingabe);
}

TEST(KontoRechnenAblehnung, DannDieFehlendenKonditionen) {
    Konto konto = Beispielkonto("31.03.2007");
    konto.konditionen.clear();
    EXPECT_EQ(KontoRechnen(konto), keineZinsdaten);
    EXPECT_EQ(rechenok2(konto), keineZinsdaten);
    EXPECT_EQ(konto.stufe, Kontostufe::eingabe);
}

TEST(KontoRechnenAblehnung, AbschlussVorAllemAnderen) {
    // Its own settlement row is alone in the merged file.
    Konto konto = Beispielkonto("30.12.2006");
    EXPECT_EQ(KontoRechnen(konto), abschlussZuFrueh);
    EXPECT_EQ(konto.stufe, Kontostufe::gemischt);
    EXPECT_THAT(Uebersicht(konto.loesung), ElementsAre("3 30.12.2006"));
}

TEST(KontoRechnenAblehnung, EineKonditionAlleinIstAuchNurEineZeile) {
    // The closing date lies between the first candidate of the year and the first payment.
    Konto konto = Beispielkonto("10.04.2007");
    konto.zahlungen = {Zahlung("15.05.2007", 15000)};
    EXPECT_EQ(KontoRechnen(konto), abschlussZuFrueh);
    EXPECT_THAT(Uebersicht(konto.loesung), ElementsAre("2 01.01.2007"));
}

TEST(KontoRechnenAblehnung, KonditionErstNachDerErstenZahlung) {
    Konto konto = Beispielkonto("31.12.2007");
    konto.konditionen = {Kondition("02.01.2007", beispielkonditionen)};
    EXPECT_EQ(KontoRechnen(konto), keineZinssaetze);
    EXPECT_EQ(konto.stufe, Kontostufe::gemischt);
    ASSERT_FALSE(konto.loesung.empty());
    EXPECT_EQ(konto.loesung[0], konto.zahlungen[0]) << "merged, not calculated";
}

TEST(KontoRechnenAblehnung, OhneJedeZeileFehlenDieZinssaetze) {
    // The first date stays and lies behind the closing date, as do payment and condition.
    Konto konto = Beispielkonto("10.04.2007");
    konto.zahlungen = {Zahlung("15.05.2007", 15000)};
    konto.konditionen = {Kondition("15.05.2007", beispielkonditionen)};
    EXPECT_EQ(KontoRechnen(konto), keineZinssaetze);
    EXPECT_TRUE(konto.loesung.empty());
}

TEST(Rechnenok, EineZeileGehtVor) {
    const Staffelsatz termin = Termin("31.03.2007");
    const Staffelsatz kondition = Kondition("01.01.2007", {});
    EXPECT_EQ(rechnenok({termin}), abschlussZuFrueh);
    EXPECT_EQ(rechnenok({kondition}), abschlussZuFrueh);
    EXPECT_EQ(rechnenok({}), keineZinssaetze);
    EXPECT_EQ(rechnenok({termin, kondition}), keineZinssaetze);
    EXPECT_EQ(rechnenok({Zahlung("01.01.2007", 1), kondition}), keineZinssaetze);
    EXPECT_EQ(rechnenok({kondition, termin}), std::nullopt);
}

TEST(KontoRechnen, AbschlussVorDerErstenZahlungAberNachDerErstenKonditionGehtDurch) {
    Konto konto = Beispielkonto("15.02.2007");
    konto.zahlungen = {Zahlung("01.05.2007", 15000)};
    EXPECT_EQ(KontoRechnen(konto), std::nullopt);
    EXPECT_THAT(Uebersicht(konto.loesung), ElementsAre("2 01.01.2007", "3 15.02.2007"));
    EXPECT_EQ(konto.loesung[1].Kontostand, 0);
}

TEST(KontoRechnenFehler, KeinDatumAlsKontodatum) {
    for (const std::string_view text : {"0", "31.02.2007", "1.1.2007"}) {
        Konto konto = Beispielkonto(text);
        EXPECT_THROW((void)KontoRechnen(konto), Datumsfehler) << text;
        EXPECT_NE(konto.stufe, Kontostufe::gerechnet);
    }
}

TEST(KontoRechnenFehler, DieBerechnungHinterlaesstDieFertigenZeilen) {
    Konto konto = Beispielkonto("30.06.2007");
    konto.zahlungen = {Zahlung("01.01.2007", 1e308), Zahlung("01.01.2007", 1e308)};
    EXPECT_THROW((void)KontoRechnen(konto), std::runtime_error);
    ASSERT_EQ(konto.loesung.size(), 5U);
    EXPECT_EQ(konto.loesung[1].Kontostand, 1e308);
    EXPECT_EQ(konto.loesung[2], konto.zahlungen[1]) << "as merged";
}

}  // namespace konto_test
}  // namespace zinfolio
