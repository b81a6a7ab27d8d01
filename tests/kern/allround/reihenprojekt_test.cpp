#include "kern/allround/reihenprojekt.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "kern/allround/zahlungen.h"
#include "kern/dateien/dateifehler.h"
#include "kern/dateien/satzdatei.h"
#include "kern/dateien/testordner.h"

namespace zinfolio {
namespace reihenprojekt_test {

using testing::ElementsAre;

struct Reihenprojekttest : testing::Test {
    Testordner arbeit;
    Testordner ablage;

    void Setze(const std::vector<Staffelsatz>& zahlungen) const {
        Satzdatei<Staffelsatz>(arbeit.Pfad(), "ZahlungenT").Schreiben(zahlungen);
    }
    void Speichere(const char* name, std::string_view vorher = "",
                   std::string_view notiz = "{\\rtf1 Hallo}") const {
        ReihenprojektSpeichern(arbeit.Pfad(), ablage.Pfad() / name, vorher, notiz);
    }
};

TEST_F(Reihenprojekttest, BestehtAusMarkeZahlungenUndNotizen) {
    Setze(Investition());
    Speichere("Solar.RRR");
    EXPECT_THAT(ablage.Namen(), ElementsAre("Solar.RRR", "SolarRendite", "ZahlungenTSolar"));
    EXPECT_EQ(ablage.Inhalt("ZahlungenTSolar"), arbeit.Inhalt("ZahlungenT"));
    EXPECT_EQ(ablage.Inhalt("SolarRendite"), "{\\rtf1 Hallo}");
}

TEST_F(Reihenprojekttest, DieMarkeHaeltDenNamenDenDasProjektVorherHatte) {
    Setze({});
    Speichere("Eins.RRR");
    EXPECT_EQ(ablage.Inhalt("Eins.RRR"), "\r\n");
    Speichere("Zwei.RRR", "Müller");
    EXPECT_EQ(ablage.Inhalt("Zwei.RRR"), "M\xFCller\r\n");
}

TEST_F(Reihenprojekttest, NeuerNameLaesstDieAltenDateienStehen) {
    Setze(Investition());
    Speichere("Eins.RRR", "", "alt");
    Setze({});
    Speichere("Zwei.RRR", "Eins", "neu");
    EXPECT_EQ(ablage.Inhalt("ZahlungenTEins").size(), 4 * 129U);
    EXPECT_EQ(ablage.Inhalt("EinsRendite"), "alt");
    EXPECT_EQ(ablage.Inhalt("ZahlungenTZwei"), "");
}

TEST_F(Reihenprojekttest, KommtWiederMitAllemWasEsHielt) {
    Setze(Investition());
    Speichere("Solar.RRR");
    Setze({});
    const Reihenprojekt projekt = ReihenprojektLesen(ablage.Pfad() / "Solar.RRR");
    EXPECT_EQ(projekt.zahlungen, Investition());
    EXPECT_EQ(projekt.notizen, "{\\rtf1 Hallo}");
    ReihenprojektUebernehmen(arbeit.Pfad(), projekt);
    EXPECT_EQ(arbeit.Inhalt("ZahlungenT"), ablage.Inhalt("ZahlungenTSolar"));
}

TEST_F(Reihenprojekttest, GeleerteUndVeraenderteMarkenOeffnenWieJedeAndere) {
    Setze(Investition());
    Speichere("Solar.RRR");
    for (const char* marke : {"", "irgendetwas"}) {
        ablage.Ablegen("Solar.RRR", marke);
        EXPECT_EQ(ReihenprojektLesen(ablage.Pfad() / "Solar.RRR").zahlungen.size(), 4U);
    }
}

TEST_F(Reihenprojekttest, EineLeereReiheWirdEineLeereDateiUndKommtLeerWieder) {
    Setze({});
    Speichere("Leer.RRR");
    EXPECT_EQ(ablage.Inhalt("ZahlungenTLeer"), "");
    EXPECT_TRUE(ReihenprojektLesen(ablage.Pfad() / "Leer.RRR").zahlungen.empty());
}

TEST_F(Reihenprojekttest, FehlendeTeileSindEinFehler) {
    EXPECT_THROW(static_cast<void>(ReihenprojektLesen(ablage.Pfad() / "Fehlt.RRR")), Dateifehler);
    ablage.Ablegen("Nur.RRR", "\r\n");
    EXPECT_THROW(static_cast<void>(ReihenprojektLesen(ablage.Pfad() / "Nur.RRR")), Dateifehler);
    ablage.Ablegen("ZahlungenTNur", "");
    EXPECT_THROW(static_cast<void>(ReihenprojektLesen(ablage.Pfad() / "Nur.RRR")), Dateifehler);
}

TEST_F(Reihenprojekttest, EinNameAusDerEndungAlleinIstEinFehler) {
    Setze({});
    EXPECT_THROW(Speichere(".RRR"), Dateifehler);
}

}  // namespace reihenprojekt_test
}  // namespace zinfolio
