// The account as a project: new, open, save, save as, and the question on leaving.

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QTextEdit>
#include <fstream>
#include <set>

#include "fenster/kontoformular.h"
#include "fenster/ui/uhr.h"

namespace projekt_test {

using namespace zinfolio;
namespace fs = std::filesystem;

void Schreibe(const fs::path& datei, const std::string& inhalt) {
    std::ofstream(datei, std::ios::binary) << inhalt;
}

/// The names of a folder's files, joined.
QString Dateien(const fs::path& ordner) {
    std::set<std::string> namen;
    for (const auto& eintrag : fs::directory_iterator(ordner))
        namen.insert(eintrag.path().filename().string());
    QStringList liste;
    for (const std::string& name : namen)
        liste << QString::fromStdString(name);
    return liste.join(' ');
}

class ProjektTest : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<Testordner> arbeit_;
    std::unique_ptr<Testordner> ablage_;
    std::unique_ptr<Form48000> form_;

    fs::path Datei(const char* name) { return ablage_->Pfad() / name; }
    QTabWidget* Register() { return Finde<QTabWidget>(form_.get(), "TabStrip1"); }
    QString Projekt() { return Finde<QLabel>(form_.get(), "Projekt")->text(); }
    QTextEdit* Notizen() { return Finde<QTextEdit>(form_.get(), "RTZinsstaffel"); }

    void Taste(Qt::Key taste, Qt::KeyboardModifiers zusatz = Qt::ControlModifier) {
        QTest::keyClick(form_.get(), taste, zusatz);
    }

    void SpeichernAls(const char* name) {
        Dateiwahl wahl;
        wahl.antwort = Datei(name);
        Taste(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(wahl.fragen.size(), 1U);
    }

    void Oeffnen(const char* name) {
        Dateiwahl wahl;
        wahl.antwort = Datei(name);
        Taste(Qt::Key_O);
        QCOMPARE(wahl.fragen.size(), 1U);
    }

    /// An action of the list of payments; the list of conditions has the same.
    const QAction* AktionDerListe(const char* name) {
        for (const QAction* aktion : Finde<Tabelle>(form_.get(), "List1")->actions()) {
            if (aktion->objectName() == QString::fromUtf8(name)) return aktion;
        }
        qFatal("Keine Aktion %s", name);
    }

    /// Two payments, one condition, a closing date, a note.
    void KontoEingeben() {
        Zahlung(*form_, "15.03.2007", "500", "Nachzahlung");
        Zahlung(*form_, "31.12.2006", "1000", "Einlage");
        Waehle(*form_, Form48000::zinssaetze);
        {
            const Zeuge zeuge;
            Fuelle(*form_, "Gültigdatum", "31.12.2006");
            Fuelle(*form_, "Gutzins1", "10");
            Fuelle(*form_, "Guthabenlinie", "9999999");
            Fuelle(*form_, "Kreditlinie", "9999999");
            Klicke(*form_, "speichern2");
        }
        Waehle(*form_, Form48000::zinsverrechnung);
        Finde<QComboBox>(form_.get(), "Combo3")->setCurrentIndex(1);
        Fuelle(*form_, "Kontodatum", "31.12.2007");
        Waehle(*form_, Form48000::notizen);
        Tippe("Konto der Oma");
        Waehle(*form_, Form48000::zahlungen);
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

    void einNeuesKontoHatLeereDateienUndKeineEinstellungen() {
        QCOMPARE(Dateien(arbeit_->Pfad()), "Zinsstaffel1 ZinsstaffelZins");
        QCOMPARE(fs::file_size(arbeit_->Pfad() / "Zinsstaffel1"), 0U);
        QCOMPARE(fs::file_size(arbeit_->Pfad() / "ZinsstaffelZins"), 0U);
        QCOMPARE(Projekt(), "");
        QCOMPARE(form_->windowTitle(), "Zinsstaffelrechner[*]");
        QVERIFY(!form_->isWindowModified());
    }

    void speichernOhneNamenFragtNachDemNamen() {
        KontoEingeben();
        QVERIFY(form_->isWindowModified());
        Dateiwahl wahl;
        wahl.antwort = Datei("Konto.ZiS");
        Taste(Qt::Key_S);
        QCOMPARE(wahl.fragen.size(), 1U);
        QCOMPARE(wahl.fragen[0].filter, "Zahlungsdateien (*.ZiS) |*.ZiS");
        QCOMPARE(wahl.fragen[0].zweck, Dateifrage::Zweck::speichern);
        QCOMPARE(Dateien(ablage_->Pfad()),
                 "Konto.ZiS Zinsstaffel1Konto ZinsstaffelzinsKonto ZinsverrechnungKonto");
        QCOMPARE(Projekt(), "Konto.ZiS");
        QCOMPARE(form_->windowTitle(), "Zinsstaffelrechner – Konto.ZiS[*]");
        QVERIFY(!form_->isWindowModified());
    }

    void nebendateienSindKopienDerArbeitsdateien() {
        KontoEingeben();
        SpeichernAls("Konto.ZiS");
        QCOMPARE(fs::file_size(Datei("Zinsstaffel1Konto")), 2U * 129U);
        QCOMPARE(fs::file_size(Datei("ZinsstaffelzinsKonto")), 129U);
        QCOMPARE(fs::file_size(Datei("ZinsverrechnungKonto")), 3U * 30U);
        QCOMPARE(Inhalt(Datei("Zinsstaffel1Konto")), Inhalt(arbeit_->Pfad() / "Zinsstaffel1"));
        QCOMPARE(Inhalt(Datei("ZinsstaffelzinsKonto")), Inhalt(arbeit_->Pfad() / "ZinsstaffelZins"));
        QCOMPARE(Inhalt(Datei("ZinsverrechnungKonto")), Inhalt(arbeit_->Pfad() / "Zinsverrechnung"));
        QVERIFY(Inhalt(Datei("Konto.ZiS")).starts_with("{\\rtf1"));
        QVERIFY(Inhalt(Datei("Konto.ZiS")).find("Konto der Oma") != std::string::npos);
    }

    void speichernMitNamenFragtNichtMehr() {
        KontoEingeben();
        SpeichernAls("Konto.ZiS");
        Zahlung(*form_, "01.04.2007", "1");
        QVERIFY(form_->isWindowModified());
        Dateiwahl wahl;
        Taste(Qt::Key_S);
        QVERIFY(wahl.fragen.empty());
        QCOMPARE(fs::file_size(Datei("Zinsstaffel1Konto")), 3U * 129U);
        QVERIFY(!form_->isWindowModified());
    }

    void oeffnenBringtAllesZurueck() {
        KontoEingeben();
        SpeichernAls("Konto.ZiS");
        Taste(Qt::Key_N);
        QCOMPARE(Zeilen(*form_, "List1"), 0);
        QCOMPARE(Notizen()->toPlainText(), "");
        QCOMPARE(Projekt(), "");
        Finde<QComboBox>(form_.get(), "Combo3")->setCurrentIndex(0);
        Oeffnen("Konto.ZiS");
        QCOMPARE(Projekt(), "Konto.ZiS");
        QCOMPARE(Register()->currentIndex(), int(Form48000::zahlungen));
        QCOMPARE(Zeile(*form_, "List1", 0), "15.03.2007|500,00|Nachzahlung");
        QCOMPARE(Zeile(*form_, "List1", 1), "31.12.2006|1.000,00|Einlage");
        QCOMPARE(Zeilen(*form_, "List2"), 1);
        QCOMPARE(Finde<QComboBox>(form_.get(), "Combo3")->currentIndex(), 1);
        QCOMPARE(Finde<QLineEdit>(form_.get(), "Kontodatum")->text(), "31.12.2007");
        QCOMPARE(Notizen()->toPlainText(), "Konto der Oma");
        QVERIFY(!form_->isWindowModified());
    }

    void zweitesSpeichernNachDemOeffnenAendertKeinByte() {
        KontoEingeben();
        Waehle(*form_, Form48000::notizen);
        Taste(Qt::Key_B);
        Tippe(" fett");
        SpeichernAls("Konto.ZiS");
        const std::array namen{"Konto.ZiS", "Zinsstaffel1Konto", "ZinsstaffelzinsKonto",
                               "ZinsverrechnungKonto"};
        std::vector<std::string> vorher;
        for (const char* name : namen)
            vorher.push_back(Inhalt(Datei(name)));
        QVERIFY(vorher[0].find("\\b") != std::string::npos);
        form_ = std::make_unique<Form48000>(arbeit_->Pfad());
        Zeige(*form_);
        Oeffnen("Konto.ZiS");
        Taste(Qt::Key_S);
        for (std::size_t i = 0; i < namen.size(); ++i)
            QCOMPARE(Inhalt(Datei(namen[i])), vorher[i]);
    }

    void oeffnenZeigtDieNotizenInDerGrundschriftUndLaesstIhreDateiUnberuehrt() {
        KontoEingeben();
        SpeichernAls("Konto.ZiS");
        const std::string notiz =
            "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fswiss Arial;}}\\pard\\f0\\fs40 Gro\\'df\\par\r\n}\r\n";
        Schreibe(Datei("Konto.ZiS"), notiz);
        Oeffnen("Konto.ZiS");
        QCOMPARE(Notizen()->toPlainText(), "Groß");
        QTextCursor anfang(Notizen()->document());
        anfang.movePosition(QTextCursor::NextCharacter);
        QCOMPARE(anfang.charFormat().fontPointSize(), 12.0);
        QCOMPARE(anfang.charFormat().fontFamilies().toStringList(), QStringList("Courier New"));
        Taste(Qt::Key_S);
        QCOMPARE(Inhalt(Datei("Konto.ZiS")), notiz);
    }

    void geaenderteNotizenWerdenNeuGeschrieben() {
        KontoEingeben();
        SpeichernAls("Konto.ZiS");
        Waehle(*form_, Form48000::notizen);
        Druecke(Qt::Key_End, Qt::ControlModifier);
        Tippe(" und mehr");
        QVERIFY(form_->isWindowModified());
        Taste(Qt::Key_S);
        QVERIFY(Inhalt(Datei("Konto.ZiS")).find("Konto der Oma und mehr") != std::string::npos);
    }

    void speichernUnterVorhandenemNamenErsetztAlleVier() {
        for (const char* name :
             {"Konto.ZiS", "Zinsstaffel1Konto", "ZinsstaffelzinsKonto", "ZinsverrechnungKonto"})
            Schreibe(Datei(name), "alt");
        KontoEingeben();
        SpeichernAls("Konto.ZiS");
        QVERIFY(Inhalt(Datei("Konto.ZiS")).starts_with("{\\rtf1"));
        QCOMPARE(fs::file_size(Datei("Zinsstaffel1Konto")), 2U * 129U);
        QCOMPARE(fs::file_size(Datei("ZinsstaffelzinsKonto")), 129U);
        QCOMPARE(fs::file_size(Datei("ZinsverrechnungKonto")), 90U);
    }

    void einKontoVorDerErstenBerechnungOeffnetSichWieJedesAndere() {
        Zahlung(*form_, "31.12.2006", "1000");
        SpeichernAls("Leer.ZiS");
        Taste(Qt::Key_N);
        Oeffnen("Leer.ZiS");
        QCOMPARE(Zeilen(*form_, "List1"), 1);
        QCOMPARE(Zeilen(*form_, "List2"), 0);
        QCOMPARE(Finde<QLineEdit>(form_.get(), "Kontodatum")->text(), "");
    }

    void einAbgebrochenerDialogIstStill() {
        KontoEingeben();
        const Dateiwahl wahl;
        const Zeuge zeuge;
        Taste(Qt::Key_S);
        QCOMPARE(wahl.fragen.size(), 1U);
        QVERIFY(zeuge.texte.isEmpty());
        QCOMPARE(Projekt(), "");
        QCOMPARE(Zeilen(*form_, "List1"), 2);
        QVERIFY(form_->isWindowModified());
        QCOMPARE(Dateien(ablage_->Pfad()), "");
    }

    void eineFehlendeNebendateiWirdGemeldetUndDasKontoBleibt() {
        KontoEingeben();
        SpeichernAls("Konto.ZiS");
        SpeichernAls("Kopie.ZiS");
        fs::remove(Datei("ZinsstaffelzinsKonto"));
        const Zeuge zeuge;
        Oeffnen("Konto.ZiS");
        QCOMPARE(zeuge.texte.size(), 1);
        QVERIFY(zeuge.texte[0].startsWith("Bitte überprüfen Sie Ihre Angaben."));
        const QString datei = QString::fromStdString(Datei("ZinsstaffelzinsKonto").string());
        QCOMPARE(zeuge.texte[0].count(datei), 1);
        QVERIFY2(zeuge.texte[0].contains("nicht vorhanden"), qPrintable(zeuge.texte[0]));
        QCOMPARE(zeuge.einzelheiten[0], "");
        QCOMPARE(Projekt(), "Kopie.ZiS");
        QCOMPARE(Zeilen(*form_, "List1"), 2);
        QCOMPARE(Zeilen(*form_, "List2"), 1);
        QCOMPARE(Notizen()->toPlainText(), "Konto der Oma");
        QVERIFY(!form_->isWindowModified());
    }

    void einFehlenderOrdnerWirdGemeldetUndDasKontoBleibt() {
        KontoEingeben();
        const Zeuge zeuge;
        SpeichernAls("gibtesnicht/Konto.ZiS");
        QCOMPARE(zeuge.texte.size(), 1);
        QVERIFY(zeuge.texte[0].startsWith("Das Konto konnte nicht gespeichert werden."));
        QVERIFY(zeuge.texte[0].contains("gibtesnicht"));
        QCOMPARE(Projekt(), "");
        QVERIFY(form_->isWindowModified());
        QCOMPARE(Zeilen(*form_, "List1"), 2);
        QCOMPARE(Notizen()->toPlainText(), "Konto der Oma");
    }

    void neuUndOeffnenEntfernenDasSechsteRegister() {
        KontoEingeben();
        SpeichernAls("Konto.ZiS");
        Waehle(*form_, Form48000::berechnung);
        Klicke(*form_, "Command5");
        QCOMPARE(Register()->count(), 6);
        Oeffnen("Konto.ZiS");
        QCOMPARE(Register()->count(), 5);
        Waehle(*form_, Form48000::berechnung);
        Klicke(*form_, "Command5");
        QCOMPARE(Register()->count(), 6);
        Taste(Qt::Key_N);
        QCOMPARE(Register()->count(), 5);
    }

    void neuFragtNurWennEsEtwasZuVerlierenGibt() {
        Zeuge zeuge;
        Taste(Qt::Key_N);
        QVERIFY(zeuge.texte.isEmpty());
        Zahlung(*form_, "31.12.2006", "1000");
        zeuge.antwort = Antwort::abbrechen;
        Taste(Qt::Key_N);
        QCOMPARE(zeuge.texte, QStringList("Speichern ?"));
        QCOMPARE(Zeilen(*form_, "List1"), 1);
        zeuge.antwort = Antwort::nein;
        Taste(Qt::Key_N);
        QCOMPARE(Zeilen(*form_, "List1"), 0);
    }

    void geloeschtesEinesAnderenKontosKommtNichtZurueck() {
        KontoEingeben();
        SpeichernAls("Konto.ZiS");
        Finde<Tabelle>(form_.get(), "List1")->selectRow(0);
        {
            const Zeuge zeuge;
            Klicke(*form_, "Löschen");
        }
        const QAction* rueckgaengig = AktionDerListe("LöschenRückgängig");
        QVERIFY(rueckgaengig->isEnabled());
        Zeuge zeuge;
        zeuge.antwort = Antwort::nein;
        Taste(Qt::Key_N);
        QVERIFY(!rueckgaengig->isEnabled());
    }

    void verlassenMitJaSortiertUndSpeichert() {
        KontoEingeben();
        SpeichernAls("Konto.ZiS");
        Zahlung(*form_, "01.01.2001", "7", "zuerst");
        const Zeuge zeuge;
        QSignalSpy verlassen(form_.get(), &Form48000::verlassen);
        QVERIFY(form_->close());
        QCOMPARE(zeuge.texte, QStringList("Speichern ?"));
        QCOMPARE(zeuge.titel, QStringList("Speichern"));
        QCOMPARE(verlassen.count(), 1);
        const std::string zahlungen = Inhalt(Datei("Zinsstaffel1Konto"));
        QCOMPARE(zahlungen.size(), 3U * 129U);
        QVERIFY(zahlungen.find("01.01.2001") < 129U);
        QVERIFY(zahlungen.find("31.12.2006") > 129U);
        QVERIFY(zahlungen.find("15.03.2007") > 2U * 129U);
    }

    void verlassenMitNeinSpeichertNicht() {
        KontoEingeben();
        Zeuge zeuge;
        zeuge.antwort = Antwort::nein;
        QVERIFY(form_->close());
        QCOMPARE(Dateien(ablage_->Pfad()), "");
        // The settings are written before the question.
        QCOMPARE(fs::file_size(arbeit_->Pfad() / "Zinsverrechnung"), 90U);
    }

    void verlassenMitAbbrechenBleibt() {
        Zeuge zeuge;
        zeuge.antwort = Antwort::abbrechen;
        QSignalSpy verlassen(form_.get(), &Form48000::verlassen);
        QVERIFY(!form_->close());
        QVERIFY(form_->isVisible());
        QCOMPARE(verlassen.count(), 0);
    }

    void verlassenMitJaBleibtWennDerDialogAbgebrochenWird() {
        KontoEingeben();
        const Zeuge zeuge;
        const Dateiwahl wahl;
        QVERIFY(!form_->close());
        QCOMPARE(wahl.fragen.size(), 1U);
        QVERIFY(form_->isVisible());
        QCOMPARE(Zeilen(*form_, "List1"), 2);
    }

    void eineAngefangeneAenderungFolgtIhrerZahlungDurchDieSortierung() {
        KontoEingeben();
        Finde<Tabelle>(form_.get(), "List1")->selectRow(0);
        Klicke(*form_, "Bearbeiten");
        // Calculating sorts: the payment of 15.03.2007 becomes the second one.
        Waehle(*form_, Form48000::berechnung);
        Waehle(*form_, Form48000::zahlungen);
        Fuelle(*form_, "Betrag", "501");
        Klicke(*form_, "übernehmen");
        QCOMPARE(Zeile(*form_, "List1", 0), "31.12.2006|1.000,00|Einlage");
        QCOMPARE(Zeile(*form_, "List1", 1), "15.03.2007|501,00|Nachzahlung");
    }
};

ZINFOLIO_FENSTERTEST(ProjektTest)

}  // namespace projekt_test

#include "projekt_test.moc"
