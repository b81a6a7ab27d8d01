// The handbook: F1 opens it at the place of the focus; it searches, follows links and knows the way back.

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTabWidget>
#include <QTextBlock>
#include <QVBoxLayout>

#include "fenster/formhelfer.h"
#include "fenster/hilfe/handbuchseite.h"
#include "fenster/hilfe/hilfefenster.h"
#include "fenster/hilfe/hilfetaste.h"
#include "fenster/ui/deutsch.h"
#include "fenster/ui/entertaste.h"

namespace hilfe_test {

using namespace zinfolio;

/// A window with the name of a calculator, two tabs and a field with its caption.
struct Probefenster : QWidget {
    Probefenster() {
        setObjectName("Form48000");
        auto* register_ = new QTabWidget;
        auto* seite = new QWidget;
        auto* anordnung = new QVBoxLayout(seite);
        auto* text = new QLabel("1. &Kreditzinssatz           %");
        anordnung->addWidget(text);
        feld = new QLineEdit;
        anordnung->addWidget(feld);
        text->setBuddy(feld);
        register_->addTab(new QWidget, "Zahlungen");
        register_->addTab(seite, "Z&inssätze");
        register_->setCurrentIndex(1);
        (new QVBoxLayout(this))->addWidget(register_);
    }
    QLineEdit* feld;
};

class HilfeTest : public QObject {
    Q_OBJECT

  private slots:
    void themaKommtVonFensterRegisterUndBeschriftung() {
        const Probefenster fenster;
        QCOMPARE(ThemaVon(fenster.feld),
                 (Hilfethema{"zinsstaffelrechner", "Zinssätze", "1. Kreditzinssatz"}));
    }

    void unbekanntesFensterFuehrtZurErstenSeite() {
        const QWidget fremd;
        QCOMPARE(ThemaVon(&fremd).kapitel, "erste-schritte");
        QCOMPARE(ThemaVon(nullptr).kapitel, "erste-schritte");
    }

    void sprungzieleSindKleinUndOhneSatzzeichen() {
        QCOMPARE(Sprungziel("Zins-/Tilgungsplan"), "zins-tilgungsplan");
        QCOMPARE(Sprungziel("Zinssätze"), "zinssätze");
    }

    void f1OeffnetDasHandbuchAmFeldMitFokus() {
        Hilfetaste taste;
        qApp->installEventFilter(&taste);
        Probefenster fenster;
        Zeige(fenster);
        fenster.feld->setFocus();
        Druecke(Qt::Key_F1);
        Hilfefenster* hilfe = nullptr;
        for (QWidget* oben : QApplication::topLevelWidgets()) {
            if (!hilfe) hilfe = qobject_cast<Hilfefenster*>(oben);
        }
        QVERIFY(hilfe && hilfe->isVisible());
        auto* seite = hilfe->findChild<Handbuchseite*>();
        QCOMPARE(seite->source().fileName(), "zinsstaffelrechner.md");
        QVERIFY(seite->textCursor().block().text().contains("1. Kreditzinssatz"));
        QCOMPARE(hilfe->findChild<QListWidget*>("Kapitel")->currentItem()->text(), "Zinsstaffelrechner");
        hilfe->close();
        qApp->removeEventFilter(&taste);
    }

    void seiteZeigtKeineKommentare() {
        Handbuchseite seite;
        seite.Zeige("erste-schritte", {});
        QVERIFY(seite.toPlainText().startsWith("Erste Schritte"));
        QVERIFY(!seite.toPlainText().contains("beispiel"));
        QVERIFY(!seite.toPlainText().contains("<!--"));
    }

    void inhaltsverzeichnisZeigtJedesKapitel() {
        Hilfefenster hilfe;
        const auto* kapitel = Finde<QListWidget>(&hilfe, "Kapitel");
        QCOMPARE(kapitel->count(), 11);
        QCOMPARE(kapitel->item(0)->text(), "Erste Schritte");
        QCOMPARE(kapitel->item(10)->text(), "Dateien");
    }

    void kapitelInDerListeOeffnetSeineSeiteUndZurueckFuehrtZurueck() {
        Hilfefenster hilfe;
        hilfe.Zeigen({.kapitel = "erste-schritte"});
        Finde<QListWidget>(&hilfe, "Kapitel")->setCurrentRow(5);
        auto* seite = hilfe.findChild<Handbuchseite*>();
        QCOMPARE(seite->source().fileName(), "finanztabellen.md");
        Finde<QAction>(&hilfe, "Zurueck")->trigger();
        QCOMPARE(seite->source().fileName(), "erste-schritte.md");
        QCOMPARE(Finde<QListWidget>(&hilfe, "Kapitel")->currentRow(), 0);
    }

    void sucheZaehltUeberAlleKapitelUndSpringtWeiter() {
        Hilfefenster hilfe;
        hilfe.Zeigen({.kapitel = "erste-schritte"});
        auto* suche = Finde<QLineEdit>(&hilfe, "Suche");
        suche->setFocus();
        QTest::keyClicks(suche, "VEWertneu");
        QCOMPARE(Finde<QLabel>(&hilfe, "Treffer")->text(), " 1 Stelle");
        QTest::keyClick(suche, Qt::Key_Return);
        QCOMPARE(Finde<QLabel>(&hilfe, "Treffer")->text(), " 1 von 1");
        auto* seite = hilfe.findChild<Handbuchseite*>();
        QCOMPARE(seite->source().fileName(), "dateien.md");
        QCOMPARE(seite->textCursor().selectedText(), "VEWertneu");
        suche->setText("gibt es nicht");
        QCOMPARE(Finde<QLabel>(&hilfe, "Treffer")->text(), " Keine Stelle");
    }

    void escSchliesstDasHandbuch() {
        Hilfefenster hilfe;
        Zeige(hilfe);
        Druecke(Qt::Key_Escape);
        QVERIFY(!hilfe.isVisible());
    }
};

ZINFOLIO_FENSTERTEST(HilfeTest)

}  // namespace hilfe_test

#include "hilfe_test.moc"
