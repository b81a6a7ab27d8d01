#pragma once

#include <QWidget>
#include <memory>
#include <vector>

#include "kern/finmath/effektivmethode.h"
#include "kern/staffel/kontobericht.h"

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
    void EffektivzinsZeigen(const std::string& ezins, Effektivmethode methode);
    void EffektivzinsVerbergen();

    [[nodiscard]] const std::vector<Staffelsatz>& Loesung() const { return *loesung_; }

    /// What this tab knows of a report: view, rows, totals and rate as they are shown.
    [[nodiscard]] Kontoberichtsdaten Berichtsdaten() const;
    [[nodiscard]] Effektivmethode GewaehlteEffektivmethode() const;

    /// The method of the rate that is shown; another choice counts from the next calculation on.
    [[nodiscard]] Effektivmethode GerechneteEffektivmethode() const { return effektivmethode_; }

  signals:
    /// The user asks for the account's effective rate, its report, its chart.
    void effektivzinsVerlangt();
    void druckenVerlangt();
    void grafikVerlangt();

  private:
    QWidget* Kopfzeile();
    QWidget* Effektivzeile();
    void AnsichtZeigen();
    void TastenFreigeben(bool frei);

    /// Shared with the reports made of it.
    std::shared_ptr<const std::vector<Staffelsatz>> loesung_;
    Effektivmethode effektivmethode_ = Effektivmethode::pangv2000;
    QComboBox* Combo4_;
    QLabel* Gesamtzahlungssumme_;
    QLabel* Geszins_;
    QLabel* EV_;
    QLabel* ezins_;
    QLabel* Label26_;
    QLabel* Label28_;
    QComboBox* Combo6_;
    QPushButton* Command5_;
    QPushButton* Command13_;
    QPushButton* Grafik_;
    Tabelle* Grid_;
};

}  // namespace zinfolio
