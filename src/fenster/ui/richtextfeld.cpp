#include "fenster/ui/richtextfeld.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>
#include <algorithm>
#include <array>
#include <optional>

#include "fenster/ui/richtextdokument.h"
#include "kern/richtext/rtflesen.h"
#include "kern/richtext/rtfschreiben.h"

namespace zinfolio {
namespace {

/// The names under which programs offer RTF. The first is the one that we offer.
constexpr std::array<const char*, 3> rtfnamen{"text/rtf", "application/rtf", "text/richtext"};

/// A document that loads nothing.
class StillesDokument : public QTextDocument {
  protected:
    QVariant loadResource(int /*art*/, const QUrl& /*name*/) override { return {}; }
};

Richtext AusHtml(const QString& html, const QFont& schrift) {
    StillesDokument dokument;
    dokument.setDefaultFont(schrift);
    dokument.setHtml(html);
    return RichtextAusDokument(dokument);
}

std::optional<Richtext> AusZwischenablage(const QMimeData& quelle, const QFont& schrift) {
    for (const char* name : rtfnamen)
        if (quelle.hasFormat(name)) return RtfLesen(quelle.data(name).toStdString());
    if (quelle.hasHtml()) return AusHtml(quelle.html(), schrift);
    return {};
}

}  // namespace

QVariant Richtextfeld::loadResource(int /*art*/, const QUrl& /*name*/) {
    // Where there is no value, the document would look for a file by itself.
    return QByteArray();
}

void Richtextfeld::keyPressEvent(QKeyEvent* ereignis) {
    const bool zurueck = ereignis->key() == Qt::Key_Backtab;
    const bool weiter = ereignis->key() == Qt::Key_Tab && ereignis->modifiers().testFlag(Qt::ControlModifier);
    if ((weiter || zurueck) && Verlassen(weiter)) return;
    const bool leererListenpunkt = textCursor().currentList() && textCursor().block().length() == 1;
    if (ereignis->matches(QKeySequence::InsertParagraphSeparator) && !leererListenpunkt)
        AbsatzBeginnen();
    else
        QTextEdit::keyPressEvent(ereignis);
}

bool Richtextfeld::Verlassen(bool weiter) {
    // As long as Tab belongs to its text, the field does not let the focus go.
    setTabChangesFocus(true);
    const bool verlassen = focusNextPrevChild(weiter);
    setTabChangesFocus(false);
    return verlassen;
}

void Richtextfeld::AbsatzBeginnen() {
    QTextCursor stelle = textCursor();
    QTextBlockFormat format = stelle.blockFormat();
    format.clearProperty(QTextFormat::PageBreakPolicy);
    stelle.insertBlock(format, stelle.charFormat());
    setTextCursor(stelle);
    ensureCursorVisible();
}

QMimeData* Richtextfeld::createMimeDataFromSelection() const {
    QMimeData* daten = QTextEdit::createMimeDataFromSelection();
    daten->setData(rtfnamen.front(),
                   QByteArray::fromStdString(RtfSchreiben(RichtextAusAuswahl(textCursor()))));
    return daten;
}

bool Richtextfeld::canInsertFromMimeData(const QMimeData* quelle) const {
    const auto hat = [quelle](const char* name) { return quelle->hasFormat(name); };
    return quelle->hasText() || quelle->hasHtml() || std::any_of(rtfnamen.begin(), rtfnamen.end(), hat);
}

void Richtextfeld::insertFromMimeData(const QMimeData* quelle) {
    const auto text = AusZwischenablage(*quelle, document()->defaultFont());
    QTextCursor stelle = textCursor();
    if (text)
        RichtextEinfuegen(*text, stelle);
    else
        stelle.insertText(quelle->text());
    setTextCursor(stelle);
    ensureCursorVisible();
}

}  // namespace zinfolio
