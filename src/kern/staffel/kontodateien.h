#pragma once

#include <filesystem>
#include <optional>

#include "kern/dateien/satzdatei.h"
#include "kern/grund/ablehnung.h"
#include "kern/staffel/konto.h"

namespace zinfolio {

/// The working files of an account in one folder.
class Kontodateien {
  public:
    explicit Kontodateien(std::filesystem::path ordner);

    /// `Zinsstaffel1`
    [[nodiscard]] const Satzdatei<Staffelsatz>& Zahlungen() const { return zahlungen_; }
    /// `ZinsstaffelZins`
    [[nodiscard]] const Satzdatei<Staffelsatz>& Konditionen() const { return konditionen_; }
    [[nodiscard]] const std::filesystem::path& Ordner() const { return ordner_; }

    /// Starts a new account: payments and conditions are empty files, the settings file is gone. A
    /// `Dateifehler` where the folder cannot be written.
    void Neu() const;

    /// Reads the input, calculates, and writes back what a calculation leaves on disk: the sorted input,
    /// `Zinsverrechnungstermine` and `Lösungsdatei`, as far as it came when a refusal or a fault ended it.
    /// The statement stands in `konto` afterwards.
    [[nodiscard]] std::optional<Ablehnung> Rechnen(const Kontoeinstellungen& einstellungen,
                                                   Konto& konto) const;

  private:
    void Ablegen(const Konto& konto, const Konto& vorher) const;

    std::filesystem::path ordner_;
    Satzdatei<Staffelsatz> zahlungen_;
    Satzdatei<Staffelsatz> konditionen_;
    Satzdatei<Staffelsatz> termine_;
    Satzdatei<Staffelsatz> loesung_;
};

}  // namespace zinfolio
