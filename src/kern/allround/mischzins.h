#pragma once

#include <vector>

#include "kern/finmath/aufzinsung.h"

namespace zinfolio {

/// Growth at one rate over spans of 30/360 days, compounded by whole years and simple within a year:
/// (1 + r) ^ jahre * (1 + r * tage / 360). A power that has been worked out is kept: a series meets the same
/// years over and over.
class Mischzins {
  public:
    /// Percent per year.
    explicit Mischzins(double zinssatz) : r(zinssatz / 100) {}

    /// The factor, which may be 0 or negative from -100 percent down. One that is no number is a
    /// `Rechenfehler`.
    [[nodiscard]] double Faktor(int tage30);

  private:
    [[nodiscard]] double JahresPotenz(int jahre);

    double r;
    /// By years; NaN where none has been asked for.
    std::vector<double> potenzen;
};

}  // namespace zinfolio
