#pragma once

#include <functional>

#include "fenster/rechner/ablage.h"

namespace zinfolio {

/// What differs between calculators that keep one set of values, without a name.
struct Werteart {
    /// the fixed name of the button "Speichern"
    const char* taste;
    /// told before the reason: "Die Angaben konnten nicht gespeichert werden."
    const char* nichtGespeichert;
    /// Shows the values as the form opens. A fault comes through.
    std::function<void()> laden;
    /// Writes them. A `Dateifehler` where that is not possible.
    std::function<void()> speichern;
};

/// One set of values in the working folder: shown as the form opens, written by "Speichern" and on leaving.
class Werteablage : public Ablage {
    Q_OBJECT

  public:
    Werteablage(QWidget& fenster, Werteart art);

    void Beginnen() override;
    bool Speichern() override;
    [[nodiscard]] std::vector<Befehlszeile> Befehle() override;
    [[nodiscard]] QWidget* NeueAnzeige() override { return nullptr; }
    [[nodiscard]] QString Name() const override { return {}; }

  private:
    Werteart art_;
};

}  // namespace zinfolio
