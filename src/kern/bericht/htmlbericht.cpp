#include "kern/bericht/htmlbericht.h"

#include <algorithm>
#include <charconv>
#include <string_view>
#include <vector>

#include "kern/bericht/htmltext.h"
#include "kern/bericht/seitenmass.h"

namespace zinfolio {
namespace {

std::string Dezimal(double zahl) {
    char puffer[32];
    return {puffer, std::to_chars(puffer, puffer + sizeof puffer, zahl).ptr};
}

std::string Punkte(int twips) {
    return Dezimal(twips / 20.0) + "pt";
}

/// A font as a rule of the style sheet. Of its name counts what a quoted text holds without escapes.
std::string Schriftregel(const Berichtsschrift& schrift) {
    std::string name = schrift.name;
    std::erase_if(name, [](char zeichen) {
        return static_cast<unsigned char>(zeichen) < ' ' ||
               std::string_view("\"\\<>&").find(zeichen) != std::string_view::npos;
    });
    const bool schreibmaschine = name.find("Courier") != std::string::npos;
    return (schrift.fett ? "font: bold " : "font: ") + Dezimal(schrift.punkte) + "pt \"" + name + "\", " +
           (schreibmaschine ? "monospace" : "sans-serif");
}

/// The look: on paper as the report tells, on the screen light or dark as the reader has it.
std::string Stilvorlage(const Bericht& bericht, int tabellenbreite) {
    const Berichtstabelle& tabelle = bericht.tabelle;
    return ":root { color-scheme: light dark; }\n"
           "@page { size: A4 " +
           std::string(bericht.querformat ? "landscape" : "portrait") + "; margin: " + Punkte(bericht.rand) +
           "; }\n"
           "body { margin: 1.5rem; }\n"
           "pre { margin: 0 0 1.5rem; " +
           Schriftregel(bericht.kopfblockschrift) +
           "; }\n"
           "table { table-layout: fixed; width: " +
           Punkte(tabellenbreite) + "; border-collapse: collapse; " + Schriftregel(tabelle.schrift) +
           "; font-variant-numeric: tabular-nums; }\n"
           "thead { display: table-header-group; position: sticky; top: 0; background: Canvas; }\n"
           "th { " +
           Schriftregel(tabelle.kopfschrift) +
           "; text-align: center; vertical-align: bottom; border-bottom: 0.75pt solid; }\n"
           "caption { " +
           Schriftregel(bericht.kopfblockschrift) +
           "; text-align: left; padding: 1pt 2pt; white-space: pre-wrap; }\n"
           "th.seitenzeile { text-align: left; border: 0; }\n"
           "th, td { padding: 1pt 2pt; white-space: pre-wrap; overflow-wrap: anywhere; }\n"
           "td { text-align: right; vertical-align: top; border-bottom: 0.5pt solid rgb(128 128 128 / 0.3); "
           "}\n"
           "tr { break-inside: avoid; }\n"
           "@media print {\n"
           "  :root { color-scheme: light; }\n"
           "  body { margin: 0; }\n"
           "  pre { margin: 0; }\n"
           "  pre + table { break-before: page; }\n"
           "}\n";
}

void Dateikopf(std::string& html, const Bericht& bericht, int tabellenbreite) {
    html +=
        "<!DOCTYPE html>\n<html lang=\"de\">\n<head>\n<meta charset=\"utf-8\">\n"
        "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>";
    HtmlTextAnhaengen(html, bericht.titel.empty() ? "Bericht" : bericht.titel);
    html += "</title>\n<style>\n" + Stilvorlage(bericht, tabellenbreite) + "</style>\n</head>\n<body>\n";
}

void Kopfseiten(std::string& html, const Bericht& bericht) {
    if (bericht.kopfblock.empty()) return;
    // A line end right behind the tag does not count, so that the first line may be an empty one.
    html += "<pre>\n";
    for (const std::string& zeile : bericht.kopfblock) {
        HtmlTextAnhaengen(html, zeile);
        html += '\n';
    }
    html += "</pre>\n";
}

void Titel(std::string& html, const std::vector<std::string>& zeilen) {
    if (zeilen.empty()) return;
    html += "<caption>";
    for (std::size_t i = 0; i < zeilen.size(); ++i) {
        if (i > 0) html += '\n';
        HtmlTextAnhaengen(html, zeilen[i]);
    }
    html += "</caption>\n";
}

void Spaltengruppe(std::string& html, const std::vector<int>& kanten) {
    html += "<colgroup>";
    int links = 0;
    for (const int kante : kanten) {
        html += "<col style=\"width: " + Punkte(kante - links) + "\">";
        links = kante;
    }
    html += "</colgroup>\n";
}

std::string_view Kopfzelle(Kopfausrichtung ausrichtung) {
    switch (ausrichtung) {
        case Kopfausrichtung::links:
            return "<th scope=\"col\" style=\"text-align: left\">";
        case Kopfausrichtung::rechts:
            return "<th scope=\"col\" style=\"text-align: right\">";
        case Kopfausrichtung::mitte:
            break;
    }
    return "<th scope=\"col\">";
}

void Tabellenkopf(std::string& html, const Bericht& bericht) {
    html += "<thead>\n";
    if (!bericht.seitenzeile.empty()) {
        html += "<tr><th class=\"seitenzeile\" colspan=\"" + std::to_string(bericht.tabelle.spalten.size()) +
                "\">";
        HtmlTextAnhaengen(html, bericht.seitenzeile);
        html += "</th></tr>\n";
    }
    if (HatKopf(bericht.tabelle)) {
        html += "<tr>";
        for (const Berichtsspalte& spalte : bericht.tabelle.spalten) {
            html += Kopfzelle(spalte.kopfausrichtung);
            HtmlTextAnhaengen(html, spalte.kopf);
            html += "</th>";
        }
        html += "</tr>\n";
    }
    html += "</thead>\n";
}

/// False: cancelled.
bool Tabelle(Berichtsstrom& strom, const Bericht& bericht, const std::vector<int>& kanten) {
    std::string& html = strom.Text();
    html += "<table>\n";
    Titel(html, bericht.titelzeilen);
    Spaltengruppe(html, kanten);
    Tabellenkopf(html, bericht);
    html += "<tbody>\n";
    for (std::size_t zeile = 0; zeile < bericht.tabelle.zeilen; ++zeile) {
        html += "<tr>";
        for (std::size_t spalte = 0; spalte < kanten.size(); ++spalte) {
            html += "<td>";
            HtmlTextAnhaengen(html, bericht.tabelle.zelle(zeile, spalte));
            html += "</td>";
        }
        html += "</tr>\n";
        if (!strom.Zeilenende(zeile + 1)) return false;
    }
    html += "</tbody>\n</table>\n";
    return true;
}

}  // namespace

bool HtmlBerichtSchreiben(const Bericht& bericht, const Berichtssenke& senke,
                          const Fortschritt& fortschritt) {
    Berichtsstrom strom(senke, fortschritt, bericht.tabelle.zeilen);
    if (!strom.Beginnen()) return false;
    const std::vector<int> kanten = Spaltenkanten(bericht);
    Dateikopf(strom.Text(), bericht, kanten.empty() ? 0 : kanten.back());
    Kopfseiten(strom.Text(), bericht);
    if (!kanten.empty() && !Tabelle(strom, bericht, kanten)) return false;
    strom.Text() += "</body>\n</html>\n";
    return strom.Beenden();
}

std::string HtmlBericht(const Bericht& bericht) {
    std::string html;
    (void)HtmlBerichtSchreiben(bericht, [&](std::string_view teil) { html += teil; });
    return html;
}

}  // namespace zinfolio
