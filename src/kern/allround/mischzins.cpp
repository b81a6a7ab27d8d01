#include "kern/allround/mischzins.h"

#include <cmath>
#include <limits>

namespace zinfolio {

double Mischzins::JahresPotenz(int jahre) {
    // Only a series out of order has negative spans.
    if (jahre < 0) return Potenz(1 + r, jahre);
    const auto platz = static_cast<std::size_t>(jahre);
    if (platz >= potenzen.size()) potenzen.resize(platz + 1, std::numeric_limits<double>::quiet_NaN());
    double& potenz = potenzen[platz];
    if (std::isnan(potenz)) potenz = Potenz(1 + r, jahre);
    return potenz;
}

double Mischzins::Faktor(int tage30) {
    const Jahresteile spanne = InJahresteile(tage30);
    return Endlich(Zuwachs(spanne, r, JahresPotenz(spanne.jahre)));
}

}  // namespace zinfolio
