#include "kern/dateien/satzdatei.h"

#include <cerrno>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>

#include "kern/dateien/probesatz.h"
#include "kern/dateien/stoerung.h"
#include "kern/dateien/testordner.h"

namespace zinfolio {
namespace satzdatei_test {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::ThrowsMessage;

class SatzdateiTest : public testing::Test {
  protected:
    Testordner ordner;
    Satzdatei<Probesatz> datei{ordner.Pfad(), "Lösungsdatei"};

    static Probesatz Satz(int nummer) {
        Probesatz satz;
        satz.name = Festtext<10>::AusWindows1252("Satz");
        satz.tage = nummer;
        return satz;
    }
    static std::vector<Probesatz> Saetze(int anzahl) {
        std::vector<Probesatz> saetze;
        for (int i = 1; i <= anzahl; ++i)
            saetze.push_back(Satz(i));
        return saetze;
    }
};

TEST_F(SatzdateiTest, KommtZurueckWieGeschrieben) {
    datei.Schreiben(Saetze(3));
    EXPECT_EQ(ordner.Inhalt("Lösungsdatei").size(), 3 * 28U);
    EXPECT_EQ(datei.Lesen(), Saetze(3));
    EXPECT_EQ(datei.Anzahl(), 3U);
    EXPECT_THAT(ordner.Namen(), ElementsAre("Lösungsdatei"));
}

TEST_F(SatzdateiTest, NeuesSchreibenErsetztAlles) {
    datei.Schreiben(Saetze(3));
    datei.Schreiben(Saetze(1));
    EXPECT_EQ(datei.Lesen(), Saetze(1));
    datei.Schreiben({}, Sicherung::Dauerhaft);
    EXPECT_EQ(ordner.Inhalt("Lösungsdatei"), "");
}

TEST_F(SatzdateiTest, FehlendeDateiWirdBeimLesenLeerAngelegt) {
    EXPECT_THAT(datei.Lesen(), testing::IsEmpty());
    EXPECT_EQ(ordner.Inhalt("Lösungsdatei"), "");
}

TEST_F(SatzdateiTest, FehlendeDateiWirdBeimZaehlenLeerAngelegt) {
    EXPECT_EQ(datei.Anzahl(), 0U);
    EXPECT_EQ(ordner.Inhalt("Lösungsdatei"), "");
}

TEST_F(SatzdateiTest, AngefangenerLetzterSatzZaehltNicht) {
    datei.Schreiben(Saetze(2));
    const std::string ganz = ordner.Inhalt("Lösungsdatei");
    for (const std::size_t laenge : {55U, 29U, 28U}) {
        ordner.Ablegen("Lösungsdatei", ganz.substr(0, laenge));
        EXPECT_EQ(datei.Lesen(), Saetze(1)) << laenge;
        EXPECT_EQ(datei.Anzahl(), 1U) << laenge;
    }
    ordner.Ablegen("Lösungsdatei", ganz.substr(0, 27));
    EXPECT_THAT(datei.Lesen(), testing::IsEmpty());
    EXPECT_EQ(datei.Anzahl(), 0U);
}

TEST_F(SatzdateiTest, AngefangenerSatzIstNachDemSchreibenFort) {
    ordner.Ablegen("Lösungsdatei", std::string(28 + 5, '\0'));
    datei.Schreiben(datei.Lesen());
    EXPECT_EQ(ordner.Inhalt("Lösungsdatei"), std::string(28, '\0'));
}

TEST_F(SatzdateiTest, ZufallsbytesBleibenWieSieSind) {
    std::mt19937 zufall(1);
    std::string inhalt(28 * 500, '\0');
    for (char& zeichen : inhalt)
        zeichen = static_cast<char>(zufall());
    ordner.Ablegen("Lösungsdatei", inhalt + "Rest");
    datei.Schreiben(datei.Lesen());
    EXPECT_EQ(ordner.Inhalt("Lösungsdatei"), inhalt);
}

TEST(Hoechstzahl, StehtAuchImText) {
    EXPECT_EQ(UeberHoechstzahl("Zahlungen"), "Mehr als 32767 Zahlungen.");
}

TEST_F(SatzdateiTest, BisZurHoechstzahlGehtEs) {
    datei.Schreiben(Saetze(32767));
    EXPECT_EQ(datei.Anzahl(), 32767U);
    EXPECT_EQ(datei.Lesen().back().tage, 32767);
}

TEST_F(SatzdateiTest, UeberDerHoechstzahlBleibtDieAlteDatei) {
    datei.Schreiben(Saetze(2));
    EXPECT_THAT([&] { datei.Schreiben(Saetze(32768)); },
                ThrowsMessage<Dateifehler>("Datei \"" + datei.Pfad().string() +
                                           "\": 32768 Sätze, höchstens 32767 sind möglich."));
    EXPECT_EQ(datei.Lesen(), Saetze(2));
    EXPECT_THAT(ordner.Namen(), ElementsAre("Lösungsdatei"));
}

TEST_F(SatzdateiTest, ZuLangeDateiWirdNichtGelesen) {
    ordner.Ablegen("Lösungsdatei", std::string(28U * 32768, '\0'));
    const auto meldung = AllOf(HasSubstr("Lösungsdatei"), HasSubstr("32768"), HasSubstr("32767"));
    EXPECT_THAT([&] { (void)datei.Lesen(); }, ThrowsMessage<Dateifehler>(meldung));
    EXPECT_THAT([&] { (void)datei.Anzahl(); }, ThrowsMessage<Dateifehler>(meldung));

    ordner.Ablegen("Lösungsdatei", std::string(28U * 32768 - 1, '\0'));
    EXPECT_EQ(datei.Lesen().size(), 32767U);
}

TEST_F(SatzdateiTest, LoeschenEntferntDieDateiUndSchweigtSonst) {
    datei.Schreiben(Saetze(1));
    datei.Loeschen();
    EXPECT_THAT(ordner.Namen(), testing::IsEmpty());
    EXPECT_NO_THROW(datei.Loeschen());
}

TEST_F(SatzdateiTest, FehlenderOrdnerIstEinFehler) {
    const Satzdatei<Probesatz> ohne(ordner.Pfad() / "fehlt", "rate");
    const std::string pfad = "\"" + ohne.Pfad().string() + "\"";
    EXPECT_THAT([&] { (void)ohne.Lesen(); },
                ThrowsMessage<Dateifehler>(
                    "Die Datei " + pfad + " kann nicht angelegt werden: Datei oder Ordner nicht vorhanden."));
    EXPECT_THAT(
        [&] { ohne.Schreiben(Saetze(1)); },
        ThrowsMessage<Dateifehler>("Die Datei " + pfad +
                                   " kann nicht geschrieben werden: Datei oder Ordner nicht vorhanden."));
}

TEST_F(SatzdateiTest, OrdnerAnStelleDerDateiIstEinFehler) {
    std::filesystem::create_directory(datei.Pfad());
    EXPECT_THAT([&] { (void)datei.Lesen(); },
                ThrowsMessage<Dateifehler>(HasSubstr("nicht gelesen werden: Das ist ein Ordner.")));
    EXPECT_THAT([&] { datei.Schreiben(Saetze(1)); },
                ThrowsMessage<Dateifehler>(HasSubstr("nicht geschrieben werden: Das ist ein Ordner.")));
}

TEST_F(SatzdateiTest, LesefehlerDerPlatteIstEinFehler) {
    datei.Schreiben(Saetze(10));
    for (int gute = 0; gute < 4; ++gute) {
        const Stoerung stoerung({.stueck = 70, .unterbrechen = false, .gute = gute, .fehlernummer = EIO});
        EXPECT_THAT([&] { (void)datei.Lesen(); },
                    ThrowsMessage<Dateifehler>(HasSubstr("nicht gelesen werden: Fehler bei der Ein-")))
            << gute;
    }
}

TEST_F(SatzdateiTest, LesenInKleinenUnterbrochenenStueckenGehtGut) {
    datei.Schreiben(Saetze(10));
    const Stoerung stoerung({.stueck = 7, .unterbrechen = true, .gute = 1000, .fehlernummer = EIO});
    EXPECT_EQ(datei.Lesen(), Saetze(10));
    EXPECT_EQ(Stoerung::Aufrufe(), 2 * 280 / 7);
}

TEST_F(SatzdateiTest, SchreibfehlerDerPlatteLaesstDieAlteDateiStehen) {
    datei.Schreiben(Saetze(2));
    for (int gute = 0; gute < 4; ++gute) {
        {
            const Stoerung stoerung(
                {.stueck = 70, .unterbrechen = false, .gute = gute, .fehlernummer = ENOSPC});
            EXPECT_THAT([&] { datei.Schreiben(Saetze(10)); },
                        ThrowsMessage<Dateifehler>(HasSubstr("Kein Platz auf dem Datenträger.")))
                << gute;
        }
        EXPECT_EQ(datei.Lesen(), Saetze(2)) << gute;
        EXPECT_THAT(ordner.Namen(), ElementsAre("Lösungsdatei")) << gute;
    }
}

}  // namespace satzdatei_test
}  // namespace zinfolio
