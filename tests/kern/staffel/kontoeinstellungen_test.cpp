#include "kern/staffel/kontoeinstellungen.h"

#include <gtest/gtest.h>
#include <string>

#include "kern/dateien/dateifehler.h"
#include "kern/dateien/hex.h"
#include "kern/dateien/testordner.h"

namespace zinfolio {
namespace kontoeinstellungen_test {

using namespace std::string_literals;

constexpr auto datei = "Zinsverrechnung";

std::string Satz(const std::string& anfang) {
    return anfang + std::string(30 - anfang.size(), '\0');
}

const std::string art = Satz("\x02\0\x04\0"s);
const std::string datum = Satz("\x08\0\x0A\0"s + "31.12.2007");
const std::string methode = Satz("\x02\0\x01\0"s);

class KontoeinstellungenTest : public testing::Test {
  protected:
    Testordner ordner;

    [[nodiscard]] std::string HexInhalt() const {
        const std::string inhalt = ordner.Inhalt(datei);
        return Hex(std::as_bytes(std::span(inhalt)));
    }
    Kontoeinstellungswerte Gelesen(const std::string& inhalt) const {
        ordner.Ablegen(datei, inhalt);
        return KontoeinstellungenLesen(ordner.Pfad());
    }
};

TEST_F(KontoeinstellungenTest, DreiSaetzeMit30Bytes) {
    KontoeinstellungenSchreiben(
        ordner.Pfad(), {Zinsverrechnungsart::halbjahresende, "31.12.2007", Verzinsungsmethode::kalender365});
    EXPECT_EQ(HexInhalt(),
              "02 00 04 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 "
              "08 00 0A 00 33 31 2E 31 32 2E 32 30 30 37 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 "
              "02 00 04 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00");
}

TEST_F(KontoeinstellungenTest, LeeresDatumIstEinTextOhneZeichen) {
    KontoeinstellungenSchreiben(ordner.Pfad(),
                                {Zinsverrechnungsart::monatsende, "", Verzinsungsmethode::deutsch});
    EXPECT_EQ(ordner.Inhalt(datei), Satz("\x02"s) + Satz("\x08"s) + Satz("\x02"s));
}

TEST_F(KontoeinstellungenTest, KommenZurueckWieGeschrieben) {
    const Kontoeinstellungswerte werte = Gelesen(art + datum + methode);
    EXPECT_EQ(werte.Zinsverrechnungsart, Zinsverrechnungsart::halbjahresende);
    EXPECT_EQ(werte.Kontodatum, "31.12.2007");
    EXPECT_EQ(werte.Verzinsungsmethode, Verzinsungsmethode::englisch);
}

TEST_F(KontoeinstellungenTest, WasHinterDemWertStehtIstGleichgueltig) {
    std::string satz = art;
    satz.replace(4, 26, 26, '?');
    EXPECT_EQ(Gelesen(satz).Zinsverrechnungsart, Zinsverrechnungsart::halbjahresende);
}

TEST_F(KontoeinstellungenTest, FehlendeDateiGibtKeineWerte) {
    const Kontoeinstellungswerte werte = KontoeinstellungenLesen(ordner.Pfad());
    EXPECT_EQ(werte.Zinsverrechnungsart, std::nullopt);
    EXPECT_EQ(werte.Kontodatum, std::nullopt);
    EXPECT_EQ(werte.Verzinsungsmethode, std::nullopt);
}

// Record 1 ends its value at byte 4, record 2 at 30 + 14, record 3 at 60 + 4.
TEST_F(KontoeinstellungenTest, KurzeDateiGibtJedenGanzenWert) {
    const std::string ganz = art + datum + methode;
    for (const std::size_t laenge : {0U, 1U, 3U, 4U, 30U, 31U, 43U, 44U, 60U, 63U, 64U, 90U}) {
        const Kontoeinstellungswerte werte = Gelesen(ganz.substr(0, laenge));
        EXPECT_EQ(werte.Zinsverrechnungsart.has_value(), laenge >= 4) << laenge;
        EXPECT_EQ(werte.Kontodatum.has_value(), laenge >= 44) << laenge;
        EXPECT_EQ(werte.Verzinsungsmethode.has_value(), laenge >= 64) << laenge;
    }
}

// A writer that ends the file with the last value's own bytes leaves 64 of them.
TEST_F(KontoeinstellungenTest, DateiDieMitDemLetztenWertEndetBehaeltDieVerzinsungsmethode) {
    EXPECT_EQ(Gelesen((art + datum + methode).substr(0, 64)).Verzinsungsmethode,
              Verzinsungsmethode::englisch);
}

TEST_F(KontoeinstellungenTest, LeereSaetzeGebenKeinenWert) {
    const Kontoeinstellungswerte werte = Gelesen(Satz("") + datum + Satz(""));
    EXPECT_EQ(werte.Zinsverrechnungsart, std::nullopt);
    EXPECT_EQ(werte.Kontodatum, "31.12.2007");
    EXPECT_EQ(werte.Verzinsungsmethode, std::nullopt);
}

TEST_F(KontoeinstellungenTest, FalscherTypIstEinDateifehler) {
    EXPECT_THROW((void)Gelesen(datum + datum + methode), Dateifehler);
    EXPECT_THROW((void)Gelesen(art + art + methode), Dateifehler);
    EXPECT_THROW((void)Gelesen(art + datum + datum), Dateifehler);
    EXPECT_THROW((void)Gelesen(Satz("\x05"s) + datum + methode), Dateifehler);
}

TEST_F(KontoeinstellungenTest, LaengeUeberDenSatzHinausIstEinDateifehler) {
    EXPECT_THROW((void)Gelesen(art + Satz("\x08\0\x1B\0"s) + methode), Dateifehler);
    EXPECT_THROW((void)Gelesen(art + Satz("\x08\0\xFF\xFF"s) + methode), Dateifehler);
}

TEST_F(KontoeinstellungenTest, IndexDenDieListeNichtHatIstEinDateifehler) {
    EXPECT_EQ(Gelesen(Satz("\x02\0\x05\0"s)).Zinsverrechnungsart, Zinsverrechnungsart::jahresende);
    EXPECT_THROW((void)Gelesen(Satz("\x02\0\x06\0"s)), Dateifehler);
    EXPECT_THROW((void)Gelesen(Satz("\x02\0\xFF\xFF"s)), Dateifehler);
    EXPECT_THROW((void)Gelesen(Satz("\x02\0\0\x01"s)), Dateifehler);
    EXPECT_EQ(Gelesen(art + datum + Satz("\x02\0\x04\0"s)).Verzinsungsmethode,
              Verzinsungsmethode::kalender365);
    EXPECT_THROW((void)Gelesen(art + datum + Satz("\x02\0\x05\0"s)), Dateifehler);
    EXPECT_THROW((void)Gelesen(art + datum + Satz("\x02\0\xFF\xFF"s)), Dateifehler);
}

TEST(Rechengrundlage, NenntMethodeRhythmusUndAbschluss) {
    EXPECT_EQ(
        Rechengrundlage({Zinsverrechnungsart::quartalsende, "31.03.2007", Verzinsungsmethode::kalender365}),
        "kal/365 Tage  ·  Zinsverrechnung: Quartalsende  ·  Kontoabschluss: 31.03.2007");
}

}  // namespace kontoeinstellungen_test
}  // namespace zinfolio
