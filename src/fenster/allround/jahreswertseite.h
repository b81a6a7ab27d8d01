#pragma once

#include <QWidget>

#include "kern/allround/zellentabelle.h"

namespace zinfolio {

class Tabelle;

/// The present values of all years, on a page of its own.
class Jahreswertseite : public QWidget {
    Q_OBJECT

  public:
    explicit Jahreswertseite(QWidget* eltern);

    void Zeigen(const Zellentabelle& tabelle);

  signals:
    void zurueck();

  private:
    Tabelle* grid6_;
};

}  // namespace zinfolio
