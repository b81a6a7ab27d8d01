// A report on a printer that prints into a file.

#include "fenster/ausgabe/druck.h"

#include <QApplication>
#include <QPageRanges>
#include <QPrinter>

#include "fenster/formhelfer.h"
#include "fenster/nummernbericht.h"
#include "fenster/pdfhelfer.h"

namespace druck_test {

using namespace zinfolio;
namespace fs = std::filesystem;

class DruckTest : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<Testordner> ordner_;
    std::unique_ptr<QPrinter> drucker_;

    [[nodiscard]] fs::path Datei() const { return ordner_->Pfad() / "Druck.pdf"; }

    /// Prints 100 rows: a head page and three pages of the table.
    void Drucke() {
        const Seitenmaler maler(Nummernbericht(100));
        QVERIFY(Drucken(maler, *drucker_));
    }

  private slots:
    void init() {
        ordner_ = std::make_unique<Testordner>();
        drucker_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
        drucker_->setOutputFileName(QString::fromStdString(Datei().string()));
        DruckEinrichten(*drucker_, Nummernbericht(0));
    }
    void cleanup() {
        drucker_.reset();
        ordner_.reset();
    }

    void alleSeitenKommenAn() {
        Drucke();
        const QStringList seiten = Seitentexte(Datei());
        QCOMPARE(seiten.size(), 4);
        QVERIFY(seiten[0].simplified().contains("Endvermögen 1.234,56"));
        QVERIFY(seiten[3].contains("Datum"));
        QVERIFY(seiten[3].contains("Nr00099"));
        QVERIFY(Pdfangabe(Datei(), "Page size").startsWith("842 x 595 pts (A4)"));
        QCOMPARE(Pdfangabe(Datei(), "Title"), "Zinsstaffel Köln (1) \\ 2");
    }

    void dieSeitenSindDieDesPdf() {
        Drucke();
        const Wortgrenzen grenzen = Grenzen(Datei());
        QVERIFY(std::abs(grenzen.rechts - (842 - 25)) < 1);
        QVERIFY(grenzen.links > 24.5);
    }

    void einBereichDrucktNurSeineSeiten() {
        drucker_->setFromTo(2, 3);
        drucker_->setPrintRange(QPrinter::PageRange);
        Drucke();
        const QStringList seiten = Seitentexte(Datei());
        QCOMPARE(seiten.size(), 2);
        QVERIFY(seiten[0].contains("Seite 2 von 4"));
        QVERIFY(seiten[1].contains("Seite 3 von 4"));
    }

    void mehrereBereicheGehenAuch() {
        drucker_->setPageRanges(QPageRanges::fromString("1,3-4"));
        drucker_->setPrintRange(QPrinter::PageRange);
        const std::vector<int> erwartet{0, 2, 3};
        QCOMPARE(GewaehlteSeiten(*drucker_, 4), erwartet);
    }

    void seitenDieEsNichtGibtFehlen() {
        drucker_->setFromTo(4, 9);
        drucker_->setPrintRange(QPrinter::PageRange);
        QCOMPARE(GewaehlteSeiten(*drucker_, 4), std::vector<int>{3});
    }

    void dieLetzteZuerstDrehtDieFolgeUm() {
        drucker_->setPageOrder(QPrinter::LastPageFirst);
        const std::vector<int> erwartet{3, 2, 1, 0};
        QCOMPARE(GewaehlteSeiten(*drucker_, 4), erwartet);
    }

    void kleineresPapierZeigtDieGanzeSeite() {
        drucker_->setPageSize(QPageSize(QPageSize::A5));
        Drucke();
        QCOMPARE(Pdfangabe(Datei(), "Pages"), "4");
        const Wortgrenzen grenzen = Grenzen(Datei());
        // A5 across is 595 points wide: 71 % of A4.
        QVERIFY2(grenzen.rechts < 595 - 17, qPrintable(QString::number(grenzen.rechts)));
        QVERIFY(grenzen.unten < 420);
    }

    void zweiExemplareStehenInDerDateiHintereinander() {
        drucker_->setCopyCount(2);
        Drucke();
        const QStringList seiten = Seitentexte(Datei());
        QCOMPARE(seiten.size(), 8);
        QVERIFY(seiten[3].contains("Seite 4 von 4"));
        QVERIFY(seiten[4].contains("Seite 1 von 4"));
    }

    void unsortierteExemplareStehenSeiteFuerSeite() {
        drucker_->setCopyCount(2);
        drucker_->setCollateCopies(false);
        Drucke();
        const QStringList seiten = Seitentexte(Datei());
        QCOMPARE(seiten.size(), 8);
        QVERIFY(seiten[1].contains("Seite 1 von 4"));
        QVERIFY(seiten[2].contains("Seite 2 von 4"));
    }

    void einDruckerDerNichtSchreibenKannWirdGemeldet() {
        drucker_->setOutputFileName(QString::fromStdString((ordner_->Pfad() / "fehlt" / "x.pdf").string()));
        QVERIFY(!Drucken(Seitenmaler(Nummernbericht(3)), *drucker_));
    }
};

ZINFOLIO_FENSTERTEST(DruckTest)

}  // namespace druck_test

#include "druck_test.moc"
