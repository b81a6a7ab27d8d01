#pragma once
// The interest of one period, the smallest step of every account.

#include "kern/dates/datum.h"
#include "kern/dates/rundung.h"
#include "kern/dates/tage30.h"
#include "kern/dates/verzinsungsmethode.h"

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
[[nodiscard]] constexpr int Zinstage(const Datum& von, const Datum& bis, Verzinsungsmethode methode) {
    return ZaehltTage30(methode) ? Tage30(von, bis) : bis - von;
}

namespace periodenteile {

/// Amount times rate, the rate's quotient held in 4 bytes: the part of the formula that no day count changes.
inline double Jahreszins(Zinsbasis basis) {
    return basis.betrag * static_cast<double>(basis.satz / 100.0F);
}

inline double UeberJahresende(const Datum& von, const Datum& bis, int tage, double jahreszins1,
                              double jahreszins2) {
    const Datum schnitt = *Datum::Aus(von.Jahr(), 12, 31);
    const int tageVorher = schnitt - von;
    const double t1 = tageVorher;
    const double t2 = tage - tageVorher;
    return (jahreszins1 * t1 + jahreszins2 * t1) / Jahreslaenge(von.Jahr()) +
           (jahreszins1 * t2 + jahreszins2 * t2) / Jahreslaenge(bis.Jahr());
}

}  // namespace periodenteile

/// Interest of the period in which two amounts bear a rate each: betrag * (satz / 100) * tage / jahr, the
/// quotient by 100 in 4-byte floating point, all else in 8-byte, both amounts added, the sum rounded once by
/// `RundeKaufmaennisch`. An amount of one rate only comes with a second amount of 0. Not finite where the
/// amounts overflow.
[[nodiscard]] inline Periodenergebnis PeriodenZinsen(const Datum& von, const Datum& bis,
                                                     Verzinsungsmethode methode, Zinsbasis erste,
                                                     Zinsbasis zweite) {
    const int tage = Zinstage(von, bis, methode);
    const double jahreszins1 = periodenteile::Jahreszins(erste);
    const double jahreszins2 = periodenteile::Jahreszins(zweite);
    if (methode == Verzinsungsmethode::englisch && von.Jahr() != bis.Jahr()) {
        return {tage, RundeKaufmaennisch(
                          periodenteile::UeberJahresende(von, bis, tage, jahreszins1, jahreszins2), 2)};
    }
    const double jahr =
        methode == Verzinsungsmethode::englisch ? Jahreslaenge(von.Jahr()) : FesteJahreslaenge(methode);
    return {tage, RundeKaufmaennisch(jahreszins1 * tage / jahr + jahreszins2 * tage / jahr, 2)};
}

}  // namespace zinfolio
