// From the preview to printer, file and clipboard.

#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QPrinter>
#include <QProgressDialog>
#include <QTimer>
#include <fstream>

#include "fenster/ausgabe/druckdialog.h"
#include "fenster/pdfhelfer.h"
#include "fenster/vorschauhelfer.h"

namespace vorschauexport_test {

using namespace zinfolio;
namespace fs = std::filesystem;

/// Answers every print dialog while it lives.
class Druckwahl {
  public:
    explicit Druckwahl(Druckzeuge zeuge) : vorher_(DruckfragenUmleiten(std::move(zeuge))) {}
    ~Druckwahl() { DruckfragenUmleiten(vorher_); }
    Druckwahl(const Druckwahl&) = delete;
    Druckwahl& operator=(const Druckwahl&) = delete;

  private:
    Druckzeuge vorher_;
};

class VorschauexportTest : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<Vorschauaufbau> v_;

  private slots:
    void init() { v_ = std::make_unique<Vorschauaufbau>(); }
    void cleanup() { v_.reset(); }

    void dieAktuelleSeiteKommtAlsBildInDenZwischenspeicher() {
        Druecke(Qt::Key_PageDown);
        QApplication::clipboard()->clear();
        v_->Exportieren(Exportziel::zwischenspeicher);
        const QImage bild = QApplication::clipboard()->image();
        // A4 across at 200 dots to the inch.
        QCOMPARE(bild.size(), QSize(2339, 1654));
        // The header's ground begins where the margins meet, 25 points from the edges.
        QCOMPARE(bild.pixelColor(5, 5), QColor(Qt::white));
        QVERIFY(bild.pixelColor(75, 75) != QColor(Qt::white));
    }

    void dieDateifilterNennenIhrZiel() {
        const std::vector<std::pair<Exportziel, QString>> erwartet{
            {Exportziel::pdf, "Ratenspardateien (*.pdf) |*.pdf"},
            {Exportziel::rtf, "Ratenspardateien (*.rtf) |*.rtf"},
            {Exportziel::htm, "Ratenspardateien (*.htm) |*.htm"}};
        for (const auto& [ziel, filter] : erwartet) {
            const Dateiwahl wahl;
            v_->Exportieren(ziel);
            QCOMPARE(wahl.fragen.size(), 1U);
            QCOMPARE(wahl.fragen[0].filter, filter);
        }
    }

    void pdfWirdGeschrieben() {
        Dateiwahl wahl;
        wahl.antwort = v_->ablage.Pfad() / "Auszug.pdf";
        v_->Exportieren(Exportziel::pdf);
        QCOMPARE(Pdfangabe(v_->ablage.Pfad() / "Auszug.pdf", "Pages"), "5");
        QCOMPARE(v_->gebildet, 1);
    }

    void rtfUndHtmWerdenNeuGebautUndKopiert() {
        const std::vector<std::pair<Exportziel, const char*>> ziele{{Exportziel::rtf, "rtf"},
                                                                    {Exportziel::htm, "htm"}};
        int mal = 1;
        for (const auto& [ziel, endung] : ziele) {
            Dateiwahl wahl;
            wahl.antwort = v_->ablage.Pfad() / (std::string("Auszug.") + endung);
            v_->Exportieren(ziel);
            QCOMPARE(v_->gebildet, ++mal);
            const std::string fest = Inhalt(v_->arbeit.Pfad() / (std::string("Zwispei.") + endung));
            QVERIFY(fest.find("Nr00149") != std::string::npos);
            QCOMPARE(Inhalt(*wahl.antwort), fest);
        }
    }

    void einAbbruchImDialogIstStill() {
        const Zeuge zeuge;
        const Dateiwahl wahl;
        for (const Exportziel ziel : {Exportziel::pdf, Exportziel::rtf, Exportziel::htm})
            v_->Exportieren(ziel);
        const Druckwahl drucken([](QPrinter&) { return false; });
        v_->Exportieren(Exportziel::drucker);
        QVERIFY(zeuge.texte.isEmpty());
        QVERIFY(fs::is_empty(v_->ablage.Pfad()));
        QVERIFY(fs::exists(v_->arbeit.Pfad() / "Zwispei.rtf"));
    }

    void einFehlenderOrdnerWirdGemeldet() {
        for (const Exportziel ziel : {Exportziel::pdf, Exportziel::rtf}) {
            const Zeuge zeuge;
            Dateiwahl wahl;
            wahl.antwort = v_->ablage.Pfad() / "fehlt" / "Auszug.xyz";
            v_->Exportieren(ziel);
            QCOMPARE(zeuge.texte.size(), 1);
            QVERIFY2(zeuge.texte[0].contains("Auszug"), qPrintable(zeuge.texte[0]));
        }
    }

    void derRtfExportLaesstDenLaufendenOrdner() {
        const fs::path vorher = fs::current_path();
        Dateiwahl wahl;
        wahl.antwort = v_->ablage.Pfad() / "Auszug.rtf";
        v_->Exportieren(Exportziel::rtf);
        QCOMPARE(fs::current_path(), vorher);
    }

    void ordnerUndNameDesProjektsSindVorgegeben() {
        const Dateiwahl wahl;
        v_->Exportieren(Exportziel::pdf);
        QCOMPARE(wahl.fragen[0].vorgabe, "Bericht.pdf");
        v_->form.setWindowFilePath("/home/konto/Giro v1.2");
        v_->Exportieren(Exportziel::rtf);
        QCOMPARE(wahl.fragen[1].vorgabe, "/home/konto/Giro v1.2.rtf");
    }

    void einHinweisSagtWohinDieDateiGing() {
        Dateiwahl wahl;
        for (const auto& [ziel, name] :
             {std::pair(Exportziel::pdf, "Auszug.pdf"), std::pair(Exportziel::htm, "Auszug.htm")}) {
            wahl.antwort = v_->ablage.Pfad() / name;
            v_->Exportieren(ziel);
            QVERIFY(Finde<QLabel>(&v_->form, "Ablageort")
                        ->text()
                        .startsWith(QString("Gespeichert: ") + name + " in /"));
        }
        QCOMPARE(v_->form.findChildren<QLabel*>("Ablageort").size(), 1);
    }

    void derHinweisNenntAuchDieDateiInDieGedrucktWurde() {
        const auto datei = v_->ablage.Pfad() / "Druck.pdf";
        const Druckwahl drucken([&](QPrinter& drucker) {
            drucker.setOutputFormat(QPrinter::PdfFormat);
            drucker.setOutputFileName(QString::fromStdString(datei.string()));
            return true;
        });
        v_->Exportieren(Exportziel::drucker);
        QVERIFY(std::filesystem::exists(datei));
        QVERIFY(Finde<QLabel>(&v_->form, "Ablageort")->text().startsWith("Gespeichert: Druck.pdf in /"));
    }

    void derNameVerliertSeineLetztenVierZeichen_data() {
        QTest::addColumn<QString>("gewaehlt");
        QTest::addColumn<QString>("erwartet");
        QTest::newRow("mit Endung") << "/a/b/Konto.pdf"
                                    << "/a/b/Konto.pdf";
        QTest::newRow("groß") << "/a/b/Konto.PDF"
                              << "/a/b/Konto.pdf";
        QTest::newRow("andere Endung") << "/a/b/Konto.txt"
                                       << "/a/b/Konto.pdf";
        QTest::newRow("Umlaut") << "/a/b/Äöü.pdf"
                                << "/a/b/Äöü.pdf";
        QTest::newRow("vier Zeichen") << "/a/b/abcd"
                                      << "/a/b/abcd.pdf";
        QTest::newRow("fünf Zeichen") << "/a/b/a.pdf"
                                      << "/a/b/a.pdf";
    }
    void derNameVerliertSeineLetztenVierZeichen() {
        QFETCH(QString, gewaehlt);
        QFETCH(QString, erwartet);
        QCOMPARE(QString::fromStdString(Exportname(gewaehlt.toStdString(), ".pdf").string()), erwartet);
    }

    void eineAndereDateiWirdNichtUngefragtUeberschrieben() {
        std::ofstream(v_->ablage.Pfad() / "Konto.pdf") << "alt";
        Zeuge zeuge;
        zeuge.antwort = Antwort::nein;
        Dateiwahl wahl;
        wahl.antwort = v_->ablage.Pfad() / "Konto.txt";
        v_->Exportieren(Exportziel::pdf);
        QCOMPARE(zeuge.texte.size(), 1);
        QCOMPARE(Inhalt(v_->ablage.Pfad() / "Konto.pdf"), std::string("alt"));
        zeuge.antwort = Antwort::ja;
        v_->Exportieren(Exportziel::pdf);
        QVERIFY(Inhalt(v_->ablage.Pfad() / "Konto.pdf").starts_with("%PDF-"));
    }

    void derDruckerBekommtDieGewaehltenSeiten() {
        const Druckwahl wahl([this](QPrinter& drucker) {
            drucker.setOutputFileName(QString::fromStdString((v_->ablage.Pfad() / "Druck.pdf").string()));
            drucker.setFromTo(2, 4);
            drucker.setPrintRange(QPrinter::PageRange);
            return true;
        });
        v_->Exportieren(Exportziel::drucker);
        QCOMPARE(Pdfangabe(v_->ablage.Pfad() / "Druck.pdf", "Pages"), "3");
        QCOMPARE(Pdfangabe(v_->ablage.Pfad() / "Druck.pdf", "Page size"), "842 x 595 pts (A4)");
    }

    void einDruckerDerNichtsNimmtWirdGemeldet() {
        const Druckwahl wahl([this](QPrinter& drucker) {
            drucker.setOutputFileName(
                QString::fromStdString((v_->ablage.Pfad() / "fehlt" / "x.pdf").string()));
            return true;
        });
        const Zeuge zeuge;
        v_->Exportieren(Exportziel::drucker);
        QCOMPARE(zeuge.texte, QStringList("Der Bericht kann nicht gedruckt werden."));
    }

    void einLangerExportLaesstSichAbbrechen() {
        v_->BerichtZeigen(32'000);
        Dateiwahl wahl;
        wahl.antwort = v_->ablage.Pfad() / "Lang.pdf";
        int gesehen = 0;
        QTimer uhr;
        connect(&uhr, &QTimer::timeout, this, [&] {
            auto* dialog = v_->form.findChild<QProgressDialog*>("Fortschritt");
            if (!dialog || !dialog->isVisible()) return;
            ++gesehen;
            auto* taste = dialog->findChild<QPushButton*>();
            QCOMPARE(taste->text(), "Abbrechen");
            QTest::mouseClick(taste, Qt::LeftButton);
        });
        uhr.start(5);
        const Zeuge zeuge;
        v_->Exportieren(Exportziel::pdf);
        QCOMPARE(gesehen, 1);
        QVERIFY(zeuge.texte.isEmpty());
        QVERIFY(fs::is_empty(v_->ablage.Pfad()));
        QVERIFY(!v_->form.findChild<QProgressDialog*>("Fortschritt"));
    }
};

ZINFOLIO_FENSTERTEST(VorschauexportTest)

}  // namespace vorschauexport_test

#include "vorschauexport_test.moc"
