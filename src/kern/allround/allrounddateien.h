#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "kern/allround/reihenzins.h"
#include "kern/allround/tilgungsplan.h"
#include "kern/dateien/satzdatei.h"
#include "kern/grund/ablehnung.h"
#include "kern/staffel/staffelsatz.h"

namespace zinfolio {

/// The working files of the all-round calculator in one folder. Each operation reads what it needs once and
/// leaves the files that it tells, also where a refusal or a fault ends it. Faults come through.
class Allrounddateien {
  public:
    explicit Allrounddateien(std::filesystem::path arbeitsordner);

    /// `ZahlungenT`
    [[nodiscard]] const Satzdatei<Staffelsatz>& Zahlungen() const { return zahlungen_; }
    [[nodiscard]] const std::filesystem::path& Ordner() const { return ordner_; }

    /// Starts a new series: `ZahlungenT` is an empty file.
    void Neu() const;

    /// Sorts `ZahlungenT` and gives its rows.
    [[nodiscard]] std::vector<Staffelsatz> ZahlungenSortieren() const;

    /// Looks for the effective rate of the payments in the order of their file (wanted: this does not sort).
    /// Leaves `Lösungszahlungsreihe`, and where there is a rate `Vendwertberechnung` and `Barwertberechnung`.
    /// Refuses an empty series.
    [[nodiscard]] std::optional<Ablehnung> EffektivzinsRechnen(Effektivmethode methode,
                                                               Reihenzins& zins) const;

    /// Sorts the payments and leaves them as `LösungszahlungsreiheR`. Refuses a series in one direction.
    [[nodiscard]] std::optional<Ablehnung> ReiheSchreibenR() const;

    /// The rows of that file, of which a plan is calculated.
    [[nodiscard]] std::vector<Reihensatz> PlanreiheLesen() const { return planreihe_.Lesen(); }
    /// Leaves `Lösungstableau5R` and `Kurztableau5R` of a plan, as far as it came.
    void PlanAblegen(const Tilgungsplan& plan) const;

    /// The default rate as typed; "10" where none is stored, or nothing that can be read. Of
    /// `Allrounddatenallgemein`.
    [[nodiscard]] std::string VorgabezinsLesen() const;
    /// Stores it; an empty text stores the whole number 10.
    void VorgabezinsSchreiben(const std::string& abzins) const;

  private:
    std::filesystem::path ordner_;
    Satzdatei<Staffelsatz> zahlungen_;
    Satzdatei<Reihensatz> planreihe_;
};

}  // namespace zinfolio
