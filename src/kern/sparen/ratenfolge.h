#pragma once
// How a savings rate moves: from date to date, and from amount to amount.

#include <cstdint>
#include <optional>
#include <string>

#include "kern/dates/datum.h"
#include "kern/sparen/sparform.h"

namespace zinfolio {

/// A field that is read as a number when it is needed first, and then kept.
class Feldzahl {
  public:
    /// `feldtext` outlives this object.
    explicit Feldzahl(const std::string& feldtext) : text(&feldtext) {}
    /// Throws `Zahlfehler`.
    [[nodiscard]] double operator()();

  private:
    const std::string* text;
    std::optional<double> wert;
};

/// The amounts of a plan's rates, one after the other. The plan outlives this object.
class Ratenfolge {
  public:
    /// `startrate`: the first rate, in currency.
    Ratenfolge(const Sparform& form, const Sparplan& sparplan, double startrate);

    /// The next rate behind the first. A field that is no number is a `Zahlfehler`, an overflow a
    /// `Rechenfehler`.
    [[nodiscard]] double Naechste();

  private:
    void AendereMitGrenzen();
    void AendereEinfach();

    const Sparplan& plan;
    Dynamik dynamik;
    Feldzahl anzahl;
    Feldzahl delta;
    Feldzahl delta2;
    Feldzahl dynAnz;
    Feldzahl maximum;
    Feldzahl minimum;
    double rate;
    int ratenzaehler = 0;
    int stufenzaehler = 0;
};

/// The dates of a plan's rates, one after the other. The day of the first rate is kept where a month has it.
class Ratentage {
  public:
    /// The first date is that of `ratdatum1`; a text that is none is a `Datumsfehler`.
    explicit Ratentage(const Sparplan& plan);

    /// The next date as the end of a plan is tested against it: on the day of the date before. Leaving the
    /// calendar is a `Datumsfehler`.
    [[nodiscard]] Datum Rohes() const;
    /// Moves on to that date, on its own day. A month end in December 9999 is a `Datumsfehler`.
    [[nodiscard]] Datum Weiter(Datum rohes);

  private:
    Datum tag;
    int rastertag;
    int monate;
    bool monatsende;
};

}  // namespace zinfolio
