#pragma once

#include <QWidget>
#include <memory>
#include <optional>

#include "fenster/tabellen/faktorauswahl.h"
#include "fenster/ui/feldtafel.h"
#include "kern/tabellen/faktortabelle.h"

class QLabel;
class QPushButton;

namespace zinfolio {

class Tabelle;

/// The tab that shows a table of one factor over rates and years.
class RegisterTabelle : public QWidget {
    Q_OBJECT

  public:
    explicit RegisterTabelle(QWidget* eltern);

    [[nodiscard]] Faktortabelleneingabe Lesen() const;
    void Zeigen(const Faktortabelleneingabe& eingabe);

    /// Calculates and shows the table, or gives the refusal; without a table there is none to print. Faults
    /// come through.
    [[nodiscard]] std::optional<Ablehnung> Berechnen();

    /// The table that is shown; nothing where there is none.
    [[nodiscard]] std::shared_ptr<const Faktortabelle> Gezeigte() const { return tabelle_; }

  signals:
    /// The user has changed an entry.
    void geaendert();
    void berechnenVerlangt();
    void druckenVerlangt();

  private:
    QWidget* Eingabetafel();
    void Leeren();

    Faktorauswahl wahl_;
    Feldgruppe<Faktortabelleneingabe> felder_;
    QPushButton* Command1_;
    QPushButton* Command8_;
    QLabel* titel_;
    Tabelle* Grid_;
    std::shared_ptr<const Faktortabelle> tabelle_;
};

}  // namespace zinfolio
