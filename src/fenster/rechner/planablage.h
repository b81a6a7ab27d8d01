#pragma once

#include <functional>
#include <string>
#include <vector>

#include "fenster/rechner/ablage.h"

class QComboBox;

namespace zinfolio {

/// The names of the plans of a calculator, and which of them is shown (from 0).
struct Planverzeichnis {
    std::vector<std::string> namen;
    int aktuell = 0;
};

/// What differs between the plans of the calculators.
struct Planart {
    /// told before the reason: "Der Sparplan konnte nicht gespeichert werden."
    const char* nichtGespeichert;
    /// Reads the names as the form opens. A fault comes through, as of all the others.
    std::function<Planverzeichnis()> verzeichnisLesen;
    /// Writes the names alone, after each key that renames a plan.
    std::function<void(const Planverzeichnis&)> namenSchreiben;
    /// Writes names and choice, after another plan was chosen.
    std::function<void(const Planverzeichnis&)> wahlSchreiben;
    /// Shows the plan of that index; writes what is shown as the plan of that index.
    std::function<void(int)> laden;
    std::function<void(int)> speichern;
    /// the most characters of a name
    int namenslaenge = 498;
};

/// Named plans in the working folder, chosen and renamed in the list `Combo3` of the toolbar. Choosing
/// another one gives up unsaved changes of the plan in hand unasked; only leaving asks.
class Planablage : public Ablage {
    Q_OBJECT

  public:
    Planablage(QWidget& fenster, Planart art);

    void Beginnen() override;
    bool Speichern() override;
    [[nodiscard]] std::vector<Befehlszeile> Befehle() override;
    [[nodiscard]] QWidget* NeueAnzeige() override;
    /// The name of the plan in hand.
    [[nodiscard]] QString Name() const override;
    /// Its index, from 0.
    [[nodiscard]] int Aktuell() const { return verzeichnis_.aktuell; }

  private:
    void Waehlen(int plan);
    void Umbenennen(const QString& name);

    Planart art_;
    Planverzeichnis verzeichnis_;
    QComboBox* Combo3_ = nullptr;
    /// The plan in hand could not be read as the form opened: its fields are not those of its file.
    bool ungelesen_ = false;
};

}  // namespace zinfolio
