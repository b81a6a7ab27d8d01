#include "stapel/json/auftragsfehler.h"

#include <simdjson.h>

#include "kern/grund/utf8.h"

namespace zinfolio {
namespace {

constexpr std::size_t hoechstlaenge = 60;

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

std::string Feldpfad::Text() const {
    if (eltern == nullptr) return {};
    std::string text = eltern->Text();
    if (name.data() == nullptr) return text + "[" + std::to_string(index) + "]";
    if (!text.empty()) text += '.';
    return text + Gekuerzt(name, hoechstlaenge);
}

}  // namespace zinfolio
