#include "kern/finmath/reihensatz.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <vector>

#include "kern/dateien/hex.h"
#include "kern/dateien/satzdatei.h"
#include "kern/dateien/testordner.h"
#include "kern/dates/datumsliteral.h"

namespace zinfolio {
namespace reihensatz_test {

template <Satz T>
std::string SatzHex(const T& satz) {
    std::array<std::byte, T::Satzlaenge> bytes{};
    satz.Schreiben(bytes);
    return Hex(bytes);
}

TEST(Reihensatz, StehtByteFuerByteImSatz) {
    EXPECT_EQ(SatzHex(Reihenzeile("31.12.2007", -1100.5)),
              "33 31 2E 31 32 2E 32 30 30 37 "  // 31.12.2007
              "1F 00 0C 00 D7 07 "              // 31, 12, 2007
              "00 00 00 00 00 32 91 C0 "        // -1100.5 = -(0x44C.8) = -1.0747... * 2^10
              "32 30 30 37 31 32 33 31 20 20"   // 20071231
    );
}

TEST(Reihensatz, NieZugewiesenSindNullbytes) {
    EXPECT_EQ(SatzHex(Reihensatz()).find_first_not_of("0 "), std::string::npos);
}

TEST(Ergebnissatz, StehtByteFuerByteImSatz) {
    const Ergebnissatz satz{Festtext<10>::AusWindows1252("01.03.2008"), 1000, 3.3F, -0.5, 2, 1};
    EXPECT_EQ(SatzHex(satz),
              "30 31 2E 30 33 2E 32 30 30 38 "  // 01.03.2008
              "00 00 00 00 00 40 8F 40 "        // 1000
              "33 33 53 40 "                    // 3,3 in 4 bytes
              "00 00 00 00 00 00 E0 BF "        // -0,5
              "00 00 00 00 00 00 00 40 "        // 2
              "00 00 00 00 00 00 F0 3F"         // 1
    );
}

TEST(Reihensatz, KommtAusDerDateiZurueck) {
    const Testordner ordner;
    const Satzdatei<Reihensatz> datei(ordner.Pfad(), "Lösungszahlungsreihe");
    const std::vector<Reihensatz> reihe{Reihenzeile("29.02.2008", -0.01), Reihenzeile("31.12.9999", 1e300)};
    datei.Schreiben(reihe);
    EXPECT_EQ(ordner.Inhalt("Lösungszahlungsreihe").size(), 2 * 34U);
    EXPECT_EQ(datei.Lesen(), reihe);
}

TEST(Ergebnissatz, KommtAusDerDateiZurueck) {
    const Testordner ordner;
    const Satzdatei<Ergebnissatz> datei(ordner.Pfad(), "Vendwertberechnung");
    const std::vector<Ergebnissatz> tabelle{{Festtext<10>::AusWindows1252("01.03.2008"), 1, 2.5F, 3, 4, 5}};
    datei.Schreiben(tabelle);
    EXPECT_EQ(ordner.Inhalt("Vendwertberechnung").size(), 46U);
    EXPECT_EQ(datei.Lesen(), tabelle);
}

TEST(Reihenzeile, EinTextDerKeinDatumIstWirdAbgelehnt) {
    EXPECT_THROW(static_cast<void>(Reihenzeile("29.02.2007", 1)), Datumsfehler);
    EXPECT_THROW(static_cast<void>(Reihenzeile("", 1)), Datumsfehler);
}

TEST(DatumVonReihensatz, LiestDieDreiZahlenUndNichtDenText) {
    Reihensatz satz = Reihenzeile("31.12.2007", 1);
    satz.Reihendatum = Festtext<10>::AusWindows1252("Unsinn");
    EXPECT_EQ(DatumVon(satz), "31.12.2007"_datum);
    satz.Monat = 11;
    EXPECT_THROW(static_cast<void>(DatumVon(satz)), Datumsfehler);
    EXPECT_THROW(static_cast<void>(DatumVon(Reihensatz())), Datumsfehler);
}

}  // namespace reihensatz_test
}  // namespace zinfolio
