#include "stapel/befehle/eingaben.h"

#include "kern/dateien/csvlesen.h"
#include "stapel/befehle/kanal.h"

namespace zinfolio {
namespace {

/// Far more than any account.
constexpr std::size_t hoechsteTabellenlaenge = std::size_t{32} << 20;

}  // namespace

std::string Eingabename(const std::string& datei) {
    return datei == "-" ? "Standardeingabe" : datei;
}

std::vector<Staffelsatz> TabelleLesen(const std::string& datei,
                                      std::vector<Staffelsatz> (*lesen)(std::string_view text)) {
    try {
        const Dateitext text = DateiLesen(datei, hoechsteTabellenlaenge);
        return lesen(std::string_view(text.puffer).substr(0, text.laenge));
    } catch (const Kanalfehler& fehler) {
        throw Kanalfehler(Eingabename(datei) + ": " + fehler.what());
    } catch (const Csvfehler& fehler) {
        throw Kanalfehler(Eingabename(datei) + ":" + std::to_string(fehler.Zeile()) + ": " + fehler.what());
    }
}

}  // namespace zinfolio
