#include "fenster/ui/eingabefeld.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QToolTip>
#include <array>
#include <memory>
#include <optional>

#include "fenster/ui/meldungsfenster.h"
#include "kern/dates/einfuegetext.h"

namespace zinfolio {
namespace {

bool IstBefehlstaste(const QKeyEvent& ereignis) {
    return (ereignis.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
}

/// The character code that a filter sees, or nothing for keys that are none for it (cursor, Tab, Delete,
/// shortcuts).
std::optional<int> Zeichencode(const QKeyEvent& ereignis) {
    if (ereignis.key() == Qt::Key_Return || ereignis.key() == Qt::Key_Enter) return tasteEnter;
    if (ereignis.key() == Qt::Key_Backspace) return tasteRueck;
    if (IstBefehlstaste(ereignis) || ereignis.text().isEmpty() || !ereignis.text().at(0).isPrint()) {
        return std::nullopt;
    }
    const QChar zeichen = ereignis.text().at(0);
    const bool ziffernblock = (ereignis.modifiers() & Qt::KeypadModifier) != 0;
    return ziffernblock && zeichen == '.' ? ',' : zeichen.unicode();
}

/// The key event that reaches the field where the filter saw another character than the keyboard sent.
QKeyEvent MitZeichen(const QKeyEvent& ereignis, int taste) {
    return {ereignis.type(), ereignis.key(), ereignis.modifiers(), QString(QChar(taste))};
}

/// What a field takes, by its filter.
constexpr std::array<std::string_view, 5> hinweise{
    "Hier steht ein Datum: tt.mm.jjjj",
    "Hier steht eine Zahl: Ziffern, ein Komma, vorn ein Minus",
    "Hier steht eine ganze Zahl: nur Ziffern",
    "Hier steht eine Zahl: Ziffern und ein Komma",
    "",
};
constexpr int hinweisdauer = 2500;

}  // namespace

Eingabefeld::Eingabefeld(const QString& name, Tastenfilter filter, QWidget* eltern)
    : QLineEdit(eltern), filter_(filter) {
    setObjectName(name);
    // Composed text would bypass the filter.
    setAttribute(Qt::WA_InputMethodEnabled, filter == Tastenfilter::enter);
    if (filter == Tastenfilter::betrag || filter == Tastenfilter::prozent ||
        filter == Tastenfilter::ganzzahl) {
        setAlignment(Qt::AlignRight);
    }
}

void Eingabefeld::keyPressEvent(QKeyEvent* ereignis) {
    if (ereignis->matches(QKeySequence::Paste)) {
        ereignis->accept();
        return Einfuegen(QApplication::clipboard()->text());
    }
    const auto code = Zeichencode(*ereignis);
    if (!code) {
        QLineEdit::keyPressEvent(ereignis);
        return;
    }
    // A text that is selected as a whole will be replaced, as on the first key.
    const bool wirdErsetzt = hasSelectedText() && selectedText() == text();
    Anwenden(TasteFiltern(filter_, *code, text().toStdString(), ersteTaste_ && !wirdErsetzt), ereignis);
}

void Eingabefeld::Anwenden(const Tastenantwort& antwort, QKeyEvent* ereignis) {
    ersteTaste_ = antwort.ersteTaste;
    ereignis->accept();
    if (antwort.taste == tasteRueck) {
        QLineEdit::keyPressEvent(ereignis);
    } else if (antwort.taste != 0) {
        QKeyEvent gefiltert = MitZeichen(*ereignis, antwort.taste);
        QLineEdit::keyPressEvent(&gefiltert);
    }
    const bool verschluckt = antwort.taste == 0 && !antwort.naechstesFeld &&
                             ereignis->key() != Qt::Key_Return && ereignis->key() != Qt::Key_Enter;
    if (verschluckt) HinweisZeigen();
    if (antwort.caretAnsEnde) end(false);
    if (antwort.naechstesFeld) Weiter();
}

void Eingabefeld::HinweisZeigen() {
    const QString hinweis = Anzeigetext(hinweise.at(static_cast<std::size_t>(filter_)));
    QToolTip::showText(mapToGlobal(QPoint(0, height())), hinweis, this, {}, hinweisdauer);
}

void Eingabefeld::Einfuegen(const QString& eingefuegt) {
    const auto anfang = hasSelectedText() ? selectionStart() : cursorPosition();
    const auto ende = hasSelectedText() ? selectionEnd() : cursorPosition();
    const auto neu = Einfuegetext(filter_, text().left(anfang).toStdString(), eingefuegt.toStdString(),
                                  text().mid(ende).toStdString());
    if (!neu || (maxLength() < static_cast<int>(neu->size()) && filter_ != Tastenfilter::enter))
        return HinweisZeigen();
    insert(QString::fromStdString(*neu));
}

void Eingabefeld::contextMenuEvent(QContextMenuEvent* ereignis) {
    const std::unique_ptr<QMenu> menue(createStandardContextMenu());
    for (QAction* befehl : menue->actions()) {
        // The toolkit's entry has no other name than its text; its key stands behind a tab.
        if (befehl->text().section('\t', 0, 0) != QLineEdit::tr("&Paste")) continue;
        disconnect(befehl, &QAction::triggered, nullptr, nullptr);
        connect(befehl, &QAction::triggered, this, [this] { Einfuegen(QApplication::clipboard()->text()); });
    }
    menue->exec(ereignis->globalPos());
}

void Eingabefeld::mouseReleaseEvent(QMouseEvent* ereignis) {
    const QClipboard& ablage = *QApplication::clipboard();
    if (ereignis->button() == Qt::MiddleButton && ablage.supportsSelection())
        Einfuegen(ablage.text(QClipboard::Selection));
    else
        QLineEdit::mouseReleaseEvent(ereignis);
}

void Eingabefeld::dropEvent(QDropEvent* ereignis) {
    deselect();
    setCursorPosition(cursorPositionAt(ereignis->position().toPoint()));
    Einfuegen(ereignis->mimeData()->text());
    ereignis->setDropAction(Qt::CopyAction);
    ereignis->accept();
}

void Eingabefeld::Weiter() {
    focusNextPrevChild(true);
}

void Eingabefeld::Anspringen() {
    setFocus();
    ersteTaste_ = false;
    selectAll();
}

void Eingabefeld::focusInEvent(QFocusEvent* ereignis) {
    QLineEdit::focusInEvent(ereignis);
    if (ereignis->reason() == Qt::ActiveWindowFocusReason || ereignis->reason() == Qt::PopupFocusReason)
        return;
    ersteTaste_ = false;
    durchMausBetreten_ = ereignis->reason() == Qt::MouseFocusReason;
    selectAll();
}

void Eingabefeld::mousePressEvent(QMouseEvent* ereignis) {
    QLineEdit::mousePressEvent(ereignis);
    if (std::exchange(durchMausBetreten_, false)) selectAll();
}

void ElementAnspringen(QWidget& element) {
    if (auto* feld = qobject_cast<Eingabefeld*>(&element))
        feld->Anspringen();
    else
        element.setFocus();
}

}  // namespace zinfolio
