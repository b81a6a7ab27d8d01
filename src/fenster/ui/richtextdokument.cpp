#include "fenster/ui/richtextdokument.h"

#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextList>
#include <iterator>
#include <utility>

#include "fenster/ui/richtextformate.h"

namespace zinfolio {
namespace {

/// Marks a block that goes on with the paragraph of the block before it.
constexpr int fortsetzung = QTextFormat::UserProperty + 1;

/// The toolkit lays out a block as a whole, in time that grows with the square of its length: a longer
/// paragraph is cut into blocks of about so many characters, behind a blank where there is one.
constexpr qsizetype hoechsteBlocklaenge = 2000;
constexpr qsizetype kuerzesteBlocklaenge = 1500;

/// How much of a text goes into a block that has room for `platz` characters.
qsizetype Blockende(QStringView text, qsizetype platz) {
    if (text.size() <= platz) return text.size();
    const qsizetype leerzeichen = text.lastIndexOf(' ', platz - 1);
    if (leerzeichen >= kuerzesteBlocklaenge) return leerzeichen + 1;
    return text.at(platz - 1).isHighSurrogate() ? platz - 1 : platz;
}

/// Writes paragraphs one behind the other and gathers the items of each list.
class Absatzschreiber {
  public:
    explicit Absatzschreiber(QTextCursor& stelle) : stelle_(stelle) {}

    void FormatSetzen(const Absatzformat& format) {
        stelle_.setBlockFormat(NachQt(format));
        if (format.liste.art == Listenart::keine)
            liste_ = nullptr;
        else if (liste_ && vorige_ == format.liste)
            liste_->add(stelle_.block());
        else
            liste_ = stelle_.createList(NachQt(format.liste));
        vorige_ = format.liste;
    }

    /// An empty paragraph takes up the format of the text before it.
    void TextSchreiben(const Absatz& absatz) {
        if (!absatz.laeufe.empty()) marke_ = NachQt(absatz.laeufe.back().format);
        if (stelle_.block().length() == 1) stelle_.setBlockCharFormat(marke_);
        for (const Lauf& lauf : absatz.laeufe)
            LaufSchreiben(QString::fromStdString(lauf.text).replace('\n', QChar::LineSeparator),
                          NachQt(lauf.format));
    }

    void NeuerAbsatz() {
        // A block that follows an item would be one.
        QTextBlockFormat schlicht;
        stelle_.insertBlock(schlicht, marke_);
    }

  private:
    void LaufSchreiben(const QString& text, const QTextCharFormat& format) {
        for (QStringView rest = text; !rest.isEmpty();) {
            const qsizetype platz = hoechsteBlocklaenge - stelle_.positionInBlock();
            const qsizetype ende = platz > 1 ? Blockende(rest, platz) : 0;
            stelle_.insertText(rest.first(ende).toString(), format);
            rest = rest.sliced(ende);
            if (!rest.isEmpty()) FortsetzungBeginnen(format);
        }
    }

    void FortsetzungBeginnen(const QTextCharFormat& format) {
        QTextBlockFormat weiter = stelle_.blockFormat();
        weiter.setProperty(fortsetzung, true);
        weiter.setObjectIndex(-1);
        weiter.setTextIndent(0);
        weiter.setTopMargin(0);
        stelle_.insertBlock(weiter, format);
    }

    QTextCursor& stelle_;
    QTextCharFormat marke_ = NachQt(Zeichenformat{});
    QTextList* liste_ = nullptr;
    Liste vorige_;
};

std::vector<Lauf> LaeufeAus(const QTextBlock& block) {
    const QFont schrift = block.document()->defaultFont();
    std::vector<Lauf> laeufe;
    for (auto stueck = block.begin(); !stueck.atEnd(); ++stueck) {
        const QTextFragment fragment = stueck.fragment();
        laeufe.push_back({.text = fragment.text().toStdString(),
                          .format = ZeichenformatAus(fragment.charFormat(), schrift)});
    }
    return laeufe;
}

}  // namespace

QTextBlockFormat AlsNeuerAbsatz(QTextBlockFormat format) {
    format.clearProperty(fortsetzung);
    format.clearProperty(QTextFormat::PageBreakPolicy);
    return format;
}

void RichtextInDokument(const Richtext& text, QTextDocument& dokument) {
    dokument.setUndoRedoEnabled(false);
    dokument.clear();
    QTextCursor stelle(&dokument);
    stelle.beginEditBlock();
    Absatzschreiber schreiber(stelle);
    bool erster = true;
    for (const Absatz& absatz : text.absaetze) {
        if (!std::exchange(erster, false)) schreiber.NeuerAbsatz();
        schreiber.FormatSetzen(absatz.format);
        schreiber.TextSchreiben(absatz);
    }
    stelle.endEditBlock();
    dokument.setUndoRedoEnabled(true);
    dokument.setModified(false);
}

void RichtextEinfuegen(const Richtext& text, QTextCursor& stelle) {
    stelle.beginEditBlock();
    stelle.removeSelectedText();
    Absatzschreiber schreiber(stelle);
    const bool inDerZeile = text.absaetze.size() == 1 || stelle.block().length() > 1;
    bool erster = true;
    for (const Absatz& absatz : text.absaetze) {
        const bool fortgesetzt = std::exchange(erster, false);
        if (!fortgesetzt) schreiber.NeuerAbsatz();
        if (!fortgesetzt || !inDerZeile) schreiber.FormatSetzen(absatz.format);
        schreiber.TextSchreiben(absatz);
    }
    stelle.endEditBlock();
}

Richtext RichtextAusDokument(const QTextDocument& dokument) {
    Richtext text{.absaetze = {}};
    for (QTextBlock block = dokument.begin(); block.isValid(); block = block.next()) {
        std::vector<Lauf> laeufe = LaeufeAus(block);
        if (!block.blockFormat().boolProperty(fortsetzung) || text.absaetze.empty())
            text.absaetze.push_back({.format = AbsatzformatAus(block), .laeufe = {}});
        std::vector<Lauf>& ziel = text.absaetze.back().laeufe;
        ziel.insert(ziel.end(), std::make_move_iterator(laeufe.begin()),
                    std::make_move_iterator(laeufe.end()));
    }
    return Normalform(std::move(text));
}

Richtext RichtextAusAuswahl(const QTextCursor& auswahl) {
    QTextDocument kopie;
    kopie.setDefaultFont(auswahl.document()->defaultFont());
    QTextCursor(&kopie).insertFragment(auswahl.selection());
    return RichtextAusDokument(kopie);
}

}  // namespace zinfolio
