// The plans were worked out by an independent walk over days and cents; the two loans at the end are
// published.

#include "kern/allround/tilgungsplan.h"

#include <gtest/gtest.h>
#include <numeric>
#include <stdexcept>

#include "kern/allround/nominalsuche.h"
#include "kern/allround/planansicht.h"
#include "kern/allround/zahlungen.h"
#include "kern/grund/rechenfehler.h"

namespace zinfolio {
namespace tilgungsplan_test {

using enum Plantermine;

Tilgungsplan Plan(const std::vector<Reihensatz>& reihe, Plantermine termine = monatsende,
                  Verzinsungsmethode methode = Verzinsungsmethode::deutsch) {
    Tilgungsplan plan;
    EXPECT_EQ(TilgungsplanRechnen(reihe, {termine, methode}, plan), std::nullopt);
    return plan;
}

Zeilen Unterjaehrig(const Tilgungsplan& plan) {
    return AlleZeilen(Zinsstaffelanzeige1(*plan.Tableau, plan.Nominalzins));
}

Zeilen Jahresweise(const Tilgungsplan& plan) {
    return AlleZeilen(Zinsstaffelanzeige2(*plan.Kurztableau, plan.Nominalzins));
}

const std::vector<Reihensatz> kleinkredit =
    Planreihe({{"15.01.2007", 1000}, {"15.02.2007", -500}, {"15.04.2007", -520}});

// 1000 for 15 days 4,94; 1004,94 for 14 and 504,94 for 15 days 4,63 + 2,82 and so on, by cents.
TEST(Tilgungsplan, MitMonatsenden) {
    EXPECT_EQ(Unterjaehrig(Plan(kleinkredit)),
              (Zeilen{{"15.01.2007", "Auszahlung", "1.000,00", "0,00", "-1.000,00"},
                      {"31.01.2007", "Zinstermin", "0,00", "-4,94", "-1.004,94"},
                      {"15.02.2007", "Zahlung", "-500,00", "0,00", "-504,94"},
                      {"28.02.2007", "Zinstermin", "0,00", "-7,45", "-512,39"},
                      {"31.03.2007", "Zinstermin", "0,00", "-5,06", "-517,45"},
                      {"15.04.2007", "Zahlung", "-520,00", "0,00", "2,55"},
                      {"15.04.2007", "Zinstermin", "0,00", "-2,55", "0,00"}}));
}

TEST(Tilgungsplan, AnDenZahlungsterminenHatJedeZahlungIhreZinsen) {
    const Tilgungsplan plan = Plan(kleinkredit, zahlungstermine);
    EXPECT_EQ(Unterjaehrig(plan), (Zeilen{{"15.01.2007", "Auszahlung", "1.000,00", "0,00", "-1.000,00"},
                                          {"15.01.2007", "Zinstermin", "0,00", "0,00", "-1.000,00"},
                                          {"15.02.2007", "Zahlung", "-500,00", "0,00", "-500,00"},
                                          {"15.02.2007", "Zinstermin", "0,00", "-9,90", "-509,90"},
                                          {"15.04.2007", "Zahlung", "-520,00", "0,00", "10,10"},
                                          {"15.04.2007", "Zinstermin", "0,00", "-10,10", "0,00"}}));
    EXPECT_EQ(plan.Tableau->size(), 1 + 2 * kleinkredit.size());
}

TEST(Tilgungsplan, DerNominalzinsHaengtAnTerminenUndTagenDerEffektivzinsNicht) {
    constexpr std::array nominal{"11,84700 %", "11,90693 %", "11,74895 %", "12,01121 %", "11,90693 %"};
    for (std::size_t methode = 0; methode < nominal.size(); ++methode) {
        const Tilgungsplan plan = Plan(kleinkredit, monatsende, static_cast<Verzinsungsmethode>(methode));
        EXPECT_EQ(plan.nomzins, nominal[methode]);
        EXPECT_EQ(plan.effzinssatz, "12,51869 %");
    }
    EXPECT_EQ(Plan(kleinkredit, zahlungstermine).nomzins, "11,88458 %");
    EXPECT_EQ(Plan(kleinkredit, zahlungstermine).effzinssatz, "12,51869 %");
}

TEST(Tilgungsplan, KopfNenntDenNominalzinsMitAllenStellenUndPunkt) {
    const std::vector<Staffelsatz> keine;
    EXPECT_EQ(Zinsstaffelanzeige2(keine, 6.394081388685798).Koepfe(),
              (Zeile{"Datum", "Auszahlung", "Zahlungen", "Zinsen nominal  6.3940813886858 %", "Kontostand"}));
    EXPECT_EQ(Zinsstaffelanzeige1(keine, 0.5).Koepfe(),
              (Zeile{"Datum", "Vorgang", "Zahlungsbetrag", "Zinsen nominal  0.5 %", "Kontostand"}));
}

TEST(Tilgungsplan, LueckeVonDreiJahrenVorDerLetztenZahlungHatNurEinenJahrestag) {
    const Tilgungsplan plan = Plan(Planreihe({{"01.01.2007", 1000}, {"01.01.2010", -1200}}), zahlungstermine);
    EXPECT_EQ(Unterjaehrig(plan), (Zeilen{{"01.01.2007", "Auszahlung", "1.000,00", "0,00", "-1.000,00"},
                                          {"01.01.2007", "Zinstermin", "0,00", "0,00", "-1.000,00"},
                                          {"01.01.2008", "Zinstermin", "0,00", "-63,94", "-1.063,94"},
                                          {"01.01.2010", "Zahlung", "-1.200,00", "0,00", "136,06"},
                                          {"01.01.2010", "Zinstermin", "0,00", "-136,06", "0,00"}}));
    EXPECT_EQ(Jahresweise(plan), (Zeilen{{"01.01.2007", "1.000,00", "0,00", "0,00", "-1.000,00"},
                                         {"01.01.2008", "0,00", "0,00", "-63,94", "-1.063,94"},
                                         {"01.01.2010", "0,00", "1.200,00", "-136,06", "0,00"}}));
}

/// The dates of the settlement rows.
Zeile Zinstermine(const std::vector<Reihensatz>& reihe, Plantermine termine) {
    std::vector<Staffelsatz> tableau;
    PlanzeilenErzeugen(reihe, termine, ErsterPlantermin(DatumVon(reihe.front()), termine), 5, tableau);
    Zeile daten;
    for (const Staffelsatz& satz : tableau) {
        if (satz.Zahlungsart == zahlungsart::zinstermin) daten.emplace_back(satz.Satzdatum.Getrimmt());
    }
    return daten;
}

// Each further payment on the day passes the look-ahead on by one more year.
TEST(Planzeilen, JedeNochAusstehendeZahlungErlaubtEinenWeiterenJahrestag) {
    EXPECT_EQ(
        Zinstermine(Planreihe({{"01.01.2007", 1}, {"01.07.2010", -1}, {"01.07.2010", -1}}), zahlungstermine),
        (Zeile{"01.01.2007", "01.01.2008", "01.01.2009", "01.07.2010", "01.07.2010"}));
}

TEST(Planzeilen, LueckeVonGenauEinemJahrHatKeinenJahrestag) {
    EXPECT_EQ(Zinstermine(Planreihe({{"01.01.2007", 1}, {"01.01.2008", -1}}), zahlungstermine),
              (Zeile{"01.01.2007", "01.01.2008"}));
    EXPECT_EQ(Zinstermine(Planreihe({{"01.01.2007", 1}, {"02.01.2008", -1}}), zahlungstermine),
              (Zeile{"01.01.2007", "01.01.2008", "02.01.2008"}));
}

TEST(Planzeilen, ErsteZahlungAmMonatsendeHatIhrenErstenTerminEinMonatsendeSpaeter) {
    EXPECT_EQ(Zinstermine(Planreihe({{"31.01.2007", 1000}, {"31.03.2007", -1010}}), monatsende),
              (Zeile{"28.02.2007", "31.03.2007"}));
}

TEST(Planzeilen, LetzteZahlungAmTerminHatEineSchlusszeile) {
    EXPECT_EQ(Zinstermine(Planreihe({{"15.01.2007", 1000}, {"30.06.2007", -1010}}), halbjahresende),
              (Zeile{"30.06.2007"}));
}

TEST(Planzeilen, RhythmenDerMonatsenden) {
    const auto reihe = Planreihe({{"15.02.2007", 1000}, {"15.01.2008", -1010}});
    EXPECT_EQ(Zinstermine(reihe, quartalsende),
              (Zeile{"31.03.2007", "30.06.2007", "30.09.2007", "31.12.2007", "15.01.2008"}));
    EXPECT_EQ(Zinstermine(reihe, halbjahresende), (Zeile{"30.06.2007", "31.12.2007", "15.01.2008"}));
    EXPECT_EQ(Zinstermine(reihe, jahresende), (Zeile{"31.12.2007", "15.01.2008"}));
    EXPECT_EQ(Zinstermine(reihe, monatsende).size(), 12U);
}

TEST(Planzeilen, ZahlungAmTerminKommtVorDerZinszeile) {
    std::vector<Staffelsatz> tableau;
    const auto reihe = Planreihe({{"15.01.2007", 1000}, {"31.01.2007", -10}, {"15.02.2007", -1000}});
    PlanzeilenErzeugen(reihe, monatsende, ErsterPlantermin(DatumVon(reihe.front()), monatsende), 5, tableau);
    ASSERT_EQ(tableau.size(), 6U);
    EXPECT_EQ(tableau[2].Zahlungsart, zahlungsart::zahlung);
    EXPECT_EQ(tableau[3].Zahlungsart, zahlungsart::zinstermin);
    EXPECT_EQ(tableau[3].Satzdatum.Roh(), "31.01.2007");
}

TEST(Planzeilen, FelderDerDreiArten) {
    std::vector<Staffelsatz> tableau;
    const auto reihe = Planreihe({{"15.01.2007", 1000}, {"31.01.2007", -10}});
    PlanzeilenErzeugen(reihe, zahlungstermine, std::nullopt, 4.1, tableau);
    EXPECT_EQ(tableau[0].Zahlungstext.Getrimmt(), "Konditionen\xE4nderung");
    EXPECT_EQ(tableau[0].kondition,
              (Konditionen{.Gutzins1 = 4.1F, .Gutzins2 = 4.1F, .Kreditzins1 = 4.1F, .Kreditzins2 = 4.1F}));
    EXPECT_EQ(tableau[1].Zahlungstext.Getrimmt(), "Zahlung");
    EXPECT_EQ(tableau[1].Zahlbetrag, 1000);
    EXPECT_EQ(tableau[2].Zahlungstext.Getrimmt(), "Zinsen");
    for (const Staffelsatz& satz : tableau)
        EXPECT_EQ(satz.Sortierschluessel, Festtext<10>());
}

TEST(Planzeilen, MehrAls32767ZeilenSindEinFehlerUndDieZeilenDavorBleiben) {
    std::vector<Staffelsatz> tableau;
    const auto reihe = Planreihe({{"01.01.0200", 1000}, {"01.01.9000", -1010}});
    EXPECT_THROW(PlanzeilenErzeugen(reihe, monatsende, ErsterPlantermin(DatumVon(reihe.front()), monatsende),
                                    5, tableau),
                 Rechenfehler);
    EXPECT_EQ(tableau.size(), 32767U);
}

TEST(Planzeilen, DezemberAmEndeDesKalendersIstEinFehler) {
    EXPECT_THROW(static_cast<void>(ErsterPlantermin(Datum::Lesen("31.12.9999"), monatsende)), Datumsfehler);
    EXPECT_THROW(static_cast<void>(ErsterPlantermin(Datum::Lesen("31.12.9999"), jahresende)), Datumsfehler);
}

TEST(Tilgungsplan, LetzteZeileIstDasJahrDerLetztenZahlungAuchMitSchlusszeileAllein) {
    const Tilgungsplan plan =
        Plan(Planreihe({{"15.01.2007", 1000}, {"31.12.2007", -500}, {"15.01.2008", -600}}), jahresende);
    EXPECT_EQ(plan.Kurztableau->size(), 2U);
    EXPECT_EQ(plan.Kurztableau->back().Satzdatum.Roh(), "15.01.2008");
}

TEST(Kurztableau, FelderEinesJahres) {
    std::vector<Staffelsatz> tableau(4);
    constexpr std::array daten{"01.02.2007", "01.03.2007", "30.06.2007", "01.01.2008"};
    for (std::size_t i = 0; i < tableau.size(); ++i)
        SetzeDatum(tableau[i], daten[i]);
    tableau[0].Zahlbetrag = 100;
    tableau[1].Zahlbetrag = -30;
    tableau[2].Zinsgutschrift = 4;
    tableau[2].Kontostand = 74;
    const auto kurz = KurztableauBilden(tableau);
    ASSERT_EQ(kurz.size(), 2U);
    EXPECT_EQ(kurz[0].Satzdatum.Roh(), "30.06.2007");
    EXPECT_EQ(kurz[0].Zahlbetrag, 30);
    EXPECT_EQ(kurz[0].kondition.Guthabenlinie, 100);
    EXPECT_EQ(kurz[0].kondition.Kreditlinie, 74);
    EXPECT_EQ(kurz[0].Zinsgutschrift, 4);
    EXPECT_EQ(kurz[0].Kumulzins, 26);
    EXPECT_EQ(kurz[1].Satzdatum.Roh(), "01.01.2008");
    EXPECT_EQ(kurz[1].Zahlbetrag, 0);
}

TEST(Tilgungsplan, LeereReiheWirdAbgelehnt) {
    Tilgungsplan plan;
    EXPECT_EQ(TilgungsplanRechnen({}, {}, plan),
              (Ablehnung{"Es müssen erst Zahlungen eingegeben werden.", "Begdatum", "Zahlungen"}));
}

TEST(Tilgungsplan, OhneEffektivzinsGibtEsKeinenUndKeineDatei) {
    Tilgungsplan plan;
    EXPECT_EQ(TilgungsplanRechnen(Planreihe({{"01.01.2007", 1000}, {"01.01.2008", 1}}), {}, plan),
              (Ablehnung{"Ein Tilgungsplan konnte rechnerisch nicht ermittelt werden.", "", ""}));
    EXPECT_EQ(plan.Tableau, std::nullopt);
    EXPECT_EQ(plan.Kurztableau, std::nullopt);
}

// The interest on a cent is no cent: both rates at the start end at -0,002.
TEST(Tilgungsplan, GleicheKontostaendeZuBeginnSindEinFehlerUndDasTableauBleibt) {
    Tilgungsplan plan;
    const auto reihe = Planreihe({{"01.01.2007", 0.01}, {"01.01.2008", -0.012}});
    EXPECT_THROW(static_cast<void>(TilgungsplanRechnen(reihe, {}, plan)), Rechenfehler);
    EXPECT_TRUE(plan.Tableau.has_value());
    EXPECT_EQ(plan.Kurztableau, std::nullopt);
}

// There is no day on which a rate could work.
TEST(Tilgungsplan, ZahlungenAnEinemTagHabenKeinen) {
    Tilgungsplan plan;
    EXPECT_EQ(
        TilgungsplanRechnen(Planreihe({{"01.01.2007", 1000}, {"01.01.2007", -1000}}), {}, plan)->Meldung,
        "Ein Tilgungsplan konnte rechnerisch nicht ermittelt werden.");
}

TEST(ReiheSchreiben, UebernimmtVorzeichenDatumUndSchluessel) {
    const auto reihe = Planreihe({{"15.01.2007", 1000}});
    EXPECT_EQ(reihe[0].Reihenbetrag, 1000);
    EXPECT_EQ(reihe[0].Reihendatum.Roh(), "15.01.2007");
    EXPECT_EQ(reihe[0].Reihenschluessel.Roh(), "20070115  ");
    EXPECT_EQ(reihe[0].Tag, 15);
    EXPECT_EQ(reihe[0].Monat, 1);
    EXPECT_EQ(reihe[0].Jahr, 2007);
}

TEST(ReiheSchreiben, BeschaedigteZeileIstEinFehlerUndDieZeilenDavorBleiben) {
    auto zahlungen = Investition();
    zahlungen[2] = Beschaedigt();
    std::vector<Reihensatz> reihe;
    EXPECT_THROW(ReiheSchreiben(zahlungen, reihe), Datumsfehler);
    EXPECT_EQ(reihe.size(), 2U);
}

TEST(BeideRichtungen, NullZaehltZuKeiner) {
    EXPECT_TRUE(HatBeideRichtungen(Planreihe({{"01.01.2007", 1}, {"01.01.2008", -1}})));
    EXPECT_FALSE(HatBeideRichtungen(Planreihe({{"01.01.2007", 1}, {"01.01.2008", 0}})));
    EXPECT_FALSE(HatBeideRichtungen(Planreihe({{"01.01.2007", 0}, {"01.01.2008", -1}})));
    EXPECT_FALSE(HatBeideRichtungen({}));
}

// Banking trainees' forum: 15.525,38 at 7 %, 8 x 2.600; published interest 1086,78 980,85 867,51 746,24
// 616,47 477,63 329,06 170,09.
TEST(VeroeffentlichterPlan, AchtJahresraten) {
    const auto reihe = Planreihe({{"31.12.2006", 15525.38},
                                  {"31.12.2007", -2600},
                                  {"31.12.2008", -2600},
                                  {"31.12.2009", -2600},
                                  {"31.12.2010", -2600},
                                  {"31.12.2011", -2600},
                                  {"31.12.2012", -2600},
                                  {"31.12.2013", -2600},
                                  {"31.12.2014", -2600}});
    const Tilgungsplan plan = Plan(reihe, jahresende);
    EXPECT_NEAR(plan.Nominalzins, 7, 1e-5);
    EXPECT_EQ(plan.effzinssatz, "6,99999 %");
    EXPECT_EQ(Jahresweise(plan), (Zeilen{{"31.12.2006", "15.525,38", "0,00", "0,00", "-15.525,38"},
                                         {"31.12.2007", "0,00", "2.600,00", "-1.086,78", "-14.012,16"},
                                         {"31.12.2008", "0,00", "2.600,00", "-980,85", "-12.393,01"},
                                         {"31.12.2009", "0,00", "2.600,00", "-867,51", "-10.660,52"},
                                         {"31.12.2010", "0,00", "2.600,00", "-746,24", "-8.806,76"},
                                         {"31.12.2011", "0,00", "2.600,00", "-616,47", "-6.823,23"},
                                         {"31.12.2012", "0,00", "2.600,00", "-477,63", "-4.700,86"},
                                         {"31.12.2013", "0,00", "2.600,00", "-329,06", "-2.429,92"},
                                         {"31.12.2014", "0,00", "2.600,00", "-170,09", "-0,01"}}));
}

// Mathematics forum: 500.000 at 4 %, 28 x 30.000, last 337,14; published
// interest 20.000,00 19.600,00 19.184,00 18.751,36 18.301,41 and 340.337,14 in all.
TEST(VeroeffentlichterPlan, AchtundzwanzigJahresraten) {
    std::vector<Reihensatz> reihe{Reihenzeile("31.12.2006", 500000)};
    for (int jahr = 2007; jahr <= 2034; ++jahr)
        reihe.push_back(Reihenzeile("31.12." + std::to_string(jahr), -30000));
    reihe.push_back(Reihenzeile("31.12.2035", -337.14));
    const Tilgungsplan plan = Plan(reihe, jahresende);
    EXPECT_EQ(plan.nomzins, "4,00000 %");
    EXPECT_EQ(plan.effzinssatz, "4,00000 %");
    const Zeilen zeilen = Jahresweise(plan);
    constexpr std::array zinsen{"-20.000,00", "-19.600,00", "-19.184,00", "-18.751,36", "-18.301,41"};
    for (std::size_t i = 0; i < zinsen.size(); ++i)
        EXPECT_EQ(zeilen[i + 1][3], zinsen[i]);
    const double summe =
        std::accumulate(plan.Kurztableau->begin(), plan.Kurztableau->end(), 0.0,
                        [](double s, const Staffelsatz& satz) { return s + satz.Zinsgutschrift; });
    EXPECT_NEAR(summe, 340337.14, 0.04);
}

}  // namespace tilgungsplan_test
}  // namespace zinfolio
