// The columns of a table that stay in sight while the rest scrolls sideways.

#include "fenster/ui/festspalten.h"

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>

#include "fenster/formhelfer.h"
#include "fenster/ui/tabelle.h"

namespace festspalten_test {

using namespace zinfolio;

class FestspaltenTest : public QObject {
    Q_OBJECT

  private:
    static constexpr int zeilen = 100;
    static constexpr int spalten = 12;
    std::unique_ptr<Tabelle> tabelle_;
    Festspalten* feste_ = nullptr;

    static Tabelleninhalt Inhalt(std::size_t feste) {
        std::vector<Tabellenspalte> koepfe;
        for (int i = 0; i < spalten; ++i)
            koepfe.push_back({i < 2 ? "Datum" : "Eine lange\nÜberschrift"});
        Tabelleninhalt inhalt;
        inhalt.spalten = std::move(koepfe);
        inhalt.zeilen = zeilen;
        inhalt.zelle = [](std::size_t zeile, std::size_t spalte) {
            return std::to_string(zeile) + "/" + std::to_string(spalte);
        };
        inhalt.festeSpalten = feste;
        return inhalt;
    }

    [[nodiscard]] QScrollBar& Quer() const { return *tabelle_->horizontalScrollBar(); }

  private slots:
    void init() {
        tabelle_ = std::make_unique<Tabelle>("Grid");
        feste_ = Finde<Festspalten>(tabelle_.get(), "Festspalten");
        tabelle_->resize(600, 300);
        tabelle_->Zeige(Inhalt(2));
        Zeige(*tabelle_);
    }
    void cleanup() { tabelle_.reset(); }

    void ersteSpaltenBleibenInSichtUndDecken() {
        Quer().setValue(Quer().maximum());
        QVERIFY(feste_->isVisible());
        QVERIFY(!feste_->isColumnHidden(0) && !feste_->isColumnHidden(1) && feste_->isColumnHidden(2));
        QCOMPARE(feste_->width(), tabelle_->columnWidth(0) + tabelle_->columnWidth(1));
        QCOMPARE(feste_->horizontalHeader()->height(), tabelle_->horizontalHeader()->height());
        QCOMPARE(feste_->rowHeight(0), tabelle_->rowHeight(0));
        const QPoint anfang = feste_->mapTo(tabelle_.get(), feste_->viewport()->pos());
        QCOMPARE(anfang, tabelle_->viewport()->pos());
    }

    void zeilenBleibenNebeneinander() {
        QScrollBar& unten = *tabelle_->verticalScrollBar();
        unten.setValue(unten.maximum());
        QCOMPARE(feste_->verticalScrollBar()->value(), unten.value());
        QCOMPARE(feste_->rowViewportPosition(zeilen - 1), tabelle_->rowViewportPosition(zeilen - 1));
        QWheelEvent rad({5, 50}, feste_->viewport()->mapToGlobal(QPointF(5, 50)), {}, {0, 240}, Qt::NoButton,
                        Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(feste_->viewport(), &rad);
        QVERIFY(unten.value() < unten.maximum());
        QCOMPARE(feste_->verticalScrollBar()->value(), unten.value());
    }

    void klickWaehltDieZeileDerTabelle() {
        const QRect zelle = feste_->visualRect(feste_->model()->index(3, 1));
        QTest::mouseClick(feste_->viewport(), Qt::LeftButton, Qt::NoModifier, zelle.center());
        QCOMPARE(tabelle_->MarkierteZeilen(), std::vector<std::size_t>{3});
        QVERIFY(tabelle_->hasFocus());
    }

    void doppelklickIstEinerAufDieTabelle() {
        const QSignalSpy doppelt(tabelle_.get(), &QTableView::doubleClicked);
        const QRect zelle = feste_->visualRect(feste_->model()->index(3, 1));
        QTest::mouseClick(feste_->viewport(), Qt::LeftButton, Qt::NoModifier, zelle.center());
        QTest::mouseDClick(feste_->viewport(), Qt::LeftButton, Qt::NoModifier, zelle.center());
        QCOMPARE(doppelt.count(), 1);
    }

    void pfeiltastenBringenDieZelleNebenSie() {
        tabelle_->setFocus();
        tabelle_->setCurrentIndex(tabelle_->model()->index(0, spalten - 1));
        for (int i = 0; i < spalten - 3; ++i)
            Druecke(Qt::Key_Left);
        QCOMPARE(tabelle_->currentIndex().column(), 2);
        QVERIFY(tabelle_->visualRect(tabelle_->currentIndex()).left() >= feste_->width());
    }

    void groessereSchriftNehmenSieMit() {
        tabelle_->Vergroessern(3);
        QCOMPARE(feste_->font(), tabelle_->font());
        QCOMPARE(feste_->rowHeight(0), tabelle_->rowHeight(0));
        QCOMPARE(feste_->width(), tabelle_->columnWidth(0) + tabelle_->columnWidth(1));
    }

    void woAllesZuSehenOderKeinPlatzIstFehlenSie() {
        tabelle_->resize(3000, 300);
        QVERIFY(!feste_->isVisible());
        tabelle_->resize(100, 300);
        QVERIFY(!feste_->isVisible());
        tabelle_->resize(600, 300);
        QVERIFY(feste_->isVisible());
        tabelle_->Zeige(Inhalt(0));
        QVERIFY(!feste_->isVisible());
    }
};

ZINFOLIO_FENSTERTEST(FestspaltenTest)

}  // namespace festspalten_test

#include "festspalten_test.moc"
