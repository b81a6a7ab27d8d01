// The preview with real keys: pages, zoom, and the way back.

#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QScrollBar>
#include <QSignalSpy>
#include <QToolButton>
#include <QWheelEvent>
#include <stdexcept>

#include "fenster/vorschauhelfer.h"

namespace vorschau_test {

using namespace zinfolio;

class VorschauTest : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<Vorschauaufbau> v_;

    QComboBox* Zoom() { return Finde<QComboBox>(&v_->form, "Zoom"); }
    bool Frei(const char* taste) { return Finde<QToolButton>(&v_->form, taste)->isEnabled(); }
    void Blaettern(const char* taste) {
        QTest::mouseClick(Finde<QToolButton>(&v_->form, taste), Qt::LeftButton);
    }
    void Rad(int drehung, Qt::KeyboardModifiers zusatz = Qt::NoModifier) {
        const QPointF stelle(100, 100);
        QWheelEvent ereignis(stelle, v_->Ansicht()->viewport()->mapToGlobal(stelle), {}, {0, drehung},
                             Qt::NoButton, zusatz, Qt::NoScrollPhase, false);
        QApplication::sendEvent(v_->Ansicht()->viewport(), &ereignis);
    }

  private slots:
    void init() { v_ = std::make_unique<Vorschauaufbau>(); }
    void cleanup() { v_.reset(); }

    void zeigtDieErsteSeiteUndNenntDieAnzahl() {
        QCOMPARE(v_->form.objectName(), "Frame7");
        QCOMPARE(v_->Seitenangabe(), "Seite 1 von 5");
        QCOMPARE(v_->gebildet, 1);
        QVERIFY(!Frei("Ersteseite") && !Frei("Vorigeseite"));
        QVERIFY(Frei("Nächsteseite") && Frei("Letzteseite"));
    }

    void tastenBlaettern() {
        QCOMPARE(Fokus(), "VP");
        Druecke(Qt::Key_PageDown);
        QCOMPARE(v_->Seitenangabe(), "Seite 2 von 5");
        Druecke(Qt::Key_PageDown);
        QCOMPARE(v_->Seitenangabe(), "Seite 3 von 5");
        Druecke(Qt::Key_PageUp);
        QCOMPARE(v_->Seitenangabe(), "Seite 2 von 5");
        Druecke(Qt::Key_End);
        QCOMPARE(v_->Seitenangabe(), "Seite 5 von 5");
        Druecke(Qt::Key_PageDown);
        QCOMPARE(v_->Seitenangabe(), "Seite 5 von 5");
        Druecke(Qt::Key_Home);
        QCOMPARE(v_->Seitenangabe(), "Seite 1 von 5");
        Druecke(Qt::Key_PageUp);
        QCOMPARE(v_->Seitenangabe(), "Seite 1 von 5");
    }

    void knoepfeBlaettern() {
        Blaettern("Nächsteseite");
        QCOMPARE(v_->Seitenangabe(), "Seite 2 von 5");
        Blaettern("Letzteseite");
        QCOMPARE(v_->Seitenangabe(), "Seite 5 von 5");
        QVERIFY(!Frei("Nächsteseite") && !Frei("Letzteseite"));
        Blaettern("Vorigeseite");
        QCOMPARE(v_->Seitenangabe(), "Seite 4 von 5");
        Blaettern("Ersteseite");
        QCOMPARE(v_->Seitenangabe(), "Seite 1 von 5");
    }

    void eineGetippteSeiteWirdGezeigt() {
        auto* zahl = Finde<QSpinBox>(&v_->form, "Seitenzahl");
        zahl->setFocus();
        zahl->selectAll();
        Tippe("4");
        QCOMPARE(v_->Ansicht()->Seite(), 0);
        Druecke(Qt::Key_Return);
        QCOMPARE(v_->Seitenangabe(), "Seite 4 von 5");
        QCOMPARE(v_->Ansicht()->Seite(), 3);
    }

    void eineSeiteDieEsNichtGibtWirdNichtGezeigt() {
        auto* zahl = Finde<QSpinBox>(&v_->form, "Seitenzahl");
        zahl->setFocus();
        zahl->selectAll();
        Tippe("9");
        Druecke(Qt::Key_Return);
        QCOMPARE(v_->Ansicht()->Seite(), 0);
        QCOMPARE(v_->Seitenangabe(), "Seite 1 von 5");
    }

    void blaetternZeigtEinAnderesBild() {
        const QImage erste = v_->Ansicht()->viewport()->grab().toImage();
        Druecke(Qt::Key_PageDown);
        QVERIFY(v_->Ansicht()->viewport()->grab().toImage() != erste);
        Druecke(Qt::Key_PageUp);
        QVERIFY(v_->Ansicht()->viewport()->grab().toImage() == erste);
    }

    void derZoomBeginntMitDemDesBerichts() {
        QCOMPARE(Zoom()->currentText(), "75 %");
        v_->form.Zeigen([] {
            Bericht bericht = Nummernbericht(1);
            bericht.zoom = 65;
            return bericht;
        });
        QCOMPARE(Zoom()->currentText(), "65 %");
        QCOMPARE(qRound(v_->Ansicht()->Prozent()), 65);
    }

    void einFremderZoomKommtInDieListe() {
        v_->form.Zeigen([] {
            Bericht bericht = Nummernbericht(1);
            bericht.zoom = 90;
            return bericht;
        });
        QCOMPARE(Zoom()->currentText(), "90 %");
        QCOMPARE(Zoom()->itemText(Zoom()->currentIndex() - 1), "75 %");
        QCOMPARE(Zoom()->itemText(Zoom()->currentIndex() + 1), "100 %");
    }

    void tastenZoomen() {
        Druecke(Qt::Key_Plus, Qt::ControlModifier);
        QCOMPARE(Zoom()->currentText(), "100 %");
        Druecke(Qt::Key_Minus, Qt::ControlModifier);
        Druecke(Qt::Key_Minus, Qt::ControlModifier);
        QCOMPARE(Zoom()->currentText(), "65 %");
        for (int i = 0; i < 9; ++i)
            Druecke(Qt::Key_Plus, Qt::ControlModifier);
        QCOMPARE(Zoom()->currentText(), "200 %");
        for (int i = 0; i < 9; ++i)
            Druecke(Qt::Key_Minus, Qt::ControlModifier);
        QCOMPARE(Zoom()->currentText(), "50 %");
    }

    void dasRadMitStrgZoomt() {
        Rad(120, Qt::ControlModifier);
        QCOMPARE(Zoom()->currentText(), "100 %");
        Rad(-120, Qt::ControlModifier);
        QCOMPARE(Zoom()->currentText(), "75 %");
        QCOMPARE(v_->Ansicht()->Seite(), 0);
    }

    void ganzeSeiteUndSeitenbreiteFolgenDemFenster() {
        Zoom()->setCurrentText("Ganze Seite");
        QCOMPARE(v_->Ansicht()->verticalScrollBar()->maximum(), 0);
        QCOMPARE(v_->Ansicht()->horizontalScrollBar()->maximum(), 0);
        const double vorher = v_->Ansicht()->Prozent();
        v_->form.resize(1400, 900);
        QApplication::processEvents();
        QVERIFY(v_->Ansicht()->Prozent() > vorher);
        QCOMPARE(v_->Ansicht()->verticalScrollBar()->maximum(), 0);
        v_->form.resize(1400, 500);
        Zoom()->setCurrentText("Seitenbreite");
        QApplication::processEvents();
        QVERIFY(v_->Ansicht()->verticalScrollBar()->maximum() > 0);
        QCOMPARE(v_->Ansicht()->horizontalScrollBar()->maximum(), 0);
    }

    void dasRadBlaettertAmRandDerSeite() {
        Zoom()->setCurrentText("Ganze Seite");
        Rad(-120);
        QCOMPARE(v_->Ansicht()->Seite(), 1);
        Rad(120);
        QCOMPARE(v_->Ansicht()->Seite(), 0);
        Zoom()->setCurrentText("200 %");
        Rad(-120);
        QCOMPARE(v_->Ansicht()->Seite(), 0);
        QVERIFY(v_->Ansicht()->verticalScrollBar()->value() > 0);
        v_->Ansicht()->verticalScrollBar()->setValue(v_->Ansicht()->verticalScrollBar()->maximum());
        Rad(-60);
        QCOMPARE(v_->Ansicht()->Seite(), 0);
        Rad(-60);
        QCOMPARE(v_->Ansicht()->Seite(), 1);
        QCOMPARE(v_->Ansicht()->verticalScrollBar()->value(), 0);
        Rad(120);
        QCOMPARE(v_->Ansicht()->Seite(), 0);
        QCOMPARE(v_->Ansicht()->verticalScrollBar()->value(), v_->Ansicht()->verticalScrollBar()->maximum());
    }

    void dasPapierIstHellAuchWoDieFarbenDunkelSind() {
        QPalette dunkel;
        dunkel.setColor(QPalette::Window, QColor(40, 40, 40));
        dunkel.setColor(QPalette::WindowText, Qt::white);
        v_->form.setPalette(dunkel);
        const QImage bild = v_->Ansicht()->viewport()->grab().toImage();
        QCOMPARE(bild.pixelColor(bild.width() / 2, bild.height() / 2), QColor(Qt::white));
        QVERIFY(bild.pixelColor(2, 2).lightness() < 60);
    }

    void zurueckMeldetSich() {
        const QSignalSpy spion(&v_->form, &FormVorschau::zurueck);
        v_->Klicke("Command11");
        QCOMPARE(spion.count(), 1);
    }

    void eineNeueVorschauBeginntVorn() {
        Druecke(Qt::Key_End);
        v_->BerichtZeigen(20);
        QCOMPARE(v_->Seitenangabe(), "Seite 1 von 2");
    }

    void einFehlerBeimBildenLaesstDieAlteVorschau() {
        Druecke(Qt::Key_PageDown);
        bool geworfen = false;
        try {
            v_->form.Zeigen([]() -> Bericht { throw std::runtime_error("x"); });
        } catch (const std::runtime_error&) {
            geworfen = true;
        }
        QVERIFY(geworfen);
        QCOMPARE(v_->Seitenangabe(), "Seite 2 von 5");
    }

    void dieErsteVonVielenSeitenKommtSchnell() {
        QElapsedTimer uhr;
        uhr.start();
        v_->BerichtZeigen(32'000);
        v_->Ansicht()->viewport()->repaint();
        QVERIFY2(uhr.elapsed() < 1000, qPrintable(QString::number(uhr.elapsed())));
        QCOMPARE(v_->Seitenangabe(), "Seite 1 von 844");
    }
};

ZINFOLIO_FENSTERTEST(VorschauTest)

}  // namespace vorschau_test

#include "vorschau_test.moc"
