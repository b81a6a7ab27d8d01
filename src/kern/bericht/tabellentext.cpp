#include "kern/bericht/tabellentext.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "kern/grund/utf8.h"

namespace zinfolio {
namespace {

using Zeile = std::vector<std::string>;

/// The header and the rows.
std::vector<Zeile> Zellen(const Tabelleninhalt& tabelle) {
    std::vector<Zeile> zeilen(1);
    for (const Tabellenspalte& spalte : tabelle.spalten)
        zeilen.front().push_back(spalte.kopf);
    for (std::size_t nummer = 0; nummer < tabelle.zeilen; ++nummer) {
        Zeile& zeile = zeilen.emplace_back();
        for (std::size_t spalte = 0; spalte < tabelle.spalten.size(); ++spalte)
            zeile.push_back(tabelle.zelle(nummer, spalte));
    }
    return zeilen;
}

/// One line: control characters become blanks, and several blanks become one.
std::string Einzeilig(std::string_view text) {
    std::string einzeilig;
    for (const char zeichen : text) {
        const char gezeigtes = static_cast<unsigned char>(zeichen) < 0x20 || zeichen == 0x7F ? ' ' : zeichen;
        if (gezeigtes != ' ' || !einzeilig.ends_with(' ')) einzeilig += gezeigtes;
    }
    return einzeilig;
}

std::vector<std::size_t> Breiten(const std::vector<Zeile>& zeilen) {
    std::vector<std::size_t> breiten(zeilen.front().size());
    for (const Zeile& zeile : zeilen)
        for (std::size_t i = 0; i < zeile.size(); ++i)
            breiten[i] = std::max(breiten[i], Zeichenzahl(zeile[i]));
    return breiten;
}

void FeldAnfuegen(std::string& text, std::string_view feld) {
    if (feld.find_first_of(";\"\r\n") == std::string_view::npos) {
        text += feld;
        return;
    }
    text += '"';
    for (const char zeichen : feld)
        text.append(zeichen == '"' ? 2 : 1, zeichen);
    text += '"';
}

}  // namespace

std::string TabelleAlsText(const Tabelleninhalt& tabelle) {
    constexpr std::string_view zwischenraum = "  ";
    std::vector<Zeile> zeilen = Zellen(tabelle);
    for (Zeile& zeile : zeilen)
        std::ranges::transform(zeile, zeile.begin(), Einzeilig);
    const std::vector<std::size_t> breiten = Breiten(zeilen);
    std::string text;
    for (const Zeile& zeile : zeilen) {
        for (std::size_t i = 0; i < zeile.size(); ++i) {
            const std::string luecke(breiten[i] - Zeichenzahl(zeile[i]), ' ');
            const bool links = tabelle.spalten[i].art != Zellart::zahl;
            if (i > 0) text += zwischenraum;
            text += links ? zeile[i] + luecke : luecke + zeile[i];
        }
        text += '\n';
    }
    return text;
}

std::string TabelleAlsCsv(const Tabelleninhalt& tabelle) {
    std::string text;
    for (const Zeile& zeile : Zellen(tabelle)) {
        for (std::size_t i = 0; i < zeile.size(); ++i) {
            if (i > 0) text += ';';
            FeldAnfuegen(text, zeile[i]);
        }
        text += '\n';
    }
    return text;
}

}  // namespace zinfolio
