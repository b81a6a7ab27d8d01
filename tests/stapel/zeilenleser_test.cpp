#include "stapel/befehle/zeilenleser.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <vector>

#include "stapel/json/jsonleser.h"

namespace zinfolio {
namespace zeilenleser_test {

/// An input that comes in the pieces given.
Quelle Haeppchen(std::vector<std::string> haeppchen) {
    return [haeppchen = std::move(haeppchen), naechstes = std::size_t{0}](char* ziel,
                                                                          std::size_t platz) mutable {
        if (naechstes == haeppchen.size()) return std::size_t{0};
        const std::string& stueck = haeppchen[naechstes++];
        EXPECT_LE(stueck.size(), platz);
        std::memcpy(ziel, stueck.data(), stueck.size());
        return stueck.size();
    };
}

std::vector<std::string> Bloecke(std::vector<std::string> haeppchen) {
    Zeilenleser leser(Haeppchen(std::move(haeppchen)));
    std::vector<std::string> bloecke;
    Zeilenblock block;
    while (leser.Naechster(block)) {
        EXPECT_EQ(block.puffer.size(), block.laenge + nachlauf);
        bloecke.emplace_back(block.Zeilen());
    }
    return bloecke;
}

using Texte = std::vector<std::string>;

TEST(Zeilenleser, GanzeZeilenKommenSofort) {
    EXPECT_EQ(Bloecke({"a\n", "b\nc\n"}), (Texte{"a\n", "b\nc\n"}));
}

TEST(Zeilenleser, StueckeEinerZeileWerdenZusammengesetzt) {
    EXPECT_EQ(Bloecke({"a\nb", "c", "d\ne\nf", "g\n"}), (Texte{"a\n", "bcd\ne\n", "fg\n"}));
}

TEST(Zeilenleser, DieLetzteZeileBrauchtKeinEnde) {
    EXPECT_EQ(Bloecke({"a\nb"}), (Texte{"a\n", "b"}));
    EXPECT_EQ(Bloecke({"a"}), Texte{"a"});
    EXPECT_EQ(Bloecke({"\n"}), Texte{"\n"});
    EXPECT_EQ(Bloecke({}), Texte{});
}

TEST(Zeilenleser, NullbytesSindGewoehnlicheZeichen) {
    EXPECT_EQ(Bloecke({std::string("\0a\0\n", 4)}), (Texte{std::string("\0a\0\n", 4)}));
}

TEST(Zeilenleser, UebermaessigeZeileWirdGekuerztUndDieNaechsteBleibtHeil) {
    std::size_t bisher = 0;
    bool zuEnde = false;
    Zeilenleser leser([&](char* ziel, std::size_t platz) -> std::size_t {
        if (zuEnde) return 0;
        if (bisher >= 3 * hoechsteZeilenlaenge) {
            zuEnde = true;
            std::memcpy(ziel, "\nab\n", 4);
            return 4;
        }
        std::memset(ziel, 'x', platz);
        bisher += platz;
        return platz;
    });
    Zeilenblock block;
    ASSERT_TRUE(leser.Naechster(block));
    EXPECT_LE(block.laenge, hoechsteZeilenlaenge + 100'000);
    std::string_view zeilen = block.Zeilen();
    EXPECT_GT(ZeileNehmen(zeilen).size(), hoechsteZeilenlaenge);
    EXPECT_EQ(zeilen, "ab\n");
    EXPECT_FALSE(leser.Naechster(block));
}

TEST(ZeileNehmen, GibtZeileFuerZeile) {
    std::string_view zeilen = "a\n\nb";
    EXPECT_EQ(ZeileNehmen(zeilen), "a");
    EXPECT_EQ(ZeileNehmen(zeilen), "");
    EXPECT_EQ(ZeileNehmen(zeilen), "b");
    EXPECT_TRUE(zeilen.empty());
}

}  // namespace zeilenleser_test
}  // namespace zinfolio
