#include "kern/tabellen/fintabellen.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "kern/dateien/dateifehler.h"
#include "kern/dateien/testordner.h"

namespace zinfolio {
namespace fintabellen_test {

using namespace std::string_literals;

constexpr auto datei = "Fintabellen";

std::string Satz(const std::string& anfang) {
    return anfang + std::string(300 - anfang.size(), '\0');
}
std::string Zahlsatz(char zahl) {
    return Satz("\x02\0"s + zahl);
}
std::string Textsatz(const std::string& text) {
    return Satz("\x08\0"s + static_cast<char>(text.size()) + '\0' + text);
}

const Fintabellen eingabe{
    {{Finanzfaktor::KWF, Rentenrhythmus::vierteljaehrlich, Rentenfaelligkeit::vorschuessig},
     Schrittweite::halb,
     "3,5",
     "6",
     "1",
     "30"},
    {{Finanzfaktor::AuF, Rentenrhythmus::jaehrlich, Rentenfaelligkeit::nachschuessig},
     "4,25",
     "15",
     "12000"}};

const std::string inhalt = Zahlsatz(4) + Zahlsatz(4) + Textsatz("3,5") + Textsatz("6") + Textsatz("1") +
                           Textsatz("30") + Zahlsatz(2) + Zahlsatz(1) + Textsatz("4,25") + Textsatz("15") +
                           Textsatz("12000") + Zahlsatz(5) + Zahlsatz(0);

TEST(FintabellenDatei, Hat13SaetzeMit300Bytes) {
    const Testordner ordner;
    FintabellenSchreiben(ordner.Pfad(), eingabe);
    EXPECT_EQ(ordner.Inhalt(datei), inhalt);
}

TEST(FintabellenDatei, KommtZurueckWieGeschrieben) {
    const Testordner ordner;
    ordner.Ablegen(datei, inhalt);
    EXPECT_EQ(FintabellenLesen(ordner.Pfad()), eingabe);
}

TEST(FintabellenDatei, DerFaktorDerEinzelrechnungWirdNichtAufgehoben) {
    const Testordner ordner;
    Fintabellen andere = eingabe;
    andere.einzeln.wahl.faktor = Finanzfaktor::RVF;
    FintabellenSchreiben(ordner.Pfad(), andere);
    EXPECT_EQ(FintabellenLesen(ordner.Pfad()), eingabe);
}

TEST(FintabellenDatei, FehltSieGeltenDieVorgaben) {
    const Testordner ordner;
    EXPECT_EQ(FintabellenLesen(ordner.Pfad()), Fintabellen{});
    EXPECT_FALSE(std::filesystem::exists(ordner.Pfad() / datei));
}

TEST(FintabellenDatei, DerLetzteWertDarfMitSeinenBytesEnden) {
    const Testordner ordner;
    ordner.Ablegen(datei, inhalt.substr(0, 12 * 300 + 4));
    EXPECT_EQ(FintabellenLesen(ordner.Pfad()), eingabe);
}

TEST(FintabellenDatei, EinAbgeschnittenerRestLaesstDieVorgabenStehen) {
    const Testordner ordner;
    ordner.Ablegen(datei, inhalt.substr(0, 4 * 300));
    const Fintabellen gelesen = FintabellenLesen(ordner.Pfad());
    EXPECT_EQ(gelesen.tabelle.Pro2, "6");
    EXPECT_EQ(gelesen.tabelle.J1, "");
    EXPECT_EQ(gelesen.einzeln, Einzelfaktoreingabe{});
}

TEST(FintabellenDatei, EinIndexDenDieListeNichtHatWirdMitSatzGenannt) {
    const Testordner ordner;
    ordner.Ablegen(datei, Zahlsatz(0) + Zahlsatz(6));
    EXPECT_THROW(static_cast<void>(FintabellenLesen(ordner.Pfad())), Dateifehler);
    ordner.Ablegen(datei, Textsatz("0"));
    EXPECT_THROW(static_cast<void>(FintabellenLesen(ordner.Pfad())), Dateifehler);
}

}  // namespace fintabellen_test
}  // namespace zinfolio
