#include "kern/dateien/dateigruppe.h"

#include <atomic>
#include <cerrno>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <thread>

#include "kern/dateien/dateifehler.h"
#include "kern/dateien/imspeicher.h"
#include "kern/dateien/sicherungsjournal.h"
#include "kern/dateien/sperre.h"
#include "kern/dateien/stoerung.h"
#include "kern/dateien/testordner.h"

namespace zinfolio {
namespace dateigruppe_test {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::ThrowsMessage;

constexpr std::array<Beidatei, 2> reihenbeidateien{Beidatei{"ZahlungenT", ""}, Beidatei{"", "Rendite"}};
constexpr Gruppenaufbau reihenaufbau{".RRR", reihenbeidateien};

class DateigruppeTest : public testing::Test {
  protected:
    Testordner ordner;
    const fs::path reihe = ordner.Pfad() / "Öl.RRR";
    const Dateigruppe gruppe{reihe, reihenaufbau};

    void Speichern(std::string_view a, std::string_view b, std::string_view c) const {
        gruppe.Speichern(std::array{a, b, c}, Sicherung::Fluechtig);
    }
};

TEST_F(DateigruppeTest, BeidateienHabenIhrenTeilVorOderHinterDemNamen) {
    EXPECT_EQ(gruppe.Datei(0), reihe);
    EXPECT_EQ(gruppe.Datei(1), ordner.Pfad() / "ZahlungenTÖl");
    EXPECT_EQ(gruppe.Datei(2), ordner.Pfad() / "ÖlRendite");
}

TEST_F(DateigruppeTest, KommtZurueckWieGespeichertUndLaesstNichtsLiegen) {
    Speichern("1", "", "3");
    Speichern("eins", "zwei", "");
    EXPECT_THAT(gruppe.Lesen(), ElementsAre("eins", "zwei", ""));
    EXPECT_THAT(ordner.Namen(), ElementsAre("ZahlungenTÖl", "Öl.RRR", "ÖlRendite"));
}

TEST_F(DateigruppeTest, FehlendeDateiIstEinFehlerDieHauptdateiZuerst) {
    EXPECT_THAT([this] { (void)gruppe.Lesen(); },
                ThrowsMessage<Dateifehler>(HasSubstr("/Öl.RRR\" kann nicht")));
    ordner.Ablegen("Öl.RRR", "");
    EXPECT_THAT([this] { (void)gruppe.Lesen(); },
                ThrowsMessage<Dateifehler>(HasSubstr("/ZahlungenTÖl\" kann nicht")));
}

TEST_F(DateigruppeTest, WasFehlenDarfIstLeer) {
    const Dateigruppe plan(
        {{ordner.Pfad() / "VEWertneu 1", true}, {ordner.Pfad() / "VEWertDatenneuR 0", true}});
    EXPECT_THAT(plan.Lesen(), ElementsAre("", ""));
    EXPECT_THAT(ordner.Namen(), IsEmpty());
}

TEST_F(DateigruppeTest, NeuerInhaltBehaeltDieRechte) {
    Speichern("1", "2", "3");
    ASSERT_EQ(::chmod(reihe.c_str(), 0640), 0);
    Speichern("4", "5", "6");
    EXPECT_EQ(fs::status(reihe).permissions(), fs::perms(0640));
}

TEST_F(DateigruppeTest, VerweiseBleibenUndIhreZieleWerdenErsetzt) {
    const Testordner anderswo;
    anderswo.Ablegen("Ziel", "alt");
    fs::create_symlink(anderswo.Pfad() / "Ziel", ordner.Pfad() / "ZahlungenTÖl");
    Speichern("1", "neu", "3");
    EXPECT_TRUE(fs::is_symlink(ordner.Pfad() / "ZahlungenTÖl"));
    EXPECT_EQ(anderswo.Inhalt("Ziel"), "neu");
    EXPECT_THAT(anderswo.Namen(), ElementsAre("Ziel"));
}

TEST_F(DateigruppeTest, OhneSperrenDesDateisystemsWirdTrotzdemGespeichert) {
    for (const int fehlernummer : {ENOLCK, EOPNOTSUPP, ENOSYS, EINVAL}) {
        const OhneSperren ohne(fehlernummer);
        EXPECT_EQ(Sperre(ordner.Pfad()).Stand(), Sperre::Zustand::unmoeglich);
        const std::string wert = std::to_string(fehlernummer);
        Speichern(wert, "2", "3");
        EXPECT_THAT(gruppe.Lesen(), ElementsAre(wert, "2", "3"));
        EXPECT_THAT(ordner.Namen(), ElementsAre("ZahlungenTÖl", "Öl.RRR", "ÖlRendite"));
    }
}

TEST_F(DateigruppeTest, SperreDieScheitertIstEinFehlerMitGrund) {
    const OhneSperren ohne(EIO);
    EXPECT_THAT([this] { Speichern("1", "2", "3"); },
                ThrowsMessage<Dateifehler>(HasSubstr("Fehler bei der Ein- oder Ausgabe.")));
    EXPECT_THAT(ordner.Namen(), IsEmpty());
}

/// A save that died between its renames: the first file is new, the second old; the third is new where there
/// was none.
class GestorbenesSpeichernTest : public DateigruppeTest {
  protected:
    void SetUp() override {
        ordner.Ablegen("Öl.RRR", "neu 0");
        ordner.Ablegen("ZahlungenTÖl", "alt 1");
        ordner.Ablegen("ÖlRendite", "neu 2");
        ordner.Ablegen(".zinfolio-1-1-1-0.alt", "alt 0");
        ordner.Ablegen(".zinfolio-1-1-1-1.alt", "alt 1");
        Ablegen({{"Öl.RRR", Inhaltskennung("neu 0"), true},
                 {"ZahlungenTÖl", Inhaltskennung("neu 1"), true},
                 {"ÖlRendite", Inhaltskennung("neu 2"), false}});
    }
    void Ablegen(const std::vector<Journaleintrag>& eintraege) const {
        ordner.Ablegen(Journalpfad(gruppe.Datei(1)).filename().string(),
                       Journalbytes(".zinfolio-1-1-1", eintraege));
    }
    const Dateigruppe ohneDritte{
        {{reihe}, {ordner.Pfad() / "ZahlungenTÖl"}, {ordner.Pfad() / "ÖlRendite", true}}};
};

TEST_F(GestorbenesSpeichernTest, WerOeffnetStelltDasAlteWiederHer) {
    EXPECT_THAT(ohneDritte.Lesen(), ElementsAre("alt 0", "alt 1", ""));
    EXPECT_THAT(ordner.Namen(), ElementsAre("ZahlungenTÖl", "Öl.RRR"));
    EXPECT_EQ(ordner.Inhalt("Öl.RRR"), "alt 0");
}

TEST_F(GestorbenesSpeichernTest, SolangeJemandSpeichertWirdNurHindurchgelesen) {
    const Sperre anderer(ordner.Pfad());
    const auto vorher = ordner.Namen();
    EXPECT_THAT(ohneDritte.Lesen(), ElementsAre("alt 0", "alt 1", ""));
    EXPECT_EQ(ordner.Namen(), vorher);
}

TEST_F(GestorbenesSpeichernTest, SpeichernBringtErstDasAlteInOrdnung) {
    Speichern("a", "b", "c");
    EXPECT_THAT(gruppe.Lesen(), ElementsAre("a", "b", "c"));
    EXPECT_THAT(ordner.Namen(), ElementsAre("ZahlungenTÖl", "Öl.RRR", "ÖlRendite"));
}

TEST_F(GestorbenesSpeichernTest, OhneSperrenWirdHindurchgelesenUndDasNaechsteSpeichernGelingt) {
    const OhneSperren ohne(ENOLCK);
    EXPECT_THAT(ohneDritte.Lesen(), ElementsAre("alt 0", "alt 1", ""));
    Speichern("a", "b", "c");
    EXPECT_THAT(gruppe.Lesen(), ElementsAre("a", "b", "c"));
    EXPECT_THAT(ordner.Namen(), ElementsAre("ZahlungenTÖl", "Öl.RRR", "ÖlRendite"));
}

TEST_F(GestorbenesSpeichernTest, WasSeitherErsetztWurdeBleibt) {
    ordner.Ablegen("Öl.RRR", "von anderswo");
    EXPECT_THAT(ohneDritte.Lesen(), ElementsAre("von anderswo", "alt 1", ""));
}

TEST_F(GestorbenesSpeichernTest, AnderesProjektMitDenselbenBeidateienLiestSieAlt) {
    ordner.Ablegen("Öl.rrr", "klein");
    const Dateigruppe klein({{ordner.Pfad() / "Öl.rrr"}, {ordner.Pfad() / "ZahlungenTÖl"}});
    EXPECT_THAT(klein.Lesen(), ElementsAre("klein", "alt 1"));
    EXPECT_EQ(ordner.Inhalt("Öl.RRR"), "alt 0");
}

TEST_F(GestorbenesSpeichernTest, JournalUeberFremdeNamenGiltNicht) {
    ordner.Ablegen("unten", "");
    for (const char* name : {"../unten", "", ".", "..", ".zinfolio-1-1-1-0.alt"}) {
        Ablegen({{name, Inhaltskennung(""), false}});
        EXPECT_EQ(JournalLesen(Journalpfad(gruppe.Datei(1))).has_value(), false) << name;
    }
}

TEST_F(GestorbenesSpeichernTest, UnfertigesOderFremdesJournalGiltNicht) {
    const fs::path pfad = Journalpfad(gruppe.Datei(1));
    const std::string ganz = ordner.Inhalt(pfad.filename().string());
    ASSERT_TRUE(JournalLesen(pfad).has_value());
    for (std::size_t laenge = 0; laenge < ganz.size(); ++laenge) {
        ordner.Ablegen(pfad.filename().string(), ganz.substr(0, laenge));
        EXPECT_FALSE(JournalLesen(pfad).has_value()) << laenge;
    }
    fs::remove(pfad);
    fs::create_directory(pfad);
    EXPECT_FALSE(JournalLesen(pfad).has_value());
}

TEST_F(DateigruppeTest, VerwaisteVorlaeufigeWerdenBeimNaechstenSpeichernEntfernt) {
    // No process has number 999 999 999, and this one did not write the second at the moment 1.
    const std::string eigene = ".zinfolio-" + std::to_string(::getpid()) + "-1-1.neu";
    const std::string lebende = ".zinfolio-" + std::to_string(::getppid()) + "-1-1.neu";
    for (const std::string& name :
         {std::string(".zinfolio-999999999-1.neu"), std::string(".zinfolio-999999999-1-1-2.alt"), eigene,
          lebende, std::string(".zinfolio-Notizen")})
        ordner.Ablegen(name, "x");
    Speichern("1", "2", "3");
    EXPECT_THAT(ordner.Namen(), testing::UnorderedElementsAre(lebende, ".zinfolio-Notizen", "ZahlungenTÖl",
                                                              "Öl.RRR", "ÖlRendite"));
}

TEST_F(DateigruppeTest, AufraeumenBringtEinenOrdnerInOrdnungUndScheitertNie) {
    ordner.Ablegen(".zinfolio-999999999-1.neu", "x");
    OrdnerAufraeumen(ordner.Pfad());
    EXPECT_THAT(ordner.Namen(), IsEmpty());
    OrdnerAufraeumen(ordner.Pfad() / "fehlt");
    OrdnerAufraeumen(ordner.Ablegen("Datei", ""));
}

// Each save writes one number into all files: a reader that sees two numbers has seen a mixture.
TEST_F(DateigruppeTest, LeserNebenLaufendemSpeichernSiehtNieEinGemisch) {
    const ImSpeicher imSpeicher;
    const Testordner speicher;
    const Dateigruppe laufende(speicher.Pfad() / "x.RRR", reihenaufbau);
    const auto sichern = [&](int zahl) {
        const std::string inhalt = std::to_string(zahl);
        laufende.Speichern(std::array<std::string_view, 3>{inhalt, inhalt, inhalt}, Sicherung::Fluechtig);
    };
    sichern(0);
    std::atomic<bool> fertig = false;
    std::jthread schreiber([&] {
        for (int zahl = 1; zahl <= 300; ++zahl)
            sichern(zahl);
        fertig = true;
    });
    int gesehen = 0;
    for (std::string letzte; !fertig;) {
        const auto inhalte = laufende.Lesen();
        ASSERT_EQ(inhalte[0], inhalte[1]);
        ASSERT_EQ(inhalte[0], inhalte[2]);
        gesehen += std::exchange(letzte, inhalte[0]) != inhalte[0] ? 1 : 0;
    }
    EXPECT_GT(gesehen, 1);
    schreiber.join();
    EXPECT_THAT(laufende.Lesen(), ElementsAre("300", "300", "300"));
}

TEST_F(DateigruppeTest, ProjektDessenEndungSichNurInDerGrossschreibungUnterscheidetWirdGenannt) {
    Speichern("1", "2", "3");
    const fs::path klein = ordner.Pfad() / "Öl.rrr";
    const Fremdbestand fremd = FremdbestandSuchen(klein, reihenaufbau);
    EXPECT_THAT(fremd.projekte, ElementsAre(reihe));
    EXPECT_THAT(fremd.beidateien, IsEmpty());
    EXPECT_EQ(
        Ersetzungsfrage(klein, reihenaufbau),
        "\"Öl.rrr\" teilt seine übrigen Dateien mit \"Öl.RRR\". Das Speichern ersetzt sie dort. Trotzdem "
        "speichern ?");
}

TEST_F(DateigruppeTest, BeidateienOhneIhrProjektWerdenGenannt) {
    Speichern("1", "2", "3");
    fs::remove(reihe);
    EXPECT_THAT(FremdbestandSuchen(reihe, reihenaufbau).beidateien,
                ElementsAre(ordner.Pfad() / "ZahlungenTÖl", ordner.Pfad() / "ÖlRendite"));
    EXPECT_THAT(Ersetzungsfrage(reihe, reihenaufbau).value_or(""),
                HasSubstr("\"ZahlungenTÖl\", \"ÖlRendite\""));
}

TEST_F(DateigruppeTest, EigenesProjektUndFreierNameFragenNicht) {
    EXPECT_EQ(Ersetzungsfrage(reihe, reihenaufbau), std::nullopt);
    Speichern("1", "2", "3");
    ordner.Ablegen("Öl.pdf", "");
    ordner.Ablegen("Öl.RRR.RRR", "");
    EXPECT_EQ(Ersetzungsfrage(reihe, reihenaufbau), std::nullopt);
    EXPECT_EQ(Ersetzungsfrage(ordner.Pfad() / "fehlt" / "x.RRR", reihenaufbau), std::nullopt);
}

TEST(Sperre, HaeltBisZuIhremEnde) {
    const Testordner ordner;
    {
        const Sperre eine(ordner.Pfad());
        EXPECT_TRUE(eine.Gehalten());
        Sperre andere(ordner.Pfad());
        EXPECT_EQ(andere.Stand(), Sperre::Zustand::besetzt);
        andere.Nochmals();
        EXPECT_EQ(andere.Stand(), Sperre::Zustand::besetzt);
    }
    EXPECT_TRUE(Sperre(ordner.Pfad()).Gehalten());
}

TEST(Sperre, WasInDerSperrdateiStehtUndWasSieIstIstGleichgueltig) {
    const Testordner ordner;
    for (const char* inhalt : {"", "4711\nzinfolio\nrechner\n", "???"})
        EXPECT_TRUE(Sperre::AnDatei(ordner.Ablegen("zinfolio.lock", inhalt)).Gehalten()) << inhalt;
    const fs::path seltsam = ordner.Pfad() / "seltsam";
    fs::create_directory(seltsam);
    EXPECT_TRUE(Sperre::AnDatei(seltsam).Gehalten());
    fs::remove(seltsam);
    ASSERT_EQ(::mkfifo(seltsam.c_str(), 0600), 0);
    EXPECT_TRUE(Sperre::AnDatei(seltsam).Gehalten());
    fs::remove(seltsam);
    fs::create_symlink(seltsam, seltsam);
    EXPECT_TRUE(Sperre::AnDatei(seltsam).Gehalten());
}

TEST(Sperre, OhneOrdnerIstSieGescheitertMitGrund) {
    const Testordner ordner;
    const Sperre sperre = Sperre::AnDatei(ordner.Pfad() / "fehlt" / "zinfolio.lock");
    EXPECT_EQ(sperre.Stand(), Sperre::Zustand::gescheitert);
    EXPECT_EQ(sperre.Fehlernummer(), ENOENT);
}

}  // namespace dateigruppe_test
}  // namespace zinfolio
