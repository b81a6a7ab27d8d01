#pragma once

#include <string>

#include "kern/dates/datum.h"

namespace zinfolio {

/// Days from `von` to `bis` on months of 30 days. A 31st, and the last day of February, count as the 30th, in
/// both dates. Negative when `bis` lies before `von`. 28.02. of a leap year stays the 28th: 28.02.2007
/// to 28.02.2008 is 358.
[[nodiscard]] constexpr int Tage30(const Datum& von, const Datum& bis) {
    const auto tag = [](const Datum& datum) {
        if (datum.Tag() < 28) return datum.Tag();
        const bool februarende = datum.Monat() == 2 && datum.Tag() == Monatslaenge(datum.Jahr(), 2);
        return datum.Tag() == 31 || februarende ? 30 : datum.Tag();
    };
    return tag(bis) + 30 * (bis.Monat() - von.Monat()) + 360 * (bis.Jahr() - von.Jahr()) - tag(von);
}

/// A date inside a day count that cannot be read. Its text is the message that the user sees before the
/// program ends.
class Tage30Fehler : public Datumsfehler {
  public:
    Tage30Fehler();
};

/// `Tage30` of two date texts, as they stand in a record. A text that is no date is a `Tage30Fehler`, the one
/// fault that ends the program.
[[nodiscard]] int Tage30(std::string_view von, std::string_view bis);

}  // namespace zinfolio
