#pragma once
// Random series, the same in every run.

#include <cstdint>
#include <random>
#include <vector>

#include "kern/finmath/reihensatz.h"

namespace zinfolio {

class Reihenerzeuger {
  public:
    explicit Reihenerzeuger(std::uint64_t saat) : zufall(saat) {}

    /// 2 to `hoechstens` rows in order of date from 2000 to 2030, amounts in cents, the first ones mostly
    /// paid out.
    std::vector<Reihensatz> Geordnet(int hoechstens);
    /// The same in any order.
    std::vector<Reihensatz> Ungeordnet(int hoechstens);
    /// One row a year, on a day that every year has.
    std::vector<Reihensatz> GanzeJahre(int hoechstens);

    int Zahl(int von, int bis);
    /// A rate in percent: mostly usual ones, sometimes 0, -100, below that, or far off.
    double Zinssatz();

  private:
    double Betrag(bool ausgezahlt);
    std::vector<Reihensatz> AusTageszahlen(const std::vector<std::int64_t>& tage);

    std::mt19937_64 zufall;
};

}  // namespace zinfolio
