#include "kern/bericht/notizbericht.h"

#include <gmock/gmock.h>

namespace zinfolio {
namespace notizbericht_test {

using testing::ElementsAre;

Richtext Notiz(std::initializer_list<std::string> absaetze) {
    Richtext notiz;
    notiz.absaetze.clear();
    for (const std::string& text : absaetze)
        notiz.absaetze.push_back({.laeufe = {{.text = text}}});
    return notiz;
}

TEST(Notizbericht, HatEineZeileJeAbsatzOhneDieLeerenAmEnde) {
    const Bericht bericht = NotizberichtBilden(Notiz({"eins", "", "drei", "", ""}), "Notiz");
    EXPECT_THAT(bericht.kopfblock, ElementsAre("eins", "", "drei"));
    EXPECT_EQ(bericht.titel, "Notiz");
    EXPECT_FALSE(bericht.querformat);
    EXPECT_EQ(bericht.kopfblockschrift.name, "Courier New");
    EXPECT_TRUE(bericht.tabelle.spalten.empty());
}

TEST(Notizbericht, LangeZeilenBrechenZwischenWoertern) {
    const std::string wort(40, 'w');
    EXPECT_THAT(NotizberichtBilden(Notiz({wort + " " + wort}), "").kopfblock, ElementsAre(wort, wort));
}

TEST(Notizbericht, EinZeilenumbruchImAbsatzIstEineNeueZeile) {
    EXPECT_THAT(NotizberichtBilden(Notiz({"eins\nzwei"}), "").kopfblock, ElementsAre("eins", "zwei"));
}

TEST(Notizbericht, EineLeereNotizHatKeineZeile) {
    EXPECT_TRUE(NotizberichtBilden({}, "").kopfblock.empty());
}

}  // namespace notizbericht_test
}  // namespace zinfolio
