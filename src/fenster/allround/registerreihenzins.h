#pragma once

#include <QWidget>

#include "kern/allround/allroundstand.h"

class QComboBox;
class QLabel;
class QPushButton;

namespace zinfolio {

class Tabelle;

/// The tab "Effektivzinssatz berechnen": the rate of the series by a method of choice, and how it carries
/// each payment to the end.
class RegisterReihenzins : public QWidget {
    Q_OBJECT

  public:
    explicit RegisterReihenzins(QWidget* eltern);

    [[nodiscard]] Effektivmethode Methode() const;

    /// Shows the last search. Without a rate the table of the last success stays, but says so and cannot be
    /// printed.
    void Zeigen(const Allroundstand& stand);
    void Leeren();

  signals:
    void methodeGewaehlt();
    void druckenVerlangt();

  private:
    QComboBox* Combo1_;
    QLabel* Effzins_;
    QLabel* Meld_;
    Tabelle* Grid_;
    QPushButton* Drucken_;
};

}  // namespace zinfolio
