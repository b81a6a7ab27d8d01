#include "kern/sparen/planpruefen.h"

#include <stdexcept>

#include "plaene.h"

namespace zinfolio {
namespace planpruefen_test {

constexpr std::array alleZiele{Sparziel::endkapital, Sparziel::sparrate, Sparziel::rendite,
                               Sparziel::anspardauer, Sparziel::anfangskapital};

/// Message and focus of the refusal, "ok" where there is none. Every refusal selects the tab of the fields.
std::string Pruefe(Sparziel ziel, Sparplan& plan, const Sparstand& stand = {.kapital = 1000}) {
    const auto ablehnung = PlanPruefen(Form(ziel), plan, stand);
    if (!ablehnung) return "ok";
    EXPECT_EQ(ablehnung->Register, "Daten");
    return ablehnung->Feld + ": " + ablehnung->Meldung;
}
std::string Pruefe(Sparziel ziel, Sparplan&& plan, const Sparstand& stand = {.kapital = 1000}) {
    return Pruefe(ziel, plan, stand);
}

Sparplan Mit(std::string Sparplan::*feld, std::string text, Sparplan plan = Plan2007()) {
    plan.*feld = std::move(text);
    return plan;
}

Sparplan MitDynamik() {
    Sparplan plan = Plan2007();
    plan.Check2 = 1;
    plan.Anzahl = "12";
    return plan;
}

TEST(PlanPruefen, VollstaendigerPlanPasstInAlleFormulare) {
    for (const Sparziel ziel : alleZiele)
        EXPECT_EQ(Pruefe(ziel, Plan2007()), "ok") << Form(ziel).name;
}

TEST(PlanPruefen, LeereZahlenWerdenNull) {
    Sparplan plan = Plan2007();
    plan.AnfVermögen = plan.Betrag = "";
    EXPECT_EQ(Pruefe(Sparziel::endkapital, plan), "ok");
    EXPECT_EQ(plan.AnfVermögen, "0");
    EXPECT_EQ(plan.Betrag, "0");
    EXPECT_EQ(plan.Anzahl, "0");
    EXPECT_EQ(plan.Delta, "0");
    EXPECT_EQ(plan.Delta2, "0");
    EXPECT_EQ(plan.DynAnz, "0");
    EXPECT_EQ(plan.MaxSparrate, "0");
    EXPECT_EQ(plan.MinSparrate, "0");
}

TEST(PlanPruefen, LeeresZielWirdNullWoNachAnfangUndEndeGesuchtWird) {
    Sparplan plan = Mit(&Sparplan::Vwert, "");
    EXPECT_EQ(Pruefe(Sparziel::sparrate, plan), "ok");
    EXPECT_EQ(plan.Vwert, "0");
}

TEST(PlanPruefen, BetragBleibtBeimAnfangskapitalLeer) {
    Sparplan plan = Mit(&Sparplan::Betrag, "");
    EXPECT_EQ(Pruefe(Sparziel::anfangskapital, plan), "ok");
    EXPECT_EQ(plan.Betrag, "");
}

TEST(PlanPruefen, AnspardauerFuelltNurIhreEigenenFelder) {
    Sparplan plan = Plan2007();
    EXPECT_EQ(Pruefe(Sparziel::anspardauer, plan), "ok");
    EXPECT_EQ(plan.Anzahl, "0");
    EXPECT_EQ(plan.Delta, "0");
    EXPECT_EQ(plan.DynAnz, "");
}

TEST(PlanPruefen, SpardatumFehlt) {
    for (const Sparziel ziel : alleZiele)
        EXPECT_EQ(Pruefe(ziel, Mit(&Sparplan::ratdatum1, "1.")),
                  "ratdatum1: Bitte das 1. Spardatum eingeben.");
}

TEST(PlanPruefen, AnfangsdatumFehlt) {
    for (const Sparziel ziel : alleZiele)
        EXPECT_EQ(Pruefe(ziel, Mit(&Sparplan::Anfdatum, "1.")), "Anfdatum: Bitte das Anfangsdatum eingeben");
}

TEST(PlanPruefen, SpardatumKommtVorAllenAnderen) {
    Sparplan plan;
    EXPECT_EQ(Pruefe(Sparziel::endkapital, plan), "ratdatum1: Bitte das 1. Spardatum eingeben.");
}

TEST(PlanPruefen, OhneAnfangsvermoegenGiltDasSpardatumAlsAnfang) {
    Sparplan plan = Mit(&Sparplan::Anfdatum, "01.06.2007", Mit(&Sparplan::AnfVermögen, "0"));
    EXPECT_EQ(Pruefe(Sparziel::endkapital, plan), "ok");
    EXPECT_EQ(plan.Anfdatum, "01.02.2007");
}

TEST(PlanPruefen, OhneGefundenesKapitalGiltDasSpardatumAlsAnfang) {
    Sparplan plan = Plan2007();
    EXPECT_EQ(Pruefe(Sparziel::anfangskapital, plan, {.kapital = 0}), "ok");
    EXPECT_EQ(plan.Anfdatum, "01.02.2007");
}

TEST(PlanPruefen, MitGefundenemKapitalBleibtDerAnfang) {
    Sparplan plan = Plan2007();
    EXPECT_EQ(Pruefe(Sparziel::anfangskapital, plan, {.kapital = 500}), "ok");
    EXPECT_EQ(plan.Anfdatum, "01.01.2007");
}

TEST(PlanPruefen, EnddatumFehlt) {
    for (const Sparziel ziel :
         {Sparziel::endkapital, Sparziel::sparrate, Sparziel::rendite, Sparziel::anfangskapital})
        EXPECT_EQ(Pruefe(ziel, Mit(&Sparplan::Enddatum, "")), "Enddatum: Bitte das Enddatum eingeben");
}

TEST(PlanPruefen, EndvermoegenFehltBeiDerAnspardauer) {
    EXPECT_EQ(Pruefe(Sparziel::anspardauer, Mit(&Sparplan::Vwert, "")),
              "Vwert: Bitte das Endvermögen eingeben");
}

TEST(PlanPruefen, ZinssatzFehlt) {
    for (const Sparziel ziel :
         {Sparziel::endkapital, Sparziel::sparrate, Sparziel::anspardauer, Sparziel::anfangskapital})
        EXPECT_EQ(Pruefe(ziel, Mit(&Sparplan::Zins, "")), "Zins: Bitte den Zinssatz eingeben");
}

TEST(PlanPruefen, VermoegensendwertFehltBeiDerRendite) {
    EXPECT_EQ(Pruefe(Sparziel::rendite, Mit(&Sparplan::Vermendwert, "")),
              "Vermendwert: Bitte den Vermögensendwert eingeben");
}

TEST(PlanPruefen, EnddatumKommtVorZinssatz) {
    EXPECT_EQ(Pruefe(Sparziel::endkapital, Mit(&Sparplan::Zins, "", Mit(&Sparplan::Enddatum, ""))),
              "Enddatum: Bitte das Enddatum eingeben");
}

TEST(PlanPruefen, SparrateVorDemAnfangsvermoegen) {
    for (const Sparziel ziel : alleZiele)
        EXPECT_EQ(Pruefe(ziel, Mit(&Sparplan::Anfdatum, "02.02.2007")),
                  "ratdatum1: Das Datum der 1. Sparrate darf nicht vor dem Datum für das Anfangsvermögen "
                  "liegen.");
}

TEST(PlanPruefen, SparrateAmTagDesAnfangsvermoegens) {
    EXPECT_EQ(Pruefe(Sparziel::endkapital, Mit(&Sparplan::Anfdatum, "01.02.2007")), "ok");
}

TEST(PlanPruefen, EndeAmAnfangstag) {
    EXPECT_EQ(Pruefe(Sparziel::endkapital, Mit(&Sparplan::Enddatum, "01.01.2007")),
              "Enddatum: Das Enddatum muss nach dem Anfangsdatum liegen.");
}

TEST(PlanPruefen, ErsteSparrateAmEnddatum) {
    EXPECT_EQ(Pruefe(Sparziel::endkapital, Mit(&Sparplan::Enddatum, "01.02.2007")), "ok");
}

TEST(PlanPruefen, SparrateNachDemEnde) {
    EXPECT_EQ(Pruefe(Sparziel::endkapital, Mit(&Sparplan::Enddatum, "15.01.2007")), "ok");
}

TEST(PlanPruefen, EinhundertfuenfzigJahre) {
    EXPECT_EQ(Pruefe(Sparziel::endkapital, Mit(&Sparplan::Enddatum, "31.12.2157")), "ok");
}

TEST(PlanPruefen, EinhunderteinundfuenfzigJahreszahlen) {
    Sparplan plan = Plan2007();
    plan.Anfdatum = plan.ratdatum1 = "31.12.2000";
    plan.Enddatum = "01.01.2151";
    EXPECT_EQ(Pruefe(Sparziel::endkapital, plan),
              "Enddatum: Zwischen End- und Anfangsdatum dürfen nur bis zu 150 Jahre liegen.");
}

TEST(PlanPruefen, AnspardauerLiestKeinEnddatum) {
    EXPECT_EQ(Pruefe(Sparziel::anspardauer, Mit(&Sparplan::Enddatum, "01.01.1900")), "ok");
}

TEST(PlanPruefen, AnfangUndZielNull) {
    EXPECT_EQ(Pruefe(Sparziel::sparrate, Mit(&Sparplan::AnfVermögen, "0", Mit(&Sparplan::Vwert, "0"))),
              "Vwert: Die Differenz zwischen Anfangs- und Endvermögen ist für die Berechnung zu gering.");
    EXPECT_EQ(Pruefe(Sparziel::anfangskapital, Mit(&Sparplan::Vwert, "0"), {.kapital = 0}),
              "Vwert: Die Differenz zwischen Anfangs- und Endvermögen ist für die Berechnung zu gering.");
}

TEST(PlanPruefen, ZielNullMitAnfangsvermoegen) {
    EXPECT_EQ(Pruefe(Sparziel::sparrate, Mit(&Sparplan::Vwert, "0")), "ok");
    EXPECT_EQ(Pruefe(Sparziel::anfangskapital, Mit(&Sparplan::Vwert, "0"), {.kapital = 1}), "ok");
}

TEST(PlanPruefen, DynamisierungOhneAnzahl) {
    for (const Sparziel ziel :
         {Sparziel::endkapital, Sparziel::sparrate, Sparziel::rendite, Sparziel::anfangskapital})
        EXPECT_EQ(Pruefe(ziel, Mit(&Sparplan::Anzahl, "0", MitDynamik())),
                  "Anzahl: Sie haben Dynamisierung gewählt. Die Anzahl der Zahlungen,nach denen eine "
                  "Anpassung der Sparrate erfolgt, muss grösser als '0' sein.");
}

TEST(PlanPruefen, AnspardauerPrueftDieAnzahlNicht) {
    EXPECT_EQ(Pruefe(Sparziel::anspardauer, Mit(&Sparplan::Anzahl, "0", MitDynamik())), "ok");
}

TEST(PlanPruefen, BegrenzungOhneStufen) {
    Sparplan plan = MitDynamik();
    plan.Check3 = 1;
    for (const Sparziel ziel :
         {Sparziel::endkapital, Sparziel::sparrate, Sparziel::rendite, Sparziel::anfangskapital})
        EXPECT_EQ(Pruefe(ziel, Sparplan(plan)),
                  "DynAnz: Sie haben Dynamisierung gewählt. Die Anzahl der Dynamisierungsstufen muss bei "
                  "einer Begrenzug größer als '0' sein. ");
}

TEST(PlanPruefen, MaximumGleichDemBetrag) {
    Sparplan plan = Mit(&Sparplan::MaxSparrate, "100", MitDynamik());
    plan.Check4 = 1;
    for (const Sparziel ziel : {Sparziel::endkapital, Sparziel::rendite})
        EXPECT_EQ(Pruefe(ziel, Sparplan(plan)),
                  "MaxSparrate: Der maximale Sparbetrag muss größer sein als der Anfangssparbetrag");
    EXPECT_EQ(Pruefe(Sparziel::sparrate, Sparplan(plan)), "ok");
    EXPECT_EQ(Pruefe(Sparziel::anfangskapital, Sparplan(plan)), "ok");
}

TEST(PlanPruefen, MinimumGleichDemBetrag) {
    Sparplan plan = Mit(&Sparplan::MinSparrate, "100", MitDynamik());
    plan.Check5 = 1;
    for (const Sparziel ziel : {Sparziel::endkapital, Sparziel::rendite})
        EXPECT_EQ(Pruefe(ziel, Sparplan(plan)),
                  "MinSparrate: Der minimale Sparbetrag muss kleiner sein als der Anfangssparbetrag");
    EXPECT_EQ(Pruefe(Sparziel::sparrate, Sparplan(plan)), "ok");
}

TEST(PlanPruefen, MaximumKommtVorMinimum) {
    Sparplan plan = Mit(&Sparplan::MaxSparrate, "50", Mit(&Sparplan::MinSparrate, "150", MitDynamik()));
    plan.Check4 = plan.Check5 = 1;
    EXPECT_EQ(Pruefe(Sparziel::endkapital, plan),
              "MaxSparrate: Der maximale Sparbetrag muss größer sein als der Anfangssparbetrag");
}

TEST(PlanPruefen, OhneDynamisierungZaehltKeineGrenze) {
    Sparplan plan = Plan2007();
    plan.Check3 = plan.Check4 = plan.Check5 = 1;
    plan.Anzahl = plan.DynAnz = plan.MaxSparrate = plan.MinSparrate = "abc";
    EXPECT_EQ(Pruefe(Sparziel::endkapital, plan), "ok");
}

TEST(PlanPruefen, ZielUnterDemAnfangsvermoegen) {
    EXPECT_EQ(Pruefe(Sparziel::anspardauer, Mit(&Sparplan::Vwert, "999,99")),
              "Vwert: Das Endvermögen darf nicht kleiner als das Anfangsvermögen sein.");
}

TEST(PlanPruefen, ZielGleichDemAnfangsvermoegen) {
    EXPECT_EQ(Pruefe(Sparziel::anspardauer, Mit(&Sparplan::Vwert, "1.000,00")), "ok");
}

TEST(PlanPruefen, EingefuegteBuchstabenSindEinFehler) {
    EXPECT_THROW(Pruefe(Sparziel::endkapital, Mit(&Sparplan::AnfVermögen, "abc")), std::runtime_error);
    EXPECT_THROW(Pruefe(Sparziel::endkapital, Mit(&Sparplan::ratdatum1, "abc")), std::runtime_error);
    EXPECT_THROW(Pruefe(Sparziel::endkapital, Mit(&Sparplan::Enddatum, "31.02.2008")), std::runtime_error);
}

}  // namespace planpruefen_test
}  // namespace zinfolio
