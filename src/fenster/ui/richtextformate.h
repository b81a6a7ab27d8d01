#pragma once
// Formats of rich text as the toolkit holds them, and back. What the toolkit has no place for travels in
// properties of our own, so that nothing is lost on the way through a document.

#include <QTextBlock>
#include <QTextFormat>

#include "kern/richtext/richtext.h"

namespace zinfolio {

[[nodiscard]] QTextCharFormat NachQt(const Zeichenformat& format);
/// The document's font stands in for what the format does not tell.
[[nodiscard]] Zeichenformat ZeichenformatAus(const QTextCharFormat& format, const QFont& schrift);

[[nodiscard]] QTextBlockFormat NachQt(const Absatzformat& format);
[[nodiscard]] Absatzformat AbsatzformatAus(const QTextBlock& block);

/// REQUIRES: the list is one.
[[nodiscard]] QTextListFormat NachQt(const Liste& liste);

}  // namespace zinfolio
