#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "rechnen.h"

namespace zinfolio {
namespace auftrag_konto_test {

using testing::HasSubstr;

constexpr std::string_view allgemeineMeldung =
    "Bitte überprüfen Sie Ihre Angaben. Diese sind offenbar unvollständig oder nicht in sich schlüssig und "
    "lassen daher "
    "die gewünschte Berechnung nicht zu.";

/// The fields of a condition without its date: 2 % up to 10000, 3 % above.
const std::string guthaben =
    R"("Gutzins1":2,"Gutzins2":3,"Guthabenlinie":10000,"Kreditzins1":0,"Kreditzins2":0,"Kreditlinie":0,)"
    R"("Zweitzinsart":2)";

std::string Kondition(std::string_view datum) {
    return R"({"Datum":")" + std::string(datum) + R"(",)" + guthaben + "}";
}

std::string Staffelauftrag(std::string_view zahlungen, std::string_view konditionen,
                           std::string_view kontodatum) {
    return R"({"id":7,"rechnung":"staffel","Zahlungen":[)" + std::string(zahlungen) + R"(],"Konditionen":[)" +
           std::string(konditionen) + R"(],"Kontodatum":")" + std::string(kontodatum) +
           R"(","Zinsverrechnungsart":2,"Verzinsungsmethode":0})";
}

/// A row with the conditions above: kind, text and date; amount; days, interest, accrued, credited, balance.
std::string Zeile(std::string_view anfang, std::string_view betrag, std::string_view rest) {
    return "{" + std::string(anfang) + R"(,"Satzdatum":)" + std::string(betrag) + "," + guthaben + "," +
           std::string(rest) + "}";
}

// 15000 for 89 days: 10000 at 2 % are 49.4444, 5000 at 3 % are 37.0833, together 86.53. The closing date
// equals the first settlement date and thus stands twice.
TEST(Staffelauftrag, EinlageUeberEinVierteljahr) {
    const std::string null =
        R"("Zinstage":0,"Periodenzins":0,"Kumulzins":0,"Zinsgutschrift":0,"Kontostand":)";
    EXPECT_EQ(
        Ergebnis(Staffelauftrag(R"({"Datum":"01.01.2007","Betrag":15000,"Text":"Einlage"})",
                                Kondition("01.01.2007"), "31.03.2007")),
        R"({"id":7,"ok":true,"Zeilen":[)" +
            Zeile(R"("Zahlungsart":2,"Zahlungstext":"")", R"("01.01.2007","Zahlbetrag":0)", null + "0") +
            "," +
            Zeile(
                R"("Zahlungsart":1,"Zahlungstext":"Einlage")", R"("01.01.2007","Zahlbetrag":15000)",
                R"("Zinstage":89,"Periodenzins":86.53,"Kumulzins":86.53,"Zinsgutschrift":0,"Kontostand":15000)") +
            "," +
            Zeile(
                R"("Zahlungsart":3,"Zahlungstext":"")", R"("31.03.2007","Zahlbetrag":0)",
                R"("Zinstage":0,"Periodenzins":0,"Kumulzins":0,"Zinsgutschrift":86.53,"Kontostand":15086.53)") +
            "," +
            Zeile(R"("Zahlungsart":3,"Zahlungstext":"")", R"("31.03.2007","Zahlbetrag":0)",
                  null + "15086.53") +
            R"(],"Gesamtzahlungssumme":"15.000,00","Endvermögen":"15.086,53","Gesamtzinsen":"86,53"})");
}

TEST(Staffelauftrag, ZahlungenUndKonditionenWerdenNachDatumSortiert) {
    const std::string ergebnis =
        Ergebnis(Staffelauftrag(R"({"Datum":"01.02.2007","Betrag":2},{"Datum":"01.01.2007","Betrag":1})",
                                Kondition("15.01.2007") + "," + Kondition("01.01.2007"), "01.03.2007"));
    const std::string datum = R"("Satzdatum":")";
    std::string daten;
    for (std::size_t stelle = ergebnis.find(datum); stelle != std::string::npos;
         stelle = ergebnis.find(datum, stelle + 1)) {
        daten += ergebnis.substr(stelle + datum.size(), 10) + " ";
    }
    EXPECT_EQ(daten, "01.01.2007 01.01.2007 15.01.2007 01.02.2007 01.03.2007 ");
}

TEST(Staffelauftrag, JedeZeileHatDieKonditionDieGilt) {
    const std::string minus =
        R"({"Datum":"01.02.2007","Gutzins1":-0.0,"Gutzins2":0,"Guthabenlinie":0.5,"Kreditzins1":0,"Kreditzins2":0,)"
        R"("Kreditlinie":0,"Zweitzinsart":1})";
    const std::string plus =
        R"({"Datum":"01.01.2007","Gutzins1":0,"Gutzins2":0,"Guthabenlinie":0.5,"Kreditzins1":0,"Kreditzins2":0,)"
        R"("Kreditlinie":0,"Zweitzinsart":1})";
    const std::string ergebnis =
        Ergebnis(Staffelauftrag(R"({"Datum":"01.01.2007","Betrag":1},{"Datum":"01.02.2007","Betrag":1})",
                                plus + "," + minus, "01.03.2007"));
    std::string saetze;
    for (std::size_t stelle = ergebnis.find("Gutzins1"); stelle != std::string::npos;
         stelle = ergebnis.find("Gutzins1", stelle + 1)) {
        saetze += ergebnis.substr(stelle + 10, ergebnis.find(',', stelle) - stelle - 10) + " ";
    }
    EXPECT_EQ(saetze, "0 0 -0 -0 -0 ");
}

TEST(Staffelauftrag, SaetzeStehenAlsDoubleDesVierbyteWerts) {
    const std::string kondition =
        R"({"Datum":"01.01.2007","Gutzins1":3.3,"Gutzins2":0.5,"Guthabenlinie":1,"Kreditzins1":1e-40,"Kreditzins2":0,)"
        R"("Kreditlinie":0,"Zweitzinsart":1})";
    const std::string ergebnis =
        Ergebnis(Staffelauftrag(R"({"Datum":"01.01.2007","Betrag":1})", kondition, "01.03.2007"));
    // 3.3 and 1e-40 as the nearest 4-byte floats: 13841203 / 2^22 and 71362 / 2^149
    EXPECT_THAT(ergebnis, HasSubstr(R"("Gutzins1":3.299999952316284,"Gutzins2":0.5)"));
    EXPECT_THAT(ergebnis, HasSubstr(R"("Kreditzins1":9.99994610111476e-41)"));
}

TEST(Staffelauftrag, TexteStehenWieImSatz) {
    const auto text = [](std::string_view eingabe) {
        const std::string ergebnis = Ergebnis(
            Staffelauftrag(R"({"Datum":"01.01.2007","Betrag":1,"Text":")" + std::string(eingabe) + "\"}",
                           Kondition("01.01.2007"), "01.03.2007"));
        const std::size_t anfang = ergebnis.find(R"("Zahlungsart":1)") + 16;
        return ergebnis.substr(anfang, ergebnis.find(R"(,"Satzdatum")", anfang) - anfang);
    };
    EXPECT_EQ(text("Überweisung 5 €"), R"("Zahlungstext":"Überweisung 5 €")");
    EXPECT_EQ(text("日本"), R"("Zahlungstext":"??")");
    EXPECT_EQ(text("  vorn  "), R"("Zahlungstext":"  vorn")");
    EXPECT_EQ(text(R"(\"a\\b\n\u0001)"), R"("Zahlungstext":"\"a\\b\n\u0001")");
    EXPECT_EQ(text("abcdefghijklmnopqrstuvwxyzäöü"), R"("Zahlungstext":"abcdefghijklmnopqrstuvwxy")");
    EXPECT_EQ(text("ÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄ"), R"("Zahlungstext":"ÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄ")");
}

struct Ablehnungsfall {
    std::string name;
    std::string auftrag;
    std::string meldung;
    std::string feld;
    std::string registertext;
};

class Staffelablehnung : public testing::TestWithParam<Ablehnungsfall> {};

TEST_P(Staffelablehnung, NenntMeldungFeldUndRegister) {
    const Ablehnungsfall& fall = GetParam();
    EXPECT_EQ(Ergebnis(fall.auftrag), R"({"id":7,"ok":false,"Meldung":")" + fall.meldung + R"(","Feld":)" +
                                          fall.feld + R"(,"Register":)" + fall.registertext + "}");
}

const std::string eineZahlung = R"({"Datum":"01.01.2007","Betrag":1})";

INSTANTIATE_TEST_SUITE_P(
    Faelle, Staffelablehnung,
    testing::Values(
        Ablehnungsfall{"OhneAbschluss", Staffelauftrag(eineZahlung, Kondition("01.01.2007"), ""),
                       "Das Kontoschluss/-berechnungsdatum fehlt", "\"Kontodatum\"", "\"Zinsverrechnung\""},
        Ablehnungsfall{"OhneZahlungen", Staffelauftrag("", Kondition("01.01.2007"), "31.12.2007"),
                       "Es existieren keine Zahlungsdaten. Eine Berechnung ist nicht möglich", "null",
                       "\"Zahlungen\""},
        Ablehnungsfall{
            "OhneKonditionen", Staffelauftrag(eineZahlung, "", "31.12.2007"),
            "Es existieren keine Zinsdaten. Eine Berechnung ist nicht möglich. Geben Sie im Register "
            "Zinssätze die Zinsdaten ein und beenden Sie die Eingabe durch Drücken des Buttons <Eingabe "
            "übernehmen>.",
            "null", "\"Zinssätze\""},
        Ablehnungsfall{"AbschlussVorAllem",
                       Staffelauftrag(eineZahlung, Kondition("01.01.2007"), "01.12.2006"),
                       "Das Datum für den Kontoabschluss liegt vor dem ersten Zahlungsdatum.",
                       "\"Kontodatum\"", "\"Zinsverrechnung\""},
        Ablehnungsfall{
            "KonditionZuSpaet", Staffelauftrag(eineZahlung, Kondition("02.01.2007"), "31.12.2007"),
            "Eine Berechnung ist nicht möglich, da für die erste Zahlung keine gültigen Zinssätze "
            "existieren, bzw. die Gültigkeit der Zinskonditionen erst nach dem ersten Zahlungsdatum "
            "beginnt.",
            "null", "\"Zinssätze\""}),
    [](const auto& fall) { return fall.param.name; });

TEST(Staffelauftrag, UeberlaufIstDieAllgemeineMeldung) {
    EXPECT_EQ(Ergebnis(Staffelauftrag(
                  R"({"Datum":"01.01.2007","Betrag":1e308},{"Datum":"01.01.2007","Betrag":1e308})",
                  Kondition("01.01.2007"), "31.12.2007")),
              OhneErgebnis("7", allgemeineMeldung));
}

TEST(Staffelauftrag, EinBetragKurzVorDemUeberlaufWirdGerechnet) {
    const std::string ergebnis = Ergebnis(
        Staffelauftrag(R"({"Datum":"31.03.2007","Betrag":1e308})", Kondition("01.01.2007"), "31.03.2007"));
    EXPECT_THAT(ergebnis, HasSubstr(R"("Zahlbetrag":1e+308)"));
    EXPECT_THAT(ergebnis, HasSubstr(R"("Zinsgutschrift":0,"Kontostand":1e+308}],)"));
}

TEST(Staffelauftrag, MehrZahlungenAlsEineDateiFasstSindEinFehler) {
    const auto mit = [](int anzahl) {
        std::string zahlungen = eineZahlung;
        for (int i = 1; i < anzahl; ++i)
            zahlungen += R"(,{"Datum":"01.01.2008","Betrag":1})";
        return Ergebnis(Staffelauftrag(zahlungen, Kondition("01.01.2007"), "31.03.2007"));
    };
    EXPECT_THAT(mit(32767), HasSubstr(R"("ok":true)"));
    EXPECT_EQ(mit(32768), OhneErgebnis("7", allgemeineMeldung));
}

/// The job of a payment series; `felder` stands for the fields that differ.
std::string Reihe(std::string_view felder) {
    return R"({"id":7,"rechnung":"zahlungsreihe","Beschreibung":"Rate","Combo5":1,"Check2":0,)" +
           std::string(felder) + "}";
}

TEST(Zahlungsreihe, MonatsratenBehaltenIhrenTag) {
    EXPECT_EQ(Ergebnis(Reihe(
                  R"("Begdatum":"30.01.2007","Betrag":"1.250,5","Ratzahl":"3","Abstand":"1","Stufen":"",)"
                  R"("Delta":"","Check1":0,"Command1":"%")")),
              R"({"id":7,"ok":true,"Zahlungen":[{"Datum":"30.01.2007","Betrag":1250.5,"Text":"Rate"},)"
              R"({"Datum":"28.02.2007","Betrag":1250.5,"Text":"Rate"},)"
              R"({"Datum":"30.03.2007","Betrag":1250.5,"Text":"Rate"}],"Datumrech":"30.03.2007"})");
}

TEST(Zahlungsreihe, StufenWachsenUmProzentOderBetrag) {
    const std::string rest =
        R"("Begdatum":"01.01.2007","Betrag":"100","Ratzahl":"1","Abstand":"1","Stufen":"3","Delta":"10","Check1":1,)";
    EXPECT_EQ(Ergebnis(Reihe(rest + R"("Command1":"%")")),
              R"({"id":7,"ok":true,"Zahlungen":[{"Datum":"01.01.2007","Betrag":100,"Text":"Rate"},)"
              R"({"Datum":"01.02.2007","Betrag":110,"Text":"Rate"},)"
              R"({"Datum":"01.03.2007","Betrag":121,"Text":"Rate"}],"Datumrech":"01.03.2007"})");
    EXPECT_THAT(Ergebnis(Reihe(rest + R"("Command1":"€")")),
                HasSubstr(R"("Datum":"01.03.2007","Betrag":120)"));
}

// The check would fill the empty count with "1"; the date is told from the fields before that, where an empty
// count counts as 1 too, and an empty spacing tells no date at all.
TEST(Zahlungsreihe, DatumrechGiltFuerDieFelderWieGetippt) {
    EXPECT_EQ(
        Ergebnis(
            Reihe(R"("Begdatum":"01.01.2007","Betrag":"5","Ratzahl":"","Abstand":"","Stufen":"","Delta":"",)"
                  R"("Check1":0,"Command1":"%")")),
        R"({"id":7,"ok":true,"Zahlungen":[{"Datum":"01.01.2007","Betrag":5,"Text":"Rate"}],"Datumrech":""})");
}

TEST(Zahlungsreihe, AblehnungenDesFormulars) {
    EXPECT_EQ(
        Ergebnis(Reihe(R"("Begdatum":"01.01.2007","Betrag":"5","Ratzahl":"1","Abstand":"1","Stufen":"",)"
                       R"("Delta":"","Check1":1,"Command1":"%")")),
        R"({"id":7,"ok":false,"Meldung":"Sie haben Dynamisierung der Zahlungen angekreuzt, aber nicht die Anzahl )"
        R"(der Stufen angegeben.","Feld":"Stufen","Register":null})");
    EXPECT_EQ(
        Ergebnis(Reihe(R"("Begdatum":"","Betrag":"5","Ratzahl":"1","Abstand":"1","Stufen":"","Delta":"",)"
                       R"("Check1":0,"Command1":"%")")),
        R"({"id":7,"ok":false,"Meldung":"Unvollständige Daten. Eine Übernahme ist nicht möglich.",)"
        R"("Feld":"Begdatum","Register":null})");
}

TEST(Zahlungsreihe, KeineZahlIstDieAllgemeineMeldung) {
    EXPECT_EQ(
        Ergebnis(Reihe(R"("Begdatum":"01.01.2007","Betrag":"1e5","Ratzahl":"1","Abstand":"1","Stufen":"",)"
                       R"("Delta":"","Check1":0,"Command1":"%")")),
        OhneErgebnis("7", allgemeineMeldung));
}

}  // namespace auftrag_konto_test
}  // namespace zinfolio
