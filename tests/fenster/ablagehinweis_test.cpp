// The line that says where a file went.

#include "fenster/ui/ablagehinweis.h"

#include <QDesktopServices>
#include <QLabel>
#include <QMainWindow>
#include <QStatusBar>
#include <QToolButton>

#include "fenster/formhelfer.h"
#include "fenster/proberechner.h"

namespace ablagehinweis_test {

using namespace zinfolio;

class AblagehinweisTest : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<QMainWindow> fenster_;
    QList<QUrl> geoeffnet_;

    QString Text() { return Finde<QLabel>(fenster_.get(), "Ablageort")->text(); }

  public slots:
    /// Stands in for the desktop.
    void Merken(const QUrl& adresse) { geoeffnet_ << adresse; }

  private slots:
    void init() {
        fenster_ = std::make_unique<QMainWindow>();
        fenster_->setCentralWidget(new QLabel("Inhalt"));
        Zeige(*fenster_);
        geoeffnet_.clear();
        QDesktopServices::setUrlHandler("file", this, "Merken");
    }
    void cleanup() {
        QDesktopServices::unsetUrlHandler("file");
        fenster_.reset();
    }

    void nenntDateiUndOrdnerUndOeffnetBeide() {
        Ablagehinweis::Zeigen(*fenster_->centralWidget(), "/tmp/Köln/Auszug.pdf");
        QCOMPARE(Text(), "Gespeichert: Auszug.pdf in /tmp/Köln");
        QVERIFY(fenster_->statusBar()->isVisible());
        Klicke(*fenster_, "DateiZeigen");
        Klicke(*fenster_, "OrdnerZeigen");
        QCOMPARE(geoeffnet_, (QList<QUrl>{QUrl::fromLocalFile("/tmp/Köln/Auszug.pdf"),
                                          QUrl::fromLocalFile("/tmp/Köln")}));
    }

    void dieNaechsteDateiTrittAnSeineStelle() {
        Ablagehinweis::Zeigen(*fenster_, "/tmp/a.pdf");
        Ablagehinweis::Zeigen(*fenster_, "/tmp/b.pdf");
        QCOMPARE(Text(), "Gespeichert: b.pdf in /tmp");
        QCOMPARE(fenster_->findChildren<Ablagehinweis*>().size(), 1);
    }

    void dasKreuzSchliesstIhnUndDieTastaturErreichtEs() {
        Ablagehinweis::Zeigen(*fenster_, "/tmp/a.pdf");
        Finde<QToolButton>(fenster_.get(), "DateiZeigen")->setFocus();
        QCOMPARE(Gang(Qt::Key_Tab), (QStringList{"DateiZeigen", "OrdnerZeigen", "HinweisSchließen"}));
        Klicke(*fenster_, "HinweisSchließen");
        QTRY_VERIFY(!fenster_->findChild<Ablagehinweis*>());
        QVERIFY(!fenster_->statusBar()->isVisible());
    }

    void einSehrLangerPfadVerbreitertDasFensterNicht() {
        const int breite = fenster_->minimumSizeHint().width();
        Ablagehinweis::Zeigen(*fenster_, "/tmp/" + std::string(3000, 'x') + "/a.pdf");
        QVERIFY(fenster_->minimumSizeHint().width() < breite + 400);
        QVERIFY(Finde<QLabel>(fenster_.get(), "Ablageort")->toolTip().endsWith("/a.pdf"));
    }

    void exporteSchlagenDenNamenDesProjektsVor() {
        Pruefstand<Proberechner> stand;
        QCOMPARE(Namensvorschlag(*stand.form, "Tabelle", "csv"), "Probe.csv");
        const auto datei = stand.ablage.Pfad() / "Anlage v1.2.PRB";
        const Dateiwahl wahl(datei);
        stand.Taste(Qt::Key_S);
        QCOMPARE(Namensvorschlag(*Finde<QWidget>(stand.form.get(), "Grid"), "Tabelle", "csv"),
                 QString::fromStdString((stand.ablage.Pfad() / "Anlage v1.2.csv").string()));
    }
};

ZINFOLIO_FENSTERTEST(AblagehinweisTest)

}  // namespace ablagehinweis_test

#include "ablagehinweis_test.moc"
