#include "kern/allround/allrounddateien.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "kern/allround/zahlungen.h"
#include "kern/dateien/testordner.h"

namespace zinfolio {
namespace allrounddateien_test {

using testing::ElementsAre;

constexpr std::size_t staffelsatz = 129;
constexpr std::size_t reihensatz = 34;

struct Allrounddateientest : testing::Test {
    Testordner ordner;
    Allrounddateien dateien{ordner.Pfad()};

    void Setze(const std::vector<Staffelsatz>& zahlungen) const { dateien.Zahlungen().Schreiben(zahlungen); }

    [[nodiscard]] std::vector<Staffelsatz> Saetze(std::string_view name) const {
        return Satzdatei<Staffelsatz>(ordner.Pfad(), name).Lesen();
    }
    [[nodiscard]] std::size_t Groesse(std::string_view name) const { return ordner.Inhalt(name).size(); }
};

TEST_F(Allrounddateientest, NeuLegtEineLeereReiheAn) {
    Setze(Investition());
    dateien.Neu();
    EXPECT_EQ(ordner.Inhalt("ZahlungenT"), "");
}

TEST_F(Allrounddateientest, SortierenSchreibtDieDateiNeu) {
    Setze(Zahlungen({{"01.01.2007", 2}, {"01.01.2006", 1}}));
    EXPECT_EQ(dateien.ZahlungenSortieren().front().Zahlbetrag, 1);
    EXPECT_EQ(Saetze("ZahlungenT").front().Zahlbetrag, 1);
}

// Out of order the last row ends the series: 1100 lies before -1000 and counts for nothing else.
TEST_F(Allrounddateientest, EffektivzinsSortiertNicht) {
    Setze(Zahlungen({{"01.01.2008", 1100}, {"01.01.2007", -1000}}));
    Reihenzins zins;
    EXPECT_EQ(dateien.EffektivzinsRechnen(Effektivmethode::aidb360, zins), std::nullopt);
    EXPECT_EQ(Saetze("ZahlungenT").front().Satzdatum.Roh(), "01.01.2008");
    EXPECT_EQ(Groesse("Lösungszahlungsreihe"), 2 * reihensatz);
    EXPECT_EQ(ordner.Inhalt("Lösungszahlungsreihe").substr(0, 10), "01.01.2008");
}

TEST_F(Allrounddateientest, EffektivzinsHinterlaesstReiheUndWertetabellen) {
    Setze(Zahlungen({{"01.01.2007", -1000}, {"01.01.2008", 1100}}));
    Reihenzins zins;
    EXPECT_EQ(dateien.EffektivzinsRechnen(Effektivmethode::pangv2000, zins), std::nullopt);
    EXPECT_EQ(zins.Effektivergebnis, "10,00000");
    EXPECT_EQ(zins.Effzins, "10,00000");
    EXPECT_EQ(zins.Meld, "");
    EXPECT_EQ(Endwertzeilen(zins)->size(), 2U);
    EXPECT_THAT(ordner.Namen(),
                ElementsAre("Barwertberechnung", "Lösungszahlungsreihe", "Vendwertberechnung", "ZahlungenT"));
    EXPECT_EQ(Groesse("Vendwertberechnung"), 2 * 46U);
}

TEST_F(Allrounddateientest, OhneEffektivzinsBleibenDieWertetabellenUndDieMeldungIstGetrimmt) {
    Setze(Zahlungen({{"01.01.2007", 1000}}));
    Reihenzins zins;
    EXPECT_EQ(dateien.EffektivzinsRechnen(Effektivmethode::pangv2000, zins), std::nullopt);
    EXPECT_EQ(zins.Effektivergebnis, "");
    EXPECT_EQ(zins.Effzins, "");
    EXPECT_EQ(zins.Meld, "Es gibt nur Ein- bzw. nur Auszahlungen. Ein Effektivzinssatz existiert nicht !");
    EXPECT_THAT(ordner.Namen(), ElementsAre("Lösungszahlungsreihe", "ZahlungenT"));
}

TEST_F(Allrounddateientest, EffektivzinsOhneZahlungenHinterlaesstEineLeereReihe) {
    dateien.Neu();
    Reihenzins zins;
    EXPECT_EQ(dateien.EffektivzinsRechnen(Effektivmethode::pangv2000, zins),
              (Ablehnung{"Es müssen erst die Zahlungen eingegeben werden.", "Begdatum", "Zahlungen"}));
    EXPECT_EQ(ordner.Inhalt("Lösungszahlungsreihe"), "");
}

TEST_F(Allrounddateientest, BeschaedigteZahlungHinterlaesstDieReiheVorIhr) {
    auto zahlungen = Investition();
    zahlungen[2] = Beschaedigt();
    Setze(zahlungen);
    Reihenzins zins;
    EXPECT_THROW(static_cast<void>(dateien.EffektivzinsRechnen(Effektivmethode::pangv2000, zins)),
                 Datumsfehler);
    EXPECT_EQ(Groesse("Lösungszahlungsreihe"), 2 * reihensatz);
}

TEST_F(Allrounddateientest, PlanHinterlaesstTableauUndKurztableau) {
    Setze(Zahlungen({{"01.01.2008", -1100}, {"01.01.2007", 1000}}));
    EXPECT_EQ(dateien.ReiheSchreibenR(), std::nullopt);
    EXPECT_EQ(Groesse("LösungszahlungsreiheR"), 2 * reihensatz);
    EXPECT_EQ(Saetze("ZahlungenT").front().Zahlbetrag, 1000);
    Tilgungsplan plan;
    EXPECT_EQ(TilgungsplanRechnen(dateien.PlanreiheLesen(), {.Combo4 = Plantermine::zahlungstermine}, plan),
              std::nullopt);
    dateien.PlanAblegen(plan);
    EXPECT_EQ(Groesse("Lösungstableau5R"), 5 * staffelsatz);
    EXPECT_EQ(Saetze("Kurztableau5R").size(), 2U);
    EXPECT_EQ(Saetze("Lösungstableau5R"), *plan.Tableau);
    // The balance of the last row, whose rates are those of the search's last one.
    EXPECT_EQ(Saetze("Lösungstableau5R").back().Kontostand, 0);
    EXPECT_EQ(Saetze("Lösungstableau5R").back().kondition.Kreditzins1, 10.0F);
}

TEST_F(Allrounddateientest, PlanInEineRichtungHinterlaesstNurDieReihe) {
    Setze(Zahlungen({{"01.01.2008", 1}}));
    EXPECT_EQ(dateien.ReiheSchreibenR()->Meldung,
              "Es gibt nur Ein- bzw. Auszahlungen. Daher existiert kein Tilgungsplan !");
    EXPECT_THAT(ordner.Namen(), ElementsAre("LösungszahlungsreiheR", "ZahlungenT"));
}

TEST_F(Allrounddateientest, PlanOhneEffektivzinsLaesstDieTabellenStehen) {
    ordner.Ablegen("Lösungstableau5R", "alt");
    Setze(Zahlungen({{"01.01.2007", 1000}, {"01.01.2007", -1000}}));
    EXPECT_EQ(dateien.ReiheSchreibenR(), std::nullopt);
    Tilgungsplan plan;
    EXPECT_EQ(TilgungsplanRechnen(dateien.PlanreiheLesen(), {}, plan)->Meldung,
              "Ein Tilgungsplan konnte rechnerisch nicht ermittelt werden.");
    dateien.PlanAblegen(plan);
    EXPECT_EQ(ordner.Inhalt("Lösungstableau5R"), "alt");
}

TEST_F(Allrounddateientest, FehlerDerSucheHinterlaesstDasTableauUndDasAlteKurztableau) {
    ordner.Ablegen("Kurztableau5R", "alt");
    Setze(Zahlungen({{"01.01.2007", 0.01}, {"01.01.2008", -0.012}}));
    EXPECT_EQ(dateien.ReiheSchreibenR(), std::nullopt);
    Tilgungsplan plan;
    EXPECT_ANY_THROW(static_cast<void>(
        TilgungsplanRechnen(dateien.PlanreiheLesen(), {.Combo4 = Plantermine::zahlungstermine}, plan)));
    dateien.PlanAblegen(plan);
    EXPECT_EQ(Groesse("Lösungstableau5R"), 5 * staffelsatz);
    EXPECT_EQ(ordner.Inhalt("Kurztableau5R"), "alt");
}

TEST_F(Allrounddateientest, VorgabezinsIstZehnWoKeinerSteht) {
    EXPECT_EQ(dateien.VorgabezinsLesen(), "10");
}

TEST_F(Allrounddateientest, VorgabezinsWirdWieGetipptAlsTextGespeichert) {
    dateien.VorgabezinsSchreiben("7,5");
    EXPECT_EQ(ordner.Inhalt("Allrounddatenallgemein"),
              std::string("\x08\x00\x03\x00", 4) + "7,5" + std::string(93, '\0'));
    EXPECT_EQ(dateien.VorgabezinsLesen(), "7,5");
    dateien.VorgabezinsSchreiben("0");
    EXPECT_EQ(dateien.VorgabezinsLesen(), "0");
}

TEST_F(Allrounddateientest, LeererVorgabezinsWirdDieGanzeZahlZehn) {
    dateien.VorgabezinsSchreiben("");
    EXPECT_EQ(ordner.Inhalt("Allrounddatenallgemein"),
              std::string("\x02\x00\x0A\x00", 4) + std::string(96, '\0'));
    EXPECT_EQ(dateien.VorgabezinsLesen(), "10");
}

TEST_F(Allrounddateientest, BeschaedigterVorgabezinsIstZehn) {
    ordner.Ablegen("Allrounddatenallgemein", std::string("\x63\x00\x00\x00", 4));
    EXPECT_EQ(dateien.VorgabezinsLesen(), "10");
}

TEST_F(Allrounddateientest, LeererTextInDerDateiIstZehn) {
    ordner.Ablegen("Allrounddatenallgemein", std::string("\x08\x00\x00\x00", 4));
    EXPECT_EQ(dateien.VorgabezinsLesen(), "10");
}

}  // namespace allrounddateien_test
}  // namespace zinfolio
