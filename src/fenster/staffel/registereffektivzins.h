#pragma once

#include <QWidget>

#include "kern/staffel/kontoeffektivzins.h"

class QLabel;

namespace zinfolio {

class Tabelle;

/// The tab "Effektivzinssatz": how the account's yield carries every payment to the end.
class RegisterEffektivzins : public QWidget {
    Q_OBJECT

  public:
    explicit RegisterEffektivzins(QWidget* eltern);

    /// Shows a rate, or the table at rate 0 where there is none.
    void Zeigen(Kontoeffektivzins ergebnis);

    /// Whether the account has been changed since: then the tab says that the rate is none of it.
    void VeraltetZeigen(bool veraltet);
    [[nodiscard]] bool Veraltet() const { return veraltet_; }

    [[nodiscard]] const Kontoeffektivzins& Ergebnis() const { return ergebnis_; }

  signals:
    /// The user wants the statement back, or the table as a report.
    void zurueck();
    void druckenVerlangt();

  private:
    Kontoeffektivzins ergebnis_;
    bool veraltet_ = false;
    QLabel* hinweis_;
    QLabel* Effzisa_;
    Tabelle* Grid1_;
};

}  // namespace zinfolio
