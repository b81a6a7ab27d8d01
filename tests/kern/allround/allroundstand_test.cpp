#include "kern/allround/allroundstand.h"

#include <gtest/gtest.h>

#include "kern/allround/zahlungen.h"

namespace zinfolio {
namespace allroundstand_test {

Wertergebnis Analyse(const std::vector<Staffelsatz>& zahlungen, const std::string& zins) {
    Werteingabe eingabe{.Abzins2 = zins};
    Wertergebnis ergebnis;
    (void)WertAnalyse(zahlungen, eingabe, ergebnis);
    return ergebnis;
}

TEST(Allroundstand, GelieheneWertKommtVonDerLetztenAnalyseDieEinenHatte) {
    Allroundstand stand;
    EXPECT_EQ(stand.Vorwert, 0);
    stand.Uebernehmen(Analyse(Investition(), "10"));
    EXPECT_EQ(stand.Vorwert, -380.95);
    stand.Uebernehmen(Analyse(Investition(), "20"));
    EXPECT_EQ(stand.Vorwert, -380.95);
}

TEST(Allroundstand, InterpoliertesDatumBleibtWoEsKeinNeuesGibt) {
    Allroundstand stand;
    stand.Uebernehmen(Analyse(Investition(), "10"));
    stand.Uebernehmen(Analyse(Zahlungen({{"01.01.2005", -100}, {"01.01.2005", 120}}), "10"));
    EXPECT_EQ(stand.Werte.Dynamorinterpoliert, "18.12.2006");
    EXPECT_EQ(stand.Werte.Aussagen->DynAmor, "01.01.2005");
}

TEST(Allroundstand, NachEinemFehlerStehenDieZeilenVorIhmUndDieAltenAussagen) {
    Allroundstand stand;
    stand.Uebernehmen(Analyse(Investition(), "10"));
    auto zahlungen = Investition();
    zahlungen[1] = Beschaedigt();
    Werteingabe eingabe{.Abzins2 = "10"};
    Wertergebnis ergebnis;
    EXPECT_THROW(static_cast<void>(WertAnalyse(zahlungen, eingabe, ergebnis)), Datumsfehler);
    stand.Uebernehmen(std::move(ergebnis));
    EXPECT_EQ(stand.Werte.Tabelle.Zeilen(), 1U);
    EXPECT_EQ(stand.Werte.Aussagen->Label14, "32,27");
}

TEST(Allroundstand, EineAbgelehnteAnalyseLeertNurDieTabelle) {
    Allroundstand stand;
    Werteingabe spaeter{.Abzins2 = "10", .BarwDatum = "01.06.2006"};
    Wertergebnis ergebnis;
    EXPECT_EQ(WertAnalyse(Investition(), spaeter, ergebnis), std::nullopt);
    stand.Uebernehmen(std::move(ergebnis));
    stand.Uebernehmen(Analyse({}, "10"));
    EXPECT_EQ(stand.Werte.Tabelle.Zeilen(), 0U);
    EXPECT_FALSE(stand.Werte.Frame1);
    EXPECT_EQ(stand.Werte.Aussagen->Label14, "869,14");
}

TEST(Allroundstand, OhneZinssatzBleibtDieTabelleDesLetzten) {
    Allroundstand stand;
    stand.Uebernehmen(EffektivzinsRechnen(Planreihe({{"01.01.2007", -1000}, {"01.01.2008", 1100}}),
                                          Effektivmethode::pangv2000));
    stand.Uebernehmen(EffektivzinsRechnen(Planreihe({{"01.01.2007", -1000}}), Effektivmethode::pangv2000));
    EXPECT_EQ(stand.Zins.Effzins, "");
    EXPECT_EQ(stand.GefundenerZins.Effzins, "10,00000");
    EXPECT_EQ(Endwertzeilen(stand.GefundenerZins)->size(), 2U);
}

}  // namespace allroundstand_test
}  // namespace zinfolio
