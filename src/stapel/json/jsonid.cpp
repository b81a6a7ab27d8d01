#include "stapel/json/jsonid.h"

#include <simdjson.h>
#include <string_view>

#include "stapel/json/auftragsfehler.h"
#include "stapel/json/jsongrund.h"

namespace zinfolio {
namespace {

using Wert = simdjson::ondemand::value;

[[noreturn]] void IdUngueltig(std::string_view anforderung, const char* stelle) {
    throw Auftragsfehler("Das Feld \"id\" " + std::string(anforderung) + ".", stelle);
}

/// Walks over one `id`, appending what it meets.
class Idgang {
  public:
    explicit Idgang(std::string& zieltext) : ziel(zieltext) {}

    void Wertteil(Wert& wert, int tiefe) {
        const std::string_view token = wert.raw_json_token();
        if (tiefe > hoechsttiefe) IdUngueltig("ist zu tief verschachtelt", token.data());
        switch (*token.data()) {
            case '{':
                return Objekt(wert, tiefe);
            case '[':
                return Liste(wert, tiefe);
            case '"':
                return Text(wert, OhneRand(token));
            default:
                return Einfaches(OhneRand(token));
        }
    }

  private:
    void Text(Wert& wert, std::string_view token) {
        if (wert.get_string().error() != simdjson::SUCCESS) {
            IdUngueltig("enthält eine falsche Umschreibung mit \\", token.data());
        }
        ziel += token;
    }

    void Einfaches(std::string_view token) {
        const bool bekannt = token == "null" || token == "true" || token == "false" || IstJsonZahl(token);
        if (!bekannt) IdUngueltig("enthält kein gültiges JSON", token.data());
        ziel += token;
    }

    void Liste(Wert& wert, int tiefe) {
        const char* const stelle = wert.raw_json_token().data();
        simdjson::ondemand::array liste;
        if (const auto fehler = wert.get_array().get(liste)) KeinJson(fehler, stelle);
        ziel += '[';
        for (auto gelesen : liste) {
            if (const auto fehler = gelesen.error()) KeinJson(fehler, stelle);
            Wert element = gelesen.value_unsafe();
            Trenne('[');
            Wertteil(element, tiefe + 1);
        }
        ziel += ']';
    }

    void Objekt(Wert& wert, int tiefe) {
        const char* const stelle = wert.raw_json_token().data();
        simdjson::ondemand::object objekt;
        if (const auto fehler = wert.get_object().get(objekt)) KeinJson(fehler, stelle);
        ziel += '{';
        for (auto gelesen : objekt) {
            simdjson::ondemand::field feld;
            if (const auto fehler = std::move(gelesen).get(feld)) KeinJson(fehler, stelle);
            Trenne('{');
            Name(feld);
            Wertteil(feld.value(), tiefe + 1);
        }
        ziel += '}';
    }

    void Name(simdjson::ondemand::field& feld) {
        const char* const anfang = feld.key().raw();
        if (feld.unescaped_key().error() != simdjson::SUCCESS) {
            IdUngueltig("enthält eine falsche Umschreibung mit \\", anfang);
        }
        const char* ende = anfang;
        while (*ende != '"')
            ende += *ende == '\\' ? 2 : 1;
        ziel += '"';
        ziel.append(anfang, ende);
        ziel += "\":";
    }

    /// A comma, but not behind the bracket that has just been opened.
    void Trenne(char klammer) {
        if (ziel.back() != klammer) ziel += ',';
    }

    std::string& ziel;
};

}  // namespace

void IdAnhaengen(void* simdjsonwert, std::string& ziel) {
    Idgang(ziel).Wertteil(*static_cast<Wert*>(simdjsonwert), 0);
}

}  // namespace zinfolio
