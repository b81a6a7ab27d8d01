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
namespace kontoprojekt_test {

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

/// Rows as a file holds them, each with every byte after its date counting on from `erstes`.
std::string Satzbytes(const Staffelsatz& satz, std::size_t anzahl, unsigned char erstes) {
    std::array<std::byte, 129> bytes{};
    satz.Schreiben(bytes);
    constexpr std::size_t hinterDemDatum = 37;
    for (std::size_t i = hinterDemDatum; i < bytes.size(); ++i)
        bytes[i] = static_cast<std::byte>(erstes + 7 * i);
    std::string alle;
    while (anzahl-- > 0)
        for (const std::byte b : bytes)
            alle += static_cast<char>(b);
    return alle;
}

/// The settings of record 2 alone, and bytes behind its value that mean nothing.
std::string Einstellungsbytes() {
    std::string bytes(90, '\0');
    bytes.replace(30, 14, "\x08\0\x0A\0"s + "31.12.2007");
    bytes.replace(44, 16, 16, '\xFF');
    return bytes;
}

class KontoprojektTest : public testing::Test {
  protected:
    Testordner arbeit;
    Testordner ablage;
    fs::path projekt = ablage.Pfad() / "Mein Konto.alt für Öl.ZiS";
    // A torn record at the end goes with the others.
    const std::string zahlungen = Satzbytes(Zahlung("01.01.2007", 1), 2, 1) + "Rest";
    const std::string konditionen = Satzbytes(Kondition("01.01.2007", beispielkonditionen), 1, 100);
    const std::string einstellungen = Einstellungsbytes();
    const std::string notizen = "{\\rtf1\\ansi Notizen\\par}\r\n\0\xFF Rest"s;

    void SetUp() override {
        arbeit.Ablegen("Zinsstaffel1", zahlungen);
        arbeit.Ablegen("ZinsstaffelZins", konditionen);
        arbeit.Ablegen("Zinsverrechnung", einstellungen);
    }
    void Speichern() const { KontoprojektSpeichern(arbeit.Pfad(), projekt, notizen); }
    /// Opens the project; gives its notes.
    [[nodiscard]] std::string Einlesen() const {
        const Kontoprojekt gelesen = KontoprojektLesen(projekt);
        KontoprojektUebernehmen(arbeit.Pfad(), gelesen);
        return gelesen.notizen;
    }

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
    const Konto konto = KontoprojektLesen(projekt).konto;
    EXPECT_THAT(konto.zahlungen, IsEmpty());
    EXPECT_THAT(konto.konditionen, IsEmpty());
    EXPECT_EQ(konto.einstellungen.Kontodatum, "");
}

TEST_F(KontoprojektTest, FehlendeBeidateiNenntSichUndNichtsWirdKopiert) {
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
        EXPECT_THAT(Arbeitsinhalt(), ElementsAre("alt", "alt", "alt"));
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
    projekt = arbeit.Pfad() / "Konto.ZiS";
    EXPECT_EQ(Einlesen(), notizen);
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
    [[nodiscard]] std::vector<std::string> Befunde() const {
        std::vector<std::string> texte;
        for (const Befund& befund : KontoprojektLesen(projekt).befunde)
            texte.push_back(Befundtext(befund));
        return texte;
    }
};

TEST_F(KontoprojektLesenTest, GibtSaetzeInIhrerOrdnungUndEinstellungen) {
    const Konto konto = KontoprojektLesen(projekt).konto;
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
    EXPECT_THAT(KontoprojektLesen(projekt).konto.zahlungen, SizeIs(1));
    EXPECT_EQ(ablage.Inhalt("Zinsstaffel1Mein Konto.alt für Öl").size(), 2U * 129 - 1);
}

TEST_F(KontoprojektLesenTest, FehlendeEinstellungenSindDieEinesNeuenKontos) {
    ablage.Ablegen("ZinsverrechnungMein Konto.alt für Öl", "");
    const Konto konto = KontoprojektLesen(projekt).konto;
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

TEST_F(KontoprojektLesenTest, AbgerissenerSatzWirdMitDateiUndSatzGenannt) {
    const std::string name = "Zinsstaffel1Mein Konto.alt für Öl";
    ablage.Ablegen(name, ablage.Inhalt(name).substr(0, 2 * 129 - 1));
    EXPECT_THAT(Befunde(),
                ElementsAre("Datei \"" + (ablage.Pfad() / name).string() +
                            "\", Satz 2: Der Satz ist abgerissen (128 von 129 Bytes) und zählt nicht."));
}

TEST_F(KontoprojektLesenTest, DatumDasKeinesIstWirdGenanntUndDieZeileBleibt) {
    const std::string name = "ZinsstaffelzinsMein Konto.alt für Öl";
    std::string bytes = ablage.Inhalt(name);
    bytes.replace(27, 10, "30.02.2007");
    ablage.Ablegen(name, bytes);
    EXPECT_THAT(Befunde(), ElementsAre("Datei \"" + (ablage.Pfad() / name).string() +
                                       "\", Satz 1: \"30.02.2007\" ist kein Datum."));
    EXPECT_THAT(KontoprojektLesen(projekt).konto.konditionen, SizeIs(1));
}

TEST_F(KontoprojektLesenTest, UnleserlichesDatumWirdMitPunktenGezeigt) {
    const std::string name = "Zinsstaffel1Mein Konto.alt für Öl";
    std::string bytes = ablage.Inhalt(name);
    bytes.replace(129 + 27, 10, "\0\x01\xFC 07\n\x1Fxy"s);
    ablage.Ablegen(name, bytes);
    EXPECT_THAT(Befunde(), ElementsAre(HasSubstr("Satz 2: \"..ü 07..xy\" ist kein Datum.")));
}

TEST_F(KontoprojektLesenTest, AbgeschnitteneEinstellungWirdGenannt) {
    const std::string name = "ZinsverrechnungMein Konto.alt für Öl";
    ablage.Ablegen(name, ablage.Inhalt(name).substr(0, 63));
    EXPECT_THAT(Befunde(), ElementsAre(HasSubstr("Satz 3: Der Wert ist abgeschnitten und zählt nicht.")));
    EXPECT_EQ(KontoprojektLesen(projekt).konto.einstellungen.Verzinsungsmethode, Verzinsungsmethode::deutsch);
}

TEST_F(KontoprojektLesenTest, GanzesProjektHatKeinenBefund) {
    EXPECT_THAT(Befunde(), IsEmpty());
}

TEST_F(KontoprojektLesenTest, SatzAndererArtVerweigertDieDateiUndNichtsWirdKopiert) {
    const std::string name = "ZinsstaffelzinsMein Konto.alt für Öl";
    ablage.Ablegen(name, ablage.Inhalt(name) + ablage.Inhalt("Zinsstaffel1Mein Konto.alt für Öl"));
    for (const char* datei : {"Zinsstaffel1", "ZinsstaffelZins", "Zinsverrechnung"})
        arbeit.Ablegen(datei, "alt");
    EXPECT_THAT(
        [this] { (void)Einlesen(); },
        ThrowsMessage<Dateifehler>("Datei \"" + (ablage.Pfad() / name).string() +
                                   "\", Satz 2: Der Satz ist eine Zahlung, erwartet wird ein Zinssatz."));
    EXPECT_THAT(Arbeitsinhalt(), ElementsAre("alt", "alt", "alt"));
}

TEST_F(KontoprojektLesenTest, SatzOhneArtVerweigertDieDatei) {
    ablage.Ablegen("Zinsstaffel1Mein Konto.alt für Öl", std::string(129, '\0'));
    EXPECT_THAT([this] { (void)KontoprojektLesen(projekt); },
                ThrowsMessage<Dateifehler>(
                    HasSubstr("Satz 1: Der Satz ist unbekannter Art (0), erwartet wird eine Zahlung.")));
}

TEST_F(KontoprojektLesenTest, ZuVieleSaetzeVerweigernDieDatei) {
    const std::string name = "Zinsstaffel1Mein Konto.alt für Öl";
    const std::string satz = ablage.Inhalt(name).substr(0, 129);
    std::string bytes;
    for (int i = 0; i < 32768; ++i)
        bytes += satz;
    ablage.Ablegen(name, bytes);
    EXPECT_THAT([this] { (void)KontoprojektLesen(projekt); },
                ThrowsMessage<Dateifehler>(HasSubstr("32768 Sätze, höchstens 32767 sind möglich.")));
}

TEST_F(KontoprojektTest, WasNichtWiederAufgingeWirdNichtGespeichert) {
    AltesProjektAblegen();
    const std::string zuGross((std::size_t{64} << 20) + 1, 'x');
    EXPECT_THAT([&] { KontoprojektSpeichern(arbeit.Pfad(), projekt, zuGross); },
                ThrowsMessage<Dateifehler>(HasSubstr("Die Datei wird zu groß.")));
    ExpectAltesProjekt();
}

TEST_F(KontoprojektTest, ScheiterndesUebernehmenLaesstAlleArbeitsdateien) {
    Speichern();
    const Kontoprojekt gelesen = KontoprojektLesen(projekt);
    arbeit.Ablegen("Zinsstaffel1", "alt");
    arbeit.Ablegen("ZinsstaffelZins", "alt");
    fs::remove(arbeit.Pfad() / "Zinsverrechnung");
    fs::create_directory(arbeit.Pfad() / "Zinsverrechnung");
    EXPECT_THROW(KontoprojektUebernehmen(arbeit.Pfad(), gelesen), Dateifehler);
    EXPECT_EQ(arbeit.Inhalt("Zinsstaffel1"), "alt");
    EXPECT_EQ(arbeit.Inhalt("ZinsstaffelZins"), "alt");
    EXPECT_THAT(arbeit.Namen(), SizeIs(3));
}

}  // namespace kontoprojekt_test
}  // namespace zinfolio
