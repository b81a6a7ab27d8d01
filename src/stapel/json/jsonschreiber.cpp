#include "stapel/json/jsonschreiber.h"

#include <array>
#include <cmath>
#include <utility>

#include "kern/grund/rechenfehler.h"
#include "stapel/json/jsonzahl.h"

namespace zinfolio {
namespace {

bool BrauchtUmschreibung(char zeichen) {
    return static_cast<unsigned char>(zeichen) < 0x20 || zeichen == '"' || zeichen == '\\';
}

void Umschreiben(char zeichen, std::string& ziel) {
    constexpr std::string_view hex = "0123456789abcdef";
    switch (zeichen) {
        case '"':
        case '\\':
            ziel += '\\';
            ziel += zeichen;
            return;
        case '\n':
            ziel += "\\n";
            return;
        case '\r':
            ziel += "\\r";
            return;
        case '\t':
            ziel += "\\t";
            return;
        default:
            ziel += "\\u00";
            ziel += hex[static_cast<unsigned char>(zeichen) >> 4U];
            ziel += hex[static_cast<unsigned char>(zeichen) & 0xFU];
    }
}

class Einzug {
  public:
    explicit Einzug(std::string_view text) : json(text) {}

    std::string Ausfuehren() {
        while (stelle < json.size())
            Zeichen(json[stelle]);
        return std::move(ziel);
    }

  private:
    void Zeichen(char zeichen) {
        switch (zeichen) {
            case '"':
                return Text();
            case '{':
            case '[':
                return Auf(zeichen);
            case '}':
            case ']':
                --tiefe;
                NeueZeile();
                break;
            default:
                break;
        }
        ziel += zeichen;
        ++stelle;
        if (zeichen == ',') NeueZeile();
        if (zeichen == ':') ziel += ' ';
    }

    void Auf(char zeichen) {
        ziel += zeichen;
        const char naechstes = json[++stelle];
        if (naechstes == '}' || naechstes == ']') {
            ziel += naechstes;
            ++stelle;
            return;
        }
        ++tiefe;
        NeueZeile();
    }

    void Text() {
        std::size_t ende = stelle + 1;
        while (json[ende] != '"')
            ende += json[ende] == '\\' ? 2 : 1;
        ziel += json.substr(stelle, ende + 1 - stelle);
        stelle = ende + 1;
    }

    void NeueZeile() {
        ziel += '\n';
        ziel.append(2 * tiefe, ' ');
    }

    std::string_view json;
    std::string ziel;
    std::size_t stelle = 0;
    std::size_t tiefe = 0;
};

}  // namespace

void JsonSchreiber::Name(std::string_view name) {
    Trenne();
    ziel += '"';
    ziel += name;
    ziel += "\":";
    komma = false;
}

void JsonSchreiber::Wert(double zahl) {
    if (!std::isfinite(zahl)) throw Rechenfehler("Ein Ergebnis ist keine endliche Zahl.");
    Trenne();
    std::array<char, zahlbreite> puffer;  // NOLINT(cppcoreguidelines-pro-type-member-init): filled at once
    ziel.append(puffer.data(), ZahlSchreiben(puffer.data(), zahl));
}

void JsonSchreiber::Wert(std::int64_t zahl) {
    Trenne();
    std::array<char, zahlbreite> puffer;  // NOLINT(cppcoreguidelines-pro-type-member-init): filled at once
    ziel.append(puffer.data(), GanzzahlSchreiben(puffer.data(), zahl));
}

void JsonSchreiber::Wert(std::string_view text) {
    Trenne();
    ziel += '"';
    std::size_t anfang = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (!BrauchtUmschreibung(text[i])) continue;
        ziel += text.substr(anfang, i - anfang);
        Umschreiben(text[i], ziel);
        anfang = i + 1;
    }
    ziel += text.substr(anfang);
    ziel += '"';
}

std::string JsonEingezogen(std::string_view json) {
    return Einzug(json).Ausfuehren();
}

}  // namespace zinfolio
