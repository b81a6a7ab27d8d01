#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "staffel/kontoansicht.h"

class QComboBox;
class QLabel;

namespace zinfolio {

class Tabelle;

/// The tab "Zinsstaffel berechnen": the statement in one of four views, with its totals.
class RegisterBerechnung : public QWidget {
    Q_OBJECT

  public:
    explicit RegisterBerechnung(QWidget* eltern);

    /// Shows a calculated account: totals and the chosen view.
    void Zeigen(std::vector<Staffelsatz> loesung);

    /// Shows no account.
    void Leeren();

    /// Goes back to the view "Kurzform".
    void KurzformWaehlen();

  private:
    QLabel* Summe(const char* name);
    QWidget* Kopfzeile();
    void AnsichtZeigen();

    std::vector<Staffelsatz> loesung_;
    std::vector<std::size_t> zeilen_;
    QComboBox* Combo4_;
    QLabel* Gesamtzahlungssumme_;
    QLabel* Geszins_;
    QLabel* EV_;
    Tabelle* Grid_;
};

}  // namespace zinfolio
