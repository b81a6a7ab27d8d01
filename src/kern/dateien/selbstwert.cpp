#include "kern/dateien/selbstwert.h"

#include <algorithm>
#include <limits>
#include <string_view>

#include "kern/dateien/dateifehler.h"
#include "kern/dateien/satzbytes.h"
#include "kern/grund/windows1252.h"

namespace zinfolio {
namespace {

constexpr std::int16_t KennungLeer = 0;
constexpr std::int16_t KennungGanz = 2;
constexpr std::int16_t KennungText = 8;

constexpr std::size_t Vorspann = 2;    // the tag
constexpr std::size_t Textlaenge = 2;  // the length in front of a text
constexpr std::size_t Ganzbreite = 2;

void Platzpruefen(std::size_t gebraucht, std::size_t vorhanden, std::string_view was) {
    if (gebraucht <= vorhanden) return;
    throw Satzfehler(std::string(was) + " braucht " + std::to_string(gebraucht) + " Bytes, der Satz hat " +
                     std::to_string(vorhanden) + ".");
}

void TextSchreiben(const std::string& utf8, std::span<std::byte> satz) {
    const std::string bytes = NachWindows1252(utf8);
    Platzpruefen(Vorspann + Textlaenge + bytes.size(), satz.size(), "Ein Text");
    if (bytes.size() > std::numeric_limits<std::uint16_t>::max()) throw Satzfehler("Der Text ist zu lang.");
    Satzschreiber schreiber(satz);
    schreiber.Ganz16(KennungText);
    schreiber.Ganz16(static_cast<std::int16_t>(bytes.size()));
    std::transform(bytes.begin(), bytes.end(), satz.last(schreiber.Rest()).begin(),
                   [](char zeichen) { return static_cast<std::byte>(zeichen); });
}

std::string TextLesen(Satzleser leser, std::span<const std::byte> satz) {
    Platzpruefen(Vorspann + Textlaenge, satz.size(), "Ein Text");
    const auto laenge = static_cast<std::uint16_t>(leser.Ganz16());
    Platzpruefen(Vorspann + Textlaenge + laenge, satz.size(), "Der Text");
    std::string bytes(laenge, '\0');
    std::transform(satz.begin() + (Vorspann + Textlaenge), satz.begin() + (Vorspann + Textlaenge + laenge),
                   bytes.begin(), [](std::byte b) { return static_cast<char>(b); });
    return NachUtf8(bytes);
}

}  // namespace

void SelbstwertSchreiben(const Selbstwert& wert, std::span<std::byte> satz) {
    std::fill(satz.begin(), satz.end(), std::byte{0});
    if (const auto* text = std::get_if<std::string>(&wert)) return TextSchreiben(*text, satz);
    if (const auto* zahl = std::get_if<std::int16_t>(&wert)) {
        Platzpruefen(Vorspann + Ganzbreite, satz.size(), "Eine Zahl");
        Satzschreiber schreiber(satz);
        schreiber.Ganz16(KennungGanz);
        schreiber.Ganz16(*zahl);
    }
}

Selbstwert SelbstwertLesen(std::span<const std::byte> satz) {
    Platzpruefen(Vorspann, satz.size(), "Eine Typkennung");
    Satzleser leser(satz);
    const std::int16_t kennung = leser.Ganz16();
    switch (kennung) {
        case KennungLeer:
            return {};
        case KennungGanz:
            Platzpruefen(Vorspann + Ganzbreite, satz.size(), "Eine Zahl");
            return leser.Ganz16();
        case KennungText:
            return TextLesen(leser, satz);
        default:
            throw Satzfehler("Unbekannte Typkennung " + std::to_string(kennung) + ".");
    }
}

}  // namespace zinfolio
