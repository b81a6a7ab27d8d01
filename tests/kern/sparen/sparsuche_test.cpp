#include <cmath>
#include <gmock/gmock.h>
#include <stdexcept>

#include "kern/sparen/sekantensuche.h"
#include "plaene.h"

namespace zinfolio {
namespace sparsuche_test {

using testing::StartsWith;

/// A plan from the start of 2007 to the end of 2016 that nothing changes.
Sparplan Zehnjahresplan() {
    Sparplan plan;
    plan.AnfVermögen = "0";
    plan.Anfdatum = plan.ratdatum1 = "01.01.2007";
    plan.Enddatum = "31.12.2016";
    plan.Betrag = "100";
    plan.Zins = "3";
    plan.Vwert = "50000";
    return plan;
}

/// The account of 30/360 with one settlement a year, recomputed by hand's way: months of 30 days, interest of
/// each month rounded to cents, credited at the end of the year; the December rate bears 29 days.
double Konto3060(double kapital, double rate, int jahre, float prozent) {
    const double q = static_cast<double>(prozent / 100.0F);
    double stand = kapital;
    for (int jahr = 0; jahr < jahre; ++jahr) {
        double zinsen = 0;
        for (int monat = 1; monat <= 12; ++monat) {
            stand += rate;
            const int tage = monat == 12 ? 29 : 30;
            // From the last day of the year on, its first month has one day more.
            const double vortag =
                monat == 1 && jahr > 0 ? std::floor((stand - rate) * q * 1 / 360 * 100 + 0.5) / 100 : 0;
            zinsen += vortag + std::floor(stand * q * tage / 360 * 100 + 0.5) / 100;
        }
        stand += zinsen;
    }
    return stand;
}

TEST(SparrateSuchen, TrifftDasZielAufDenCentDerRate) {
    const Sparergebnis ergebnis = Geloest(Sparziel::sparrate, Zehnjahresplan());
    EXPECT_EQ(ergebnis.loesung, 357.68);
    EXPECT_EQ(ergebnis.summen.Endvermögen, "50.000,26");
    EXPECT_NEAR(Konto3060(0, 357.68, 10, 3), 50000.26, 1e-6);
    EXPECT_LT(std::fabs(Konto3060(0, 357.68, 10, 3) - 50000), std::fabs(Konto3060(0, 357.67, 10, 3) - 50000));
}

TEST(SparrateSuchen, MitDynamisierungUeberDreissigJahre) {
    Sparplan plan = Zehnjahresplan();
    plan.AnfVermögen = "5000";
    plan.Anfdatum = "01.01.2005";
    plan.ratdatum1 = "01.02.2005";
    plan.Enddatum = "31.12.2034";
    plan.Zins = "3,5";
    plan.Vwert = "250000";
    plan.Check2 = 1;
    plan.Anzahl = "12";
    plan.Delta = "2";
    const Sparergebnis ergebnis = Geloest(Sparziel::sparrate, plan);
    EXPECT_EQ(ergebnis.loesung, 292.31);  // by a literal calculation apart from this program
    EXPECT_EQ(ergebnis.summen.Endvermögen, "250.003,57");
    EXPECT_EQ(ergebnis.durchlaeufe, 4U);
}

TEST(SparrateSuchen, OhneZinsIstDieSucheInEinemSchrittAmZiel) {
    Sparplan plan = Zehnjahresplan();
    plan.Zins = "0";
    plan.Vwert = "12000";
    const Sparergebnis ergebnis = Geloest(Sparziel::sparrate, plan);
    EXPECT_EQ(ergebnis.loesung, 100);
}

TEST(SparrateSuchen, ZielUnterDemAnfangsvermoegenGibtAuszahlungen) {
    Sparplan plan = Zehnjahresplan();
    plan.AnfVermögen = "10000";
    plan.ratdatum1 = "01.02.2007";
    plan.Vwert = "5000";
    const Sparergebnis ergebnis = Geloest(Sparziel::sparrate, plan);
    EXPECT_EQ(ergebnis.loesung, -60.95);
    EXPECT_EQ((*ergebnis.lauf.zahlungen)[1].Zahlungstext.Getrimmt(), "Auszahlung");
}

TEST(SparrateSuchen, EineGrenzeHaeltDieRateVonDerLoesungFern) {
    Sparplan plan = Zehnjahresplan();
    plan.Check2 = plan.Check4 = 1;
    plan.Anzahl = "12";
    plan.MaxSparrate = "200";
    Sparstand stand;
    Sparergebnis ergebnis;
    const auto ablehnung = SparplanRechnen(Form(Sparziel::sparrate), plan, stand, ergebnis);
    EXPECT_EQ(
        ablehnung,
        (Ablehnung{"Es wurde keine Lösung gefunden. Heben Sie die Begrenzungen für die Höhe der Sparraten "
                   "auf oder Verändern Sie deren Werte.",
                   "Check4", "Daten"}));
    EXPECT_EQ((*ergebnis.lauf.zahlungen)[1].Zahlbetrag, 200);
    EXPECT_EQ(ergebnis.Lösungszahlungsreihe, std::nullopt);
}

TEST(SparrateSuchen, OhneDynamisierungTunDieGrenzenNichts) {
    Sparplan plan = Zehnjahresplan();
    plan.Check4 = plan.Check5 = 1;
    plan.MaxSparrate = "200";
    const Sparergebnis ergebnis = Geloest(Sparziel::sparrate, plan);
    EXPECT_EQ(ergebnis.loesung, 357.68);
}

TEST(SparrateSuchen, GleicheEndstaendeAmAnfangSindEinFehler) {
    Sparplan plan = Zehnjahresplan();
    plan.AnfVermögen = "1000";
    plan.ratdatum1 = "01.01.2020";  // no rate reaches the account
    Sparergebnis ergebnis;
    EXPECT_THROW(Rechne(Sparziel::sparrate, plan, ergebnis), std::runtime_error);
}

TEST(AnfangskapitalSuchen, TrifftDasZielAufDenCent) {
    Sparplan plan = Zehnjahresplan();
    plan.Anfdatum = "01.01.2005";
    plan.ratdatum1 = "01.02.2005";
    plan.Betrag = "150";
    plan.Enddatum = "31.12.2024";
    plan.Zins = "4";
    plan.Vwert = "100000";
    Sparstand stand{.kapital = 1};  // so that the date of the capital stands
    Sparergebnis ergebnis;
    EXPECT_EQ(SparplanRechnen(Form(Sparziel::anfangskapital), plan, stand, ergebnis), std::nullopt);
    EXPECT_EQ(ergebnis.loesung, 20800.90);  // by a literal calculation apart from this program
    EXPECT_EQ(stand.kapital, 20800.90);
    EXPECT_EQ(ergebnis.durchlaeufe, 9U);
}

TEST(AnfangskapitalSuchen, GenuegenDieRatenWirdDasKapitalNegativ) {
    Sparplan plan = Zehnjahresplan();
    plan.Vwert = "5000";
    const Sparergebnis ergebnis = Geloest(Sparziel::anfangskapital, plan);
    EXPECT_EQ(ergebnis.loesung, -6681.80);
    EXPECT_NEAR(Konto3060(-6681.80, 100, 10, 3), 5000.01, 0.005);
    EXPECT_EQ(ergebnis.lauf.zahlungen->front().Zahlungstext.Getrimmt(), "Anfangsverm\xF6gen");
}

TEST(AnfangskapitalSuchen, OhneRateUndZinsIstEsDasZiel) {
    Sparplan plan = Zehnjahresplan();
    plan.Betrag = plan.Zins = "0";
    plan.Vwert = "5000";
    const Sparergebnis ergebnis = Geloest(Sparziel::anfangskapital, plan);
    EXPECT_EQ(ergebnis.loesung, 5000);
}

TEST(AnfangskapitalSuchen, LeererBetragIstEinFehlerUndHinterlaesstEineZeile) {
    Sparplan plan = Zehnjahresplan();
    plan.Betrag = "";
    Sparergebnis ergebnis;
    EXPECT_THROW(Rechne(Sparziel::anfangskapital, plan, ergebnis), std::runtime_error);
    EXPECT_EQ(ergebnis.lauf.zahlungen->size(), 1U);
    EXPECT_EQ(ergebnis.lauf.termine, std::nullopt);
}

// The balances of this plan make the search go round in a ring of four amounts.
TEST(AnfangskapitalSuchen, ImRingZaehltDasMitgliedMitDerKleinstenAbweichung) {
    Sparplan plan;
    plan.Anfdatum = plan.ratdatum1 = "15.12.2006";
    plan.Enddatum = "20.10.2030";
    plan.Betrag = "210,99";
    plan.Zins = "8,87";
    plan.Vwert = "246712,95";
    plan.Combo2 = 4;
    plan.Combo4 = 4;
    plan.Check2 = plan.Check3 = plan.Check4 = 1;
    plan.Anzahl = "2";
    plan.Delta = "2,22";
    plan.DynAnz = "6";
    plan.MaxSparrate = "2883,12";
    plan.Check1 = 1;
    const Sparergebnis ergebnis = Geloest(Sparziel::anfangskapital, plan);
    EXPECT_EQ(ergebnis.loesung, 2234.19);
    EXPECT_EQ(ergebnis.summen.Endvermögen, "246.712,99");
    EXPECT_EQ(ergebnis.lauf.zahlungen->front().Zahlbetrag, 2234.19);
}

TEST(CentsucheLaufen, EinRingEndetMitDemErstenDerNaechsten) {
    // Deviations by amount; the steps go 1, 2, 1, 2 for ever.
    const Suchaufgabe aufgabe{[](double x) { return x < 1.5 ? -3.0 : 4.0; },
                              [](double x) { return x < 1.43 ? 2.0 : 1.0; }};
    const Suchpunkt gefunden = CentsucheLaufen(aufgabe, {{2, 4}, {1, -3}});
    EXPECT_EQ(gefunden.x, 1);
    EXPECT_EQ(gefunden.f, -3);
}

TEST(CentsucheLaufen, NachHunderttausendRundenGibtEsKeineLoesung) {
    int runden = 0;
    double naechstes = 0;
    const Suchaufgabe aufgabe{[&](double) { return ++runden % 2 == 0 ? 10.0 : -7.0; },
                              [&](double) { return naechstes += 1; }};
    const Suchpunkt gefunden = CentsucheLaufen(aufgabe, {{0, 1}, {1, 2}});
    EXPECT_FALSE(std::isfinite(gefunden.f));
    EXPECT_EQ(runden, 100'000);
}

TEST(RenditeSuchen, NominalzinsFuehrtDasKontoZumZiel) {
    Sparplan plan = Zehnjahresplan();
    plan.AnfVermögen = "1000";
    plan.Vermendwert = "16000";
    const Sparergebnis ergebnis = Geloest(Sparziel::rendite, plan);
    EXPECT_EQ(ergebnis.ezins, "3,78172");  // bisection of the present value, apart from this program
    EXPECT_EQ(ergebnis.Nzins, "3,77921");
    EXPECT_NEAR(ergebnis.loesung, 3.779207169308295, 1e-9);
    EXPECT_EQ(ergebnis.summen.Endvermögen, "16.000,00");
    EXPECT_EQ(ergebnis.lauf.zahlungen->back().Zahlungstext.Getrimmt(), "Zahlung");
    EXPECT_EQ(ergebnis.Lösungszahlungsreihe->back().Reihenbetrag, 16000);
}

TEST(RenditeSuchen, ZielGleichDerSummeIstZinslos) {
    Sparplan plan = Zehnjahresplan();
    plan.AnfVermögen = "1000";
    plan.Vermendwert = "13000";
    const Sparergebnis ergebnis = Geloest(Sparziel::rendite, plan);
    EXPECT_EQ(ergebnis.ezins, "0,00000");
    EXPECT_EQ(ergebnis.loesung, 0);
}

TEST(RenditeSuchen, EinVerlustHatEinenNegativenZins) {
    Sparplan plan = Zehnjahresplan();
    plan.AnfVermögen = "1000";
    plan.Vermendwert = "12000";
    const Sparergebnis ergebnis = Geloest(Sparziel::rendite, plan);
    EXPECT_LT(ergebnis.loesung, -1);
    EXPECT_EQ(ergebnis.summen.Endvermögen, "12.000,00");
}

TEST(RenditeSuchen, OhneEffektivzinsKeineSuche) {
    Sparplan plan = Zehnjahresplan();
    plan.Vermendwert = "-5";
    Sparstand stand;
    Sparergebnis ergebnis;
    EXPECT_EQ(SparplanRechnen(Form(Sparziel::rendite), plan, stand, ergebnis),
              (Ablehnung{"Es wurde keine zulässige Lösung gefunden", "", "Daten"}));
    EXPECT_EQ(ergebnis.lauf.zahlungen->back().Zahlungstext.Getrimmt(), "Endverm\xF6gen");
    EXPECT_EQ(ergebnis.lauf.termine, std::nullopt);
    EXPECT_TRUE(ergebnis.Lösungszahlungsreihe.has_value());
}

TEST(RenditeSuchen, BeiZinsNullEntscheidetDieLetzteAbweichung) {
    Sparplan plan = Zehnjahresplan();
    plan.AnfVermögen = "1000";
    plan.Vermendwert = "13000";
    Sparstand stand{.abweichung = 99};
    Sparergebnis ergebnis;
    EXPECT_EQ(SparplanRechnen(Form(Sparziel::rendite), plan, stand, ergebnis)->Meldung,
              "Es wurde keine zulässige Lösung gefunden");
}

TEST(AnspardauerSuchen, ZielImSprungEinerRate) {
    Sparplan plan = Zehnjahresplan();
    plan.Vwert = "1250";
    const Sparergebnis ergebnis = Geloest(Sparziel::anspardauer, plan);
    EXPECT_EQ(ergebnis.Enddatum, "01.01.2008");
    // Twelve rates and their interest of 19.48, and the thirteenth rate, with a day's interest of 0.10 less.
    EXPECT_EQ(ergebnis.summen.Endvermögen, "1.319,50");
    EXPECT_EQ(ergebnis.ezins, "");
    EXPECT_EQ(ergebnis.lauf.loesung->back().Satzdatum.Getrimmt(), "01.01.2008");
}

TEST(AnspardauerSuchen, ZielGleichDemAnfangsvermoegenEndetAmAnfang) {
    Sparplan plan = Zehnjahresplan();
    plan.AnfVermögen = plan.Vwert = "10000";
    plan.Betrag = "0";
    plan.ratdatum1 = "01.01.2008";
    const Sparergebnis ergebnis = Geloest(Sparziel::anspardauer, plan);
    EXPECT_EQ(ergebnis.Enddatum, "01.01.2007");
}

TEST(AnspardauerSuchen, UeberJahrzehnte) {
    Sparplan plan = Zehnjahresplan();
    plan.AnfVermögen = "5000";
    plan.Betrag = "200";
    plan.Vwert = "100000";
    const Sparergebnis ergebnis = Geloest(Sparziel::anspardauer, plan);
    EXPECT_EQ(ergebnis.Enddatum, "01.02.2032");  // by a literal calculation apart from this program
    EXPECT_EQ(ergebnis.durchlaeufe, 22U);
}

TEST(AnspardauerSuchen, VorDemErstenZinsterminZaehltKeinZins) {
    Sparplan plan = Zehnjahresplan();
    plan.Anfdatum = plan.ratdatum1 = "15.05.2007";
    plan.Betrag = "250";
    plan.Zins = "4";
    plan.Vwert = "10100";
    plan.Combo4 = 2;
    const Sparergebnis ergebnis = Geloest(Sparziel::anspardauer, plan);
    EXPECT_EQ(ergebnis.Enddatum, "15.06.2010");  // a walk of seven days
    EXPECT_EQ(ergebnis.durchlaeufe, 29U);
}

TEST(AnspardauerSuchen, SinkendeRaten) {
    Sparplan plan = Zehnjahresplan();
    plan.AnfVermögen = "1000";
    plan.Vwert = "3000";
    plan.Check2 = 1;
    plan.Anzahl = "1";
    plan.Delta = "-30";
    const Sparergebnis ergebnis = Geloest(Sparziel::anspardauer, plan);
    EXPECT_EQ(ergebnis.Enddatum, "03.06.2034");
}

TEST(AnspardauerSuchen, EinErstesJahrOhneBewegungIstEinFehler) {
    Sparplan plan = Zehnjahresplan();
    plan.AnfVermögen = "1000";
    plan.ratdatum1 = "01.02.2008";
    plan.Zins = "0";
    Sparergebnis ergebnis;
    EXPECT_THROW(Rechne(Sparziel::anspardauer, plan, ergebnis), std::runtime_error);
    EXPECT_EQ(ergebnis.lauf.loesung->back().Satzdatum.Getrimmt(), "01.01.2008");
}

// The first step leads 6800 years on, and a settlement a month gives more rows than a file holds.
TEST(AnspardauerSuchen, MehrAls32767ZeilenSindEinFehler) {
    Sparplan plan = Zehnjahresplan();
    plan.Anfdatum = plan.ratdatum1 = "01.10.2003";
    plan.Combo1 = 4;
    plan.Combo2 = 4;
    plan.Combo4 = 0;
    plan.Betrag = "797,14";
    plan.Vwert = "165908,47";
    Sparergebnis ergebnis;
    EXPECT_THROW(Rechne(Sparziel::anspardauer, plan, ergebnis), std::runtime_error);
    EXPECT_EQ(ergebnis.lauf.zahlungen->size(), 6800U);
    EXPECT_EQ(ergebnis.lauf.termine->size(), 32767U);
    // The pass of the second trial stands behind them.
    EXPECT_EQ(ergebnis.lauf.loesung->back().Satzdatum.Getrimmt(), "30.09.2004");
}

// Target and capital are 0 and the first rate stands above them: the search goes before the first day.
TEST(AnspardauerSuchen, EinEndeVorDemAnfangIstEinFehler) {
    Sparplan plan = Zehnjahresplan();
    plan.Vwert = "0";
    Sparergebnis ergebnis;
    EXPECT_THROW(Rechne(Sparziel::anspardauer, plan, ergebnis), std::runtime_error);
    EXPECT_EQ(ergebnis.lauf.zahlungen->size(), 2U);
    EXPECT_EQ(ergebnis.lauf.loesung->size(), 1U);
}

TEST(EndkapitalRechnen, PlanAusLauterNullen) {
    Sparplan plan = Zehnjahresplan();
    plan.Betrag = plan.Zins = "0";
    const Sparergebnis ergebnis = Geloest(Sparziel::endkapital, plan);
    EXPECT_EQ(ergebnis.summen.Endvermögen, "0,00");
    EXPECT_EQ(ergebnis.summen.Gesamtzahlungssumme, "0,00");
    EXPECT_EQ(ergebnis.ezins, "");
}

TEST(EndkapitalRechnen, StimmtMitDerHandrechnung) {
    const Sparergebnis ergebnis = Geloest(Sparziel::endkapital, Zehnjahresplan());
    EXPECT_NEAR(ergebnis.loesung, Konto3060(0, 100, 10, 3), 1e-6);
    EXPECT_EQ(ergebnis.summen.Gesamtzahlungssumme, "12.000,00");
}

TEST(SparplanRechnen, LaesstSichAnhalten) {
    Sparplan plan = Zehnjahresplan();
    Sparstand stand;
    Sparergebnis ergebnis;
    EXPECT_THROW(static_cast<void>(SparplanRechnen(Form(Sparziel::sparrate), plan, stand, ergebnis,
                                                   [](std::size_t) { return false; })),
                 RechnungAbgebrochen);
}

}  // namespace sparsuche_test
}  // namespace zinfolio
