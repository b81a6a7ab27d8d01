// Each key has one owner in every tab of every window.

#include <QCheckBox>

#include "fenster/allefenster.h"
#include "fenster/fenstertest.h"
#include "fenster/formhelfer.h"
#include "fenster/tastenplan.h"

namespace fenstertasten_test {

using namespace zinfolio;

class FenstertastenTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() { UhrStellen(*Datum::Aus(2026, 11, 21)); }

    void jedeTasteHatEinenBesitzer_data() {
        QTest::addColumn<Fensterart>("art");
        for (const Fensterart& art : AlleFenster())
            QTest::newRow(art.name) << art;
    }
    void jedeTasteHatEinenBesitzer() {
        QFETCH(Fensterart, art);
        const Testordner ordner;
        const Fenster fenster = art.neu(ordner.Pfad());
        Zeige(*fenster);
        const Zeuge zeuge;
        auto* register_ = fenster->findChild<QTabWidget*>("TabStrip1");
        for (int stelle = 0; stelle < (register_ ? register_->count() : 1); ++stelle) {
            // A tab that calculates may refuse and go back: its page is shown by itself.
            const QSignalBlocker still(register_);
            if (register_) register_->setCurrentIndex(stelle);
            QTest::qWait(1);
            QCOMPARE(Tastenplan(*fenster).Doppelte().join("; "), "");
            for (QCheckBox* kaestchen : fenster->findChildren<QCheckBox*>())
                if (kaestchen->isVisible()) kaestchen->click();
            QCOMPARE(Tastenplan(*fenster).Doppelte().join("; "), "");
        }
    }
};

ZINFOLIO_FENSTERTEST(FenstertastenTest)

}  // namespace fenstertasten_test

#include "fenstertasten_test.moc"
