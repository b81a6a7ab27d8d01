// The preview with real keys: pages, zoom, the five targets, and the way back.

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QImage>
#include <QPrinter>
#include <QProgressDialog>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTimer>
#include <QToolButton>
#include <QWheelEvent>
#include <fstream>
#include <sstream>

#include "oberflaeche/formhelfer.h"
#include "oberflaeche/nummernbericht.h"
#include "oberflaeche/pdfhelfer.h"
#include "output/formdruckdialog.h"
#include "output/formexport.h"
#include "output/formseitenansicht.h"
#include "output/formvorschau.h"
#include "ui/deutsch.h"
#include "ui/entertaste.h"

using namespace zinfolio;
namespace fs = std::filesystem;

namespace {

std::string Inhalt(const fs::path& datei) {
    std::ifstream strom(datei, std::ios::binary);
    std::ostringstream inhalt;
    inhalt << strom.rdbuf();
    return inhalt.str();
}

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

}  // namespace

class VorschauTest : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<Testordner> arbeit_;
    std::unique_ptr<Testordner> ablage_;
    std::unique_ptr<FormVorschau> form_;
    int gebildet_ = 0;

    Seitenansicht* Ansicht() { return Finde<Seitenansicht>(form_.get(), "VP"); }
    QComboBox* Zoom() { return Finde<QComboBox>(form_.get(), "Zoom"); }
    QString Seitenangabe() { return Finde<QSpinBox>(form_.get(), "Seitenzahl")->text(); }
    bool Frei(const char* taste) { return Finde<QToolButton>(form_.get(), taste)->isEnabled(); }
    void Blaettern(const char* taste) {
        QTest::mouseClick(Finde<QToolButton>(form_.get(), taste), Qt::LeftButton);
    }
    void Klicke(const char* taste) {
        QTest::mouseClick(Finde<QPushButton>(form_.get(), taste), Qt::LeftButton);
    }
    void Exportieren(Exportziel ziel) {
        Finde<QComboBox>(form_.get(), "Combo18")->setCurrentIndex(static_cast<int>(ziel));
        Klicke("Command12");
    }
    void Rad(int drehung, Qt::KeyboardModifiers zusatz = Qt::NoModifier) {
        const QPointF stelle(100, 100);
        QWheelEvent ereignis(stelle, Ansicht()->viewport()->mapToGlobal(stelle), {}, {0, drehung},
                             Qt::NoButton, zusatz, Qt::NoScrollPhase, false);
        QApplication::sendEvent(Ansicht()->viewport(), &ereignis);
    }

    /// 150 rows: a head page and four pages of the table.
    void BerichtZeigen(std::size_t zeilen = 150) {
        gebildet_ = 0;
        form_->Zeigen([this, zeilen] {
            ++gebildet_;
            return Nummernbericht(zeilen);
        });
    }

  private slots:
    void init() {
        arbeit_ = std::make_unique<Testordner>();
        ablage_ = std::make_unique<Testordner>();
        form_ = std::make_unique<FormVorschau>(arbeit_->Pfad());
        form_->resize(1000, 700);
        BerichtZeigen();
        Zeige(*form_);
    }
    void cleanup() {
        form_.reset();
        arbeit_.reset();
        ablage_.reset();
    }

    void zeigtDieErsteSeiteUndNenntDieAnzahl() {
        QCOMPARE(form_->objectName(), "Frame7");
        QCOMPARE(Seitenangabe(), "Seite 1 von 5");
        QCOMPARE(gebildet_, 1);
        QVERIFY(!Frei("Ersteseite") && !Frei("Vorigeseite"));
        QVERIFY(Frei("Nächsteseite") && Frei("Letzteseite"));
    }

    void tastenBlaettern() {
        QCOMPARE(Fokus(), "VP");
        Druecke(Qt::Key_PageDown);
        QCOMPARE(Seitenangabe(), "Seite 2 von 5");
        Druecke(Qt::Key_PageDown);
        QCOMPARE(Seitenangabe(), "Seite 3 von 5");
        Druecke(Qt::Key_PageUp);
        QCOMPARE(Seitenangabe(), "Seite 2 von 5");
        Druecke(Qt::Key_End);
        QCOMPARE(Seitenangabe(), "Seite 5 von 5");
        Druecke(Qt::Key_PageDown);
        QCOMPARE(Seitenangabe(), "Seite 5 von 5");
        Druecke(Qt::Key_Home);
        QCOMPARE(Seitenangabe(), "Seite 1 von 5");
        Druecke(Qt::Key_PageUp);
        QCOMPARE(Seitenangabe(), "Seite 1 von 5");
    }

    void knoepfeBlaettern() {
        Blaettern("Nächsteseite");
        QCOMPARE(Seitenangabe(), "Seite 2 von 5");
        Blaettern("Letzteseite");
        QCOMPARE(Seitenangabe(), "Seite 5 von 5");
        QVERIFY(!Frei("Nächsteseite") && !Frei("Letzteseite"));
        Blaettern("Vorigeseite");
        QCOMPARE(Seitenangabe(), "Seite 4 von 5");
        Blaettern("Ersteseite");
        QCOMPARE(Seitenangabe(), "Seite 1 von 5");
    }

    void eineGetippteSeiteWirdGezeigt() {
        auto* zahl = Finde<QSpinBox>(form_.get(), "Seitenzahl");
        zahl->setFocus();
        zahl->selectAll();
        Tippe("4");
        QCOMPARE(Ansicht()->Seite(), 0);
        Druecke(Qt::Key_Return);
        QCOMPARE(Seitenangabe(), "Seite 4 von 5");
        QCOMPARE(Ansicht()->Seite(), 3);
    }

    void eineSeiteDieEsNichtGibtWirdNichtGezeigt() {
        auto* zahl = Finde<QSpinBox>(form_.get(), "Seitenzahl");
        zahl->setFocus();
        zahl->selectAll();
        Tippe("9");
        Druecke(Qt::Key_Return);
        QCOMPARE(Ansicht()->Seite(), 0);
        QCOMPARE(Seitenangabe(), "Seite 1 von 5");
    }

    void blaetternZeigtEinAnderesBild() {
        const QImage erste = Ansicht()->viewport()->grab().toImage();
        Druecke(Qt::Key_PageDown);
        QVERIFY(Ansicht()->viewport()->grab().toImage() != erste);
        Druecke(Qt::Key_PageUp);
        QVERIFY(Ansicht()->viewport()->grab().toImage() == erste);
    }

    void derZoomBeginntMitDemDesBerichts() {
        QCOMPARE(Zoom()->currentText(), "75 %");
        form_->Zeigen([] {
            Bericht bericht = Nummernbericht(1);
            bericht.zoom = 65;
            return bericht;
        });
        QCOMPARE(Zoom()->currentText(), "65 %");
        QCOMPARE(qRound(Ansicht()->Prozent()), 65);
    }

    void einFremderZoomKommtInDieListe() {
        form_->Zeigen([] {
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
        QCOMPARE(Ansicht()->Seite(), 0);
    }

    void ganzeSeiteUndSeitenbreiteFolgenDemFenster() {
        Zoom()->setCurrentText("Ganze Seite");
        QCOMPARE(Ansicht()->verticalScrollBar()->maximum(), 0);
        QCOMPARE(Ansicht()->horizontalScrollBar()->maximum(), 0);
        const double vorher = Ansicht()->Prozent();
        form_->resize(1400, 900);
        QApplication::processEvents();
        QVERIFY(Ansicht()->Prozent() > vorher);
        QCOMPARE(Ansicht()->verticalScrollBar()->maximum(), 0);
        form_->resize(1400, 500);
        Zoom()->setCurrentText("Seitenbreite");
        QApplication::processEvents();
        QVERIFY(Ansicht()->verticalScrollBar()->maximum() > 0);
        QCOMPARE(Ansicht()->horizontalScrollBar()->maximum(), 0);
    }

    void dasRadBlaettertAmRandDerSeite() {
        Zoom()->setCurrentText("Ganze Seite");
        Rad(-120);
        QCOMPARE(Ansicht()->Seite(), 1);
        Rad(120);
        QCOMPARE(Ansicht()->Seite(), 0);
        Zoom()->setCurrentText("200 %");
        Rad(-120);
        QCOMPARE(Ansicht()->Seite(), 0);
        QVERIFY(Ansicht()->verticalScrollBar()->value() > 0);
        Ansicht()->verticalScrollBar()->setValue(Ansicht()->verticalScrollBar()->maximum());
        Rad(-60);
        QCOMPARE(Ansicht()->Seite(), 0);
        Rad(-60);
        QCOMPARE(Ansicht()->Seite(), 1);
        QCOMPARE(Ansicht()->verticalScrollBar()->value(), 0);
        Rad(120);
        QCOMPARE(Ansicht()->Seite(), 0);
        QCOMPARE(Ansicht()->verticalScrollBar()->value(), Ansicht()->verticalScrollBar()->maximum());
    }

    void dasPapierIstHellAuchWoDieFarbenDunkelSind() {
        QPalette dunkel;
        dunkel.setColor(QPalette::Window, QColor(40, 40, 40));
        dunkel.setColor(QPalette::WindowText, Qt::white);
        form_->setPalette(dunkel);
        const QImage bild = Ansicht()->viewport()->grab().toImage();
        QCOMPARE(bild.pixelColor(bild.width() / 2, bild.height() / 2), QColor(Qt::white));
        QVERIFY(bild.pixelColor(2, 2).lightness() < 60);
    }

    void zurueckMeldetSich() {
        const QSignalSpy spion(form_.get(), &FormVorschau::zurueck);
        Klicke("Command11");
        QCOMPARE(spion.count(), 1);
    }

    void eineNeueVorschauBeginntVorn() {
        Druecke(Qt::Key_End);
        BerichtZeigen(20);
        QCOMPARE(Seitenangabe(), "Seite 1 von 2");
    }

    void einFehlerBeimBildenLaesstDieAlteVorschau() {
        Druecke(Qt::Key_PageDown);
        bool geworfen = false;
        try {
            form_->Zeigen([]() -> Bericht { throw std::runtime_error("x"); });
        } catch (const std::runtime_error&) {
            geworfen = true;
        }
        QVERIFY(geworfen);
        QCOMPARE(Seitenangabe(), "Seite 2 von 5");
    }

    void dieAktuelleSeiteKommtAlsBildInDenZwischenspeicher() {
        Druecke(Qt::Key_PageDown);
        QApplication::clipboard()->clear();
        Exportieren(Exportziel::zwischenspeicher);
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
            Exportieren(ziel);
            QCOMPARE(wahl.fragen.size(), 1U);
            QCOMPARE(wahl.fragen[0].filter, filter);
        }
    }

    void pdfWirdGeschrieben() {
        Dateiwahl wahl;
        wahl.antwort = ablage_->Pfad() / "Auszug.pdf";
        Exportieren(Exportziel::pdf);
        QCOMPARE(Pdfangabe(ablage_->Pfad() / "Auszug.pdf", "Pages"), "5");
        QCOMPARE(gebildet_, 1);
    }

    void rtfUndHtmWerdenNeuGebautUndKopiert() {
        const std::vector<std::pair<Exportziel, const char*>> ziele{{Exportziel::rtf, "rtf"},
                                                                    {Exportziel::htm, "htm"}};
        int mal = 1;
        for (const auto& [ziel, endung] : ziele) {
            Dateiwahl wahl;
            wahl.antwort = ablage_->Pfad() / (std::string("Auszug.") + endung);
            Exportieren(ziel);
            QCOMPARE(gebildet_, ++mal);
            const std::string fest = Inhalt(arbeit_->Pfad() / (std::string("Zwispei.") + endung));
            QVERIFY(fest.find("Nr00149") != std::string::npos);
            QCOMPARE(Inhalt(*wahl.antwort), fest);
        }
    }

    void einAbbruchImDialogIstStill() {
        const Zeuge zeuge;
        const Dateiwahl wahl;
        for (const Exportziel ziel : {Exportziel::pdf, Exportziel::rtf, Exportziel::htm})
            Exportieren(ziel);
        const Druckwahl drucken([](QPrinter&) { return false; });
        Exportieren(Exportziel::drucker);
        QVERIFY(zeuge.texte.isEmpty());
        QVERIFY(fs::is_empty(ablage_->Pfad()));
        QVERIFY(fs::exists(arbeit_->Pfad() / "Zwispei.rtf"));
    }

    void einOrdnerOhneSchreibrechtWirdGemeldet() {
        for (const Exportziel ziel : {Exportziel::pdf, Exportziel::rtf}) {
            const Zeuge zeuge;
            Dateiwahl wahl;
            wahl.antwort = ablage_->Pfad() / "fehlt" / "Auszug.xyz";
            Exportieren(ziel);
            QCOMPARE(zeuge.texte.size(), 1);
            QVERIFY2(zeuge.texte[0].contains("Auszug"), qPrintable(zeuge.texte[0]));
        }
    }

    void derLaufendeOrdnerBleibt() {
        const fs::path vorher = fs::current_path();
        Dateiwahl wahl;
        wahl.antwort = ablage_->Pfad() / "Auszug.rtf";
        Exportieren(Exportziel::rtf);
        QCOMPARE(fs::current_path(), vorher);
    }

    void derProjektordnerIstVorgegeben() {
        form_->Zeigen([] { return Nummernbericht(1); }, "/home/konto");
        const Dateiwahl wahl;
        Exportieren(Exportziel::pdf);
        QCOMPARE(wahl.fragen[0].vorgabe, "/home/konto/");
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
        std::ofstream(ablage_->Pfad() / "Konto.pdf") << "alt";
        Zeuge zeuge;
        zeuge.antwort = Antwort::nein;
        Dateiwahl wahl;
        wahl.antwort = ablage_->Pfad() / "Konto.txt";
        Exportieren(Exportziel::pdf);
        QCOMPARE(zeuge.texte.size(), 1);
        QCOMPARE(Inhalt(ablage_->Pfad() / "Konto.pdf"), std::string("alt"));
        zeuge.antwort = Antwort::ja;
        Exportieren(Exportziel::pdf);
        QVERIFY(Inhalt(ablage_->Pfad() / "Konto.pdf").starts_with("%PDF-"));
    }

    void derDruckerBekommtDieGewaehltenSeiten() {
        const Druckwahl wahl([this](QPrinter& drucker) {
            drucker.setOutputFileName(QString::fromStdString((ablage_->Pfad() / "Druck.pdf").string()));
            drucker.setFromTo(2, 4);
            drucker.setPrintRange(QPrinter::PageRange);
            return true;
        });
        Exportieren(Exportziel::drucker);
        QCOMPARE(Pdfangabe(ablage_->Pfad() / "Druck.pdf", "Pages"), "3");
        QCOMPARE(Pdfangabe(ablage_->Pfad() / "Druck.pdf", "Page size"), "842 x 595 pts (A4)");
    }

    void einDruckerDerNichtsNimmtWirdGemeldet() {
        const Druckwahl wahl([this](QPrinter& drucker) {
            drucker.setOutputFileName(QString::fromStdString((ablage_->Pfad() / "fehlt" / "x.pdf").string()));
            return true;
        });
        const Zeuge zeuge;
        Exportieren(Exportziel::drucker);
        QCOMPARE(zeuge.texte, QStringList("Der Bericht kann nicht gedruckt werden."));
    }

    void einLangerExportLaesstSichAbbrechen() {
        BerichtZeigen(32'000);
        Dateiwahl wahl;
        wahl.antwort = ablage_->Pfad() / "Lang.pdf";
        int gesehen = 0;
        QTimer uhr;
        connect(&uhr, &QTimer::timeout, this, [&] {
            auto* dialog = form_->findChild<QProgressDialog*>("Fortschritt");
            if (!dialog || !dialog->isVisible()) return;
            ++gesehen;
            auto* taste = dialog->findChild<QPushButton*>();
            QCOMPARE(taste->text(), "Abbrechen");
            QTest::mouseClick(taste, Qt::LeftButton);
        });
        uhr.start(5);
        const Zeuge zeuge;
        Exportieren(Exportziel::pdf);
        QCOMPARE(gesehen, 1);
        QVERIFY(zeuge.texte.isEmpty());
        QVERIFY(fs::is_empty(ablage_->Pfad()));
        QVERIFY(!form_->findChild<QProgressDialog*>("Fortschritt"));
    }

    void dieErsteVonVielenSeitenKommtSchnell() {
        QElapsedTimer uhr;
        uhr.start();
        BerichtZeigen(32'000);
        Ansicht()->viewport()->repaint();
        QVERIFY2(uhr.elapsed() < 1000, qPrintable(QString::number(uhr.elapsed())));
        QCOMPARE(Seitenangabe(), "Seite 1 von 844");
    }
};

ZINFOLIO_FENSTERTEST(VorschauTest)
#include "vorschau_test.moc"
