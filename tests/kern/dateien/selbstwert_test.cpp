#include "kern/dateien/selbstwert.h"

#include <array>
#include <gtest/gtest.h>
#include <random>

#include "kern/dateien/dateifehler.h"
#include "kern/dateien/hex.h"

namespace zinfolio {
namespace selbstwert_test {

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

TEST(SelbstwertSchreiben, OhneKennungNurDerWert) {
    std::array<std::byte, 8> satz{};
    satz.fill(std::byte{0xAA});
    SelbstwertSchreiben(std::string("für"), satz, Selbstform::NurText);
    EXPECT_EQ(Hex(satz), "03 00 66 FC 72 00 00 00");
    SelbstwertSchreiben(Zahl(-2), satz, Selbstform::NurZahl);
    EXPECT_EQ(Hex(satz), "FE FF 00 00 00 00 00 00");
}

TEST(SelbstwertLesen, OhneKennungSindNullbytesEinLeererTextUndNull) {
    const std::array<std::byte, 4> nullen{};
    EXPECT_EQ(SelbstwertLesen(nullen, Selbstform::NurText), Selbstwert(std::string()));
    EXPECT_EQ(SelbstwertLesen(nullen, Selbstform::NurZahl), Selbstwert(Zahl(0)));
}

/// Two records of 6 bytes: the text "für" does not fit, "fü" does.
Selbstwert Zweiter(std::string_view dateibytes) {
    return SelbstwertAus(std::as_bytes(std::span(dateibytes)), 6, 2);
}

TEST(SelbstwertAus, LetzterSatzZaehltWennErKennungUndWertGanzHaelt) {
    constexpr std::string_view zahl("\2\0\1\0??\2\0\7\0??", 12);
    for (const std::size_t laenge : {10U, 11U, 12U})
        EXPECT_EQ(Zweiter(zahl.substr(0, laenge)), Selbstwert(Zahl(7))) << laenge;
    constexpr std::string_view text("\2\0\1\0??\10\0\1\0x?", 12);
    EXPECT_EQ(Zweiter(text.substr(0, 11)), Selbstwert(std::string("x")));
}

TEST(SelbstwertAus, AbgeschnittenerWertImLetztenSatzIstLeer) {
    constexpr std::string_view zahl("\2\0\1\0??\2\0\7\0??", 12);
    for (const std::size_t laenge : {7U, 8U, 9U})
        EXPECT_EQ(Zweiter(zahl.substr(0, laenge)), Selbstwert()) << laenge;
    constexpr std::string_view text("\2\0\1\0??\10\0\1\0x?", 12);
    EXPECT_EQ(Zweiter(text.substr(0, 10)), Selbstwert());
}

TEST(SelbstwertAus, UnbekannteKennungIstAuchImKurzenSatzEinFehler) {
    EXPECT_THROW((void)Zweiter(std::string_view("\2\0\1\0??\3\0\7\0", 10)), Satzfehler);
}

TEST(SelbstwertAus, GanzerSatzDessenWertDarueberHinausgehtIstEinFehler) {
    EXPECT_THROW((void)Zweiter(std::string_view("\2\0\1\0??\10\0\3\0xx", 12)), Satzfehler);
}

TEST(SelbstwertAus, FehlenderSatzIstLeer) {
    EXPECT_EQ(Zweiter(""), Selbstwert());
    EXPECT_EQ(Zweiter(std::string_view("\2\0\1\0??", 6)), Selbstwert());
}

TEST(SelbstwertLesen, ZufallsbytesSindWertOderFehler) {
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

}  // namespace selbstwert_test
}  // namespace zinfolio
