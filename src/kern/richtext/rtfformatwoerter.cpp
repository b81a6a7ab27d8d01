#include "kern/richtext/rtfformatwoerter.h"

#include <array>
#include <string_view>

#include "kern/richtext/listennummer.h"

namespace zinfolio {
namespace {

// By the numbers of their enumerations.
constexpr std::array<std::string_view, 5> unterstreichungen{"ulnone", "ul", "uld", "uldb", "ulw"};
constexpr std::array<std::string_view, 3> lagen{"nosupersub", "super", "sub"};
constexpr std::array<std::string_view, 4> ausrichtungen{"ql", "qr", "qc", "qj"};
constexpr std::array<std::string_view, 4> tabarten{"", "\\tqc", "\\tqr", "\\tqdec"};
constexpr std::array<std::string_view, 7> listenarten{"",        "",       "pndec", "pnlcltr",
                                                      "pnucltr", "pnlcrm", "pnucrm"};
constexpr std::array<std::string_view, 3> nachtexte{"{\\pntxta.}", "{\\pntxta)}", ""};

template <class Liste, class Wert>
std::string_view Von(const Liste& liste, Wert wert) {
    return liste[static_cast<std::size_t>(wert)];
}

void Wort(std::string& ziel, std::string_view wort) {
    ziel += '\\';
    ziel += wort;
}

template <class Zahl>
void Wort(std::string& ziel, std::string_view wort, Zahl zahl) {
    Wort(ziel, wort);
    ziel += std::to_string(zahl);
}

void WortSchalten(std::string& ziel, std::string_view wort, bool von, bool nach) {
    if (von == nach) return;
    Wort(ziel, wort);
    if (!nach) ziel += '0';
}

void SchreibungAnhaengen(std::string& ziel, Schreibung von, Schreibung nach) {
    if (von == nach) return;
    if (nach == Schreibung::normal) return Wort(ziel, von == Schreibung::versalien ? "caps0" : "scaps0");
    Wort(ziel, nach == Schreibung::versalien ? "caps" : "scaps");
}

void LaengeAnhaengen(std::string& ziel, std::string_view wort, std::int16_t laenge) {
    if (laenge != 0) Wort(ziel, wort, laenge);
}

void HalteAnhaengen(std::string& ziel, const Absatzformat& format) {
    WortSchalten(ziel, "keep", false, format.zusammenhalten);
    WortSchalten(ziel, "keepn", false, format.beimNaechstenHalten);
    WortSchalten(ziel, "pagebb", false, format.seitenwechselDavor);
    if (format.ohneTrennung) Wort(ziel, "hyph", 0);
}

/// Symbol has its bullet at B7.
constexpr std::string_view punkt = "\\'B7";

}  // namespace

void ZeichenwoerterAnhaengen(std::string& ziel, const Zeichenformat& von, const Zeichenformat& nach,
                             const Rtftabellen& tabellen) {
    if (von.schrift != nach.schrift) Wort(ziel, "f", tabellen.Schrift(nach.schrift));
    if (von.groesse != nach.groesse) Wort(ziel, "fs", nach.groesse);
    WortSchalten(ziel, "b", von.fett, nach.fett);
    WortSchalten(ziel, "i", von.kursiv, nach.kursiv);
    if (von.unterstreichung != nach.unterstreichung) Wort(ziel, Von(unterstreichungen, nach.unterstreichung));
    WortSchalten(ziel, "strike", von.durchgestrichen, nach.durchgestrichen);
    WortSchalten(ziel, "v", von.verborgen, nach.verborgen);
    SchreibungAnhaengen(ziel, von.schreibung, nach.schreibung);
    if (von.lage != nach.lage) Wort(ziel, Von(lagen, nach.lage));
    if (von.farbe != nach.farbe) Wort(ziel, "cf", tabellen.Farbnummer(nach.farbe));
    if (von.hintergrund != nach.hintergrund) Wort(ziel, "highlight", tabellen.Farbnummer(nach.hintergrund));
}

void AbsatzwoerterAnhaengen(std::string& ziel, const Absatzformat& format) {
    HalteAnhaengen(ziel, format);
    LaengeAnhaengen(ziel, "fi", format.ersteZeile);
    LaengeAnhaengen(ziel, "li", format.links);
    LaengeAnhaengen(ziel, "ri", format.rechts);
    LaengeAnhaengen(ziel, "sb", format.davor);
    LaengeAnhaengen(ziel, "sa", format.danach);
    LaengeAnhaengen(ziel, "sl", format.zeilenabstand);
    if (format.vielfach) Wort(ziel, "slmult", 1);
    for (const Tabulator& tabulator : format.tabulatoren) {
        ziel += Von(tabarten, tabulator.art);
        Wort(ziel, "tx", tabulator.stelle);
    }
    if (format.ausrichtung != Ausrichtung::links) Wort(ziel, Von(ausrichtungen, format.ausrichtung));
}

void ListenanfangAnhaengen(std::string& ziel, const Liste& liste, int nummer, const Rtftabellen& tabellen) {
    if (liste.art == Listenart::keine) return;
    ListenpunktAnhaengen(ziel, liste, nummer, tabellen);
    if (liste.art == Listenart::punkte) {
        ziel += "{\\*\\pn\\pnlvlblt\\pnf" + std::to_string(tabellen.Punktschrift());
        ziel += "\\pnindent0{\\pntxtb";
        ziel += punkt;
        ziel += "}}";
        return;
    }
    ziel += "{\\*\\pn\\pnlvlbody\\pnf0\\pnindent0";
    Wort(ziel, "pnstart", liste.beginn);
    Wort(ziel, Von(listenarten, liste.art));
    ziel += Von(nachtexte, liste.nach);
    ziel += '}';
}

void ListenpunktAnhaengen(std::string& ziel, const Liste& liste, int nummer, const Rtftabellen& tabellen) {
    if (liste.art == Listenart::keine) return;
    ziel += "{\\pntext";
    if (liste.art == Listenart::punkte) {
        Wort(ziel, "f", tabellen.Punktschrift());
        ziel += punkt;
    } else {
        ziel += "\\f0 " + Listennummer(liste, nummer);
    }
    ziel += "\\tab}";
}

}  // namespace zinfolio
