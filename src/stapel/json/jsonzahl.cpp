#include "stapel/json/jsonzahl.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "kern/dates/textteile.h"

namespace zinfolio {
namespace {

/// Below this, the amount in cents has at most 15 digits. Two decimals of so many digits are never the same
/// double, so the text in cents, without zeros at its end, is the shortest.
constexpr double centgrenze = 1e13;

/// Round amounts from here on are shorter with an exponent: 100000 is 1e+05.
constexpr std::uint64_t rundeCents = 10'000'000;

std::size_t Stellenzahl(std::uint64_t zahl) {
    std::size_t stellen = 1;
    for (; zahl >= 10'000; zahl /= 10'000)
        stellen += 4;
    return stellen + (zahl >= 10 ? 1 : 0) + (zahl >= 100 ? 1 : 0) + (zahl >= 1000 ? 1 : 0);
}

/// Digits of a whole number, at least one.
char* ZiffernSchreiben(char* ziel, std::uint64_t zahl) {
    char* const ende = ziel + Stellenzahl(zahl);
    char* stelle = ende;
    for (; zahl >= 100; zahl /= 100) {
        stelle -= 2;
        std::copy_n(&ziffernpaare[2 * (zahl % 100)], 2, stelle);
    }
    if (zahl >= 10) {
        std::copy_n(&ziffernpaare[2 * zahl], 2, ziel);
    } else {
        *ziel = static_cast<char>('0' + zahl);
    }
    return ende;
}

/// The decimals of an amount: none, one or two.
char* CentsSchreiben(char* ziel, std::uint64_t cents) {
    if (cents == 0) return ziel;
    *ziel++ = '.';
    *ziel++ = ziffernpaare[2 * cents];
    if (cents % 10 != 0) *ziel++ = ziffernpaare[2 * cents + 1];
    return ziel;
}

}  // namespace

char* ZahlSchreiben(char* anfang, double wert) {
    if (std::bit_cast<std::uint64_t>(wert) == 0) {
        *anfang = '0';
        return anfang + 1;
    }
    const double betrag = std::fabs(wert);
    if (betrag < centgrenze) {
        // NOLINTNEXTLINE(bugprone-incorrect-roundings): a wrong guess fails the comparison below
        const auto cents = static_cast<std::uint64_t>(betrag * 100 + 0.5);
        if (static_cast<double>(cents) / 100 == betrag && cents % rundeCents != 0) {
            if (wert < 0) *anfang++ = '-';
            return CentsSchreiben(ZiffernSchreiben(anfang, cents / 100), cents % 100);
        }
    }
    return std::to_chars(anfang, anfang + zahlbreite, wert).ptr;
}

char* GanzzahlSchreiben(char* anfang, long long wert) {
    return std::to_chars(anfang, anfang + zahlbreite, wert).ptr;
}

}  // namespace zinfolio
