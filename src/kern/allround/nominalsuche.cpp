#include "kern/allround/nominalsuche.h"

#include <cmath>

#include "kern/finmath/aufzinsung.h"

namespace zinfolio {
namespace {

constexpr double ersterSchritt = 0.05;
constexpr double genauNull = 0.001;
constexpr double genauGleich = 0.0001;

/// The last two rates and their balances.
struct Sekante {
    double r0 = 0;
    double b0 = 0;
    double r1 = 0;
    double b1 = 0;

    void Weiter(const std::function<double(double)>& endstand) {
        if (b1 == b0) throw Rechenfehler("Zwei Kontostände der Suche sind gleich.");
        const double r = Endlich(r0 - (r1 - r0) * b0 / (b1 - b0));
        const double b = endstand(r);
        *this = {r1, b1, r, b};
    }

    [[nodiscard]] bool AmZiel() const {
        return std::fabs(b1) < genauNull || std::fabs(b1 - b0) < genauGleich;
    }

    [[nodiscard]] bool GleicheSaetze(const Sekante& andere) const {
        return r0 == andere.r0 && r1 == andere.r1;
    }
};

/// Notices that a walk comes by a place again, by comparing it with one noted at every power of two.
class Ringsuche {
  public:
    explicit Ringsuche(const Sekante& anfang) : vermerk(anfang) {}

    /// The length of the ring, or 0.
    int Laenge(const Sekante& stand) {
        ++schritte;
        if (stand.GleicheSaetze(vermerk)) return schritte;
        if (schritte == weite) {
            vermerk = stand;
            weite *= 2;
            schritte = 0;
        }
        return 0;
    }

  private:
    Sekante vermerk;
    int weite = 1;
    int schritte = 0;
};

}  // namespace

std::optional<double> NominalzinsSuchen(double start, const std::function<double(double)>& endstand) {
    Sekante stand{.r0 = start, .b0 = endstand(start), .r1 = start - ersterSchritt};
    stand.b1 = endstand(stand.r1);
    Ringsuche ring(stand);
    int uebrig = hoechstrundenNominalsuche;
    while (uebrig > 0) {
        stand.Weiter(endstand);
        if (stand.AmZiel()) return stand.r1;
        --uebrig;
        if (const int laenge = ring.Laenge(stand)) uebrig %= laenge;
    }
    return std::nullopt;
}

}  // namespace zinfolio
