// Calculations beside the window: what it shows, what it takes meanwhile, and when their results come.

#include "fenster/rechner/suchzeile.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <atomic>
#include <semaphore>

#include "fenster/formhelfer.h"

namespace suchzeile_test {

using namespace zinfolio;

/// A search as slow as one likes: it goes on until it is let through or stopped.
struct Langsam {
    std::binary_semaphore weiter{0};
    std::atomic<bool> gestoppt = false;

    void operator()(const Suchbeobachter& beobachter) {
        for (std::size_t runde = 1234; !weiter.try_acquire_for(std::chrono::milliseconds(1)); ++runde) {
            if (beobachter(runde)) continue;
            gestoppt = true;
            throw RechnungAbgebrochen();
        }
    }
};

class SuchzeileTest : public QObject {
    Q_OBJECT

  private:
    struct Fenster : QStackedWidget {
        Fenster() {
            auto* anordnung = new QVBoxLayout(seite);
            anordnung->addWidget(suche);
            addWidget(daten);
            addWidget(seite);
            setCurrentWidget(seite);
            Zeige(*this);
        }
        QLineEdit* daten = new QLineEdit;
        QWidget* seite = new QWidget;
        Suchzeile* suche = new Suchzeile("Gesucht …", 100'000, seite);
    };

    std::unique_ptr<Fenster> fenster_;
    std::shared_ptr<Langsam> langsam_;
    int abgeschlossen_ = 0;

    [[nodiscard]] Suchzeile& Suche() const { return *fenster_->suche; }

    void Beginne() {
        Suche().Rechnen([langsam = langsam_](const Suchbeobachter& b) { (*langsam)(b); },
                        [this](const std::exception_ptr& fehler) {
                            QVERIFY(!fehler);
                            ++abgeschlossen_;
                        });
    }
    static void Warte() { QTest::qWait(150); }

  private slots:
    void init() {
        fenster_ = std::make_unique<Fenster>();
        langsam_ = std::make_shared<Langsam>();
        abgeschlossen_ = 0;
    }
    void cleanup() { fenster_.reset(); }

    void eineSchnelleRechnungIstSofortDa() {
        auto ergebnis = std::make_shared<int>(0);
        int gezeigt = 0;
        Suche().Rechnen([ergebnis](const Suchbeobachter&) { *ergebnis = 42; },
                        [&](const std::exception_ptr&) { gezeigt = *ergebnis; });
        QCOMPARE(gezeigt, 42);
        QVERIFY(!Suche().Laeuft());
        QVERIFY(!Suche().isVisible());
    }

    void eineLangeZeigtWoSieStehtUndDasFensterAntwortet() {
        QElapsedTimer uhr;
        uhr.start();
        Beginne();
        QVERIFY(uhr.elapsed() < 2000);
        QVERIFY(Suche().isVisible());
        QVERIFY(Suche().Laeuft());
        QCOMPARE(Fokus(), "Abbrechen");
        QTRY_VERIFY(Finde<QLabel>(&Suche(), "Suchstand")->text().startsWith("Gesucht … 1."));
        QVERIFY(Finde<QLabel>(&Suche(), "Suchstand")->text().endsWith(" Durchläufe"));
        fenster_->setCurrentWidget(fenster_->daten);
        fenster_->daten->setFocus();
        Tippe("100");
        QCOMPARE(fenster_->daten->text(), "100");
        fenster_->setCurrentWidget(fenster_->seite);
        QCOMPARE(abgeschlossen_, 0);
        langsam_->weiter.release();
        QTRY_COMPARE(abgeschlossen_, 1);
        QVERIFY(!Suche().isVisible());
    }

    void abbrechenHaeltSieAn_data() {
        QTest::addColumn<Qt::Key>("taste");
        QTest::newRow("Leertaste") << Qt::Key_Space;
        QTest::newRow("Escape") << Qt::Key_Escape;
    }
    void abbrechenHaeltSieAn() {
        QFETCH(Qt::Key, taste);
        const QSignalSpy abgebrochen(&Suche(), &Suchzeile::abgebrochen);
        Beginne();
        Druecke(taste);
        QCOMPARE(abgebrochen.size(), 1);
        QVERIFY(langsam_->gestoppt);
        QVERIFY(!Suche().isVisible());
        Warte();
        QCOMPARE(abgeschlossen_, 0);
    }

    void eineNeueTrittAnDieStelleDerAlten() {
        Beginne();
        const auto alte = std::exchange(langsam_, std::make_shared<Langsam>());
        Beginne();
        QVERIFY(alte->gestoppt);
        langsam_->weiter.release();
        QTRY_COMPARE(abgeschlossen_, 1);
        Warte();
        QCOMPARE(abgeschlossen_, 1);
    }

    void dasErgebnisKommtErstWennSeineSeiteVornSteht() {
        Beginne();
        fenster_->setCurrentWidget(fenster_->daten);
        langsam_->weiter.release();
        Warte();
        QCOMPARE(abgeschlossen_, 0);
        QVERIFY(Suche().Laeuft());
        fenster_->setCurrentWidget(fenster_->seite);
        QTRY_COMPARE(abgeschlossen_, 1);
    }

    void dasErgebnisUnterbrichtKeineFrage() {
        Beginne();
        QDialog frage(fenster_.get());
        frage.open();
        langsam_->weiter.release();
        Warte();
        QCOMPARE(abgeschlossen_, 0);
        frage.close();
        QTRY_COMPARE(abgeschlossen_, 1);
    }

    void fehlerKommenZumAbschluss() {
        std::string gemeldet;
        Suche().Rechnen([](const Suchbeobachter&) { throw std::runtime_error("Kein Ende."); },
                        [&](const std::exception_ptr& fehler) {
                            try {
                                std::rethrow_exception(fehler);
                            } catch (const std::runtime_error& f) {
                                gemeldet = f.what();
                            }
                        });
        QCOMPARE(gemeldet, std::string("Kein Ende."));
    }

    void dasFensterDarfWeg() {
        Beginne();
        fenster_.reset();
        QVERIFY(langsam_->gestoppt);
        QCOMPARE(abgeschlossen_, 0);
    }
};

ZINFOLIO_FENSTERTEST(SuchzeileTest)

}  // namespace suchzeile_test

#include "suchzeile_test.moc"
