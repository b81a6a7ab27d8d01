#pragma once
// Short ways to write a payment series in a test.

#include <array>
#include <initializer_list>
#include <ostream>
#include <string_view>
#include <utility>
#include <vector>

#include "kern/finmath/effektivmethode.h"
#include "kern/finmath/reihensatz.h"

namespace zinfolio {

inline constexpr std::array alleMethoden{Effektivmethode::pangvAlt, Effektivmethode::aidb360,
                                         Effektivmethode::isma, Effektivmethode::pangv2000};

inline void PrintTo(Effektivmethode methode, std::ostream* strom) {
    *strom << effektivmethoden.at(static_cast<std::size_t>(methode) - 1);
}

/// Reihe({{"01.01.2007", -1000}, {"01.01.2008", 1100}})
inline std::vector<Reihensatz> Reihe(std::initializer_list<std::pair<std::string_view, double>> zahlungen) {
    std::vector<Reihensatz> reihe;
    for (const auto& [datum, betrag] : zahlungen)
        reihe.push_back(Reihenzeile(datum, betrag));
    return reihe;
}

}  // namespace zinfolio
