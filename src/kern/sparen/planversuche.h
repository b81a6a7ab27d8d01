#pragma once
// The passes of a search: quick while it runs, whole at its end.

#include <cstddef>
#include <optional>
#include <utility>

#include "kern/grund/suchbeobachter.h"
#include "kern/sparen/planlauf.h"

namespace zinfolio {

/// Counts the passes of a plan, and knows the two latest: what they leave in the working files decides what
/// stands there after a search, also after one that a fault has ended.
class Planversuche {
  public:
    /// All four outlive this object.
    Planversuche(const Sparform& sparform, const Sparplan& sparplan, Sparlauf& ziel,
                 const Suchbeobachter& zuhoerer)
        : form(sparform), plan(sparplan), lauf(ziel), beobachter(zuhoerer) {}

    /// A whole pass; gives its `LetzterKontostand`.
    double Ganz(const Planprobe& probe);

    /// A pass that `endstand` stands in for.
    template <typename Endstand>
    double Schnell(const Planprobe& probe, Endstand endstand) {
        Merken(probe);
        return endstand(probe);
    }

    /// Runs a search of quick passes and then the pass of its last trial, whole. A fault of the search leaves
    /// the tables of the two passes before it, as far as they came, and goes on.
    template <typename Suche>
    void Suchen(Suche suche) {
        try {
            suche();
        } catch (const RechnungAbgebrochen&) {
            throw;
        } catch (...) {
            Nachholen();
            throw;
        }
        Planlauf(form, plan, letzter.value(), lauf);
    }

    /// Makes a trial the last one, without a pass of its own.
    void Festlegen(const Planprobe& probe) { letzter = probe; }

    [[nodiscard]] std::size_t Anzahl() const { return anzahl; }

  private:
    void Merken(const Planprobe& probe);
    void Nachholen() noexcept;

    const Sparform& form;
    const Sparplan& plan;
    Sparlauf& lauf;
    const Suchbeobachter& beobachter;
    std::optional<Planprobe> vorletzter;
    std::optional<Planprobe> letzter;
    std::size_t anzahl = 0;
};

}  // namespace zinfolio
