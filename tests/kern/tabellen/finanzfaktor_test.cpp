#include "kern/tabellen/finanzfaktor.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

#include "kern/dates/zahlformat.h"
#include "kern/grund/rechenfehler.h"

namespace zinfolio {
namespace finanzfaktor_test {

constexpr auto nachschuessig = Rentenfaelligkeit::nachschuessig;
constexpr auto vorschuessig = Rentenfaelligkeit::vorschuessig;
constexpr auto jaehrlich = Rentenrhythmus::jaehrlich;

std::vector<Faktorwahl> AlleRhythmen(Finanzfaktor faktor) {
    std::vector<Faktorwahl> wahlen;
    for (int rhythmus = 0; rhythmus < 6; ++rhythmus)
        for (const auto faelligkeit : {nachschuessig, vorschuessig})
            wahlen.push_back({faktor, static_cast<Rentenrhythmus>(rhythmus), faelligkeit});
    return wahlen;
}

/// The factor in all rhythms, monthly in arrears first, monthly in advance next, as shown with so many
/// decimals.
std::vector<std::string> InAllenRhythmen(Finanzfaktor faktor, double prozent, double jahre) {
    std::vector<std::string> texte;
    for (const Faktorwahl& wahl : AlleRhythmen(faktor))
        texte.push_back(Format(Faktorwert(wahl, prozent, jahre), Zahlmuster::Lesen("0.0000000")));
    return texte;
}

TEST(Finanzfaktor, HeisstUndErklaertSichWortFuerWort) {
    constexpr std::array<Finanzfaktortext, 6> erwartet{{
        {"AuF Aufzinsungsfaktor (Kapitalendwert)",
         "Zinst einen fälligen Geldbetrag mit Zins und Zinseszins auf einen nach n Perioden fälligen "
         "Geldbetrag auf. Gibt an, wie viel eine Einmalzahlung 'jetzt' nach n Perioden wert ist."},
        {"AbF Abzinsungsfaktor (Kapitalbarwert)",
         "Zinst einen nach n Perioden fälligen Geldbetrag K(n) unter Berücksichtigung von Zins und "
         "Zinseszins auf einen jetzt fälligen Geldbetrag K(0) ab."},
        {"EWF Rentenendwertfaktor (Aufzinsungssummenfaktor)",
         "Zinst alle Zahlungen einer Zahlungsreihe unter Berücksichtigung von Zins und Zinseszins auf und "
         "addiert gleichzeitig die Endwerte (verwandelt die Zahlungsreihe in 'Einmalzahlung nach n "
         "Perioden'."},
        {"DSF Diskontierungssummenfaktor (Rentenbarwertfaktor)",
         "Zinst alle Zahlungen einer Zahlungsreihe unter Berücksichtigung von Zins und Zinseszins ab und "
         "addiert gleichzeitig die einzelnen Barwerte (verwandelt die Zahlungsreihe in 'Einmalzahlung "
         "jetzt'."},
        {"KWF Kapitalwiedergewinnungsfaktor (Annuitätenfaktor)",
         "Verteilt einen jetzt fälligen Geldbetrag K(0) in gleich hohe Zahlungsbeträge einer Zahlungsreihe "
         "über n Jahre unter Berücksichtigung von Zins und Zinseszins (verwandelt die Einmalzahlung 'jetzt' "
         "in eine Zahlungsreihe)\""},
        {"RVF Restwertverteilungsfaktor",
         "Verteilt eine nach n Perioden fällige Einmalzahlung K(n) unter Berücksichtigung von Zins und "
         "Zinseszins in eine Zahlungsreihe mit jeweils gleich hohen Geldbeträgen (verwandelt Einmalzahlung "
         "nach n Perioden in Zahlungsreihe)"},
    }};
    for (std::size_t i = 0; i < erwartet.size(); ++i) {
        EXPECT_EQ(finanzfaktoren[i].eintrag, erwartet[i].eintrag);
        EXPECT_EQ(finanzfaktoren[i].erklaerung, erwartet[i].erklaerung);
    }
}

TEST(Finanzfaktor, DieKlassischenFaktorenZahlenEinmalImJahrNachschuessig) {
    // 10 % over 10 years: (1,1^10 - 1) / 0,1, with 1,1^10 = 2,5937424601.
    EXPECT_NEAR(Faktorwert({Finanzfaktor::EWF, jaehrlich, nachschuessig}, 10, 10), 15.937424601, 1e-12);
    EXPECT_NEAR(Faktorwert({Finanzfaktor::AuF, jaehrlich, nachschuessig}, 10, 10), 2.5937424601, 1e-12);
    EXPECT_NEAR(Faktorwert({Finanzfaktor::AbF, jaehrlich, nachschuessig}, 10, 10), 1 / 2.5937424601, 1e-12);
    EXPECT_NEAR(Faktorwert({Finanzfaktor::DSF, jaehrlich, nachschuessig}, 10, 10),
                15.937424601 / 2.5937424601, 1e-12);
    EXPECT_NEAR(Faktorwert({Finanzfaktor::KWF, jaehrlich, nachschuessig}, 10, 10),
                2.5937424601 / 15.937424601, 1e-12);
    EXPECT_NEAR(Faktorwert({Finanzfaktor::RVF, jaehrlich, nachschuessig}, 10, 10), 1 / 15.937424601, 1e-12);
}

TEST(Finanzfaktor, VorschuessigKommtZumJaehrlichenEndwertDerZuwachsEinesBetragsDazu) {
    EXPECT_NEAR(Faktorwert({Finanzfaktor::EWF, jaehrlich, vorschuessig}, 10, 10), 15.937424601 + 1.5937424601,
                1e-12);
}

/// From a book of single payments at simple interest within the year, in decimal numbers: 7 %, 12 years.
TEST(Finanzfaktor, EndwertInAllenRhythmen) {
    const std::vector<std::string> buch{"221,5484690", "222,8006606", "110,4611866", "111,7133782",
                                        "73,4320925",  "74,6842841",  "54,9175454",  "56,1697370",
                                        "36,4029983",  "37,6551899",  "17,8884513",  "19,1406429"};
    EXPECT_EQ(InAllenRhythmen(Finanzfaktor::EWF, 7, 12), buch);
}

TEST(Finanzfaktor, BarwertUndVerteilungInAllenRhythmen) {
    const std::vector<std::string> barwerte{"98,3701698", "98,9261578", "49,0460879", "49,6020759",
                                            "32,6047272", "33,1607153", "24,3840469", "24,9400350",
                                            "16,1633666", "16,7193547", "7,9426863",  "8,4986743"};
    EXPECT_EQ(InAllenRhythmen(Finanzfaktor::DSF, 7, 12), barwerte);
    const std::vector<std::string> annuitaeten{"0,0101657", "0,0101085", "0,0203890", "0,0201604",
                                               "0,0306704", "0,0301562", "0,0410104", "0,0400962",
                                               "0,0618683", "0,0598109", "0,1259020", "0,1176654"};
    EXPECT_EQ(InAllenRhythmen(Finanzfaktor::KWF, 7, 12), annuitaeten);
    const std::vector<std::string> restwerte{"0,0045137", "0,0044883", "0,0090530", "0,0089515",
                                             "0,0136180", "0,0133897", "0,0182091", "0,0178032",
                                             "0,0274703", "0,0265568", "0,0559020", "0,0522448"};
    EXPECT_EQ(InAllenRhythmen(Finanzfaktor::RVF, 7, 12), restwerte);
}

TEST(Finanzfaktor, AufzinsenUndAbzinsenKenntKeinenRhythmus) {
    EXPECT_EQ(InAllenRhythmen(Finanzfaktor::AuF, 7, 12), std::vector<std::string>(12, "2,2521916"));
    EXPECT_EQ(InAllenRhythmen(Finanzfaktor::AbF, 7, 12), std::vector<std::string>(12, "0,4440120"));
}

Faktorwahl Mit(Faktorwahl wahl, Finanzfaktor faktor) {
    wahl.faktor = faktor;
    return wahl;
}

void ErwarteEins(double produkt) {
    EXPECT_NEAR(produkt, 1, 1e-12);
}

/// One rhythm at one rate over one period: the factors that undo each other.
void ErwarteIdentitaeten(const Faktorwahl& wahl, double prozent, double jahre) {
    const auto wert = [&](Finanzfaktor faktor) { return Faktorwert(Mit(wahl, faktor), prozent, jahre); };
    ErwarteEins(wert(Finanzfaktor::KWF) * wert(Finanzfaktor::DSF));
    ErwarteEins(wert(Finanzfaktor::RVF) * wert(Finanzfaktor::EWF));
    ErwarteEins(wert(Finanzfaktor::DSF) * wert(Finanzfaktor::AuF) / wert(Finanzfaktor::EWF));
    ErwarteEins(wert(Finanzfaktor::AuF) * wert(Finanzfaktor::AbF));
}

TEST(Finanzfaktor, FaktorenDieSichAufhebenInJedemRhythmus) {
    for (const Faktorwahl& wahl : AlleRhythmen(Finanzfaktor::AuF))
        for (const double prozent : {0.1, 0.5, 3.25, 7.0, 12.9, 100.0})
            for (const double jahre : {1.0, 2.0, 13.0, 50.0, 99.0})
                ErwarteIdentitaeten(wahl, prozent, jahre);
}

std::vector<std::string> Jahresreihe(Finanzfaktor faktor, double prozent, int jahre, const char* muster) {
    std::vector<std::string> texte;
    for (int jahr = 1; jahr <= jahre; ++jahr)
        texte.push_back(
            Format(Faktorwert({faktor, jaehrlich, nachschuessig}, prozent, jahr), Zahlmuster::Lesen(muster)));
    return texte;
}

/// ImmoWertV 2010, Anlage 2 (zu § 20), Barwertfaktoren für die Abzinsung.
TEST(Finanzfaktor, AbzinsungsfaktorenDerImmobilienwertermittlungsverordnung) {
    const std::vector<std::string> fuenf{"0,9524", "0,9070", "0,8638", "0,8227", "0,7835",
                                         "0,7462", "0,7107", "0,6768", "0,6446", "0,6139",
                                         "0,5847", "0,5568", "0,5303", "0,5051", "0,4810"};
    EXPECT_EQ(Jahresreihe(Finanzfaktor::AbF, 5, 15, "0.0000"), fuenf);
    const std::vector<std::string> eins{"0,9901", "0,9803", "0,9706", "0,9610", "0,9515",
                                        "0,9420", "0,9327", "0,9235", "0,9143", "0,9053"};
    EXPECT_EQ(Jahresreihe(Finanzfaktor::AbF, 1, 10, "0.0000"), eins);
    EXPECT_EQ(Jahresreihe(Finanzfaktor::AbF, 1, 16, "0.0000").back(), "0,8528");
}

/// BewG, Anlage 21, Vervielfältiger.
TEST(Finanzfaktor, VervielfaeltigerDesBewertungsgesetzes) {
    const std::vector<std::string> drei{"0,97", "1,91", "2,83", "3,72", "4,58", "5,42",
                                        "6,23", "7,02", "7,79", "8,53", "9,25"};
    const std::vector<std::string> fuenf{"0,95", "1,86", "2,72", "3,55", "4,33", "5,08",
                                         "5,79", "6,46", "7,11", "7,72", "8,31"};
    const std::vector<std::string> acht{"0,93", "1,78", "2,58", "3,31", "3,99", "4,62",
                                        "5,21", "5,75", "6,25", "6,71", "7,14"};
    EXPECT_EQ(Jahresreihe(Finanzfaktor::DSF, 3, 11, "0.00"), drei);
    EXPECT_EQ(Jahresreihe(Finanzfaktor::DSF, 5, 11, "0.00"), fuenf);
    EXPECT_EQ(Jahresreihe(Finanzfaktor::DSF, 8, 11, "0.00"), acht);
}

void ErwarteFehler(Finanzfaktor faktor, double prozent, double jahre) {
    EXPECT_THROW(static_cast<void>(Faktorwert({faktor, jaehrlich, vorschuessig}, prozent, jahre)),
                 Rechenfehler);
}

TEST(Finanzfaktor, UeberlaufScheitertAuchWoDasErgebnisWiederKleinWaere) {
    for (const auto faktor : {Finanzfaktor::AuF, Finanzfaktor::AbF, Finanzfaktor::EWF, Finanzfaktor::DSF,
                              Finanzfaktor::KWF, Finanzfaktor::RVF})
        ErwarteFehler(faktor, 10, 7448);
    // 1,1^7447 is 1,7e308 and still a number, and its sum is not.
    EXPECT_GT(Faktorwert({Finanzfaktor::AuF, jaehrlich, nachschuessig}, 10, 7447), 1e308);
    ErwarteFehler(Finanzfaktor::EWF, 10, 7447);
}

TEST(Finanzfaktor, DivisionDurchNullScheitert) {
    // At 0 % there is no P, in year 0 nothing to spread.
    ErwarteFehler(Finanzfaktor::DSF, 0, 10);
    ErwarteFehler(Finanzfaktor::KWF, 5, 0);
    ErwarteFehler(Finanzfaktor::RVF, 5, 0);
    ErwarteFehler(Finanzfaktor::AbF, -100, 10);
    EXPECT_EQ(Faktorwert({Finanzfaktor::AuF, jaehrlich, nachschuessig}, 0, 10), 1);
}

TEST(Finanzfaktor, GebrocheneJahreUnterMinusHundertProzentScheitern) {
    ErwarteFehler(Finanzfaktor::AuF, -150, 0.5);
}

}  // namespace finanzfaktor_test
}  // namespace zinfolio
