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

constexpr std::size_t Breite = 2;  // of the tag, of an integer and of the length in front of a text

/// A value that runs over the end of its bytes.
class Abgeschnitten : public Satzfehler {
  public:
    using Satzfehler::Satzfehler;
};

void Platzpruefen(std::size_t gebraucht, std::size_t vorhanden, std::string_view was) {
    if (gebraucht <= vorhanden) return;
    throw Abgeschnitten(std::string(was) + " braucht " + std::to_string(gebraucht) + " Bytes, der Satz hat " +
                        std::to_string(vorhanden) + ".");
}

void TextSchreiben(const std::string& utf8, std::span<std::byte> satz, std::size_t vorspann) {
    const std::string bytes = NachWindows1252(utf8);
    Platzpruefen(vorspann + Breite + bytes.size(), satz.size(), "Ein Text");
    if (bytes.size() > std::numeric_limits<std::uint16_t>::max()) throw Satzfehler("Der Text ist zu lang.");
    Satzschreiber schreiber(satz.subspan(vorspann));
    schreiber.Ganz16(static_cast<std::int16_t>(bytes.size()));
    std::transform(bytes.begin(), bytes.end(), satz.last(schreiber.Rest()).begin(),
                   [](char zeichen) { return static_cast<std::byte>(zeichen); });
}

void ZahlSchreiben(std::int16_t zahl, std::span<std::byte> satz, std::size_t vorspann) {
    Platzpruefen(vorspann + Breite, satz.size(), "Eine Zahl");
    Satzschreiber(satz.subspan(vorspann)).Ganz16(zahl);
}

std::string TextLesen(std::span<const std::byte> satz, std::size_t vorspann) {
    Platzpruefen(vorspann + Breite, satz.size(), "Ein Text");
    const auto laenge = static_cast<std::uint16_t>(Satzleser(satz.subspan(vorspann)).Ganz16());
    Platzpruefen(vorspann + Breite + laenge, satz.size(), "Der Text");
    std::string bytes(laenge, '\0');
    std::ranges::transform(satz.subspan(vorspann + Breite, laenge), bytes.begin(),
                           [](std::byte b) { return static_cast<char>(b); });
    return NachUtf8(bytes);
}

std::int16_t ZahlLesen(std::span<const std::byte> satz, std::size_t vorspann) {
    Platzpruefen(vorspann + Breite, satz.size(), "Eine Zahl");
    return Satzleser(satz.subspan(vorspann)).Ganz16();
}

Selbstwert MitKennungLesen(std::span<const std::byte> satz) {
    Platzpruefen(Breite, satz.size(), "Eine Typkennung");
    switch (const std::int16_t kennung = Satzleser(satz).Ganz16()) {
        case KennungLeer:
            return {};
        case KennungGanz:
            return ZahlLesen(satz, Breite);
        case KennungText:
            return TextLesen(satz, Breite);
        default:
            throw Satzfehler("Unbekannte Typkennung " + std::to_string(kennung) + ".");
    }
}

}  // namespace

void SelbstwertSchreiben(const Selbstwert& wert, std::span<std::byte> satz, Selbstform form) {
    std::fill(satz.begin(), satz.end(), std::byte{0});
    const std::size_t vorspann = form == Selbstform::MitKennung ? Breite : 0;
    if (const auto* text = std::get_if<std::string>(&wert)) {
        TextSchreiben(*text, satz, vorspann);
        if (vorspann > 0) Satzschreiber(satz).Ganz16(KennungText);
    } else if (const auto* zahl = std::get_if<std::int16_t>(&wert)) {
        ZahlSchreiben(*zahl, satz, vorspann);
        if (vorspann > 0) Satzschreiber(satz).Ganz16(KennungGanz);
    }
}

Selbstwert SelbstwertLesen(std::span<const std::byte> satz, Selbstform form) {
    switch (form) {
        case Selbstform::NurText:
            return TextLesen(satz, 0);
        case Selbstform::NurZahl:
            return ZahlLesen(satz, 0);
        case Selbstform::MitKennung:
            break;
    }
    return MitKennungLesen(satz);
}

bool SelbstwertIstAbgeschnitten(std::span<const std::byte> rest, Selbstform form) {
    if (rest.empty()) return false;
    try {
        static_cast<void>(SelbstwertLesen(rest, form));
    } catch (const Abgeschnitten&) {
        return true;
    } catch (const Satzfehler&) {
        return false;
    }
    return false;
}

Selbstwert SelbstwertAus(std::span<const std::byte> dateibytes, std::size_t satzlaenge, std::size_t satz,
                         Selbstform form) {
    const std::size_t anfang = (satz - 1) * satzlaenge;
    if (anfang >= dateibytes.size()) return {};
    const auto rest = dateibytes.subspan(anfang);
    if (rest.size() >= satzlaenge) return SelbstwertLesen(rest.first(satzlaenge), form);
    if (SelbstwertIstAbgeschnitten(rest, form)) return {};
    return SelbstwertLesen(rest, form);
}

}  // namespace zinfolio
