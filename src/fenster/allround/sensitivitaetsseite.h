#pragma once

#include <QWidget>

#include "kern/allround/sensitivitaet.h"

class QComboBox;
class QLabel;

namespace zinfolio {

class Eingabefeld;
class Tabelle;

/// The table of eleven rates, on a page of its own.
class Sensitivitaetsseite : public QWidget {
    Q_OBJECT

  public:
    explicit Sensitivitaetsseite(QWidget* eltern);

    /// Reads the controls into `eingabe`.
    void Lesen(Sensitivitaetseingabe& eingabe) const;
    void Zeigen(const Sensitivitaetseingabe& eingabe, const Zellentabelle& tabelle);
    /// The table that is shown belongs to another calculation, since the last one did not come to its end.
    void VeraltetZeigen();

  signals:
    void berechnenVerlangt();
    void druckenVerlangt();
    void grafikVerlangt();
    void zurueck();

  private:
    Eingabefeld* MiZins_;
    QComboBox* Combo2_;
    Tabelle* Grid4_;
    QLabel* hinweis_;
    std::string gerechneterZins_;
};

}  // namespace zinfolio
