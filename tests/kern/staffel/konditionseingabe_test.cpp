#include "kern/staffel/konditionseingabe.h"

#include <gtest/gtest.h>

#include "kern/dates/zahl.h"
#include "kern/staffel/beispielkonto.h"

namespace zinfolio {
namespace konditionseingabe_test {

const Ablehnung doppelt{"Das Datum existiert bereits.", "Gültigdatum", ""};
const Ablehnung unvollstaendig{"Unvollständige Daten. Eine Übernahme ist nicht möglich.", "Gültigdatum", ""};
const Ablehnung guthabenlinieNull{
    "Achtung !: Die Guthabenlinie beträgt ´0´ . Somit kommt allein der Guthabenzins2 zur Anwendung.", "", ""};
const Ablehnung kreditlinieNull{
    "Achtung !: Die Kreditlinie beträgt ´0´. Somit kommt allein der Kreditzins2 zur Anwendung.", "", ""};

const std::vector<Staffelsatz> keine;
const std::vector<Staffelsatz> eine{Kondition("01.01.2007", beispielkonditionen)};

Konditionseingabe Vollstaendig() {
    return {.Gültigdatum = "01.02.2007",
            .Gutzins1 = "2",
            .Gutzins2 = "3,3",
            .Guthabenlinie = "10000",
            .Kreditzins1 = "8",
            .Kreditzins2 = "12,75",
            .Kreditlinie = "500,5",
            .Zweitzinsart = 2};
}

struct Ergebnis {
    std::optional<Ablehnung> hinweis;
    bool angenommen = false;
};

void Erwarte(Konditionseingabe eingabe, bool bisher, const Ergebnis& erwartet,
             Doppelpruefung pruefung = Doppelpruefung::an) {
    const Konditionspruefung ergebnis = KonditionPruefen(eingabe, eine, pruefung, bisher);
    EXPECT_EQ(ergebnis.hinweis, erwartet.hinweis);
    EXPECT_EQ(ergebnis.angenommen, erwartet.angenommen);
}

TEST(ZinssatzZuGross, Ueber999) {
    for (const std::string_view zuGross : {"1000", "999,01", "999,00001", "1.000", "99999999"})
        EXPECT_TRUE(ZinssatzZuGross(zuGross)) << zuGross;
    for (const std::string_view gut : {"999", "999,0", "0", "3,5", "", ","})
        EXPECT_FALSE(ZinssatzZuGross(gut)) << gut;
}

TEST(KonditionPruefen, SaubereEingabeNimmtAn) {
    Erwarte(Vollstaendig(), true, {std::nullopt, true});
    Erwarte(Vollstaendig(), false, {std::nullopt, true});
}

TEST(KonditionPruefen, DoppeltesDatumLehntAb) {
    Konditionseingabe eingabe = Vollstaendig();
    eingabe.Gültigdatum = "01.01.2007";
    Erwarte(eingabe, true, {doppelt, false});
}

TEST(KonditionPruefen, DoppeltesDatumEndetVorDemFuellen) {
    Konditionseingabe eingabe;
    eingabe.Gültigdatum = "01.01.2007";
    const Konditionseingabe vorher = eingabe;
    EXPECT_EQ(KonditionPruefen(eingabe, eine, Doppelpruefung::an, true).hinweis, doppelt);
    EXPECT_EQ(eingabe, vorher);
}

TEST(KonditionPruefen, BeimAendernDarfDasDatumSchonDaSein) {
    Konditionseingabe eingabe = Vollstaendig();
    eingabe.Gültigdatum = "01.01.2007";
    Erwarte(eingabe, false, {std::nullopt, true}, Doppelpruefung::aus);
}

TEST(KonditionPruefen, JedeVorhandeneZeileZaehlt) {
    const std::vector<Staffelsatz> drei{Kondition("01.01.2006", {}), Kondition("01.01.2007", {}),
                                        Kondition("01.02.2007", {})};
    Konditionseingabe eingabe = Vollstaendig();
    EXPECT_EQ(KonditionPruefen(eingabe, drei, Doppelpruefung::an, true).hinweis, doppelt);
}

TEST(KonditionPruefen, FuelltLeereFelderMitNull) {
    Konditionseingabe eingabe;
    EXPECT_EQ(KonditionPruefen(eingabe, keine, Doppelpruefung::an, true).hinweis, unvollstaendig);
    EXPECT_EQ(eingabe, (Konditionseingabe{"0", "0", "0", "0", "0", "0", "0", 1}));
}

TEST(KonditionPruefen, OhneDatumUnvollstaendigUndKeineWarnung) {
    Konditionseingabe eingabe = Vollstaendig();
    eingabe.Guthabenlinie = "0";
    eingabe.Kreditlinie = "";
    for (const std::string datum : {"", "0"}) {
        eingabe.Gültigdatum = datum;
        Erwarte(eingabe, true, {unvollstaendig, false});
        Erwarte(eingabe, false, {unvollstaendig, false});
    }
}

TEST(KonditionPruefen, GuthabenlinieNullWarnt) {
    for (const std::string linie : {"0", "", "0,00"}) {
        Konditionseingabe eingabe = Vollstaendig();
        eingabe.Guthabenlinie = linie;
        Erwarte(eingabe, true, {guthabenlinieNull, true});
        Erwarte(eingabe, false, {guthabenlinieNull, false});
    }
}

TEST(KonditionPruefen, KreditlinieNullWarnt) {
    Konditionseingabe eingabe = Vollstaendig();
    eingabe.Kreditlinie = "";
    Erwarte(eingabe, true, {kreditlinieNull, true});
    Erwarte(eingabe, false, {kreditlinieNull, false});
}

TEST(KonditionPruefen, BeideLinienNullWarnenNurVorDerErsten) {
    Konditionseingabe eingabe = Vollstaendig();
    eingabe.Guthabenlinie = "";
    eingabe.Kreditlinie = "";
    Erwarte(eingabe, true, {guthabenlinieNull, true});
}

TEST(KonditionPruefen, DieErsteEingabeMitBeidenLinienNullWirdGespeichert) {
    // The form starts with the flag set.
    Konditionseingabe eingabe;
    eingabe.Gültigdatum = "01.01.2007";
    const Konditionspruefung ergebnis = KonditionPruefen(eingabe, keine, Doppelpruefung::an, true);
    EXPECT_EQ(ergebnis.hinweis, guthabenlinieNull);
    EXPECT_TRUE(ergebnis.angenommen);
    EXPECT_EQ(KonditionErzeugen(eingabe), Konditionssatz("01.01.2007", Konditionen{.Zweitzinsart = 1}));
}

TEST(KonditionPruefen, NachEinerAblehnungWirdEineWarnungNichtGespeichert) {
    bool angenommen = true;
    const auto pruefe = [&](std::string_view datum, std::string_view linie) {
        Konditionseingabe eingabe = Vollstaendig();
        eingabe.Gültigdatum = datum;
        eingabe.Guthabenlinie = linie;
        angenommen = KonditionPruefen(eingabe, eine, Doppelpruefung::an, angenommen).angenommen;
        return angenommen;
    };
    EXPECT_TRUE(pruefe("01.02.2007", "0")) << "warned and stored";
    EXPECT_FALSE(pruefe("01.01.2007", "10")) << "refused";
    EXPECT_FALSE(pruefe("01.02.2007", "0")) << "warned, silently not stored (wanted)";
    EXPECT_TRUE(pruefe("01.02.2007", "10")) << "a clean pass sets the flag again";
    EXPECT_TRUE(pruefe("01.03.2007", "0"));
}

TEST(KonditionPruefen, LinieOhneZahlIstEinFehler) {
    Konditionseingabe eingabe = Vollstaendig();
    eingabe.Guthabenlinie = "1,2,3";
    EXPECT_THROW((void)KonditionPruefen(eingabe, keine, Doppelpruefung::an, true), Zahlfehler);
}

TEST(KonditionErzeugen, SaetzeAlsVierByteLinienAlsAchtByte) {
    const Staffelsatz erwartet = Konditionssatz("01.02.2007", {.Gutzins1 = 2,
                                                               .Gutzins2 = 3.3F,
                                                               .Guthabenlinie = 10000,
                                                               .Kreditzins1 = 8,
                                                               .Kreditzins2 = 12.75F,
                                                               .Kreditlinie = 500.5,
                                                               .Zweitzinsart = 2});
    EXPECT_EQ(KonditionErzeugen(Vollstaendig()), erwartet);
}

TEST(KonditionErzeugen, EinSatzOhneZahlIstEinFehler) {
    Konditionseingabe eingabe = Vollstaendig();
    eingabe.Kreditzins2 = "x";
    EXPECT_THROW((void)KonditionErzeugen(eingabe), Zahlfehler);
}

TEST(KonditionZurEingabe, ZeigtDieZeileWieder) {
    EXPECT_EQ(KonditionZurEingabe(KonditionErzeugen(Vollstaendig())), Vollstaendig());
}

TEST(KonditionZurEingabe, ZweitzinsartNullKommtAlsEins) {
    for (const auto& [gespeichert, gezeigt] : {std::pair{0, 1}, std::pair{1, 1}, std::pair{2, 2}}) {
        Staffelsatz satz = eine[0];
        satz.kondition.Zweitzinsart = static_cast<std::int16_t>(gespeichert);
        EXPECT_EQ(KonditionZurEingabe(satz).Zweitzinsart, gezeigt);
    }
}

}  // namespace konditionseingabe_test
}  // namespace zinfolio
