#include "kern/bericht/textbericht.h"

#include <gtest/gtest.h>

#include "kern/dateien/dateifehler.h"
#include "kern/dateien/testordner.h"

namespace zinfolio {
namespace textbericht_test {

class TextberichtTest : public testing::Test {
  protected:
    void Lege(std::string_view bytes) { ordner_.Ablegen("RTF2.RTF", bytes); }
    [[nodiscard]] std::string Bytes() const { return ordner_.Inhalt("RTF2.RTF"); }
    [[nodiscard]] std::string Gelesen() const { return TextberichtLesen(ordner_.Pfad()); }

    Testordner ordner_;
};

TEST_F(TextberichtTest, SchreibtTitelZeilenUndSchluss) {
    TextberichtSchreiben(ordner_.Pfad(),
                         {.titel = "Sparplan", .zeilen = {"eins", "zwei"}, .schlusstext = "Ende"});
    EXPECT_EQ(Bytes(), "\n\nSparplan\n\n\neins\nzwei\n \n \nEnde\n");
}

TEST_F(TextberichtTest, SchreibtWindows1252) {
    TextberichtSchreiben(ordner_.Pfad(), {.titel = "Zinssätze in €", .zeilen = {"Ω"}, .schlusstext = ""});
    EXPECT_EQ(Bytes(), "\n\nZinss\xE4tze in \x80\n\n\n?\n \n \n\n");
}

TEST_F(TextberichtTest, GeschriebenesWirdWiederGelesen) {
    TextberichtSchreiben(ordner_.Pfad(), {.titel = "Öl", .zeilen = {"1.234,56 €"}, .schlusstext = "–"});
    EXPECT_EQ(Gelesen(), "\n\nÖl\n\n\n1.234,56 €\n \n \n–\n");
}

TEST_F(TextberichtTest, FehlendeUndLeereDateiSindLeererText) {
    EXPECT_EQ(Gelesen(), "");
    Lege("");
    EXPECT_EQ(Gelesen(), "");
}

TEST_F(TextberichtTest, BeideZeilenendenWerdenGelesen) {
    Lege("eins\r\nzwei\ndrei\rvier");
    EXPECT_EQ(Gelesen(), "eins\nzwei\ndrei\rvier\n");
}

TEST_F(TextberichtTest, OrdnerMitDemNamenDerDateiIstEinDateifehler) {
    std::filesystem::create_directory(ordner_.Pfad() / "RTF2.RTF");
    EXPECT_THROW(static_cast<void>(Gelesen()), Dateifehler);
}

}  // namespace textbericht_test
}  // namespace zinfolio
