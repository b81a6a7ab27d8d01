#pragma once

#include <QWidget>
#include <optional>

#include "fenster/tabellen/faktorauswahl.h"
#include "fenster/ui/feldtafel.h"
#include "kern/tabellen/einzelfaktor.h"

class QLabel;
class QPushButton;

namespace zinfolio {

/// The tab that applies one factor to one amount and explains the result.
class RegisterEinzelfaktor : public QWidget {
    Q_OBJECT

  public:
    explicit RegisterEinzelfaktor(QWidget* eltern);

    [[nodiscard]] Einzelfaktoreingabe Lesen() const;
    void Zeigen(const Einzelfaktoreingabe& eingabe);

    /// Calculates and shows the result, or gives the refusal; without a result there is none to print. Faults
    /// come through.
    [[nodiscard]] std::optional<Ablehnung> Berechnen();

    /// The texts that are shown.
    [[nodiscard]] const Einzelfaktor& Gezeigtes() const { return gezeigt_; }

  signals:
    /// The user has changed an entry.
    void geaendert();
    void berechnenVerlangt();
    void druckenVerlangt();

  private:
    void ErgebnisZeigen(Einzelfaktor ergebnis);

    Faktorauswahl wahl_;
    Feldgruppe<Einzelfaktoreingabe> felder_;
    QPushButton* Berechnen2_;
    QPushButton* Command4_;
    QLabel* Ergebnis_;
    QLabel* Erklärung3_;
    Einzelfaktor gezeigt_;
};

}  // namespace zinfolio
