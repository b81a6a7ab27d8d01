#include "kern/dateien/selbstwertaufbau.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "kern/dateien/testordner.h"

namespace zinfolio {
namespace selbstwertaufbau_test {

using namespace std::string_literals;
using testing::AllOf;
using testing::Each;
using testing::HasSubstr;
using testing::ThrowsMessage;

enum class Rhythmus : std::int16_t { monatlich, vierteljaehrlich, jaehrlich };

struct Bereich {
    std::string bis;
};

/// One member of each kind.
struct Probeplan {
    std::string betrag = "100";
    std::int16_t jahre = 7;
    bool vorschuss = true;
    Rhythmus rhythmus = Rhythmus::jaehrlich;
    std::optional<std::string> notiz = "da";
    Selbstwert vorgabe = std::int16_t{10};
    std::array<std::string, 3> daten{"a", "b", "c"};
    Bereich bereich;

    friend bool operator==(const Probeplan&, const Probeplan&);
};

bool operator==(const Probeplan& a, const Probeplan& b) {
    return a.betrag == b.betrag && a.jahre == b.jahre && a.vorschuss == b.vorschuss &&
           a.rhythmus == b.rhythmus && a.notiz == b.notiz && a.vorgabe == b.vorgabe && a.daten == b.daten &&
           a.bereich.bis == b.bereich.bis;
}

constexpr auto bereichsende = [](auto& plan) -> auto& {
    return plan.bereich.bis;
};

constexpr std::array planzeilen{
    Selbstfeld<&Probeplan::betrag>(1),    Selbstfeld<&Probeplan::jahre>(2),
    Selbstfeld<&Probeplan::vorschuss>(3), Selbstfeld<&Probeplan::rhythmus>(5, {.eintraege = 3, .sonst = 1}),
    Selbstfeld<&Probeplan::notiz>(6),     Selbstfeld<&Probeplan::vorgabe>(7),
    Selbstfeld<&Probeplan::daten>(8),     Selbstfeld<bereichsende, Probeplan>(11, {.sonst = "%"}),
};
constexpr Selbstwertaufbau<Probeplan> plandatei{8, planzeilen};

/// A record of 8 bytes.
std::string Satz(const std::string& anfang) {
    return anfang + std::string(8 - anfang.size(), '\0');
}

const std::string bytes = Satz("\x08\0\x02\0"s + "12") + Satz("\x02\0\x05\0"s) + Satz("\x02\0\0\0"s) +
                          Satz("") + Satz("\x02\0\0\0"s) + Satz("\x08\0\x01\0n"s) +
                          Satz("\x08\0\x03\0\x37,5"s) + Satz("\x08\0\x01\0x"s) + Satz("\x08\0\x01\0y"s) +
                          Satz("\x08\0\0\0"s) + Satz("\x08\0\x01\0\x80"s);

Probeplan Probe() {
    return {.betrag = "12",
            .jahre = 5,
            .vorschuss = false,
            .rhythmus = Rhythmus::monatlich,
            .notiz = "n",
            .vorgabe = "7,5"s,
            .daten = {"x", "y", ""},
            .bereich = {"€"}};
}

class SelbstwertaufbauTest : public testing::Test {
  protected:
    Testordner ordner;
    const std::filesystem::path datei = ordner.Pfad() / "Plan 1";

    [[nodiscard]] Probeplan Gelesen(const std::string& inhalt) const {
        ordner.Ablegen("Plan 1", inhalt);
        return plandatei.Lesen(datei);
    }
};

TEST_F(SelbstwertaufbauTest, SchreibtJedesMitgliedInSeinenSatz) {
    plandatei.Schreiben(datei, Probe());
    EXPECT_EQ(ordner.Inhalt("Plan 1"), bytes);
}

TEST_F(SelbstwertaufbauTest, LiestZurueckWasEsSchrieb) {
    EXPECT_EQ(Gelesen(bytes), Probe());
}

TEST_F(SelbstwertaufbauTest, FehlendeDateiGibtDieWerteEinerNeuenMitIhrenVorgabenUndEntstehtNicht) {
    const Probeplan plan = plandatei.Lesen(datei);
    Probeplan erwartet;
    erwartet.rhythmus = Rhythmus::vierteljaehrlich;
    erwartet.bereich.bis = "%";
    EXPECT_EQ(plan, erwartet);
    EXPECT_THAT(ordner.Namen(), testing::IsEmpty());
}

TEST_F(SelbstwertaufbauTest, LeererSatzLaesstStehenWasDaWar) {
    Probeplan vorher;
    vorher.betrag = "stand schon da";
    ordner.Ablegen("Plan 1", Satz("") + bytes.substr(8));
    EXPECT_EQ(plandatei.Lesen(datei, vorher).betrag, "stand schon da");
}

TEST_F(SelbstwertaufbauTest, FehlendeSaetzeAmEndeHabenIhreVorgabe) {
    const Probeplan plan = Gelesen(bytes.substr(0, 8UL * 8));
    EXPECT_EQ(plan.daten, (std::array<std::string, 3>{"x", "b", "c"}));
    EXPECT_EQ(plan.bereich.bis, "%");
}

TEST_F(SelbstwertaufbauTest, LetzterWertZaehltAuchOhneRestSeinesSatzes) {
    EXPECT_EQ(Gelesen(bytes.substr(0, 10UL * 8 + 5)), Probe());
    EXPECT_EQ(Gelesen(bytes.substr(0, 10UL * 8 + 4)).bereich.bis, "%");
}

TEST_F(SelbstwertaufbauTest, LeeresWahlfreiesMitgliedIstEinLeererSatz) {
    Probeplan plan = Probe();
    plan.notiz.reset();
    plan.vorgabe = {};
    plandatei.Schreiben(datei, plan);
    EXPECT_EQ(ordner.Inhalt("Plan 1").substr(5UL * 8, 16), Satz("") + Satz(""));
}

struct Falsch {
    std::size_t satz;
    std::string anfang;
    std::string grund;
};

TEST_F(SelbstwertaufbauTest, FalscherWertNenntDateiUndSatz) {
    for (const Falsch& falsch : {
             Falsch{1, "\x02\0\x05\0"s, "Der Satz hält einen Wert der falschen Art."},
             Falsch{2, "\x08\0\x01\0\x35"s, "Der Satz hält einen Wert der falschen Art."},
             Falsch{3, "\x02\0\x02\0"s, "Die Liste hat keinen Eintrag 2."},
             Falsch{5, "\x02\0\x03\0"s, "Die Liste hat keinen Eintrag 3."},
             Falsch{5, "\x02\0\xFF\xFF"s, "Die Liste hat keinen Eintrag -1."},
             Falsch{9, "\x03\0\x01\0"s, "Unbekannte Typkennung 3."},
             Falsch{10, "\x08\0\x05\0"s, "Der Text braucht 9 Bytes, der Satz hat 8."},
         }) {
        std::string inhalt = bytes;
        inhalt.replace((falsch.satz - 1) * 8, 8, Satz(falsch.anfang));
        EXPECT_THAT([&] { (void)Gelesen(inhalt); },
                    ThrowsMessage<Dateifehler>("Datei \"" + datei.string() + "\", Satz " +
                                               std::to_string(falsch.satz) + ": " + falsch.grund));
    }
}

TEST_F(SelbstwertaufbauTest, ZuLangerTextNenntDenSatzUndLaesstDieAlteDateiStehen) {
    plandatei.Schreiben(datei, Probe());
    Probeplan plan = Probe();
    plan.daten[1] = "12345";
    EXPECT_THAT([&] { plandatei.Schreiben(datei, plan); },
                ThrowsMessage<Dateifehler>(AllOf(HasSubstr("Satz 9"), HasSubstr("9 Bytes, der Satz hat 8"))));
    EXPECT_EQ(ordner.Inhalt("Plan 1"), bytes);
}

TEST_F(SelbstwertaufbauTest, VielZuGrosseDateiIstEinFehler) {
    ordner.Ablegen("Plan 1", bytes);
    std::filesystem::resize_file(datei, std::uintmax_t{32768} * 8);
    EXPECT_THAT([&] { (void)plandatei.Lesen(datei); }, ThrowsMessage<Dateifehler>(HasSubstr("ist zu groß")));
}

/// Names without type tag, and a bare integer behind them.
struct Verzeichnis {
    std::array<std::string, 100> namen;
    std::int16_t aktuell = 0;
};

constexpr std::array verzeichniszeilen{
    Barfeld<&Verzeichnis::namen>(1),
    Barfeld<&Verzeichnis::aktuell>(101, {.eintraege = 100}),
};
constexpr Selbstwertaufbau<Verzeichnis> verzeichnisdatei{500, verzeichniszeilen};

TEST_F(SelbstwertaufbauTest, VerzeichnisHatNamenOhneKennungUndDahinterEineBareZahl) {
    Verzeichnis verzeichnis;
    verzeichnis.namen[0] = "Käthe";
    verzeichnis.namen[99] = "z";
    verzeichnis.aktuell = 99;
    verzeichnisdatei.Schreiben(datei, verzeichnis);
    const std::string inhalt = ordner.Inhalt("Plan 1");
    EXPECT_EQ(inhalt.size(), 101U * 500);
    EXPECT_EQ(inhalt.substr(0, 8), "\x05\0K\xE4the\0"s);
    EXPECT_EQ(inhalt.substr(99UL * 500, 4), "\x01\0z\0"s);
    EXPECT_EQ(inhalt.substr(100UL * 500, 4), "\x63\0\0\0"s);
    const Verzeichnis gelesen = verzeichnisdatei.Lesen(datei);
    EXPECT_EQ(gelesen.namen, verzeichnis.namen);
    EXPECT_EQ(gelesen.aktuell, 99);
}

TEST_F(SelbstwertaufbauTest, VerzeichnisDasMitSeinerZahlEndetZaehltGanz) {
    ordner.Ablegen("Plan 1", std::string(100UL * 500, '\0') + "\x07\0"s);
    EXPECT_EQ(verzeichnisdatei.Lesen(datei).aktuell, 7);
    EXPECT_THAT(verzeichnisdatei.Lesen(datei).namen, Each(""));
}

TEST_F(SelbstwertaufbauTest, LeeresVerzeichnisHatLeereNamenUndDenErstenPlan) {
    ordner.Ablegen("Plan 1", "");
    EXPECT_EQ(verzeichnisdatei.Lesen(datei).aktuell, 0);
    EXPECT_THAT(verzeichnisdatei.Lesen(datei).namen, Each(""));
}

}  // namespace selbstwertaufbau_test
}  // namespace zinfolio
