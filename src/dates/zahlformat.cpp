#include "dates/zahlformat.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "dates/zahl.h"

namespace zinfolio {
namespace {

constexpr int signifikant = 15;

/// |wert| = 0,d1d2d3... * 10^punkt, with the digits d1 to d15 in `ziffern`.
struct Dezimalzahl {
    std::string ziffern;
    int punkt = 0;
};

Dezimalzahl Zerlegen(double betrag) {
    char puffer[32];
    const auto ende =
        std::to_chars(puffer, puffer + sizeof puffer, betrag, std::chars_format::scientific, signifikant - 1)
            .ptr;
    const std::string_view text(puffer, static_cast<std::size_t>(ende - puffer));
    const auto exponent = text.find('e');
    int zehner = 0;
    const char* anfang = text.data() + exponent + (text[exponent + 1] == '+' ? 2 : 1);
    std::from_chars(anfang, ende, zehner);
    return {std::string(1, text[0]) + std::string(text.substr(2, exponent - 2)), zehner + 1};
}

/// Cuts the digits to `stellen` decimals, halves away from zero; no digits are left of a number that becomes
/// 0.
void RundeAuf(Dezimalzahl& zahl, int stellen) {
    const int behalten = zahl.punkt + stellen;
    if (behalten >= signifikant) return;
    const bool aufrunden = behalten >= 0 && zahl.ziffern[static_cast<std::size_t>(behalten)] >= '5';
    zahl.ziffern.resize(static_cast<std::size_t>(std::max(behalten, 0)));
    if (!aufrunden) return;
    auto stelle = zahl.ziffern.rbegin();
    for (; stelle != zahl.ziffern.rend() && *stelle == '9'; ++stelle)
        *stelle = '0';
    if (stelle != zahl.ziffern.rend()) {
        ++*stelle;
        return;
    }
    zahl.ziffern.insert(0, 1, '1');
    ++zahl.punkt;
}

/// The digit at a place counted from the decimal sign: 0 is the first behind it, -1 the one before it.
char ZifferAn(const Dezimalzahl& zahl, int platz) {
    const int stelle = zahl.punkt + platz;
    const bool vorhanden = stelle >= 0 && stelle < static_cast<int>(zahl.ziffern.size());
    return vorhanden ? zahl.ziffern[static_cast<std::size_t>(stelle)] : '0';
}

std::string Zusammensetzen(const Dezimalzahl& zahl, const Zahlmuster& muster, bool minus) {
    std::string text;
    if (minus) text += '-';
    const int vorziffern = std::max({zahl.punkt, muster.mindestziffern, 0});
    for (int rest = vorziffern; rest > 0; --rest) {
        text += ZifferAn(zahl, -rest);
        if (muster.gruppiert && rest > 1 && rest % 3 == 1) text += '.';
    }
    if (muster.nachkommastellen > 0) text += ',';
    for (int platz = 0; platz < muster.nachkommastellen; ++platz)
        text += ZifferAn(zahl, platz);
    return text;
}

}  // namespace

std::string Format(double wert, const Zahlmuster& muster) {
    if (!std::isfinite(wert)) throw Zahlfehler("Das Ergebnis ist keine darstellbare Zahl.");
    Dezimalzahl zahl;
    if (wert != 0) {
        zahl = Zerlegen(std::fabs(wert));
        RundeAuf(zahl, muster.nachkommastellen);
    }
    const bool null = zahl.ziffern.find_first_not_of('0') == std::string::npos;
    if (null) zahl = {};
    return Zusammensetzen(zahl, muster, wert < 0 && !null);
}

std::string Format(std::string_view zahltext, const Zahlmuster& muster) {
    return zahltext.empty() ? std::string() : Format(Zahl(zahltext), muster);
}

}  // namespace zinfolio
