// The frame of a calculator, filled with one as small as it can be, under real keys.

#include "fenster/rechner/rechner.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QTextEdit>
#include <QToolButton>

#include "fenster/ausgabe/seitenansicht.h"
#include "fenster/fenstertest.h"
#include "fenster/formhelfer.h"
#include "fenster/proberechner.h"
#include "fenster/tastenplan.h"

namespace rechner_test {

using namespace zinfolio;

class RechnerTest : public QObject {
    Q_OBJECT

  private:
    enum Register { daten, berechnen, notizen };

    std::unique_ptr<Pruefstand<Proberechner>> stand_;

    QMainWindow& Form() { return *stand_->form; }
    int Gewaehlt() { return Finde<QTabWidget>(&Form(), "TabStrip1")->currentIndex(); }
    bool Sichtbar(const char* name) { return Finde<QWidget>(&Form(), name)->isVisible(); }
    QString Notiz() { return Finde<QTextEdit>(&Form(), "RT")->toPlainText(); }

    /// 1 000 at 10 % for two years, by keys alone: Enter goes from field to field, F9 calculates.
    void Eingeben() {
        Finde<QLineEdit>(&Form(), "Betrag")->setFocus();
        for (const char* wert : {"1000", "10", "2"}) {
            Tippe(wert);
            Druecke(Qt::Key_Return);
        }
    }
    void Rechnen() {
        Eingeben();
        Druecke(Qt::Key_F9);
    }
    std::filesystem::path SpeichernAls(const char* name) {
        const auto datei = stand_->ablage.Pfad() / name;
        const Dateiwahl wahl(datei);
        stand_->Taste(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        return datei;
    }

  private slots:
    void init() { stand_ = std::make_unique<Pruefstand<Proberechner>>(); }
    void cleanup() { stand_.reset(); }

    void enterGehtDurchDieFelder() {
        Eingeben();
        QCOMPARE(Fokus(), "Combo1");
        QCOMPARE(Finde<QLineEdit>(&Form(), "Zins")->text(), "10");
    }

    void f9RechnetUndZeigtDasErgebnis() {
        Rechnen();
        QCOMPARE(Gewaehlt(), int(berechnen));
        QCOMPARE(Zeilen(Form(), "Grid"), 3);
        QCOMPARE(Zeile(Form(), "Grid", 2), "2|1.210,00");
    }

    void eineAblehnungWaehltRegisterUndFeld() {
        Fuelle(Form(), "Betrag", "1000");
        const Zeuge zeuge;
        Waehle(Form(), berechnen);
        QCOMPARE(zeuge.texte, QStringList("Bitte den Zins eingeben."));
        QCOMPARE(zeuge.titel, QStringList("OK"));
        QCOMPARE(zeuge.arten, std::vector{Meldungsart::warnung});
        QCOMPARE(zeuge.tasten, std::vector{Meldungstasten::ok});
        QCOMPARE(Gewaehlt(), int(daten));
        QCOMPARE(Fokus(), "Zins");
    }

    void dasAbgelehnteFeldIstGanzMarkiert() {
        Rechnen();
        Waehle(Form(), daten);
        Fuelle(Form(), "Jahre", "0");
        Druecke(Qt::Key_F9);
        const Zeuge zeuge;
        Klicke(Form(), "Grafik");
        QCOMPARE(zeuge.texte, QStringList("Ein Jahr ergibt kein Bild."));
        QCOMPARE(Fokus(), "Jahre");
        QCOMPARE(Finde<QLineEdit>(&Form(), "Jahre")->selectedText(), "0");
    }

    void einFehlerFuehrtZumErstenRegister() {
        Eingeben();
        Fuelle(Form(), "Jahre", "40000");
        const Zeuge zeuge;
        Druecke(Qt::Key_F9);
        QCOMPARE(zeuge.texte.size(), 1);
        QVERIFY(zeuge.texte[0].startsWith("Bitte überprüfen Sie Ihre Angaben."));
        QCOMPARE(Gewaehlt(), int(daten));
        QVERIFY(!QApplication::overrideCursor());
    }

    void derTitelTraegtNamenUndVermerk() {
        QCOMPARE(Form().windowTitle(), "Probe[*]");
        QVERIFY(!Form().isWindowModified());
        Eingeben();
        QVERIFY(Form().isWindowModified());
        SpeichernAls("Sparbuch.PRB");
        QCOMPARE(Form().windowTitle(), "Probe – Sparbuch.PRB[*]");
        QCOMPARE(Finde<QLabel>(&Form(), "Projekt")->text(), "Sparbuch.PRB");
        QVERIFY(!Form().isWindowModified());
    }

    void dasProjektKommtGanzZurueck() {
        Eingeben();
        Finde<QComboBox>(&Form(), "Combo1")->setCurrentIndex(1);
        Waehle(Form(), notizen);
        Tippe("Sparbuch der Oma");
        const auto datei = SpeichernAls("Sparbuch.PRB");
        stand_->Oeffnen();
        QCOMPARE(Notiz(), "");
        const Dateiwahl wahl(datei);
        stand_->Taste(Qt::Key_O);
        QCOMPARE(wahl.fragen.size(), 1U);
        QCOMPARE(wahl.fragen[0].titel, "Anlage öffnen");
        QCOMPARE(Finde<QLineEdit>(&Form(), "Betrag")->text(), "1000");
        QCOMPARE(Notiz(), "Sparbuch der Oma");
        Druecke(Qt::Key_F9);
        // Without interest on interest: 1 000 + 2 * 100.
        QCOMPARE(Zeile(Form(), "Grid", 2), "2|1.200,00");
    }

    void unveraenderteNotizenBleibenIhreBytes() {
        const auto datei = SpeichernAls("Sparbuch.PRB");
        const std::string fremd = "{\\rtf1\\ansi{\\*\\fremd 1}\\b Gr\\'fc\\'dfe\\par}";
        std::ofstream(datei, std::ios::binary) << fremd;
        const Dateiwahl wahl(datei);
        stand_->Taste(Qt::Key_O);
        QCOMPARE(Notiz(), "Grüße");
        stand_->Taste(Qt::Key_S);
        QCOMPARE(Inhalt(datei), fremd);
        Waehle(Form(), notizen);
        Tippe("!");
        stand_->Taste(Qt::Key_S);
        QVERIFY(Inhalt(datei).find("!Gr") != std::string::npos);
    }

    void vorschauUndGrafikFuehrenZurueckWoherSieKamen() {
        Rechnen();
        for (const auto& [taste, rahmen, zurueck] :
             {std::tuple("Drucken", "Frame7", "Command11"), std::tuple("Grafik", "Frame6", "Command7")}) {
            Klicke(Form(), taste);
            QVERIFY(Sichtbar(rahmen));
            Klicke(Form(), zurueck);
            QVERIFY(!Sichtbar(rahmen) && Sichtbar("Grid"));
            QCOMPARE(Fokus(), taste);
            Klicke(Form(), taste);
            Druecke(Qt::Key_Escape);
            QVERIFY(!Sichtbar(rahmen) && Sichtbar("Grid"));
            QCOMPARE(Gewaehlt(), int(berechnen));
        }
    }

    void strgSSpeichertInJederAnsicht() {
        Rechnen();
        const auto datei = SpeichernAls("Sparbuch.PRB");
        for (const char* taste : {"Drucken", "Grafik"}) {
            Druecke(Qt::Key_F9);
            Klicke(Form(), taste);
            std::filesystem::remove(datei);
            Druecke(Qt::Key_S, Qt::ControlModifier);
            QVERIFY2(std::filesystem::exists(datei), taste);
        }
    }

    void f10FuehrtInsMenueUndZurueck() {
        Eingeben();
        const QString feld = Fokus();
        Druecke(Qt::Key_F10);
        QVERIFY(Form().menuBar()->hasFocus());
        QCOMPARE(Form().menuBar()->activeAction()->text(), "&Datei");
        Druecke(Qt::Key_Escape);
        QCOMPARE(Fokus(), feld);
    }

    void strgTabWechseltDasRegisterVonUeberall() {
        Eingeben();
        Druecke(Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(Gewaehlt(), int(berechnen));
        Klicke(Form(), "Grafik");
        Druecke(Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(Gewaehlt(), int(notizen));
        QCOMPARE(Fokus(), "RT");
        Druecke(Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(Gewaehlt(), int(daten));
        Druecke(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(Gewaehlt(), int(notizen));
        Druecke(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(Gewaehlt(), int(berechnen));
    }

    void jedeTasteHatInJederAnsichtEinenBesitzer() {
        Rechnen();
        for (const int register_ : {daten, berechnen, notizen}) {
            Waehle(Form(), register_);
            QCOMPARE(Tastenplan(Form()).Doppelte(), QStringList());
        }
        Waehle(Form(), berechnen);
        for (const char* taste : {"Drucken", "Grafik"}) {
            Klicke(Form(), taste);
            QCOMPARE(Tastenplan(Form()).Doppelte(), QStringList());
            Druecke(Qt::Key_Escape);
        }
    }

    void verlassenFragtImmer_data() {
        QTest::addColumn<Antwort>("antwort");
        QTest::addColumn<bool>("verlassen");
        QTest::newRow("Nein verlässt") << Antwort::nein << true;
        QTest::newRow("Abbrechen bleibt") << Antwort::abbrechen << false;
    }
    void verlassenFragtImmer() {
        QFETCH(Antwort, antwort);
        QFETCH(bool, verlassen);
        const Zeuge zeuge{antwort};
        const QSignalSpy gemeldet(&Form(), SIGNAL(verlassen()));
        QTest::mouseClick(Finde<QToolButton>(&Form(), "Command2"), Qt::LeftButton);
        QCOMPARE(zeuge.texte, QStringList("Speichern ?"));
        QCOMPARE(zeuge.titel, QStringList("Speichern"));
        QCOMPARE(zeuge.arten, std::vector{Meldungsart::frage});
        QCOMPARE(zeuge.tasten, std::vector{Meldungstasten::jaNeinAbbrechen});
        QCOMPARE(Form().isVisible(), !verlassen);
        QCOMPARE(gemeldet.count(), int(verlassen));
    }

    void einMisslungenesSpeichernLaesstDasFensterOffen() {
        Eingeben();
        const Dateiwahl wahl(stand_->ablage.Pfad() / "gibtesnicht" / "Sparbuch.PRB");
        const Zeuge zeuge{Antwort::ja};
        QVERIFY(!Form().close());
        QCOMPARE(zeuge.texte.size(), 2);
        QVERIFY(zeuge.texte[1].startsWith("Die Anlage konnte nicht gespeichert werden.\n\n"));
        QVERIFY(Form().isVisible());
        QVERIFY(Form().isWindowModified());
    }

    void einProjektDasSichNichtLesenLaesstAendertNichts() {
        Eingeben();
        SpeichernAls("Sparbuch.PRB");
        const Dateiwahl wahl(stand_->ablage.Pfad() / "Anderes.PRB");
        const Zeuge zeuge;
        stand_->Taste(Qt::Key_O);
        QCOMPARE(zeuge.texte.size(), 1);
        QVERIFY(zeuge.texte[0].contains("Anderes.PRB"));
        QCOMPARE(Form().windowTitle(), "Probe – Sparbuch.PRB[*]");
        QCOMPARE(Finde<QLineEdit>(&Form(), "Betrag")->text(), "1000");
    }

    void dieFenstergroesseBleibt() {
        Form().resize(1000, 640);
        const Zeuge zeuge{Antwort::nein};
        QVERIFY(Form().close());
        stand_->Oeffnen();
        QCOMPARE(Form().size(), QSize(1000, 640));
    }

    void dasImpressumWirdVerlangt() {
        const QSignalSpy verlangt(&Form(), SIGNAL(impressumVerlangt()));
        QTest::mouseClick(Finde<QToolButton>(&Form(), "Velmora"), Qt::LeftButton);
        QCOMPARE(Finde<QToolButton>(&Form(), "Velmora")->text(), "Impressum");
        QCOMPARE(verlangt.count(), 1);
    }
};

ZINFOLIO_FENSTERTEST(RechnerTest)

}  // namespace rechner_test

#include "rechner_test.moc"
