// What is written reads back: random documents, the files that fuzzing found, and damaged ones.

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <iterator>

#include "kern/richtext/rundreise.h"
#include "kern/richtext/zufallstext.h"

namespace zinfolio {
namespace rtfrundreise_test {

TEST(RtfRundreise, ZufaelligeDokumenteKommenGleichZurueck) {
    for (std::uint64_t saat = 0; saat < 5000; ++saat) {
        const Richtext text = Zufallstext(saat).Dokument();
        const std::string datei = RtfSchreiben(text);
        ASSERT_EQ(RtfLesen(datei), text) << saat << '\n' << datei;
        ASSERT_EQ(RtfSchreiben(RtfLesen(datei)), datei) << saat;
        ASSERT_TRUE(NurAscii(datei)) << saat;
    }
}

TEST(RtfRundreise, ZufaelligeDokumenteHabenInhalt) {
    // The property above would hold of empty documents too.
    std::size_t laeufe = 0;
    std::size_t listen = 0;
    for (std::uint64_t saat = 0; saat < 5000; ++saat) {
        for (const Absatz& absatz : Zufallstext(saat).Dokument().absaetze) {
            laeufe += absatz.laeufe.size();
            listen += absatz.format.liste.art != Listenart::keine ? 1 : 0;
        }
    }
    EXPECT_GT(laeufe, 10000);
    EXPECT_GT(listen, 1000);
}

TEST(RtfRundreise, BeschaedigteDateienWerdenGelesen) {
    for (std::uint64_t saat = 0; saat < 3000; ++saat) {
        Zufallstext zufall(saat);
        std::string datei = RtfSchreiben(zufall.Dokument());
        for (int schaden = zufall.Bis(5); schaden >= 0; --schaden) {
            const auto stelle = static_cast<std::size_t>(zufall.Bis(static_cast<int>(datei.size()) - 5) + 5);
            datei[stelle] = static_cast<char>(zufall.Bis(256));
        }
        datei.resize(datei.size() - static_cast<std::size_t>(zufall.Bis(20)));
        ASSERT_TRUE(UeberstehtRundreise(datei)) << saat << '\n' << datei;
    }
}

std::vector<std::filesystem::path> Fundstuecke() {
    const std::filesystem::directory_iterator ordner(ZINFOLIO_FUNDSTUECKE);
    std::vector<std::filesystem::path> dateien;
    for (const auto& eintrag : ordner)
        dateien.push_back(eintrag.path());
    std::sort(dateien.begin(), dateien.end());
    return dateien;
}

TEST(RtfRundreise, FundstueckeDerFuzzerWerdenGelesen) {
    const auto dateien = Fundstuecke();
    EXPECT_GE(dateien.size(), 8);
    for (const auto& datei : dateien) {
        std::ifstream strom(datei, std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(strom), {}};
        EXPECT_TRUE(UeberstehtRundreise(bytes)) << datei;
    }
}

TEST(Normalform, NimmtWegWasDateienNichtHalten) {
    Absatz absatz;
    absatz.laeufe = {
        {"a\x01\xC3", {}}, {"", {.fett = true}}, {"b\u2028c\uFFFC", {.schrift = "  Courier New; "}}};
    absatz.format.tabulatoren = {
        {900, Tabart::links}, {-1, Tabart::links}, {500, Tabart::mitte}, {900, Tabart::rechts}};
    absatz.format.vielfach = true;
    absatz.format.davor = -7;
    absatz.format.liste = {.art = Listenart::punkte, .nach = Nachzeichen::klammer, .beginn = 4};
    Absatz erwartet;
    erwartet.laeufe = {{"ab\nc", {}}};
    erwartet.format.tabulatoren = {{500, Tabart::mitte}, {900, Tabart::rechts}};
    erwartet.format.liste = {.art = Listenart::punkte};
    EXPECT_EQ(Normalform(Richtext{.absaetze = {absatz}}), (Richtext{.absaetze = {erwartet}}));
}

TEST(Normalform, HatMindestensEinenAbsatzUndGrenzen) {
    EXPECT_EQ(Normalform(Richtext{.absaetze = {}}), Richtext{});
    const Richtext text{
        .absaetze = {{{}, {{"a", {.schrift = "\t", .groesse = -3}}, {"b", {.groesse = 9999}}}}}};
    const Richtext erwartet{.absaetze = {{{}, {{"a", {.groesse = 1}}, {"b", {.groesse = 3276}}}}}};
    EXPECT_EQ(Normalform(text), erwartet);
}

TEST(Normalform, SchriftnameWirdNichtMittenImZeichenGekuerzt) {
    // 63 bytes, and a character of two.
    EXPECT_EQ(Schriftname(std::string(63, 'a') + "ä"), std::string(63, 'a'));
    EXPECT_EQ(Schriftname(std::string(62, 'a') + "ä"), std::string(62, 'a') + "ä");
}

}  // namespace rtfrundreise_test
}  // namespace zinfolio
