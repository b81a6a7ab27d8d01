// The tab "Zinssätze": entry of conditions with its warnings, its acceptance flag, change and deletion.

#include <QApplication>
#include <QCalendarWidget>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "fenster/kontoformular.h"
#include "fenster/ui/uhr.h"

namespace zinssaetze_test {

using namespace zinfolio;

class ZinssaetzeTest : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<Testordner> ordner_;
    std::unique_ptr<Form48000> form_;

    QString Text(const char* name) { return Finde<QLineEdit>(form_.get(), name)->text(); }

    void Kondition(const QString& datum, const QString& gutzins, const QString& guthabenlinie,
                   const QString& kreditlinie) {
        Fuelle(*form_, "Gültigdatum", datum);
        Fuelle(*form_, "Gutzins1", gutzins);
        Fuelle(*form_, "Guthabenlinie", guthabenlinie);
        Fuelle(*form_, "Kreditlinie", kreditlinie);
        Klicke(*form_, "speichern2");
    }

  private slots:
    void initTestCase() { UhrStellen(*Datum::Aus(2026, 11, 21)); }

    void init() {
        ordner_ = std::make_unique<Testordner>();
        form_ = std::make_unique<Form48000>(ordner_->Pfad());
        Zeige(*form_);
        Waehle(*form_, Form48000::zinssaetze);
    }
    void cleanup() {
        form_.reset();
        ordner_.reset();
    }

    void betretenWaehltDenGesamtkontostandUndDasDatum() {
        QVERIFY(Finde<QRadioButton>(form_.get(), "Option1(1)")->isChecked());
        QCOMPARE(Fokus(), "Gültigdatum");
    }

    void enterFuehrtDurchDieFelder() {
        QStringList weg;
        for (int i = 0; i < 7; ++i) {
            weg << Fokus();
            Druecke(Qt::Key_Return);
        }
        QCOMPARE(weg, (QStringList{"Gültigdatum", "Gutzins1", "Gutzins2", "Guthabenlinie", "Kreditzins1",
                                   "Kreditzins2", "Kreditlinie"}));
        QCOMPARE(Fokus(), "Option1(1)");
    }

    void vollstaendigeKonditionWirdOhneMeldungAufgenommen() {
        const Zeuge zeuge;
        Finde<QRadioButton>(form_.get(), "Option1(2)")->click();
        Kondition("01.01.2007", "3,3", "10000", "5000");
        QVERIFY(zeuge.texte.isEmpty());
        QCOMPARE(Zeile(*form_, "List2", 0),
                 "01.01.2007|3,3000|0,0000|10.000,00|0,0000|0,0000|5.000,00|Betrag über Limit");
        QCOMPARE(Text("Gültigdatum"), "");
        QCOMPARE(Fokus(), "Gültigdatum");
    }

    void beideLimitsNullWarnenNurVorDerGuthabenlinieUndWerdenGespeichert() {
        const Zeuge zeuge;
        Kondition("01.01.2007", "3", "", "");
        QCOMPARE(zeuge.texte, QStringList{"Achtung !: Die Guthabenlinie beträgt ´0´ . Somit kommt allein der "
                                          "Guthabenzins2 zur Anwendung."});
        QCOMPARE(Zeilen(*form_, "List2"), 1);
    }

    void kreditlinieNullWarntUndWirdGespeichert() {
        const Zeuge zeuge;
        Kondition("01.01.2007", "3", "1000", "");
        QCOMPARE(zeuge.texte, QStringList{"Achtung !: Die Kreditlinie beträgt ´0´. Somit kommt allein der "
                                          "Kreditzins2 zur Anwendung."});
        QCOMPARE(Zeilen(*form_, "List2"), 1);
    }

    void warnungGleichNachEinerAblehnungWirdNichtGespeichert() {
        const Zeuge zeuge;
        Kondition("", "3", "1000", "1000");
        QCOMPARE(zeuge.texte, QStringList{"Unvollständige Daten. Eine Übernahme ist nicht möglich."});
        Kondition("01.01.2007", "3", "", "");
        QCOMPARE(zeuge.texte.size(), 2);
        QCOMPARE(Zeilen(*form_, "List2"), 0);
        Kondition("01.01.2007", "3", "1000", "1000");
        QCOMPARE(Zeilen(*form_, "List2"), 1);
    }

    void nichtGespeicherteKonditionSagtEsNebenDerTaste() {
        const Zeuge zeuge;
        const auto hinweis = [this] { return Finde<QLabel>(form_.get(), "Konditionshinweis")->text(); };
        Kondition("", "3", "1000", "1000");
        QCOMPARE(hinweis(), "");
        // The refused field takes keys at once.
        QCOMPARE(Fokus(), "Gültigdatum");
        Tippe("010107");
        QCOMPARE(Text("Gültigdatum"), "010107");
        Kondition("01.01.2007", "3", "", "");
        QCOMPARE(hinweis(),
                 "Noch nicht gespeichert: Nach einer Ablehnung müssen beide Limits größer als 0 sein.");
        QCOMPARE(Text("Gutzins1"), "3");
        Kondition("01.01.2007", "3", "1000", "1000");
        QCOMPARE(hinweis(), "");
        Kondition("01.02.2007", "3", "", "");
        QCOMPARE(Zeilen(*form_, "List2"), 2);
        QCOMPARE(hinweis(), "");
    }

    void kalenderIstMitTabUndF4ErreichbarUndSchreibtDasDatum() {
        QCOMPARE(Fokus(), "Gültigdatum");
        Druecke(Qt::Key_Tab);
        QCOMPARE(Fokus(), "Gültigkalender");
        Druecke(Qt::Key_Tab);
        QCOMPARE(Fokus(), "Gutzins1");
        Finde<QLineEdit>(form_.get(), "Gültigdatum")->setFocus();
        Druecke(Qt::Key_F4);
        auto* kalender = Finde<QCalendarWidget>(form_.get(), "mview");
        QVERIFY(kalender->isAncestorOf(QApplication::focusWidget()) || kalender->hasFocus());
        Druecke(Qt::Key_Return);  // today is 21.11.2026
        QCOMPARE(Text("Gültigdatum"), "21.11.2026");
        QCOMPARE(Fokus(), "Gültigdatum");
    }

    void doppeltesDatumWirdAbgelehnt() {
        const Zeuge zeuge;
        Kondition("01.01.2007", "3", "1000", "1000");
        Kondition("1.1.7", "4", "1000", "1000");
        QCOMPARE(zeuge.texte, QStringList{"Das Datum existiert bereits."});
        QCOMPARE(Fokus(), "Gültigdatum");
        QCOMPARE(Zeilen(*form_, "List2"), 1);
    }

    void geaenderteKonditionDarfEinVorhandenesDatumTragen() {
        const Zeuge zeuge;
        Kondition("01.01.2007", "3", "1000", "1000");
        Kondition("01.02.2007", "4", "1000", "1000");
        Finde<Tabelle>(form_.get(), "List2")->Markiere(1);
        Klicke(*form_, "Bearbeiten2");
        QCOMPARE(Text("Gutzins1"), "4");
        Fuelle(*form_, "Gültigdatum", "01.01.2007");
        Klicke(*form_, "Änderungen");
        QVERIFY(zeuge.texte.isEmpty());
        QCOMPARE(Zeile(*form_, "List2", 1).left(10), "01.01.2007");
    }

    void zinssatzUeber999LeertDasFeld() {
        const Zeuge zeuge;
        Fuelle(*form_, "Gutzins1", "999");
        QVERIFY(zeuge.texte.isEmpty());
        Fuelle(*form_, "Gutzins1", "1000");
        QCOMPARE(zeuge.texte, QStringList{"Maximaler Eingabewert = 999 "});
        QCOMPARE(Text("Gutzins1"), "");
    }

    void konditionenBleibenNachDatumGeordnet() {
        const Zeuge zeuge;
        Kondition("01.03.2007", "3", "1000", "1000");
        Kondition("01.01.2007", "1", "1000", "1000");
        QCOMPARE(Zeile(*form_, "List2", 0).left(10), "01.01.2007");
    }

    void loeschenFragtMitSeinemTextUndLaesstSichZuruecknehmen() {
        const Zeuge zeuge;
        Kondition("01.01.2007", "3", "1000", "1000");
        Klicke(*form_, "Löschen2");
        QCOMPARE(zeuge.texte, QStringList{"Soll die markierte Zahlungsreihe wirklich gelöscht werden ?"});
        QCOMPARE(Zeilen(*form_, "List2"), 0);
        Finde<QAction>(Finde<QWidget>(form_.get(), "Frame2"), "LöschenRückgängig")->trigger();
        QCOMPARE(Zeile(*form_, "List2", 0).left(17), "01.01.2007|3,0000");
    }
};

ZINFOLIO_FENSTERTEST(ZinssaetzeTest)

}  // namespace zinssaetze_test

#include "zinssaetze_test.moc"
