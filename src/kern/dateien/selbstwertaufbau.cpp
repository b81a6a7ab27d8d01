#include "kern/dateien/selbstwertaufbau.h"

#include "kern/dateien/satzdatei.h"

namespace zinfolio::selbst {
namespace {

template <class W>
const W& NurArt(const Selbstwert& wert) {
    if (const auto* gefunden = std::get_if<W>(&wert)) return *gefunden;
    throw Satzfehler("Der Satz hält einen Wert der falschen Art.");
}

}  // namespace

const std::string& Text(const Selbstwert& wert) {
    return NurArt<std::string>(wert);
}

std::int16_t Ganzzahl(const Selbstwert& wert, std::size_t eintraege) {
    const auto zahl = NurArt<std::int16_t>(wert);
    if (eintraege == 0 || (zahl >= 0 && static_cast<std::size_t>(zahl) < eintraege)) return zahl;
    throw Satzfehler("Die Liste hat keinen Eintrag " + std::to_string(zahl) + ".");
}

Selbstwert Vorgabe(const Selbstangaben& angaben) {
    if (const auto* zahl = std::get_if<int>(&angaben.sonst)) return static_cast<std::int16_t>(*zahl);
    if (const auto* text = std::get_if<std::string_view>(&angaben.sonst)) return std::string(*text);
    return {};
}

std::string Dateibytes(const std::filesystem::path& datei, std::size_t satzlaenge) {
    return DateiLesenFallsDa(datei, HoechstzahlSaetze * satzlaenge).value_or(std::string());
}

}  // namespace zinfolio::selbst
