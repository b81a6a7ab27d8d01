#pragma once
// The named plans of a form: an index of names, and a plan file and a notes file for each.

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "kern/sparen/sparform.h"

namespace zinfolio {

inline constexpr std::size_t plaenejeForm = 100;

struct Planindex {
    /// A plan that has no name yet is called "Neu / unbenannt".
    std::array<std::string, plaenejeForm> namen;
    /// The current plan, from 0.
    std::int16_t aktuell = 0;
};

/// The plan of a file; a missing one and each record that is missing give what a new plan has. "%" or "€" in
/// the place of an amount of change, as older files hold it, is "0". A damaged record is a `Dateifehler`.
[[nodiscard]] Sparplan SparplanLesen(const Sparform& form, const std::filesystem::path& datei);

/// The files of one form's plans in one folder. All operations throw `Dateifehler`.
class Plandateien {
  public:
    /// `sparform` outlives this object. Touches nothing yet.
    Plandateien(const Sparform& sparform, std::filesystem::path arbeitsordner);

    /// A missing index is created empty.
    [[nodiscard]] Planindex IndexLesen() const;
    /// What a damaged index still holds: the names that can be read. Leaves a copy of it beside it, since the
    /// next one to be written takes its place.
    [[nodiscard]] Planindex IndexRetten() const;
    /// Writes all names and the current plan.
    void IndexSchreiben(const Planindex& index) const;
    /// Writes all names; what the file holds behind them stays as it is.
    void NamenSchreiben(const Planindex& index) const;

    /// The plan number `k` (from 0). A missing file is created empty and gives a new plan, and so does each
    /// record that is missing. "%" or "€" in the place of an amount of change, as older files hold it, is
    /// "0".
    [[nodiscard]] Sparplan Laden(std::size_t k) const;
    /// The notes of plan `k`, a rich-text document byte for byte; a missing file is an empty text.
    [[nodiscard]] std::string Notizen(std::size_t k) const;
    /// Saves plan and notes of number `k`; both are complete on the disk before the first takes its place.
    void Speichern(std::size_t k, const Sparplan& plan, std::string_view notizen) const;

    [[nodiscard]] std::filesystem::path Indexpfad() const;
    /// The number in the name counts from 1.
    [[nodiscard]] std::filesystem::path Planpfad(std::size_t k) const;
    /// The number in the name counts from 0, unlike that of the plan (wanted: files find one another so).
    [[nodiscard]] std::filesystem::path Notizpfad(std::size_t k) const;

  private:
    const Sparform* form;
    std::filesystem::path ordner;
};

}  // namespace zinfolio
