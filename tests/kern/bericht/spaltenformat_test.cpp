#include "kern/bericht/spaltenformat.h"

#include <gmock/gmock.h>
#include <stdexcept>

namespace zinfolio {
namespace spaltenformat_test {

using testing::ElementsAre;

TEST(Spaltenformat, BreitenStehenInZollUndWerdenTwips) {
    EXPECT_THAT(SpaltenformatLesen("^+1.0in|^2.0in|^1.6in"),
                ElementsAre(Berichtsspalte{"", 1440, Kopfausrichtung::mitte},
                            Berichtsspalte{"", 2880, Kopfausrichtung::mitte},
                            Berichtsspalte{"", 2304, Kopfausrichtung::mitte}));
}

TEST(Spaltenformat, EineEinzelneSpalteBrauchtKeinenStrich) {
    EXPECT_THAT(SpaltenformatLesen("<12.0in"),
                ElementsAre(Berichtsspalte{"", 17280, Kopfausrichtung::links}));
}

TEST(Spaltenformat, EinZeichenDarfHinterDerBreiteStehen) {
    EXPECT_THAT(SpaltenformatLesen("^1.0in|1.6in^|>0.6in"),
                ElementsAre(Berichtsspalte{"", 1440, Kopfausrichtung::mitte},
                            Berichtsspalte{"", 2304, Kopfausrichtung::mitte},
                            Berichtsspalte{"", 864, Kopfausrichtung::rechts}));
}

TEST(Spaltenformat, OhneBreiteIstEsKeineSpalte) {
    EXPECT_THROW((void)SpaltenformatLesen("^1.0in|^"), std::invalid_argument);
    EXPECT_THROW((void)SpaltenformatLesen("^1.0in||^1.0in"), std::invalid_argument);
    EXPECT_THROW((void)SpaltenformatLesen("^1.0"), std::invalid_argument);
    EXPECT_THROW((void)SpaltenformatLesen(""), std::invalid_argument);
}

}  // namespace spaltenformat_test
}  // namespace zinfolio
