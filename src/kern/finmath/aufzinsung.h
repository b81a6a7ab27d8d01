#pragma once
// How a rate acts over the time between two dates, method by method: the exponents and factors that valuation
// and search share. Rates r are fractions of one here, days are whole numbers, negative where a series is out
// of order.

#include <cmath>

#include "kern/dates/datum.h"
#include "kern/dates/tage30.h"
#include "kern/finmath/effektivmethode.h"
#include "kern/grund/rechenfehler.h"

namespace zinfolio {

/// basis ^ exponent. A base of 0 or below under a fractional exponent, and any result that is no number, is a
/// `Rechenfehler`.
inline double Potenz(double basis, double exponent) {
    if (basis <= 0 && exponent != std::trunc(exponent)) {
        throw Rechenfehler("Ein Zinssatz von -100 oder darunter hat keine gebrochene Potenz.");
    }
    return Endlich(std::pow(basis, exponent));
}

/// A count of `Tage30` as days of a year of 365 days with 12 equal months: 365 * years + 30.4166666 * months
/// + days, parts cut toward zero. The month length is that literal, not 365/12.
[[nodiscard]] constexpr double TageGleicherMonate(int tage30) {
    const int jahre = tage30 / 360;
    const int monate = tage30 % 360 / 30;
    return 365 * jahre + 30.4166666 * monate + tage30 % 30;
}

/// The time from `von` to `bis` in years, as the methods 2 to 4 count it: `Tage30` / 360; calendar days /
/// 365; `TageGleicherMonate` / 365. `pangvAlt` has no such number, which is a `Rechenfehler`.
[[nodiscard]] constexpr double Exponent(Effektivmethode methode, Datum von, Datum bis) {
    switch (methode) {
        case Effektivmethode::aidb360:
            return Tage30(von, bis) / 360.0;
        case Effektivmethode::isma:
            return (bis - von) / 365.0;
        case Effektivmethode::pangv2000:
            return TageGleicherMonate(Tage30(von, bis)) / 365;
        case Effektivmethode::pangvAlt:
            break;
    }
    throw Rechenfehler("Diese Effektivzinsmethode rechnet nicht mit einem Exponenten.");
}

/// A span of `Tage30` days as whole years of 360 days and the days left, both cut toward zero.
struct Jahresteile {
    int jahre = 0;
    int tage = 0;
};

[[nodiscard]] constexpr Jahresteile InJahresteile(int tage30) {
    return {tage30 / 360, tage30 % 360};
}

/// Growth over such a span under `pangvAlt`: (1 + tage * r / 360) * (1 + r) ^ jahre, the power given.
[[nodiscard]] constexpr double Zuwachs(Jahresteile spanne, double r, double potenz) {
    return (1 + spanne.tage * r / 360) * potenz;
}

[[nodiscard]] inline double Zuwachs(Jahresteile spanne, double r) {
    return Zuwachs(spanne, r, Potenz(1 + r, spanne.jahre));
}

/// The way of a row to the series' end under `pangvAlt`: simple interest to the next anniversary of the first
/// date (where that lies before the end), then growth over the rest.
struct Jahrestagsweg {
    bool ueberJahrestag = false;
    /// Days to that anniversary over 360, in [0, 1); 0 where none lies before the end.
    double vorlauf = 0;
    Jahresteile rest;
};

/// The way from the row's date to `ende`. A row of 29.02. is a `Datumsfehler` where the year of `beginn`
/// lacks that day.
[[nodiscard]] Jahrestagsweg JahrestagswegFinden(Datum beginn, Datum ende, Datum zeile);

/// The terminal value of an amount, and the factor that a table shows for it; `zuwachs` is that of
/// `weg.rest`.
[[nodiscard]] constexpr double Endwert(const Jahrestagsweg& weg, double betrag, double r, double zuwachs) {
    return weg.ueberJahrestag ? zuwachs * (betrag + betrag * r * weg.vorlauf) : zuwachs * betrag;
}

[[nodiscard]] constexpr double Endfaktor(const Jahrestagsweg& weg, double r, double zuwachs) {
    return weg.ueberJahrestag ? (1 + r * weg.vorlauf) * zuwachs : zuwachs;
}

}  // namespace zinfolio
