// Leaving a date field: completion, refusal, and the click or key that must not slip through.

#include "fenster/ui/datumsfeld.h"

#include <QApplication>
#include <QPushButton>
#include <QVBoxLayout>

#include "fenster/formhelfer.h"
#include "fenster/ui/uhr.h"

namespace datumsfeld_test {

using namespace zinfolio;

class DatumsfeldTest : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<QWidget> fenster_;
    Datumsfeld* feld_ = nullptr;
    QPushButton* taste_ = nullptr;
    int gedrueckt_ = 0;

    void Oeffne() {
        fenster_ = std::make_unique<QWidget>();
        auto* anordnung = new QVBoxLayout(fenster_.get());
        feld_ = new Datumsfeld("Begdatum");
        taste_ = new QPushButton("&Weiter");
        taste_->setObjectName("Taste");
        gedrueckt_ = 0;
        connect(taste_, &QPushButton::clicked, this, [this] { ++gedrueckt_; });
        anordnung->addWidget(feld_);
        anordnung->addWidget(taste_);
        Zeige(*fenster_);
        feld_->setFocus(Qt::TabFocusReason);
    }

  private slots:
    void initTestCase() { UhrStellen(*Datum::Aus(2026, 11, 21)); }

    void kurzformWirdBeimVerlassenErgaenzt_data() {
        QTest::addColumn<QString>("getippt");
        for (const char* text : {"1.2.07", "01.2.07", "1.02.07", "010207", "01022007", "1.2.7"}) {
            QTest::newRow(text) << text;
        }
    }
    void kurzformWirdBeimVerlassenErgaenzt() {
        QFETCH(QString, getippt);
        const Zeuge zeuge;
        Oeffne();
        Tippe(getippt);
        Druecke(Qt::Key_Return);
        QCOMPARE(feld_->text(), "01.02.2007");
        QCOMPARE(Fokus(), "Taste");
        QVERIFY(zeuge.texte.isEmpty());
    }

    void ungueltigesDatumMeldetSichUndBehaeltDenFokus_data() {
        QTest::addColumn<int>("taste");
        QTest::newRow("Enter") << int(Qt::Key_Return);
        QTest::newRow("Tab") << int(Qt::Key_Tab);
    }
    void ungueltigesDatumMeldetSichUndBehaeltDenFokus() {
        QFETCH(int, taste);
        const Zeuge zeuge;
        Oeffne();
        Tippe("31.02.2007");
        Druecke(static_cast<Qt::Key>(taste));
        QCOMPARE(zeuge.texte,
                 QStringList{"Ungültiges Datum. Das Datum wird auf ein gültiges Datum gesetzt."});
        QCOMPARE(zeuge.titel, QStringList{"OK"});
        QCOMPARE(feld_->text(), "21.11.2026");
        QCOMPARE(Fokus(), "Begdatum");
    }

    void einKlickMitUngueltigemDatumWirdGeschluckt() {
        const Zeuge zeuge;
        Oeffne();
        Tippe("99");
        QTest::mouseClick(taste_, Qt::LeftButton);
        QCOMPARE(zeuge.texte.size(), 1);
        QCOMPARE(gedrueckt_, 0);
        QCOMPARE(feld_->text(), "21.11.2026");
        QTest::mouseClick(taste_, Qt::LeftButton);
        QCOMPARE(gedrueckt_, 1);
        QCOMPARE(zeuge.texte.size(), 1);
    }

    void einKuerzelMitUngueltigemDatumWirdGeschluckt() {
        const Zeuge zeuge;
        Oeffne();
        Tippe("99");
        Druecke(Qt::Key_W, Qt::AltModifier);
        QTest::qWait(150);  // a mnemonic presses its button with a short animation
        QCOMPARE(zeuge.texte.size(), 1);
        QCOMPARE(gedrueckt_, 0);
        Druecke(Qt::Key_W, Qt::AltModifier);
        QTRY_COMPARE(gedrueckt_, 1);
    }

    void leeresFeldUndEinZeichenGehenOhneMeldung_data() {
        QTest::addColumn<QString>("text");
        QTest::newRow("leer") << "";
        QTest::newRow("ein Zeichen") << "5";
    }
    void leeresFeldUndEinZeichenGehenOhneMeldung() {
        QFETCH(QString, text);
        const Zeuge zeuge;
        Oeffne();
        Tippe(text);
        Druecke(Qt::Key_Return);
        QVERIFY(zeuge.texte.isEmpty());
        QCOMPARE(feld_->text(), text);
        QCOMPARE(Fokus(), "Taste");
    }

    void vomProgrammVerlassenWirdDasDatumAuchGeprueft() {
        const Zeuge zeuge;
        Oeffne();
        Tippe("1.2.07");
        taste_->setFocus();
        QCOMPARE(feld_->text(), "01.02.2007");
    }
};

ZINFOLIO_FENSTERTEST(DatumsfeldTest)

}  // namespace datumsfeld_test

#include "datumsfeld_test.moc"
