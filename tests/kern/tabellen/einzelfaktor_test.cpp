#include "kern/tabellen/einzelfaktor.h"

#include <gtest/gtest.h>

#include "kern/dates/zahl.h"
#include "kern/grund/rechenfehler.h"

namespace zinfolio {
namespace einzelfaktor_test {

Einzelfaktor Gerechnet(Finanzfaktor faktor, const std::string& zins = "4,5", const std::string& jahre = "15",
                       const std::string& betrag = "12000") {
    Einzelfaktor ergebnis;
    EXPECT_EQ(EinzelfaktorRechnen(
                  {{faktor, Rentenrhythmus::monatlich, Rentenfaelligkeit::vorschuessig}, zins, jahre, betrag},
                  ergebnis),
              std::nullopt);
    return ergebnis;
}

/// The amounts were worked out in decimal numbers of 40 digits.
TEST(Einzelfaktor, Aufzinsung) {
    EXPECT_EQ(
        Gerechnet(Finanzfaktor::AuF),
        (Einzelfaktor{
            "23.223,38931709",
            "Ein Betrag von 12000 € , der heute zu einem Zinssatz von 4,5 % über 15 Jahre angelegt wird, "
            "ergibt einen Vermögensendwert von 23.223,39 € nach 15 Jahren"}));
}

TEST(Einzelfaktor, Abzinsung) {
    EXPECT_EQ(
        Gerechnet(Finanzfaktor::AbF),
        (Einzelfaktor{
            "6.200,64530779",
            "Ein Betrag von 12000 € , der in 15 Jahren fällig wird, hat bei einem Zinssatz von 4,5 % einen "
            "Wert am heutigen Tage von 6.200,65 €"}));
}

TEST(Einzelfaktor, Rentenendwert) {
    EXPECT_EQ(
        Gerechnet(Finanzfaktor::EWF, "4,5", "15", "12"),
        (Einzelfaktor{
            "3.065,85584845",
            "Wenn von heute an über einen Zeitraum von 15 Jahren jeweils ein Betrag von 12 € vorschüssig "
            "Monatlich zu einem Zinssatz von 4,5 % angelegt wird, so ergibt das nach 15 Jahren einen "
            "Vermögensendwert von 3.065,86 € incl. Zinsen und Zinseszinsen."}));
}

TEST(Einzelfaktor, Rentenbarwert) {
    EXPECT_EQ(
        Gerechnet(Finanzfaktor::DSF, "4,5", "15", "12"),
        (Einzelfaktor{
            "1.584,19039009",
            "Wenn von heute an über einen Zeitraum von 15 Jahren jeweils ein Betrag von 12 € vorschüssig "
            "Monatlich  ausbezahlt wird, so hat dies einen heutigen Gegenwert (=Barwert) von 1.584,19 "
            "€. D.h.: Dieser Einmalbetrag per heute ist genauso viel wert wie die ganzen Zahlungen, wobei "
            "angenommen wird, das der Einmalbetrag mit jährlich 4,5 % verzinst werden könnte."}));
}

TEST(Einzelfaktor, Kapitalwiedergewinnung) {
    EXPECT_EQ(
        Gerechnet(Finanzfaktor::KWF),
        (Einzelfaktor{
            "90,89816533",
            "Ein heute vorhandener Geldbetrag von 12000 € ist bei einem Zinssatz von 4,5 % genauso viel "
            "wert, wie ein jeweiliger Betrag von 90,90 € , der vorschüssig Monatlich über einen Zeitraum "
            "von 15 Jahren gezahlt wird."}));
}

TEST(Einzelfaktor, Restwertverteilung) {
    EXPECT_EQ(
        Gerechnet(Finanzfaktor::RVF),
        (Einzelfaktor{
            "46,96894020",
            "Ein Betrag von 12000 €, der in 15 Jahren fällig wird, ist genauso viel wert, wie ein Betrag "
            "von 46,97 €, der jeweils vorschüssig Monatlich über einen Zeitraum von 15 Jahren gezahlt und "
            "mit 4,5 % verzinst wird."}));
}

TEST(Einzelfaktor, DerSatzZeigtDieEingabenWieSieGetipptSind) {
    const Einzelfaktor ergebnis = Gerechnet(Finanzfaktor::AuF, "010,00", "1,", "1.000,5");
    EXPECT_EQ(ergebnis.Ergebnis, "1.100,55000000");
    EXPECT_EQ(ergebnis.Erklärung3,
              "Ein Betrag von 1.000,5 € , der heute zu einem Zinssatz von 010,00 % über 1, Jahre angelegt "
              "wird, ergibt "
              "einen Vermögensendwert von 1.100,55 € nach 1, Jahren");
}

TEST(Einzelfaktor, EinKleinesErgebnisHatEineNullVorDemKomma) {
    EXPECT_EQ(Gerechnet(Finanzfaktor::AuF, "100", "1", "0,25").Ergebnis, "0,50000000");
}

void ErwarteAblehnung(const Einzelfaktoreingabe& eingabe, const std::string& meldung,
                      const std::string& feld) {
    Einzelfaktor ergebnis{"alt", "alt"};
    EXPECT_EQ(EinzelfaktorRechnen(eingabe, ergebnis), (Ablehnung{meldung, feld, ""}));
    EXPECT_EQ(ergebnis, (Einzelfaktor{"alt", "alt"}));
}

TEST(Einzelfaktor, PrueftDieFelderInIhrerReihenfolge) {
    ErwarteAblehnung({{}, "", "", ""}, "Geben Sie bitte den Zinssatz ein (grösser als 0)", "Zins2");
    ErwarteAblehnung({{}, "0", "x", "x"}, "Geben Sie bitte den Zinssatz ein (grösser als 0)", "Zins2");
    ErwarteAblehnung({{}, "5", "0", ""}, "Geben Sie bitte die Anzahl der Jahre ein.", "Jahre2");
    ErwarteAblehnung({{}, "5", "10", "0,0"}, "Geben Sie bitte den Betrag ein.", "Betrag2");
}

TEST(Einzelfaktor, WasKeineZahlIstUndWasUeberlaeuftScheitert) {
    Einzelfaktor ergebnis;
    EXPECT_THROW(static_cast<void>(EinzelfaktorRechnen({{}, "5 %", "1", "1"}, ergebnis)), Zahlfehler);
    EXPECT_THROW(static_cast<void>(EinzelfaktorRechnen({{}, "10", "9999", "1"}, ergebnis)), Rechenfehler);
    const std::string riesig = "1" + std::string(300, '0');
    EXPECT_THROW(static_cast<void>(EinzelfaktorRechnen({{}, "100", "100", riesig}, ergebnis)), Rechenfehler);
}

}  // namespace einzelfaktor_test
}  // namespace zinfolio
