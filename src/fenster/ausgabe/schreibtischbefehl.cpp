#include "fenster/ausgabe/schreibtischbefehl.h"

#include <optional>

namespace zinfolio {
namespace {

/// A word, and whether quotes keep its codes from being codes.
struct Wort {
    std::string text;
    bool zitiert = false;
};

std::vector<Wort> Woerter(std::string_view zeile) {
    std::vector<Wort> woerter;
    std::optional<Wort> offen;
    bool zitat = false;
    for (std::size_t i = 0; i < zeile.size(); ++i) {
        char zeichen = zeile[i];
        if (zeichen == ' ' && !zitat) {
            if (offen) woerter.push_back(*offen);
            offen.reset();
            continue;
        }
        if (!offen) offen.emplace();
        if (zeichen == '"') {
            zitat = !zitat;
            offen->zitiert = true;
            continue;
        }
        if (zitat && zeichen == '\\' && i + 1 < zeile.size()) zeichen = zeile[++i];
        offen->text += zeichen;
    }
    if (offen) woerter.push_back(*offen);
    return woerter;
}

/// What a word that is a field code stands for: a file, its URL, or nothing that matters here.
std::string Platzhalter(const std::string& code) {
    if (code == "%f" || code == "%F") return "%f";
    if (code == "%u" || code == "%U") return "%u";
    return "";
}

std::string OhneDoppelteProzente(std::string text) {
    for (auto stelle = text.find("%%"); stelle != std::string::npos; stelle = text.find("%%", stelle + 1))
        text.erase(stelle, 1);
    return text;
}

}  // namespace

std::vector<std::string> BefehlZerlegen(std::string_view zeile) {
    std::vector<std::string> befehl;
    bool dateiGenannt = false;
    for (const Wort& wort : Woerter(zeile)) {
        const bool code =
            !wort.zitiert && wort.text.size() == 2 && wort.text[0] == '%' && wort.text[1] != '%';
        if (!code) {
            befehl.push_back(OhneDoppelteProzente(wort.text));
            continue;
        }
        const std::string platzhalter = Platzhalter(wort.text);
        if (!platzhalter.empty() && !dateiGenannt) {
            befehl.push_back(platzhalter);
            dateiGenannt = true;
        }
    }
    if (!befehl.empty() && !dateiGenannt) befehl.emplace_back("%f");
    return befehl;
}

}  // namespace zinfolio
