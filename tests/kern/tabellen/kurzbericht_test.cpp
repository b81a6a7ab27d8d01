#include "kern/tabellen/kurzbericht.h"

#include <gtest/gtest.h>

namespace zinfolio {
namespace kurzbericht_test {

TEST(Kurzbericht, NenntFelderZahlweiseUndModusUndAmEndeDasErgebnis) {
    const Kurzeingabe eingabe{
        .texte = {"100,00", "10,00", "0,00", "5,00", "0,00", "15.502,25"}, .m = 12, .Zahlungsmodus = 2};
    const Textbericht bericht = Kurzbericht(KurzrechnerVon(Kurzform::Form4b), eingabe);
    EXPECT_EQ(bericht.titel, "Endkapital Ratensparen");
    const std::vector<std::string> zeilen{
        "       Höhe einer Zahlungsrate                                               100,00",
        "            Laufzeit in Jahren                                                10,00",
        "        und Laufzeit in Tagen                                                  0,00",
        "    Verzinsung der Anlage in %                                                 5,00",
        "                Anfangskapital                                                 0,00",
        "                     Zahlweise                                            monatlich",
        "                 Zahlungsmodus   1. Zahlung nach Ablauf 1. Zahlungsintervall fällig",
        "",
        "              Vermögensendwert                                            15.502,25",
    };
    EXPECT_EQ(bericht.zeilen, zeilen);
}

TEST(Kurzbericht, ZweiErgebnisseStehenBeideAmEnde) {
    const Kurzeingabe eingabe{
        .texte = {"100,00", "9,00", "261,00", "5,00", "0,00", "15.000,00"}, .m = 1, .Zahlungsmodus = 1};
    const Textbericht bericht = Kurzbericht(KurzrechnerVon(Kurzform::Form8b), eingabe);
    ASSERT_EQ(bericht.zeilen.size(), 9U);
    EXPECT_EQ(bericht.zeilen[6], "");
    EXPECT_EQ(bericht.zeilen[7],
              "            Laufzeit in Jahren                                                 9,00");
    EXPECT_EQ(bericht.zeilen[8],
              "        und Laufzeit in Tagen                                                261,00");
}

}  // namespace kurzbericht_test
}  // namespace zinfolio
