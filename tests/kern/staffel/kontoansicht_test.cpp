#include "kern/staffel/kontoansicht.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "kern/staffel/beispielkonto.h"
#include "kern/staffel/staffelberechnung.h"

namespace zinfolio {
namespace kontoansicht_test {

using enum Kontoansicht;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> Koepfe(Kontoansicht ansicht) {
    std::vector<std::string> koepfe;
    for (const Kontospalte& spalte : Ansichtsspalten(ansicht))
        koepfe.emplace_back(spalte.kopf);
    return koepfe;
}

std::vector<std::string> Zellen(Kontoansicht ansicht, const Staffelsatz& satz) {
    std::vector<std::string> zellen;
    for (const Kontospalte& spalte : Ansichtsspalten(ansicht))
        zellen.push_back(spalte.zelle(satz));
    return zellen;
}

/// A row in which each number looks different with and without a format.
Staffelsatz Musterzeile() {
    Staffelsatz satz = Zahlung("15.03.2007", -1250.5, "Miete Köln");
    satz.kondition = {.Gutzins1 = 3.3F,
                      .Gutzins2 = 0,
                      .Guthabenlinie = 1234567.891,
                      .Kreditzins1 = 12.75F,
                      .Kreditzins2 = 999,
                      .Kreditlinie = 5000.5,
                      .Zweitzinsart = 2};
    satz.Zinstage = 1234;
    satz.Periodenzins = 1086.5;
    satz.Kumulzins = 2086.25;
    satz.Zinsgutschrift = 3086.5;
    satz.Kontostand = 15086.53;
    return satz;
}

TEST(Ansichtsspalten, KurzformHatFuenfSpalten) {
    EXPECT_THAT(Koepfe(kurzform), ElementsAre("Datum", "Vorgang", "Zahlungsbetrag", "Zinsen", "Kontostand"));
    EXPECT_THAT(Zellen(kurzform, Musterzeile()),
                ElementsAre("15.03.2007", "Miete Köln", "-1.250,50", "3.086,50", "15.086,53"));
}

TEST(Ansichtsspalten, Detailansicht1HatSechsSpalten) {
    EXPECT_THAT(Koepfe(detailansicht1), ElementsAre("Datum", "Vorgang", "Betrag (t)", "Zinsen bis (t+1)",
                                                    "kumulierte Zinsen bis (t+1)", "Kontostand (t)"));
    EXPECT_THAT(Zellen(detailansicht1, Musterzeile()),
                ElementsAre("15.03.2007", "Miete Köln", "-1.250,50", "1.086,50", "2.086,25", "15.086,53"));
}

TEST(Ansichtsspalten, Detailansicht2HatAchtSpalten) {
    EXPECT_THAT(Koepfe(detailansicht2),
                ElementsAre("Datum", "Vorgang", "Betrag (t)", "Tage bis (t+1)", "Zinsen bis (t+1)",
                            "Zinsgutschrift (t)", "kumulierte Zinsen bis (t+1)", "Kontostand (t)"));
    EXPECT_THAT(Zellen(detailansicht2, Musterzeile()),
                ElementsAre("15.03.2007", "Miete Köln", "-1.250,50", "1234", "1.086,50", "3086,5", "2.086,25",
                            "15.086,53"));
}

TEST(Ansichtsspalten, Detailansicht3HatFuenfzehnSpalten) {
    EXPECT_THAT(Koepfe(detailansicht3),
                ElementsAre("Datum", "Vorgang", "Guthabenzins 1           bis(t+1)  %",
                            "Guthabenzins 2           bis(t+1)  %", "Guthabenlinie            bis(t+1)",
                            "Kreditzins 1             bis (t+1) %", "Kreditzins 2             bis (t+1) %",
                            "Kreditlinie bis(t+1)", "Basis für Zinssatz 2", "Betrag (t)", "Tage bis (t+1)",
                            "Zinsen bis (t+1)", "Zinsgutschrift (t)", "kumulierte Zinsen bis (t+1)",
                            "Kontostand (t)"));
    EXPECT_THAT(
        Zellen(detailansicht3, Musterzeile()),
        ElementsAre("15.03.2007", "Miete Köln", "3,3", "0", "1234567,891", "12,75", "999", "5000,5",
                    "Betrag über Limit", "-1.250,50", "1234", "1.086,50", "3086,5", "2.086,25", "15.086,53"));
}

TEST(Ansichtsspalten, NullHatZweiStellenMitFormatUndKeineOhne) {
    EXPECT_THAT(Zellen(detailansicht2, Termin("31.03.2007")),
                ElementsAre("31.03.2007", "Zinstermin", "0,00", "0", "0,00", "0", "0,00", "0,00"));
}

TEST(Ansichtsspalten, NegativeUndKleineBetraege) {
    Staffelsatz satz = Musterzeile();
    satz.Zahlbetrag = -0.001;
    satz.Zinsgutschrift = -24.72;
    satz.Kontostand = -1234567.895;
    EXPECT_THAT(Zellen(kurzform, satz),
                ElementsAre("15.03.2007", "Miete Köln", "0,00", "-24,72", "-1.234.567,90"));
    EXPECT_EQ(Zellen(detailansicht3, satz)[12], "-24,72");
}

TEST(Ansichtsspalten, ZinstageOhneTrennpunkt) {
    Staffelsatz satz = Musterzeile();
    satz.Zinstage = -3652000;
    EXPECT_EQ(Zellen(detailansicht2, satz)[3], "-3652000");
}

TEST(Vorgang, JeNachZahlungsart) {
    EXPECT_EQ(Zellen(kurzform, Zahlung("01.01.2007", 1, "Miete"))[1], "Miete");
    EXPECT_EQ(Zellen(kurzform, Kondition("01.01.2007", {}))[1], "Konditionenänderung");
    EXPECT_EQ(Zellen(kurzform, Termin("31.03.2007"))[1], "Zinstermin");
}

TEST(Vorgang, ZahlungstextWirdBeidseitigGetrimmt) {
    EXPECT_EQ(Zellen(detailansicht1, Zahlung("01.01.2007", 1, "  Erste  Rate  "))[1], "Erste  Rate");
}

TEST(Vorgang, ZahlungOhneTextHeisstZahlung) {
    EXPECT_EQ(Zellen(kurzform, Zahlung("01.01.2007", 1, ""))[1], "Zahlung");
    EXPECT_EQ(Zellen(detailansicht3, Zahlung("01.01.2007", 1, "   "))[1], "Zahlung");
    Staffelsatz nieZugewiesen = Zahlung("01.01.2007", 1);
    nieZugewiesen.Zahlungstext = {};
    EXPECT_EQ(Zellen(kurzform, nieZugewiesen)[1], "Zahlung");
}

TEST(BasisFuerZinssatz2, JeNachZweitzinsart) {
    const auto basis = [](std::int16_t zweitzinsart) {
        Staffelsatz satz = Musterzeile();
        satz.kondition.Zweitzinsart = zweitzinsart;
        return Zellen(detailansicht3, satz)[8];
    };
    EXPECT_EQ(basis(1), "Gesamtbetrag");
    EXPECT_EQ(basis(2), "Betrag über Limit");
    EXPECT_EQ(basis(0), "");
    EXPECT_EQ(basis(3), "");
    EXPECT_EQ(basis(-1), "");
}

TEST(Ansichtszeilen, KurzformOhneKonditionenSonstAlle) {
    std::vector<Staffelsatz> saetze = Beispielstaffel();
    saetze.insert(saetze.begin() + 2, Kondition("01.02.2007", {}));
    EXPECT_THAT(Ansichtszeilen(kurzform, saetze), ElementsAre(1U, 3U));
    for (const auto ansicht : {detailansicht1, detailansicht2, detailansicht3})
        EXPECT_THAT(Ansichtszeilen(ansicht, saetze), ElementsAre(0U, 1U, 2U, 3U));
}

TEST(Ansichtszeilen, FremdeZeileGehoertZurKurzform) {
    std::vector<Staffelsatz> saetze = Beispielstaffel();
    saetze[1].Zahlungsart = 7;
    EXPECT_THAT(Ansichtszeilen(kurzform, saetze), ElementsAre(1U, 2U));
}

TEST(Ansichtszeilen, OhneZeilen) {
    EXPECT_THAT(Ansichtszeilen(kurzform, {}), IsEmpty());
    EXPECT_THAT(Ansichtszeilen(detailansicht3, {}), IsEmpty());
}

TEST(Kurzform, ZeigtDasBeispiel) {
    std::vector<Staffelsatz> saetze = Beispielstaffel();
    Staffelberechnung(saetze, Verzinsungsmethode::deutsch);
    EXPECT_THAT(Zellen(kurzform, saetze[1]),
                ElementsAre("01.01.2007", "Zahlung", "15.000,00", "0,00", "15.000,00"));
    EXPECT_THAT(Zellen(kurzform, saetze[2]),
                ElementsAre("31.03.2007", "Zinstermin", "0,00", "86,53", "15.086,53"));
    EXPECT_EQ(Zellen(detailansicht2, saetze[2])[3], "0") << "no days behind the last row";
    EXPECT_EQ(Zellen(detailansicht2, saetze[2])[5], "86,53");
}

TEST(Ansichtsregel, ZahlungenHeissenWieIhrRechnerSieNennt) {
    const auto vorgang = [](Zahlungsvorgang art, std::string_view text) {
        return Ansichtsspalten(detailansicht3, {.vorgang = art})[1].zelle(Zahlung("01.01.2007", 1, text));
    };
    EXPECT_EQ(vorgang(Zahlungsvorgang::textOderZahlung, " "), "Zahlung");
    EXPECT_EQ(vorgang(Zahlungsvorgang::text, " "), "");
    EXPECT_EQ(vorgang(Zahlungsvorgang::text, " Rate "), "Rate");
    EXPECT_EQ(vorgang(Zahlungsvorgang::zahlung, "Rate"), "Zahlung");
    EXPECT_EQ(Ansichtsspalten(kurzform, {.vorgang = Zahlungsvorgang::zahlung})[1].zelle(Termin("31.03.2007")),
              "Zinstermin");
}

TEST(Ansichtsregel, KonditionenAuchInDerKurzform) {
    const std::vector saetze{Kondition("01.01.2007", {}), Zahlung("01.02.2007", 5)};
    EXPECT_THAT(Ansichtszeilen(kurzform, saetze, {.konditionenInKurzform = true}), ElementsAre(0U, 1U));
}

TEST(Ansichtsregel, EineGezeigteKonditionIstDieLetzteZeileDerSummen) {
    std::vector saetze{Zahlung("01.02.2007", 5), Kondition("01.03.2007", {})};
    saetze[0].Kontostand = 5;
    saetze[1].Kontostand = 6;
    EXPECT_EQ(KontosummenBilden(saetze, {.konditionenInKurzform = true}).Endvermögen, "6,00");
    EXPECT_EQ(KontosummenBilden(saetze).Endvermögen, "5,00");
}

TEST(AnsichtBilden, ZeigtDieZeilenDerAnsicht) {
    const auto saetze = std::make_shared<const std::vector<Staffelsatz>>(
        std::vector{Kondition("01.01.2007", {}), Zahlung("01.02.2007", 1250.5, "Miete")});
    const Tabelleninhalt tabelle = AnsichtBilden(kurzform, saetze);
    ASSERT_EQ(tabelle.zeilen, 1U);
    EXPECT_EQ(tabelle.zelle(0, 1), "Miete");
    EXPECT_EQ(tabelle.zelle(0, 2), "1.250,50");
    EXPECT_EQ(std::get<double>(tabelle.Wert(0, 2)), 1250.5);
    EXPECT_EQ(std::get<Datum>(tabelle.Wert(0, 0)), Datum::Aus(2007, 2, 1));
    EXPECT_EQ(std::get<std::string>(tabelle.Wert(0, 1)), "Miete");
}

TEST(AnsichtBilden, OhneLoesungHatSieKeineZeilen) {
    EXPECT_EQ(AnsichtBilden(detailansicht3, nullptr).zeilen, 0U);
    EXPECT_EQ(AnsichtBilden(detailansicht3, nullptr).spalten.size(), 15U);
}

TEST(KontosummenBilden, UeberDieZeilenDerKurzform) {
    std::vector<Staffelsatz> saetze = Beispielstaffel();
    Staffelberechnung(saetze, Verzinsungsmethode::deutsch);
    saetze.insert(saetze.begin() + 2, Zahlung("01.02.2007", -500.25));
    const Kontosummen summen = KontosummenBilden(saetze);
    EXPECT_EQ(summen.Gesamtzahlungssumme, "14.499,75");
    EXPECT_EQ(summen.Endvermögen, "15.086,53");
    EXPECT_EQ(summen.Gesamtzinsen, "586,78");
}

TEST(KontosummenBilden, KonditionszeilenZaehlenNicht) {
    std::vector<Staffelsatz> saetze = Beispielstaffel();
    saetze[1].Kontostand = 15000;
    saetze[2] = Kondition("01.02.2007", {});
    saetze[2].Zahlbetrag = 99;
    saetze[2].Kontostand = 98;
    const Kontosummen summen = KontosummenBilden(saetze);
    EXPECT_EQ(summen.Gesamtzahlungssumme, "15.000,00");
    EXPECT_EQ(summen.Endvermögen, "15.000,00") << "the last row shown, not the last of all";
    EXPECT_EQ(summen.Gesamtzinsen, "0,00");
}

TEST(KontosummenBilden, OhneGezeigteZeilenSindNull) {
    for (const auto& saetze : {std::vector<Staffelsatz>{}, std::vector{Kondition("01.01.2007", {})}}) {
        const Kontosummen summen = KontosummenBilden(saetze);
        EXPECT_EQ(summen.Gesamtzahlungssumme, "0,00");
        EXPECT_EQ(summen.Endvermögen, "0,00");
        EXPECT_EQ(summen.Gesamtzinsen, "0,00");
    }
}

TEST(Kontoansichten, StehenInDerReihenfolgeDerListe) {
    EXPECT_THAT(kontoansichten,
                ElementsAre("Kurzform", "Detailansicht 1", "Detailansicht 2", "Detailansicht 3"));
}

}  // namespace kontoansicht_test
}  // namespace zinfolio
