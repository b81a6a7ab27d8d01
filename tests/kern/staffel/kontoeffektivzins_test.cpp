#include "kern/staffel/kontoeffektivzins.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "kern/dates/datumsliteral.h"
#include "kern/finmath/herleitung.h"
#include "kern/finmath/reihen.h"

namespace zinfolio {
namespace kontoeffektivzins_test {

using testing::IsEmpty;
using testing::Optional;
using testing::SizeIs;

/// 1000 at 5 % for two years: 1050, then 1102,50.
std::vector<Staffelsatz> Sparkonto(double zahlung, double schluss) {
    std::vector<Staffelsatz> loesung{Konditionssatz("31.12.2006", {}),
                                     Zahlungssatz("31.12.2006", zahlung, ""),
                                     Zinsterminsatz("31.12.2007"_datum), Zinsterminsatz("31.12.2008"_datum)};
    loesung.back().Kontostand = schluss;
    return loesung;
}

TEST(KontoEffektivzins, EineZahlungUndEinGuthabenHabenDieRenditeDesKontos) {
    const Kontoeffektivzins ergebnis =
        KontoEffektivzinsRechnen(Sparkonto(1000, 1102.5), Effektivmethode::pangv2000);
    EXPECT_EQ(ergebnis.Lösungszahlungsreihe, Reihe({{"31.12.2006", -1000}, {"31.12.2008", 1102.5}}));
    EXPECT_EQ(ergebnis.Effektivergebnis, "5,00000");
    EXPECT_EQ(ergebnis.ezins, "5,00000");
    ASSERT_THAT(ergebnis.Herleitung(), SizeIs(2));
    EXPECT_NEAR(ergebnis.Herleitung()[1].Summenwert, 0, 1e-9);
    EXPECT_EQ(ergebnis.Herleitung()[0].Faktor, 1.1025F);
    EXPECT_THAT(ergebnis.bewertung.Barwertberechnung, Optional(SizeIs(2)));
}

TEST(KontoEffektivzins, JedeMethodeHatIhrenZinssatz) {
    const auto loesung = Sparkonto(1000, 1102.5);
    EXPECT_EQ(KontoEffektivzinsRechnen(loesung, Effektivmethode::pangvAlt).ezins, "5,00000");
    EXPECT_EQ(KontoEffektivzinsRechnen(loesung, Effektivmethode::aidb360).ezins, "5,00000");
    // 100 * (1.1025 ^ (365 / 731) - 1)
    EXPECT_EQ(KontoEffektivzinsRechnen(loesung, Effektivmethode::isma).ezins, "4,99299");
}

TEST(KontoEffektivzins, UnterEinemProzentZeigtDasFeldDieNullUndDasErgebnisNicht) {
    const Kontoeffektivzins ergebnis =
        KontoEffektivzinsRechnen(Sparkonto(1000, 1010.025), Effektivmethode::aidb360);
    EXPECT_EQ(ergebnis.Effektivergebnis, ",50000");  // 1.005 ^ 2
    EXPECT_EQ(ergebnis.ezins, "0,50000");
}

TEST(KontoEffektivzins, NurEinVorzeichenGibtDieTabelleZuNullProzent) {
    const Kontoeffektivzins ergebnis =
        KontoEffektivzinsRechnen(Sparkonto(1000, -7), Effektivmethode::pangv2000);
    EXPECT_EQ(ergebnis.Effektivergebnis, "");
    EXPECT_EQ(ergebnis.ezins, "");
    ASSERT_THAT(ergebnis.Herleitung(), SizeIs(2));
    EXPECT_EQ(ergebnis.Herleitung()[0].Faktor, 1);
    EXPECT_EQ(ergebnis.Herleitung()[1].Summenwert, -1007);
}

TEST(KontoEffektivzins, OhneZeilenIstAllesLeer) {
    const Kontoeffektivzins ergebnis = KontoEffektivzinsRechnen({}, Effektivmethode::pangv2000);
    EXPECT_THAT(ergebnis.Lösungszahlungsreihe, IsEmpty());
    EXPECT_EQ(ergebnis.Effektivergebnis, "");
    EXPECT_EQ(ergebnis.ezins, "");
    EXPECT_THAT(ergebnis.Herleitung(), IsEmpty());
}

}  // namespace kontoeffektivzins_test
}  // namespace zinfolio
