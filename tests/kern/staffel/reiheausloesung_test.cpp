#include "kern/staffel/reiheausloesung.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "kern/dates/datumsliteral.h"
#include "kern/finmath/reihen.h"

namespace zinfolio {
namespace reiheausloesung_test {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

Staffelsatz MitKontostand(Staffelsatz satz, double kontostand) {
    satz.Kontostand = kontostand;
    return satz;
}

/// A condition, two payments and a settlement on the closing day.
std::vector<Staffelsatz> Konto() {
    return {Konditionssatz("01.01.2007", {}), MitKontostand(Zahlungssatz("01.01.2007", 1000, "Anlage"), 1000),
            MitKontostand(Zahlungssatz("01.07.2007", -200, ""), 800),
            MitKontostand(Zinsterminsatz("31.12.2007"_datum), 830)};
}

TEST(ReiheAusLoesung, ZahlungenMitUmgekehrtemVorzeichenUndDerSchluss) {
    EXPECT_EQ(ReiheAusLoesung(Konto()),
              Reihe({{"01.01.2007", -1000}, {"01.07.2007", 200}, {"31.12.2007", 830}}));
}

TEST(ReiheAusLoesung, OhneSchlussBleibenDieZahlungen) {
    EXPECT_EQ(ReiheAusLoesungOhneSchluss(Konto()), Reihe({{"01.01.2007", -1000}, {"01.07.2007", 200}}));
}

TEST(ReiheAusLoesung, HatEineZeileMehrAlsDasKontoZahlungen) {
    EXPECT_THAT(ReiheAusLoesung(Konto()), SizeIs(2 + 1));
}

TEST(ReiheAusLoesung, OhneZahlungenBleibtDerSchlussAllein) {
    const std::vector<Staffelsatz> loesung{Konditionssatz("01.01.2007", {}),
                                           MitKontostand(Zinsterminsatz("31.12.2007"_datum), 0)};
    EXPECT_EQ(ReiheAusLoesung(loesung), Reihe({{"31.12.2007", 0}}));
    EXPECT_THAT(ReiheAusLoesungOhneSchluss(loesung), IsEmpty());
}

TEST(ReiheAusLoesung, ZahlungenVonNullWerdenUebernommen) {
    std::vector<Staffelsatz> loesung = Konto();
    loesung[2].Zahlbetrag = 0;
    EXPECT_EQ(ReiheAusLoesung(loesung)[1].Reihenbetrag, 0);
}

TEST(ReiheAusLoesung, DerSchlussNimmtAuchEineKonditionAlsLetzteZeile) {
    std::vector<Staffelsatz> loesung = Konto();
    loesung.back() = MitKontostand(Konditionssatz("15.12.2007", {}), -5.5);
    EXPECT_EQ(ReiheAusLoesung(loesung).back(), Reihenzeile("15.12.2007", -5.5));
}

TEST(ReiheAusLoesung, EineZahlungAmEndeKommtAlsZahlungUndAlsSchluss) {
    std::vector<Staffelsatz> loesung = Konto();
    loesung.pop_back();
    EXPECT_EQ(ReiheAusLoesung(loesung),
              Reihe({{"01.01.2007", -1000}, {"01.07.2007", 200}, {"01.07.2007", 800}}));
}

TEST(ReiheAusLoesung, DerSchluesselEinerZahlungIstDerDesKontos) {
    std::vector<Staffelsatz> loesung = Konto();
    loesung[1].Sortierschluessel = Festtext<10>::AusWindows1252("19991231");
    EXPECT_EQ(ReiheAusLoesung(loesung)[0].Reihenschluessel.Roh(), "19991231  ");
    EXPECT_EQ(ReiheAusLoesung(loesung)[2].Reihenschluessel.Roh(), "20071231  ");
}

TEST(ReiheAusLoesung, LeeresKontoGibtEineLeereReihe) {
    EXPECT_THAT(ReiheAusLoesung({}), IsEmpty());
    EXPECT_THAT(ReiheAusLoesungOhneSchluss({}), IsEmpty());
}

TEST(ReiheAusLoesung, EinBeschaedigtesDatumBeendetStill) {
    std::vector<Staffelsatz> loesung = Konto();
    loesung[2].Satzdatum = Festtext<10>::AusWindows1252("31.02.2007");
    EXPECT_EQ(ReiheAusLoesung(loesung), Reihe({{"01.01.2007", -1000}}));
    EXPECT_EQ(ReiheAusLoesungOhneSchluss(loesung), Reihe({{"01.01.2007", -1000}}));
}

TEST(ReiheAusLoesung, EinBeschaedigtesSchlussdatumKostetNurDenSchluss) {
    std::vector<Staffelsatz> loesung = Konto();
    loesung.back().Satzdatum = {};
    EXPECT_THAT(ReiheAusLoesung(loesung), SizeIs(2));
}

TEST(ReiheAusLoesung, MehrZeilenAlsEineDateiHaeltBeendenStill) {
    std::vector<Staffelsatz> loesung(32767, Zahlungssatz("01.01.2007", 1, ""));
    EXPECT_THAT(ReiheAusLoesung(loesung), SizeIs(32767));  // no room for the closing row
    loesung.push_back(loesung.front());
    EXPECT_THAT(ReiheAusLoesung(loesung), IsEmpty());
}

}  // namespace reiheausloesung_test
}  // namespace zinfolio
