#include "kern/dates/datumpruefen.h"

#include <gtest/gtest.h>
#include <ostream>
#include <string>

#include "kern/dates/datumsliteral.h"

namespace zinfolio {
namespace datumpruefen_test {

constexpr Datum heute = "24.03.2011"_datum;

struct Eingabe {
    std::string feld;
    std::string ergebnis;

    friend std::ostream& operator<<(std::ostream& strom, const Eingabe& eingabe) {
        return strom << "»" << eingabe.feld << "«";
    }
};

class DatumPruefenNimmt : public testing::TestWithParam<Eingabe> {};

TEST_P(DatumPruefenNimmt, UndErgaenzt) {
    const Datumspruefung pruefung = DatumPruefen(GetParam().feld, heute);
    EXPECT_EQ(pruefung.feld, GetParam().ergebnis);
    EXPECT_FALSE(pruefung.abbruch);
    EXPECT_EQ(pruefung.meldung, "");
}

INSTANTIATE_TEST_SUITE_P(Vollstaendig, DatumPruefenNimmt,
                         testing::Values(Eingabe{"01.02.2007", "01.02.2007"},
                                         Eingabe{"31.12.2007", "31.12.2007"},
                                         Eingabe{"29.02.2008", "29.02.2008"},
                                         Eingabe{"01.01.0100", "01.01.0100"},
                                         Eingabe{"24.03.2011", "24.03.2011"}));

INSTANTIATE_TEST_SUITE_P(
    TagUndMonatMitEinerZiffer, DatumPruefenNimmt,
    testing::Values(Eingabe{"1.2.07", "01.02.2007"}, Eingabe{"01.2.07", "01.02.2007"},
                    Eingabe{"1.02.07", "01.02.2007"}, Eingabe{"01.02.07", "01.02.2007"},
                    Eingabe{"1.2.2007", "01.02.2007"}, Eingabe{"01.2.2007", "01.02.2007"},
                    Eingabe{"1.02.2007", "01.02.2007"}, Eingabe{"1.12.2007", "01.12.2007"},
                    Eingabe{"31.1.2007", "31.01.2007"}, Eingabe{"9.11.89", "09.11.2089"}));

INSTANTIATE_TEST_SUITE_P(OhnePunkte, DatumPruefenNimmt,
                         testing::Values(Eingabe{"010207", "01.02.2007"}, Eingabe{"01022007", "01.02.2007"},
                                         Eingabe{"311299", "31.12.2099"}, Eingabe{"31121999", "31.12.1999"},
                                         Eingabe{"290208", "29.02.2008"}, Eingabe{"29022008", "29.02.2008"}));

// Missing digits of the year come from 2000; there is no century window.
INSTANTIATE_TEST_SUITE_P(KurzesJahr, DatumPruefenNimmt,
                         testing::Values(Eingabe{"01.02.7", "01.02.2007"}, Eingabe{"01.02.2", "01.02.2002"},
                                         Eingabe{"01.02.0", "01.02.2000"}, Eingabe{"1.2.7", "01.02.2007"},
                                         Eingabe{"01.02.99", "01.02.2099"}, Eingabe{"01.02.00", "01.02.2000"},
                                         Eingabe{"1.2.107", "01.02.2107"}, Eingabe{"01.02.107", "01.02.2107"},
                                         Eingabe{"01.02.099", "01.02.2099"}, Eingabe{"1.2.999", "01.02.2999"},
                                         Eingabe{"29.2.8", "29.02.2008"}));

// Month and year are read as one number: 12.50 goes to the even 12, 12.51 to 13, and 11.99 only to 12.
INSTANTIATE_TEST_SUITE_P(
    FernesJahr, DatumPruefenNimmt,
    testing::Values(Eingabe{"01.12.4999", "01.12.4999"}, Eingabe{"01.12.5000", "01.12.5000"},
                    Eingabe{"01.12.5099", "01.12.5099"}, Eingabe{"1.12.5099", "01.12.5099"},
                    Eingabe{"01125099", "01.12.5099"}, Eingabe{"30.11.5100", "30.11.5100"},
                    Eingabe{"30.11.9999", "30.11.9999"}, Eingabe{"01.01.9999", "01.01.9999"}));

INSTANTIATE_TEST_SUITE_P(LeerzeichenHintenZaehlenNichtZumJahr, DatumPruefenNimmt,
                         testing::Values(Eingabe{"01.02.7 ", "01.02.2007"},
                                         Eingabe{"01.02.07  ", "01.02.2007"},
                                         Eingabe{"1.2.07 ", "01.02.2007"},
                                         Eingabe{"01.02.107 ", "01.02.2107"}));

INSTANTIATE_TEST_SUITE_P(LeerOderEinZeichen, DatumPruefenNimmt,
                         testing::Values(Eingabe{"", ""}, Eingabe{"1", "1"}, Eingabe{".", "."},
                                         Eingabe{" ", " "}, Eingabe{"x", "x"}, Eingabe{"ä", "ä"},
                                         Eingabe{"€", "€"}, Eingabe{"\xF0\x9F\x98\x80", "\xF0\x9F\x98\x80"}));

class DatumPruefenWeistAb : public testing::TestWithParam<std::string> {};

TEST_P(DatumPruefenWeistAb, UndSetztDasHeutigeDatum) {
    const Datumspruefung pruefung = DatumPruefen(GetParam(), heute);
    EXPECT_EQ(pruefung.feld, "24.03.2011");
    EXPECT_TRUE(pruefung.abbruch);
    EXPECT_EQ(pruefung.meldung, "Ungültiges Datum. Das Datum wird auf ein gültiges Datum gesetzt.");
}

INSTANTIATE_TEST_SUITE_P(KeinKalendertag, DatumPruefenWeistAb,
                         testing::Values("31.02.2007", "29.02.2007", "29.2.7", "31.04.2007", "32.01.2007",
                                         "00.01.2007", "0.1.07", "01.00.2007", "1.0.07", "01.02.0099",
                                         "310207", "29022007"));

INSTANTIATE_TEST_SUITE_P(MonatZuGross, DatumPruefenWeistAb,
                         testing::Values("13.13.2007", "01.13.2007", "1.13.7", "131307", "01.99.2007",
                                         "01.12.5100", "1.12.5100", "01125100", "31.12.9999"));

INSTANTIATE_TEST_SUITE_P(OhnePunkteInAndererLaenge, DatumPruefenWeistAb,
                         testing::Values("12", "010", "0102", "01020", "0102007", "010220071", "0102200711",
                                         "01022007111"));

INSTANTIATE_TEST_SUITE_P(EinPunktOderMehrAlsZwei, DatumPruefenWeistAb,
                         testing::Values("1.2", "1.", ".1", "01.02", "01.022007", "0102.2007", "1.2.3.4",
                                         "...", "01.02.2007.", "01.02.20.07", ".1.2.07"));

INSTANTIATE_TEST_SUITE_P(PunktAmFalschenPlatz, DatumPruefenWeistAb,
                         testing::Values("123.4.07", "..", ".1.2007", "1..2007", "01..2007", "01.123.07",
                                         "01.0203.", "1.123.7"));

INSTANTIATE_TEST_SUITE_P(OhneJahr, DatumPruefenWeistAb, testing::Values("01.02.", "1.2.", "01.2."));

INSTANTIATE_TEST_SUITE_P(JahrZuLang, DatumPruefenWeistAb,
                         testing::Values("01.02.20071", "1.2.20071", "01.02.10000"));

INSTANTIATE_TEST_SUITE_P(Leerzeichen, DatumPruefenWeistAb,
                         testing::Values("  ", " 01.02.2007", " 1.2.07", "1. 2.07", "01.02.2007 ", "01 02 07",
                                         // Ten characters already, so the month keeps its one digit.
                                         "1.2.07    "));

INSTANTIATE_TEST_SUITE_P(Unfug, DatumPruefenWeistAb,
                         testing::Values("gestern", "xx.yy.zzzz", "aa.bb.07", "01.0x.2007", "01.02.x",
                                         "01.02.20x7", "abcdef", "abcdefgh", "-1.02.2007", "01.-2.07",
                                         "+1.2.07", "01/02/2007", "01,02,2007", "1e.1e.07", "ää", "äöü",
                                         "äöüß", "ä.ö.07", "€.2.07", "1.€.07", "01.02.€", "\xFF\xFE",
                                         "9999999999999999999999999999999999999999"));

TEST(DatumPruefen, HeuteIstEinArgument) {
    EXPECT_EQ(DatumPruefen("31.02.2007", "05.06.2023"_datum).feld, "05.06.2023");
}

TEST(DatumFehlt, NichtsEinZeichenUndNullSindKeinDatum) {
    for (const char* text : {"", "0", "5", "ä"}) {
        EXPECT_TRUE(IstNochKeinDatum(text)) << text;
        EXPECT_TRUE(DatumFehlt(text)) << text;
    }
    EXPECT_FALSE(IstNochKeinDatum("00"));
    EXPECT_TRUE(DatumFehlt("00"));
    EXPECT_FALSE(DatumFehlt("01.02.2007"));
}

TEST(DatumPruefen, ZehnIstDieUeblicheLaenge) {
    EXPECT_EQ(DatumPruefen("1.2.07", heute, 10).feld, "01.02.2007");
    EXPECT_EQ(DatumPruefen("1.2", heute, 10).feld, "24.03.2011");
}

}  // namespace datumpruefen_test
}  // namespace zinfolio
