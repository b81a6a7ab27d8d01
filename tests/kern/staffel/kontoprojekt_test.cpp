#include "kern/staffel/kontoprojekt.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <vector>

#include "kern/dateien/dateifehler.h"
#include "kern/dateien/groessengrenze.h"
#include "kern/dateien/ohnevorrechte.h"
#include "kern/dateien/testordner.h"
#include "kern/staffel/beispielkonto.h"
#include "kern/staffel/kontodateien.h"

namespace zinfolio {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::ThrowsMessage;

struct Stammfall {
    std::string name;
    std::string stamm;
};

void PrintTo(const Stammfall& fall, std::ostream* strom) {
    *strom << fall.name;
}

class ProjektpfadeTest : public testing::TestWithParam<Stammfall> {};

INSTANTIATE_TEST_SUITE_P(Namen, ProjektpfadeTest,
                         testing::Values(Stammfall{"Konto.ZiS", "Konto"}, Stammfall{"konto.zis", "konto"},
                                         Stammfall{"Konto 2007.1.v2.ZiS", "Konto 2007.1.v2"},
                                         Stammfall{"Konto.ZiS.ZiS", "Konto.ZiS"},
                                         Stammfall{"Überziehung für Jörg.ZiS", "Überziehung für Jörg"},
                                         Stammfall{"Счёт 口座.ZiS", "Счёт 口座"},
                                         Stammfall{"Girokonto", "Girok"}, Stammfall{"x.ZiS", "x"},
                                         Stammfall{"xäöüß", "x"}, Stammfall{"ü\xFF\xFE\xFD\xFC", "ü"},
                                         Stammfall{" .ZiS", " "}));

TEST_P(ProjektpfadeTest, BeidateienEndenMitDemNamenOhneSeineLetztenVierZeichen) {
    const Projektpfade pfade(fs::path("/Konten/Eigene") / GetParam().name);
    EXPECT_EQ(pfade.projekt, "/Konten/Eigene/" + GetParam().name);
    EXPECT_EQ(pfade.zahlungen, "/Konten/Eigene/Zinsstaffel1" + GetParam().stamm);
    EXPECT_EQ(pfade.konditionen, "/Konten/Eigene/Zinsstaffelzins" + GetParam().stamm);
    EXPECT_EQ(pfade.einstellungen, "/Konten/Eigene/Zinsverrechnung" + GetParam().stamm);
}

TEST(Projektpfade, OhneOrdnerLiegenDieBeidateienImAktuellen) {
    EXPECT_EQ(Projektpfade("Konto.ZiS").zahlungen, "Zinsstaffel1Konto");
}

TEST(Projektpfade, EinNameAusHoechstensVierZeichenIstEinFehler) {
    for (const char* name : {"/a/.ZiS", "/a/abcd", "/a/äöüß", "/a/x", "/a/"})
        EXPECT_THROW(Projektpfade{name}, Dateifehler) << name;
    EXPECT_THAT([] { (void)Projektpfade("/a/.ZiS"); },
                ThrowsMessage<Dateifehler>(
                    "Datei \"/a/.ZiS\": Der Name ist zu kurz: vor der Endung \".ZiS\" steht nichts."));
}

/// Bytes that no text has, and a torn record at the end.
std::string Satzbytes(std::size_t laenge, unsigned char erstes) {
    std::string bytes(laenge, '\0');
    for (std::size_t i = 0; i < laenge; ++i)
        bytes[i] = static_cast<char>(erstes + 7 * i);
    return bytes;
}

class KontoprojektTest : public testing::Test {
  protected:
    Testordner arbeit;
    Testordner ablage;
    fs::path projekt = ablage.Pfad() / "Mein Konto.alt für Öl.ZiS";
    const std::string zahlungen = Satzbytes(2 * 129 + 5, 1);
    const std::string konditionen = Satzbytes(129, 100);
    const std::string einstellungen = Satzbytes(90, 200);
    const std::string notizen = "{\\rtf1\\ansi Notizen\\par}\r\n\0\xFF Rest"s;

    void SetUp() override {
        arbeit.Ablegen("Zinsstaffel1", zahlungen);
        arbeit.Ablegen("ZinsstaffelZins", konditionen);
        arbeit.Ablegen("Zinsverrechnung", einstellungen);
    }
    void Speichern() const { KontoprojektSpeichern(arbeit.Pfad(), projekt, notizen); }
    [[nodiscard]] std::string Einlesen() const { return KontoprojektEinlesen(arbeit.Pfad(), projekt); }

    void AltesProjektAblegen() const {
        ablage.Ablegen("Mein Konto.alt für Öl.ZiS", "alte Notizen");
        ablage.Ablegen("Zinsstaffel1Mein Konto.alt für Öl", std::string(1000, 'Z'));
        ablage.Ablegen("ZinsstaffelzinsMein Konto.alt für Öl", "alte Konditionen");
        ablage.Ablegen("ZinsverrechnungMein Konto.alt für Öl", "alte Einstellungen");
    }
    [[nodiscard]] std::vector<std::string> Projektinhalt() const {
        return {ablage.Inhalt("Mein Konto.alt für Öl.ZiS"),
                ablage.Inhalt("Zinsstaffel1Mein Konto.alt für Öl"),
                ablage.Inhalt("ZinsstaffelzinsMein Konto.alt für Öl"),
                ablage.Inhalt("ZinsverrechnungMein Konto.alt für Öl")};
    }
    [[nodiscard]] std::vector<std::string> Arbeitsinhalt() const {
        return {arbeit.Inhalt("Zinsstaffel1"), arbeit.Inhalt("ZinsstaffelZins"),
                arbeit.Inhalt("Zinsverrechnung")};
    }
    void ExpectAltesProjekt() const {
        EXPECT_THAT(Projektinhalt(), ElementsAre("alte Notizen", std::string(1000, 'Z'), "alte Konditionen",
                                                 "alte Einstellungen"));
        EXPECT_THAT(ablage.Namen(), SizeIs(4));
    }
};

TEST_F(KontoprojektTest, SpeichernSchreibtVierDateienByteFuerByte) {
    Speichern();
    EXPECT_THAT(ablage.Namen(),
                ElementsAre("Mein Konto.alt für Öl.ZiS", "Zinsstaffel1Mein Konto.alt für Öl",
                            "ZinsstaffelzinsMein Konto.alt für Öl", "ZinsverrechnungMein Konto.alt für Öl"));
    EXPECT_THAT(Projektinhalt(), ElementsAre(notizen, zahlungen, konditionen, einstellungen));
    EXPECT_THAT(Arbeitsinhalt(), ElementsAre(zahlungen, konditionen, einstellungen));
    EXPECT_THAT(arbeit.Namen(), SizeIs(3));
}

TEST_F(KontoprojektTest, SpeichernErsetztAlleVierVorhandenen) {
    AltesProjektAblegen();
    Speichern();
    EXPECT_THAT(Projektinhalt(), ElementsAre(notizen, zahlungen, konditionen, einstellungen));
    EXPECT_THAT(ablage.Namen(), SizeIs(4));
}

TEST_F(KontoprojektTest, LeereDateienUndNotizenGehenAuch) {
    for (const char* name : {"Zinsstaffel1", "ZinsstaffelZins", "Zinsverrechnung"})
        arbeit.Ablegen(name, "");
    KontoprojektSpeichern(arbeit.Pfad(), projekt, "");
    EXPECT_THAT(Projektinhalt(), ElementsAre("", "", "", ""));
    EXPECT_EQ(Einlesen(), "");
}

TEST_F(KontoprojektTest, OhneEineArbeitsdateiWirdNichtsGespeichert) {
    AltesProjektAblegen();
    for (const char* name : {"Zinsstaffel1", "ZinsstaffelZins", "Zinsverrechnung"}) {
        SetUp();
        fs::remove(arbeit.Pfad() / name);
        EXPECT_THAT(
            [this] { Speichern(); },
            ThrowsMessage<Dateifehler>("Die Datei \"" + (arbeit.Pfad() / name).string() +
                                       "\" kann nicht gelesen werden: Datei oder Ordner nicht vorhanden."));
        ExpectAltesProjekt();
        EXPECT_THAT(arbeit.Namen(), SizeIs(2));
    }
}

TEST_F(KontoprojektTest, EinlesenKopiertDieBeidateienUndGibtDieNotizen) {
    Speichern();
    for (const char* name : {"Zinsstaffel1", "ZinsstaffelZins", "Zinsverrechnung"})
        arbeit.Ablegen(name, "ein anderes Konto");
    EXPECT_EQ(Einlesen(), notizen);
    EXPECT_THAT(Arbeitsinhalt(), ElementsAre(zahlungen, konditionen, einstellungen));
    EXPECT_THAT(Projektinhalt(), ElementsAre(notizen, zahlungen, konditionen, einstellungen));
}

TEST_F(KontoprojektTest, NochmalsGespeichertIstEsByteFuerByteDasselbe) {
    Speichern();
    const std::vector<std::string> vorher = Projektinhalt();
    const std::string gelesen = Einlesen();
    KontoprojektSpeichern(arbeit.Pfad(), projekt, gelesen);
    EXPECT_EQ(Projektinhalt(), vorher);
}

TEST_F(KontoprojektTest, VorDerErstenBerechnungGespeichertGehtEsAufWieJedesAndere) {
    const Kontodateien dateien(arbeit.Pfad());
    dateien.Neu();
    KontoeinstellungenSchreiben(arbeit.Pfad(), {});
    Speichern();
    dateien.Zahlungen().Schreiben(std::vector{Zahlung("01.01.2007", 1)});
    EXPECT_EQ(Einlesen(), notizen);
    EXPECT_EQ(dateien.Zahlungen().Anzahl(), 0U);
    const Konto konto = KontoprojektLesen(projekt);
    EXPECT_THAT(konto.zahlungen, IsEmpty());
    EXPECT_THAT(konto.konditionen, IsEmpty());
    EXPECT_EQ(konto.einstellungen.Kontodatum, "");
}

TEST_F(KontoprojektTest, FehlendeBeidateiNenntSichUndWasVorIhrKopiertWarBleibt) {
    const std::array<const char*, 3> beidateien{"Zinsstaffel1Mein Konto.alt für Öl",
                                                "ZinsstaffelzinsMein Konto.alt für Öl",
                                                "ZinsverrechnungMein Konto.alt für Öl"};
    for (std::size_t fehlende = 0; fehlende < 3; ++fehlende) {
        SetUp();
        Speichern();
        for (const char* name : {"Zinsstaffel1", "ZinsstaffelZins", "Zinsverrechnung"})
            arbeit.Ablegen(name, "alt");
        fs::remove(ablage.Pfad() / beidateien.at(fehlende));
        EXPECT_THAT([this] { (void)Einlesen(); },
                    ThrowsMessage<Dateifehler>(HasSubstr("/"s + beidateien.at(fehlende) + "\" kann nicht")));
        EXPECT_THAT(Arbeitsinhalt(),
                    ElementsAre(fehlende > 0 ? zahlungen : "alt", fehlende > 1 ? konditionen : "alt", "alt"));
    }
}

TEST_F(KontoprojektTest, OhneProjektdateiWirdNichtsKopiert) {
    AltesProjektAblegen();
    fs::remove(projekt);
    EXPECT_THAT([this] { (void)Einlesen(); }, ThrowsMessage<Dateifehler>(HasSubstr("Öl.ZiS\" kann nicht")));
    EXPECT_THAT(Arbeitsinhalt(), ElementsAre(zahlungen, konditionen, einstellungen));
}

TEST_F(KontoprojektTest, UnsinnigGrosseDateiWirdNichtGelesen) {
    AltesProjektAblegen();
    fs::resize_file(projekt, (std::uintmax_t{64} << 20) + 1);
    EXPECT_THAT([this] { (void)Einlesen(); }, ThrowsMessage<Dateifehler>(HasSubstr("ist zu groß")));
    EXPECT_THAT(Arbeitsinhalt(), ElementsAre(zahlungen, konditionen, einstellungen));
}

TEST_F(KontoprojektTest, OrdnerAnDerStelleEinerDateiLaesstAllesBeimAlten) {
    for (const char* name : {"Zinsstaffel1Mein Konto.alt für Öl", "ZinsstaffelzinsMein Konto.alt für Öl",
                             "ZinsverrechnungMein Konto.alt für Öl", "Mein Konto.alt für Öl.ZiS"}) {
        fs::create_directory(ablage.Pfad() / name);
        EXPECT_THAT([this] { Speichern(); }, ThrowsMessage<Dateifehler>(HasSubstr("Das ist ein Ordner.")));
        EXPECT_THAT(ablage.Namen(), ElementsAre(name));
        fs::remove(ablage.Pfad() / name);
    }
}

TEST_F(KontoprojektTest, OrdnerDerKeinerIstOderFehltIstEinFehler) {
    ablage.Ablegen("Datei", "");
    projekt = ablage.Pfad() / "Datei" / "Konto.ZiS";
    EXPECT_THAT([this] { Speichern(); },
                ThrowsMessage<Dateifehler>(HasSubstr("Ein Teil des Pfades ist kein Ordner.")));
    projekt = ablage.Pfad() / "fehlt" / "Konto.ZiS";
    EXPECT_THAT([this] { Speichern(); },
                ThrowsMessage<Dateifehler>(HasSubstr("Datei oder Ordner nicht vorhanden.")));
    EXPECT_THAT(ablage.Namen(), ElementsAre("Datei"));
}

TEST_F(KontoprojektTest, OrdnerOhneSchreibrechtLaesstAllesBeimAlten) {
    AltesProjektAblegen();
    ASSERT_EQ(::chmod(arbeit.Pfad().c_str(), 0755), 0);
    ASSERT_EQ(::chmod(ablage.Pfad().c_str(), 0555), 0);
    for (const std::string& name : ablage.Namen())
        ASSERT_EQ(::chmod((ablage.Pfad() / name).c_str(), 0666), 0);
    {
        const OhneVorrechte niemand;
        EXPECT_THAT([this] { Speichern(); }, ThrowsMessage<Dateifehler>(HasSubstr("Keine Berechtigung.")));
    }
    ExpectAltesProjekt();
    ASSERT_EQ(::chmod(ablage.Pfad().c_str(), 0755), 0);
}

TEST_F(KontoprojektTest, EineSchreibgeschuetzteDateiLaesstAllesBeimAlten) {
    AltesProjektAblegen();
    ASSERT_EQ(::chmod(arbeit.Pfad().c_str(), 0755), 0);
    ASSERT_EQ(::chmod(ablage.Pfad().c_str(), 0777), 0);
    for (const std::string& name : ablage.Namen())
        ASSERT_EQ(::chmod((ablage.Pfad() / name).c_str(), 0666), 0);
    ASSERT_EQ(::chmod(projekt.c_str(), 0444), 0);
    {
        const OhneVorrechte niemand;
        EXPECT_THAT([this] { Speichern(); }, ThrowsMessage<Dateifehler>(HasSubstr("Keine Berechtigung.")));
    }
    ExpectAltesProjekt();
}

TEST_F(KontoprojektTest, VollerDatentraegerLaesstAllesBeimAlten) {
    AltesProjektAblegen();
    arbeit.Ablegen("Zinsverrechnung", std::string(10'001, 'x'));
    {
        const Groessengrenze grenze(10'000);
        EXPECT_THAT([this] { Speichern(); },
                    ThrowsMessage<Dateifehler>(HasSubstr("Die Datei wird zu groß.")));
        ExpectAltesProjekt();
        SetUp();
        EXPECT_THROW(KontoprojektSpeichern(arbeit.Pfad(), projekt, std::string(10'001, 'x')), Dateifehler);
        ExpectAltesProjekt();
    }
    Speichern();
    EXPECT_THAT(Projektinhalt(), ElementsAre(notizen, zahlungen, konditionen, einstellungen));
}

TEST_F(KontoprojektTest, EineArbeitsdateiWirdNieDasZielIhresProjekts) {
    for (const char* name : {"Zinsstaffel1", "ZinsstaffelZins", "Zinsverrechnung", "Lösungsdatei",
                             "Zinsverrechnungstermine", "stermine.ZiS"}) {
        EXPECT_THAT([&] { KontoprojektSpeichern(arbeit.Pfad(), arbeit.Pfad() / name, notizen); },
                    ThrowsMessage<Dateifehler>(HasSubstr("So heißt hier schon eine Arbeitsdatei")))
            << name;
        EXPECT_THAT(Arbeitsinhalt(), ElementsAre(zahlungen, konditionen, einstellungen));
        EXPECT_THAT(arbeit.Namen(), SizeIs(3));
    }
    fs::create_directory_symlink(arbeit.Pfad(), ablage.Pfad() / "Verweis");
    EXPECT_THROW(KontoprojektSpeichern(arbeit.Pfad(), ablage.Pfad() / "Verweis/Zinsstaffel1", notizen),
                 Dateifehler);
}

TEST_F(KontoprojektTest, SonstGehenDieseNamenUndDerArbeitsordnerAuch) {
    KontoprojektSpeichern(arbeit.Pfad(), ablage.Pfad() / "Zinsstaffel1", notizen);
    EXPECT_EQ(ablage.Inhalt("Zinsstaffel1"), notizen);
    EXPECT_EQ(ablage.Inhalt("Zinsstaffel1Zinsstaf"), zahlungen);
    KontoprojektSpeichern(arbeit.Pfad(), arbeit.Pfad() / "Konto.ZiS", notizen);
    EXPECT_EQ(KontoprojektEinlesen(arbeit.Pfad(), arbeit.Pfad() / "Konto.ZiS"), notizen);
    EXPECT_THAT(Arbeitsinhalt(), ElementsAre(zahlungen, konditionen, einstellungen));
}

class KontoprojektLesenTest : public KontoprojektTest {
  protected:
    void SetUp() override {
        const Kontodateien dateien(arbeit.Pfad());
        dateien.Zahlungen().Schreiben(
            std::vector{Zahlung("01.02.2007", 1, "Miete"), Zahlung("01.01.2007", 2)});
        dateien.Konditionen().Schreiben(std::vector{Kondition("01.01.2007", beispielkonditionen)});
        KontoeinstellungenSchreiben(arbeit.Pfad(), {Zinsverrechnungsart::quartalsende, "31.03.2007",
                                                    Verzinsungsmethode::franzoesisch});
        Speichern();
    }
};

TEST_F(KontoprojektLesenTest, GibtSaetzeInIhrerOrdnungUndEinstellungen) {
    const Konto konto = KontoprojektLesen(projekt);
    EXPECT_THAT(konto.zahlungen, ElementsAre(Zahlung("01.02.2007", 1, "Miete"), Zahlung("01.01.2007", 2)));
    EXPECT_THAT(konto.konditionen, ElementsAre(Kondition("01.01.2007", beispielkonditionen)));
    EXPECT_EQ(konto.einstellungen.Zinsverrechnungsart, Zinsverrechnungsart::quartalsende);
    EXPECT_EQ(konto.einstellungen.Kontodatum, "31.03.2007");
    EXPECT_EQ(konto.einstellungen.Verzinsungsmethode, Verzinsungsmethode::franzoesisch);
    EXPECT_EQ(konto.stufe, Kontostufe::eingabe);
}

TEST_F(KontoprojektLesenTest, LegtNichtsAnAuchWennEtwasFehlt) {
    for (const std::string& name : ablage.Namen()) {
        SetUp();
        fs::remove(ablage.Pfad() / name);
        const std::vector<std::string> vorher = ablage.Namen();
        EXPECT_THAT(
            [this] { (void)KontoprojektLesen(projekt); },
            ThrowsMessage<Dateifehler>("Die Datei \"" + (ablage.Pfad() / name).string() +
                                       "\" kann nicht gelesen werden: Datei oder Ordner nicht vorhanden."));
        EXPECT_EQ(ablage.Namen(), vorher);
    }
}

TEST_F(KontoprojektLesenTest, AngerissenerSatzZaehltNicht) {
    const std::string ganz = ablage.Inhalt("Zinsstaffel1Mein Konto.alt für Öl");
    ablage.Ablegen("Zinsstaffel1Mein Konto.alt für Öl", ganz.substr(0, 2 * 129 - 1));
    EXPECT_THAT(KontoprojektLesen(projekt).zahlungen, SizeIs(1));
    EXPECT_EQ(ablage.Inhalt("Zinsstaffel1Mein Konto.alt für Öl").size(), 2U * 129 - 1);
}

TEST_F(KontoprojektLesenTest, FehlendeEinstellungenSindDieEinesNeuenKontos) {
    ablage.Ablegen("ZinsverrechnungMein Konto.alt für Öl", "");
    const Konto konto = KontoprojektLesen(projekt);
    EXPECT_EQ(konto.einstellungen.Zinsverrechnungsart, Zinsverrechnungsart::jahresende);
    EXPECT_EQ(konto.einstellungen.Kontodatum, "");
    EXPECT_EQ(konto.einstellungen.Verzinsungsmethode, Verzinsungsmethode::deutsch);
}

TEST_F(KontoprojektLesenTest, FalscherWertNenntDateiUndSatz) {
    std::string bytes = ablage.Inhalt("ZinsverrechnungMein Konto.alt für Öl");
    bytes[62] = 5;
    ablage.Ablegen("ZinsverrechnungMein Konto.alt für Öl", bytes);
    EXPECT_THAT([this] { (void)KontoprojektLesen(projekt); },
                ThrowsMessage<Dateifehler>(HasSubstr(
                    "ZinsverrechnungMein Konto.alt für Öl\", Satz 3: Die Liste hat keinen Eintrag 5.")));
}

}  // namespace
}  // namespace zinfolio
