#include "kern/sparen/zinstabelle.h"

#include <stdexcept>

#include "plaene.h"

namespace zinfolio {
namespace zinstabelle_test {

Sparplan MitZinsen(const std::vector<std::pair<std::string, std::string>>& zeilen) {
    Sparplan plan = Plan2007();
    for (std::size_t i = 0; i < zeilen.size(); ++i) {
        plan.ZinsWDAt[i] = zeilen[i].first;
        plan.Zinsbetrag[i] = zeilen[i].second;
    }
    return plan;
}

std::string Zeilen(const Sparplan& plan, std::size_t anzahl) {
    std::string text;
    for (std::size_t i = 0; i < anzahl; ++i)
        text += plan.ZinsWDAt[i] + "=" + plan.Zinsbetrag[i] + ";";
    return text;
}

std::string Pruefe(Sparplan& plan) {
    const auto ablehnung = ZinstabellePruefen(plan);
    if (!ablehnung) return "ok";
    EXPECT_EQ(ablehnung->Register, "");
    return ablehnung->Feld + ": " + ablehnung->Meldung;
}

TEST(ZinstabelleSortieren, FrueheresDatumKommtNachVorn) {
    Sparplan plan = MitZinsen({{"01.01.2009", "4"}, {"15.03.2008", "3"}, {"14.03.2008", "2"}});
    ZinstabelleSortieren(plan);
    EXPECT_EQ(Zeilen(plan, 4), "14.03.2008=2;15.03.2008=3;01.01.2009=4;=;");
}

TEST(ZinstabelleSortieren, LeereZeilenKommenNachHinten) {
    Sparplan plan = MitZinsen({{"", ""}, {"01.01.2009", "4"}, {"", "9"}, {"01.01.2008", "3"}});
    ZinstabelleSortieren(plan);
    EXPECT_EQ(Zeilen(plan, 4), "01.01.2008=3;01.01.2009=4;=9;=;");
}

TEST(ZinstabelleSortieren, GleicheDatenBleibenInIhrerFolge) {
    Sparplan plan = MitZinsen({{"01.01.2009", "4"}, {"01.01.2009", "3"}});
    ZinstabelleSortieren(plan);
    EXPECT_EQ(Zeilen(plan, 2), "01.01.2009=4;01.01.2009=3;");
}

TEST(ZinstabelleSortieren, EinTauschWirftEineZeileHinterIhresgleichen) {
    Sparplan plan = MitZinsen({{"01.01.2009", "4"}, {"01.01.2009", "3"}, {"01.01.2008", "2"}});
    ZinstabelleSortieren(plan);
    EXPECT_EQ(Zeilen(plan, 3), "01.01.2008=2;01.01.2009=3;01.01.2009=4;");
}

TEST(ZinstabelleSortieren, DreiZeichenZaehlenAlsSpaetestesDatum) {
    Sparplan plan = MitZinsen({{"1.2", "4"}, {"01.01.2009", "3"}});
    ZinstabelleSortieren(plan);
    EXPECT_EQ(Zeilen(plan, 2), "01.01.2009=3;1.2=4;");
}

TEST(ZinstabelleSortieren, AlleVierzigZeilen) {
    Sparplan plan;
    for (std::size_t i = 0; i < zinstabellenzeilen; ++i)
        plan.ZinsWDAt[i] = "01.01." + std::to_string(2100 - i);
    ZinstabelleSortieren(plan);
    EXPECT_EQ(plan.ZinsWDAt.front(), "01.01.2061");
    EXPECT_EQ(plan.ZinsWDAt.back(), "01.01.2100");
}

TEST(ZinstabellePruefen, LeereTabellePasst) {
    Sparplan plan = Plan2007();
    EXPECT_EQ(Pruefe(plan), "ok");
}

TEST(ZinstabellePruefen, SortiertZuerst) {
    Sparplan plan = MitZinsen({{"01.01.2009", "4"}, {"01.01.2008", "3"}});
    EXPECT_EQ(Pruefe(plan), "ok");
    EXPECT_EQ(Zeilen(plan, 2), "01.01.2008=3;01.01.2009=4;");
}

TEST(ZinstabellePruefen, AenderungAmAnfangsdatum) {
    Sparplan plan = MitZinsen({{"01.01.2009", "4"}, {"01.01.2007", "3"}});
    EXPECT_EQ(Pruefe(plan), "ZinsWDAt(1): Weitere Zinssätze müssen nach dem Anfangsatum 01.01.2007 liegen.");
}

TEST(ZinstabellePruefen, AenderungAmTagDanach) {
    Sparplan plan = MitZinsen({{"02.01.2007", "3"}});
    EXPECT_EQ(Pruefe(plan), "ok");
}

TEST(ZinstabellePruefen, ZinsbetragFehlt) {
    Sparplan plan = MitZinsen({{"01.02.2007", "3"}, {"01.03.2007", "2"}, {"01.04.2007", ""}});
    EXPECT_EQ(Pruefe(plan), "Zinsbetrag(3): Geben Sie den Zinsbetrag ein");
}

TEST(ZinstabellePruefen, ZinsbetragNullWirdAbgelehnt) {
    Sparplan plan = MitZinsen({{"01.02.2007", "0,0"}});
    EXPECT_EQ(Pruefe(plan), "Zinsbetrag(1): Geben Sie den Zinsbetrag ein");
}

TEST(ZinstabellePruefen, ZeileOhneDatumWirdGeleert) {
    Sparplan plan = MitZinsen({{"1.", "3"}});
    EXPECT_EQ(Pruefe(plan), "ok");
    EXPECT_EQ(Zeilen(plan, 1), "=;");
}

TEST(ZinstabellePruefen, EingefuegteBuchstabenSindEinFehler) {
    Sparplan plan = MitZinsen({{"01.02.2007", "abc"}});
    EXPECT_THROW(Pruefe(plan), std::runtime_error);
}

TEST(ZinszeileGesperrt, ErsteZeileIstFrei) {
    EXPECT_EQ(ZinszeileGesperrt(Plan2007(), 0, Zinsspalte::datum), std::nullopt);
}

TEST(ZinszeileGesperrt, DieErsteLeereZeileDarueberKommtZuerst) {
    const Sparplan plan = MitZinsen({{"01.02.2007", "3"}});
    const Ablehnung leer{"Bitte zuerst die leeren Zeilen ausfüllen.", "ZinsWDAt(2)", ""};
    EXPECT_EQ(ZinszeileGesperrt(plan, 3, Zinsspalte::datum), leer);
    EXPECT_EQ(ZinszeileGesperrt(plan, 3, Zinsspalte::betrag), leer);
    EXPECT_EQ(ZinszeileGesperrt(plan, 1, Zinsspalte::datum), std::nullopt);
}

TEST(ZinszeileGesperrt, DatumKommtVorDemZins) {
    const Sparplan plan = MitZinsen({{"01.02.2007", ""}});
    EXPECT_EQ(ZinszeileGesperrt(plan, 0, Zinsspalte::betrag), std::nullopt);
    EXPECT_EQ(ZinszeileGesperrt(plan, 1, Zinsspalte::betrag),
              (Ablehnung{"Geben Sie zuerst das Datum ein.", "ZinsWDAt(2)", ""}));
}

TEST(ZinszeileGesperrt, DreiZeichenGeltenAlsAusgefuellt) {
    EXPECT_EQ(ZinszeileGesperrt(MitZinsen({{"1.2", ""}}), 0, Zinsspalte::betrag), std::nullopt);
}

TEST(ZinstabelleMarkieren, ZeigtObDerPlanAenderungenHat) {
    EXPECT_FALSE(ZinstabelleMarkieren(Plan2007()));
    EXPECT_TRUE(ZinstabelleMarkieren(MitZinsen({{"01.02.2007", "3"}})));
}

}  // namespace zinstabelle_test
}  // namespace zinfolio
