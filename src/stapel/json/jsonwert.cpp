#include "stapel/json/jsonwert.h"

#include <cmath>
#include <simdjson.h>

#include "kern/dates/textteile.h"

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

using Wert = simdjson::ondemand::value;

Wert& Als(void* wert) {
    return *static_cast<Wert*>(wert);
}

/// The name of a field: as it stands in the job where it holds no escapes.
std::string_view Schluessel(simdjson::ondemand::field& feld) {
    const char* const anfang = feld.key().raw();
    const char* ende = anfang;
    while (*ende != '"' && *ende != '\\')
        ++ende;
    if (*ende == '"') return {anfang, ende};
    std::string_view name;
    if (const auto fehler = feld.unescaped_key().get(name)) KeinJson(fehler, anfang);
    return name;
}

/// Where reading has stopped; null where the text has ended.
const char* Ort(Wert& wert) {
    const char* ort = nullptr;
    return wert.current_location().get(ort) == simdjson::SUCCESS ? ort : nullptr;
}

std::string Anfuehrung(const Feldpfad& pfad) {
    return pfad.eltern == nullptr ? "Der Auftrag" : "Das Feld \"" + pfad.Text() + "\"";
}

}  // namespace

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

const char* JsonWert::Stelle() const {
    return Als(wert).raw_json_token().data();
}

void JsonWert::Ungueltig(std::string_view anforderung) const {
    throw Auftragsfehler(Anfuehrung(pfad) + " " + std::string(anforderung) + ".", Stelle());
}

std::string JsonWert::Feldname(std::string_view name) const {
    return Feldpfad{&pfad, name}.Text();
}

void JsonWert::Erwarte(char anfang, std::string_view anforderung) const {
    const char erstes = *Stelle();
    if (erstes == anfang) return;
    if (anfang == '0' && (erstes == '-' || IstZiffer(erstes))) return;
    if (std::string_view("\"[{tfn-0123456789").find(erstes) == std::string_view::npos) {
        Ungueltig("enthält kein gültiges JSON");
    }
    Ungueltig(anforderung);
}

std::string_view JsonWert::Text() {
    Erwarte('"', "muss ein Text sein");
    const std::string_view token = Als(wert).raw_json_token();
    // A token that ends with its quote holds no other one, unless behind a backslash.
    if (token.size() >= 2 && token.back() == '"' && token.find('\\') == std::string_view::npos) {
        if (const auto fehler = Als(wert).get_raw_json_string().error()) KeinJson(fehler, token.data());
        return token.substr(1, token.size() - 2);
    }
    std::string_view text;
    if (Als(wert).get_string().get(text) != simdjson::SUCCESS) {
        Ungueltig("enthält eine falsche Umschreibung mit \\");
    }
    return text;
}

double JsonWert::Zahl() {
    Erwarte('0', "muss eine Zahl sein");
    double zahl = 0;
    if (Als(wert).get_double().get(zahl) != simdjson::SUCCESS) {
        const bool lesbar = IstJsonZahl(OhneRand(Als(wert).raw_json_token()));
        Ungueltig(lesbar ? "ist zu groß für eine Zahl" : "enthält keine gültige JSON-Zahl");
    }
    return zahl;
}

std::int64_t JsonWert::Ganzzahl(std::int64_t von, std::int64_t bis) {
    Erwarte('0', "muss eine ganze Zahl sein");
    const double zahl = Zahl();
    if (zahl != std::trunc(zahl)) Ungueltig("muss eine ganze Zahl sein");
    if (zahl < static_cast<double>(von) || zahl > static_cast<double>(bis)) {
        Ungueltig("muss eine ganze Zahl von " + std::to_string(von) + " bis " + std::to_string(bis) +
                  " sein");
    }
    return static_cast<std::int64_t>(zahl);
}

void JsonWert::Elemente(Rueckruf<void(JsonWert&)> rueckruf) {
    Erwarte('[', "muss eine Liste sein");
    simdjson::ondemand::array liste;
    if (const auto fehler = Als(wert).get_array().get(liste)) KeinJson(fehler, Stelle());
    std::size_t index = 0;
    for (auto gelesen : liste) {
        if (const auto fehler = gelesen.error()) KeinJson(fehler, Ort(Als(wert)));
        Wert element = gelesen.value_unsafe();
        JsonWert kind(&element, {&pfad, {}, index++});
        rueckruf(kind);
    }
}

void JsonWert::Felder(Rueckruf<void(std::string_view, JsonWert&)> rueckruf) {
    Erwarte('{', pfad.eltern == nullptr ? "ist kein JSON-Objekt" : "muss ein Objekt sein");
    simdjson::ondemand::object objekt;
    if (const auto fehler = Als(wert).get_object().get(objekt)) KeinJson(fehler, Stelle());
    for (auto gelesen : objekt) {
        simdjson::ondemand::field feld;
        if (const auto fehler = std::move(gelesen).get(feld)) KeinJson(fehler, Ort(Als(wert)));
        const std::string_view name = Schluessel(feld);
        JsonWert kind(&feld.value(), {&pfad, name});
        rueckruf(name, kind);
    }
}

}  // namespace zinfolio
