#pragma once

#include <QWidget>

#include "kern/staffel/kontoeinstellungen.h"

class QComboBox;

namespace zinfolio {

class Datumsfeld;

/// The tab "Zinsverrechnung": how often interest is settled, by which method, and when the account closes.
class RegisterZinsverrechnung : public QWidget {
    Q_OBJECT

  public:
    explicit RegisterZinsverrechnung(QWidget* eltern);

    [[nodiscard]] Kontoeinstellungen Lesen() const;

    /// Shows the values that are there and leaves the other controls as they are.
    void Zeigen(const Kontoeinstellungswerte& werte);

    /// Puts the focus on the control of that name, if it is on this tab.
    void Fokussieren(const std::string& feld);

    /// What selecting the tab does.
    void Betreten();

  signals:
    /// The user has changed a setting.
    void geaendert();

  private:
    QComboBox* Combo1_;
    Datumsfeld* Kontodatum_;
    QComboBox* Combo3_;
};

}  // namespace zinfolio
