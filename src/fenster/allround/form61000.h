#pragma once

#include <filesystem>

#include "fenster/rechner/projektablage.h"
#include "fenster/rechner/rechner.h"
#include "kern/allround/allrounddateien.h"
#include "kern/allround/allroundstand.h"
#include "kern/dateien/dateibefund.h"

namespace zinfolio {

class Einstellungsseite;
class Jahreswertseite;
class RegisterNotizen;
class RegisterPlan;
class RegisterReihenzins;
class RegisterZahlungen;
class Sensitivitaetsseite;
class Werteseite;

/// The window "Allround-Effektivzins- / Kapitalrechner": one series of payments, and on further tabs its
/// effective rate, its values, its repayment plan and the notes. Selecting a tab of results calculates them.
class Form61000 : public Rechner {
    Q_OBJECT

  public:
    /// Opens with an empty series in the working folder. A `Dateifehler` where that cannot be written.
    explicit Form61000(const std::filesystem::path& arbeitsordner);

  private:
    [[nodiscard]] std::vector<Registerzeile> Registerzeilen();
    [[nodiscard]] std::vector<Befehlszeile> Befehle();
    [[nodiscard]] Projektart Projektbeschreibung();
    void Verdrahten();
    void WerteVerdrahten();
    void NotizseiteAnlegen();

    void Neu();
    void Laden(const std::filesystem::path& datei, Leseanlass anlass);

    void EffektivzinsRechnen();
    void WerteBetreten(Wertart art);
    void Analysieren();
    void JahreswerteZeigen();
    void SensitivitaetZeigen();
    void SensitivitaetRechnen();
    void PlanBetreten();
    void PlanRechnen();
    /// Runs a step of the plan; true where it came to its end. A fault ends it without a word; after a
    /// refusal the tab before is shown again.
    bool PlanSchritt(const Rechenschritt& schritt);
    void PlanAbbrechen();
    void PlanansichtWaehlen();

    [[nodiscard]] Bericht Effektivzinsbericht() const;
    [[nodiscard]] Bericht Wertbericht() const;
    [[nodiscard]] Bericht Sensitivitaetsbericht() const;
    [[nodiscard]] Bericht Planbericht() const;
    void NotizenDrucken();
    void NotizenKopieren();
    void VorgabezinsSpeichern();

    Allrounddateien dateien_;
    Allroundstand stand_;
    /// What the project that was read last holds and a calculation passes over.
    std::vector<Befund> befunde_;
    RegisterZahlungen* zahlungen_;
    RegisterReihenzins* reihenzins_;
    /// The two tabs of values; `werte_` stands on the one that is selected.
    QWidget* barwertregister_;
    QWidget* endwertregister_;
    Werteseite* werte_;
    RegisterPlan* plan_;
    QWidget* notizregister_;
    RegisterNotizen* notizen_;
    Sensitivitaetsseite* sensitivitaet_;
    Jahreswertseite* jahreswerte_;
    Einstellungsseite* einstellungen_;
    /// The tab that a refused plan goes back to.
    QWidget* letztesRegister_;
};

}  // namespace zinfolio
