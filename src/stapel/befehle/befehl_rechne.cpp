#include <algorithm>
#include <string_view>

#include "stapel/auftraege/auftragsrechner.h"
#include "stapel/befehle/aufruf.h"
#include "stapel/befehle/befehle.h"
#include "stapel/befehle/eingaben.h"
#include "stapel/befehle/kanal.h"
#include "stapel/befehle/optionen.h"
#include "stapel/befehle/zeilenleser.h"
#include "stapel/json/jsonschreiber.h"

namespace zinfolio {
namespace {

constexpr const char* rechnebeispiel =
    "Beispiel:\n"
    "  zinfolio-cli rechne konto.json";

int Gescheitert(const std::string& ort, const std::string& grund) {
    FehlerMelden(ort + ": " + grund);
    return status::falsch;
}

/// "DATEI:ZEILE"; the first line where the place is not known.
std::string Ort(const std::string& datei, std::string_view text, std::size_t stelle) {
    const auto zeile = 1 + std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(stelle), '\n');
    return Eingabename(datei) + ":" + std::to_string(zeile);
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

int Ausfuehren(const std::string& datei) {
    Dateitext text;
    try {
        text = DateiLesen(datei, hoechsteZeilenlaenge);
    } catch (const Kanalfehler& fehler) {
        return Gescheitert(Eingabename(datei), fehler.what());
    }
    return Rechnen(datei, std::string_view(text.puffer).substr(0, text.laenge));
}

std::function<int()> RechneAnbieten(CLI::App& zeile) {
    zeile.footer(rechnebeispiel);
    const Option datei = zeile.add_option("DATEI")
                             ->description("Der Auftrag als JSON; - ist die Standardeingabe")
                             ->option_text(" ")
                             ->required();
    return [datei] { return Ausfuehren(Optionstext(datei)); };
}

}  // namespace

constexpr Befehl befehlRechne{"rechne", "Rechnet den Auftrag einer Datei und zeigt das Ergebnis eingerückt",
                              RechneAnbieten};

}  // namespace zinfolio
