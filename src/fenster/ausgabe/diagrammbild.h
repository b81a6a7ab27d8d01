#pragma once
// A chart as a picture on white, for printer, files and clipboard.

#include <QByteArray>
#include <QImage>

#include "kern/bericht/diagramm.h"

class QPagedPaintDevice;

namespace zinfolio {

/// The rows that a picture shows, as the ends of its axis: rows are numbered from 0.
struct Diagrammausschnitt {
    double von = 0;
    double bis = 0;
};

/// As wide as 1200 pixels of 1/96 inch, drawn with four device pixels for each of them.
[[nodiscard]] QImage DiagrammAlsBild(const Diagramm& diagramm, const Diagrammausschnitt& ausschnitt);

/// The bytes of a file with that ending, in any case: "png", "svg" or "pdf" (a page of A4 on its side); of
/// another ending none.
[[nodiscard]] QByteArray DiagrammAlsDatei(const Diagramm& diagramm, const Diagrammausschnitt& ausschnitt,
                                          const QString& endung);

/// Paints a chart on the page of a printer or PDF file, as large as its margins leave room. False where the
/// device refuses.
[[nodiscard]] bool DiagrammAufBlatt(QPagedPaintDevice& geraet, const Diagramm& diagramm,
                                    const Diagrammausschnitt& ausschnitt);

}  // namespace zinfolio
