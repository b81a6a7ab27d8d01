#include "kern/staffel/kontodateien.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "kern/dateien/testordner.h"
#include "kern/staffel/beispielkonto.h"

namespace zinfolio {
namespace kontodateien_test {

using testing::ElementsAre;

class KontodateienTest : public testing::Test {
  protected:
    Testordner ordner;
    Kontodateien dateien{ordner.Pfad()};
    Satzdatei<Staffelsatz> termine{ordner.Pfad(), "Zinsverrechnungstermine"};
    Satzdatei<Staffelsatz> loesung{ordner.Pfad(), "Lösungsdatei"};
    Konto konto;

    [[nodiscard]] static Kontoeinstellungen Einstellungen(std::string_view kontodatum) {
        return {Zinsverrechnungsart::quartalsende, std::string(kontodatum), Verzinsungsmethode::deutsch};
    }

    void BeispielAblegen() const {
        dateien.Zahlungen().Schreiben(std::vector{Zahlung("01.02.2007", 1), Zahlung("01.01.2007", 15000)});
        dateien.Konditionen().Schreiben(std::vector{Kondition("01.01.2007", beispielkonditionen)});
    }
};

TEST_F(KontodateienTest, NeuLegtLeereEingabenAnUndLoeschtDieEinstellungen) {
    BeispielAblegen();
    KontoeinstellungenSchreiben(ordner.Pfad(), Einstellungen("31.03.2007"));
    dateien.Neu();
    EXPECT_THAT(ordner.Namen(), ElementsAre("Zinsstaffel1", "ZinsstaffelZins"));
    EXPECT_EQ(ordner.Inhalt("Zinsstaffel1"), "");
    EXPECT_EQ(ordner.Inhalt("ZinsstaffelZins"), "");
}

TEST_F(KontodateienTest, FehlendeDateienZaehlenAlsLeereUndSindDanachDa) {
    const auto ablehnung = dateien.Rechnen(Einstellungen("31.03.2007"), konto);
    ASSERT_TRUE(ablehnung.has_value());
    EXPECT_EQ(ablehnung->Register, "Zahlungen");
    EXPECT_THAT(ordner.Namen(), ElementsAre("Zinsstaffel1", "ZinsstaffelZins"));
    EXPECT_EQ(dateien.Zahlungen().Anzahl(), 0U);
}

TEST_F(KontodateienTest, RechnenHinterlaesstSortierteEingabeTermineUndLoesung) {
    BeispielAblegen();
    EXPECT_EQ(dateien.Rechnen(Einstellungen("30.06.2007"), konto), std::nullopt);
    EXPECT_THAT(Uebersicht(dateien.Zahlungen().Lesen()), ElementsAre("1 01.01.2007", "1 01.02.2007"));
    EXPECT_THAT(Uebersicht(termine.Lesen()), ElementsAre("3 31.03.2007", "3 30.06.2007"));
    EXPECT_EQ(loesung.Lesen(), konto.loesung);
    EXPECT_EQ(konto.loesung.size(), 5U);
    EXPECT_EQ(konto.loesung.back().Zinstage, 0);
}

TEST_F(KontodateienTest, FehlendesDatumLaesstDieAltenErgebnisseStehenUndSortiertDoch) {
    BeispielAblegen();
    loesung.Schreiben(Beispielstaffel());
    termine.Schreiben(std::vector{Termin("31.12.1999")});
    EXPECT_TRUE(dateien.Rechnen(Einstellungen(""), konto).has_value());
    EXPECT_THAT(Uebersicht(dateien.Zahlungen().Lesen()), ElementsAre("1 01.01.2007", "1 01.02.2007"));
    EXPECT_EQ(loesung.Lesen(), Beispielstaffel());
    EXPECT_THAT(Uebersicht(termine.Lesen()), ElementsAre("3 31.12.1999"));
}

TEST_F(KontodateienTest, AblehnungNachDemMischenLaesstDieGemischteDateiStehen) {
    BeispielAblegen();
    EXPECT_TRUE(dateien.Rechnen(Einstellungen("30.12.2006"), konto).has_value());
    EXPECT_THAT(loesung.Lesen(), ElementsAre(Termin("30.12.2006")));
}

TEST_F(KontodateienTest, FehlerInDerBerechnungHinterlaesstDieFertigenZeilen) {
    dateien.Zahlungen().Schreiben(std::vector{Zahlung("01.01.2007", 1e308), Zahlung("01.01.2007", 1e308)});
    dateien.Konditionen().Schreiben(std::vector{Kondition("01.01.2007", beispielkonditionen)});
    EXPECT_THROW((void)dateien.Rechnen(Einstellungen("30.06.2007"), konto), std::runtime_error);
    const std::vector<Staffelsatz> rest = loesung.Lesen();
    ASSERT_EQ(rest.size(), 5U);
    EXPECT_EQ(rest[1].Kontostand, 1e308);
    EXPECT_EQ(rest[2], Zahlung("01.01.2007", 1e308));
}

TEST_F(KontodateienTest, FehlerBeimMischenHinterlaesstDieZeilenDavor) {
    dateien.Zahlungen().Schreiben(
        std::vector{Zahlung("01.01.2007", 1), MitDatumstext(Zahlung("01.02.2007", 2), "31.02.2007")});
    dateien.Konditionen().Schreiben(std::vector{Kondition("01.01.2007", beispielkonditionen)});
    loesung.Schreiben(Beispielstaffel());
    EXPECT_THROW((void)dateien.Rechnen(Einstellungen("30.06.2007"), konto), std::runtime_error);
    EXPECT_THAT(Uebersicht(termine.Lesen()), ElementsAre("3 31.03.2007", "3 30.06.2007"));
    EXPECT_THAT(Uebersicht(loesung.Lesen()), ElementsAre("2 01.01.2007", "1 01.01.2007"));
}

TEST_F(KontodateienTest, FehlerImKalenderHinterlaesstDieTermineDavorUndDieAlteLoesung) {
    dateien.Zahlungen().Schreiben(std::vector{Zahlung("01.07.9999", 1)});
    dateien.Konditionen().Schreiben(std::vector{Kondition("01.01.2007", beispielkonditionen)});
    loesung.Schreiben(Beispielstaffel());
    EXPECT_THROW((void)dateien.Rechnen(Einstellungen("31.12.9999"), konto), Datumsfehler);
    EXPECT_THAT(Uebersicht(termine.Lesen()), ElementsAre("3 30.09.9999"));
    EXPECT_EQ(loesung.Lesen(), Beispielstaffel());
}

TEST_F(KontodateienTest, BeschaedigteErsteZahlungLeertDieTermine) {
    // The old calendar is deleted before the first payment is read.
    dateien.Zahlungen().Schreiben(std::vector{MitDatumstext(Zahlung("01.01.2007", 1), "31.02.2007")});
    dateien.Konditionen().Schreiben(std::vector{Kondition("01.01.2007", beispielkonditionen)});
    termine.Schreiben(std::vector{Termin("31.12.1999")});
    EXPECT_THROW((void)dateien.Rechnen(Einstellungen("30.06.2007"), konto), Datumsfehler);
    EXPECT_TRUE(termine.Lesen().empty());
}

}  // namespace kontodateien_test
}  // namespace zinfolio
