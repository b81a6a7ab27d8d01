#include "fenster/ausgabe/form34.h"

#include <QDir>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QPushButton>
#include <QTemporaryFile>
#include <QVBoxLayout>

#include "fenster/ausgabe/druckdialog.h"
#include "fenster/ausgabe/schriftdialog.h"
#include "fenster/ui/bausteine.h"
#include "fenster/ui/fenstergroesse.h"
#include "fenster/ui/geschuetzt.h"
#include "fenster/ui/meldungsfenster.h"
#include "kern/bericht/rtfbericht.h"
#include "kern/bericht/textbericht.h"
#include "kern/dateien/dateifehler.h"

namespace zinfolio {
namespace {

constexpr auto festeSchrift = "Courier New";
constexpr int festeGroesse = 8;
/// In the word processor.
constexpr int uebergabegroesse = 6;

constexpr auto zwischenablageHinweis =
    "Sofern Sie über Word verfügen, können Sie über die Auswahl <Word> die Ergebnisse direkt in Word "
    "überleiten. "
    "Sofern Sie nicht über Word verfügen: Rufen Sie Ihre Textverarbeitung auf und wählen Sie Bearbeiten / "
    "Einfügen. Anschließend markieren Sie den gesamten Text in Ihrer Textverarbeitung und wählen als "
    "Schriftart "
    "Courier-New. So erhalten Sie einen ausgerichteten, formatierten Text.";

/// The text as a report without a table: its lines, in the font of the hand-over.
Bericht AlsBericht(const QString& text) {
    Bericht bericht;
    bericht.titel = "Ergebnisse";
    for (const QString& zeile : text.split('\n'))
        bericht.kopfblock.push_back(zeile.toStdString());
    bericht.kopfblockschrift = {.name = festeSchrift, .punkte = uebergabegroesse};
    bericht.querformat = false;
    bericht.rand = twipsJeZoll;
    return bericht;
}

/// A new file of its own for each hand-over: the one before may still be open in the word processor. Gives
/// its path, an empty one where it cannot be written.
QString UebergabeSchreiben(const std::string& rtf) {
    QTemporaryFile datei(QDir::temp().filePath("Ergebnisse-XXXXXX.rtf"));
    if (!datei.open()) return {};
    const auto laenge = static_cast<qint64>(rtf.size());
    if (datei.write(rtf.data(), laenge) != laenge || !datei.flush()) return {};
    datei.setAutoRemove(false);
    return datei.fileName();
}

}  // namespace

Form34::Form34(std::filesystem::path arbeitsordner, QWidget* eltern, QString textverarbeitung)
    : QDialog(eltern),
      arbeitsordner_(std::move(arbeitsordner)),
      textverarbeitung_(std::move(textverarbeitung)),
      R_(new QPlainTextEdit(this)) {
    setObjectName("Form34");
    setWindowTitle("Ergebnisse");
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    R_->setObjectName("R");
    R_->setAccessibleName("Ergebnisse");
    R_->setReadOnly(true);
    R_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    R_->setTabChangesFocus(true);
    R_->setLineWrapMode(QPlainTextEdit::NoWrap);
    auto* zeile = Tastenzeile({
        NeueTaste("Command2", "&Schriften", this, [this] { SchriftWaehlen(); }),
        NeueTaste("Drucken", "&Drucken", this, [this] { Ausdrucken(); }),
        NeueTaste("Zwischenablage", "&Zwischenablage", this, [this] { InZwischenablage(); }),
    });
    if (!textverarbeitung_.isEmpty())
        zeile->insertWidget(2, NeueTaste("Wordaufruf", "&Word ", this, [this] { AnTextverarbeitung(); }));
    zeile->addWidget(NeueTaste("Command1", "&Ende", this, [this] { Ende(); }));
    auto* anordnung = new QVBoxLayout(this);
    anordnung->addWidget(R_, 1);
    anordnung->addLayout(zeile);
    // Enter reads on, it presses no button.
    for (QPushButton* taste : findChildren<QPushButton*>())
        taste->setAutoDefault(false);
    FenstergroesseHolen(*this, {820, 600});
}

void Form34::showEvent(QShowEvent* ereignis) {
    QDialog::showEvent(ereignis);
    if (ereignis->spontaneous()) return;
    Laden();
    R_->setFocus();
}

void Form34::hideEvent(QHideEvent* ereignis) {
    QDialog::hideEvent(ereignis);
    if (!ereignis->spontaneous()) FenstergroesseMerken(*this);
}

void Form34::FesteSchriftSetzen() {
    QFont schrift(festeSchrift, festeGroesse);
    schrift.setStyleHint(QFont::TypeWriter);
    R_->setFont(schrift);
}

void Form34::Laden() {
    FesteSchriftSetzen();
    R_->clear();
    try {
        R_->setPlainText(QString::fromStdString(TextberichtLesen(arbeitsordner_)));
    } catch (const Dateifehler& fehler) {
        const QString grund = QString::fromUtf8(fehler.what());
        QMetaObject::invokeMethod(
            this, [this, grund] { MeldungZeigen(this, {.text = grund}); }, Qt::QueuedConnection);
    }
}

void Form34::Ende() {
    FesteSchriftSetzen();
    close();
}

void Form34::SchriftWaehlen() {
    const auto gewaehlt = SchriftFragen(this, QFont(festeSchrift, festeGroesse));
    if (!gewaehlt) return;
    QFont schrift(gewaehlt->family());
    schrift.setPointSizeF(gewaehlt->pointSizeF());
    schrift.setBold(gewaehlt->bold());
    R_->setFont(schrift);
}

void Form34::FestenNamenSetzen() {
    QFont schrift = R_->font();
    schrift.setFamily(festeSchrift);
    R_->setFont(schrift);
}

void Form34::Ausdrucken() {
    QPrinter drucker(QPrinter::HighResolution);
    drucker.setDocName(windowTitle());
    if (!DruckerFragen(this, drucker)) return;
    FestenNamenSetzen();
    GeschuetztMitWartezeiger(this, [&] { R_->print(&drucker); });
}

void Form34::AnTextverarbeitung() {
    const QString datei = UebergabeSchreiben(RtfBericht(AlsBericht(R_->toPlainText())));
    if (datei.isEmpty() || !TextverarbeitungStarten(textverarbeitung_, datei)) {
        if (!datei.isEmpty()) QFile::remove(datei);
        MeldungZeigen(this, {.text = "Die Textverarbeitung kann nicht gestartet werden."});
    }
    FestenNamenSetzen();
}

void Form34::InZwischenablage() {
    MeldungZeigen(this, {.text = zwischenablageHinweis}, Meldungsart::hinweis);
    R_->selectAll();
    R_->copy();
    QTextCursor stelle = R_->textCursor();
    stelle.movePosition(QTextCursor::Start);
    R_->setTextCursor(stelle);
}

}  // namespace zinfolio
