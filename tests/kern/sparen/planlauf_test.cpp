#include "kern/sparen/planlauf.h"

#include <gmock/gmock.h>
#include <stdexcept>

#include "plaene.h"

namespace zinfolio {
namespace planlauf_test {

Konditionen Zins(float satz) {
    return {satz, satz, 0, satz, satz, 0, 1};
}

std::vector<Staffelsatz> Konditionssaetze(const Sparplan& plan, Sparziel ziel, const Planprobe& probe = {}) {
    std::vector<Staffelsatz> saetze;
    KonditionenSchreiben(Form(ziel), plan, probe, saetze);
    return saetze;
}

TEST(KonditionenSchreiben, LeereTabelleGibtEineZeile) {
    EXPECT_THAT(Konditionssaetze(Plan2007(), Sparziel::endkapital),
                testing::ElementsAre(Konditionssatz("01.01.2007", Zins(3))));
}

TEST(KonditionenSchreiben, AenderungenBisZumEnddatum) {
    Sparplan plan = Plan2007();
    plan.ZinsWDAt = {"01.03.2007", "31.12.2007", "01.01.2008"};
    plan.Zinsbetrag = {"2,5", "3,3", "9"};
    const auto saetze = Konditionssaetze(plan, Sparziel::endkapital);
    ASSERT_EQ(saetze.size(), 3U);
    EXPECT_EQ(saetze[1].kondition, Zins(2.5F));
    EXPECT_EQ(saetze[1].Zahlungstext.Roh(), "Zins\xE4nderung             ");
    EXPECT_EQ(saetze[1].Sortierschluessel.Roh(), "20070301  ");
    EXPECT_EQ(saetze[2].kondition, Zins(3.3F));
    EXPECT_EQ(saetze[0].Zahlungstext, Festtext<25>());
}

TEST(KonditionenSchreiben, RenditeUndAnspardauerHabenEineZeile) {
    Sparplan plan = Plan2007();
    plan.ZinsWDAt[0] = "01.03.2007";
    plan.Zinsbetrag[0] = "2,5";
    EXPECT_THAT(Konditionssaetze(plan, Sparziel::rendite, {.zins = 1.5}),
                testing::ElementsAre(Konditionssatz("01.01.2007", Zins(1.5F))));
    EXPECT_THAT(Konditionssaetze(plan, Sparziel::anspardauer),
                testing::ElementsAre(Konditionssatz("01.01.2007", Zins(3))));
}

TEST(KonditionenSchreiben, ZinsJenseitsVonVierBytesIstEinFehler) {
    Sparplan plan = Plan2007();
    plan.Zins = "1" + std::string(39, '0');
    std::vector<Staffelsatz> saetze;
    EXPECT_THROW(KonditionenSchreiben(Form(Sparziel::endkapital), plan, {}, saetze), std::runtime_error);
    EXPECT_TRUE(saetze.empty());
}

// By hand: 1000 for 30 days at 3 % are 2.50, each month 0.25 more; December has 29 days to the 31st, 2100 *
// 0.03 * 29 / 360 = 5.075, whose half lies a little below in binary. The closing date equals the first
// settlement date and stands twice.
TEST(Planlauf, EinJahrMitZwoelfZahlungen) {
    Sparlauf lauf;
    Planlauf(Form(Sparziel::endkapital), Plan2007(), {}, lauf);
    const auto& loesung = *lauf.loesung;
    ASSERT_EQ(loesung.size(), 15U);
    EXPECT_EQ(loesung[0].Zahlungsart, zahlungsart::kondition);
    EXPECT_EQ(loesung[1].Periodenzins, 2.5);
    EXPECT_EQ(loesung[2].Periodenzins, 2.75);
    EXPECT_EQ(loesung[12].Periodenzins, 5.07);
    EXPECT_EQ(loesung[13].Zinsgutschrift, 46.32);
    EXPECT_EQ(loesung[14].Zinsgutschrift, 0);
    EXPECT_EQ(LetzterKontostand(lauf), 2146.32);
    EXPECT_EQ(lauf.zahlungen->size(), 12U);
    EXPECT_EQ(lauf.termine->size(), 2U);
    EXPECT_EQ(lauf.konditionen->size(), 1U);
}

TEST(Planlauf, RateHinterDemEndeBleibtImKontoWeg) {
    Sparplan plan = Plan2007();
    plan.Enddatum = "15.01.2007";
    Sparlauf lauf;
    Planlauf(Form(Sparziel::endkapital), plan, {}, lauf);
    EXPECT_EQ(lauf.zahlungen->size(), 2U);
    EXPECT_EQ(lauf.loesung->size(), 3U);
    EXPECT_EQ(LetzterKontostand(lauf), 1001.17);  // 14 days: 1.1666...
}

TEST(Planlauf, FehlerLaesstSpaetereTabellenUnberuehrt) {
    Sparplan plan = Plan2007();
    plan.Zins = "abc";
    Sparlauf lauf;
    EXPECT_THROW(Planlauf(Form(Sparziel::endkapital), plan, {}, lauf), std::runtime_error);
    EXPECT_EQ(lauf.zahlungen->size(), 12U);
    EXPECT_EQ(lauf.termine->size(), 2U);
    EXPECT_TRUE(lauf.konditionen->empty());
    EXPECT_EQ(lauf.loesung, std::nullopt);
}

TEST(LetzterKontostand, OhneZeileEinFehler) {
    EXPECT_THROW(static_cast<void>(LetzterKontostand({})), std::runtime_error);
}

}  // namespace planlauf_test
}  // namespace zinfolio
