#include "fenster/ui/eingabefeld.h"

#include <QKeyEvent>
#include <optional>

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
    if (antwort.caretAnsEnde) end(false);
    if (antwort.naechstesFeld) Weiter();
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
