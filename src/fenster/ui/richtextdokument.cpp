#include "fenster/ui/richtextdokument.h"

#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextList>
#include <utility>

#include "fenster/ui/richtextformate.h"

namespace zinfolio {
namespace {

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
            stelle_.insertText(QString::fromStdString(lauf.text).replace('\n', QChar::LineSeparator),
                               NachQt(lauf.format));
    }

    void NeuerAbsatz() {
        // A block that follows an item would be one.
        QTextBlockFormat schlicht;
        stelle_.insertBlock(schlicht, marke_);
    }

  private:
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
        Absatz& absatz = text.absaetze.emplace_back();
        absatz.format = AbsatzformatAus(block);
        absatz.laeufe = LaeufeAus(block);
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
