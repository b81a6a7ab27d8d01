#include "kern/sparen/schnelllauf.h"

#include <cmath>

#include "kern/sparen/dauerlauf.h"
#include "plaene.h"

namespace zinfolio {
namespace schnelllauf_test {

/// The balance of a whole pass, from the first row to the last.
double Neu(Sparziel ziel, const Sparplan& plan, const Planprobe& probe) {
    Sparlauf lauf;
    Planlauf(Form(ziel), plan, probe, lauf);
    return LetzterKontostand(lauf);
}

/// Plans of all rhythms and methods, with everything that a plan can have.
std::vector<Sparplan> Plaene() {
    std::vector<Sparplan> plaene;
    for (std::int16_t i = 0; i < 30; ++i) {
        Sparplan plan = Plan2007();
        plan.Anfdatum = "15.11.2006";
        plan.ratdatum1 = "31.01.2007";
        plan.Enddatum = "17.03.2013";
        plan.AnfVermögen = "1234,56";
        plan.Zins = "3,7";
        plan.Combo1 = static_cast<std::int16_t>(i % 5);
        plan.Combo2 = static_cast<std::int16_t>(i % 5);
        plan.Combo4 = static_cast<std::int16_t>(i % 6);
        plan.Check2 = 1;
        plan.Anzahl = std::to_string(1 + i % 4);
        plan.Delta = "1,75";
        plan.Delta2 = "-0,5";
        plan.ZinsWDAt[0] = "29.02.2008";
        plan.Zinsbetrag[0] = "0,9";
        plan.ZinsWDAt[1] = "31.12.2010";
        plan.Zinsbetrag[1] = "5,125";
        plaene.push_back(plan);
    }
    return plaene;
}

TEST(Schnelllauf, GibtDieselbenBitsWieEinGanzerDurchlauf) {
    for (const Sparplan& plan : Plaene()) {
        const Sparform& form = Form(Sparziel::sparrate);
        Sparlauf lauf;
        Planlauf(form, plan, {.rate = 1}, lauf);
        Schnelllauf schnell(form, plan, lauf);
        for (const double rate : {-317.25, 0.0, 0.01, 88.88, 12345.67}) {
            EXPECT_EQ(schnell.Endstand({.rate = rate}), Neu(Sparziel::sparrate, plan, {.rate = rate}));
            EXPECT_EQ(schnell.Endstand({.kapital = rate, .rate = 5}),
                      Neu(Sparziel::sparrate, plan, {.kapital = rate, .rate = 5}));
        }
    }
}

TEST(Schnelllauf, GibtDieselbenBitsBeiAnderenZinsen) {
    for (const Sparplan& plan : Plaene()) {
        const Sparform& form = Form(Sparziel::rendite);
        Sparlauf lauf;
        Planlauf(form, plan, {.zins = 1}, lauf);
        Schnelllauf schnell(form, plan, lauf);
        for (const double zins : {-3.5, 0.0, 0.123456789, 4.7, 88.0})
            EXPECT_EQ(schnell.Endstand({.zins = zins}), Neu(Sparziel::rendite, plan, {.zins = zins}));
    }
}

TEST(Schnelllauf, UeberlaufIstEinFehler) {
    const Sparplan plan = Plan2007();
    Sparlauf lauf;
    Planlauf(Form(Sparziel::sparrate), plan, {}, lauf);
    Schnelllauf schnell(Form(Sparziel::sparrate), plan, lauf);
    EXPECT_THROW(static_cast<void>(schnell.Endstand({.rate = 1.7e308})), std::runtime_error);
    EXPECT_THROW(Neu(Sparziel::sparrate, plan, {.rate = 1.7e308}), std::runtime_error);
}

// Every day of the first two years, where closing dates before the first settlement have rules of their own.
TEST(Dauerlauf, GibtJedenTagDieselbenBitsWieEinNeuerDurchlauf) {
    for (const Sparplan& plan : Plaene()) {
        Dauerlauf dauerlauf(Form(Sparziel::anspardauer), plan);
        const Datum anfang = Datum::Lesen(plan.Anfdatum);
        for (int tag = 0; tag < 800; ++tag) {
            const Datum ende = PlusTage(anfang, tag);
            ASSERT_EQ(dauerlauf.Endstand(ende), Neu(Sparziel::anspardauer, plan, {.ende = ende}))
                << ende.Text() << " Combo4 " << plan.Combo4;
        }
    }
}

TEST(Dauerlauf, GehtAuchZurueck) {
    const Sparplan plan = Plaene()[7];
    Dauerlauf dauerlauf(Form(Sparziel::anspardauer), plan);
    for (const int tage : {9000, 3, 4711, 0, 365, 366, 47, 8999}) {
        const Datum ende = PlusTage(Datum::Lesen(plan.Anfdatum), tage);
        EXPECT_EQ(dauerlauf.Endstand(ende), Neu(Sparziel::anspardauer, plan, {.ende = ende})) << tage;
    }
}

TEST(Dauerlauf, VorDemAnfangIstDasKontoLeer) {
    const Sparplan plan = Plan2007();
    Dauerlauf dauerlauf(Form(Sparziel::anspardauer), plan);
    EXPECT_EQ(dauerlauf.Endstand(Datum::Lesen("31.12.2006")), 0);
}

TEST(Dauerlauf, MehrAls32767ZeilenSindEinFehler) {
    const Sparplan plan = Plan2007();
    Dauerlauf dauerlauf(Form(Sparziel::anspardauer), plan);
    EXPECT_THROW(static_cast<void>(dauerlauf.Endstand(Datum::Lesen("01.01.4800"))), std::runtime_error);
}

}  // namespace schnelllauf_test
}  // namespace zinfolio
