#include "kern/staffel/listenspalten.h"

#include <gmock/gmock.h>

#include "kern/staffel/beispielkonto.h"

namespace zinfolio {
namespace listenspalten_test {

using testing::ElementsAre;

std::vector<std::string> Zellen(const std::vector<Spalte<Staffelsatz>>& spalten, const Staffelsatz& satz) {
    std::vector<std::string> texte;
    for (const auto& spalte : spalten)
        texte.push_back(spalte.zelle(satz));
    return texte;
}

TEST(Zahlungsspalten, DatumBetragUndText) {
    EXPECT_THAT(Zellen(Zahlungsspalten(), Zahlung("01.01.2007", -15000.5, "Köln für 5 €")),
                ElementsAre("01.01.2007", "-15.000,50", "Köln für 5 €"));
}

TEST(Konditionsspalten, SaetzeMitVierStellenUndLinienMitZwei) {
    const Konditionen kondition{.Gutzins1 = 2,
                                .Gutzins2 = 3.25F,
                                .Guthabenlinie = 10000,
                                .Kreditzins1 = 8.125F,
                                .Kreditzins2 = 999,
                                .Kreditlinie = 1234567.5,
                                .Zweitzinsart = 2};
    EXPECT_THAT(Zellen(Konditionsspalten(), Kondition("31.12.2007", kondition)),
                ElementsAre("31.12.2007", "2,0000", "3,2500", "10.000,00", "8,1250", "999,0000",
                            "1.234.567,50", "Betrag über Limit"));
}

TEST(Konditionsspalten, EinsGiltFuerDenGesamtbetrag) {
    const Konditionen kondition{.Zweitzinsart = 1};
    EXPECT_EQ(Zellen(Konditionsspalten(), Kondition("31.12.2007", kondition)).back(), "Gesamtbetrag");
}

}  // namespace listenspalten_test
}  // namespace zinfolio
