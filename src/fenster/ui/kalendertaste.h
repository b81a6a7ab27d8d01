#pragma once

#include <QPointer>
#include <QPushButton>

namespace zinfolio {

class Datumsfeld;

/// The button behind a date field. It opens the month view (`mview`) below itself, at the date of the field
/// if that has ten characters, else at today. A second press, Escape or F4 closes it; a chosen day is written
/// into the field. Tab reaches the button, F4 in the field presses it, and Enter in the field passes it over.
class Kalendertaste : public QPushButton {
    Q_OBJECT

  public:
    Kalendertaste(const QString& name, Datumsfeld& feld, QWidget* eltern = nullptr);

  private:
    void Umschalten();
    void Oeffnen();
    void Waehlen(const QDate& tag);

    Datumsfeld& feld_;
    QPointer<QWidget> fenster_;
};

}  // namespace zinfolio
