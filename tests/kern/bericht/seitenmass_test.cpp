#include "kern/bericht/seitenmass.h"

#include <gmock/gmock.h>

#include "kern/bericht/spaltenformat.h"

namespace zinfolio {
namespace seitenmass_test {

using testing::ElementsAre;
using testing::IsEmpty;

Bericht MitSpalten(std::string_view format) {
    Bericht bericht;
    bericht.tabelle.spalten = SpaltenformatLesen(format);
    return bericht;
}

TEST(Textbreite, IstDasPapierOhneRaender) {
    Bericht bericht;
    EXPECT_EQ(Textbreite(bericht), 15838);
    bericht.querformat = false;
    EXPECT_EQ(Textbreite(bericht), 10906);
    bericht.rand = 0;
    EXPECT_EQ(Textbreite(bericht), 11906);
}

TEST(Spaltenkanten, SchmaleTabellenBleibenSchmal) {
    EXPECT_THAT(Spaltenkanten(MitSpalten("^1.0in|^2.0in|^0.5in")), ElementsAre(1440, 4320, 5040));
}

TEST(Spaltenkanten, ZuBreiteTabellenWerdenGleichmaessigSchmaler) {
    // 20 inches are 28800 twips; 15838 / 28800 of 14400 is 7919
    EXPECT_THAT(Spaltenkanten(MitSpalten("^10.0in|^10.0in")), ElementsAre(7919, 15838));
}

TEST(Spaltenkanten, ImHochformatIstWenigerPlatz) {
    Bericht bericht = MitSpalten("^10.0in|^10.0in");
    bericht.querformat = false;
    EXPECT_THAT(Spaltenkanten(bericht), ElementsAre(5453, 10906));
}

TEST(Spaltenkanten, OhneSpaltenGibtEsKeine) {
    EXPECT_THAT(Spaltenkanten(Bericht{}), IsEmpty());
}

TEST(Spaltenkanten, SpaltenOhneBreiteBleibenOhne) {
    Bericht bericht;
    bericht.tabelle.spalten.resize(2);
    EXPECT_THAT(Spaltenkanten(bericht), ElementsAre(0, 0));
}

}  // namespace seitenmass_test
}  // namespace zinfolio
