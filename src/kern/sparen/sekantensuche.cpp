#include "kern/sparen/sekantensuche.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <utility>
#include <vector>

#include "kern/dates/rundung.h"
#include "kern/grund/rechenfehler.h"

namespace zinfolio {
namespace {

constexpr double gleicheFunktionswerte = 0.001;

/// The way of a search, to find out when it goes round in a ring.
class Suchweg {
  public:
    /// Enters a pair of trials; gives the member of the ring that is nearest to the target, where the pair
    /// has been met before.
    [[nodiscard]] const Suchpunkt* Ringbester(const Sekante& paar) {
        const auto [stelle, neu] = erstmals.try_emplace({paar.alt.x, paar.neu.x}, punkte.size());
        if (neu) {
            punkte.push_back(paar.neu);
            return nullptr;
        }
        const auto anfang = punkte.begin() + static_cast<std::ptrdiff_t>(stelle->second);
        return &*std::min_element(anfang, punkte.end(), [](const Suchpunkt& a, const Suchpunkt& b) {
            return std::fabs(a.f) < std::fabs(b.f);
        });
    }

  private:
    std::map<std::pair<double, double>, std::size_t> erstmals;
    std::vector<Suchpunkt> punkte;
};

}  // namespace

double Sekantenschritt(const Sekante& sekante) {
    const auto& [alt, neu] = sekante;
    if (neu.f == alt.f) throw Rechenfehler("Zwei Versuche der Suche haben denselben Endstand.");
    const double x = alt.x - alt.f * (neu.x - alt.x) / (neu.f - alt.f);
    if (!std::isfinite(x)) throw Rechenfehler("Überlauf in der Suche.");
    return x;
}

Suchpunkt CentsucheLaufen(const Suchaufgabe& aufgabe, Sekante sekante) {
    Suchweg weg;
    static_cast<void>(weg.Ringbester(sekante));
    for (int runde = 0; runde < hoechstzahlRunden; ++runde) {
        double x = RundeKaufmaennisch(Sekantenschritt(sekante), 2);
        if (aufgabe.begrenzen) x = aufgabe.begrenzen(x);
        sekante = {sekante.neu, {x, aufgabe.abweichung(x)}};
        if (std::fabs(sekante.alt.f - sekante.neu.f) < gleicheFunktionswerte) return sekante.neu;
        if (const Suchpunkt* bester = weg.Ringbester(sekante)) return *bester;
    }
    return {sekante.neu.x, std::numeric_limits<double>::infinity()};
}

}  // namespace zinfolio
