// Writes a report to standard output, for those that read it from outside.
// Call: bericht_probe rtf|html|zellen KIND PAYMENTS; `zellen` is a line for each row of the grid, the cells
// between tabs. Or bericht_probe namen, which lists the kinds.

#include <iostream>
#include <span>

#include "kern/bericht/htmlbericht.h"
#include "kern/bericht/proben/proben.h"
#include "kern/bericht/rtfbericht.h"

namespace {

using namespace zinfolio;

std::vector<Probenart> Alle() {
    std::vector<Probenart> arten;
    for (const auto& teil : {Kontoproben(), Sparproben(), Allroundproben(), Tabellenproben()})
        arten.insert(arten.end(), teil.begin(), teil.end());
    return arten;
}

std::string Zellen(const Tabelleninhalt& tabelle) {
    std::string text;
    for (std::size_t zeile = 0; zeile < tabelle.zeilen; ++zeile) {
        for (std::size_t spalte = 0; spalte < tabelle.spalten.size(); ++spalte)
            text += (spalte == 0 ? "" : "\t") + tabelle.zelle(zeile, spalte);
        text += '\n';
    }
    return text;
}

std::string Schreiben(std::string_view format, const Berichtsprobe& probe) {
    if (format == "rtf") return RtfBericht(probe.bericht);
    return format == "html" ? HtmlBericht(probe.bericht) : Zellen(probe.gitter);
}

}  // namespace

int main(int anzahl, char** argumente) {
    const std::vector<std::string_view> worte(argumente, argumente + anzahl);
    if (worte.size() == 2 && worte[1] == "namen") {
        for (const Probenart& art : Alle())
            std::cout << art.name << '\n';
        return 0;
    }
    if (worte.size() != 4) return 2;
    const std::size_t zahlungen = std::stoul(argumente[3]);
    if (worte[1] == "text") {
        std::cout << Spartextprobe(zahlungen);
        return 0;
    }
    for (const Probenart& art : Alle()) {
        if (art.name != worte[2]) continue;
        std::cout << Schreiben(worte[1], art.bilden(zahlungen));
        return 0;
    }
    return 2;
}
