// The notes under real keys, and rich text on its way through the toolkit's documents.

#include "fenster/ui/notizfeld.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QImage>
#include <QMimeData>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextEdit>
#include <QTextList>
#include <QToolButton>
#include <QVBoxLayout>

#include "fenster/formhelfer.h"
#include "fenster/ui/richtextdokument.h"
#include "kern/richtext/notiz.h"
#include "kern/richtext/rtflesen.h"
#include "kern/richtext/rtfschreiben.h"
#include "kern/richtext/zufallstext.h"

namespace notizfeld_test {

using namespace zinfolio;

QString Kopf(const char* weitereSchriften = "") {
    return QString(
               "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1031{\\fonttbl{\\f0\\fmodern\\fcharset0 Courier "
               "New;}") +
           weitereSchriften + "}\r\n\\viewkind4\\uc1\\pard\\f0\\fs24 ";
}

QMimeData* Daten(const char* art, const QByteArray& inhalt) {
    auto* daten = new QMimeData;
    daten->setData(art, inhalt);
    return daten;
}

class NotizfeldTest : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<QWidget> fenster_;
    Notizfeld* feld_ = nullptr;
    QTextEdit* text_ = nullptr;

    [[nodiscard]] QString Datei() const { return QString::fromStdString(RtfSchreiben(feld_->Lesen())); }
    [[nodiscard]] QString Rumpf() const { return Datei().mid(Kopf().size()); }
    [[nodiscard]] QToolButton* Werkzeug(const char* name) const { return Finde<QToolButton>(feld_, name); }

    void Einfuegen(const char* art, const QByteArray& inhalt) {
        QApplication::clipboard()->setMimeData(Daten(art, inhalt));
        Druecke(Qt::Key_V, Qt::ControlModifier);
    }

  private slots:
    void init() {
        fenster_ = std::make_unique<QWidget>();
        auto* anordnung = new QVBoxLayout(fenster_.get());
        feld_ = new Notizfeld("RTZinsstaffel");
        text_ = Finde<QTextEdit>(feld_, "RTZinsstaffel");
        auto* davor = new QComboBox;
        davor->setObjectName("davor");
        auto* danach = new QComboBox;
        danach->setObjectName("danach");
        anordnung->addWidget(davor);
        anordnung->addWidget(feld_);
        anordnung->addWidget(danach);
        Zeige(*fenster_);
        feld_->setFocus();
    }

    void dasTextfeldBekommtDenFokus() { QCOMPARE(Fokus(), "RTZinsstaffel"); }

    void leeresFeldIstEinLeeresDokument() {
        QCOMPARE(Datei(), Kopf() + "\\par\r\n}\r\n");
        QVERIFY(feld_->Lesen() == Richtext{});
    }

    void getipptesStehtInDerGrundschrift() {
        Tippe("Miete 5,50");
        QCOMPARE(Datei(), Kopf() + "Miete 5,50\\par\r\n}\r\n");
    }

    void enterMachtEinenAbsatzUndBleibt() {
        Tippe("a");
        Druecke(Qt::Key_Return);
        Druecke(Qt::Key_Enter, Qt::KeypadModifier);
        Tippe("b");
        QCOMPARE(Rumpf(), "a\\par\r\n\\par\r\nb\\par\r\n}\r\n");
        QCOMPARE(Fokus(), "RTZinsstaffel");
    }

    void leereZeilenBehaltenDieFormate() {
        feld_->Zeigen(RtfLesen("{\\rtf1\\qc\\pagebb\\b a}"));
        Druecke(Qt::Key_End);
        Druecke(Qt::Key_Return);
        Druecke(Qt::Key_Return);
        Tippe("b");
        QCOMPARE(Rumpf(), "\\pard\\pagebb\\qc\\b a\\par\r\n\\pard\\qc\\par\r\nb\\par\r\n}\r\n");
    }

    void enterSetztEineListeFortUndBeendetSieImLeerenPunkt() {
        feld_->Zeigen(RtfLesen("{\\rtf1\\pard{\\*\\pn\\pnlvlblt}a}"));
        Druecke(Qt::Key_End);
        Druecke(Qt::Key_Return);
        Tippe("b");
        QVERIFY(feld_->Lesen().absaetze[1].format.liste.art == Listenart::punkte);
        Druecke(Qt::Key_Return);
        Druecke(Qt::Key_Return);
        Tippe("c");
        QCOMPARE(feld_->Lesen().absaetze.size(), std::size_t{3});
        QVERIFY(feld_->Lesen().absaetze[2].format.liste.art == Listenart::keine);
    }

    void enterErsetztDieAuswahl() {
        Tippe("abc");
        Druecke(Qt::Key_Left, Qt::ShiftModifier);
        Druecke(Qt::Key_Return);
        QCOMPARE(Rumpf(), "ab\\par\r\n\\par\r\n}\r\n");
    }

    void umschaltEnterMachtEineZeileImAbsatz() {
        Tippe("a");
        Druecke(Qt::Key_Return, Qt::ShiftModifier);
        Tippe("b");
        QCOMPARE(Rumpf(), "a\\line b\\par\r\n}\r\n");
    }

    void tabIstText() {
        Tippe("a");
        Druecke(Qt::Key_Tab);
        Tippe("b");
        QCOMPARE(Rumpf(), "a\\tab b\\par\r\n}\r\n");
        QCOMPARE(Fokus(), "RTZinsstaffel");
    }

    void strgTabVerlaesstDasFeld() {
        Tippe("a");
        Druecke(Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(Fokus(), "danach");
        QCOMPARE(Rumpf(), "a\\par\r\n}\r\n");
    }

    void umschaltTabGehtZurueckZuDenWerkzeugen() {
        Tippe("a");
        Druecke(Qt::Key_Backtab, Qt::ShiftModifier);
        // "Wiederholen" has nothing to do.
        QCOMPARE(Fokus(), "rueckgaengig");
        QCOMPARE(Rumpf(), "a\\par\r\n}\r\n");
    }

    void tastenMachenFettKursivUnterstrichen_data() {
        QTest::addColumn<int>("taste");
        QTest::addColumn<QString>("werkzeug");
        QTest::addColumn<QString>("rumpf");
        QTest::newRow("fett") << int{Qt::Key_B} << "fett"
                              << "a\\b b\\b0 c\\par\r\n}\r\n";
        QTest::newRow("kursiv") << int{Qt::Key_I} << "kursiv"
                                << "a\\i b\\i0 c\\par\r\n}\r\n";
        QTest::newRow("unterstrichen") << int{Qt::Key_U} << "unterstrichen"
                                       << "a\\ul b\\ulnone c\\par\r\n}\r\n";
    }
    void tastenMachenFettKursivUnterstrichen() {
        QFETCH(int, taste);
        QFETCH(QString, werkzeug);
        QFETCH(QString, rumpf);
        QToolButton* knopf = Werkzeug(werkzeug.toUtf8());
        Tippe("a");
        Druecke(static_cast<Qt::Key>(taste), Qt::ControlModifier);
        QVERIFY(knopf->isChecked());
        Tippe("b");
        Druecke(static_cast<Qt::Key>(taste), Qt::ControlModifier);
        QVERIFY(!knopf->isChecked());
        Tippe("c");
        QCOMPARE(Rumpf(), rumpf);
    }

    void werkzeugAendertDieAuswahlUndNimmtDenFokusNicht() {
        Tippe("ab");
        Druecke(Qt::Key_Left, Qt::ShiftModifier);
        QTest::mouseClick(Werkzeug("fett"), Qt::LeftButton);
        QCOMPARE(Rumpf(), "a\\b b\\par\r\n}\r\n");
        QCOMPARE(Fokus(), "RTZinsstaffel");
    }

    void werkzeugeFolgenDemZeiger() {
        feld_->Zeigen(RtfLesen("{\\rtf1 a\\b\\i\\ul\\fs21 b}"));
        QVERIFY(!Werkzeug("fett")->isChecked());
        QCOMPARE(Finde<QComboBox>(feld_, "Schriftgröße")->currentText(), "12");
        Druecke(Qt::Key_End);
        QVERIFY(Werkzeug("fett")->isChecked());
        QVERIFY(Werkzeug("kursiv")->isChecked());
        QVERIFY(Werkzeug("unterstrichen")->isChecked());
        QCOMPARE(Finde<QComboBox>(feld_, "Schriftgröße")->currentText(), "10,5");
        Druecke(Qt::Key_Home);
        QCOMPARE(Finde<QComboBox>(feld_, "Schriftgröße")->currentText(), "12");
        QCOMPARE(Finde<QComboBox>(feld_, "Schriftgröße")->findText("10,5"), -1);
    }

    void groesseAusDerListe() {
        auto* groesse = Finde<QComboBox>(feld_, "Schriftgröße");
        Tippe("ab");
        Druecke(Qt::Key_Left, Qt::ShiftModifier);
        groesse->setFocus();
        // From 12 up to 14.
        QTest::keyClick(groesse, Qt::Key_Down);
        QCOMPARE(Rumpf(), "a\\fs28 b\\par\r\n}\r\n");
        QCOMPARE(Fokus(), "RTZinsstaffel");
    }

    void rueckgaengigUndWiederholen() {
        QVERIFY(!Werkzeug("rueckgaengig")->isEnabled());
        Tippe("a");
        QVERIFY(Werkzeug("rueckgaengig")->isEnabled());
        QTest::mouseClick(Werkzeug("rueckgaengig"), Qt::LeftButton);
        QVERIFY(feld_->Lesen() == Richtext{});
        QTest::mouseClick(Werkzeug("wiederholen"), Qt::LeftButton);
        QCOMPARE(Rumpf(), "a\\par\r\n}\r\n");
        Druecke(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(feld_->Lesen() == Richtext{});
    }

    void formatLaesstSichZuruecknehmen() {
        Tippe("ab");
        Druecke(Qt::Key_A, Qt::ControlModifier);
        Druecke(Qt::Key_B, Qt::ControlModifier);
        QCOMPARE(Rumpf(), "\\b ab\\par\r\n}\r\n");
        Druecke(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(Rumpf(), "ab\\par\r\n}\r\n");
    }

    void gezeigtesLaesstSichNichtZuruecknehmen() {
        Tippe("a");
        feld_->Zeigen(RtfLesen("{\\rtf1 b}"));
        QVERIFY(!Werkzeug("rueckgaengig")->isEnabled());
        Druecke(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(Rumpf(), "b\\par\r\n}\r\n");
    }

    void geaendertMeldetNurDenBenutzer() {
        const QSignalSpy spion(feld_, &Notizfeld::geaendert);
        feld_->Zeigen(RtfLesen("{\\rtf1\\fs40 ab}"));
        feld_->Leeren();
        QCOMPARE(spion.count(), 0);
        Tippe("a");
        QVERIFY(spion.count() > 0);
    }

    void geaendertMeldetAuchEinFormat() {
        feld_->Zeigen(RtfLesen("{\\rtf1 ab}"));
        Druecke(Qt::Key_A, Qt::ControlModifier);
        const QSignalSpy spion(feld_, &Notizfeld::geaendert);
        Druecke(Qt::Key_B, Qt::ControlModifier);
        QVERIFY(spion.count() > 0);
    }

    void leerenNimmtTextUndFormat() {
        feld_->Zeigen(RtfLesen("{\\rtf1\\qc\\b\\fs40 ab\\par c}"));
        feld_->Leeren();
        QVERIFY(feld_->Lesen() == Richtext{});
        Tippe("x");
        QCOMPARE(Datei(), Kopf() + "x\\par\r\n}\r\n");
    }

    void grundschriftLaesstFettKursivUnterstrichen() {
        feld_->Zeigen(InGrundschrift(
            RtfLesen("{\\rtf1{\\fonttbl{\\f0 Arial;}}\\fs40 a{\\b b}{\\i c}{\\ul d}\\par\\qc e}")));
        QCOMPARE(Datei(), Kopf() + "a\\b b\\b0\\i c\\i0\\ul d\\par\r\n\\pard\\qc\\ulnone e\\par\r\n}\r\n");
    }

    void getipptesInGezeigtemFolgtDessenFormat() {
        feld_->Zeigen(RtfLesen("{\\rtf1\\b ab}"));
        Druecke(Qt::Key_End);
        Tippe("c");
        QCOMPARE(Rumpf(), "\\b abc\\par\r\n}\r\n");
    }

    void rundreiseDurchDasFeldIstBytegleich() {
        const QString datei =
            Kopf("{\\f1\\fswiss\\fcharset0 Arial;}{\\f2\\fnil\\fcharset2 Symbol;}") +
            "Zinsen f\\'fcr 5 \\'80\\tab \\b fett\\b0 \\line \\f1\\fs28\\i\\ul\\strike gro\\'df\\par\r\n"
            "\\pard\\fi-"
            "360\\li720\\ri100\\sb60\\sa120\\sl360\\slmult1\\tqr\\tx5000\\qj\\f0\\fs24\\i0\\ulnone\\strike0 "
            "x\\par\r\n"
            "\\pard{\\pntext\\f2\\'B7\\tab}{\\*\\pn\\pnlvlblt\\pnf2\\pnindent0{\\pntxtb\\'B7}}\\fi-"
            "200\\li200 eins\\par\r\n"
            "{\\pntext\\f2\\'B7\\tab}zwei\\par\r\n\\pard\\par\r\n}\r\n";
        feld_->Zeigen(RtfLesen(datei.toStdString()));
        QCOMPARE(Datei(), datei);
        feld_->Zeigen(RtfLesen(Datei().toStdString()));
        QCOMPARE(Datei(), datei);
    }

    void textAufEigenemGrundBleibtLesbar() {
        feld_->Zeigen(RtfLesen(
            "{\\rtf1{\\colortbl ;\\red255\\green255;\\blue90;}\\highlight1 a\\highlight2 b\\cf1 c}"));
        const QTextBlock absatz = text_->document()->begin();
        QList<QColor> farben;
        for (auto stueck = absatz.begin(); !stueck.atEnd(); ++stueck)
            farben << stueck.fragment().charFormat().foreground().color();
        QCOMPARE(farben, (QList<QColor>{Qt::black, Qt::white, QColor(255, 255, 0)}));
        QVERIFY(!feld_->Lesen().absaetze[0].laeufe[0].format.farbe);
        QVERIFY(feld_->Lesen().absaetze[0].laeufe[2].format.farbe == (Farbe{255, 255, 0}));
    }

    void listenSindListen() {
        feld_->Zeigen(RtfLesen("{\\rtf1\\pard{\\*\\pn\\pnlvlbody\\pndec{\\pntxta)}}a\\par b\\par\\pard c}"));
        const QTextBlock erster = text_->document()->begin();
        QVERIFY(erster.textList());
        QCOMPARE(erster.textList()->count(), 2);
        QCOMPARE(erster.next().textList()->itemText(erster.next()), "2)");
        QVERIFY(!erster.next().next().textList());
    }

    void einfuegenVonReinemText() {
        Tippe("a");
        Einfuegen("text/plain", "x\ny");
        QCOMPARE(Rumpf(), "ax\\par\r\ny\\par\r\n}\r\n");
    }

    void einfuegenVonRtfInDieZeile() {
        Tippe("ac");
        Druecke(Qt::Key_Left);
        Einfuegen("text/rtf", "{\\rtf1\\b b\\par}");
        QCOMPARE(Rumpf(), "a\\b b\\b0 c\\par\r\n}\r\n");
    }

    void einfuegenVonRtfUeberDieAuswahl() {
        Tippe("abc");
        Druecke(Qt::Key_A, Qt::ControlModifier);
        Einfuegen("application/rtf", "{\\rtf1\\qc x\\par\\qr y\\par}");
        QCOMPARE(Rumpf(), "\\pard\\qc x\\par\r\n\\pard\\qr y\\par\r\n}\r\n");
    }

    void einfuegenVonHtml() {
        Einfuegen("text/html", "<p>a<b>b</b><i>c</i><u>d</u></p><ul><li>e</li></ul>");
        const Richtext text = feld_->Lesen();
        QCOMPARE(text.absaetze.size(), std::size_t{2});
        const auto& laeufe = text.absaetze[0].laeufe;
        QCOMPARE(laeufe.size(), std::size_t{4});
        QCOMPARE(laeufe[0].format.schrift, std::string("Courier New"));
        QVERIFY(laeufe[1].format.fett && laeufe[2].format.kursiv);
        QVERIFY(laeufe[3].format.unterstreichung == Unterstreichung::einfach);
        QVERIFY(text.absaetze[1].format.liste.art == Listenart::punkte);
    }

    void bilderWerdenNichtGeladen() {
        QTemporaryDir ordner;
        QImage bild(4, 4, QImage::Format_RGB32);
        bild.fill(Qt::red);
        const QString datei = ordner.filePath("bild.png");
        QVERIFY(bild.save(datei));
        const QUrl name = QUrl::fromLocalFile(datei);
        Einfuegen("text/html", ("<p>a<img src=\"" + name.toString() + "\">b</p>").toUtf8());
        QCOMPARE(Rumpf(), "ab\\par\r\n}\r\n");
        QVERIFY(text_->document()->resource(QTextDocument::ImageResource, name).value<QImage>().isNull());
    }

    void bildAlleinWirdNichtEingefuegt() {
        auto* daten = new QMimeData;
        daten->setImageData(QImage(4, 4, QImage::Format_RGB32));
        QApplication::clipboard()->setMimeData(daten);
        Druecke(Qt::Key_V, Qt::ControlModifier);
        QVERIFY(feld_->Lesen() == Richtext{});
    }

    void kopierenGibtRtfFuerAndereProgramme() {
        feld_->Zeigen(RtfLesen("{\\rtf1 a\\b b\\b0 c}"));
        Druecke(Qt::Key_Right);
        Druecke(Qt::Key_Right, Qt::ShiftModifier);
        Druecke(Qt::Key_C, Qt::ControlModifier);
        const QMimeData* daten = QApplication::clipboard()->mimeData();
        QCOMPARE(daten->text(), "b");
        QCOMPARE(QString::fromLatin1(daten->data("text/rtf")), Kopf() + "\\b b\\par\r\n}\r\n");
    }

    void zufaelligeDokumenteKommenAusDemDokumentGleichZurueck() {
        QTextDocument dokument;
        for (std::uint64_t saat = 0; saat < 1000; ++saat) {
            const Richtext text = Zufallstext(saat).Dokument();
            RichtextInDokument(text, dokument);
            const Richtext zurueck = RichtextAusDokument(dokument);
            if (zurueck == text) continue;
            qWarning() << saat << RtfSchreiben(text).c_str() << RtfSchreiben(zurueck).c_str();
            QFAIL("nicht gleich");
        }
    }

    void unbekannteSchriftgroesseUndFarbeDesDokuments() {
        QTextDocument dokument;
        dokument.setDefaultFont(QFont("Arial", 9));
        dokument.setHtml("<span style='color:#ff0000'>a</span>");
        Richtext erwartet;
        erwartet.absaetze[0].laeufe = {{"a", {.schrift = "Arial", .groesse = 18, .farbe = Farbe{255, 0, 0}}}};
        QVERIFY(RichtextAusDokument(dokument) == erwartet);
    }
};

ZINFOLIO_FENSTERTEST(NotizfeldTest)

}  // namespace notizfeld_test

#include "notizfeld_test.moc"
