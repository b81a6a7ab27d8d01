#include "dates/periodenzinsen.h"

#include "dates/rundung.h"

namespace zinfolio {
namespace {

/// Amount times rate, the rate's quotient held in 4 bytes: the part of the formula that no day count changes.
double Jahreszins(Zinsbasis basis) {
    return basis.betrag * static_cast<double>(basis.satz / 100.0F);
}

double UeberJahresende(Datum von, Datum bis, int tage, double jahreszins1, double jahreszins2) {
    const Datum schnitt = *Datum::Aus(von.Jahr(), 12, 31);
    const int tageVorher = schnitt - von;
    const double t1 = tageVorher;
    const double t2 = tage - tageVorher;
    return (jahreszins1 * t1 + jahreszins2 * t1) / Jahreslaenge(von.Jahr()) +
           (jahreszins1 * t2 + jahreszins2 * t2) / Jahreslaenge(bis.Jahr());
}

}  // namespace

Periodenergebnis PeriodenZinsen(Datum von, Datum bis, Verzinsungsmethode methode, Zinsbasis erste,
                                Zinsbasis zweite) {
    const int tage = Zinstage(von, bis, methode);
    const double jahreszins1 = Jahreszins(erste);
    const double jahreszins2 = Jahreszins(zweite);
    if (methode == Verzinsungsmethode::englisch && von.Jahr() != bis.Jahr()) {
        return {tage, RundeKaufmaennisch(UeberJahresende(von, bis, tage, jahreszins1, jahreszins2), 2)};
    }
    const double jahr =
        methode == Verzinsungsmethode::englisch ? Jahreslaenge(von.Jahr()) : FesteJahreslaenge(methode);
    return {tage, RundeKaufmaennisch(jahreszins1 * tage / jahr + jahreszins2 * tage / jahr, 2)};
}

}  // namespace zinfolio
