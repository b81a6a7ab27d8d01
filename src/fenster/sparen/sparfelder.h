#pragma once

#include <QWidget>
#include <deque>
#include <vector>

#include "fenster/ui/feldtafel.h"
#include "kern/sparen/sparform.h"

class QLabel;

namespace zinfolio {

class Datumsfeld;

/// The tab "Daten" of a savings calculator: the fields that its form has, in sections. They hold the plan as
/// texts and choices; nothing is calculated here.
class Sparfelder : public QWidget {
    Q_OBJECT

  public:
    explicit Sparfelder(const Sparform& form, QWidget* eltern);

    /// `plan` with what the fields hold; the members without a field here stay.
    [[nodiscard]] Sparplan Lesen(const Sparplan& plan) const { return felder_.Lesen(plan); }

    /// Shows a plan in all fields.
    void Zeigen(const Sparplan& plan);

    /// Brings the focus to the first field.
    void Anspringen() const { felder_.Fokussieren(form_.felder.front().feld->name); }

    /// Whether the plan holds rate changes (`Image1(1)`).
    void MarkeZeigen(bool sichtbar);

    /// What tells that the user changes a field.
    [[nodiscard]] Feldtafel& Tafel() const { return felder_.Tafel(); }

  signals:
    void berechnenVerlangt();
    void zinstabelleVerlangt();

  private:
    using Zeilen = std::vector<Feldzeile<Sparplan>>;

    [[nodiscard]] QWidget* Spalte(const Zeilen& zeilen);
    [[nodiscard]] Zeilen LinkeZeilen();
    [[nodiscard]] Zeilen RechteZeilen();
    /// Adds the fields of a section in a frame of their own.
    void AbschnittAnfuegen(Zeilen& zeilen, Sparabschnitt abschnitt, std::string_view titel,
                           std::string_view gruppe = {});
    [[nodiscard]] Feldzeile<Sparplan> Zeile(const Formzeile& zeile);
    [[nodiscard]] QWidget* Tastenleiste();
    void BeimTippenHelfen(Datumsfeld& feld);
    void MonatsletztenAnbieten();

    const Sparform& form_;
    /// The captions with their mnemonics; the rows only look at them.
    std::deque<std::string> beschriftungen_;
    Feldgruppe<Sparplan> felder_;
    QLabel* Image1_ = nullptr;
};

}  // namespace zinfolio
