#pragma once
// Dates in tests: "01.02.2007"_datum, and how a failed check shows them.

#include <cstddef>
#include <ostream>

#include "kern/dates/datum.h"

namespace zinfolio {

/// The date of a literal tt.mm.jjjj; a literal that is no date does not compile in a constant, else throws.
constexpr Datum operator""_datum(const char* text, std::size_t laenge) {
    return Datum::Versuche({text, laenge}).value();
}

inline void PrintTo(const Datum& datum, std::ostream* strom) {
    *strom << datum.Tag() << '.' << datum.Monat() << '.' << datum.Jahr();
}

}  // namespace zinfolio
