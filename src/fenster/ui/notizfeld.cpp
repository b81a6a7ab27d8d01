#include "fenster/ui/notizfeld.h"

#include <QAction>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QSignalBlocker>
#include <QToolButton>

#include "fenster/ui/richtextdokument.h"
#include "fenster/ui/richtextfeld.h"
#include "fenster/ui/richtextformate.h"
#include "fenster/ui/symbol.h"
#include "kern/richtext/notiz.h"

namespace zinfolio {
namespace {

constexpr std::array<int, 14> groessen{8, 9, 10, 11, 12, 14, 16, 18, 20, 24, 28, 36, 48, 72};

/// What is shown of a larger note.
constexpr Richtextmass gezeigterAnfang{.zeichen = 100'000, .absaetze = 2'000};

QString Groessentext(double punkte) {
    return QLocale(QLocale::German).toString(punkte, 'f', QLocale::FloatingPointShortest);
}

QToolButton* NeuesWerkzeug(QAction* aktion, QWidget* eltern) {
    auto* werkzeug = new QToolButton(eltern);
    werkzeug->setDefaultAction(aktion);
    werkzeug->setAutoRaise(true);
    werkzeug->setObjectName(aktion->objectName());
    return werkzeug;
}

}  // namespace

Notizfeld::Notizfeld(const QString& name, QWidget* eltern)
    : QWidget(eltern), text_(new Richtextfeld), groesse_(new QComboBox), kuerzung_(new QLabel) {
    text_->setObjectName(name);
    text_->setAccessibleName("Notizen");
    text_->setFont(QFont(QString::fromUtf8(grundschrift.data(), grundschrift.size()), grundgroesse / 2));
    AktionenAnlegen();
    WerkzeugeAnordnen();
    setFocusProxy(text_);
    Verbinden();
    Leeren();
}

QAction* Notizfeld::NeueAktion(const char* symbol, const QString& name, const QString& taste) {
    auto* aktion = new QAction(Symbol(symbol), name, this);
    aktion->setObjectName(symbol);
    aktion->setToolTip(name + " (" + taste + ")");
    return aktion;
}

void Notizfeld::AktionenAnlegen() {
    fett_ = NeueAktion("fett", "Fett", "Strg+B");
    fett_->setShortcut(Qt::CTRL | Qt::Key_B);
    kursiv_ = NeueAktion("kursiv", "Kursiv", "Strg+I");
    kursiv_->setShortcut(Qt::CTRL | Qt::Key_I);
    unterstrichen_ = NeueAktion("unterstrichen", "Unterstrichen", "Strg+U");
    unterstrichen_->setShortcut(Qt::CTRL | Qt::Key_U);
    for (QAction* aktion : {fett_, kursiv_, unterstrichen_}) {
        aktion->setCheckable(true);
        aktion->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        addAction(aktion);
    }
    // Their keys are the text field's own.
    rueckgaengig_ = NeueAktion("rueckgaengig", "Rückgängig", "Strg+Z");
    wiederholen_ = NeueAktion("wiederholen", "Wiederholen", "Strg+Umschalt+Z");
}

void Notizfeld::WerkzeugeAnordnen() {
    groesse_->setObjectName("Schriftgröße");
    groesse_->setAccessibleName("Schriftgröße in Punkt");
    groesse_->setToolTip("Schriftgröße in Punkt");
    for (const int punkte : groessen)
        groesse_->addItem(Groessentext(punkte), double(punkte));
    // The order in which they come is that of the tab key.
    auto* anordnung = new QVBoxLayout(this);
    auto* zeile = new QHBoxLayout;
    anordnung->addLayout(zeile);
    for (QAction* aktion : {fett_, kursiv_, unterstrichen_})
        zeile->addWidget(NeuesWerkzeug(aktion, this));
    zeile->addWidget(groesse_);
    for (QAction* aktion : {rueckgaengig_, wiederholen_})
        zeile->addWidget(NeuesWerkzeug(aktion, this));
    zeile->addStretch();
    kuerzung_->setObjectName("Kürzung");
    kuerzung_->setWordWrap(true);
    kuerzung_->setText(
        "Diese Notiz ist zu groß, um hier geändert zu werden. Gezeigt wird ihr Anfang; gespeichert wird sie, "
        "wie sie war.");
    anordnung->addWidget(kuerzung_);
    anordnung->addWidget(text_, 1);
}

void Notizfeld::Verbinden() {
    connect(fett_, &QAction::triggered, this, [this](bool an) {
        QTextCharFormat aenderung;
        aenderung.setFontWeight(an ? QFont::Bold : QFont::Normal);
        Anwenden(aenderung);
    });
    connect(kursiv_, &QAction::triggered, this, [this](bool an) {
        QTextCharFormat aenderung;
        aenderung.setFontItalic(an);
        Anwenden(aenderung);
    });
    connect(unterstrichen_, &QAction::triggered, this, [this](bool an) {
        QTextCharFormat aenderung;
        aenderung.setFontUnderline(an);
        Anwenden(aenderung);
    });
    connect(groesse_, &QComboBox::activated, this, &Notizfeld::GroesseSetzen);
    connect(rueckgaengig_, &QAction::triggered, text_, &QTextEdit::undo);
    connect(wiederholen_, &QAction::triggered, text_, &QTextEdit::redo);
    connect(text_, &QTextEdit::undoAvailable, rueckgaengig_, &QAction::setEnabled);
    connect(text_, &QTextEdit::redoAvailable, wiederholen_, &QAction::setEnabled);
    connect(text_, &QTextEdit::currentCharFormatChanged, this, &Notizfeld::WerkzeugeZeigen);
    connect(text_, &QTextEdit::textChanged, this, &Notizfeld::geaendert);
}

void Notizfeld::Zeigen(const Richtext& text) {
    gekuerzt_ = !PasstIn(Mass(text), hoechsteNotiz);
    {
        const QSignalBlocker stumm(text_);
        RichtextInDokument(gekuerzt_ ? Anfang(text, gezeigterAnfang) : text, *text_->document());
        text_->moveCursor(QTextCursor::Start);
    }
    AenderbarSetzen(!gekuerzt_);
    rueckgaengig_->setEnabled(false);
    wiederholen_->setEnabled(false);
    WerkzeugeZeigen(text_->currentCharFormat());
}

void Notizfeld::AenderbarSetzen(bool aenderbar) {
    text_->setReadOnly(!aenderbar);
    groesse_->setEnabled(aenderbar);
    for (QAction* aktion : {fett_, kursiv_, unterstrichen_})
        aktion->setEnabled(aenderbar);
    kuerzung_->setVisible(!aenderbar);
}

Richtext Notizfeld::Lesen() const {
    return RichtextAusDokument(*text_->document());
}

void Notizfeld::GroesseSetzen() {
    QTextCharFormat aenderung;
    aenderung.setFontPointSize(groesse_->currentData().toDouble());
    Anwenden(aenderung);
    text_->setFocus();
}

void Notizfeld::Anwenden(const QTextCharFormat& aenderung) {
    text_->mergeCurrentCharFormat(aenderung);
}

void Notizfeld::WerkzeugeZeigen(const QTextCharFormat& format) {
    const Zeichenformat unser = ZeichenformatAus(format, text_->document()->defaultFont());
    fett_->setChecked(unser.fett);
    kursiv_->setChecked(unser.kursiv);
    unterstrichen_->setChecked(unser.unterstreichung != Unterstreichung::keine);
    GroesseZeigen(unser.groesse / 2.0);
}

void Notizfeld::GroesseZeigen(double punkte) {
    const int feste = static_cast<int>(groessen.size());
    if (groesse_->count() > feste) groesse_->removeItem(feste);
    if (groesse_->findData(punkte) < 0) groesse_->addItem(Groessentext(punkte), punkte);
    groesse_->setCurrentIndex(groesse_->findData(punkte));
}

}  // namespace zinfolio
