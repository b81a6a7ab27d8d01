#pragma once

#include "fenster/rechner/projektablage.h"
#include "fenster/rechner/rechner.h"
#include "kern/staffel/kontodateien.h"

namespace zinfolio {

class RegisterBerechnung;
class RegisterEffektivzins;
class RegisterNotizen;
class RegisterZahlungen;
class RegisterZinssaetze;
class RegisterZinsverrechnung;

/// The window "Zinsstaffelrechner": payments, conditions and settings of an account on tabs, its statement,
/// its notes, and the project that holds all this. Selecting the tab "Zinsstaffel berechnen" calculates;
/// nothing else does.
class Form48000 : public Rechner {
    Q_OBJECT

  public:
    /// Opens with an empty account in the working folder. A `Dateifehler` where that cannot be written.
    explicit Form48000(const std::filesystem::path& arbeitsordner);

    /// The indexes of the tabs, from 0.
    enum Register { zahlungen, zinssaetze, zinsverrechnung, berechnung, notizen, effektivzinssatz };

  private:
    [[nodiscard]] std::vector<Registerzeile> Registerzeilen();
    [[nodiscard]] Projektart Kontoprojekt();
    void Verdrahten();

    void Neu();
    void Laden(const std::filesystem::path& datei, Leseanlass anlass);
    void Sortieren();
    void KontoWechseln();
    void ErgebnisLeeren();

    void KontoRechnen();
    void EffektivzinsRechnen();
    [[nodiscard]] Bericht Kontobericht() const;
    [[nodiscard]] Bericht Effektivzinsbericht() const;
    void GrafikZeigen();
    /// The user has changed what the account is calculated from.
    void KontoGeaendert();
    /// Says where the rate of the sixth tab is not that of the account.
    void ZugehoerigkeitZeigen();
    /// Leaves the sixth tab; an account that has been changed is calculated anew.
    void ZurStaffel();

    Kontodateien dateien_;
    /// What of the project that was read last a calculation passes over.
    std::vector<Befund> befunde_;
    RegisterZahlungen* zahlungen_;
    RegisterZinssaetze* zinssaetze_;
    RegisterZinsverrechnung* zinsverrechnung_;
    RegisterBerechnung* berechnung_;
    RegisterNotizen* notizen_;
    /// Its tab exists only while there is a result.
    RegisterEffektivzins* effektivzins_;
    /// The statement that its rate was calculated from, and whether the account was changed after the last
    /// one.
    std::shared_ptr<const std::vector<Staffelsatz>> bewertet_;
    bool geaendertSeitRechnung_ = false;
};

}  // namespace zinfolio
