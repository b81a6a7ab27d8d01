#pragma once
// The interest of one period, the smallest step of every account.

#include "dates/datum.h"
#include "dates/tage30.h"
#include "dates/verzinsungsmethode.h"

namespace zinfolio {

/// An amount (currency) and the rate it bears (percent per year, 4-byte on purpose: records hold rates so).
struct Zinsbasis {
    float satz = 0;
    double betrag = 0;
};

/// Days of a period and the interest on them, rounded to two decimals.
struct Periodenergebnis {
    int tage = 0;
    double zins = 0;
};

/// `Zinstage` from `von` to `bis` by the method; negative where `bis` lies before `von`.
[[nodiscard]] constexpr int Zinstage(Datum von, Datum bis, Verzinsungsmethode methode) {
    return ZaehltTage30(methode) ? Tage30(von, bis) : bis - von;
}

/// Interest of the period in which two amounts bear a rate each: betrag * (satz / 100) * tage / jahr, the
/// quotient by 100 in 4-byte floating point, all else in 8-byte, both amounts added, the sum rounded once by
/// `RundeKaufmaennisch`. An amount of one rate only comes with a second amount of 0. Not finite where the
/// amounts overflow.
[[nodiscard]] Periodenergebnis PeriodenZinsen(Datum von, Datum bis, Verzinsungsmethode methode,
                                              Zinsbasis erste, Zinsbasis zweite);

}  // namespace zinfolio
