#pragma once

#include <QWidget>
#include <memory>

#include "kern/sparen/sparbericht.h"
#include "kern/sparen/sparrechnung.h"

class QComboBox;
class QLabel;
class QPushButton;

namespace zinfolio {

class Tabelle;

/// The tab "Berechnen": what was solved for, the totals, the rates, and the statement in one of four views.
class Sparergebnisseite : public QWidget {
    Q_OBJECT

  public:
    explicit Sparergebnisseite(const Sparform& form, QWidget* eltern);

    /// Shows the result of a plan in "Kurzform".
    void Zeigen(const Sparplan& plan, Sparergebnis ergebnis, double kapital);

    /// Shows the effective rate that was calculated by the method of `plan`.
    void EffzinsZeigen(const Sparplan& plan, const std::string& ezins);

    /// Shows no result.
    void Leeren();

    /// The method of the effective rate is a field of the plan.
    void Lesen(Sparplan& plan) const;
    void MethodeZeigen(const Sparplan& plan);

    /// Whether there is a result, and whether its effective rate was calculated.
    [[nodiscard]] bool HatErgebnis() const { return !ergebnis_.lauf.loesung->empty(); }
    [[nodiscard]] bool ZeigtEffzins() const { return effzinsGezeigt_; }

    [[nodiscard]] const Sparergebnis& Ergebnis() const { return ergebnis_; }
    /// What this tab knows of a report.
    [[nodiscard]] Sparberichtsdaten Berichtsdaten() const;
    void KurzformWaehlen();

  signals:
    void geaendert();
    /// The user asks for the effective rate, or has chosen another method for it.
    void effzinsVerlangt();
    void methodeGewaehlt();
    void druckenVerlangt();
    void textVerlangt();
    void grafikVerlangt();

  private:
    [[nodiscard]] QWidget* Kopfzeile();
    [[nodiscard]] QWidget* Effektivzeile();
    [[nodiscard]] QWidget* Ausgabezeile();
    void LoesungZeigen(double kapital);
    void AnsichtZeigen();
    void TastenFreigeben(bool frei);

    const Sparform& form_;
    Sparergebnis ergebnis_;
    Sparplan plan_;
    double kapital_ = 0;
    bool effzinsGezeigt_ = false;
    std::shared_ptr<const std::vector<Staffelsatz>> loesung_;
    QComboBox* Combo6_;
    QComboBox* Combo5_;
    QLabel* loesungstext_ = nullptr;
    QLabel* Gesamtzahlungssumme_;
    QLabel* Geszins_;
    QLabel* EV_;
    QLabel* ezins_;
    QLabel* Label12_ = nullptr;
    Tabelle* Grid_;
};

}  // namespace zinfolio
