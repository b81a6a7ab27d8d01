#include "kern/staffel/staffelsatz.h"

#include <array>
#include <gtest/gtest.h>
#include <limits>
#include <random>

#include "kern/dateien/hex.h"
#include "kern/staffel/beispielkonto.h"

namespace zinfolio {
namespace staffelsatz_test {

using Satzbytes = std::array<std::byte, 129>;

Satzbytes Bytes(const Staffelsatz& satz) {
    Satzbytes bytes;
    bytes.fill(std::byte{0xAA});
    satz.Schreiben(bytes);
    return bytes;
}

std::string Ausschnitt(const Staffelsatz& satz, std::size_t stelle, std::size_t breite) {
    const Satzbytes bytes = Bytes(satz);
    return Hex(std::span(bytes).subspan(stelle, breite));
}

std::string Wiederholt(std::string_view byte, int anzahl) {
    std::string text;
    for (int i = 0; i < anzahl; ++i)
        text += (i > 0 ? " " : "") + std::string(byte);
    return text;
}

Staffelsatz VollerSatz() {
    Staffelsatz satz = Zahlungssatz("15.03.2007", -1250.5, "Miete Köln");
    satz.kondition = {.Gutzins1 = 3.3F,
                      .Gutzins2 = 3.5F,
                      .Guthabenlinie = 10000,
                      .Kreditzins1 = 12.75F,
                      .Kreditzins2 = 999,
                      .Kreditlinie = 500,
                      .Zweitzinsart = 2};
    satz.Reservefeld = 0x01020304;
    satz.Zinstage = -89;
    satz.Periodenzins = 86.53;
    satz.Kumulzins = 0.5;
    satz.Zinsgutschrift = 1;
    satz.Kontostand = -2;
    return satz;
}

TEST(Staffelsatz, StehtMit129BytesInDerDatei) {
    const std::string erwartet =
        "01 00 "                                                        // Zahlungsart
        "4D 69 65 74 65 20 4B F6 6C 6E 20 20 20 20 20 20 20 20 20 20 "  // Zahlungstext, ö ist F6
        "20 20 20 20 20 "
        "31 35 2E 30 33 2E 32 30 30 37 "  // Satzdatum
        "32 30 30 37 30 33 31 35 20 20 "  // Sortierschluessel
        "00 00 00 00 00 8A 93 C0 "        // Zahlbetrag -1250,5
        "33 33 53 40 "                    // Gutzins1: the 4-byte value nearest to 3,3
        "00 00 60 40 "                    // Gutzins2 3,5
        "00 00 00 00 00 88 C3 40 "        // Guthabenlinie 10000
        "00 00 4C 41 "                    // Kreditzins1 12,75
        "00 C0 79 44 "                    // Kreditzins2 999
        "00 00 00 00 00 40 7F 40 "        // Kreditlinie 500
        "02 00 "                          // Zweitzinsart
        "04 03 02 01 "                    // Reservefeld
        "A7 FF FF FF "                    // Zinstage -89
        "52 B8 1E 85 EB A1 55 40 "        // Periodenzins 86,53
        "00 00 00 00 00 00 E0 3F "        // Kumulzins 0,5
        "00 00 00 00 00 00 F0 3F "        // Zinsgutschrift 1
        "00 00 00 00 00 00 00 C0";        // Kontostand -2
    const Satzbytes bytes = Bytes(VollerSatz());
    EXPECT_EQ(Hex(bytes), erwartet);
}

TEST(Staffelsatz, KommtZurueckWieGeschrieben) {
    const Satzbytes bytes = Bytes(VollerSatz());
    const Staffelsatz zurueck = Staffelsatz::Lesen(bytes);
    EXPECT_EQ(zurueck, VollerSatz());
    EXPECT_EQ(zurueck.kondition.Gutzins1, 3.3F);
    EXPECT_NE(static_cast<double>(zurueck.kondition.Gutzins1), 3.3);
}

TEST(Staffelsatz, NieZugewieseneTexteSindNullbytes) {
    const Satzbytes bytes = Bytes(Staffelsatz{});
    EXPECT_EQ(Hex(bytes), Wiederholt("00", 129));
}

TEST(Staffelsatz, BeliebigeBytesUeberstehenLesenUndSchreiben) {
    std::mt19937 zufall(48000);
    for (int runde = 0; runde < 2000; ++runde) {
        Satzbytes bytes;
        for (std::byte& b : bytes)
            b = static_cast<std::byte>(zufall() & 0xFFU);
        ASSERT_EQ(Bytes(Staffelsatz::Lesen(bytes)), bytes) << "round " << runde;
    }
}

TEST(Zahlungssatz, SetztArtTextDatumSchluesselUndBetrag) {
    const Staffelsatz satz = Zahlungssatz("28.02.2007", 100, "Miete");
    EXPECT_EQ(satz.Zahlungsart, 1);
    EXPECT_EQ(satz.Zahlungstext.Roh(), "Miete                    ");
    EXPECT_EQ(satz.Satzdatum.Roh(), "28.02.2007");
    EXPECT_EQ(satz.Sortierschluessel.Roh(), "20070228  ");
    EXPECT_EQ(satz.Zahlbetrag, 100);
    EXPECT_EQ(satz.kondition, Konditionen{});
    EXPECT_EQ(Ausschnitt(satz, 55, 74), Wiederholt("00", 74)) << "all behind the amount is 0";
}

TEST(Zahlungssatz, LeererTextIstZugewiesenUndBestehtAusLeerzeichen) {
    EXPECT_EQ(Ausschnitt(Zahlungssatz("28.02.2007", 0, ""), 2, 25), Wiederholt("20", 25));
}

TEST(Zahlungssatz, TextWirdNach25ZeichenAbgeschnitten) {
    EXPECT_EQ(Zahlungssatz("28.02.2007", 1, "1234567890123456789012345").Zahlungstext.Roh(),
              "1234567890123456789012345");
    EXPECT_EQ(Zahlungssatz("28.02.2007", 1, "1234567890123456789012345678").Zahlungstext.Roh(),
              "1234567890123456789012345");
}

TEST(Zahlungssatz, UmlautZaehltAlsEinZeichen) {
    // 24 ö and one x: 49 bytes of UTF-8, 25 characters.
    std::string text;
    for (int i = 0; i < 24; ++i)
        text += "ö";
    EXPECT_EQ(Ausschnitt(Zahlungssatz("28.02.2007", 1, text + "x"), 2, 25), Wiederholt("F6", 24) + " 78");
}

TEST(Zahlungssatz, EurozeichenIstEinByteUndFremdesZeichenEinFragezeichen) {
    EXPECT_EQ(Ausschnitt(Zahlungssatz("28.02.2007", 1, "€"), 2, 2), "80 20");
    EXPECT_EQ(Ausschnitt(Zahlungssatz("28.02.2007", 1, "Łódź"), 2, 5), "3F F3 64 3F 20");
}

TEST(Konditionssatz, SetztArtDatumSchluesselUndKonditionSonstNichts) {
    const Staffelsatz satz = Konditionssatz("01.01.2007", beispielkonditionen);
    EXPECT_EQ(satz.Zahlungsart, 2);
    EXPECT_EQ(satz.Satzdatum.Roh(), "01.01.2007");
    EXPECT_EQ(satz.Sortierschluessel.Roh(), "20070101  ");
    EXPECT_EQ(satz.kondition, beispielkonditionen);
    EXPECT_EQ(Ausschnitt(satz, 2, 25), Wiederholt("00", 25)) << "Zahlungstext is never assigned";
    EXPECT_EQ(Ausschnitt(satz, 47, 8), Wiederholt("00", 8));
    EXPECT_EQ(Ausschnitt(satz, 89, 40), Wiederholt("00", 40));
}

TEST(Zinsterminsatz, SetztNurArtUndDatum) {
    const Staffelsatz satz = Zinsterminsatz(Datum::Lesen("31.03.2007"));
    EXPECT_EQ(Ausschnitt(satz, 0, 2), "03 00");
    EXPECT_EQ(Ausschnitt(satz, 2, 25), Wiederholt("00", 25));
    EXPECT_EQ(satz.Satzdatum.Roh(), "31.03.2007");
    EXPECT_EQ(Ausschnitt(satz, 37, 92), Wiederholt("00", 92)) << "no key either";
}

TEST(SetzeDatum, SchluesselFolgtDenStellenDesTextes) {
    Staffelsatz satz = Zahlungssatz("01.01.2007", 5, "Text");
    SetzeDatum(satz, "31.12.9999");
    EXPECT_EQ(satz.Satzdatum.Roh(), "31.12.9999");
    EXPECT_EQ(satz.Sortierschluessel.Roh(), "99991231  ");
    SetzeDatum(satz, "ab.cd.efgh");
    EXPECT_EQ(satz.Satzdatum.Roh(), "ab.cd.efgh");
    EXPECT_EQ(satz.Sortierschluessel.Roh(), "efghcdab  ");
    EXPECT_EQ(satz.Zahlbetrag, 5);
}

TEST(DatumVon, LiestDasDatumUndScheitertAnBeschaedigtem) {
    EXPECT_EQ(DatumVon(Zahlung("29.02.2008", 1)), Datum::Aus(2008, 2, 29).value());
    EXPECT_THROW((void)DatumVon(Zahlung("29.02.2007", 1)), Datumsfehler);
    EXPECT_THROW((void)DatumVon(Staffelsatz{}), Datumsfehler);
}

}  // namespace staffelsatz_test
}  // namespace zinfolio
