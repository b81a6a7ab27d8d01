#include "stapel/json/jsoneinzug.h"

#include <utility>

namespace zinfolio {
namespace {

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

std::string JsonEingezogen(std::string_view json) {
    return Einzug(json).Ausfuehren();
}

}  // namespace zinfolio
