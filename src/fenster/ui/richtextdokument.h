#pragma once

#include "kern/richtext/richtext.h"

class QTextBlockFormat;
class QTextCursor;
class QTextDocument;

namespace zinfolio {

/// Makes a document show rich text, in place of what it held. Undo begins anew. Long paragraphs are laid out
/// in several blocks, which `RichtextAusDokument` takes for the one that they are.
void RichtextInDokument(const Richtext& text, QTextDocument& dokument);

/// Puts rich text in place of a cursor's selection: a single paragraph goes into the line, more of them bring
/// their own formats.
void RichtextEinfuegen(const Richtext& text, QTextCursor& stelle);

/// What a document holds, in normal form. The cells of tables become paragraphs; pictures are dropped. What
/// `RichtextInDokument` showed comes back the same.
[[nodiscard]] Richtext RichtextAusDokument(const QTextDocument& dokument);

/// The same for the selection of a cursor.
[[nodiscard]] Richtext RichtextAusAuswahl(const QTextCursor& auswahl);

/// The format of a block that begins a paragraph of its own behind one of the format given.
[[nodiscard]] QTextBlockFormat AlsNeuerAbsatz(QTextBlockFormat format);

}  // namespace zinfolio
