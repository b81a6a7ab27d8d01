// The frame with the chart: what it draws, what the pointer and the keys tell, and what leaves it as a
// picture.

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QFile>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <cmath>
#include <qcustomplot.h>

#include "fenster/ausgabe/druckdialog.h"
#include "fenster/ausgabe/formdiagramm.h"
#include "fenster/formhelfer.h"

namespace diagramm_test {

using namespace zinfolio;

/// A chart of years with `jeJahr` rows each; the balance grows by 100, the payments by 90 from row to row.
Diagramm Wachstum(int zeilen, int jeJahr, double teiler = 1) {
    Diagramm diagramm{
        .titel = "Zinsstaffel: Probe", .achsentitel = "Zahlungen + Zinsen in €", .teiler = teiler};
    diagramm.reihen = {{.name = "kumulierte Zahlungen + Zinsen"}, {.name = "kumulierte Zahlungen"}};
    for (int i = 0; i < zeilen; ++i) {
        const std::string jahr = std::to_string(1950 + i / jeJahr);
        diagramm.zeilentexte.push_back(" " + jahr + "            ");
        diagramm.zeilennamen.push_back("01.01." + jahr);
        diagramm.reihen[0].werte.push_back(100 * (i + 1) / teiler);
        diagramm.reihen[1].werte.push_back(90 * (i + 1) / teiler);
    }
    return diagramm;
}

struct Beschriftung {
    QVector<double> stellen;
    QVector<QString> texte;
};

/// The labels of an axis as they stand in the window.
Beschriftung Lesen(const QCPAxis& achse) {
    Beschriftung beschriftung;
    achse.ticker()->generate(achse.range(), QLocale::c(), 'g', 6, beschriftung.stellen, nullptr,
                             &beschriftung.texte);
    return beschriftung;
}

/// The contrast of two colours, from 1 to 21, as the accessibility guidelines of the web define it.
double Kontrast(const QColor& eine, const QColor& andere) {
    const auto licht = [](const QColor& farbe) {
        const auto anteil = [](double wert) {
            return wert <= 0.03928 ? wert / 12.92 : std::pow((wert + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * anteil(farbe.redF()) + 0.7152 * anteil(farbe.greenF()) +
               0.0722 * anteil(farbe.blueF());
    };
    const auto [dunkler, heller] = std::minmax({licht(eine), licht(andere)});
    return (heller + 0.05) / (dunkler + 0.05);
}

QPalette Dunkel() {
    QPalette palette;
    palette.setColor(QPalette::Base, QColor(30, 30, 32));
    palette.setColor(QPalette::Text, QColor(225, 225, 225));
    return palette;
}

QString Ausgabe(const QString& programm, const QStringList& argumente) {
    QProcess prozess;
    prozess.start(programm, argumente);
    if (!prozess.waitForFinished() || prozess.exitCode() != 0) qFatal("%s", qPrintable(programm));
    return QString::fromUtf8(prozess.readAllStandardOutput());
}

class DiagrammTest : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<Testordner> ordner_;
    std::unique_ptr<FormDiagramm> form_;
    QCustomPlot* plot_ = nullptr;

    [[nodiscard]] QString Datei(const char* name) const {
        return QString::fromStdString((ordner_->Pfad() / name).string());
    }
    void Klicke(const char* name) {
        QTest::mouseClick(Finde<QPushButton>(form_.get(), name), Qt::LeftButton);
    }
    void Ausloesen(const char* name) { Finde<QAction>(plot_, name)->trigger(); }

    void Zeichne(const Diagramm& diagramm) {
        form_->Zeigen(diagramm);
        plot_->replot();
    }

    /// The text of the marker; empty where nothing is marked.
    [[nodiscard]] QString Marke() const {
        for (int i = 0; i < plot_->itemCount(); ++i) {
            const auto* text = qobject_cast<QCPItemText*>(plot_->item(i));
            if (text && text->visible()) return text->text();
        }
        return {};
    }

    void ZeigeAuf(double zeile) {
        const QPointF stelle(plot_->xAxis->coordToPixel(zeile), plot_->axisRect()->center().y());
        QMouseEvent bewegung(QEvent::MouseMove, stelle, plot_->mapToGlobal(stelle), Qt::NoButton,
                             Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(plot_, &bewegung);
    }

    void RadDrehen(int grade) {
        const QPointF mitte = plot_->axisRect()->center();
        QWheelEvent drehung(mitte, plot_->mapToGlobal(mitte), {}, {0, grade * 8}, Qt::NoButton,
                            Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(plot_, &drehung);
    }

    void PruefeAbstaende() {
        const Beschriftung jahre = Lesen(*plot_->xAxis);
        const QFontMetrics mass(plot_->xAxis->tickLabelFont());
        QVERIFY2(jahre.texte.size() >= 2, qPrintable(QString::number(jahre.texte.size())));
        for (int i = 1; i < jahre.texte.size(); ++i) {
            const double abstand = plot_->xAxis->coordToPixel(jahre.stellen[i]) -
                                   plot_->xAxis->coordToPixel(jahre.stellen[i - 1]);
            const double halbe =
                (mass.horizontalAdvance(jahre.texte[i]) + mass.horizontalAdvance(jahre.texte[i - 1])) / 2.0;
            QVERIFY2(abstand > halbe, qPrintable(jahre.texte[i]));
        }
    }

  private slots:
    void init() {
        ordner_ = std::make_unique<Testordner>();
        form_ = std::make_unique<FormDiagramm>();
        form_->resize(900, 600);
        plot_ = Finde<QCustomPlot>(form_.get(), "Chart");
        Zeige(*form_);
    }

    void cleanup() { form_.reset(); }

    void zeigtZweiReihenMitLegendeUndAchsentitel() {
        Zeichne(Wachstum(3, 1));
        QCOMPARE(form_->objectName(), "Frame6");
        QCOMPARE(plot_->graphCount(), 2);
        QCOMPARE(plot_->graph(0)->name(), "kumulierte Zahlungen + Zinsen");
        QCOMPARE(plot_->graph(1)->name(), "kumulierte Zahlungen");
        QCOMPARE(plot_->graph(0)->data()->at(2)->value, 300.0);
        QCOMPARE(plot_->graph(1)->data()->at(2)->value, 270.0);
        QCOMPARE(plot_->yAxis->label(), "Zahlungen + Zinsen in €");
        QVERIFY(plot_->legend->visible());
        QCOMPARE(plot_->legend->itemCount(), 2);
        QCOMPARE(Finde<QPushButton>(form_.get(), "Command8")->text().remove('&'), "Drucken");
        QCOMPARE(Finde<QPushButton>(form_.get(), "Command7")->text().remove('&'), "Zurück");
    }

    void neuesDiagrammErsetztDasAlte() {
        Zeichne(Wachstum(50, 10));
        Zeichne(Wachstum(2, 1));
        QCOMPARE(plot_->graphCount(), 2);
        QCOMPARE(plot_->graph(0)->dataCount(), 2);
        QCOMPARE(Lesen(*plot_->xAxis).texte, (QVector<QString>{"1950", "1951"}));
    }

    void wenigeZeilenZeigenJedesJahrAuchGleiche() {
        Zeichne(Wachstum(5, 2));
        QCOMPARE(Lesen(*plot_->xAxis).texte, (QVector<QString>{"1950", "1950", "1951", "1951", "1952"}));
    }

    void vieleZeilenZeigenJahresanfaenge() {
        Zeichne(Wachstum(60, 12));
        const Beschriftung jahre = Lesen(*plot_->xAxis);
        QCOMPARE(jahre.texte, (QVector<QString>{"1950", "1951", "1952", "1953", "1954"}));
        QCOMPARE(jahre.stellen, (QVector<double>{0, 12, 24, 36, 48}));
    }

    void jahreUeberlappenNie_data() {
        QTest::addColumn<int>("zeilen");
        QTest::addColumn<int>("jeJahr");
        QTest::addColumn<int>("breite");
        for (const int breite : {400, 900}) {
            for (const auto& [zeilen, jeJahr] :
                 {std::pair{2, 1}, {5, 1}, {60, 1}, {500, 500}, {500, 7}, {30000, 365}})
                QTest::addRow("%d Zeilen, %d je Jahr, %d breit", zeilen, jeJahr, breite)
                    << zeilen << jeJahr << breite;
        }
    }

    void jahreUeberlappenNie() {
        QFETCH(int, zeilen);
        QFETCH(int, jeJahr);
        QFETCH(int, breite);
        form_->resize(breite, 400);
        Zeichne(Wachstum(zeilen, jeJahr));
        PruefeAbstaende();
        QFont gross = form_->font();
        gross.setPointSizeF(2 * gross.pointSizeF());
        form_->setFont(gross);
        QCOMPARE(plot_->xAxis->tickLabelFont().pointSizeF(), gross.pointSizeF());
        plot_->replot();
        PruefeAbstaende();
    }

    void betraegeStehenDeutschAnDerAchse() {
        Zeichne(Wachstum(60, 12));
        const QVector<QString> tausende = Lesen(*plot_->yAxis).texte;
        QVERIFY2(tausende.contains("1.000"), qPrintable(tausende.toList().join(' ')));
        Zeichne(Wachstum(5, 1, 1000));
        const QString bruchteile = Lesen(*plot_->yAxis).texte.toList().join(' ');
        QVERIFY2(QRegularExpression("^(\\d,\\d+ )+0,50?$").match(bruchteile).hasMatch(),
                 qPrintable(bruchteile));
    }

    void zeigerNenntTagUndBetraege() {
        Zeichne(Wachstum(60, 12));
        ZeigeAuf(13.2);
        QCOMPARE(Marke(),
                 "01.01.1951\nkumulierte Zahlungen + Zinsen: 1.400,00 €\nkumulierte Zahlungen: 1.260,00 €");
        QEvent fort(QEvent::Leave);
        QCoreApplication::sendEvent(plot_, &fort);
        QCOMPARE(Marke(), "");
    }

    void markeNenntEuroAuchBeiAchseInTausend() {
        Zeichne(Wachstum(60, 12, 1000));
        ZeigeAuf(59);
        QVERIFY2(Marke().contains(": 6.000,00 €"), qPrintable(Marke()));
    }

    void tastenFuehrenDieMarke() {
        Zeichne(Wachstum(5, 1));
        plot_->setFocus();
        const auto nach = [this](Qt::Key taste) {
            Druecke(taste);
            return Marke().left(10);
        };
        QCOMPARE(nach(Qt::Key_Left), "01.01.1954");
        QCOMPARE(nach(Qt::Key_Left), "01.01.1953");
        QCOMPARE(nach(Qt::Key_Right), "01.01.1954");
        QCOMPARE(nach(Qt::Key_Right), "01.01.1954");
        QCOMPARE(nach(Qt::Key_Home), "01.01.1950");
        QCOMPARE(nach(Qt::Key_Left), "01.01.1950");
        QCOMPARE(nach(Qt::Key_End), "01.01.1954");
        QVERIFY(plot_->accessibleDescription().contains("01.01.1954"));
    }

    void tastenVergroessernUmDieMarkeUndZeigenAlles() {
        Zeichne(Wachstum(500, 10));
        plot_->setFocus();
        const QCPRange ganz = plot_->xAxis->range();
        Druecke(Qt::Key_Plus, Qt::ControlModifier);
        // Two thirds of the rows, around the middle.
        QVERIFY(std::abs(plot_->xAxis->range().size() - ganz.size() / 1.5) < 1e-9 * ganz.size());
        QVERIFY(std::abs(plot_->xAxis->range().center() - ganz.center()) < 1e-9 * ganz.size());
        Druecke(Qt::Key_Minus, Qt::ControlModifier);
        QVERIFY(std::abs(plot_->xAxis->range().size() - ganz.size()) < 1e-9 * ganz.size());
        Druecke(Qt::Key_End);
        for (int i = 0; i < 5; ++i)
            Druecke(Qt::Key_Plus, Qt::ControlModifier);
        QVERIFY(plot_->xAxis->range().contains(499));
        QVERIFY(plot_->xAxis->range().size() < ganz.size() / 5);
        QVERIFY(!Marke().isEmpty());
        Druecke(Qt::Key_0, Qt::ControlModifier);
        QCOMPARE(plot_->xAxis->range().size(), ganz.size());
    }

    void radVergroessertUndDoppelklickZeigtAlles() {
        Zeichne(Wachstum(500, 10));
        const QCPRange ganz = plot_->xAxis->range();
        RadDrehen(15);
        QVERIFY(plot_->xAxis->range().size() < ganz.size() * 0.95);
        for (int i = 0; i < 100; ++i)
            RadDrehen(15);
        QVERIFY(plot_->xAxis->range().size() >= 2);
        QTest::mouseDClick(plot_, Qt::LeftButton, Qt::NoModifier, plot_->axisRect()->center());
        QCOMPARE(plot_->xAxis->range().lower, ganz.lower);
        QCOMPARE(plot_->xAxis->range().upper, ganz.upper);
        RadDrehen(-15);
        QCOMPARE(plot_->xAxis->range().size(), ganz.size());
    }

    void markierteZeileRuecktInDenAusschnitt() {
        Zeichne(Wachstum(500, 10));
        for (int i = 0; i < 20; ++i)
            RadDrehen(15);
        plot_->setFocus();
        Druecke(Qt::Key_End);
        QVERIFY(plot_->xAxis->range().contains(499));
        QCOMPARE(Marke().left(10), "01.01.1999");
    }

    void farbenFolgenDerPaletteUndHalten() {
        Zeichne(Wachstum(5, 1));
        for (const QPalette& palette : {QPalette(Qt::white), Dunkel()}) {
            form_->setPalette(palette);
            const QColor grund = palette.color(QPalette::Base);
            QCOMPARE(plot_->xAxis->labelColor(), palette.color(QPalette::Text));
            plot_->replot();
            QCOMPARE(plot_->toPixmap().toImage().pixelColor(1, 300), grund);
            for (int i = 0; i < 2; ++i)
                QVERIFY(Kontrast(plot_->graph(i)->pen().color(), grund) > 4.5);
        }
    }

    void reihenUnterscheidenSichAuchOhneFarbe() {
        Zeichne(Wachstum(500, 10));
        QVERIFY(plot_->graph(0)->pen().style() != plot_->graph(1)->pen().style());
    }

    void zurueckMeldetSich() {
        const QSignalSpy zurueck(form_.get(), &FormDiagramm::zurueck);
        Klicke("Command7");
        QCOMPARE(zurueck.count(), 1);
        QTest::keyClick(form_.get(), Qt::Key_Z, Qt::AltModifier);
        QTRY_COMPARE(zurueck.count(), 2);
    }

    void drucktEineQuerseite() {
        Zeichne(Wachstum(60, 12));
        const QString datei = Datei("druck.pdf");
        const auto vorher = DruckfragenUmleiten([&](QPrinter& drucker) {
            drucker.setOutputFileName(datei);
            return true;
        });
        Klicke("Command8");
        DruckfragenUmleiten(vorher);
        const QString angaben = Ausgabe("pdfinfo", {datei});
        QVERIFY2(angaben.contains("842 x 595 pts (A4)") &&
                     angaben.contains(QRegularExpression("Pages: +1\n")) &&
                     angaben.contains(QRegularExpression("Title: +Zinsstaffel: Probe\n")),
                 qPrintable(angaben));
        const QString text = Ausgabe("pdftotext", {"-layout", datei, "-"});
        for (const char* teil : {"Zinsstaffel: Probe", "kumulierte Zahlungen + Zinsen", "1952", "1.000"})
            QVERIFY2(text.contains(teil), qPrintable(text));
    }

    void abgebrochenerDruckBleibtStill() {
        const Zeuge zeuge;
        Zeichne(Wachstum(5, 1));
        const auto vorher = DruckfragenUmleiten([&](QPrinter& drucker) {
            drucker.setOutputFileName(Datei("druck.pdf"));
            return false;
        });
        Klicke("Command8");
        DruckfragenUmleiten(vorher);
        QVERIFY(!QFile::exists(Datei("druck.pdf")));
        QVERIFY(zeuge.texte.isEmpty());
    }

    void druckerDerSichVerweigertWirdGemeldet() {
        const Zeuge zeuge;
        Zeichne(Wachstum(5, 1));
        const auto vorher = DruckfragenUmleiten([&](QPrinter& drucker) {
            drucker.setOutputFileName(Datei("gibt/es/nicht/druck.pdf"));
            return true;
        });
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("."));
        Klicke("Command8");
        DruckfragenUmleiten(vorher);
        QCOMPARE(zeuge.texte, QStringList{"Das Diagramm kann nicht gedruckt werden."});
    }

    void speichertPngAufWeissAuchImDunkeln() {
        form_->setPalette(Dunkel());
        Zeichne(Wachstum(60, 12));
        Dateiwahl wahl;
        wahl.antwort = Datei("bild.png").toStdString();
        Klicke("Bildspeichern");
        QCOMPARE(wahl.fragen.size(), 1U);
        QCOMPARE(wahl.fragen[0].vorgabe, "Diagramm.png");
        const QImage bild(Datei("bild.png"), "PNG");
        QVERIFY(Finde<QLabel>(form_.get(), "Ablageort")->text().startsWith("Gespeichert: bild.png in /"));
        QCOMPARE(bild.size(), QSize(2400, 1350));
        QCOMPARE(bild.pixelColor(0, 0), QColor(Qt::white));
        QCOMPARE(plot_->xAxis->labelColor(), QColor(225, 225, 225));
    }

    void speichertSvgUndPdfMitText() {
        Zeichne(Wachstum(60, 12));
        Dateiwahl wahl;
        wahl.antwort = Datei("bild.SVG").toStdString();
        Klicke("Bildspeichern");
        QFile svg(Datei("bild.SVG"));
        QVERIFY(svg.open(QIODevice::ReadOnly));
        const QString inhalt = QString::fromUtf8(svg.readAll());
        QVERIFY(inhalt.contains("<svg") && inhalt.contains(">kumulierte Zahlungen</text>"));
        wahl.antwort = Datei("bild.pdf").toStdString();
        Klicke("Bildspeichern");
        const QString text = Ausgabe("pdftotext", {Datei("bild.pdf"), "-"});
        QVERIFY2(text.contains("kumulierte Zahlungen + Zinsen"), qPrintable(text));
        QVERIFY(Ausgabe("pdfinfo", {Datei("bild.pdf")}).contains("842 x 595 pts (A4)"));
    }

    void abgebrochenesSpeichernBleibtStill() {
        const Zeuge zeuge;
        const Dateiwahl wahl;
        Zeichne(Wachstum(5, 1));
        Klicke("Bildspeichern");
        QCOMPARE(wahl.fragen.size(), 1U);
        QVERIFY(zeuge.texte.isEmpty());
    }

    void fremdeEndungWirdAbgelehnt() {
        const Zeuge zeuge;
        Dateiwahl wahl;
        wahl.antwort = Datei("bild.jpg").toStdString();
        Zeichne(Wachstum(5, 1));
        Klicke("Bildspeichern");
        QCOMPARE(zeuge.texte, QStringList{"Ein Bild kann nur als .png, .svg oder .pdf gespeichert werden."});
        QVERIFY(!QFile::exists(Datei("bild.jpg")));
    }

    void unbeschreibbarerOrdnerWirdGemeldet() {
        const Zeuge zeuge;
        Dateiwahl wahl;
        wahl.antwort = Datei("fehlt/bild.png").toStdString();
        Zeichne(Wachstum(5, 1));
        Klicke("Bildspeichern");
        QCOMPARE(zeuge.texte.size(), 1);
        QVERIFY2(zeuge.texte[0].contains("bild.png"), qPrintable(zeuge.texte[0]));
    }

    void kopiertDasBildPerTasteUndMenue() {
        form_->setPalette(Dunkel());
        Zeichne(Wachstum(60, 12));
        plot_->setFocus();
        for (const bool perTaste : {true, false}) {
            QApplication::clipboard()->clear();
            if (perTaste)
                Druecke(Qt::Key_C, Qt::ControlModifier);
            else
                Ausloesen("Bildkopieren");
            const QImage bild = QApplication::clipboard()->image();
            QCOMPARE(bild.size(), QSize(2400, 1350));
            QCOMPARE(bild.pixelColor(0, 0), QColor(Qt::white));
        }
    }

    void bildZeigtDenAusschnittDesFensters() {
        Zeichne(Wachstum(500, 10));
        Ausloesen("Bildkopieren");
        const QImage ganz = QApplication::clipboard()->image();
        for (int i = 0; i < 20; ++i)
            RadDrehen(15);
        Ausloesen("Bildkopieren");
        QVERIFY(QApplication::clipboard()->image() != ganz);
        Ausloesen("Alleszeigen");
        Ausloesen("Bildkopieren");
        QVERIFY(QApplication::clipboard()->image() == ganz);
    }

    void gleichbleibenderKontostandBrauchtKeineSpanne() {
        Diagramm diagramm = Wachstum(3, 1);
        for (Diagrammreihe& reihe : diagramm.reihen)
            reihe.werte = {5000, 5000, 5000};
        Zeichne(diagramm);
        QVERIFY(plot_->yAxis->range().contains(5000));
        QVERIFY(Lesen(*plot_->yAxis).texte.size() >= 2);
    }

    void leeresDiagrammHatNichtsZuMarkieren() {
        Zeichne({});
        plot_->setFocus();
        Druecke(Qt::Key_Home);
        Druecke(Qt::Key_End);
        ZeigeAuf(0.5);
        QCOMPARE(Marke(), "");
        QVERIFY(Lesen(*plot_->xAxis).stellen.isEmpty());
    }

    void dreissigtausendZeilenZeichnenSchnell() {
        QElapsedTimer uhr;
        uhr.start();
        Zeichne(Wachstum(30000, 365));
        QVERIFY2(uhr.elapsed() < 1000, qPrintable(QString::number(uhr.elapsed())));
    }
};

ZINFOLIO_FENSTERTEST(DiagrammTest)

}  // namespace diagramm_test

#include "diagramm_test.moc"
