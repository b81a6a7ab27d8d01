#include "kern/dateien/atomar.h"

#include <cerrno>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include "kern/dateien/dateifehler.h"
#include "kern/dateien/groessengrenze.h"
#include "kern/dateien/ohnevorrechte.h"
#include "kern/dateien/stoerung.h"
#include "kern/dateien/testordner.h"

namespace zinfolio {
namespace atomar_test {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::ThrowsMessage;

unsigned Rechte(const fs::path& datei) {
    struct stat zustand {};
    EXPECT_EQ(::stat(datei.c_str(), &zustand), 0) << datei;
    return zustand.st_mode & 0777U;
}

class AtomarTest : public testing::TestWithParam<Sicherung> {
  protected:
    Testordner ordner;
};

INSTANTIATE_TEST_SUITE_P(Sicherungen, AtomarTest,
                         testing::Values(Sicherung::Fluechtig, Sicherung::Dauerhaft));

TEST_P(AtomarTest, LegtEineNeueDateiAn) {
    AtomarSchreiben(ordner.Pfad() / "Plan", "neu", GetParam());
    EXPECT_EQ(ordner.Inhalt("Plan"), "neu");
    EXPECT_THAT(ordner.Namen(), ElementsAre("Plan"));
}

TEST_P(AtomarTest, ErsetztEineAlteDatei) {
    const fs::path ziel = ordner.Ablegen("Plan", "alt und länger");
    AtomarSchreiben(ziel, "neu", GetParam());
    EXPECT_EQ(ordner.Inhalt("Plan"), "neu");
    AtomarSchreiben(ziel, "", GetParam());
    EXPECT_EQ(ordner.Inhalt("Plan"), "");
    EXPECT_THAT(ordner.Namen(), ElementsAre("Plan"));
}

TEST_P(AtomarTest, KleineUnterbrocheneStueckeErgebenDasGanze) {
    const Stoerung stoerung({.stueck = 7, .unterbrechen = true, .gute = 1000, .fehlernummer = EIO});
    AtomarSchreiben(ordner.Pfad() / "Plan", std::string(700, 'x') + "Ende", GetParam());
    EXPECT_EQ(Stoerung::Aufrufe(), 2 * 101);
    EXPECT_EQ(ordner.Inhalt("Plan"), std::string(700, 'x') + "Ende");
}

TEST_P(AtomarTest, VollerDatentraegerLaesstDieAlteDateiStehen) {
    const fs::path ziel = ordner.Ablegen("Plan", "alt");
    {
        const Groessengrenze grenze(10'000);
        EXPECT_THAT([&] { AtomarSchreiben(ziel, std::string(10'001, 'x'), GetParam()); },
                    ThrowsMessage<Dateifehler>("Die Datei \"" + ziel.string() +
                                               "\" kann nicht geschrieben werden: Die Datei wird zu groß."));
        EXPECT_EQ(ordner.Inhalt("Plan"), "alt");
        EXPECT_THAT(ordner.Namen(), ElementsAre("Plan"));
        AtomarSchreiben(ziel, std::string(10'000, 'x'), GetParam());
    }
    EXPECT_EQ(ordner.Inhalt("Plan"), std::string(10'000, 'x'));
}

TEST(AtomareDatei, AendertVorDemVollendenNichts) {
    const Testordner ordner;
    const fs::path ziel = ordner.Ablegen("Plan", "alt");
    AtomareDatei datei(ziel, AlsBytes("neu"), Sicherung::Fluechtig);
    EXPECT_EQ(ordner.Inhalt("Plan"), "alt");
    EXPECT_EQ(ordner.Namen().size(), 2U);
    datei.Vollenden();
    EXPECT_EQ(ordner.Inhalt("Plan"), "neu");
    EXPECT_THAT(ordner.Namen(), ElementsAre("Plan"));
}

TEST(AtomareDatei, NichtVollendetVerschwindetSpurlos) {
    const Testordner ordner;
    const fs::path ziel = ordner.Ablegen("Plan", "alt");
    { const AtomareDatei datei(ziel, AlsBytes("neu"), Sicherung::Fluechtig); }
    EXPECT_EQ(ordner.Inhalt("Plan"), "alt");
    EXPECT_THAT(ordner.Namen(), ElementsAre("Plan"));
}

TEST(AtomareDatei, MehrereDateienErstAlleSchreibenDannAlleVollenden) {
    const Testordner ordner;
    std::vector<AtomareDatei> dateien;
    for (const char* name : {"Plan", "Plan.1", "Plan.2"})
        dateien.emplace_back(ordner.Pfad() / name, AlsBytes(name), Sicherung::Dauerhaft);
    EXPECT_EQ(ordner.Namen().size(), 3U);
    EXPECT_FALSE(fs::exists(ordner.Pfad() / "Plan"));
    for (AtomareDatei& datei : dateien)
        datei.Vollenden();
    EXPECT_THAT(ordner.Namen(), ElementsAre("Plan", "Plan.1", "Plan.2"));
    EXPECT_EQ(ordner.Inhalt("Plan.2"), "Plan.2");
}

TEST(AtomareDatei, ZuweisenVerwirftDieErsetzte) {
    const Testordner ordner;
    AtomareDatei datei(ordner.Pfad() / "a", AlsBytes("a"), Sicherung::Fluechtig);
    datei = AtomareDatei(ordner.Pfad() / "b", AlsBytes("b"), Sicherung::Fluechtig);
    EXPECT_EQ(ordner.Namen().size(), 1U);
    datei.Vollenden();
    EXPECT_THAT(ordner.Namen(), ElementsAre("b"));
}

TEST(AtomareDatei, RelativesZielBleibtBeimOrdnerSeinesAnfangs) {
    const Testordner ordner;
    const fs::path vorher = fs::current_path();
    fs::current_path(ordner.Pfad());
    AtomareDatei datei("Plan", AlsBytes("neu"), Sicherung::Dauerhaft);
    fs::current_path(vorher);
    datei.Vollenden();
    EXPECT_EQ(ordner.Inhalt("Plan"), "neu");
}

TEST(AtomareDatei, GescheitertesUmbenennenRaeumtAuf) {
    const Testordner ordner;
    {
        AtomareDatei datei(ordner.Pfad() / "Plan", AlsBytes("neu"), Sicherung::Fluechtig);
        fs::create_directory(ordner.Pfad() / "Plan");
        EXPECT_THAT([&] { datei.Vollenden(); }, ThrowsMessage<Dateifehler>(HasSubstr("Das ist ein Ordner.")));
    }
    EXPECT_THAT(ordner.Namen(), ElementsAre("Plan"));
}

TEST(Dateirechte, VorhandeneBleibenNeueFolgenDerMaske) {
    const Testordner ordner;
    const mode_t alteMaske = ::umask(027);
    AtomarSchreiben(ordner.Pfad() / "neu", "x", Sicherung::Fluechtig);
    EXPECT_EQ(Rechte(ordner.Pfad() / "neu"), 0640U);
    for (const mode_t rechte : {0600U, 0666U, 0754U}) {
        const fs::path ziel = ordner.Ablegen("alt", "x");
        ASSERT_EQ(::chmod(ziel.c_str(), rechte), 0);
        AtomarSchreiben(ziel, "y", Sicherung::Fluechtig);
        EXPECT_EQ(Rechte(ziel), rechte);
    }
    ::umask(alteMaske);
}

TEST(Dateirechte, SchreibgeschuetzteDateiWirdNichtErsetzt) {
    const Testordner ordner;
    const fs::path ziel = ordner.Ablegen("Plan", "alt");
    ASSERT_EQ(::chmod(ziel.c_str(), 0444), 0);
    ASSERT_EQ(::chmod(ordner.Pfad().c_str(), 0777), 0);
    {
        const OhneVorrechte niemand;
        EXPECT_THAT([&] { AtomarSchreiben(ziel, "neu", Sicherung::Fluechtig); },
                    ThrowsMessage<Dateifehler>(HasSubstr("Keine Berechtigung.")));
    }
    EXPECT_EQ(ordner.Inhalt("Plan"), "alt");
    EXPECT_THAT(ordner.Namen(), ElementsAre("Plan"));
}

TEST(Verweise, WerdenNichtErsetztSondernIhrZiel) {
    const Testordner ordner;
    fs::create_directory(ordner.Pfad() / "unten");
    ordner.Ablegen("unten/Plan", "alt");
    fs::create_symlink("unten/Plan", ordner.Pfad() / "innen");
    fs::create_symlink(ordner.Pfad() / "innen", ordner.Pfad() / "außen");
    AtomarSchreiben(ordner.Pfad() / "außen", "neu", Sicherung::Dauerhaft);
    EXPECT_EQ(ordner.Inhalt("unten/Plan"), "neu");
    EXPECT_TRUE(fs::is_symlink(ordner.Pfad() / "innen"));
    EXPECT_TRUE(fs::is_symlink(ordner.Pfad() / "außen"));
    EXPECT_FALSE(fs::is_symlink(ordner.Pfad() / "unten/Plan"));
}

TEST(Verweise, InsLeereLegenDasZielAn) {
    const Testordner ordner;
    fs::create_symlink("Plan", ordner.Pfad() / "Verweis");
    AtomarSchreiben(ordner.Pfad() / "Verweis", "neu", Sicherung::Fluechtig);
    EXPECT_TRUE(fs::is_symlink(ordner.Pfad() / "Verweis"));
    EXPECT_EQ(ordner.Inhalt("Plan"), "neu");
}

TEST(Verweise, ImKreisSindEinFehler) {
    const Testordner ordner;
    fs::create_symlink("b", ordner.Pfad() / "a");
    fs::create_symlink("a", ordner.Pfad() / "b");
    EXPECT_THAT([&] { AtomarSchreiben(ordner.Pfad() / "a", "neu", Sicherung::Fluechtig); },
                ThrowsMessage<Dateifehler>(HasSubstr("Die Verweise führen im Kreis.")));
}

TEST(AtomarSchreiben, GeraetWirdNichtErsetzt) {
    const Testordner ordner;
    const fs::path ziel = ordner.Pfad() / "Rohr";
    ASSERT_EQ(::mkfifo(ziel.c_str(), 0600), 0);
    EXPECT_THAT([&] { AtomarSchreiben(ziel, "neu", Sicherung::Fluechtig); },
                ThrowsMessage<Dateifehler>(HasSubstr("keine gewöhnliche Datei")));
    EXPECT_TRUE(fs::is_fifo(ziel));
}

TEST(AtomarSchreiben, LaengsterMoeglicherNameGeht) {
    const Testordner ordner;
    const std::string name(255, 'n');
    AtomarSchreiben(ordner.Pfad() / name, "neu", Sicherung::Fluechtig);
    EXPECT_EQ(ordner.Inhalt(name), "neu");
    EXPECT_THROW(AtomarSchreiben(ordner.Pfad() / (name + "n"), "neu", Sicherung::Fluechtig), Dateifehler);
    EXPECT_THAT(ordner.Namen(), ElementsAre(name));
}

}  // namespace atomar_test
}  // namespace zinfolio
