#pragma once

#include <QPointF>
#include <QString>
#include <cstddef>
#include <optional>
#include <vector>

#include "fenster/ausgabe/diagrammgestalt.h"
#include "kern/bericht/diagramm.h"

class QCustomPlot;
class QCPItemStraightLine;
class QCPItemText;
class QCPItemTracer;

namespace zinfolio {

/// What the marker says of a row: its name, and below it each series with its amount in euros.
[[nodiscard]] QString Markentext(const Diagramm& diagramm, std::size_t zeile);

/// The moving mark of a chart: an upright line at a row, a point on each series, and the values beside it.
class Diagrammmarke {
  public:
    /// Its parts belong to the plot.
    explicit Diagrammmarke(QCustomPlot& plot);

    void Gestalten(const Diagrammgestalt& gestalt);

    /// Marks a row; the text stands beside the line, at the height of `hoehe` (pixels).
    void Zeigen(const Diagramm& diagramm, std::size_t zeile, double hoehe);
    void Verbergen();

    /// The row that is marked.
    [[nodiscard]] std::optional<std::size_t> Zeile() const { return zeile_; }

  private:
    void PunkteAnlegen(std::size_t anzahl);
    void TextSetzen(const QString& text, double stelle, double hoehe);
    void Zeichnen();

    QCustomPlot& plot_;
    Diagrammgestalt gestalt_;
    QCPItemStraightLine* linie_;
    QCPItemText* text_;
    std::vector<QCPItemTracer*> punkte_;
    std::optional<std::size_t> zeile_;
};

}  // namespace zinfolio
