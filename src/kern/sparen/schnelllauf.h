#pragma once
// The balance at the end of a plan, without the rows that lead to it: what a search asks for again and again.
// The arithmetic is that of the account's walk, operation by operation, so that both give the same bits.

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "kern/dates/verzinsungsmethode.h"
#include "kern/sparen/planlauf.h"
#include "kern/sparen/sparform.h"

namespace zinfolio {

/// A plan whose dates stand, run with other amounts or another rate.
class Schnelllauf {
  public:
    /// Takes kinds, dates and rates from a finished pass of the same plan. Form and plan outlive this object.
    Schnelllauf(const Sparform& sparform, const Sparplan& sparplan, const Sparlauf& lauf);

    /// The `LetzterKontostand` of a pass with `probe`; faults where that pass has one. REQUIRES: `probe`
    /// tries no end of its own.
    [[nodiscard]] double Endstand(const Planprobe& probe);

  private:
    /// A row: what it does to the balance, and its period as two parts of a year, the second mostly empty.
    struct Zeile {
        std::int16_t art;
        double quotient;
        double tage1;
        double jahr1;
        double tage2;
        double jahr2;
    };

    [[nodiscard]] static Zeile ZeileAus(const Staffelsatz& satz, Datum von, Datum bis,
                                        Verzinsungsmethode methode);
    void BetraegeBilden(const Planprobe& probe);
    [[nodiscard]] double Durchgehen(std::optional<double> quotient) const;

    const Sparform& form;
    const Sparplan& plan;
    std::vector<Zeile> zeilen;
    std::vector<double> betraege;
};

}  // namespace zinfolio
