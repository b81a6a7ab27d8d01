#include "stapel/json/jsongrund.h"

#include <simdjson.h>

#include "kern/dates/textteile.h"
#include "stapel/json/auftragsfehler.h"

namespace zinfolio {
namespace {

/// Takes a run of digits from the front; false where there is none.
bool NimmZiffern(std::string_view& text) {
    std::size_t anzahl = 0;
    while (anzahl < text.size() && IstZiffer(text[anzahl]))
        ++anzahl;
    text.remove_prefix(anzahl);
    return anzahl > 0;
}

bool NimmEines(std::string_view& text, std::string_view zeichen) {
    if (text.empty() || zeichen.find(text.front()) == std::string_view::npos) return false;
    text.remove_prefix(1);
    return true;
}

}  // namespace

std::string_view JsonGrund(int fehlercode) {
    switch (fehlercode) {
        case simdjson::UTF8_ERROR:
            return "die Bytes sind kein UTF-8";
        case simdjson::UNESCAPED_CHARS:
            return "ein Text enthält ein Steuerzeichen";
        case simdjson::UNCLOSED_STRING:
            return "ein Text ist nicht abgeschlossen";
        case simdjson::STRING_ERROR:
            return "ein Text enthält eine falsche Umschreibung mit \\";
        case simdjson::EMPTY:
            return "es steht nichts da";
        default:
            return "Klammern, Kommas, Doppelpunkte oder Werte stehen falsch";
    }
}

void KeinJson(int fehlercode, const char* stelle) {
    throw Auftragsfehler("Der Auftrag ist kein gültiges JSON: " + std::string(JsonGrund(fehlercode)) + ".",
                         stelle);
}

bool IstJsonZahl(std::string_view text) {
    NimmEines(text, "-");
    if (!NimmEines(text, "0") && !NimmZiffern(text)) return false;
    if (NimmEines(text, ".") && !NimmZiffern(text)) return false;
    if (NimmEines(text, "eE")) {
        NimmEines(text, "+-");
        if (!NimmZiffern(text)) return false;
    }
    return text.empty();
}

std::string_view OhneRand(std::string_view token) {
    const auto letztes = token.find_last_not_of(" \t\r\n");
    return token.substr(0, letztes == std::string_view::npos ? 0 : letztes + 1);
}

}  // namespace zinfolio
