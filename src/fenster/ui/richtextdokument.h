#pragma once

#include "kern/richtext/richtext.h"

class QTextCursor;
class QTextDocument;

namespace zinfolio {

/// Makes a document show rich text, in place of what it held. Undo begins anew.
void RichtextInDokument(const Richtext& text, QTextDocument& dokument);

/// Puts rich text in place of a cursor's selection: a single paragraph goes into the line, more of them bring
/// their own formats.
void RichtextEinfuegen(const Richtext& text, QTextCursor& stelle);

/// What a document holds, in normal form. The cells of tables become paragraphs; pictures are dropped. What
/// `RichtextInDokument` showed comes back the same.
[[nodiscard]] Richtext RichtextAusDokument(const QTextDocument& dokument);

/// The same for the selection of a cursor.
[[nodiscard]] Richtext RichtextAusAuswahl(const QTextCursor& auswahl);

}  // namespace zinfolio
