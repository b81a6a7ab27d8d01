#include "kern/staffel/staffeldatei.h"

#include <string>

#include "kern/dateien/satzdatei.h"
#include "kern/grund/windows1252.h"

namespace zinfolio {
namespace {

constexpr std::size_t laenge = Staffelsatz::Satzlaenge;

/// What a row is, for a sentence about its file.
std::string Artname(std::int16_t art) {
    switch (art) {
        case zahlungsart::zahlung:
            return "eine Zahlung";
        case zahlungsart::kondition:
            return "ein Zinssatz";
        case zahlungsart::zinstermin:
            return "ein Zinstermin";
        default:
            return "unbekannter Art (" + std::to_string(art) + ")";
    }
}

/// The text for a message: what cannot be shown is a point.
std::string Zeigbar(std::string_view windows1252) {
    std::string text(windows1252);
    for (char& zeichen : text)
        if (static_cast<unsigned char>(zeichen) < ' ') zeichen = '.';
    return NachUtf8(text);
}

void Pruefen(const Staffelsatz& satz, std::int16_t art, const Fundstelle& stelle,
             std::vector<Befund>& befunde) {
    if (satz.Zahlungsart != art) {
        throw Dateifehler(
            stelle, "Der Satz ist " + Artname(satz.Zahlungsart) + ", erwartet wird " + Artname(art) + ".");
    }
    if (Datum::Versuche(satz.Satzdatum.Roh())) return;
    befunde.push_back({stelle, '"' + Zeigbar(satz.Satzdatum.Roh()) + "\" ist kein Datum."});
}

}  // namespace

std::vector<Staffelsatz> StaffelsaetzeAus(std::span<const std::byte> bytes, std::int16_t art,
                                          const std::filesystem::path& datei, std::vector<Befund>& befunde) {
    const std::size_t anzahl = bytes.size() / laenge;
    SatzzahlPruefen(datei, anzahl);
    std::vector<Staffelsatz> saetze;
    saetze.reserve(anzahl);
    for (std::size_t i = 0; i < anzahl; ++i) {
        saetze.push_back(Staffelsatz::Lesen(bytes.subspan(i * laenge).first<laenge>()));
        Pruefen(saetze.back(), art, {datei, i + 1}, befunde);
    }
    if (const std::size_t rest = bytes.size() % laenge; rest > 0) {
        befunde.push_back({{datei, anzahl + 1},
                           "Der Satz ist abgerissen (" + std::to_string(rest) + " von " +
                               std::to_string(laenge) + " Bytes) und zählt nicht."});
    }
    return saetze;
}

}  // namespace zinfolio
