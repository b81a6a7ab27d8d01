#pragma once

#include <filesystem>
#include <functional>
#include <optional>

#include "fenster/rechner/ablage.h"
#include "fenster/ui/dateidialog.h"
#include "kern/dateien/dateibefund.h"
#include "kern/dateien/dateigruppe.h"

namespace zinfolio {

/// Why a project is read: the user opens it, or it has just been saved and shows what it holds.
enum class Leseanlass { oeffnen, wiederladen };

/// What differs between the projects of the calculators.
struct Projektart {
    /// what the dialogs call it: "Konto"
    const char* sache;
    /// told before the reason: "Das Konto konnte nicht gespeichert werden."
    const char* nichtGespeichert;
    const char* filter;
    /// without its point
    const char* endung;

    /// Begins anew: empties working files and controls.
    std::function<void()> neu;
    /// Brings a project into working files and controls: reads and checks all of it first, so that a fault,
    /// which comes through, has changed nothing.
    std::function<void(const std::filesystem::path&, Leseanlass)> laden;
    /// Writes the project. A `Dateifehler` where that is not possible.
    std::function<void(const std::filesystem::path&)> speichern;
    /// Writes into the working files what only the controls hold: before every save, and before leaving;
    /// optional.
    std::function<void()> festhalten = {};
    /// Puts the working files in order before the save of leaving; optional.
    std::function<void()> ordnen = {};
    /// The names of the files that belong together; with it, a save under a new name asks before it takes
    /// files of another project; optional.
    const Gruppenaufbau* aufbau = nullptr;
    /// What the project that was read last holds and a calculation passes over; optional.
    std::function<std::vector<Befund>()> befunde = {};
    /// Whether beginning anew asks before it gives up unsaved changes.
    bool neuFragt = true;
    /// Whether the project is shown with the ending of its file.
    bool mitEndung = true;
};

/// A project in files that the user names: new, open, save, save as.
class Projektablage : public Ablage {
    Q_OBJECT

  public:
    Projektablage(QWidget& fenster, Projektart art);

    void Beginnen() override;
    bool Speichern() override;
    [[nodiscard]] std::vector<Befehlszeile> Befehle() override;
    [[nodiscard]] QWidget* NeueAnzeige() override;
    [[nodiscard]] QMenu* NeuesMenue() override;
    [[nodiscard]] QString Name() const override;
    [[nodiscard]] QString Exportstamm() const override;

    /// Shows a project without asking for its name; what speaks against it is told.
    void DateiOeffnen(const std::filesystem::path& datei);

    /// The same for a project that takes the place of what is shown: asks as "Öffnen" does where there is
    /// something to lose. The project that is shown already stays as it is.
    void ZuDateiWechseln(const std::filesystem::path& datei);

  protected:
    void VorDerFrage() override;
    [[nodiscard]] bool VorDemAbschied() override;

  private:
    void NeuBeginnen();
    void Oeffnen();
    bool SpeichernUnter();
    bool Laden(const std::filesystem::path& datei, Leseanlass anlass);
    void BefundeMelden();
    [[nodiscard]] bool ErsetzenGewollt(const std::filesystem::path& datei);
    [[nodiscard]] bool Festhalten();
    bool ProjektSchreiben(const std::filesystem::path& datei);
    void Benennen(std::optional<std::filesystem::path> datei);
    [[nodiscard]] Dateifrage Frage(Dateifrage::Zweck zweck) const;

    Projektart art_;
    /// None for a project without a name.
    std::optional<std::filesystem::path> datei_;
};

}  // namespace zinfolio
