#include "kern/tabellen/kurzdatei.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "kern/dateien/dateifehler.h"
#include "kern/dateien/testordner.h"

namespace zinfolio {
namespace kurzdatei_test {

using namespace std::string_literals;

std::string Satz(const std::string& anfang) {
    return anfang + std::string(100 - anfang.size(), '\0');
}
std::string Zahlsatz(char zahl) {
    return Satz("\x02\0"s + zahl);
}
std::string Textsatz(const std::string& text) {
    return Satz("\x08\0"s + static_cast<char>(text.size()) + '\0' + text);
}
const std::string leersatz = Satz("");

/// rate 1, jahre 2, tage 3, zins 4, kapital 5, endwert 6.
const Kurzeingabe eingabe{.texte = {"1", "2", "3", "4", "5", "6"}, .m = 4, .Zahlungsmodus = 2};

std::string Geschrieben(Kurzform form, const char* name) {
    const Testordner ordner;
    KurzeingabeSchreiben(ordner.Pfad(), KurzrechnerVon(form), eingabe);
    return ordner.Inhalt(name);
}

std::string Saetze(std::initializer_list<const char*> texte) {
    std::string inhalt;
    for (const char* text : texte)
        inhalt += *text == '\0' ? leersatz : Textsatz(text);
    return inhalt + Zahlsatz(4) + Zahlsatz(2);
}

TEST(Kurzdatei, JedeFormHatIhreDateiUndIhreSaetze) {
    EXPECT_EQ(Geschrieben(Kurzform::Form4b, "Vendwert"), Saetze({"1", "2", "3", "4", "5"}));
    EXPECT_EQ(Geschrieben(Kurzform::Form5b, "rate"), Saetze({"6", "2", "3", "4", "5"}));
    EXPECT_EQ(Geschrieben(Kurzform::Form7b, "Effzins"), Saetze({"6", "2", "3", "1", "5"}));
    EXPECT_EQ(Geschrieben(Kurzform::Form8b, "Laufzeit"), Saetze({"6", "4", "", "1", "5"}));
}

Kurzeingabe Gelesen(Kurzform form, const char* name, const std::string& inhalt) {
    const Testordner ordner;
    ordner.Ablegen(name, inhalt);
    return KurzeingabeLesen(ordner.Pfad(), KurzrechnerVon(form));
}

TEST(Kurzdatei, KommtZurueckOhneDieErgebnisse) {
    Kurzeingabe erwartet = eingabe;
    erwartet[Kurzgroesse::endwert].clear();
    EXPECT_EQ(Gelesen(Kurzform::Form4b, "Vendwert", Saetze({"1", "2", "3", "4", "5"})), erwartet);
    erwartet = eingabe;
    erwartet[Kurzgroesse::jahre].clear();
    erwartet[Kurzgroesse::tage].clear();
    EXPECT_EQ(Gelesen(Kurzform::Form8b, "Laufzeit", Saetze({"6", "4", "", "1", "5"})), erwartet);
}

TEST(Kurzdatei, FehltSieSindDieFelderLeerUndEsWirdMonatlichSofortGezahlt) {
    const Testordner ordner;
    EXPECT_EQ(KurzeingabeLesen(ordner.Pfad(), KurzrechnerVon(Kurzform::Form7b)), Kurzeingabe{});
    EXPECT_EQ(Kurzeingabe{}.m, 12);
    EXPECT_EQ(Kurzeingabe{}.Zahlungsmodus, 1);
    EXPECT_TRUE(std::filesystem::is_empty(ordner.Pfad()));
}

TEST(Kurzdatei, DerLetzteSatzDarfMitSeinemWertEnden) {
    std::string inhalt = Saetze({"1", "2", "3", "4", "5"});
    inhalt.resize(6 * 100 + 4);
    EXPECT_EQ(Gelesen(Kurzform::Form4b, "Vendwert", inhalt).Zahlungsmodus, 2);
}

TEST(Kurzdatei, EineAuswahlDieEsNichtGibtUndEineFalscheArtSindEinSchaden) {
    const std::string anfang = Saetze({"1", "2", "3", "4", "5"}).substr(0, 500);
    EXPECT_THROW(Gelesen(Kurzform::Form4b, "Vendwert", anfang + Zahlsatz(5)), Dateifehler);
    EXPECT_THROW(Gelesen(Kurzform::Form4b, "Vendwert", anfang + Zahlsatz(12) + Zahlsatz(3)), Dateifehler);
    EXPECT_THROW(Gelesen(Kurzform::Form4b, "Vendwert", Zahlsatz(1)), Dateifehler);
}

}  // namespace kurzdatei_test
}  // namespace zinfolio
