#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "kern/sparen/sparform.h"

class QCheckBox;
class QLabel;
class QPushButton;

namespace zinfolio {

class Datumsfeld;
class Eingabefeld;
class Feldraster;

/// The tab "Daten" of a savings calculator: the fields that its form has, in sections. They hold the plan as
/// texts and choices; nothing is calculated here.
class Sparfelder : public QWidget {
    Q_OBJECT

  public:
    explicit Sparfelder(const Sparform& form, QWidget* eltern);

    /// Fills the members of `plan` that have a field here; the others stay.
    void Lesen(Sparplan& plan) const;

    /// Shows a plan in all fields.
    void Zeigen(const Sparplan& plan);

    /// Offers the month-end rule after a plan was loaded: while it has no date, its tick stays as it was.
    void MonatsletztenNachLaden();

    /// Whether the plan holds rate changes (`Image1(1)`).
    void MarkeZeigen(bool sichtbar);

  signals:
    /// The user has changed something.
    void geaendert();
    void berechnenVerlangt();
    void zinstabelleVerlangt();

  private:
    /// Ways between a control and the member of the plan that it shows.
    struct Bindung {
        std::function<void(Sparplan&)> lesen;
        std::function<void(const Sparplan&)> zeigen;
    };

    [[nodiscard]] QWidget* LinkeSpalte();
    [[nodiscard]] QWidget* RechteSpalte();
    [[nodiscard]] QWidget* Abschnitt(const char* titel, Sparabschnitt abschnitt);
    /// Room for the captions of the column in which a section stands.
    [[nodiscard]] int Beschriftungsbreite(Sparabschnitt abschnitt) const;
    [[nodiscard]] QWidget* Tastenleiste();
    void FelderAnlegen(Feldraster& raster, Sparabschnitt abschnitt);
    void TextfeldAnlegen(const Formzeile& zeile, Feldraster& raster);
    void ListeAnlegen(const Formzeile& zeile, Feldraster& raster);
    [[nodiscard]] QCheckBox* NeuerHaken(const Formzeile& zeile);
    void EinheitAnlegen(const Formzeile& zeile, Feldraster& raster);
    [[nodiscard]] Eingabefeld* NeuesTextfeld(const Formzeile& zeile);
    [[nodiscard]] QWidget* Kalender(const Formzeile& zeile, Datumsfeld& feld);
    void BeimTippenHelfen(Datumsfeld& feld);
    void Verdrahten();
    void MonatsletztenAnbieten();
    void GrenzenFreigeben();
    [[nodiscard]] QWidget* Feld(const Sparfeld& feld) const;

    const Sparform& form_;
    std::vector<Bindung> bindungen_;
    QCheckBox* Check1_ = nullptr;
    QCheckBox* Check2_ = nullptr;
    /// The panel of the dynamisation, visible exactly while `Check2` is ticked.
    QWidget* Frameb_ = nullptr;
    QLabel* Image1_ = nullptr;
};

}  // namespace zinfolio
