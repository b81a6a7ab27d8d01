#pragma once

#include "fenster/rechner/rechner.h"

namespace zinfolio {

class RegisterEinzelfaktor;
class RegisterTabelle;

/// The tables of the financial factors: a table of one factor, and one factor applied to one amount. It keeps
/// its last input in `Fintabellen`.
class Form14005 : public Rechner {
    Q_OBJECT

  public:
    explicit Form14005(const std::filesystem::path& arbeitsordner);

  private:
    void Verdrahten();
    void TabelleDrucken();
    void Laden();
    void Speichern();
    /// Calculates what the tab in front shows.
    void Berechnen();

    std::filesystem::path arbeitsordner_;
    RegisterTabelle* tabelle_;
    RegisterEinzelfaktor* einzeln_;
};

}  // namespace zinfolio
