// The check of a date without its year, asked for by any length but 10.

#include <gtest/gtest.h>
#include <ostream>
#include <string>

#include "kern/dates/datumpruefen.h"
#include "kern/dates/datumsliteral.h"

namespace zinfolio {
namespace datumohnejahr_test {

constexpr Datum heute = "24.03.2011"_datum;

struct EingabeOhneJahr {
    int laenge;
    std::string feld;
    std::string ergebnis = "";

    friend std::ostream& operator<<(std::ostream& strom, const EingabeOhneJahr& eingabe) {
        return strom << "»" << eingabe.feld << "« (" << eingabe.laenge << ")";
    }
};

class DatumOhneJahrNimmt : public testing::TestWithParam<EingabeOhneJahr> {};

TEST_P(DatumOhneJahrNimmt, UndErgaenztTagUndMonat) {
    const Datumspruefung pruefung = DatumPruefen(GetParam().feld, heute, GetParam().laenge);
    EXPECT_EQ(pruefung.feld, GetParam().ergebnis);
    EXPECT_FALSE(pruefung.abbruch);
    EXPECT_EQ(pruefung.meldung, "");
}

INSTANTIATE_TEST_SUITE_P(
    MitPunkten, DatumOhneJahrNimmt,
    testing::Values(EingabeOhneJahr{6, "01.02.", "01.02."}, EingabeOhneJahr{6, "1.2.", "01.02."},
                    EingabeOhneJahr{6, "01.2.", "01.02."}, EingabeOhneJahr{6, "1.02.", "01.02."},
                    EingabeOhneJahr{6, "1.12.", "01.12."}, EingabeOhneJahr{6, "31.12.", "31.12."},
                    // The year put behind it is 2000, a leap year.
                    EingabeOhneJahr{6, "29.2.", "29.02."}));

INSTANTIATE_TEST_SUITE_P(OhnePunkte, DatumOhneJahrNimmt,
                         testing::Values(EingabeOhneJahr{6, "0102", "01.02."},
                                         EingabeOhneJahr{6, "3112", "31.12."},
                                         EingabeOhneJahr{6, "2902", "29.02."},
                                         EingabeOhneJahr{5, "0102", "01.02."},
                                         EingabeOhneJahr{0, "0102", "01.02."}));

INSTANTIATE_TEST_SUITE_P(LeerOderEinZeichen, DatumOhneJahrNimmt,
                         testing::Values(EingabeOhneJahr{6, "", ""}, EingabeOhneJahr{6, "1", "1"},
                                         EingabeOhneJahr{6, ".", "."}, EingabeOhneJahr{6, "ä", "ä"},
                                         EingabeOhneJahr{6, "\xF0\x9F\x98\x80", "\xF0\x9F\x98\x80"}));

class DatumOhneJahrWeistAb : public testing::TestWithParam<EingabeOhneJahr> {};

TEST_P(DatumOhneJahrWeistAb, UndLeertDasFeld) {
    const Datumspruefung pruefung = DatumPruefen(GetParam().feld, heute, GetParam().laenge);
    EXPECT_EQ(pruefung.feld, "");
    EXPECT_TRUE(pruefung.abbruch);
    EXPECT_EQ(pruefung.meldung, "Ungültiges Datum.");
}

INSTANTIATE_TEST_SUITE_P(KeinKalendertag, DatumOhneJahrWeistAb,
                         testing::Values(EingabeOhneJahr{6, "30.02."}, EingabeOhneJahr{6, "31.4."},
                                         EingabeOhneJahr{6, "3002"}, EingabeOhneJahr{6, "0113"},
                                         EingabeOhneJahr{6, "01.13."}, EingabeOhneJahr{6, "0.1."}));

INSTANTIATE_TEST_SUITE_P(FalscheForm, DatumOhneJahrWeistAb,
                         testing::Values(EingabeOhneJahr{6, "12"}, EingabeOhneJahr{6, "010"},
                                         EingabeOhneJahr{6, "010207"}, EingabeOhneJahr{6, "01022007"},
                                         EingabeOhneJahr{6, "01.02"}, EingabeOhneJahr{6, "1.2.3."},
                                         EingabeOhneJahr{6, "123.4."}, EingabeOhneJahr{6, "1.."},
                                         EingabeOhneJahr{6, "01.02.07"}, EingabeOhneJahr{6, "1.2.7"},
                                         EingabeOhneJahr{6, "01.02.2007"}, EingabeOhneJahr{6, "morgen"},
                                         EingabeOhneJahr{6, "ää"},
                                         // Already as long as asked for, so the month keeps its one digit.
                                         EingabeOhneJahr{5, "1.2."}));

}  // namespace datumohnejahr_test
}  // namespace zinfolio
