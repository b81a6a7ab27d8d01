#include "kern/dates/zahlformat.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>

#include "kern/dates/textteile.h"
#include "kern/dates/zahl.h"

namespace zinfolio {
namespace {

constexpr int signifikant = 15;

/// 10^0 to 10^15, each exact.
constexpr std::array<std::int64_t, signifikant + 1> zehner = [] {
    std::array<std::int64_t, signifikant + 1> potenzen{1};
    for (std::size_t i = 1; i < potenzen.size(); ++i)
        potenzen[i] = 10 * potenzen[i - 1];
    return potenzen;
}();

/// The digits of a number in units of its last decimal: `ziffern` (at most 15 digits), then `nullen` zeros.
struct Dezimalzahl {
    std::int64_t ziffern = 0;
    int nullen = 0;
};

/// |wert| cut to `stellen` decimals without the way through 15 digits, or nothing where only that way is
/// sure. The text of 15 digits lies no further than 5e-15 of the number away from it, and the product below
/// no further than 2e-16 of it; where no half unit is that near, both go to the same neighbour.
std::optional<Dezimalzahl> Kurzweg(double betrag, int stellen) {
    if (stellen > signifikant) return std::nullopt;
    const double produkt = betrag * static_cast<double>(zehner[static_cast<std::size_t>(stellen)]);
    if (!(produkt < 1e14)) return std::nullopt;
    const auto ganz = static_cast<std::int64_t>(produkt);
    const double rest = produkt - static_cast<double>(ganz);
    if (std::fabs(rest - 0.5) <= produkt * 6e-15) return std::nullopt;
    return Dezimalzahl{ganz + (rest > 0.5 ? 1 : 0), 0};
}

/// The same by way of 15 digits, halves of these away from zero.
Dezimalzahl UeberText(double betrag, int stellen) {
    char puffer[32];
    char* const ende =
        std::to_chars(puffer, puffer + sizeof puffer, betrag, std::chars_format::scientific, signifikant - 1)
            .ptr;
    char* const exponent = std::find(puffer, ende, 'e');
    int zehnerexponent = 0;
    std::from_chars(exponent + (exponent[1] == '+' ? 2 : 1), ende, zehnerexponent);
    puffer[1] = puffer[0];  // "d.ddd" becomes "dddd"
    std::int64_t ziffern = 0;
    std::from_chars(puffer + 1, exponent, ziffern);
    const int behalten = zehnerexponent + 1 + stellen;
    if (behalten >= signifikant) return {ziffern, behalten - signifikant};
    if (behalten < 0) return {};
    const std::int64_t teiler = zehner[static_cast<std::size_t>(signifikant - behalten)];
    return {(ziffern + teiler / 2) / teiler, 0};
}

int Ziffernzahl(const Dezimalzahl& zahl) {
    if (zahl.ziffern == 0) return 0;
    const auto groesser = std::upper_bound(zehner.begin(), zehner.end(), zahl.ziffern);
    return static_cast<int>(groesser - zehner.begin()) + zahl.nullen;
}

/// The two digits of 0 to 99.
char* PaarSchreiben(char* ziel, std::uint64_t wert) {
    return std::copy_n(&ziffernpaare[2 * wert], 2, ziel);
}

/// 0 to 999 without zeros in front.
char* ErsteGruppeSchreiben(char* ziel, std::uint64_t gruppe) {
    if (gruppe >= 100) *ziel++ = static_cast<char>('0' + gruppe / 100);
    if (gruppe >= 10) return PaarSchreiben(ziel, gruppe % 100);
    *ziel++ = static_cast<char>('0' + gruppe);
    return ziel;
}

/// A whole number in groups of three.
char* GruppenSchreiben(char* ziel, std::uint64_t zahl) {
    if (zahl < 1000) return ErsteGruppeSchreiben(ziel, zahl);
    ziel = GruppenSchreiben(ziel, zahl / 1000);
    const std::uint64_t gruppe = zahl % 1000;
    *ziel++ = '.';
    *ziel++ = static_cast<char>('0' + gruppe / 100);
    return PaarSchreiben(ziel, gruppe % 100);
}

/// Writes the digits from the last to the first.
std::string Zusammensetzen(Dezimalzahl zahl, const Zahlmuster& muster, bool minus) {
    const int vorziffern = std::max({Ziffernzahl(zahl) - muster.nachkommastellen, muster.mindestziffern, 0});
    const int gruppen = muster.gruppiert && vorziffern > 0 ? (vorziffern - 1) / 3 : 0;
    const int hinten = muster.nachkommastellen > 0 ? 1 + muster.nachkommastellen : 0;
    std::string text(static_cast<std::size_t>((minus ? 1 : 0) + vorziffern + gruppen + hinten), '-');
    auto zeichen = text.end();
    auto ziffern = static_cast<std::uint64_t>(zahl.ziffern);
    const auto setze = [&] {
        if (zahl.nullen > 0) {
            *--zeichen = '0';
            --zahl.nullen;
            return;
        }
        *--zeichen = static_cast<char>('0' + ziffern % 10);
        ziffern /= 10;
    };
    for (int platz = 0; platz < muster.nachkommastellen; ++platz)
        setze();
    if (hinten > 0) *--zeichen = ',';
    for (int platz = 0; platz < vorziffern; ++platz) {
        if (muster.gruppiert && platz > 0 && platz % 3 == 0) *--zeichen = '.';
        setze();
    }
    return text;
}

std::string NachMuster(double wert, const Zahlmuster& muster) {
    if (!std::isfinite(wert)) throw Zahlfehler("Das Ergebnis ist keine darstellbare Zahl.");
    const double betrag = std::fabs(wert);
    const auto kurz = Kurzweg(betrag, muster.nachkommastellen);
    const Dezimalzahl zahl = kurz ? *kurz : UeberText(betrag, muster.nachkommastellen);
    return Zusammensetzen(zahl, muster, wert < 0 && zahl.ziffern != 0);
}

}  // namespace

std::string Format(double wert, const Zahlmuster& muster) {
    if (muster != betragsmuster) return NachMuster(wert, muster);
    std::array<char, betragsbreite> text;  // NOLINT(cppcoreguidelines-pro-type-member-init): filled at once
    return {text.data(), BetragSchreiben(text.data(), wert)};
}

char* BetragSchreiben(char* ziel, double wert) {
    const auto kurz = Kurzweg(std::fabs(wert), betragsmuster.nachkommastellen);
    if (!kurz) {
        const std::string text = NachMuster(wert, betragsmuster);
        return std::copy(text.begin(), text.end(), ziel);
    }
    const auto cents = static_cast<std::uint64_t>(kurz->ziffern);
    if (wert < 0 && cents != 0) *ziel++ = '-';
    ziel = GruppenSchreiben(ziel, cents / 100);
    *ziel++ = ',';
    return PaarSchreiben(ziel, cents % 100);
}

std::string Format(std::string_view zahltext, const Zahlmuster& muster) {
    return zahltext.empty() ? std::string() : Format(Zahl(zahltext), muster);
}

}  // namespace zinfolio
