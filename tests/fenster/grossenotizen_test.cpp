// Notes that are too much, or that hold more than can be shown: nothing is lost, and the window answers.

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QLabel>
#include <QMimeData>
#include <QTextEdit>
#include <QToolButton>

#include "fenster/formhelfer.h"
#include "fenster/rechner/registernotizen.h"
#include "fenster/ui/deutsch.h"
#include "fenster/ui/entertaste.h"
#include "kern/richtext/notiz.h"
#include "kern/richtext/rtfschreiben.h"

namespace grossenotizen_test {

using namespace zinfolio;

Richtext EinAbsatz(std::size_t zeichen) {
    Richtext text;
    text.absaetze[0].laeufe = {{.text = std::string(zeichen, 'x')}};
    return text;
}

constexpr const char* mitBild = R"({\rtf1\ansi Vor dem Bild {\pict\wmetafile8 0102030405} danach\par})";

class GrosseNotizenTest : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<RegisterNotizen> notizen_;
    QTextEdit* text_ = nullptr;

    static void InZwischenablage(const QString& text) { QApplication::clipboard()->setText(text); }

  private slots:
    void init() {
        notizen_ = std::make_unique<RegisterNotizen>("RT");
        text_ = Finde<QTextEdit>(notizen_.get(), "RT");
        Zeige(*notizen_);
        text_->setFocus();
    }
    void cleanup() { notizen_.reset(); }

    void einMegabyteOhneLeerzeichenOeffnetSichUndNimmtEineTaste() {
        const std::string datei = RtfSchreiben(EinAbsatz(1'000'000));
        QElapsedTimer uhr;
        uhr.start();
        notizen_->Oeffnen(datei);
        QApplication::processEvents();
        Druecke(Qt::Key_End, Qt::ControlModifier);
        Tippe("y");
        QApplication::processEvents();
        // Ten times of what it takes; a layout in one piece would take minutes.
        QVERIFY2(uhr.elapsed() < 10'000, qPrintable(QString::number(uhr.elapsed())));
        Richtext erwartet = EinAbsatz(1'000'000);
        erwartet.absaetze[0].laeufe[0].text += 'y';
        QVERIFY(notizen_->Lesen() == erwartet);
    }

    void langerAbsatzBleibtEinAbsatzAuchUeberLeerzeichen() {
        Richtext text;
        std::string worte;
        while (worte.size() < 9'000)
            worte += "Wort für Wort ";
        text.absaetze[0].laeufe = {{.text = worte}};
        notizen_->Zeigen(text);
        QVERIFY(notizen_->Lesen() == text);
    }

    void enterInEinemLangenAbsatzTeiltIhnEinmal() {
        notizen_->Zeigen(EinAbsatz(5'000));
        Druecke(Qt::Key_End, Qt::ControlModifier);
        Druecke(Qt::Key_Return);
        Tippe("z");
        Richtext erwartet = EinAbsatz(5'000);
        erwartet.absaetze.emplace_back().laeufe = {{.text = "z"}};
        QVERIFY(notizen_->Lesen() == erwartet);
    }

    void eingefuegtesUeberDerGrenzeWirdMitGrundAbgelehnt() {
        Tippe("a");
        InZwischenablage(QString(1'048'577, 'x'));
        const Zeuge zeuge;
        Druecke(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(
            zeuge.texte,
            QStringList{
                "So viel Text passt nicht in die Notizen. Sie fassen 1.048.576 Zeichen und 20.000 Absätze. "
                "Der Text bleibt, wie er war."});
        QCOMPARE(text_->toPlainText(), "a");
    }

    void zuVieleAbsaetzeWerdenAbgelehntAuchSehrViele() {
        InZwischenablage(QString(20'000, '\n'));
        const Zeuge zeuge;
        Druecke(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(zeuge.texte.size(), 1);
        InZwischenablage(QString(30'000'000, '\n'));
        Druecke(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(zeuge.texte.size(), 2);
        QVERIFY(text_->toPlainText().isEmpty());
    }

    void zwanzigtausendAbsaetzePassen() {
        InZwischenablage(QString(19'999, '\n'));
        const Zeuge zeuge;
        Druecke(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(zeuge.texte, QStringList());
        QCOMPARE(text_->document()->blockCount(), 20'000);
        Druecke(Qt::Key_Return);
        QCOMPARE(zeuge.texte.size(), 1);
        QCOMPARE(text_->document()->blockCount(), 20'000);
    }

    void groessereNotizEinerDateiZeigtIhrenAnfangUndBleibtDieBytes() {
        Richtext gross{.absaetze = std::vector<Absatz>(445'000)};
        gross.absaetze[0].laeufe = {{.text = "Anfang"}};
        const std::string datei = RtfSchreiben(gross);
        notizen_->Oeffnen(datei);
        QVERIFY(text_->isReadOnly());
        QVERIFY(Finde<QLabel>(notizen_.get(), "Kürzung")->isVisible());
        QVERIFY(text_->toPlainText().startsWith("Anfang"));
        Tippe("x");
        QCOMPARE(notizen_->AlsDatei(), datei);
        notizen_->Oeffnen("{\\rtf1 klein}");
        QVERIFY(!text_->isReadOnly());
        QVERIFY(!Finde<QLabel>(notizen_.get(), "Kürzung")->isVisible());
    }

    void groessereNotizOhneFormateBleibtAuchDieBytes() {
        const std::string datei(2'000'000, 'x');
        notizen_->Oeffnen(datei);
        QCOMPARE(notizen_->AlsDatei(), datei);
    }

    void ersteAenderungEinerNotizMitBildFragtUndNeinLaesstSieGanz() {
        notizen_->Oeffnen(mitBild);
        Zeuge zeuge;
        zeuge.antwort = Antwort::nein;
        const QSignalSpy geaendert(notizen_.get(), &RegisterNotizen::inhaltGeaendert);
        Tippe("x");
        QCOMPARE(zeuge.texte.size(), 1);
        QCOMPARE(geaendert.count(), 0);
        QCOMPARE(text_->toPlainText(), "Vor dem Bild  danach");
        QCOMPARE(notizen_->AlsDatei(), mitBild);
    }

    void jaLaesstWeiterschreibenOhneNeueFrage() {
        notizen_->Oeffnen(mitBild);
        Zeuge zeuge;
        zeuge.antwort = Antwort::ja;
        Tippe("xy");
        QCOMPARE(zeuge.texte.size(), 1);
        QVERIFY(text_->toPlainText().startsWith("xyVor"));
        QVERIFY(!QString::fromStdString(notizen_->AlsDatei()).contains("pict"));
    }

    void gewaehlteGroesseBleibtBeimSpeichernUndOeffnen() {
        notizen_->Oeffnen({});
        Tippe("a");
        text_->selectAll();
        text_->setFontPointSize(18);
        const std::string datei = notizen_->AlsDatei();
        notizen_->Oeffnen(datei);
        QCOMPARE(notizen_->Lesen().absaetze[0].laeufe[0].format.groesse, std::int16_t(36));
        QCOMPARE(notizen_->AlsDatei(), datei);
    }
};

ZINFOLIO_FENSTERTEST(GrosseNotizenTest)

}  // namespace grossenotizen_test

#include "grossenotizen_test.moc"
