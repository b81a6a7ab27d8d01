#include "fenster/ausgabe/diagrammbild.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <memory>

#include "fenster/ausgabe/diagrammplot.h"
#include "fenster/ui/meldungsfenster.h"

namespace zinfolio {
namespace {

/// What a pixel of a picture's layout is.
constexpr double pixelJeZoll = 96;
constexpr QSize bildgroesse{1200, 675};

std::unique_ptr<Diagrammplot> Papierplot(const Diagramm& diagramm, const Diagrammausschnitt& ausschnitt,
                                         QSize groesse) {
    auto plot = std::make_unique<Diagrammplot>();
    plot->Gestalten(Papiergestalt());
    plot->Zeigen(diagramm);
    plot->TitelZeigen();
    plot->xAxis->setRange(ausschnitt.von, ausschnitt.bis);
    plot->Einpassen(groesse);
    return plot;
}

/// Paints the plot with its layout's pixels `massstab` times as large as the device's. False where the device
/// refuses.
bool Malen(QPaintDevice& geraet, Diagrammplot& plot, QSize groesse, double massstab) {
    QCPPainter maler;
    if (!maler.begin(&geraet)) return false;
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setMode(QCPPainter::pmVectorized);
    maler.scale(massstab, massstab);
    plot.toPainter(&maler, groesse.width(), groesse.height());
    return maler.end();
}

QString Titel(const Diagramm& diagramm) {
    return Anzeigetext(diagramm.titel.empty() ? diagramm.achsentitel : diagramm.titel);
}

QByteArray AlsPng(const Diagramm& diagramm, const Diagrammausschnitt& ausschnitt) {
    QByteArray bytes;
    QBuffer puffer(&bytes);
    puffer.open(QIODevice::WriteOnly);
    DiagrammAlsBild(diagramm, ausschnitt).save(&puffer, "PNG");
    return bytes;
}

QByteArray AlsSvg(const Diagramm& diagramm, const Diagrammausschnitt& ausschnitt) {
    QByteArray bytes;
    QBuffer puffer(&bytes);
    puffer.open(QIODevice::WriteOnly);
    QSvgGenerator geraet;
    geraet.setOutputDevice(&puffer);
    geraet.setTitle(Titel(diagramm));
    geraet.setResolution(static_cast<int>(pixelJeZoll));
    geraet.setSize(bildgroesse);
    geraet.setViewBox(QRect(QPoint(), bildgroesse));
    return Malen(geraet, *Papierplot(diagramm, ausschnitt, bildgroesse), bildgroesse, 1) ? bytes
                                                                                         : QByteArray();
}

QByteArray AlsPdf(const Diagramm& diagramm, const Diagrammausschnitt& ausschnitt) {
    QByteArray bytes;
    QBuffer puffer(&bytes);
    puffer.open(QIODevice::WriteOnly);
    QPdfWriter geraet(&puffer);
    geraet.setTitle(Titel(diagramm));
    geraet.setCreator("Zinfolio");
    constexpr double rand = 15;
    geraet.setPageLayout({QPageSize(QPageSize::A4), QPageLayout::Landscape, QMarginsF(rand, rand, rand, rand),
                          QPageLayout::Millimeter});
    return DiagrammAufBlatt(geraet, diagramm, ausschnitt) ? bytes : QByteArray();
}

}  // namespace

QImage DiagrammAlsBild(const Diagramm& diagramm, const Diagrammausschnitt& ausschnitt) {
    constexpr int feinheit = 2;
    QImage bild(bildgroesse * feinheit, QImage::Format_RGB32);
    bild.fill(Qt::white);
    Malen(bild, *Papierplot(diagramm, ausschnitt, bildgroesse), bildgroesse, feinheit);
    return bild;
}

QByteArray DiagrammAlsDatei(const Diagramm& diagramm, const Diagrammausschnitt& ausschnitt,
                            const QString& endung) {
    const QString klein = endung.toLower();
    if (klein == "png") return AlsPng(diagramm, ausschnitt);
    if (klein == "svg") return AlsSvg(diagramm, ausschnitt);
    if (klein == "pdf") return AlsPdf(diagramm, ausschnitt);
    return {};
}

bool DiagrammAufBlatt(QPagedPaintDevice& geraet, const Diagramm& diagramm,
                      const Diagrammausschnitt& ausschnitt) {
    const double massstab = geraet.logicalDpiX() / pixelJeZoll;
    const QSize groesse = (QSizeF(geraet.width(), geraet.height()) / massstab).toSize();
    return Malen(geraet, *Papierplot(diagramm, ausschnitt, groesse), groesse, massstab);
}

}  // namespace zinfolio
