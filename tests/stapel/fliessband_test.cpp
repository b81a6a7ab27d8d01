#include "stapel/befehle/fliessband.h"

#include <chrono>
#include <gtest/gtest.h>
#include <stdexcept>
#include <thread>

namespace zinfolio {
namespace fliessband_test {

void Auflegen(Fliessband& band, std::string text) {
    Zeilenblock block{std::move(text), 0};
    EXPECT_TRUE(band.Auflegen(block));
}

TEST(Fliessband, ErgebnisseVerlassenDasBandInIhrerReihenfolge) {
    std::string ausgabe;
    Fliessband band(3, [&](std::string_view text) { ausgabe += text; });
    for (const char* text : {"a", "b", "c"})
        Auflegen(band, text);
    Werkstueck* const a = band.Nehmen();
    Werkstueck* const b = band.Nehmen();
    Werkstueck* const c = band.Nehmen();
    for (Werkstueck* const stueck : {c, b, a}) {
        EXPECT_EQ(ausgabe, "");
        stueck->ergebnis = stueck->block.puffer;
        band.Fertig(*stueck);
    }
    EXPECT_EQ(ausgabe, "abc");
}

TEST(Fliessband, DasVordersteDarfStueckweiseHinaus) {
    std::string ausgabe;
    Fliessband band(2, [&](std::string_view text) { ausgabe += text; });
    Auflegen(band, "");
    Werkstueck* const stueck = band.Nehmen();
    stueck->ergebnis = "1";
    band.Zwischenausgabe(*stueck);
    EXPECT_EQ(ausgabe, "1");
    EXPECT_EQ(stueck->ergebnis, "");
    stueck->ergebnis = "2";
    band.Fertig(*stueck);
    EXPECT_EQ(ausgabe, "12");
}

TEST(Fliessband, EinVollesBandNimmtErstNachEinerAusgabeWiederAn) {
    std::atomic<bool> angenommen = false;
    Fliessband band(1, [&](std::string_view) { EXPECT_FALSE(angenommen); });
    Auflegen(band, "a");
    Werkstueck* const erstes = band.Nehmen();
    const std::jthread leger([&] {
        Auflegen(band, "b");
        angenommen = true;
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_FALSE(angenommen);
    band.Fertig(*erstes);
    EXPECT_EQ(band.Nehmen()->block.puffer, "b");
}

TEST(Fliessband, NachDemSchliessenWirdNochAllesGenommen) {
    Fliessband band(2, [](std::string_view) {});
    Auflegen(band, "a");
    band.Schliessen();
    EXPECT_NE(band.Nehmen(), nullptr);
    EXPECT_EQ(band.Nehmen(), nullptr);
}

TEST(Fliessband, AbbruchLaesstAlleLos) {
    Fliessband band(1, [](std::string_view) {});
    Auflegen(band, "a");
    const Werkstueck* const erstes = band.Nehmen();
    EXPECT_EQ(erstes->block.puffer, "a");
    const std::jthread leger([&] {
        Zeilenblock block;
        EXPECT_FALSE(band.Auflegen(block));
    });
    const std::jthread nehmer([&] { EXPECT_EQ(band.Nehmen(), nullptr); });
    band.Abbrechen(std::make_exception_ptr(std::runtime_error("voll")));
    EXPECT_THROW(band.FehlerWerfen(), std::runtime_error);
}

}  // namespace fliessband_test
}  // namespace zinfolio
