// The text viewer: what it shows, and the ways out of it.

#include "fenster/ausgabe/form34.h"

#include <QApplication>
#include <QClipboard>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QScrollBar>
#include <fstream>

#include "fenster/ausgabe/druckdialog.h"
#include "fenster/ausgabe/schriftdialog.h"
#include "fenster/formhelfer.h"

namespace form34_test {

using namespace zinfolio;

class Form34Test : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<Testordner> ordner_;
    std::unique_ptr<Form34> form_;

    void Lege(const std::string& bytes) {
        std::ofstream(ordner_->Pfad() / "RTF2.RTF", std::ios::binary) << bytes;
    }

    void Oeffne(const QString& textverarbeitung = {}) {
        form_ = std::make_unique<Form34>(ordner_->Pfad(), nullptr, textverarbeitung);
        Zeige(*form_);
    }

    [[nodiscard]] QPlainTextEdit* R() const { return Finde<QPlainTextEdit>(form_.get(), "R"); }
    void Klicke(const char* name) {
        QTest::mouseClick(Finde<QPushButton>(form_.get(), name), Qt::LeftButton);
    }
    [[nodiscard]] QString Datei(const char* name) const {
        return QString::fromStdString((ordner_->Pfad() / name).string());
    }
    [[nodiscard]] bool HatTaste(const char* name) const {
        return form_->findChild<QPushButton*>(name) != nullptr;
    }

    void WaehleSchrift(const std::optional<QFont>& antwort, QFont* anfang = nullptr) {
        const auto vorher = SchriftfragenUmleiten([&](const QFont& schrift) {
            if (anfang) *anfang = schrift;
            return antwort;
        });
        Klicke("Command2");
        SchriftfragenUmleiten(vorher);
    }

    void PruefeFesteSchrift() {
        QCOMPARE(R()->font().family(), "Courier New");
        QCOMPARE(R()->font().pointSize(), 8);
        QVERIFY(!R()->font().bold());
    }

    /// A program that copies what it is started with to `ziel`, whole or not at all.
    QString Kopierer(const QString& ziel) {
        const auto datei = ordner_->Pfad() / "kopierer.sh";
        std::ofstream(datei) << "#!/bin/sh\nziel='" + ziel.toStdString() +
                                    "'\ncp \"$1\" \"$ziel.neu\" && mv \"$ziel.neu\" \"$ziel\" && rm \"$1\"\n";
        std::filesystem::permissions(datei, std::filesystem::perms::owner_all);
        return QString::fromStdString(datei.string());
    }

  private slots:
    void init() { ordner_ = std::make_unique<Testordner>(); }
    void cleanup() { form_.reset(); }

    void zeigtDenTextInCourierNew8() {
        Lege("\n\nZinss\xE4tze in \x80\n\n\n1.234,56\n \n \nEnde\n");
        Oeffne();
        QCOMPARE(R()->toPlainText(), "\n\nZinssätze in €\n\n\n1.234,56\n \n \nEnde\n");
        QVERIFY(R()->isReadOnly());
        PruefeFesteSchrift();
        Tippe("x");
        QVERIFY(!R()->toPlainText().contains('x'));
    }

    void beschriftungenStehenWieVereinbart() {
        Oeffne("/bin/true");
        const std::initializer_list<std::pair<const char*, const char*>> tasten{
            {"Command1", "Ende"},
            {"Command2", "Schriften"},
            {"Drucken", "Drucken"},
            {"Wordaufruf", "Word "},
            {"Zwischenablage", "Zwischenablage"}};
        for (const auto& [name, text] : tasten)
            QCOMPARE(Finde<QPushButton>(form_.get(), name)->text().remove('&'), QString::fromUtf8(text));
    }

    void windowsZeilenendenSindZeilenenden() {
        Lege("eins\r\nzwei\r\n");
        Oeffne();
        QCOMPARE(R()->toPlainText(), "eins\nzwei\n");
    }

    void leereUndFehlendeDateiZeigenNichts() {
        Oeffne();
        QCOMPARE(R()->toPlainText(), "");
        Lege("");
        Oeffne();
        QCOMPARE(R()->toPlainText(), "");
    }

    void zweitesOeffnenLiestNeu() {
        Lege("alt\n");
        Oeffne();
        form_->close();
        Lege("neu\n");
        Zeige(*form_);
        QCOMPARE(R()->toPlainText(), "neu\n");
    }

    void langerTextHatEineBildlaufleiste() {
        std::string zeilen;
        for (int i = 0; i < 400; ++i)
            zeilen += std::string(300, 'x') + '\n';
        Lege(zeilen);
        Oeffne();
        QVERIFY(R()->verticalScrollBar()->isVisible());
        QVERIFY(R()->horizontalScrollBar()->isVisible());
        Druecke(Qt::Key_End, Qt::ControlModifier);
        QVERIFY(R()->verticalScrollBar()->value() > 0);
        QVERIFY(R()->textCursor().atEnd());
        QVERIFY(R()->viewport()->rect().contains(R()->cursorRect()));
    }

    void unlesbareDateiWirdGemeldet() {
        const Zeuge zeuge;
        std::filesystem::create_directory(ordner_->Pfad() / "RTF2.RTF");
        Oeffne();
        QTRY_COMPARE(zeuge.texte.size(), 1);
        QVERIFY2(zeuge.texte[0].contains("RTF2.RTF"), qPrintable(zeuge.texte[0]));
        QCOMPARE(R()->toPlainText(), "");
    }

    void schriftenWirkenMitNamenGroesseUndFett() {
        Lege("Text\n");
        Oeffne();
        QFont antwort("DejaVu Sans", 14);
        antwort.setBold(true);
        antwort.setItalic(true);
        QFont anfang;
        WaehleSchrift(antwort, &anfang);
        QCOMPARE(anfang.family(), "Courier New");
        QCOMPARE(anfang.pointSize(), 8);
        QCOMPARE(R()->font().family(), "DejaVu Sans");
        QCOMPARE(R()->font().pointSize(), 14);
        QVERIFY(R()->font().bold());
        QVERIFY(!R()->font().italic());
    }

    void abgebrochenerSchriftdialogAendertNichts() {
        Oeffne();
        WaehleSchrift(std::nullopt);
        PruefeFesteSchrift();
    }

    void endeSchliesstUndSetztDieSchriftZurueck() {
        Oeffne();
        WaehleSchrift(QFont("DejaVu Sans", 14));
        Klicke("Command1");
        QVERIFY(!form_->isVisible());
        PruefeFesteSchrift();
    }

    void escapeSchliesstUndEnterNicht() {
        Lege("Text\n");
        Oeffne();
        Druecke(Qt::Key_Return);
        QVERIFY(form_->isVisible());
        Druecke(Qt::Key_Escape);
        QVERIFY(!form_->isVisible());
        Zeige(*form_);
        PruefeFesteSchrift();
    }

    void drucktDenTextInCourierNew() {
        Lege("\n\nTitel f\xFCr den Druck\n\n\nZeile 1\n");
        Oeffne();
        WaehleSchrift(QFont("DejaVu Sans", 14));
        const QString datei = Datei("druck.pdf");
        const auto vorher = DruckfragenUmleiten([&](QPrinter& drucker) {
            drucker.setOutputFileName(datei);
            return true;
        });
        Klicke("Drucken");
        DruckfragenUmleiten(vorher);
        QCOMPARE(R()->font().family(), "Courier New");
        QCOMPARE(R()->font().pointSize(), 14);
        QProcess pdftotext;
        pdftotext.start("pdftotext", {datei, "-"});
        QVERIFY(pdftotext.waitForFinished());
        const QString text = QString::fromUtf8(pdftotext.readAllStandardOutput());
        QVERIFY2(text.contains("Titel für den Druck") && text.contains("Zeile 1"), qPrintable(text));
    }

    void abgebrochenerDruckLaesstDieSchrift() {
        Oeffne();
        WaehleSchrift(QFont("DejaVu Sans", 14));
        const auto vorher = DruckfragenUmleiten([](QPrinter&) { return false; });
        Klicke("Drucken");
        DruckfragenUmleiten(vorher);
        QCOMPARE(R()->font().family(), "DejaVu Sans");
    }

    void ohneTextverarbeitungFehltDieTaste() {
        Oeffne();
        QVERIFY(!HatTaste("Wordaufruf"));
        QVERIFY(HatTaste("Zwischenablage"));
    }

    void textverarbeitungErhaeltDenTextInGroesse6() {
        const Zeuge zeuge;
        Lege("Zinss\xE4tze\n  1,5 %\n");
        const QString ziel = Datei("angekommen.rtf");
        Oeffne(Kopierer(ziel));
        WaehleSchrift(QFont("DejaVu Sans", 14));
        Klicke("Wordaufruf");
        QTRY_VERIFY(QFile::exists(ziel));
        QFile datei(ziel);
        QVERIFY(datei.open(QIODevice::ReadOnly));
        const QByteArray rtf = datei.readAll();
        QVERIFY(rtf.startsWith("{\\rtf1"));
        for (const char* teil : {"Courier New", "\\fs12", "Zinss\\'e4tze", "  1,5 %"})
            QVERIFY2(rtf.contains(teil), rtf.constData());
        QCOMPARE(R()->font().family(), "Courier New");
        QVERIFY(zeuge.texte.isEmpty());
    }

    void textverarbeitungDieNichtStartetWirdGemeldet() {
        const Zeuge zeuge;
        Lege("Text\n");
        Oeffne(Datei("gibtesnicht"));
        Klicke("Wordaufruf");
        QCOMPARE(zeuge.texte, QStringList{"Die Textverarbeitung kann nicht gestartet werden."});
    }

    void zwischenablageErklaertSichUndKopiertDann() {
        Lege("eins\nzwei\n");
        Oeffne();
        QApplication::clipboard()->setText("vorher");
        QString beiDerMeldung;
        Zeuge zeuge;
        zeuge.dabei = [&](const Meldung&) { beiDerMeldung = QApplication::clipboard()->text(); };
        Klicke("Zwischenablage");
        QCOMPARE(
            zeuge.texte,
            QStringList{
                "Sofern Sie über Word verfügen, können Sie über die Auswahl <Word> die Ergebnisse direkt in "
                "Word überleiten. Sofern Sie nicht über Word verfügen: Rufen Sie Ihre Textverarbeitung auf "
                "und "
                "wählen Sie Bearbeiten / Einfügen. Anschließend markieren Sie den gesamten Text in Ihrer "
                "Textverarbeitung und wählen als Schriftart Courier-New. So erhalten Sie einen "
                "ausgerichteten, formatierten Text."});
        QCOMPARE(beiDerMeldung, "vorher");
        QCOMPARE(QApplication::clipboard()->text(), "eins\nzwei\n");
        QVERIFY(!R()->textCursor().hasSelection());
    }
};

ZINFOLIO_FENSTERTEST(Form34Test)

}  // namespace form34_test

#include "form34_test.moc"
