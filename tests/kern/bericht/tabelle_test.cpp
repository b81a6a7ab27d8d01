#include "kern/bericht/tabelle.h"

#include <gmock/gmock.h>
#include <limits>
#include <stdexcept>

#include "kern/dates/zahlformat.h"

namespace zinfolio {
namespace tabelle_test {

using testing::ElementsAre;

struct Probe {
    std::string tag;
    double betrag = 0;
};

const std::vector<Spalte<Probe>> spalten{
    {.kopf = "Tag",
     .zelle = [](const Probe& probe) { return probe.tag; },
     .art = Zellart::datum,
     .ausrichtung = Zellausrichtung::links},
    {.kopf = "Betrag",
     .zelle = [](const Probe& probe) { return Format(probe.betrag, betragsmuster); },
     .zahl = [](const Probe& probe) { return probe.betrag; },
     .berichtskopf = "Betrag €"},
};

Tabelleninhalt Tabelle(std::vector<Probe> zeilen) {
    return TabelleBilden(spalten, std::make_shared<const std::vector<Probe>>(std::move(zeilen)));
}

TEST(TabelleBilden, SpaltenBehaltenWasSieSind) {
    EXPECT_THAT(Tabelle({}).spalten,
                ElementsAre(Tabellenspalte{"Tag", Zellart::datum, "", Zellausrichtung::links},
                            Tabellenspalte{"Betrag", Zellart::zahl, "Betrag €", Zellausrichtung::rechts}));
}

TEST(TabelleBilden, ZellenSindDieTexteDerZeilen) {
    const Tabelleninhalt tabelle = Tabelle({{"01.01.2007", 1}, {"02.01.2007", 1234.5}});
    EXPECT_EQ(tabelle.zeilen, 2U);
    EXPECT_EQ(tabelle.zelle(0, 0), "01.01.2007");
    EXPECT_EQ(tabelle.zelle(1, 1), "1.234,50");
}

TEST(TabelleBilden, NurDieGezeigtenZeilen) {
    const auto zeilen = std::make_shared<const std::vector<Probe>>(std::vector<Probe>{{"a"}, {"b"}, {"c"}});
    const Tabelleninhalt tabelle = TabelleBilden(spalten, zeilen, {2, 0});
    EXPECT_EQ(tabelle.zeilen, 2U);
    EXPECT_EQ(tabelle.zelle(0, 0), "c");
    EXPECT_EQ(tabelle.zelle(1, 0), "a");
}

TEST(TabelleBilden, BeschaedigteZahlenSindFragezeichen) {
    const Tabelleninhalt tabelle = Tabelle(
        {{"", std::numeric_limits<double>::quiet_NaN()}, {"", std::numeric_limits<double>::infinity()}});
    EXPECT_EQ(tabelle.zelle(0, 1), "?");
    EXPECT_EQ(tabelle.zelle(1, 1), "?");
    EXPECT_EQ(std::get<std::string>(tabelle.Wert(0, 1)), "?");
}

TEST(Zelltext, SchlichterTextEinerBeschaedigtenZahlIstEinFragezeichen) {
    const Spalte<Probe> spalte{.kopf = "Satz",
                               .zelle = [](const Probe& probe) { return Zahltext(probe.betrag); },
                               .zahl = [](const Probe& probe) { return probe.betrag; }};
    EXPECT_EQ(Zelltext(spalte, Probe{"", 3.3}), "3,3");
    EXPECT_EQ(Zelltext(spalte, Probe{"", std::numeric_limits<double>::infinity()}), "?");
}

TEST(Zellwert, DatumUndZahlSonstDerText) {
    const Tabelleninhalt tabelle = Tabelle({{"31.12.2006", 2.675}, {"31.11.2006", 0}});
    EXPECT_EQ(std::get<Datum>(tabelle.Wert(0, 0)), Datum::Aus(2006, 12, 31));
    EXPECT_EQ(std::get<double>(tabelle.Wert(0, 1)), 2.675);
    EXPECT_EQ(std::get<std::string>(tabelle.Wert(1, 0)), "31.11.2006");
}

TEST(TexttabelleBilden, KurzeZeilenWerdenLeerErgaenzt) {
    const Tabelleninhalt tabelle = TexttabelleBilden({{"a"}, {"b"}}, {{"1", "2"}, {"3"}});
    EXPECT_EQ(tabelle.zeilen, 2U);
    EXPECT_EQ(tabelle.zelle(0, 1), "2");
    EXPECT_EQ(tabelle.zelle(1, 0), "3");
    EXPECT_EQ(tabelle.zelle(1, 1), "");
    EXPECT_EQ(std::get<std::string>(tabelle.Wert(0, 0)), "1");
}

TEST(BerichtstabelleBilden, KoepfeDerSpaltenBreitenDesFormats) {
    const Berichtstabelle tabelle = BerichtstabelleBilden(Tabelle({{"01.01.2007", 1}}), "^+1.0in|<2.0in", 8);
    EXPECT_THAT(tabelle.spalten, ElementsAre(Berichtsspalte{"Tag", 1440, Kopfausrichtung::mitte},
                                             Berichtsspalte{"Betrag €", 2880, Kopfausrichtung::links}));
    EXPECT_EQ(tabelle.kopfschrift, (Berichtsschrift{"Arial", 8, true}));
    EXPECT_EQ(tabelle.schrift, (Berichtsschrift{"Arial", 8, false}));
    EXPECT_EQ(tabelle.zeilen, 1U);
    EXPECT_EQ(tabelle.zelle(0, 1), "1,00");
}

TEST(BerichtstabelleBilden, FormatUndSpaltenSindGleichViele) {
    EXPECT_THROW((void)BerichtstabelleBilden(Tabelle({}), "^1.0in", 8), std::invalid_argument);
    EXPECT_THROW((void)BerichtstabelleBilden(Tabelle({}), "^1.0in|^1.0in|^1.0in", 8), std::invalid_argument);
}

}  // namespace tabelle_test
}  // namespace zinfolio
