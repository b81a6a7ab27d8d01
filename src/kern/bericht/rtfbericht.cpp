#include "kern/bericht/rtfbericht.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <vector>

#include "kern/bericht/seitenmass.h"
#include "kern/richtext/rtftext.h"

namespace zinfolio {
namespace {

constexpr std::string_view zeilenende = "\r\n";
constexpr std::string_view kopfrahmen = "\\clvertalb\\clbrdrb\\brdrs\\brdrw10";
/// Behind a table there is always a paragraph; this one is too small to be seen.
constexpr std::string_view schlussabsatz = "\\pard\\plain\\fs2\\par";
/// Word processors need time by the square of a table's rows, so a long one is cut where nobody sees it:
/// LibreOffice 7.4 opens 6 000 rows in 10 s instead of 53 s.
constexpr std::size_t zeilenJeTabelle = 500;

/// The fonts of a document in the order of their first use; a font is named by its place.
class Schriftentafel {
  public:
    explicit Schriftentafel(const Bericht& bericht) {
        for (const Berichtsschrift* schrift :
             {&bericht.tabelle.schrift, &bericht.tabelle.kopfschrift, &bericht.kopfblockschrift}) {
            if (std::find(namen_.begin(), namen_.end(), schrift->name) == namen_.end()) {
                namen_.push_back(schrift->name);
            }
        }
    }

    void Schreiben(std::string& rtf) const {
        rtf += "{\\fonttbl";
        for (std::size_t i = 0; i < namen_.size(); ++i) {
            const bool schreibmaschine = namen_[i].find("Courier") != std::string::npos;
            rtf += "{\\f" + std::to_string(i) + (schreibmaschine ? "\\fmodern" : "\\fswiss") + "\\fcharset0 ";
            RtfTextAnhaengen(rtf, namen_[i]);
            rtf += ";}";
        }
        rtf += '}';
    }

    /// The control words that choose a font; its size is in half points.
    [[nodiscard]] std::string Wahl(const Berichtsschrift& schrift) const {
        const auto platz = std::find(namen_.begin(), namen_.end(), schrift.name) - namen_.begin();
        return "\\f" + std::to_string(platz) + "\\fs" + std::to_string(std::lround(2 * schrift.punkte)) +
               (schrift.fett ? "\\b" : "");
    }

  private:
    std::vector<std::string> namen_;
};

void Dateikopf(std::string& rtf, const Bericht& bericht, const Schriftentafel& schriften) {
    rtf += "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1031";
    schriften.Schreiben(rtf);
    rtf += zeilenende;
    if (!bericht.titel.empty()) {
        rtf += "{\\info{\\title ";
        RtfTextAnhaengen(rtf, bericht.titel);
        rtf.append("}}").append(zeilenende);
    }
    rtf += "\\paperw" + std::to_string(Papierbreite(bericht.querformat)) + "\\paperh" +
           std::to_string(Papierhoehe(bericht.querformat)) + (bericht.querformat ? "\\landscape" : "");
    for (const char* seite : {"\\margl", "\\margr", "\\margt", "\\margb"})
        rtf += seite + std::to_string(bericht.rand);
    rtf.append(zeilenende).append("\\viewkind4\\uc1").append(zeilenende);
}

void Abschnittsanfang(std::string& rtf, const Bericht& bericht) {
    rtf.append("\\sectd").append(bericht.querformat ? "\\lndscpsect" : "");
}

void Kopfseiten(std::string& rtf, const Bericht& bericht, const Schriftentafel& schriften) {
    if (bericht.kopfblock.empty()) return;
    Abschnittsanfang(rtf, bericht);
    rtf += zeilenende;
    rtf += "\\pard\\plain" + schriften.Wahl(bericht.kopfblockschrift) + " ";
    for (const std::string& zeile : bericht.kopfblock) {
        RtfTextAnhaengen(rtf, zeile);
        rtf.append("\\par").append(zeilenende);
    }
}

std::string_view Absatz(Kopfausrichtung ausrichtung) {
    switch (ausrichtung) {
        case Kopfausrichtung::links:
            return "\\ql";
        case Kopfausrichtung::rechts:
            return "\\qr";
        case Kopfausrichtung::mitte:
            break;
    }
    return "\\qc";
}

/// What a row starts with: its columns, each with the same look.
std::string Zeilenanfang(const std::vector<int>& kanten, std::string_view merkmale, std::string_view rahmen) {
    std::string anfang = "\\trowd\\trgaph30";
    anfang += merkmale;
    for (const int kante : kanten)
        anfang.append(rahmen).append("\\cellx").append(std::to_string(kante));
    return anfang + "\\pard\\plain\\intbl";
}

void Zeilenschluss(std::string& rtf) {
    rtf.append("\\row").append(zeilenende);
}

/// A line that goes over the whole table.
void Kopflinie(std::string& rtf, std::string_view text, const std::string& schrift,
               const std::vector<int>& kanten, std::string_view merkmale) {
    rtf += Zeilenanfang({kanten.back()}, merkmale, "") + "\\ql" + schrift + " ";
    RtfTextAnhaengen(rtf, text);
    rtf += "\\cell";
    Zeilenschluss(rtf);
}

/// The page line, and the header of the table below it.
std::string Tabellenkopf(const Bericht& bericht, const std::string& schrift, const std::vector<int>& kanten,
                         std::string_view merkmale) {
    std::string rtf;
    if (!bericht.seitenzeile.empty()) Kopflinie(rtf, bericht.seitenzeile, schrift, kanten, merkmale);
    if (!HatKopf(bericht.tabelle)) return rtf;
    rtf += Zeilenanfang(kanten, merkmale, kopfrahmen) + schrift;
    for (const Berichtsspalte& spalte : bericht.tabelle.spalten) {
        rtf.append(Absatz(spalte.kopfausrichtung)).append(" ");
        RtfTextAnhaengen(rtf, spalte.kopf);
        rtf += "\\cell";
    }
    Zeilenschluss(rtf);
    return rtf;
}

/// The table stands in a section of its own. Its header is a part of the table on the first page and a page
/// header on the others: not every word processor repeats the rows that are marked for it.
void Tabellenabschnitt(std::string& rtf, const Bericht& bericht, const Schriftentafel& schriften,
                       const std::vector<int>& kanten) {
    const std::string schrift = schriften.Wahl(bericht.tabelle.kopfschrift);
    if (!bericht.kopfblock.empty()) rtf += "\\sect";
    Abschnittsanfang(rtf, bericht);
    rtf.append("\\sbkpage\\titlepg\\headery").append(std::to_string(bericht.rand)).append("{\\header");
    rtf.append(zeilenende).append(Tabellenkopf(bericht, schrift, kanten, "\\trkeep\\trhdr"));
    rtf.append(schlussabsatz).append("}").append(zeilenende);
    for (const std::string& zeile : bericht.titelzeilen)
        Kopflinie(rtf, zeile, schriften.Wahl(bericht.kopfblockschrift), kanten, "\\trkeep");
    rtf += Tabellenkopf(bericht, schrift, kanten, "\\trkeep");
}

/// False: cancelled.
bool Tabelle(Berichtsstrom& strom, const Bericht& bericht, const Schriftentafel& schriften) {
    const Berichtstabelle& tabelle = bericht.tabelle;
    const std::vector<int> kanten = Spaltenkanten(bericht);
    std::string& rtf = strom.Text();
    Tabellenabschnitt(rtf, bericht, schriften, kanten);
    const std::string anfang =
        Zeilenanfang(kanten, "\\trkeep", "") + "\\qr" + schriften.Wahl(tabelle.schrift);
    for (std::size_t zeile = 0; zeile < tabelle.zeilen; ++zeile) {
        if (zeile > 0 && zeile % zeilenJeTabelle == 0) rtf.append(schlussabsatz).append(zeilenende);
        rtf += anfang;
        for (std::size_t spalte = 0; spalte < kanten.size(); ++spalte) {
            rtf += ' ';
            RtfTextAnhaengen(rtf, tabelle.zelle(zeile, spalte));
            rtf += "\\cell";
        }
        Zeilenschluss(rtf);
        if (!strom.Zeilenende(zeile + 1)) return false;
    }
    rtf.append(schlussabsatz).append(zeilenende);
    return true;
}

}  // namespace

bool RtfBerichtSchreiben(const Bericht& bericht, const Berichtssenke& senke, const Fortschritt& fortschritt) {
    Berichtsstrom strom(senke, fortschritt, bericht.tabelle.zeilen);
    if (!strom.Beginnen()) return false;
    const Schriftentafel schriften(bericht);
    Dateikopf(strom.Text(), bericht, schriften);
    Kopfseiten(strom.Text(), bericht, schriften);
    if (!bericht.tabelle.spalten.empty() && !Tabelle(strom, bericht, schriften)) return false;
    strom.Text().append("}").append(zeilenende);
    return strom.Beenden();
}

std::string RtfBericht(const Bericht& bericht) {
    std::string rtf;
    (void)RtfBerichtSchreiben(bericht, [&](std::string_view teil) { rtf += teil; });
    return rtf;
}

}  // namespace zinfolio
