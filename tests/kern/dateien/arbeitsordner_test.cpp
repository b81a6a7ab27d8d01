#include "kern/dateien/arbeitsordner.h"

#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include "kern/dateien/dateifehler.h"
#include "kern/dateien/testordner.h"

namespace zinfolio {
namespace arbeitsordner_test {

namespace fs = std::filesystem;

// An environment variable set for the length of a test; nullptr unsets it.
class Umgebung {
  public:
    Umgebung(const char* variable, const char* wert) : name(variable) {
        if (const char* alt = std::getenv(name)) alterWert = alt;
        Setzen(wert);
    }
    Umgebung(const Umgebung&) = delete;
    Umgebung& operator=(const Umgebung&) = delete;
    ~Umgebung() { Setzen(alterWert ? alterWert->c_str() : nullptr); }

  private:
    void Setzen(const char* wert) const {
        if (wert == nullptr) {
            ::unsetenv(name);
        } else {
            ::setenv(name, wert, 1);
        }
    }
    const char* name;
    std::optional<std::string> alterWert;
};

struct Fall {
    Ordnerangaben angaben;
    const char* erwartet;
};

class ArbeitsordnerAusTest : public testing::TestWithParam<Fall> {};

TEST_P(ArbeitsordnerAusTest, NimmtDieErsteBrauchbareAngabe) {
    EXPECT_EQ(ArbeitsordnerAus(GetParam().angaben), GetParam().erwartet);
}

INSTANTIATE_TEST_SUITE_P(Reihenfolge, ArbeitsordnerAusTest,
                         testing::Values(Fall{{"/k", "/h", "/e", "/p"}, "/k/Fiskaris"},        //
                                         Fall{{"", "/h", "/e", "/p"}, "/h/.config/Fiskaris"},  //
                                         Fall{{"", "", "/e", "/p"}, "/e/.config/Fiskaris"},    //
                                         Fall{{"", "", "", "/p"}, "/p/Fiskaris"},              //
                                         Fall{{"k", "/h", "/e", "/p"},
                                              "/h/.config/Fiskaris"},  // relative: not set
                                         Fall{{"k", "h", "/e", "/p"}, "/e/.config/Fiskaris"},  //
                                         Fall{{"", "", "e", "/p"}, "/p/Fiskaris"}));

TEST(Arbeitsordner, FolgtDerUmgebung) {
    const Umgebung konfiguration("XDG_CONFIG_HOME", "/tmp/k");
    const Umgebung heim("HOME", "/tmp/h");
    EXPECT_EQ(Arbeitsordner(), "/tmp/k/Fiskaris");
    const Umgebung ohneKonfiguration("XDG_CONFIG_HOME", nullptr);
    EXPECT_EQ(Arbeitsordner(), "/tmp/h/.config/Fiskaris");
}

TEST(Arbeitsordner, FragtOhneUmgebungDasKonto) {
    const Umgebung konfiguration("XDG_CONFIG_HOME", nullptr);
    const Umgebung heim("HOME", nullptr);
    const passwd* eintrag = ::getpwuid(::getuid());
    // A user without an entry, as in some containers, has the folder of the program.
    const fs::path basis = eintrag != nullptr ? fs::path(eintrag->pw_dir) / ".config"
                                              : fs::read_symlink("/proc/self/exe").parent_path();
    EXPECT_EQ(Arbeitsordner(), basis / "Fiskaris");
}

TEST(Arbeitsordner, WirdNurGenanntNichtAngelegt) {
    const Testordner ordner;
    const Umgebung konfiguration("XDG_CONFIG_HOME", ordner.Pfad().c_str());
    EXPECT_EQ(Arbeitsordner(), ordner.Pfad() / "Fiskaris");
    EXPECT_THAT(ordner.Namen(), testing::IsEmpty());
}

TEST(ArbeitsordnerAnlegen, MachtAuchDieOrdnerDarueberUndNurFuerDenBesitzer) {
    const Testordner ordner;
    const mode_t alteMaske = ::umask(0);
    ArbeitsordnerAnlegen(ordner.Pfad() / "a" / "b" / "Fiskaris");
    ::umask(alteMaske);
    for (const char* teil : {"a", "a/b", "a/b/Fiskaris"})
        EXPECT_EQ(fs::status(ordner.Pfad() / teil).permissions(), fs::perms::owner_all) << teil;
}

TEST(ArbeitsordnerAnlegen, VorhandenerOrdnerBleibtWieErIst) {
    const Testordner ordner;
    fs::create_directory(ordner.Pfad() / "Fiskaris");
    fs::permissions(ordner.Pfad() / "Fiskaris", fs::perms{0755});
    ordner.Ablegen("Fiskaris/rate", "x");
    EXPECT_NO_THROW(ArbeitsordnerAnlegen(ordner.Pfad() / "Fiskaris"));
    EXPECT_NO_THROW(ArbeitsordnerAnlegen(ordner.Pfad() / "Fiskaris/"));
    EXPECT_EQ(fs::status(ordner.Pfad() / "Fiskaris").permissions(), fs::perms{0755});
    EXPECT_EQ(ordner.Inhalt("Fiskaris/rate"), "x");
}

TEST(ArbeitsordnerAnlegen, DateiAnStelleEinesOrdnersIstEinFehler) {
    const Testordner ordner;
    ordner.Ablegen("Datei", "x");
    const std::string datei = (ordner.Pfad() / "Datei").string();
    for (const char* ziel : {"Datei", "Datei/Fiskaris"})
        EXPECT_THAT([&] { ArbeitsordnerAnlegen(ordner.Pfad() / ziel); },
                    testing::ThrowsMessage<Dateifehler>("Der Ordner \"" + datei +
                                                        "\" kann nicht angelegt werden: "
                                                        "Der Name ist schon vergeben."));
}

TEST(LoescheDatei, EntferntGenauDieGenannte) {
    const Testordner ordner;
    ordner.Ablegen("RatenhöheA", "x");
    ordner.Ablegen("rate", "x");
    LoescheDatei(ordner.Pfad(), "RatenhöheA");
    EXPECT_THAT(ordner.Namen(), testing::ElementsAre("rate"));
}

TEST(LoescheDatei, SchweigtBeiJedemFehler) {
    const Testordner ordner;
    fs::create_directory(ordner.Pfad() / "Ordner");
    EXPECT_NO_THROW(LoescheDatei(ordner.Pfad(), "fehlt"));
    EXPECT_NO_THROW(LoescheDatei(ordner.Pfad(), "Ordner"));
    EXPECT_NO_THROW(LoescheDatei(ordner.Pfad() / "fehlt", "rate"));
    EXPECT_NO_THROW(LoescheDatei(ordner.Pfad(), ""));
    EXPECT_THAT(ordner.Namen(), testing::ElementsAre("Ordner"));
}

}  // namespace arbeitsordner_test
}  // namespace zinfolio
