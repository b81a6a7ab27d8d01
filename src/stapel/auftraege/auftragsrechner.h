#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "stapel/json/jsonleser.h"

namespace zinfolio {

/// How a job went: calculated, refused by the calculation, or no valid job.
enum class Ausgang { gerechnet, abgelehnt, ungueltig };

/// The outcome beside the result text: the message where there is no result, and for a job that is not valid
/// the place in its text, as far as it is known.
struct Auftragsausgang {
    Ausgang ausgang = Ausgang::gerechnet;
    std::string meldung{};
    std::optional<std::size_t> stelle{};
};

/// Calculates jobs. One object serves one thread.
class Auftragsrechner {
  public:
    /// Appends the result of one job as compact JSON, without a line end. While a long result is written,
    /// `abfluss` may be called to take what is in `ergebnis`, and empties it; without it all stays. REQUIRES:
    /// `nachlauf` bytes behind `auftrag`. Throws `std::bad_alloc` and what `abfluss` throws; all else that
    /// goes wrong is told in the result.
    Auftragsausgang Rechnen(std::string_view auftrag, std::string& ergebnis,
                            const Rueckruf<void()>* abfluss = nullptr);

  private:
    Auftragsausgang Versuchen(std::string_view auftrag, std::string& ergebnis,
                              const Rueckruf<void()>* abfluss);

    JsonLeser leser;
    Auftragskopf kopf;
};

}  // namespace zinfolio
