#pragma once

#include <QWidget>

#include "fenster/ui/feldtafel.h"
#include "kern/staffel/kontoeinstellungen.h"

namespace zinfolio {

/// The tab "Zinsverrechnung": how often interest is settled, by which method, and when the account closes.
class RegisterZinsverrechnung : public QWidget {
    Q_OBJECT

  public:
    explicit RegisterZinsverrechnung(QWidget* eltern);

    [[nodiscard]] Kontoeinstellungen Lesen() const;

    /// Shows the values that are there and leaves the other controls as they are.
    void Zeigen(const Kontoeinstellungswerte& werte);

    /// What selecting the tab does.
    void Betreten();

  signals:
    /// The user has changed a setting.
    void geaendert();

  private:
    Feldgruppe<Kontoeinstellungen> felder_;
};

}  // namespace zinfolio
