#pragma once

#include <CLI/App.hpp>
#include <string>

#include "stapel/befehle/staffelaufruf.h"

namespace zinfolio {

/// The options of the command `staffel`.
class Staffeloptionen {
  public:
    /// Adds them to the command, which outlives this object.
    explicit Staffeloptionen(CLI::App& befehl);

    /// What the parsed options ask for. Throws `Aufruffehler`.
    [[nodiscard]] Staffelaufruf Lesen() const;

  private:
    using Option = const CLI::Option*;

    void EingabenAnbieten(CLI::App& befehl);
    void AusgabenAnbieten(CLI::App& befehl);
    void EingabePruefen() const;
    [[nodiscard]] Kontoeinstellungen EinstellungenLesen() const;
    [[nodiscard]] bool TabelleVerlangt() const;

    Option projekt_ = nullptr;
    Option zahlungen_ = nullptr;
    Option zinssaetze_ = nullptr;
    Option abschluss_ = nullptr;
    Option zinsverrechnung_ = nullptr;
    Option verzinsung_ = nullptr;
    Option ansicht_ = nullptr;
    Option effektiv_ = nullptr;
    Option format_ = nullptr;
    Option ausgabe_ = nullptr;
    Option pdf_ = nullptr;
    Option rtf_ = nullptr;
    Option html_ = nullptr;
};

}  // namespace zinfolio
