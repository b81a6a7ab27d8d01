#include "kern/staffel/staffelsortierung.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>

#include "kern/staffel/auswahlsortierung.h"
#include "kern/staffel/beispielkonto.h"

namespace zinfolio {
namespace staffelsortierung_test {

using testing::ElementsAre;

struct Schluesselfall {
    Festtext<10> feld;
    double wert;
};

Schluesselfall Fall(std::string_view text, double wert) {
    return {Festtext<10>::AusWindows1252(text), wert};
}

/// A row with a key and its place of entry as the amount.
Staffelsatz Satz(const Festtext<10>& schluessel, std::size_t nummer) {
    Staffelsatz satz = Zahlung("01.01.2007", static_cast<double>(nummer));
    satz.Sortierschluessel = schluessel;
    return satz;
}

std::vector<Staffelsatz> Literal(std::vector<Staffelsatz> saetze, const std::vector<Schluesselfall>& faelle) {
    // The value of a row's key is looked up by its place of entry, so the sort below reads no key itself.
    const auto wert = [&](const Staffelsatz& satz) {
        return faelle[static_cast<std::size_t>(satz.Zahlbetrag)].wert;
    };
    LiteraleAuswahlsortierung(
        saetze.size(), [&](std::size_t k) { return saetze[k - 1]; },
        [&](std::size_t k, const Staffelsatz& satz) { saetze[k - 1] = satz; }, wert);
    return saetze;
}

std::vector<Staffelsatz> Saetze(const std::vector<Schluesselfall>& faelle) {
    std::vector<Staffelsatz> saetze;
    for (const Schluesselfall& fall : faelle)
        saetze.push_back(Satz(fall.feld, saetze.size()));
    return saetze;
}

void WieLiteral(const std::vector<Schluesselfall>& faelle) {
    std::vector<Staffelsatz> saetze = Saetze(faelle);
    const std::vector<Staffelsatz> erwartet = Literal(saetze, faelle);
    SortiereZahlungen(saetze);
    for (std::size_t i = 0; i < saetze.size(); ++i)
        ASSERT_EQ(saetze[i], erwartet[i]) << "row " << i << " of " << saetze.size();
}

TEST(SortiereZahlungen, OrdnetNachDatum) {
    std::vector<Staffelsatz> saetze{Zahlung("01.03.2007", 3), Zahlung("31.12.2006", 1),
                                    Zahlung("15.01.2007", 2)};
    SortiereZahlungen(saetze);
    EXPECT_THAT(saetze,
                ElementsAre(Zahlung("31.12.2006", 1), Zahlung("15.01.2007", 2), Zahlung("01.03.2007", 3)));
}

TEST(SortiereZahlungen, VerdraengteZeileGehtHinterGleichesDatum) {
    // i = 1: the January row changes places with the first of the two March rows, which so falls behind the
    // second.
    std::vector<Staffelsatz> saetze{Zahlung("01.03.2007", 1, "zuerst"), Zahlung("01.03.2007", 2, "danach"),
                                    Zahlung("01.01.2007", 3)};
    SortiereZahlungen(saetze);
    EXPECT_THAT(Uebersicht(saetze),
                ElementsAre("1 01.01.2007", "1 01.03.2007 danach", "1 01.03.2007 zuerst"));
}

TEST(SortiereZahlungen, GleicheDatenBleibenZweiZeilenInIhrerOrdnung) {
    std::vector<Staffelsatz> saetze{Zahlung("01.03.2007", 1, "a"), Zahlung("01.03.2007", 2, "b"),
                                    Zahlung("01.03.2007", 3, "c")};
    SortiereZahlungen(saetze);
    EXPECT_THAT(Uebersicht(saetze), ElementsAre("1 01.03.2007 a", "1 01.03.2007 b", "1 01.03.2007 c"));
}

TEST(SortiereZahlungen, SortierteBleibenUnveraendert) {
    std::vector<Staffelsatz> saetze{Zahlung("01.01.2007", 1), Zahlung("02.01.2007", 2),
                                    Zahlung("02.01.2007", 3), Zahlung("01.01.2008", 4)};
    const std::vector<Staffelsatz> vorher = saetze;
    SortiereZahlungen(saetze);
    EXPECT_EQ(saetze, vorher);
}

TEST(SortiereZahlungen, KeineUndEineZeile) {
    std::vector<Staffelsatz> saetze;
    SortiereZahlungen(saetze);
    EXPECT_TRUE(saetze.empty());
    saetze.push_back(Zahlung("01.01.2007", 1));
    SortiereZahlungen(saetze);
    EXPECT_THAT(saetze, ElementsAre(Zahlung("01.01.2007", 1)));
}

TEST(SortiereZahlungen, DerSchluesselEntscheidetNichtDasDatum) {
    std::vector<Staffelsatz> saetze{Zahlung("01.01.2007", 1), MitDatumstext(Zahlung("01.01.2006", 2), "??")};
    SortiereZahlungen(saetze);
    EXPECT_THAT(saetze, ElementsAre(MitDatumstext(Zahlung("01.01.2006", 2), "??"), Zahlung("01.01.2007", 1)));
}

TEST(SortiereZahlungen, BeschaedigteSchluesselZaehlenMitIhrerFuehrendenZahl) {
    const std::vector<Schluesselfall> faelle{
        Fall("20070101", 20070101),
        Fall("abc", 0),
        Fall("2007", 2007),
        {Festtext<10>{}, 0},
        Fall("", 0),
        Fall("-5", -5),
        Fall("200 70101", 200),
        Fall("20070101,5", 20070101.5),
        Fall("   19991231", 1999123),  // cut after 10 characters
        Fall("2007010100", 2007010100),
    };
    WieLiteral(faelle);
    std::vector<Staffelsatz> saetze = Saetze(faelle);
    SortiereZahlungen(saetze);
    std::vector<double> werte;
    for (const Staffelsatz& satz : saetze)
        werte.push_back(faelle[static_cast<std::size_t>(satz.Zahlbetrag)].wert);
    EXPECT_THAT(werte, ElementsAre(-5, 0, 0, 0, 200, 2007, 1999123, 20070101, 20070101.5, 2007010100));
}

TEST(SortiereZahlungen, ZufaelligeReihenWieDieLangsame) {
    const std::vector<Schluesselfall> vorrat{
        Fall("20070101", 20070101), Fall("20070102", 20070102), Fall("20061231", 20061231),
        Fall("20080229", 20080229), Fall("19991231", 19991231), Fall("99991231", 99991231),
        Fall("kaputt", 0),          {Festtext<10>{}, 0},        Fall("2007", 2007)};
    std::mt19937 zufall(61000);
    for (int runde = 0; runde < 600; ++runde) {
        const std::size_t anzahl = zufall() % 40;
        const std::size_t verschiedene = 1 + zufall() % vorrat.size();
        std::vector<Schluesselfall> faelle;
        for (std::size_t i = 0; i < anzahl; ++i)
            faelle.push_back(vorrat[zufall() % verschiedene]);
        ASSERT_NO_FATAL_FAILURE(WieLiteral(faelle)) << "round " << runde;
    }
}

class LangeReihen : public testing::TestWithParam<unsigned> {};

TEST_P(LangeReihen, WieDieLangsame) {
    std::mt19937 zufall(GetParam());
    std::vector<Schluesselfall> faelle;
    for (int i = 0; i < 2000; ++i) {
        const unsigned schluessel = 20000101 + static_cast<unsigned>(zufall() % GetParam());
        faelle.push_back(Fall(std::to_string(schluessel), schluessel));
    }
    WieLiteral(faelle);
}

INSTANTIATE_TEST_SUITE_P(VerschiedeneSchluessel, LangeReihen, testing::Values(2U, 30U, 700U, 5000000U));

TEST(SortiereZahlungen, RueckwaertsGeordneteReihe) {
    std::vector<Schluesselfall> faelle;
    for (unsigned i = 0; i < 1500; ++i)
        faelle.push_back(Fall(std::to_string(20079999 - i / 3), 20079999 - i / 3));
    WieLiteral(faelle);
}

TEST(SortiereKonditionen, OrdnetEbenso) {
    const Konditionen k;
    std::vector<Staffelsatz> saetze{Kondition("01.03.2007", Einheitszins(1)),
                                    Kondition("01.03.2007", Einheitszins(2)), Kondition("01.01.2007", k)};
    SortiereKonditionen(saetze);
    EXPECT_THAT(saetze, ElementsAre(Kondition("01.01.2007", k), Kondition("01.03.2007", Einheitszins(2)),
                                    Kondition("01.03.2007", Einheitszins(1))));
}

}  // namespace staffelsortierung_test
}  // namespace zinfolio
