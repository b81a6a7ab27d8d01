#include "kern/dates/zahl.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "kern/dates/textteile.h"

namespace zinfolio {
namespace {

/// A leading number, cleaned of its grouping for the conversion, and how many characters of the text it took.
struct Zahlanfang {
    std::string ziffern;
    std::size_t laenge = 0;
};

enum class Punkte { gruppieren, trennen };

Zahlanfang LeseAnfang(std::string_view text, Punkte punkte) {
    Zahlanfang anfang;
    std::size_t stelle = 0;
    if (!text.empty() && (text[0] == '-' || text[0] == '+')) {
        if (text[0] == '-') anfang.ziffern += '-';
        stelle = 1;
    }
    const char dezimalzeichen = punkte == Punkte::gruppieren ? ',' : '.';
    bool hatZiffer = false;
    bool hatKomma = false;
    for (; stelle < text.size(); ++stelle) {
        const char zeichen = text[stelle];
        if (IstZiffer(zeichen)) {
            hatZiffer = true;
            anfang.ziffern += zeichen;
        } else if (zeichen == dezimalzeichen && !hatKomma) {
            hatKomma = true;
            anfang.ziffern += '.';
        } else if (punkte == Punkte::trennen || zeichen != '.' || hatKomma) {
            break;
        }
    }
    anfang.laenge = hatZiffer ? stelle : 0;
    return anfang;
}

std::optional<double> Wert(const std::string& ziffern) {
    double wert = 0;
    const auto ergebnis = std::from_chars(ziffern.data(), ziffern.data() + ziffern.size(), wert);
    if (ergebnis.ec == std::errc::result_out_of_range) {
        // A value below the smallest float is 0; only one that is too large has no number.
        const auto komma = ziffern.find('.');
        const bool klein = ziffern.find_first_of("123456789") > komma && komma != std::string::npos;
        return klein ? std::optional(0.0) : std::nullopt;
    }
    return wert;
}

double WertDesAnfangs(std::string_view text, Punkte punkte) {
    const auto erstes = text.find_first_not_of(' ');
    if (erstes == std::string_view::npos) return 0;
    const Zahlanfang anfang = LeseAnfang(text.substr(erstes), punkte);
    return anfang.laenge == 0 ? 0 : Wert(anfang.ziffern).value_or(0);
}

template <class Gleitzahl>
char* TextSchreiben(char* ziel, std::size_t platz, Gleitzahl wert, int stellen) {
    char* const ende = std::to_chars(ziel, ziel + platz, wert, std::chars_format::general, stellen).ptr;
    std::replace(ziel, ende, '.', ',');
    std::replace(ziel, ende, 'e', 'E');
    return ende;
}

/// A 4-byte float from 0,0001 to below 10 million with 7 digits, else null. Such a float times a power of
/// ten up to 10^10 has at most 48 bits, so that the product is exact and its rounding, halves to the even
/// digit, the one of the text.
char* SiebenStellenSchreiben(char* ziel, float wert) {
    constexpr std::array zehner{1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10};
    const double betrag = std::fabs(static_cast<double>(wert));
    if (!(betrag >= 1e-4 && betrag < 1e7)) return nullptr;
    // From 1 to below 10, as most factors are, six decimals make seven digits.
    std::size_t stellen = betrag >= 1 && betrag < 10 ? 6 : 0;
    while (betrag * zehner[stellen] < 1e6)
        ++stellen;
    auto ziffern = static_cast<std::uint32_t>(std::nearbyint(betrag * zehner[stellen]));
    for (; stellen > 0 && ziffern % 10 == 0; --stellen)
        ziffern /= 10;
    char puffer[zahltextbreite];
    char* const ende = puffer + sizeof puffer;
    char* anfang = ende;
    for (std::size_t platz = 0; ziffern > 0 || platz <= stellen; ++platz, ziffern /= 10) {
        if (platz == stellen && stellen > 0) *--anfang = ',';
        *--anfang = static_cast<char>('0' + ziffern % 10);
    }
    if (wert < 0) *--anfang = '-';
    return std::copy(anfang, ende, ziel);
}

}  // namespace

std::optional<double> ZahlVersuch(std::string_view text) {
    const std::string_view ohneRand = Getrimmt(text);
    const Zahlanfang anfang = LeseAnfang(ohneRand, Punkte::gruppieren);
    if (anfang.laenge == 0 || anfang.laenge != ohneRand.size()) return std::nullopt;
    return Wert(anfang.ziffern);
}

double Zahl(std::string_view text) {
    if (const auto wert = ZahlVersuch(text)) return *wert;
    throw Zahlfehler("»" + std::string(text) + "« ist keine Zahl.");
}

double Zahlwert(std::string_view text) {
    return WertDesAnfangs(text, Punkte::gruppieren);
}

double Punktwert(std::string_view text) {
    return WertDesAnfangs(text, Punkte::trennen);
}

std::int16_t Ganzzahl16(double wert) {
    const double ganz = std::nearbyint(wert);
    if (!(ganz >= std::numeric_limits<std::int16_t>::min() &&
          ganz <= std::numeric_limits<std::int16_t>::max())) {
        throw Zahlfehler(Zahltext(wert) + " passt in keine ganze Zahl von 2 Byte.");
    }
    return static_cast<std::int16_t>(ganz);
}

std::string Zahltext(double wert) {
    if (wert == 0) return "0";
    char puffer[32];
    return {puffer, TextSchreiben(puffer, sizeof puffer, wert, 15)};
}

char* ZahltextSchreiben(char* ziel, float wert) {
    if (char* const ende = SiebenStellenSchreiben(ziel, wert)) return ende;
    if (wert != 0) return TextSchreiben(ziel, zahltextbreite, wert, 7);
    *ziel = '0';
    return ziel + 1;
}

std::string Zahltext(float wert) {
    char puffer[zahltextbreite];
    return {puffer, ZahltextSchreiben(puffer, wert)};
}

}  // namespace zinfolio
