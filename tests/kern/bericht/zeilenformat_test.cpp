#include "kern/bericht/zeilenformat.h"

#include <gmock/gmock.h>
#include <initializer_list>

#include "kern/dates/zahl.h"

namespace zinfolio {
namespace zeilenformat_test {

/// A value by itself, without a label and appended directly.
std::string Wert(std::string_view wert, std::int16_t zahlformat) {
    return Zeilenformat({.Wert = wert, .Ausrichtung = 1, .Zahlformat = zahlformat});
}

TEST(Zeilenformat, BezeichnungEndetInDerErstenSpalteUndWertInDerZweiten) {
    EXPECT_EQ(Zeilenformat({.Spalte1 = 10,
                            .Spalte2 = 12,
                            .Bezeichnung = "Zinsen",
                            .Wert = "86,53",
                            .Ausrichtung = 2,
                            .Zahlformat = 0}),
              "    Zinsen       86,53");
}

TEST(Zeilenformat, Ausrichtung1HaengtDenWertUnmittelbarAn) {
    EXPECT_EQ(
        Zeilenformat(
            {.Spalte1 = 10, .Spalte2 = 12, .Bezeichnung = "Zinsen", .Wert = " 86,53", .Ausrichtung = 1}),
        "    Zinsen 86,53");
}

TEST(Zeilenformat, JedeAndereAusrichtungLaesstNurDieBezeichnung) {
    for (const std::int16_t ausrichtung : std::initializer_list<std::int16_t>{0, 3, -1, 32767}) {
        EXPECT_EQ(Zeilenformat({.Spalte1 = 10,
                                .Spalte2 = 12,
                                .Bezeichnung = "Zinsen",
                                .Wert = "86,53",
                                .Ausrichtung = ausrichtung}),
                  "    Zinsen");
    }
}

TEST(Zeilenformat, EinLeererWertIstNull) {
    EXPECT_EQ(Wert("", 0), "0");
    EXPECT_EQ(Wert("", 1), "0,00");
    EXPECT_EQ(Wert("", 2), "0,00");
    EXPECT_EQ(Zeilenformat({.Spalte1 = 2, .Spalte2 = 3, .Bezeichnung = "a", .Wert = "", .Ausrichtung = 2}),
              " a  0");
}

TEST(Zeilenformat, Zahlformat1GruppiertUndHatZweiStellen) {
    EXPECT_EQ(Wert("15086,53", 1), "15.086,53");
    EXPECT_EQ(Wert("1234567,895", 1), "1.234.567,90");
    EXPECT_EQ(Wert("-0,001", 1), "0,00");
    EXPECT_EQ(Wert("-1000", 1), "-1.000,00");
    EXPECT_EQ(Wert(",5", 1), "0,50");
}

TEST(Zeilenformat, Zahlformat2GruppiertNicht) {
    EXPECT_EQ(Wert("15086,53", 2), "15086,53");
    EXPECT_EQ(Wert("-1234567,895", 2), "-1234567,90");
    EXPECT_EQ(Wert(",5", 2), "0,50");
}

TEST(Zeilenformat, EinWertMitPunktHatIhnAlsDezimalzeichen) {
    EXPECT_EQ(Wert("15086.53", 1), "15.086,53");
    EXPECT_EQ(Wert("15086.53", 2), "15086,53");
    EXPECT_EQ(Wert("1.234,56", 1), "1,23") << "read up to the comma";
    EXPECT_EQ(Wert("31.12.2007", 2), "31,12") << "read up to the second point";
    EXPECT_EQ(Wert("a.b", 1), "0,00");
}

TEST(Zeilenformat, OhnePunktUndOhneZahlIstEsEinFehler) {
    EXPECT_THROW((void)Wert("abc", 1), Zahlfehler);
    EXPECT_THROW((void)Wert("1,2,3", 2), Zahlfehler);
    EXPECT_THROW((void)Wert("   ", 1), Zahlfehler);
    EXPECT_THROW((void)Zeilenformat({.Wert = "abc", .Ausrichtung = 0, .Zahlformat = 1}), Zahlfehler)
        << "read also where the line holds the label only";
}

TEST(Zeilenformat, JedesAndereZahlformatLaesstDenWertWieErIst) {
    for (const std::int16_t zahlformat : std::initializer_list<std::int16_t>{0, 3, -1, 32767}) {
        EXPECT_EQ(Wert("Quartalsende", zahlformat), "Quartalsende");
        EXPECT_EQ(Wert("1234,5", zahlformat), "1234,5");
        EXPECT_EQ(Wert(" ", zahlformat), " ");
    }
}

TEST(Zeilenformat, ZuLangesBleibtGanz) {
    EXPECT_EQ(Zeilenformat(
                  {.Spalte1 = 3, .Spalte2 = 2, .Bezeichnung = "Zinsen", .Wert = "86,53", .Ausrichtung = 2}),
              "Zinsen86,53");
    EXPECT_EQ(Zeilenformat(
                  {.Spalte1 = 6, .Spalte2 = 5, .Bezeichnung = "Zinsen", .Wert = "86,53", .Ausrichtung = 2}),
              "Zinsen86,53")
        << "both just fit";
}

TEST(Zeilenformat, SpaltenOhneBreiteSchadenNicht) {
    EXPECT_EQ(Zeilenformat({.Spalte1 = 0, .Spalte2 = -5, .Bezeichnung = "a", .Wert = "b", .Ausrichtung = 2}),
              "ab");
    EXPECT_EQ(Zeilenformat({.Spalte1 = -32768, .Spalte2 = 0, .Wert = "b", .Ausrichtung = 2}), "b");
}

TEST(Zeilenformat, GezaehltWerdenZeichen) {
    EXPECT_EQ(
        Zeilenformat(
            {.Spalte1 = 13, .Spalte2 = 4, .Bezeichnung = "Endvermögen", .Wert = "5 €", .Ausrichtung = 2}),
        "  Endvermögen 5 €");
}

TEST(Zeilenformat, EineLeereBezeichnungSindBlanks) {
    EXPECT_EQ(Zeilenformat({.Spalte1 = 4, .Spalte2 = 3, .Wert = "b", .Ausrichtung = 2}), "      b");
}

}  // namespace zeilenformat_test
}  // namespace zinfolio
