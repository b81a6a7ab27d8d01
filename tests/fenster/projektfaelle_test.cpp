// The account as a project where something is in the way: failed and cancelled saves and opens, notes of
// another kind, the ways out of the form.

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTextEdit>
#include <QToolButton>
#include <fcntl.h>
#include <limits>
#include <unistd.h>

#include "fenster/kontoformular.h"
#include "fenster/ui/uhr.h"
#include "kern/dateien/groessengrenze.h"
#include "kern/dateien/ohnevorrechte.h"

namespace projektfaelle_test {

using namespace zinfolio;
namespace fs = std::filesystem;

constexpr const char* nichtGespeichert = "Das Konto konnte nicht gespeichert werden.";

bool Beschreibbar(const fs::path& ordner) {
    return ::faccessat(AT_FDCWD, ordner.c_str(), W_OK, AT_EACCESS) == 0;
}

class ProjektfaelleTest : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<Testordner> arbeit_;
    std::unique_ptr<Testordner> ablage_;
    std::unique_ptr<Form48000> form_;

    fs::path Datei(const char* name) { return ablage_->Pfad() / name; }
    QString Text(const char* name) { return Finde<QLabel>(form_.get(), name)->text(); }
    QString Notizen() { return Finde<QTextEdit>(form_.get(), "RTZinsstaffel")->toPlainText(); }
    bool Frei(const char* taste) { return Finde<QPushButton>(form_.get(), taste)->isEnabled(); }
    int Register() { return Finde<QTabWidget>(form_.get(), "TabStrip1")->currentIndex(); }

    void Taste(Qt::Key taste, Qt::KeyboardModifiers zusatz = Qt::ControlModifier) {
        QTest::keyClick(form_.get(), taste, zusatz);
    }

    /// A key that asks for a file, and the answer; gives the question.
    Dateifrage Dateitaste(Qt::Key taste, Qt::KeyboardModifiers zusatz,
                          const std::optional<fs::path>& antwort) {
        Dateiwahl wahl;
        wahl.antwort = antwort;
        Taste(taste, zusatz);
        if (wahl.fragen.size() != 1) qFatal("%zu Dateidialoge statt einem", wahl.fragen.size());
        return wahl.fragen.front();
    }
    Dateifrage SpeichernAls(const std::optional<fs::path>& antwort) {
        return Dateitaste(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier, antwort);
    }
    Dateifrage Oeffnen(const std::optional<fs::path>& antwort) {
        return Dateitaste(Qt::Key_O, Qt::ControlModifier, antwort);
    }

    /// Two payments, one condition, a closing date, a note.
    void KontoEingeben() {
        Zahlung(*form_, "31.12.2006", "1000", "Einlage");
        Zahlung(*form_, "30.06.2007", "500", "Nachzahlung");
        Kondition(*form_);
        Waehle(*form_, Form48000::zinsverrechnung);
        Fuelle(*form_, "Kontodatum", "31.12.2007");
        Waehle(*form_, Form48000::notizen);
        Tippe("Konto der Oma");
        Waehle(*form_, Form48000::zahlungen);
    }

    /// The same, saved as "Konto.ZiS".
    void KontoAnlegen() {
        KontoEingeben();
        SpeichernAls(Datei("Konto.ZiS"));
        QVERIFY(!form_->isWindowModified());
    }

    /// The contents of the project's files.
    std::vector<std::string> Projektinhalt() {
        std::vector<std::string> inhalte;
        for (const char* name :
             {"Konto.ZiS", "Zinsstaffel1Konto", "ZinsstaffelzinsKonto", "ZinsverrechnungKonto"})
            inhalte.push_back(Inhalt(Datei(name)));
        return inhalte;
    }

    void EingegebenesSteht() {
        QCOMPARE(Zeile(*form_, "List1", 0), "31.12.2006|1.000,00|Einlage");
        QCOMPARE(Zeile(*form_, "List1", 1), "30.06.2007|500,00|Nachzahlung");
        QCOMPARE(Zeilen(*form_, "List2"), 1);
        QCOMPARE(Finde<QLineEdit>(form_.get(), "Kontodatum")->text(), "31.12.2007");
        QCOMPARE(Notizen(), "Konto der Oma");
    }

  private slots:
    void initTestCase() { UhrStellen(*Datum::Aus(2026, 11, 21)); }

    void init() {
        arbeit_ = std::make_unique<Testordner>();
        ablage_ = std::make_unique<Testordner>();
        form_ = std::make_unique<Form48000>(arbeit_->Pfad());
        Zeige(*form_);
    }
    void cleanup() {
        form_.reset();
        arbeit_.reset();
        ablage_.reset();
    }

    void misslungenesOeffnenLaesstDasBerechneteStehen() {
        KontoAnlegen();
        Waehle(*form_, Form48000::berechnung);
        fs::remove(Datei("ZinsstaffelzinsKonto"));
        const Zeuge zeuge;
        Oeffnen(Datei("Konto.ZiS"));
        QCOMPARE(zeuge.texte.size(), 1);
        // 1 000 for 360 days and 500 for 180 days at 10 %: 100 + 25 of interest.
        QCOMPARE(Text("EV"), "1.625,00");
        QVERIFY(Frei("Command13") && Frei("Grafik"));
        QCOMPARE(Register(), int(Form48000::berechnung));
    }

    void verlassenMitJaBleibtWennDasSpeichernScheitert() {
        KontoAnlegen();
        fs::remove_all(ablage_->Pfad());
        const Zeuge zeuge;
        const QSignalSpy verlassen(form_.get(), &Form48000::verlassen);
        QVERIFY(!form_->close());
        QCOMPARE(zeuge.texte.size(), 2);
        QCOMPARE(zeuge.texte[0], "Speichern ?");
        QVERIFY2(zeuge.texte[1].startsWith(nichtGespeichert), qPrintable(zeuge.texte[1]));
        QVERIFY(form_->isVisible());
        QCOMPARE(verlassen.count(), 0);
        EingegebenesSteht();
    }

    void verlassenMitNeinMeldetVerlassen() {
        KontoEingeben();
        Zeuge zeuge;
        zeuge.antwort = Antwort::nein;
        const QSignalSpy verlassen(form_.get(), &Form48000::verlassen);
        QVERIFY(form_->close());
        QVERIFY(!form_->isVisible());
        QCOMPARE(verlassen.count(), 1);
        QCOMPARE(zeuge.texte, QStringList("Speichern ?"));
    }

    void endeImMenueUndInDerLeisteFragen() {
        auto* ende = Finde<QAction>(form_.get(), "Programmende");
        QVERIFY(form_->menuBar()->actions().constFirst()->menu()->actions().contains(ende));
        Zeuge zeuge;
        zeuge.antwort = Antwort::abbrechen;
        ende->trigger();
        QCOMPARE(zeuge.texte, QStringList("Speichern ?"));
        QTest::mouseClick(Finde<QToolButton>(form_.get(), "Command2"), Qt::LeftButton);
        QCOMPARE(zeuge.texte, QStringList({"Speichern ?", "Speichern ?"}));
        QVERIFY(form_->isVisible());
    }

    void wasDieRechnungUebergingeWirdNachDemOeffnenGesagt() {
        KontoAnlegen();
        // Seven bytes of a third payment: a copy that was cut.
        std::ofstream(Datei("Zinsstaffel1Konto"), std::ios::binary | std::ios::app) << "1234567";
        const Zeuge zeuge;
        Oeffnen(Datei("Konto.ZiS"));
        QCOMPARE(zeuge.texte.size(), 1);
        QVERIFY2(zeuge.texte[0].startsWith("Nicht alles in den Dateien kann berücksichtigt werden:\n\n"),
                 qPrintable(zeuge.texte[0]));
        QVERIFY2(zeuge.texte[0].contains("Zinsstaffel1Konto\", Satz 3:"), qPrintable(zeuge.texte[0]));
        EingegebenesSteht();
        QVERIFY(!form_->isWindowModified());
    }

    void vielesUebergangeneStehtHinterDerTaste() {
        KontoAnlegen();
        std::string saetze = Inhalt(Datei("Zinsstaffel1Konto"));
        const std::string satz = saetze.substr(0, 129);
        const auto datum = satz.find("31.12.2006");
        for (int i = 0; i < 8; ++i)
            saetze += std::string(satz).replace(datum, 10, "99.99.9999");
        std::ofstream(Datei("Zinsstaffel1Konto"), std::ios::binary) << saetze;
        const Zeuge zeuge;
        Oeffnen(Datei("Konto.ZiS"));
        QCOMPARE(zeuge.texte.size(), 1);
        QVERIFY2(zeuge.texte[0].endsWith("\n… und 2 weitere"), qPrintable(zeuge.texte[0]));
        QCOMPARE(zeuge.einzelheiten[0].count('\n'), 7);
    }

    void speichernUeberDateienEinesAnderenProjektsFragt() {
        KontoAnlegen();
        const std::vector<std::string> vorher = Projektinhalt();
        Zahlung(*form_, "01.07.2007", "1");
        {
            const Zeuge zeuge{Antwort::nein};
            SpeichernAls(Datei("Konto.zis"));
            QCOMPARE(zeuge.texte.size(), 1);
            QVERIFY2(zeuge.texte[0].contains("\"Konto.ZiS\""), qPrintable(zeuge.texte[0]));
            QCOMPARE(zeuge.tasten, std::vector{Meldungstasten::jaNein});
        }
        QCOMPARE(Projektinhalt(), vorher);
        QVERIFY(!fs::exists(Datei("Konto.zis")));
        QVERIFY(form_->isWindowModified());
        const Zeuge zeuge{Antwort::ja};
        SpeichernAls(Datei("Konto.zis"));
        QVERIFY(fs::exists(Datei("Konto.zis")));
        QCOMPARE(Text("Projekt"), "Konto.zis");
        // Its own name is no other project's: from here on nothing asks.
        Taste(Qt::Key_S);
        QCOMPARE(zeuge.texte.size(), 1);
    }

    void beschaedigteZahlenSindFragezeichenUndLassenSichErsetzen() {
        KontoAnlegen();
        const Satzdatei<Staffelsatz> zahlungen(ablage_->Pfad(), "Zinsstaffel1Konto");
        auto saetze = zahlungen.Lesen();
        saetze[0].Zahlbetrag = std::numeric_limits<double>::quiet_NaN();
        saetze[1].Zahlbetrag = std::numeric_limits<double>::infinity();
        zahlungen.Schreiben(saetze);
        Zeuge zeuge;
        Oeffnen(Datei("Konto.ZiS"));
        QCOMPARE(Zeile(*form_, "List1", 0), "31.12.2006|?|Einlage");
        QCOMPARE(Zeile(*form_, "List1", 1), "30.06.2007|?|Nachzahlung");
        QVERIFY(!form_->grab().isNull());
        Waehle(*form_, Form48000::berechnung);
        QCOMPARE(zeuge.texte.size(), 1);
        QVERIFY(zeuge.texte[0].startsWith("Bitte überprüfen Sie Ihre Angaben."));
        Waehle(*form_, Form48000::zahlungen);
        for (const auto& [zeile, betrag] : {std::pair(0, "1000"), std::pair(1, "500")}) {
            Finde<Tabelle>(form_.get(), "List1")->Markiere(zeile);
            Klicke(*form_, "Bearbeiten");
            QCOMPARE(Finde<QLineEdit>(form_.get(), "Betrag")->text(), "");
            Taste(Qt::Key_S);
            QVERIFY(Finde<QPushButton>(form_.get(), "übernehmen")->isVisible());
            Fuelle(*form_, "Betrag", betrag);
            Klicke(*form_, "übernehmen");
        }
        QCOMPARE(zeuge.texte.size(), 1);
        EingegebenesSteht();
    }

    void abgebrochenesOeffnenLaesstDasKonto() {
        KontoAnlegen();
        const Zeuge zeuge;
        Waehle(*form_, Form48000::berechnung);
        Klicke(*form_, "Command5");
        Oeffnen(std::nullopt);
        QVERIFY(zeuge.texte.isEmpty());
        QCOMPARE(Register(), int(Form48000::effektivzinssatz));
        QCOMPARE(Text("Projekt"), "Konto.ZiS");
        QVERIFY(!form_->isWindowModified());
        EingegebenesSteht();
    }

    void derDialogBeginntMitDemLetztenNamen() {
        KontoEingeben();
        QCOMPARE(SpeichernAls(Datei("Konto.ZiS")).vorgabe, "");
        const QString name = QString::fromStdString(Datei("Konto.ZiS").string());
        QCOMPARE(SpeichernAls(std::nullopt).vorgabe, name);
        QCOMPARE(Oeffnen(std::nullopt).vorgabe, name);
    }

    void notizenAlsReinerTextWerdenGelesenUndAlsRtfGespeichert() {
        KontoAnlegen();
        std::ofstream(Datei("Konto.ZiS"), std::ios::binary) << "Gru\xDF";
        Oeffnen(Datei("Konto.ZiS"));
        QCOMPARE(Notizen(), "Gruß");
        QVERIFY(!form_->isWindowModified());
        Taste(Qt::Key_S);
        const std::string notiz = Inhalt(Datei("Konto.ZiS"));
        QVERIFY(notiz.starts_with("{\\rtf1"));
        QVERIFY(notiz.find("Gru\\'df") != std::string::npos);
    }

    void einSchreibgeschuetzterOrdnerWirdGemeldetUndDasKontoBleibt() {
        KontoEingeben();
        fs::permissions(arbeit_->Pfad(), fs::perms{0777});
        fs::permissions(ablage_->Pfad(), fs::perms{0555});
        const Zeuge zeuge;
        {
            const OhneVorrechte niemand;
            if (Beschreibbar(ablage_->Pfad()) || !Beschreibbar(arbeit_->Pfad()))
                QSKIP("Hier lässt sich kein Ordner gegen das Schreiben schützen.");
            SpeichernAls(Datei("Konto.ZiS"));
        }
        fs::permissions(ablage_->Pfad(), fs::perms{0755});
        QCOMPARE(zeuge.texte.size(), 1);
        QVERIFY2(zeuge.texte[0].startsWith(nichtGespeichert), qPrintable(zeuge.texte[0]));
        QVERIFY2(zeuge.texte[0].contains("Konto.ZiS"), qPrintable(zeuge.texte[0]));
        QVERIFY(fs::is_empty(ablage_->Pfad()));
        QCOMPARE(Text("Projekt"), "");
        QVERIFY(form_->isWindowModified());
        EingegebenesSteht();
    }

    void vollerDatentraegerWirdGemeldetUndLaesstDasGespeicherte() {
        KontoAnlegen();
        const std::vector<std::string> vorher = Projektinhalt();
        Zahlung(*form_, "01.07.2007", "1");
        const Zeuge zeuge;
        {
            // The settings' 90 bytes still fit, the three payments' 387 do not.
            const Groessengrenze voll(300);
            Taste(Qt::Key_S);
        }
        QCOMPARE(zeuge.texte.size(), 1);
        QVERIFY2(zeuge.texte[0].startsWith(nichtGespeichert), qPrintable(zeuge.texte[0]));
        QCOMPARE(Projektinhalt(), vorher);
        QCOMPARE(std::distance(fs::directory_iterator(ablage_->Pfad()), {}), 4);
        QCOMPARE(Text("Projekt"), "Konto.ZiS");
        QVERIFY(form_->isWindowModified());
        QCOMPARE(Zeilen(*form_, "List1"), 3);
        EingegebenesSteht();
    }

    void einAbgebrochenesSpeichernUnterSchreibtDieEinstellungenTrotzdem() {
        KontoEingeben();
        QVERIFY(!fs::exists(arbeit_->Pfad() / "Zinsverrechnung"));
        SpeichernAls(std::nullopt);
        QCOMPARE(fs::file_size(arbeit_->Pfad() / "Zinsverrechnung"), 90U);
        QVERIFY(fs::is_empty(ablage_->Pfad()));
    }
};

ZINFOLIO_FENSTERTEST(ProjektfaelleTest)

}  // namespace projektfaelle_test

#include "projektfaelle_test.moc"
