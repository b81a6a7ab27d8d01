#pragma once

#include "fenster/rechner/planablage.h"
#include "fenster/rechner/rechner.h"
#include "kern/sparen/plandateien.h"
#include "kern/sparen/sparbericht.h"
#include "kern/sparen/sparrechnung.h"

namespace zinfolio {

class RegisterBerechnung;
class RegisterNotizen;
class Sparfelder;
class Suchzeile;
class Zinstabellenseite;
struct Sparrechnung;

/// The window of a savings calculator, whichever: the fields of a plan on the first tab, its result on the
/// second, its notes on the third, the short calculator behind the fourth. Selecting the second tab
/// calculates; nothing else does. What a form is stands in its descriptor.
class Sparrechner : public Rechner {
    Q_OBJECT

  public:
    /// Opens with the plan that was chosen last. A `Dateifehler` where the working folder cannot be used.
    Sparrechner(const Sparform& form, const std::filesystem::path& arbeitsordner);

  private:
    [[nodiscard]] static Rechnerart Art(const Sparform& form);
    [[nodiscard]] RegisterBerechnung* NeuerAuszug();
    [[nodiscard]] std::vector<Registerzeile> Registerzeilen();
    void KurzrechnerOeffnen();
    [[nodiscard]] Planart Plaene();
    [[nodiscard]] static Planindex Index(const Planverzeichnis& plaene);
    void Verdrahten();

    [[nodiscard]] Sparplan Lesen() const;
    void Zeigen(const Sparplan& plan);
    void PlanLaden(int nummer);
    void Speicherung(int nummer);

    void Berechnen();
    /// Shows what became of a calculation.
    void Abschliessen(Sparrechnung& rechnung, const std::exception_ptr& fehler);
    void ErgebnisZeigen(const Sparplan& plan, Sparergebnis ergebnis);
    void EffzinsZeigen(const Sparplan& plan);
    void ErgebnisLeeren();
    void InTabelleAblehnen(const Ablehnung& ablehnung);
    void EffzinsBerechnen();
    [[nodiscard]] Sparberichtsdaten Berichtsdaten() const;
    void TextZeigen();
    void GrafikZeigen();

    const Sparform& form_;
    std::filesystem::path ordner_;
    Plandateien dateien_;
    Sparstand stand_;
    /// The result that is shown, the plan that it is of, and whether its effective rate was calculated.
    Sparergebnis ergebnis_;
    Sparplan gerechnet_;
    bool effzinsGezeigt_ = false;
    Sparfelder* felder_;
    RegisterBerechnung* auszug_;
    Suchzeile* suche_;
    RegisterNotizen* notizen_;
    /// None where the rate of a plan never changes.
    Zinstabellenseite* zinstabelle_ = nullptr;
};

/// One class a form, so that the start screen opens each by its type.
template <Sparziel ziel>
class SparrechnerFuer : public Sparrechner {
  public:
    explicit SparrechnerFuer(const std::filesystem::path& arbeitsordner)
        : Sparrechner(SparformVon(ziel), arbeitsordner) {}
};

using Form90000 = SparrechnerFuer<Sparziel::endkapital>;
using Form94000 = SparrechnerFuer<Sparziel::sparrate>;
using Form92000 = SparrechnerFuer<Sparziel::rendite>;
using Form96000 = SparrechnerFuer<Sparziel::anspardauer>;
using Form99000 = SparrechnerFuer<Sparziel::anfangskapital>;

}  // namespace zinfolio
