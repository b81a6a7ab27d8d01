#include "stapel/json/jsonleser.h"

#include <bit>
#include <simdjson.h>

namespace zinfolio {

static_assert(nachlauf >= simdjson::SIMDJSON_PADDING);

namespace {

constexpr std::size_t mindestplatz = std::size_t{1} << 14;
/// Memory for a longer job is given back by the next short one.
constexpr std::size_t dauerplatz = std::size_t{1} << 20;

void OhneBytefolgezeichen(std::string_view& text) {
    constexpr std::string_view zeichen = "\xEF\xBB\xBF";
    if (text.starts_with(zeichen)) text.remove_prefix(zeichen.size());
}

using Wert = simdjson::ondemand::value;

[[noreturn]] void IdUngueltig(std::string_view anforderung, const char* stelle) {
    throw Auftragsfehler("Das Feld \"id\" " + std::string(anforderung) + ".", stelle);
}

/// Walks over one `id`, appending the JSON as it was written, without white space between its parts, and
/// checks every part of it.
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

/// Picks the head out of the fields. A field that comes again is left to the second reading, which refuses
/// it.
struct Kopfsuche {
    explicit Kopfsuche(Auftragskopf& ziel) : kopf(ziel) {}

    void Pruefe(simdjson::ondemand::field& feld) {
        const char* const stelle = feld.key().raw();
        std::string_view name;
        if (const auto fehler = feld.unescaped_key().get(name)) KeinJson(fehler, stelle);
        if (name == "id" && !idGelesen) {
            std::string id;
            Idgang(id).Wertteil(feld.value(), 0);
            kopf.id = std::move(id);
            idGelesen = true;
        } else if (name == "rechnung" && !kopf.rechnung) {
            std::string_view rechnung;
            if (feld.value().get_string().get(rechnung) == simdjson::SUCCESS) {
                kopf.rechnung = rechnung;
            } else {
                rechnungOhneText = stelle;
            }
        }
    }

    Auftragskopf& kopf;
    bool idGelesen = false;
    const char* rechnungOhneText = nullptr;
};

}  // namespace

struct JsonLeser::Kern {
    simdjson::ondemand::parser parser;
    simdjson::ondemand::document dokument;
    const char* anfang = nullptr;

    void Platz(std::size_t bedarf) {
        if (parser.capacity() > dauerplatz && bedarf <= mindestplatz) parser = simdjson::ondemand::parser();
        if (parser.capacity() >= bedarf && parser.capacity() > 0) return;
        const auto fehler = parser.allocate(std::bit_ceil(std::max(bedarf, mindestplatz)));
        if (fehler != simdjson::SUCCESS) KeinJson(fehler, anfang);
    }

    /// Where reading has stopped, as far as it can be told.
    [[nodiscard]] const char* Ort() {
        const char* ort = nullptr;
        return dokument.current_location().get(ort) == simdjson::SUCCESS ? ort : anfang;
    }
};

JsonLeser::JsonLeser() : kern(std::make_unique<Kern>()) {}
JsonLeser::~JsonLeser() = default;

void JsonLeser::Oeffnen(std::string_view text) {
    OhneBytefolgezeichen(text);
    kern->anfang = text.data();
    kern->Platz(text.size());
    const simdjson::padded_string_view sicht(text.data(), text.size(), text.size() + nachlauf);
    if (const auto fehler = kern->parser.iterate(sicht).get(kern->dokument)) KeinJson(fehler, text.data());
}

void JsonLeser::KopfLesen(Auftragskopf& kopf) {
    // Not the document's own get_object: that one looks at the end of the text first, and a job that is cut
    // off or goes on behind its end could not be told by its id.
    simdjson::ondemand::value wurzel;
    simdjson::ondemand::object objekt;
    auto kein = kern->dokument.get_value().get(wurzel);
    if (kein == simdjson::SUCCESS) kein = wurzel.get_object().get(objekt);
    if (kein != simdjson::SUCCESS) throw Auftragsfehler("Der Auftrag ist kein JSON-Objekt.", kern->anfang);
    Kopfsuche suche(kopf);
    for (auto gelesen : objekt) {
        simdjson::ondemand::field feld;
        if (const auto fehler = std::move(gelesen).get(feld)) KeinJson(fehler, kern->Ort());
        suche.Pruefe(feld);
    }
    if (suche.rechnungOhneText != nullptr) {
        throw Auftragsfehler("Das Feld \"rechnung\" muss ein Text sein.", suche.rechnungOhneText);
    }
    const char* rest = nullptr;
    if (kern->dokument.current_location().get(rest) == simdjson::SUCCESS) {
        throw Auftragsfehler("Hinter dem Auftrag steht noch etwas.", rest);
    }
}

void JsonLeser::AuftragLesen(Rueckruf<void(JsonWert&)> rueckruf) {
    kern->dokument.rewind();
    simdjson::ondemand::value wurzel;
    if (const auto fehler = kern->dokument.get_value().get(wurzel)) KeinJson(fehler, kern->anfang);
    JsonWert auftrag(&wurzel, {});
    rueckruf(auftrag);
}

}  // namespace zinfolio
