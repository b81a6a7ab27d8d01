#include "kern/finmath/effektivsuche.h"

#include <cmath>

#include "kern/finmath/aufzinsung.h"
#include "kern/finmath/stellen15.h"

namespace zinfolio {
namespace {

constexpr int hoechstschritte = 50;
constexpr double genauNull = 0.00001;
constexpr double grenzeGanzzahl = 2147483648.0;

struct Punkt {
    double x = 0;
    double y = 0;
};

/// True where both values are positive or both are negative.
bool GleicheSeite(double y, double anderes) {
    return (y > 0 && anderes > 0) || (y < 0 && anderes < 0);
}

/// True where the value, rounded to a whole number of 4 bytes with halves to the even neighbour, is not 0.
bool GanzNichtNull(double y) {
    if (std::fabs(y) >= grenzeGanzzahl)
        throw Rechenfehler("Ein Barwert passt in keine ganze Zahl von 4 Byte.");
    return std::nearbyint(y) != 0;
}

/// The two ends that enclose a root, if the start points do.
struct Einschluss {
    Punkt unten;
    Punkt oben;
    bool gilt = false;

    /// The step itself, or the middle of the bracket where the step (a fraction of one) leaves it.
    [[nodiscard]] double Halten(double schritt) const {
        const bool draussen = schritt <= unten.x / 100 || schritt >= oben.x / 100;
        return gilt && draussen ? (unten.x + oben.x) / 200 : schritt;
    }

    void Verengen(const Punkt& neu) {
        if (!gilt || !(neu.x > unten.x && neu.x < oben.x)) return;
        if (GleicheSeite(oben.y, neu.y)) {
            oben = neu;
            return;
        }
        const bool ganz = GanzNichtNull(unten.y);
        if ((unten.y < 0 && neu.y < 0) || (ganz && neu.y > 0)) unten = neu;
    }
};

/// The secant's zero as a fraction of one.
double Sekante(const Punkt& alt, const Punkt& neu) {
    const double nenner = Endlich(neu.y - alt.y);
    if (nenner == 0) throw Rechenfehler("Zwei Barwerte der Suche sind gleich.");
    return Endlich(alt.x / 100 - ((neu.x / 100 - alt.x / 100) * alt.y) / nenner);
}

}  // namespace

bool Effektivsuche::Eindeutig() const {
    return std::fabs(Barwert) <= 1;
}

Effektivsuche EffektivzinsSuchen(const std::function<double(double)>& barwert) {
    const auto punktBei = [&](double x) { return Punkt{x, Endlich(RundeAuf15Stellen(barwert(x)))}; };
    Punkt alt = punktBei(10);
    Punkt neu = punktBei(1);
    Einschluss klammer{neu, alt, (alt.y >= 0 && neu.y <= 0) || (alt.y <= 0 && neu.y >= 0)};
    int schritte = 0;
    do {
        ++schritte;
        const double schritt = klammer.Halten(Sekante(alt, neu));
        alt = neu;
        neu = punktBei(100 * schritt);
        klammer.Verengen(neu);
    } while (std::fabs(neu.y) >= genauNull && schritte != hoechstschritte);
    return {neu.x, neu.y, schritte, klammer.gilt};
}

}  // namespace zinfolio
