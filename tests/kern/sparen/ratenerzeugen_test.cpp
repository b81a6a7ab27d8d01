#include <gmock/gmock.h>
#include <stdexcept>

#include "kern/sparen/planlauf.h"
#include "plaene.h"

namespace zinfolio {
namespace ratenerzeugen_test {

using testing::ElementsAre;

Sparplan Ab(std::string datum, std::string ende) {
    Sparplan plan = Plan2007();
    plan.ratdatum1 = std::move(datum);
    plan.Enddatum = std::move(ende);
    return plan;
}

/// Ten percent more after each payment.
Sparplan Dynamisch() {
    Sparplan plan = Ab("01.01.2007", "01.06.2007");
    plan.Check2 = 1;
    plan.Anzahl = "1";
    plan.Delta = "10";
    plan.Delta2 = "0";
    return plan;
}

std::vector<Staffelsatz> Saetze(const Sparplan& plan, Sparziel ziel, const Planprobe& probe = {}) {
    std::vector<Staffelsatz> saetze;
    RatenErzeugen(Form(ziel), plan, probe, saetze);
    return saetze;
}

TEST(RatenErzeugen, ErsteZeileIstDasAnfangsvermoegen) {
    const auto saetze = Saetze(Plan2007(), Sparziel::endkapital);
    EXPECT_EQ(saetze.size(), 12U);
    EXPECT_EQ(saetze[0], Zahlungssatz("01.01.2007", 1000, "Anfangsvermögen"));
    EXPECT_EQ(saetze[1], Zahlungssatz("01.02.2007", 100, "Zahlung"));
    EXPECT_EQ(saetze[11], Zahlungssatz("01.12.2007", 100, "Zahlung"));
}

TEST(RatenErzeugen, TagWirdNachKurzemMonatWiederhergestellt) {
    EXPECT_THAT(Raten(Ab("31.01.2007", "31.05.2007")),
                ElementsAre("31.01.2007 100.00", "28.02.2007 100.00", "31.03.2007 100.00",
                            "30.04.2007 100.00", "31.05.2007 100.00"));
}

TEST(RatenErzeugen, SchaltjahrHatDen29Februar) {
    EXPECT_THAT(Raten(Ab("31.01.2008", "01.03.2008")), ElementsAre("31.01.2008 100.00", "29.02.2008 100.00"));
}

TEST(RatenErzeugen, Dreissigster) {
    EXPECT_THAT(Raten(Ab("30.01.2007", "30.04.2007")), ElementsAre("30.01.2007 100.00", "28.02.2007 100.00",
                                                                   "30.03.2007 100.00", "30.04.2007 100.00"));
}

TEST(RatenErzeugen, ZumMonatsletzten) {
    Sparplan plan = Ab("28.02.2001", "31.05.2001");
    plan.Check1 = 1;
    EXPECT_THAT(Raten(plan), ElementsAre("28.02.2001 100.00", "31.03.2001 100.00", "30.04.2001 100.00",
                                         "31.05.2001 100.00"));
}

TEST(RatenErzeugen, MonatsletzterDarfEinenTagHinterDemEndeLiegen) {
    Sparplan plan = Ab("28.02.2003", "28.02.2004");
    plan.Combo1 = 4;
    plan.Check1 = 1;
    EXPECT_EQ(Raten(plan).back(), "29.02.2004 100.00");
}

TEST(RatenErzeugen, ZweiZeilenWoDasEndeVorDerZweitenRateLiegt) {
    EXPECT_THAT(Raten(Ab("01.02.2007", "28.02.2007")), ElementsAre("01.02.2007 100.00"));
}

TEST(RatenErzeugen, ErsteRateStehtAuchHinterDemEnde) {
    EXPECT_THAT(Raten(Ab("01.02.2007", "15.01.2007")), ElementsAre("01.02.2007 100.00"));
}

TEST(RatenErzeugen, AlleZahlungsweisen) {
    Sparplan plan = Ab("31.01.2007", "31.12.2007");
    const std::array<std::string, 5> zweite{"28.02.2007 100.00", "31.03.2007 100.00", "30.04.2007 100.00",
                                            "31.07.2007 100.00", "31.01.2007 100.00"};
    for (plan.Combo1 = 0; plan.Combo1 < 5; ++plan.Combo1) {
        const auto raten = Raten(plan);
        EXPECT_EQ(raten[plan.Combo1 == 4 ? 0 : 1], zweite.at(static_cast<std::size_t>(plan.Combo1)));
    }
}

TEST(RatenErzeugen, ProzenteWerdenJedesMalGerundet) {
    EXPECT_THAT(Raten(Dynamisch()),
                ElementsAre("01.01.2007 100.00", "01.02.2007 110.00", "01.03.2007 121.00",
                            "01.04.2007 133.10", "01.05.2007 146.41", "01.06.2007 161.05"));
}

TEST(RatenErzeugen, ProzentZuerstBetragDanach) {
    Sparplan plan = Dynamisch();
    plan.Delta2 = "5";
    EXPECT_EQ(Raten(plan)[2], "01.03.2007 131.50");  // 115 * 1.1 + 5
}

TEST(RatenErzeugen, DieDreizehnteRateTraegtDieErsteAenderung) {
    Sparplan plan = Dynamisch();
    plan.Anzahl = "12";
    plan.Enddatum = "01.01.2009";
    const auto raten = Raten(plan);
    EXPECT_EQ(raten[11], "01.12.2007 100.00");
    EXPECT_EQ(raten[12], "01.01.2008 110.00");
    EXPECT_EQ(raten[23], "01.12.2008 110.00");
    EXPECT_EQ(raten[24], "01.01.2009 121.00");
}

TEST(RatenErzeugen, ZweiStufenUndDannGleichbleibend) {
    Sparplan plan = Dynamisch();
    plan.Check3 = 1;
    plan.DynAnz = "2";
    EXPECT_THAT(Raten(plan), ElementsAre("01.01.2007 100.00", "01.02.2007 110.00", "01.03.2007 121.00",
                                         "01.04.2007 121.00", "01.05.2007 121.00", "01.06.2007 121.00"));
}

TEST(RatenErzeugen, ObergrenzeHaeltUndDieStufenZaehlenWeiter) {
    Sparplan plan = Dynamisch();
    plan.Enddatum = "01.07.2007";
    plan.Check3 = plan.Check4 = 1;
    plan.DynAnz = "5";
    plan.MaxSparrate = "125";
    EXPECT_EQ(Raten(plan).back(), "01.07.2007 125.00");
    plan.Delta = "-10";
    plan.MaxSparrate = "85";
    // 100, 85 (90 is above), 76.50, 68.85, 61.97, 55.77; the sixth change is none any more.
    EXPECT_EQ(Raten(plan).back(), "01.07.2007 55.77");
}

TEST(RatenErzeugen, Untergrenze) {
    Sparplan plan = Dynamisch();
    plan.Delta = "-50";
    plan.Check5 = 1;
    plan.MinSparrate = "30";
    EXPECT_THAT(Raten(plan), testing::Contains("01.03.2007 30.00"));
    EXPECT_EQ(Raten(plan).back(), "01.06.2007 30.00");
}

TEST(RatenErzeugen, UnterNullWirdEsEineAuszahlung) {
    Sparplan plan = Dynamisch();
    plan.Delta = "0";
    plan.Delta2 = "-100";
    const auto saetze = Saetze(plan, Sparziel::endkapital);
    EXPECT_EQ(saetze[1], Zahlungssatz("01.01.2007", 100, "Zahlung"));
    EXPECT_EQ(saetze[2], Zahlungssatz("01.02.2007", 0, "Auszahlung"));
    EXPECT_EQ(saetze[3], Zahlungssatz("01.03.2007", -100, "Auszahlung"));
}

TEST(RatenErzeugen, VersuchErsetztDieRate) {
    EXPECT_EQ(Saetze(Plan2007(), Sparziel::sparrate, {.rate = 77.5})[1].Zahlbetrag, 77.5);
}

TEST(RatenErzeugen, VersuchErsetztDasKapital) {
    EXPECT_EQ(Saetze(Plan2007(), Sparziel::anfangskapital, {.kapital = -250})[0].Zahlbetrag, -250);
}

TEST(RatenErzeugen, AnspardauerHatEigeneTexte) {
    Sparplan plan = Plan2007();
    plan.Betrag = "-100";
    const auto saetze = Saetze(plan, Sparziel::anspardauer, {.ende = Datum::Lesen("01.03.2007")});
    EXPECT_EQ(saetze.size(), 3U);
    EXPECT_EQ(saetze[1], Zahlungssatz("01.02.2007", -100, "Rate"));
    EXPECT_EQ(saetze[2], Zahlungssatz("01.03.2007", -100, "rate"));
}

TEST(RatenErzeugen, AnspardauerAendertInEuroUngerundet) {
    Sparplan plan = Dynamisch();
    plan.Command6 = "€";
    plan.Delta = "0,125";
    const auto saetze = Saetze(plan, Sparziel::anspardauer, {.ende = Datum::Lesen("01.03.2007")});
    EXPECT_EQ(saetze[2].Zahlbetrag, 100.125);
    EXPECT_EQ(saetze[3].Zahlbetrag, 100.25);
}

TEST(RatenErzeugen, AnspardauerAendertInProzentGerundet) {
    Sparplan plan = Dynamisch();
    plan.Delta = "0,125";
    const auto saetze = Saetze(plan, Sparziel::anspardauer, {.ende = Datum::Lesen("01.03.2007")});
    EXPECT_EQ(saetze[2].Zahlbetrag, 100.13);
}

TEST(RatenErzeugen, AnspardauerKenntKeineGrenzen) {
    Sparplan plan = Dynamisch();
    plan.Check3 = plan.Check4 = plan.Check5 = 1;
    plan.Delta2 = "abc";
    const auto saetze = Saetze(plan, Sparziel::anspardauer, {.ende = Datum::Lesen("01.03.2007")});
    EXPECT_EQ(saetze[3].Zahlbetrag, 121);
}

TEST(RatenErzeugen, RenditeHatBeimErstenMalDasEndvermoegen) {
    const auto saetze = Saetze(Plan2007(), Sparziel::rendite, {.mitEndvermoegen = true});
    EXPECT_EQ(saetze.size(), 13U);
    EXPECT_EQ(saetze.back(), Zahlungssatz("31.12.2007", -2200, "Endvermögen"));
    EXPECT_EQ(Saetze(Plan2007(), Sparziel::rendite).size(), 12U);
}

TEST(RatenErzeugen, DeltaWirdErstBeiEinerAenderungGelesen) {
    Sparplan plan = Dynamisch();
    plan.Delta = "abc";
    plan.Anzahl = "9";
    EXPECT_EQ(Raten(plan).size(), 6U);
    plan.Anzahl = "5";
    EXPECT_THROW(Raten(plan), std::runtime_error);
}

TEST(RatenErzeugen, GrenzenOhneHakenBleibenUngelesen) {
    Sparplan plan = Dynamisch();
    plan.DynAnz = plan.MaxSparrate = plan.MinSparrate = "abc";
    EXPECT_EQ(Raten(plan).size(), 6U);
}

TEST(RatenErzeugen, LeererBetragHinterlaesstDieErsteZeile) {
    Sparplan plan = Plan2007();
    plan.Betrag = "";
    std::vector<Staffelsatz> saetze;
    EXPECT_THROW(RatenErzeugen(Form(Sparziel::anfangskapital), plan, {.kapital = 5}, saetze),
                 std::runtime_error);
    EXPECT_EQ(saetze.size(), 1U);
}

TEST(RatenErzeugen, MehrAls32767ZeilenSindEinFehler) {
    std::vector<Staffelsatz> saetze;
    EXPECT_THROW(
        RatenErzeugen(Form(Sparziel::anspardauer), Plan2007(), {.ende = Datum::Lesen("01.01.5000")}, saetze),
        std::runtime_error);
    EXPECT_EQ(saetze.size(), 32767U);
}

TEST(RatenErzeugen, UeberlaufDerRateIstEinFehler) {
    Sparplan plan = Dynamisch();
    plan.Betrag = "1" + std::string(300, '0');
    plan.Delta = "1" + std::string(12, '0');
    EXPECT_THROW(Raten(plan), std::runtime_error);
}

}  // namespace ratenerzeugen_test
}  // namespace zinfolio
