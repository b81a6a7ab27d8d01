#include "kern/dateien/ganzedatei.h"

#include <cerrno>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "kern/dateien/dateifehler.h"
#include "kern/dateien/deskriptor.h"
#include "kern/dateien/stoerung.h"
#include "kern/dateien/testordner.h"

namespace zinfolio {
namespace ganzedatei_test {

using testing::IsEmpty;
using testing::ThrowsMessage;

constexpr std::size_t reichlich = 1'000'000;

TEST(GanzeDateiLesen, GibtJedesByte) {
    const Testordner ordner;
    std::string alle(256, '\0');
    for (std::size_t i = 0; i < alle.size(); ++i)
        alle[i] = static_cast<char>(i);
    EXPECT_EQ(GanzeDateiLesen(ordner.Ablegen("a", alle), reichlich), alle);
    EXPECT_EQ(GanzeDateiLesen(ordner.Ablegen("leer", ""), reichlich), "");
}

TEST(GanzeDateiLesen, LangeDateiInVielenUnterbrochenenStuecken) {
    const Testordner ordner;
    const std::string lang = std::string(200'000, 'x') + "Ende";
    const auto datei = ordner.Ablegen("a", lang);
    const Stoerung stoerung({.stueck = 999, .unterbrechen = true, .gute = 1000, .fehlernummer = EIO});
    EXPECT_EQ(GanzeDateiLesen(datei, reichlich), lang);
}

TEST(GanzeDateiLesen, GenauDieGrenzeGehtEinByteMehrNicht) {
    const Testordner ordner;
    const auto datei = ordner.Ablegen("a", "12345");
    EXPECT_EQ(GanzeDateiLesen(datei, 5), "12345");
    EXPECT_THAT([&] { (void)GanzeDateiLesen(datei, 4); },
                ThrowsMessage<Dateifehler>("Datei \"" + datei.string() + "\": Die Datei ist zu groß."));
    EXPECT_THROW((void)GanzeDateiLesen(datei, 0), Dateifehler);
    EXPECT_EQ(GanzeDateiLesen(ordner.Ablegen("leer", ""), 0), "");
}

TEST(GanzeDateiLesen, FehlendeDateiIstEinFehlerUndBleibtFehlend) {
    const Testordner ordner;
    const auto datei = ordner.Pfad() / "a";
    EXPECT_THAT(
        [&] { (void)GanzeDateiLesen(datei, reichlich); },
        ThrowsMessage<Dateifehler>("Die Datei \"" + datei.string() +
                                   "\" kann nicht gelesen werden: Datei oder Ordner nicht vorhanden."));
    EXPECT_THAT(ordner.Namen(), IsEmpty());
}

TEST(GanzeDateiLesen, FehlerMittenImLesenIstEinFehler) {
    const Testordner ordner;
    const auto datei = ordner.Ablegen("a", "12345");
    const Stoerung stoerung({.stueck = 2, .unterbrechen = false, .gute = 2, .fehlernummer = EIO});
    EXPECT_THAT(
        [&] { (void)GanzeDateiLesen(datei, reichlich); },
        ThrowsMessage<Dateifehler>("Die Datei \"" + datei.string() +
                                   "\" kann nicht gelesen werden: Fehler bei der Ein- oder Ausgabe."));
}

TEST(GanzeDateiLesen, OrdnerIstKeineDatei) {
    const Testordner ordner;
    EXPECT_THROW((void)GanzeDateiLesen(ordner.Pfad(), reichlich), Dateifehler);
}

TEST(RestLesen, HaengtAnWasNochNichtGelesenIst) {
    const Testordner ordner;
    const Deskriptor datei(ordner.Ablegen("a", "12345"), O_RDONLY);
    ASSERT_TRUE(datei.Offen());
    char erstes = 0;
    ASSERT_EQ(::read(datei.Nummer(), &erstes, 1), 1);
    std::string text = "Anfang ";
    EXPECT_TRUE(RestLesen(datei.Nummer(), 4, text));
    EXPECT_EQ(text, "Anfang 2345");
    EXPECT_TRUE(RestLesen(datei.Nummer(), 0, text));
    EXPECT_EQ(text, "Anfang 2345");
}

TEST(RestLesen, ZuVielIstEFBIG) {
    const Testordner ordner;
    const Deskriptor datei(ordner.Ablegen("a", "12345"), O_RDONLY);
    std::string text;
    EXPECT_FALSE(RestLesen(datei.Nummer(), 4, text));
    EXPECT_EQ(errno, EFBIG);
}

TEST(LesbarkeitPruefen, SchweigtZuEinerDateiUndNenntDieFehlende) {
    const Testordner ordner;
    EXPECT_NO_THROW(LesbarkeitPruefen(ordner.Ablegen("a", "")));
    EXPECT_THROW(LesbarkeitPruefen(ordner.Pfad() / "b"), Dateifehler);
    EXPECT_THAT(ordner.Namen(), testing::ElementsAre("a"));
}

}  // namespace ganzedatei_test
}  // namespace zinfolio
