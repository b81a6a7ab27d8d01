#include "kern/tabellen/faktortabelle.h"

#include <chrono>
#include <gtest/gtest.h>
#include <utility>

#include "kern/dates/zahl.h"
#include "kern/grund/rechenfehler.h"

namespace zinfolio {
namespace faktortabelle_test {

using Zeile = std::vector<std::string>;

Faktortabelleneingabe Eingabe(std::string pro1, std::string pro2, std::string j1, std::string j2,
                              Schrittweite schritt = Schrittweite::ganz) {
    return {{Finanzfaktor::AuF, Rentenrhythmus::jaehrlich, Rentenfaelligkeit::nachschuessig},
            schritt,
            std::move(pro1),
            std::move(pro2),
            std::move(j1),
            std::move(j2)};
}

Faktortabelle Tabelle(const Faktortabelleneingabe& eingabe) {
    Faktortabelle tabelle;
    EXPECT_EQ(FaktortabelleRechnen(eingabe, tabelle), std::nullopt);
    return tabelle;
}

Zeile ZeileVon(const Faktortabelle& tabelle, std::size_t zeile) {
    Zeile texte;
    for (std::size_t spalte = 0; spalte < tabelle.Spalten(); ++spalte)
        texte.push_back(tabelle.Zelle(zeile, spalte));
    return texte;
}

Zeile Kopf(const Faktortabelleneingabe& eingabe) {
    return ZeileVon(Tabelle(eingabe), 0);
}

TEST(Faktortabelle, HatEineZeileJeJahrUndEineSpalteJeSatz) {
    const Faktortabelle tabelle = Tabelle(Eingabe("3", "4", "1", "3", Schrittweite::halb));
    ASSERT_EQ(tabelle.Zeilen(), 4U);
    EXPECT_EQ(ZeileVon(tabelle, 0), (Zeile{"Jahr / Zins", "3", "3,5", "4"}));
    EXPECT_EQ(ZeileVon(tabelle, 1), (Zeile{"1", "1,0300000", "1,0350000", "1,0400000"}));
    EXPECT_EQ(ZeileVon(tabelle, 2), (Zeile{"2", "1,0609000", "1,0712250", "1,0816000"}));
    EXPECT_EQ(ZeileVon(tabelle, 3), (Zeile{"3", "1,0927270", "1,1087179", "1,1248640"}));
}

TEST(Faktortabelle, EinSatzUndEinJahrGebenEinenWert) {
    const Faktortabelle tabelle = Tabelle(Eingabe("10", "10", "2", "2"));
    ASSERT_EQ(tabelle.Zeilen(), 2U);
    EXPECT_EQ(ZeileVon(tabelle, 0), (Zeile{"Jahr / Zins", "10"}));
    EXPECT_EQ(ZeileVon(tabelle, 1), (Zeile{"2", "1,2100000"}));
}

TEST(Faktortabelle, GrosseWerteSindGruppiert) {
    // 2^20.
    EXPECT_EQ(Tabelle(Eingabe("100", "100", "20", "20")).Zelle(1, 1), "1.048.576,0000000");
}

TEST(Faktortabelle, SaetzeSindGlatteZahlenTrotzIhrerBinaerenSchritte) {
    EXPECT_EQ(Kopf(Eingabe("0,1", "1", "1", "1", Schrittweite::zehntel)),
              (Zeile{"Jahr / Zins", "0,1", "0,2", "0,3", "0,4", "0,5", "0,6", "0,7", "0,8", "0,9", "1"}));
    EXPECT_EQ(Kopf(Eingabe("1", "2", "1", "1", Schrittweite::zweiZehntel)),
              (Zeile{"Jahr / Zins", "1", "1,2", "1,4", "1,6", "1,8", "2"}));
}

TEST(Faktortabelle, DerLetzteSatzWirdNichtUeberschritten) {
    // 1 / 0,3 + 1 = 4,33: four columns. 1 / 0,4 + 1 = 3,5: four by rounding, the last one would be 2,2.
    EXPECT_EQ(Kopf(Eingabe("1", "2", "1", "1", Schrittweite::dreiZehntel)),
              (Zeile{"Jahr / Zins", "1", "1,3", "1,6", "1,9"}));
    EXPECT_EQ(Kopf(Eingabe("1", "2", "1", "1", Schrittweite::vierZehntel)),
              (Zeile{"Jahr / Zins", "1", "1,4", "1,8"}));
    // 1,7 columns are two by rounding; 2,5 are two by the even neighbour.
    EXPECT_EQ(Kopf(Eingabe("1", "1,7", "1", "1")), (Zeile{"Jahr / Zins", "1"}));
    EXPECT_EQ(Kopf(Eingabe("1", "2,5", "1", "1")), (Zeile{"Jahr / Zins", "1", "2"}));
}

TEST(Faktortabelle, JahreBeginnenWoManWill) {
    const Faktortabelle tabelle = Tabelle(Eingabe("5", "5", "29", "31"));
    ASSERT_EQ(tabelle.Zeilen(), 4U);
    EXPECT_EQ(tabelle.Zelle(1, 0), "29");
    EXPECT_EQ(tabelle.Zelle(3, 0), "31");
}

struct Ablehnungsfall {
    Faktortabelleneingabe eingabe;
    std::string meldung;
    std::string feld;
};

void ErwarteAblehnung(const Ablehnungsfall& fall) {
    Faktortabelle tabelle = Tabelle(Eingabe("1", "1", "1", "1"));
    EXPECT_EQ(FaktortabelleRechnen(fall.eingabe, tabelle), (Ablehnung{fall.meldung, fall.feld, ""}));
    EXPECT_EQ(tabelle.Zeilen(), 2U) << "the table before stays";
}

TEST(Faktortabelle, PrueftDieFelderInIhrerReihenfolge) {
    ErwarteAblehnung(
        {Eingabe("", "", "", ""), "Geben Sie bitte den 1. Prozentsatz ein. (grösser als 0)", "Pro1"});
    ErwarteAblehnung({Eingabe("1", "0", "", ""), "Geben Sie bitte den 2. Prozentsatz ein.", "Pro2"});
    ErwarteAblehnung({Eingabe("1", "2", "0", ""), "Geben Sie bitte den 1. Jahreswert ein.", "J1"});
    ErwarteAblehnung({Eingabe("2", "1", "5", ""), "Geben Sie bitte den 2. Jahreswert ein.", "J2"});
    ErwarteAblehnung({Eingabe("2", "1", "5", "4"),
                      "Die 1. Prozentangabe darf nicht vor der 2. Prozentangabe liegen.", "Pro1"});
    ErwarteAblehnung({Eingabe("1", "2", "5", "4"), "Das 1. Jahr darf nicht vor dem 2. Jahr liegen.", "J1"});
}

TEST(Faktortabelle, EinFeldWirdErstGelesenWoEsGeprueftWird) {
    ErwarteAblehnung(
        {Eingabe("0,00", "x", "x", "x"), "Geben Sie bitte den 1. Prozentsatz ein. (grösser als 0)", "Pro1"});
    Faktortabelle tabelle;
    EXPECT_THROW(static_cast<void>(FaktortabelleRechnen(Eingabe("x", "0", "0", "0"), tabelle)), Zahlfehler);
}

void ErwarteFehler(const Faktortabelleneingabe& eingabe) {
    Faktortabelle tabelle = Tabelle(Eingabe("1", "1", "1", "1"));
    EXPECT_THROW(static_cast<void>(FaktortabelleRechnen(eingabe, tabelle)), std::runtime_error);
    EXPECT_EQ(tabelle.Zelle(1, 1), "1,0100000") << "the table before stays";
}

TEST(Faktortabelle, UeberlaufBeendetSie) {
    ErwarteFehler(Eingabe("10", "10", "1", "7448"));
    ErwarteFehler(Eingabe("1", "1", "1", "99999999"));
    ErwarteFehler(Eingabe("1", "999999999999", "1", "1"));
}

TEST(Faktortabelle, EinSatzVonNullInDerMitteBeendetDieRentenfaktorenAlsDivisionDurchNull) {
    Faktortabelleneingabe eingabe = Eingabe("-1", "1", "1", "1");
    EXPECT_EQ(Tabelle(eingabe).Zelle(1, 2), "1,0000000");
    eingabe.wahl.faktor = Finanzfaktor::EWF;
    ErwarteFehler(eingabe);
}

TEST(Faktortabelle, SechsMillionenWerteSindSchnellGerechnet) {
    const auto anfang = std::chrono::steady_clock::now();
    const Faktortabelle tabelle = Tabelle(Eingabe("0,1", "3276,7", "1", "201", Schrittweite::zehntel));
    EXPECT_EQ(tabelle.Spalten(), 32768U);
    EXPECT_EQ(tabelle.Zeilen(), 202U);
    EXPECT_EQ(tabelle.Zelle(0, 32767), "3276,7");
    EXPECT_LT(std::chrono::steady_clock::now() - anfang, std::chrono::seconds(20));
}

TEST(Faktortabelle, MehrAls32767SaetzeOderJahreGibtEsNicht) {
    ErwarteFehler(Eingabe("0,1", "3276,8", "1", "1", Schrittweite::zehntel));
    ErwarteFehler(Eingabe("0,0001", "0,0001", "1", "32768"));
    EXPECT_EQ(Tabelle(Eingabe("0,0001", "0,0001", "1", "32767")).Zeilen(), 32768U);
}

TEST(Faktortabelle, NegativeJahreGebenKeineTabelleOhneEnde) {
    ErwarteFehler(Eingabe("1", "300", "-32000", "-1"));
}

TEST(Faktortabelle, LeerHatSieWederZeilenNochSpalten) {
    EXPECT_TRUE(Faktortabelle().Leer());
    EXPECT_EQ(Faktortabelle().Zeilen(), 0U);
    EXPECT_EQ(Faktortabelle().Spalten(), 0U);
}

TEST(Faktortabelleninhalt, HatDieSaetzeImKopfUndDarunterDieWerte) {
    const auto tabelle =
        std::make_shared<const Faktortabelle>(Tabelle(Eingabe("3", "4", "5", "6", Schrittweite::halb)));
    const Tabelleninhalt inhalt = FaktortabelleZeigen(tabelle);
    ASSERT_EQ(inhalt.spalten.size(), 4U);
    EXPECT_EQ(inhalt.spalten[0].kopf, "Jahr / Zins");
    EXPECT_EQ(inhalt.spalten[2].kopf, "3,5");
    EXPECT_EQ(inhalt.zeilen, 2U);
    EXPECT_EQ(inhalt.zelle(1, 0), "6");
    EXPECT_EQ(inhalt.zelle(0, 3), "1,2166529");
    EXPECT_EQ(inhalt.Wert(1, 0), Zellwert(6.0));
}

TEST(Faktortabelleninhalt, EinerLeerenTabelleIstLeer) {
    EXPECT_TRUE(FaktortabelleZeigen(std::make_shared<const Faktortabelle>()).spalten.empty());
}

}  // namespace faktortabelle_test
}  // namespace zinfolio
