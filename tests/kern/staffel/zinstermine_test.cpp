#include "kern/staffel/zinstermine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "kern/dates/datumsliteral.h"

namespace zinfolio {
namespace zinstermine_test {

using enum Zinsverrechnungsart;
using testing::ElementsAre;
using Texte = std::vector<std::string>;

Texte AlsTexte(const std::vector<Datum>& termine) {
    Texte texte;
    for (const Datum termin : termine)
        texte.push_back(termin.Text());
    return texte;
}

Texte Kalender(Datum erstdatum, Datum kontodatum, Zinsverrechnungsart art) {
    std::vector<Datum> termine{"01.01.1999"_datum};
    Zinstermine(erstdatum, kontodatum, art, termine);
    return AlsTexte(termine);
}

struct Fall {
    Zinsverrechnungsart art;
    Datum erstdatum;
    Datum kontodatum;
    Texte erwartet;
};

class ZinstermineTest : public testing::TestWithParam<Fall> {};

TEST_P(ZinstermineTest, Kalender) {
    const Fall& fall = GetParam();
    EXPECT_EQ(Kalender(fall.erstdatum, fall.kontodatum, fall.art), fall.erwartet);
}

INSTANTIATE_TEST_SUITE_P(
    EinJahr, ZinstermineTest,
    testing::Values(
        Fall{monatsende,
             "10.01.2007"_datum,
             "31.12.2007"_datum,
             {"31.01.2007", "28.02.2007", "31.03.2007", "30.04.2007", "31.05.2007", "30.06.2007",
              "31.07.2007", "31.08.2007", "30.09.2007", "31.10.2007", "30.11.2007", "31.12.2007"}},
        Fall{alle2Monate,
             "10.01.2007"_datum,
             "31.12.2007"_datum,
             {"28.02.2007", "30.04.2007", "30.06.2007", "31.08.2007", "31.10.2007", "31.12.2007"}},
        Fall{quartalsende,
             "10.01.2007"_datum,
             "31.12.2007"_datum,
             {"31.03.2007", "30.06.2007", "30.09.2007", "31.12.2007"}},
        Fall{alle4Monate, "10.01.2007"_datum, "31.12.2007"_datum, {"30.04.2007", "31.08.2007", "31.12.2007"}},
        Fall{halbjahresende, "10.01.2007"_datum, "31.12.2007"_datum, {"30.06.2007", "31.12.2007"}},
        Fall{jahresende, "10.01.2007"_datum, "31.12.2008"_datum, {"31.12.2007", "31.12.2008"}}));

INSTANTIATE_TEST_SUITE_P(
    Februarende, ZinstermineTest,
    testing::Values(
        Fall{monatsende, "31.01.2008"_datum, "31.03.2008"_datum, {"31.01.2008", "29.02.2008", "31.03.2008"}},
        Fall{alle2Monate, "01.01.2008"_datum, "30.04.2008"_datum, {"29.02.2008", "30.04.2008"}},
        Fall{alle2Monate, "01.01.1900"_datum, "30.04.1900"_datum, {"28.02.1900", "30.04.1900"}},
        Fall{alle2Monate, "01.01.2000"_datum, "30.04.2000"_datum, {"29.02.2000", "30.04.2000"}},
        // From the end of December on into February of a leap year, and of a common year.
        Fall{alle2Monate, "01.11.2007"_datum, "30.04.2008"_datum, {"31.12.2007", "29.02.2008", "30.04.2008"}},
        Fall{alle2Monate,
             "01.11.2008"_datum,
             "30.04.2009"_datum,
             {"31.12.2008", "28.02.2009", "30.04.2009"}}));

INSTANTIATE_TEST_SUITE_P(
    ErsterTermin, ZinstermineTest,
    testing::Values(
        // Not before the first payment, so it is kept.
        Fall{jahresende, "31.12.2006"_datum, "31.12.2007"_datum, {"31.12.2006", "31.12.2007"}},
        Fall{jahresende, "30.12.2006"_datum, "31.12.2007"_datum, {"31.12.2006", "31.12.2007"}},
        Fall{jahresende, "01.01.2007"_datum, "01.01.2008"_datum, {"31.12.2007", "01.01.2008"}},
        Fall{quartalsende, "31.03.2007"_datum, "30.06.2007"_datum, {"31.03.2007", "30.06.2007"}},
        Fall{quartalsende, "01.04.2007"_datum, "30.09.2007"_datum, {"30.06.2007", "30.09.2007"}},
        // 29.02.2008 lies before the payment.
        Fall{alle2Monate, "01.03.2008"_datum, "30.06.2008"_datum, {"30.04.2008", "30.06.2008"}},
        Fall{alle2Monate, "29.02.2008"_datum, "30.04.2008"_datum, {"29.02.2008", "30.04.2008"}},
        Fall{alle4Monate, "15.12.2007"_datum, "30.04.2008"_datum, {"31.12.2007", "30.04.2008"}}));

INSTANTIATE_TEST_SUITE_P(
    Abschluss, ZinstermineTest,
    testing::Values(
        // The closing row takes the place of the regular date that equals it.
        Fall{
            quartalsende, "15.05.2007"_datum, "31.12.2007"_datum, {"30.06.2007", "30.09.2007", "31.12.2007"}},
        // Earlier in the month of a regular date: that date is not generated.
        Fall{
            quartalsende, "15.05.2007"_datum, "15.12.2007"_datum, {"30.06.2007", "30.09.2007", "15.12.2007"}},
        Fall{quartalsende,
             "15.05.2007"_datum,
             "01.10.2007"_datum,
             {"30.06.2007", "30.09.2007", "01.10.2007"}}));

INSTANTIATE_TEST_SUITE_P(
    AbschlussVorDemErstenKandidaten, ZinstermineTest,
    testing::Values(Fall{quartalsende, "01.01.2007"_datum, "15.02.2007"_datum, {"15.02.2007"}},
                    Fall{quartalsende, "15.05.2007"_datum, "30.03.2007"_datum, {"30.03.2007"}},
                    Fall{quartalsende, "15.05.2007"_datum, "31.12.1999"_datum, {"31.12.1999"}},
                    Fall{jahresende, "15.05.2007"_datum, "15.05.2007"_datum, {"15.05.2007"}}));

INSTANTIATE_TEST_SUITE_P(
    AbschlussZwischenKandidatUndErstemTermin, ZinstermineTest,
    testing::Values(
        // The first date stays and lies behind the closing date: out of order, as told.
        Fall{quartalsende, "15.05.2007"_datum, "20.06.2007"_datum, {"30.06.2007", "20.06.2007"}},
        Fall{quartalsende, "15.05.2007"_datum, "31.03.2007"_datum, {"30.06.2007", "31.03.2007"}},
        Fall{quartalsende, "15.05.2007"_datum, "29.06.2007"_datum, {"30.06.2007", "29.06.2007"}},
        Fall{monatsende, "15.05.2007"_datum, "15.05.2007"_datum, {"31.05.2007", "15.05.2007"}}));

INSTANTIATE_TEST_SUITE_P(
    AbschlussGleichErstemTermin, ZinstermineTest,
    testing::Values(Fall{quartalsende, "15.05.2007"_datum, "30.06.2007"_datum, {"30.06.2007", "30.06.2007"}},
                    Fall{quartalsende, "01.01.2007"_datum, "31.03.2007"_datum, {"31.03.2007", "31.03.2007"}},
                    Fall{jahresende, "31.12.2007"_datum, "31.12.2007"_datum, {"31.12.2007", "31.12.2007"}},
                    Fall{jahresende, "31.12.2007"_datum, "01.01.2008"_datum, {"31.12.2007", "01.01.2008"}}));

/// The dates that a fault leaves behind.
Texte KalenderBisZumFehler(Datum erstdatum, Datum kontodatum, Zinsverrechnungsart art) {
    std::vector<Datum> termine{"01.01.1999"_datum};
    EXPECT_THROW(Zinstermine(erstdatum, kontodatum, art, termine), Datumsfehler);
    return AlsTexte(termine);
}

TEST(ZinstermineAmEndeDesKalenders, DerWegAnsMonatsendeScheitertImDezember9999) {
    EXPECT_THAT(KalenderBisZumFehler("01.10.9999"_datum, "31.12.9999"_datum, monatsende),
                ElementsAre("31.10.9999", "30.11.9999"));
    EXPECT_THAT(KalenderBisZumFehler("01.07.9999"_datum, "31.12.9999"_datum, quartalsende),
                ElementsAre("30.09.9999"));
    EXPECT_THAT(KalenderBisZumFehler("01.12.9999"_datum, "31.12.9999"_datum, monatsende), ElementsAre());
}

TEST(ZinstermineAmEndeDesKalenders, JahresendeIstErsterTerminUndDerNaechsteFehlt) {
    EXPECT_THAT(KalenderBisZumFehler("01.01.9999"_datum, "31.12.9999"_datum, jahresende),
                ElementsAre("31.12.9999"));
    EXPECT_THAT(KalenderBisZumFehler("01.01.9999"_datum, "01.02.9999"_datum, jahresende),
                ElementsAre("31.12.9999"));
    EXPECT_THAT(KalenderBisZumFehler("01.01.9998"_datum, "31.12.9999"_datum, jahresende),
                ElementsAre("31.12.9998"));
}

TEST(ZinstermineAmEndeDesKalenders, DavorGehtEsGut) {
    EXPECT_THAT(Kalender("01.10.9999"_datum, "30.11.9999"_datum, monatsende),
                ElementsAre("31.10.9999", "30.11.9999"));
}

TEST(ZinstermineOhneEnde, MehrAls32767TermineSindEinFehler) {
    // 32 766 months behind January 0100 are 2 730 years and 6 months.
    const Texte gerade = Kalender("01.01.0100"_datum, "31.07.2830"_datum, monatsende);
    ASSERT_EQ(gerade.size(), 32767U);
    EXPECT_EQ(gerade.back(), "31.07.2830");
    const Texte rest = KalenderBisZumFehler("01.01.0100"_datum, "01.08.2830"_datum, monatsende);
    ASSERT_EQ(rest.size(), 32767U);
    EXPECT_EQ(rest.front(), "31.01.0100");
    EXPECT_EQ(rest.back(), "31.07.2830");
}

TEST(Zinsverrechnungsarten, StehenInDerReihenfolgeDerListe) {
    EXPECT_THAT(zinsverrechnungsarten, ElementsAre("Monatsende", "Alle 2 Monate", "Quartalsende",
                                                   "Alle 4 Monate", "Halbjahresende", "Jahresende"));
}

}  // namespace zinstermine_test
}  // namespace zinfolio
