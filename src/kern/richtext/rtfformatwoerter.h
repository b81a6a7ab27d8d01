#pragma once
// Formats as the words of a rich-text file. The blank that ends the last word is left to the caller.

#include <string>

#include "kern/richtext/rtftabellen.h"

namespace zinfolio {

/// The words that lead from one format of characters to another; none for equal ones.
void ZeichenwoerterAnhaengen(std::string& ziel, const Zeichenformat& von, const Zeichenformat& nach,
                             const Rtftabellen& tabellen);

/// The words of a paragraph behind `\pard`: what differs from a paragraph without a format, but not its list.
void AbsatzwoerterAnhaengen(std::string& ziel, const Absatzformat& format);

/// The groups before the first item of a list: its bullet or number, and what kind of list it is.
void ListenanfangAnhaengen(std::string& ziel, const Liste& liste, int nummer, const Rtftabellen& tabellen);

/// The group before each further item of a list; nothing where there is no list.
void ListenpunktAnhaengen(std::string& ziel, const Liste& liste, int nummer, const Rtftabellen& tabellen);

}  // namespace zinfolio
