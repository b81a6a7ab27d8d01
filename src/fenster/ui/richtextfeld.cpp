#include "fenster/ui/richtextfeld.h"

#include <QKeyEvent>
#include <QLocale>
#include <QMimeData>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>
#include <algorithm>
#include <array>
#include <optional>

#include "fenster/ui/meldungsfenster.h"
#include "fenster/ui/richtextdokument.h"
#include "fenster/ui/richtextformate.h"
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

/// Formatted text takes a few times the room of its characters. A longer one is not looked at.
constexpr qsizetype hoechsteQuelle = 16 * static_cast<qsizetype>(hoechsteNotiz.zeichen);

Richtext AusText(const QString& text, const Zeichenformat& format) {
    Richtext schlicht{.absaetze = {}};
    for (const QStringView zeile : QStringView(text).split(u'\n')) {
        schlicht.absaetze.emplace_back();
        if (!zeile.isEmpty())
            schlicht.absaetze.back().laeufe.push_back({zeile.toUtf8().toStdString(), format});
    }
    return Normalform(std::move(schlicht));
}

/// The text that a source offers, in the richest form that we read; nothing where it is far too long.
std::optional<Richtext> AusQuelle(const QMimeData& quelle, const QFont& schrift,
                                  const Zeichenformat& format) {
    for (const char* name : rtfnamen) {
        if (!quelle.hasFormat(name)) continue;
        const QByteArray rtf = quelle.data(name);
        if (rtf.size() <= hoechsteQuelle) return RtfLesen(rtf.toStdString());
    }
    if (quelle.hasHtml() && quelle.html().size() <= hoechsteQuelle) return AusHtml(quelle.html(), schrift);
    const QString text = quelle.text();
    if (text.size() <= hoechsteQuelle) return AusText(text, format);
    return {};
}

/// What a key adds.
Richtextmass Anschlag(const QKeyEvent& taste) {
    return {.zeichen = 1, .absaetze = taste.matches(QKeySequence::InsertParagraphSeparator) ? 2U : 1U};
}

/// Whether a key puts text into the field.
bool SchreibtText(const QKeyEvent& taste) {
    return !taste.text().isEmpty() &&
           (taste.text().at(0).isPrint() || taste.matches(QKeySequence::InsertParagraphSeparator));
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
    if (SchreibtText(*ereignis) && !textCursor().hasSelection() && !HatPlatz(Anschlag(*ereignis))) return;
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
    stelle.insertBlock(AlsNeuerAbsatz(stelle.blockFormat()), stelle.charFormat());
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
    QTextCursor stelle = textCursor();
    const QFont schrift = document()->defaultFont();
    const auto text = AusQuelle(*quelle, schrift, ZeichenformatAus(stelle.charFormat(), schrift));
    if (!HatPlatz(text ? Mass(*text) : Richtextmass{.zeichen = hoechsteNotiz.zeichen + 1, .absaetze = 0}))
        return;
    RichtextEinfuegen(*text, stelle);
    setTextCursor(stelle);
    ensureCursorVisible();
}

bool Richtextfeld::HatPlatz(const Richtextmass& dazu) {
    const auto vorhanden =
        static_cast<std::size_t>(document()->characterCount() - textCursor().selectedText().size());
    const Richtextmass danach{
        .zeichen = vorhanden + dazu.zeichen,
        .absaetze = static_cast<std::size_t>(document()->blockCount()) + dazu.absaetze - 1};
    if (PasstIn(danach, hoechsteNotiz)) return true;
    MeldungZeigen(
        window(),
        {.text =
             QString(
                 "So viel Text passt nicht in die Notizen. Sie fassen %1 Zeichen und %2 Absätze. Der Text "
                 "bleibt, wie er war.")
                 .arg(QLocale(QLocale::German).toString(qulonglong(hoechsteNotiz.zeichen)),
                      QLocale(QLocale::German).toString(qulonglong(hoechsteNotiz.absaetze)))});
    return false;
}

}  // namespace zinfolio
