#pragma once

#include <optional>
#include <qcustomplot.h>

#include "fenster/ausgabe/diagrammgestalt.h"
#include "fenster/ausgabe/diagrammmarke.h"
#include "kern/bericht/diagramm.h"

namespace zinfolio {

class Zeilenteilung;

/// Draws a chart as lines over its rows. The wheel zooms, with or without Ctrl, dragging moves, a double
/// click shows all rows again; the pointer, or the arrow keys with Home and End, mark a row and bring it into
/// sight.
class Diagrammplot : public QCustomPlot {
  public:
    explicit Diagrammplot(QWidget* eltern = nullptr);

    void Zeigen(const Diagramm& diagramm);
    void Gestalten(const Diagrammgestalt& gestalt);
    /// Puts the chart's title above it, for paper.
    void TitelZeigen();
    void AllesZeigen();
    /// Shows fewer rows by so many steps, or more by negative ones, around the marked row or the middle.
    void Vergroessern(int stufen);

    /// Gives the drawing a size without a window around it.
    void Einpassen(QSize groesse);

    [[nodiscard]] const Diagramm& Gezeigtes() const { return diagramm_; }
    [[nodiscard]] std::optional<std::size_t> MarkierteZeile() const { return marke_.Zeile(); }

  protected:
    void mouseMoveEvent(QMouseEvent* ereignis) override;
    void mouseDoubleClickEvent(QMouseEvent* ereignis) override;
    void leaveEvent(QEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    void focusOutEvent(QFocusEvent* ereignis) override;

  private:
    void LegendeNachOben();
    void Anordnen();
    void LegendeEinpassen();
    void ReihenZeichnen();
    void WertebereichSetzen();
    void AusschnittBegrenzen();
    void Markieren(std::size_t zeile, double hoehe);
    void InsBildRuecken(std::size_t zeile);
    [[nodiscard]] std::optional<std::size_t> Tastenziel(int taste) const;
    [[nodiscard]] QCPRange GanzerBereich() const;
    [[nodiscard]] std::size_t ZeileBei(double pixel) const;

    Diagramm diagramm_;
    Diagrammgestalt gestalt_;
    QSharedPointer<Zeilenteilung> zeilenteilung_;
    QCPTextElement* titel_ = nullptr;
    Diagrammmarke marke_;
};

}  // namespace zinfolio
