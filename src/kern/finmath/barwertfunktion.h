#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "kern/finmath/aufzinsung.h"
#include "kern/finmath/reihensatz.h"

namespace zinfolio {

/// The present value of one series as a function of the rate, for searches: dates and day counts are worked
/// out once, and neighbours with the same power share it. Every value has the bits of `BarwertRechnen`
/// without a table.
class Barwertfunktion {
  public:
    /// Throws what `BarwertRechnen` throws for a row without a date and for an empty series.
    Barwertfunktion(std::span<const Reihensatz> reihe, Effektivmethode methode);

    /// The present value at a rate in percent per year; a value that is no number is a `Rechenfehler`.
    [[nodiscard]] double operator()(double zinssatz) const;

    /// Calls of `std::pow` for one value.
    [[nodiscard]] std::size_t Potenzen() const;

  private:
    /// Neighbouring rows with the same exponent, up to the row `bis`.
    struct Stufe {
        double exponent = 0;
        std::size_t bis = 0;
    };

    void StufeAnhaengen(double exponent);
    [[nodiscard]] double Abgezinst(double r) const;
    [[nodiscard]] double NachJahrestagen(double r) const;

    Effektivmethode methode;
    std::vector<double> betraege;
    std::vector<Stufe> stufen;
    /// Of `pangvAlt` alone: the way of each row, and the whole span.
    std::vector<Jahrestagsweg> wege;
    Jahresteile spanne;
};

}  // namespace zinfolio
