#include "kern/dateien/selbstwert.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>

#include "kern/dateien/dateifehler.h"
#include "kern/dateien/hex.h"
#include "kern/dateien/satzdatei.h"
#include "kern/dateien/testordner.h"

namespace zinfolio {
namespace {

template <std::size_t N>
std::string Geschrieben(const Selbstwert& wert) {
    std::array<std::byte, N> satz{};
    satz.fill(std::byte{0xAA});
    SelbstwertSchreiben(wert, satz);
    return Hex(satz);
}

template <typename... B>
Selbstwert Gelesen(B... bytes) {
    const std::array<std::byte, sizeof...(B)> satz{static_cast<std::byte>(bytes)...};
    return SelbstwertLesen(satz);
}

std::int16_t Zahl(int wert) {
    return static_cast<std::int16_t>(wert);
}

TEST(SelbstwertSchreiben, ZahlHinterIhrerKennung) {
    EXPECT_EQ(Geschrieben<6>(Zahl(5)), "02 00 05 00 00 00");
    EXPECT_EQ(Geschrieben<4>(Zahl(-2)), "02 00 FE FF");
}

TEST(SelbstwertSchreiben, TextMitLaengeInWindows1252) {
    EXPECT_EQ(Geschrieben<10>(std::string("für")), "08 00 03 00 66 FC 72 00 00 00");
    EXPECT_EQ(Geschrieben<7>(std::string("für")), "08 00 03 00 66 FC 72");
    EXPECT_EQ(Geschrieben<6>(std::string()), "08 00 00 00 00 00");
}

TEST(SelbstwertSchreiben, LeererWertSindNullbytes) {
    EXPECT_EQ(Geschrieben<4>(std::monostate{}), "00 00 00 00");
}

TEST(SelbstwertSchreiben, LaengeZweiBytesKleinstesZuerst) {
    EXPECT_TRUE(Geschrieben<310>(std::string(300, 'x')).starts_with("08 00 2C 01 78 78"));
}

TEST(SelbstwertSchreiben, ZuLangerTextWirdAbgelehnt) {
    EXPECT_THROW(Geschrieben<6>(std::string("für")), Satzfehler);
    EXPECT_THROW(Geschrieben<3>(Zahl(1)), Satzfehler);
    EXPECT_THROW(Geschrieben<70000>(std::string(65536, 'x')), Satzfehler);
    EXPECT_NO_THROW(Geschrieben<70000>(std::string(65535, 'x')));
}

TEST(SelbstwertLesen, ZahlTextUndLeer) {
    EXPECT_EQ(Gelesen(2, 0, 5, 0, 0xAA, 0xAA), Selbstwert(Zahl(5)));
    EXPECT_EQ(Gelesen(2, 0, 0xFE, 0xFF), Selbstwert(Zahl(-2)));
    EXPECT_EQ(Gelesen(8, 0, 3, 0, 0x66, 0xFC, 0x72, 0xAA), Selbstwert(std::string("für")));
    EXPECT_EQ(Gelesen(8, 0, 0, 0), Selbstwert(std::string()));
    EXPECT_EQ(Gelesen(0, 0, 7, 7), Selbstwert());
}

TEST(SelbstwertLesen, UnbekannteKennungWirdAbgelehnt) {
    EXPECT_THROW(Gelesen(3, 0, 0, 0), Satzfehler);
    EXPECT_THROW(Gelesen(2, 1, 0, 0), Satzfehler);
    EXPECT_THROW(Gelesen(0xFF, 0xFF, 0, 0), Satzfehler);
}

TEST(SelbstwertLesen, WertUeberDasSatzendeWirdAbgelehnt) {
    EXPECT_THROW(Gelesen(8, 0, 3, 0, 0x66, 0xFC), Satzfehler);
    EXPECT_THROW(Gelesen(8, 0, 0xFF, 0xFF, 0x66, 0xFC), Satzfehler);
    EXPECT_THROW(Gelesen(8, 0, 3), Satzfehler);
    EXPECT_THROW(Gelesen(2, 0, 3), Satzfehler);
    EXPECT_THROW(Gelesen(2), Satzfehler);
}

TEST(Selbstsatz, DateiAusDreiWertenKommtGleichZurueck) {
    const Testordner ordner;
    const Satzdatei<Selbstsatz<30>> datei(ordner.Pfad(), "Zinsverrechnung");
    const std::vector<Selbstsatz<30>> werte{{Zahl(2)}, {std::string("31.12.2008")}, {Zahl(0)}};
    datei.Schreiben(werte);
    EXPECT_EQ(ordner.Inhalt("Zinsverrechnung").size(), 90U);
    EXPECT_EQ(datei.Lesen(), werte);
}

TEST(Selbstsatz, FehlerNenntDateiUndSatz) {
    const Testordner ordner;
    std::string inhalt(90, '\0');
    inhalt[30] = 5;
    ordner.Ablegen("Zinsverrechnung", inhalt);
    const Satzdatei<Selbstsatz<30>> datei(ordner.Pfad(), "Zinsverrechnung");
    EXPECT_THAT([&] { (void)datei.Lesen(); },
                testing::ThrowsMessage<Dateifehler>("Datei \"" + datei.Pfad().string() +
                                                    "\", Satz 2: Unbekannte Typkennung 5."));
}

TEST(Selbstsatz, ZuLangerTextLaesstDieAlteDateiStehen) {
    const Testordner ordner;
    const Satzdatei<Selbstsatz<30>> datei(ordner.Pfad(), "Zinsverrechnung");
    datei.Schreiben(std::vector<Selbstsatz<30>>{{Zahl(1)}});
    const std::vector<Selbstsatz<30>> werte{{Zahl(2)}, {std::string(27, 'x')}};
    EXPECT_THAT([&] { datei.Schreiben(werte); },
                testing::ThrowsMessage<Dateifehler>(testing::AllOf(
                    testing::HasSubstr("Satz 2"), testing::HasSubstr("31 Bytes, der Satz hat 30"))));
    EXPECT_EQ(datei.Lesen(), (std::vector<Selbstsatz<30>>{{Zahl(1)}}));
}

TEST(Selbstsatz, ZufallsbytesSindWertOderFehler) {
    std::mt19937 zufall(7);
    int werte = 0;
    int fehler = 0;
    for (int i = 0; i < 20000; ++i) {
        std::array<std::byte, 30> satz{};
        for (std::byte& b : satz)
            b = static_cast<std::byte>(zufall());
        satz[0] = static_cast<std::byte>(zufall() % 10);
        satz[1] = std::byte{0};
        satz[3] = std::byte{0};
        try {
            const Selbstwert wert = SelbstwertLesen(satz);
            std::array<std::byte, 30> wieder{};
            SelbstwertSchreiben(wert, wieder);
            EXPECT_EQ(SelbstwertLesen(wieder), wert);
            ++werte;
        } catch (const Satzfehler&) {
            ++fehler;
        }
    }
    EXPECT_GT(werte, 1000);
    EXPECT_GT(fehler, 1000);
}

}  // namespace
}  // namespace zinfolio
