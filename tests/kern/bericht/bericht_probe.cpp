// Writes the report of a generated account to standard output, for those that read it from outside.
// Call: bericht_probe rtf|html|zellen 0|1|2|3|herleitung ROWS. The numbers are the views of an account;
// `zellen` is a line for each row of the table, the cells between tabs.

#include <iostream>
#include <span>

#include "kern/bericht/htmlbericht.h"
#include "kern/bericht/probebericht.h"
#include "kern/bericht/rtfbericht.h"

namespace {

using namespace zinfolio;

std::string Zellen(const Berichtstabelle& tabelle) {
    std::string text;
    for (std::size_t zeile = 0; zeile < tabelle.zeilen; ++zeile) {
        for (std::size_t spalte = 0; spalte < tabelle.spalten.size(); ++spalte)
            text += (spalte == 0 ? "" : "\t") + tabelle.zelle(zeile, spalte);
        text += '\n';
    }
    return text;
}

std::string Schreiben(std::string_view art, const Bericht& bericht) {
    if (art == "rtf") return RtfBericht(bericht);
    return art == "html" ? HtmlBericht(bericht) : Zellen(bericht.tabelle);
}

}  // namespace

int main(int anzahl, char** argumente) {
    const std::span<char*> worte(argumente, static_cast<std::size_t>(anzahl));
    if (worte.size() != 4) return 2;
    const std::string_view ansicht = worte[2];
    const std::size_t zeilen = std::stoul(worte[3]);
    std::cout << Schreiben(worte[1],
                           ansicht == "herleitung"
                               ? Probeherleitung(zeilen)
                               : Probekontobericht(static_cast<Kontoansicht>(ansicht[0] - '0'), zeilen));
}
