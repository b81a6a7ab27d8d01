#include "kern/staffel/kontodiagramm.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "kern/staffel/beispielkonto.h"

namespace zinfolio {
namespace kontodiagramm_test {

using testing::DoubleEq;
using testing::ElementsAre;

/// A row as the calculation leaves it.
Staffelsatz Zeile(std::string_view datum, double betrag, double kontostand) {
    Staffelsatz satz = Zahlung(datum, betrag);
    satz.Kontostand = kontostand;
    return satz;
}

Diagramm Gezeichnet(const std::vector<Staffelsatz>& loesung) {
    return std::get<Diagramm>(Kontodiagramm(loesung));
}

/// The title of the value axis of an account with that last balance.
std::string TitelBei(double letzterStand) {
    return Gezeichnet({Zeile("01.01.2007", 1, 1), Zeile("31.12.2007", 1, letzterStand)}).achsentitel;
}

TEST(Kontodiagramm, HatKontostandUndLaufendeZahlungssumme) {
    const Diagramm diagramm =
        Gezeichnet({Zeile("01.01.2007", 15000, 15000), Zeile("15.06.2008", -500.5, 14800.25),
                    Zeile("31.12.2009", 0, 15086.53)});
    EXPECT_EQ(diagramm.achsentitel, "Zahlungen + Zinsen in €");
    EXPECT_EQ(diagramm.teiler, 1);
    EXPECT_THAT(diagramm.zeilentexte,
                ElementsAre(" 2007            ", " 2008            ", " 2009            "));
    EXPECT_THAT(diagramm.zeilennamen, ElementsAre("01.01.2007", "15.06.2008", "31.12.2009"));
    ASSERT_EQ(diagramm.reihen.size(), 2U);
    EXPECT_EQ(diagramm.reihen[0].name, "kumulierte Zahlungen + Zinsen");
    EXPECT_THAT(diagramm.reihen[0].werte, ElementsAre(15000, 14800.25, 15086.53));
    EXPECT_EQ(diagramm.reihen[1].name, "kumulierte Zahlungen");
    EXPECT_THAT(diagramm.reihen[1].werte, ElementsAre(15000, 14499.5, 14499.5));
}

TEST(Kontodiagramm, EnthaeltDieGerundetenBetraegeDerZellen) {
    const Diagramm diagramm =
        Gezeichnet({Zeile("01.01.2007", 2.675, 1.004), Zeile("02.01.2007", 2.675, 86.527777)});
    EXPECT_THAT(diagramm.reihen[0].werte, ElementsAre(DoubleEq(1), DoubleEq(86.53)));
    EXPECT_THAT(diagramm.reihen[1].werte, ElementsAre(DoubleEq(2.68), DoubleEq(5.36)));
}

TEST(Kontodiagramm, KonditionenSindKeineZeilen) {
    std::vector<Staffelsatz> loesung{Zeile("01.01.2007", 100, 100),
                                     Kondition("01.02.2007", beispielkonditionen),
                                     Zeile("31.12.2007", 0, 102)};
    EXPECT_THAT(Gezeichnet(loesung).zeilennamen, ElementsAre("01.01.2007", "31.12.2007"));
}

TEST(Kontodiagramm, WenigerAlsZweiZeilenWerdenAbgelehnt) {
    const Ablehnung ablehnung{
        .Meldung = "Es ist nur 1 Zahlung vorhanden. Eine Grafikanzeige ist daher nicht möglich.",
        .Feld = "",
        .Register = ""};
    const std::vector<Staffelsatz> eine{Zeile("01.01.2007", 100, 100)};
    const std::vector<Staffelsatz> eineUndKondition{Kondition("01.01.2007", beispielkonditionen),
                                                    Zeile("01.01.2007", 100, 100)};
    EXPECT_EQ(std::get<Ablehnung>(Kontodiagramm({})), ablehnung);
    EXPECT_EQ(std::get<Ablehnung>(Kontodiagramm(eine)), ablehnung);
    EXPECT_EQ(std::get<Ablehnung>(Kontodiagramm(eineUndKondition)), ablehnung);
}

TEST(Kontodiagramm, ZweiZeilenGenuegen) {
    EXPECT_EQ(Gezeichnet({Zeile("01.01.2007", 1, 1), Zeile("02.01.2007", 1, 2)}).zeilentexte.size(), 2U);
}

TEST(Kontodiagramm, GenauEineMillionStehtInEuro) {
    EXPECT_EQ(TitelBei(1e6), "Zahlungen + Zinsen in €");
}

TEST(Kontodiagramm, UeberEinerMillionStehtInTausend) {
    const Diagramm diagramm =
        Gezeichnet({Zeile("01.01.2007", 500, 250), Zeile("31.12.2007", 500, 1000000.01)});
    EXPECT_EQ(diagramm.achsentitel, "Zahlungen + Zinsen in Tausend €");
    EXPECT_EQ(diagramm.teiler, 1000);
    EXPECT_THAT(diagramm.reihen[0].werte, ElementsAre(DoubleEq(0.25), DoubleEq(1000.00001)));
    EXPECT_THAT(diagramm.reihen[1].werte, ElementsAre(DoubleEq(0.5), DoubleEq(1)));
}

TEST(Kontodiagramm, BruchteilEinesCentsUeberDerGrenzeZaehltGerundet) {
    EXPECT_EQ(TitelBei(1000000.004), "Zahlungen + Zinsen in €");
}

TEST(Kontodiagramm, GenauEineMilliardeStehtInTausend) {
    EXPECT_EQ(TitelBei(1e9), "Zahlungen + Zinsen in Tausend €");
}

TEST(Kontodiagramm, UeberEinerMilliardeStehtInMillionen) {
    const Diagramm diagramm =
        Gezeichnet({Zeile("01.01.2007", 500000, 1), Zeile("31.12.2007", 0, 1000000000.01)});
    EXPECT_EQ(diagramm.achsentitel, "Zahlungen + Zinsen in Mio. €");
    EXPECT_THAT(diagramm.reihen[1].werte, ElementsAre(DoubleEq(0.5), DoubleEq(0.5)));
}

TEST(Kontodiagramm, NegativerLetzterStandStehtInEuro) {
    EXPECT_EQ(TitelBei(-5e9), "Zahlungen + Zinsen in €");
}

TEST(Kontodiagramm, GroessererFruehererStandZaehltNicht) {
    const Diagramm diagramm = Gezeichnet({Zeile("01.01.2007", 5e9, 5e9), Zeile("31.12.2007", -5e9, 12)});
    EXPECT_EQ(diagramm.achsentitel, "Zahlungen + Zinsen in €");
    EXPECT_THAT(diagramm.reihen[0].werte, ElementsAre(5e9, 12));
}

TEST(Kontodiagramm, GleicheJahreGebenGleicheTexte) {
    EXPECT_THAT(Gezeichnet({Zeile("01.01.2007", 1, 1), Zeile("01.02.2007", 1, 2)}).zeilentexte,
                ElementsAre(" 2007            ", " 2007            "));
}

/// A savings plan shows conditions too, and says the same in other words.
TEST(Kontodiagramm, AndereRechnerGebenNurIhreTexteUndZeilen) {
    constexpr Kontodiagrammtexte texte{.einheiten = {.millionen = "M", .tausend = "T", .einzeln = "E"},
                                       .kontostand = "Zahlungen + Zinsen",
                                       .zahlungen = "Zahlungen",
                                       .vorJahr = "            ",
                                       .nachJahr = ""};
    const std::vector<Staffelsatz> loesung{Kondition("01.01.2007", beispielkonditionen),
                                           Zeile("01.01.2008", 7, 7)};
    const std::vector<std::size_t> zeilen{0, 1};
    const auto diagramm = std::get<Diagramm>(Kontodiagramm(loesung, zeilen, texte));
    EXPECT_EQ(diagramm.achsentitel, "E");
    EXPECT_THAT(diagramm.zeilentexte, ElementsAre("            2007", "            2008"));
    EXPECT_EQ(diagramm.reihen[0].name, "Zahlungen + Zinsen");
    EXPECT_EQ(diagramm.reihen[1].name, "Zahlungen");
    EXPECT_THAT(diagramm.reihen[1].werte, ElementsAre(0, 7));
}

}  // namespace kontodiagramm_test
}  // namespace zinfolio
