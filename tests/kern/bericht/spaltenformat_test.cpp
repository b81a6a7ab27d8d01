#include "kern/bericht/spaltenformat.h"

#include <gmock/gmock.h>
#include <stdexcept>

namespace zinfolio {
namespace {

using testing::ElementsAre;

TEST(Spaltenformat, BreitenStehenInZollUndWerdenTwips) {
    EXPECT_THAT(SpaltenformatLesen("^+1.0in|^2.0in|^1.6in", "Datum|Vorgang|Zahlungsbetrag"),
                ElementsAre(Berichtsspalte{"Datum", 1440, Kopfausrichtung::mitte},
                            Berichtsspalte{"Vorgang", 2880, Kopfausrichtung::mitte},
                            Berichtsspalte{"Zahlungsbetrag", 2304, Kopfausrichtung::mitte}));
}

TEST(Spaltenformat, EineEinzelneSpalteBrauchtKeinenStrich) {
    EXPECT_THAT(SpaltenformatLesen("<12.0in", ""),
                ElementsAre(Berichtsspalte{"", 17280, Kopfausrichtung::links}));
}

TEST(Spaltenformat, EinZeichenDarfHinterDerBreiteStehen) {
    EXPECT_THAT(SpaltenformatLesen("^1.0in|1.6in^|>0.6in", "a|b|c"),
                ElementsAre(Berichtsspalte{"a", 1440, Kopfausrichtung::mitte},
                            Berichtsspalte{"b", 2304, Kopfausrichtung::mitte},
                            Berichtsspalte{"c", 864, Kopfausrichtung::rechts}));
}

TEST(Spaltenformat, LeereKoepfeBleibenSpalten) {
    EXPECT_THAT(SpaltenformatLesen("^1.0in|^1.0in|^1.0in", "a||"),
                ElementsAre(Berichtsspalte{"a", 1440}, Berichtsspalte{"", 1440}, Berichtsspalte{"", 1440}));
}

TEST(Spaltenformat, OhneBreiteIstEsKeineSpalte) {
    EXPECT_THROW((void)SpaltenformatLesen("^1.0in|^", "a|b"), std::invalid_argument);
    EXPECT_THROW((void)SpaltenformatLesen("^1.0", "a"), std::invalid_argument);
    EXPECT_THROW((void)SpaltenformatLesen("", ""), std::invalid_argument);
}

TEST(Spaltenformat, KoepfeUndSpaltenSindGleichViele) {
    EXPECT_THROW((void)SpaltenformatLesen("^1.0in|^1.0in", "a"), std::invalid_argument);
    EXPECT_THROW((void)SpaltenformatLesen("^1.0in", "a|b"), std::invalid_argument);
}

}  // namespace
}  // namespace zinfolio
