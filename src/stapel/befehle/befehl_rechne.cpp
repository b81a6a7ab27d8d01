#include <algorithm>
#include <string_view>

#include "stapel/auftraege/auftragsrechner.h"
#include "stapel/befehle/ausgangsstatus.h"
#include "stapel/befehle/befehle.h"
#include "stapel/befehle/kanal.h"
#include "stapel/befehle/zeilenleser.h"
#include "stapel/json/jsonschreiber.h"

namespace zinfolio {
namespace {

std::string Anzeigename(const std::string& datei) {
    return datei == "-" ? "Standardeingabe" : datei;
}

int Gescheitert(const std::string& ort, const std::string& grund) {
    FehlerMelden(ort + ": " + grund);
    return status::falsch;
}

/// "DATEI:ZEILE"; the first line where the place is not known.
std::string Ort(const std::string& datei, std::string_view text, std::size_t stelle) {
    const auto zeile = 1 + std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(stelle), '\n');
    return Anzeigename(datei) + ":" + std::to_string(zeile);
}

int Rechnen(const std::string& datei, std::string_view text) {
    std::string ergebnis;
    const Auftragsausgang ausgang = Auftragsrechner().Rechnen(text, ergebnis);
    if (ausgang.ausgang == Ausgang::ungueltig) {
        return Gescheitert(Ort(datei, text, ausgang.stelle.value_or(0)), ausgang.meldung);
    }
    AusgabeSchreiben(JsonEingezogen(ergebnis) + "\n");
    if (ausgang.ausgang == Ausgang::gerechnet) return status::fertig;
    if (!ausgang.meldung.empty()) FehlerMelden(ausgang.meldung);
    return status::abgelehnt;
}

}  // namespace

int BefehlRechne(const std::string& datei) {
    Dateitext text;
    try {
        text = DateiLesen(datei, hoechsteZeilenlaenge);
    } catch (const Kanalfehler& fehler) {
        return Gescheitert(Anzeigename(datei), fehler.what());
    }
    return Rechnen(datei, std::string_view(text.puffer).substr(0, text.laenge));
}

}  // namespace zinfolio
