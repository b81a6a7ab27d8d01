#include "kern/richtext/rtftabellen.h"

#include <algorithm>
#include <array>

#include "kern/richtext/rtftext.h"

namespace zinfolio {
namespace {

struct Schriftangabe {
    std::string_view name;
    std::string_view familie;
    int zeichensatz;
};

constexpr int westlich = 0;
constexpr int bilder = 2;

// Fonts that rich text commonly names, with what a reader falls back on where it lacks them.
constexpr auto bekannte = std::to_array<Schriftangabe>({
    {"Arial", "fswiss", westlich},
    {"Arial Narrow", "fswiss", westlich},
    {"Book Antiqua", "froman", westlich},
    {"Bookman Old Style", "froman", westlich},
    {"Calibri", "fswiss", westlich},
    {"Cambria", "froman", westlich},
    {"Century Gothic", "fswiss", westlich},
    {"Comic Sans MS", "fscript", westlich},
    {"Consolas", "fmodern", westlich},
    {"Courier", "fmodern", westlich},
    {"Courier New", "fmodern", westlich},
    {"DejaVu Sans", "fswiss", westlich},
    {"DejaVu Sans Mono", "fmodern", westlich},
    {"DejaVu Serif", "froman", westlich},
    {"Garamond", "froman", westlich},
    {"Georgia", "froman", westlich},
    {"Helvetica", "fswiss", westlich},
    {"Liberation Mono", "fmodern", westlich},
    {"Liberation Sans", "fswiss", westlich},
    {"Liberation Serif", "froman", westlich},
    {"Lucida Console", "fmodern", westlich},
    {"MS Sans Serif", "fswiss", westlich},
    {"Palatino Linotype", "froman", westlich},
    {"Segoe UI", "fswiss", westlich},
    {"Tahoma", "fswiss", westlich},
    {"Times New Roman", "froman", westlich},
    {"Trebuchet MS", "fswiss", westlich},
    {"Verdana", "fswiss", westlich},
    {"Webdings", "froman", bilder},
    {"Wingdings", "fnil", bilder},
    {"Wingdings 2", "froman", bilder},
    {"Wingdings 3", "froman", bilder},
});

Schriftangabe Angabe(std::string_view name) {
    const auto gleich = [name](const Schriftangabe& eintrag) { return eintrag.name == name; };
    const auto* const fund = std::find_if(bekannte.begin(), bekannte.end(), gleich);
    return fund == bekannte.end() ? Schriftangabe{name, "fnil", westlich} : *fund;
}

void SchriftAnhaengen(std::string& ziel, std::size_t nummer, const Schriftangabe& angabe) {
    ziel += "{\\f" + std::to_string(nummer) + '\\';
    ziel += angabe.familie;
    ziel += "\\fcharset" + std::to_string(angabe.zeichensatz) + ' ';
    RtfTextAnhaengen(ziel, angabe.name);
    ziel += ";}";
}

std::uint32_t Farbwert(const Farbe& farbe) {
    return (std::uint32_t{farbe.rot} << 16U) | (std::uint32_t{farbe.gruen} << 8U) | farbe.blau;
}

}  // namespace

bool IstBilderschrift(std::string_view name) {
    return Angabe(name).zeichensatz == bilder;
}

Rtftabellen::Rtftabellen(const Richtext& text)
    : schriften_{grundschrift}, schriftnummern_{{grundschrift, 0}} {
    for (const Absatz& absatz : text.absaetze) {
        punkte_ = punkte_ || absatz.format.liste.art == Listenart::punkte;
        for (const Lauf& lauf : absatz.laeufe)
            Aufnehmen(lauf.format);
    }
}

void Rtftabellen::Aufnehmen(const Zeichenformat& format) {
    const bool neu = schriftnummern_.try_emplace(format.schrift, schriften_.size()).second;
    if (neu) schriften_.push_back(format.schrift);
    FarbeAufnehmen(format.farbe);
    FarbeAufnehmen(format.hintergrund);
}

void Rtftabellen::FarbeAufnehmen(const std::optional<Farbe>& farbe) {
    if (!farbe) return;
    const bool neu = farbnummern_.try_emplace(Farbwert(*farbe), farben_.size() + 1).second;
    if (neu) farben_.push_back(*farbe);
}

std::size_t Rtftabellen::Schrift(std::string_view name) const {
    return schriftnummern_.at(name);
}

std::size_t Rtftabellen::Farbnummer(const std::optional<Farbe>& farbe) const {
    return farbe ? farbnummern_.at(Farbwert(*farbe)) : 0;
}

void Rtftabellen::SchriftenAnhaengen(std::string& ziel) const {
    ziel += "{\\fonttbl";
    for (std::size_t nummer = 0; nummer < schriften_.size(); ++nummer)
        SchriftAnhaengen(ziel, nummer, Angabe(schriften_[nummer]));
    if (punkte_) SchriftAnhaengen(ziel, Punktschrift(), {"Symbol", "fnil", bilder});
    ziel += '}';
}

void Rtftabellen::FarbenAnhaengen(std::string& ziel) const {
    if (farben_.empty()) return;
    ziel += "{\\colortbl ;";
    for (const Farbe& farbe : farben_) {
        ziel += "\\red" + std::to_string(farbe.rot) + "\\green" + std::to_string(farbe.gruen);
        ziel += "\\blue" + std::to_string(farbe.blau) + ';';
    }
    ziel += "}\r\n";
}

}  // namespace zinfolio
