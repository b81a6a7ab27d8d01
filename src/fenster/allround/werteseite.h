#pragma once

#include <QWidget>

#include "kern/allround/allroundstand.h"

class QComboBox;
class QGroupBox;
class QLabel;

namespace zinfolio {

class Datumsfeld;
class Eingabefeld;
class Tabelle;

/// What the tabs "Barwert berechnen" and "Vermögensendwert berechnen" share: rate and date, the table of
/// values, and what it says of amortisation. It stands on the tab that is selected.
class Werteseite : public QWidget {
    Q_OBJECT

  public:
    explicit Werteseite(QWidget* eltern);

    /// Shows the controls of one of the two analyses, as its tab is entered.
    void Betreten(Wertart art);

    /// The controls as they stand, and what an analysis made of them.
    [[nodiscard]] Werteingabe Eingabe(const std::string& abzins) const;
    void EingabeZeigen(const Werteingabe& eingabe);
    /// The rate that the table was calculated with; the field may have been emptied since.
    [[nodiscard]] const std::string& GerechneterZins() const { return gerechneterZins_; }

    void Zeigen(const Wertergebnis& ergebnis);

    /// Puts the list of evaluations back to the table shown here.
    void AuswertungZuruecksetzen();

    /// A new series: no date, no table.
    void Leeren();

  signals:
    /// A field has been left with something new in it.
    void eingabeGeaendert();
    void jahreswerteVerlangt();
    void analyseVerlangt();
    void grafikVerlangt();
    void druckenVerlangt();

  private:
    QWidget* Kopf();
    QWidget* Amortisationsband();
    void FeldVerlassen();

    Wertart art_ = Wertart::barwert;
    Eingabefeld* Abzins2_;
    Datumsfeld* BarwDatum_;
    QComboBox* Combo7_;
    QWidget* datumsgruppe_ = nullptr;
    QWidget* auswertungsgruppe_ = nullptr;
    QLabel* Label12_;
    QLabel* Label13_;
    QLabel* Label14_;
    QGroupBox* Frame1_;
    QLabel* StatAmor_;
    QLabel* DynAmor_;
    QLabel* Dynamorinterpoliert_;
    Tabelle* Grid3_;
    /// The fields as they were calculated with.
    std::string gerechneterZins_;
    std::string gerechnetesDatum_;
};

}  // namespace zinfolio
