#include "kern/dateien/satzbytes.h"

#include <array>
#include <bit>
#include <gtest/gtest.h>
#include <limits>

#include "kern/dateien/hex.h"
#include "kern/dateien/probesatz.h"

namespace zinfolio {
namespace satzbytes_test {

using Bytes = std::array<std::byte, Probesatz::Satzlaenge>;

std::string Hexsatz(const Probesatz& satz) {
    Bytes bytes{};
    satz.Schreiben(bytes);
    return Hex(bytes);
}

Probesatz HinUndZurueck(const Probesatz& satz) {
    Bytes bytes{};
    satz.Schreiben(bytes);
    return Probesatz::Lesen(bytes);
}

TEST(Satzbytes, GanzerSatzByteFuerByte) {
    const Probesatz satz{1, Festtext<10>::AusWindows1252("M\xFCller"), 1234.5, 3.3F, -2};
    EXPECT_EQ(Hexsatz(satz),
              "01 00 "
              "4D FC 6C 6C 65 72 20 20 20 20 "
              "00 00 00 00 00 4A 93 40 "  // 1.00110100101b * 2^10
              "33 33 53 40 "              // the 4-byte value nearest to 3.3
              "FE FF FF FF");
    EXPECT_EQ(HinUndZurueck(satz), satz);
}

TEST(Satzbytes, LeererSatzSindNullbytes) {
    EXPECT_EQ(Hexsatz(Probesatz{}),
              "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00");
    EXPECT_EQ(HinUndZurueck(Probesatz{}).name, Festtext<10>());
}

TEST(Satzbytes, KleinstesByteZuerst) {
    std::array<std::byte, 18> bytes{};
    Satzschreiber schreiber(bytes);
    schreiber.Ganz16(0x0102);
    schreiber.Ganz32(0x01020304);
    schreiber.Gleit4(1.0F);  // 3F800000
    schreiber.Gleit8(-2.0);  // C000000000000000
    EXPECT_EQ(Hex(bytes), "02 01 04 03 02 01 00 00 80 3F 00 00 00 00 00 00 00 C0");
    EXPECT_EQ(schreiber.Rest(), 0U);
}

TEST(Satzbytes, RaenderDerGanzenZahlenUeberstehen) {
    Probesatz satz;
    satz.art = std::numeric_limits<std::int16_t>::min();
    satz.tage = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(HinUndZurueck(satz).art, -32768);
    EXPECT_EQ(HinUndZurueck(satz).tage, 2147483647);
}

TEST(Satzbytes, JedesBitmusterVonGleitzahlenUebersteht) {
    constexpr std::uint64_t signalNan8 = 0x7FF0'0000'0000'0123;
    constexpr std::uint32_t stillesNan4 = 0xFFC0'1234;
    Probesatz satz;
    satz.betrag = std::bit_cast<double>(signalNan8);
    satz.zins = std::bit_cast<float>(stillesNan4);
    EXPECT_EQ(std::bit_cast<std::uint64_t>(HinUndZurueck(satz).betrag), signalNan8);
    EXPECT_EQ(std::bit_cast<std::uint32_t>(HinUndZurueck(satz).zins), stillesNan4);

    satz.betrag = -0.0;
    EXPECT_EQ(std::bit_cast<std::uint64_t>(HinUndZurueck(satz).betrag), 0x8000'0000'0000'0000U);
    satz.betrag = std::numeric_limits<double>::infinity();
    EXPECT_EQ(HinUndZurueck(satz).betrag, std::numeric_limits<double>::infinity());
}

TEST(Satzbytes, RestZaehltWasNochKommt) {
    const std::array<std::byte, 5> bytes{std::byte{0xFF}, std::byte{0xFF}, std::byte{'a'}, std::byte{' '}};
    Satzleser leser(bytes);
    EXPECT_EQ(leser.Ganz16(), -1);
    EXPECT_EQ(leser.Rest(), 3U);
    EXPECT_EQ(leser.Text<2>().Getrimmt(), "a");
    EXPECT_EQ(leser.Rest(), 1U);
}

}  // namespace satzbytes_test
}  // namespace zinfolio
