#pragma once

#include <QWidget>

#include "kern/allround/allroundstand.h"

class QComboBox;
class QLabel;
class QPushButton;

namespace zinfolio {

class Suchzeile;
class Tabelle;

/// The tab "Zins-/Tilgungsplan": the nominal rate of the series and its statement, by year or row by row.
class RegisterPlan : public QWidget {
    Q_OBJECT

  public:
    explicit RegisterPlan(QWidget* eltern);

    [[nodiscard]] Planeingabe Eingabe() const;
    [[nodiscard]] Planansicht Ansicht() const;
    /// The text of the chosen interest dates.
    [[nodiscard]] std::string Zinstermine() const;

    /// Shows the plan by year, as a new one is shown.
    void PlanZeigen(const Allroundstand& stand);
    /// Shows it in the view that is chosen.
    void AnsichtZeigen(const Allroundstand& stand);
    /// What is shown belongs to another calculation, since the last one did not come to its end.
    void VeraltetZeigen(const QString& grund = "Für diese Zahlungen ließ sich kein Plan rechnen.");
    /// What is shown belongs to another calculation: the next one is under way.
    void Warten();
    void Leeren();

    /// The search for the nominal rate.
    [[nodiscard]] Suchzeile& Suche() { return *suche_; }

  signals:
    void eingabeGeaendert();
    void ansichtGewaehlt();
    void druckenVerlangt();
    void grafikVerlangt();

  private:
    QWidget* Kopf();
    void TastenFreigeben(bool frei);

    QComboBox* Combo4_;
    QComboBox* Combo6_;
    QComboBox* Combo3_;
    QLabel* nomzins_;
    QLabel* effzinssatz_;
    QLabel* hinweis_;
    Suchzeile* suche_;
    QPushButton* Command19_;
    QPushButton* Command20_;
    Tabelle* grid5_;
};

/// The table of a plan in one of its views.
[[nodiscard]] Zellentabelle Plantabelle(const Tilgungsplan& plan, Planansicht ansicht);

}  // namespace zinfolio
