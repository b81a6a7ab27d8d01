#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "finmath/effektivmethode.h"
#include "staffel/kontoansicht.h"

class QComboBox;
class QLabel;
class QPushButton;

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

    /// Shows a rate beside the totals; hides it again.
    void EffektivzinsZeigen(const std::string& ezins);
    void EffektivzinsVerbergen();

    [[nodiscard]] const std::vector<Staffelsatz>& Loesung() const { return loesung_; }
    [[nodiscard]] Effektivmethode GewaehlteEffektivmethode() const;

  signals:
    /// The user asks for the account's effective rate.
    void effektivzinsVerlangt();

  private:
    QWidget* Kopfzeile();
    QWidget* Effektivzeile();
    void AnsichtZeigen();

    std::vector<Staffelsatz> loesung_;
    std::vector<std::size_t> zeilen_;
    QComboBox* Combo4_;
    QLabel* Gesamtzahlungssumme_;
    QLabel* Geszins_;
    QLabel* EV_;
    QLabel* ezins_;
    QLabel* Label26_;
    QLabel* Label28_;
    QComboBox* Combo6_;
    QPushButton* Command5_;
    Tabelle* Grid_;
};

}  // namespace zinfolio
