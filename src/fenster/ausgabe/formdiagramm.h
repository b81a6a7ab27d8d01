#pragma once

#include <QWidget>

#include "kern/bericht/diagramm.h"

class QPrinter;

namespace zinfolio {

class Diagrammplot;
struct Diagrammausschnitt;

/// What differs between the charts of the calculators: the fixed names of their controls.
struct Diagrammart {
    const char* rahmen = "Frame6";
    const char* diagramm = "Chart";
    const char* drucken = "Command8";
    const char* zurueck = "Command7";
    const char* zuruecktext = "&Zurück";
};

/// The frame with a chart: it is drawn in the window's colours, and printed, saved and copied on white.
class FormDiagramm : public QWidget {
    Q_OBJECT

  public:
    explicit FormDiagramm(const Diagrammart& art = {}, QWidget* eltern = nullptr);

    /// Shows a chart, all of its rows.
    void Zeigen(const Diagramm& diagramm);

    /// Prints what is shown on one page. False where the printer refuses.
    [[nodiscard]] bool Ausdrucken(QPrinter& drucker) const;

  signals:
    /// The user has seen enough of the chart.
    void zurueck();

  protected:
    void changeEvent(QEvent* ereignis) override;

  private:
    void BefehleAnlegen();
    void Faerben();
    void Drucken();
    void BildSpeichern();
    void BildKopieren() const;
    [[nodiscard]] Diagrammausschnitt Ausschnitt() const;

    Diagrammplot* Chart_;
};

}  // namespace zinfolio
