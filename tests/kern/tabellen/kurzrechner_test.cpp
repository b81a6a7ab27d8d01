#include "kern/tabellen/kurzrechner.h"

#include <gtest/gtest.h>
#include <set>

namespace zinfolio {
namespace kurzrechner_test {

using enum Kurzgroesse;

Kurzeingabe Eingabe(Kurzform form, std::initializer_list<std::string> texte) {
    Kurzeingabe eingabe{.texte = {}, .m = 1, .Zahlungsmodus = zahlungsmodus::sofort};
    const Kurzrechner& rechner = KurzrechnerVon(form);
    std::size_t i = 0;
    for (const std::string& text : texte)
        eingabe[rechner.felder.at(i++).groesse] = text;
    return eingabe;
}

/// The texts of the form after the calculation, in its order; the first is the message of a refusal.
std::vector<std::string> Gerechnet(Kurzform form, Kurzeingabe eingabe) {
    const Kurzrechner& rechner = KurzrechnerVon(form);
    const auto ablehnung = KurzRechnen(rechner, eingabe);
    std::vector<std::string> texte{ablehnung ? "Abgelehnt: " + ablehnung->Meldung : ""};
    for (const Kurzfeld& feld : rechner.felder)
        texte.push_back(eingabe[feld.groesse]);
    return texte;
}

using Texte = std::vector<std::string>;

TEST(Kurzrechner, JedeFormHatJedeGroesseGenauEinmal) {
    for (const Kurzrechner& rechner : AlleKurzrechner()) {
        std::set<Kurzgroesse> groessen;
        for (const Kurzfeld& feld : rechner.felder)
            groessen.insert(feld.groesse);
        EXPECT_EQ(groessen.size(), kurzgroessen) << rechner.name;
        EXPECT_EQ(&KurzrechnerVon(rechner.form), &rechner);
    }
}

TEST(Kurzrechner, Beschriftungen) {
    EXPECT_EQ(Kurzbeschriftung(rate), "Höhe einer Zahlungsrate");
    EXPECT_EQ(Kurzbeschriftung(tage), "und Laufzeit in Tagen ");
    EXPECT_EQ(Kurzbeschriftung(zins), "Verzinsung der Anlage in %");
    EXPECT_EQ(Kurzbeschriftung(endwert), "Vermögensendwert");
}

/// By hand: 100 in advance for two years at 10 %.
TEST(Kurzrechner, EndkapitalFasstTageZuJahrenZusammen) {
    EXPECT_EQ(Gerechnet(Kurzform::Form4b, Eingabe(Kurzform::Form4b, {"100", "1", "360", "10", ""})),
              (Texte{"", "100,00", "2,00", "0,00", "10,00", "0,00", "231,00"}));
}

TEST(Kurzrechner, EinZweitesBerechnenLiestWasDasErsteZeigt) {
    Kurzeingabe eingabe = Eingabe(Kurzform::Form4b, {"1000", "2", "40", "10", "5000"});
    ASSERT_EQ(KurzRechnen(KurzrechnerVon(Kurzform::Form4b), eingabe), std::nullopt);
    const Kurzeingabe erste = eingabe;
    ASSERT_EQ(KurzRechnen(KurzrechnerVon(Kurzform::Form4b), eingabe), std::nullopt);
    EXPECT_EQ(eingabe, erste);
    EXPECT_EQ(eingabe[kapital], "5.000,00");
}

TEST(Kurzrechner, RenditeZeigtEinProzentzeichen) {
    EXPECT_EQ(Gerechnet(Kurzform::Form7b, Eingabe(Kurzform::Form7b, {"1120", "1", "0", "0", "1000"})),
              (Texte{"", "1.120,00", "1,00", "0,00", "0,00", "1.000,00", "12,00%"}));
}

TEST(Kurzrechner, AndereZeigenDenZinsOhneZeichen) {
    EXPECT_EQ(
        Gerechnet(Kurzform::Form8b, Eingabe(Kurzform::Form8b, {"1050", "5", "0", "1000", "alt", "alt"})),
        (Texte{"", "1.050,00", "5,00", "0,00", "1.000,00", "1,00", "0,00"}));
}

TEST(Kurzrechner, AnspardauerOhneRateUndZielIstNull) {
    EXPECT_EQ(Gerechnet(Kurzform::Form8b, Eingabe(Kurzform::Form8b, {"", "5", "", "1000", "7", "8"})),
              (Texte{"", "0,00", "5,00", "0,00", "1.000,00", "0,00", "0,00"}));
}

TEST(Kurzrechner, GetippteBruchteileVonJahrenRundenZurGeradenZahl) {
    const auto jahreBei = [](const std::string& text) {
        return Gerechnet(Kurzform::Form4b, Eingabe(Kurzform::Form4b, {"0", text, "0", "0", "1"}))[2];
    };
    EXPECT_EQ(jahreBei("2,5"), "2,00");
    EXPECT_EQ(jahreBei("3,5"), "4,00");
    EXPECT_EQ(jahreBei("2,6"), "3,00");
}

TEST(Kurzrechner, AblehnungenDerRenditeInIhrerReihenfolge) {
    EXPECT_EQ(Gerechnet(Kurzform::Form7b, Eingabe(Kurzform::Form7b, {"", "", "", "", ""})),
              (Texte{"Abgelehnt: Die Laufzeit in Jahren oder Tagen muss grösser als 0 sein.", "0", "0", "0",
                     "0", "0", ""}));
    EXPECT_EQ(Gerechnet(Kurzform::Form7b, Eingabe(Kurzform::Form7b, {"1", "", "1", "0", "0", "alt"})),
              (Texte{"Abgelehnt: Das Anfangsvermögen oder die Sparrate müssen grösser als 0 sein.", "1", "0",
                     "1", "0", "0", "alt"}));
}

TEST(Kurzrechner, FehlerEndenStillUndLassenDasErgebnisStehen) {
    const auto bei = [](const std::string& jahr) {
        return Gerechnet(Kurzform::Form4b, Eingabe(Kurzform::Form4b, {"1", jahr, "", "10", "0", "alt"}));
    };
    EXPECT_EQ(bei("zwei"), (Texte{"Abgelehnt: ", "1", "zwei", "0", "10", "0", "alt"}));
    EXPECT_EQ(bei("40000"), (Texte{"Abgelehnt: ", "1", "40000", "0", "10", "0", "alt"}));
    EXPECT_EQ(bei("9000"), (Texte{"Abgelehnt: ", "1", "9000", "0", "10", "0", "alt"}));
}

}  // namespace kurzrechner_test
}  // namespace zinfolio
