#include "fenster/ausgabe/diagrammplot.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "fenster/ausgabe/diagrammachsen.h"
#include "fenster/ui/meldungsfenster.h"

namespace zinfolio {
namespace {

/// Up to so many rows each value is shown as a point too.
constexpr std::size_t punkteBis = 40;
/// A stretch factor must be above zero.
constexpr double nurDasNoetige = 0.0001;

QVector<double> Zeilennummern(std::size_t anzahl) {
    QVector<double> nummern(static_cast<qsizetype>(anzahl));
    std::iota(nummern.begin(), nummern.end(), 0.0);
    return nummern;
}

}  // namespace

Diagrammplot::Diagrammplot(QWidget* eltern)
    : QCustomPlot(eltern), zeilenteilung_(new Zeilenteilung(*xAxis)), marke_(*this) {
    setFocusPolicy(Qt::StrongFocus);
    setInteractions(QCP::iRangeDrag | QCP::iRangeZoom);
    axisRect()->setRangeDrag(Qt::Horizontal);
    axisRect()->setRangeZoom(Qt::Horizontal);
    xAxis->setTicker(zeilenteilung_);
    yAxis->setTicker(QSharedPointer<QCPAxisTicker>(new Betragsteilung(*yAxis)));
    LegendeNachOben();
    connect(xAxis, qOverload<const QCPRange&>(&QCPAxis::rangeChanged), this,
            [this] { AusschnittBegrenzen(); });
    // The labels that fit go by the size of the axes, which goes by the labels: two rounds.
    connect(this, &QCustomPlot::beforeReplot, this, &Diagrammplot::Anordnen);
}

void Diagrammplot::LegendeNachOben() {
    axisRect()->insetLayout()->take(legend);
    // The legend takes what it needs on the left, an empty element the rest.
    auto* zeile = new QCPLayoutGrid;
    plotLayout()->insertRow(0);
    plotLayout()->addElement(0, 0, zeile);
    zeile->addElement(0, 0, legend);
    zeile->addElement(0, 1, new QCPLayoutElement(this));
    zeile->setColumnStretchFactor(0, nurDasNoetige);
    plotLayout()->setRowStretchFactor(0, nurDasNoetige);
    plotLayout()->setRowSpacing(0);
    legend->setColumnSpacing(24);
    legend->setBorderPen(Qt::NoPen);
    legend->setBrush(Qt::NoBrush);
    legend->setVisible(true);
}

void Diagrammplot::Anordnen() {
    LegendeEinpassen();
    constexpr int luft = 8;
    axisRect()->setMinimumMargins({luft, luft, luft + zeilenteilung_->Textbreite() / 2, luft});
    updateLayout();
}

/// The entries side by side where they fit, else one below the other.
void Diagrammplot::LegendeEinpassen() {
    legend->setFillOrder(QCPLayoutGrid::foColumnsFirst);
    if (legend->minimumOuterSizeHint().width() > viewport().width())
        legend->setFillOrder(QCPLayoutGrid::foRowsFirst);
}

void Diagrammplot::TitelZeigen() {
    if (diagramm_.titel.empty()) return;
    titel_ = new QCPTextElement(this, Anzeigetext(diagramm_.titel));
    plotLayout()->insertRow(0);
    plotLayout()->addElement(0, 0, titel_);
    plotLayout()->setRowStretchFactor(0, nurDasNoetige);
    Gestalten(gestalt_);
}

void Diagrammplot::Gestalten(const Diagrammgestalt& gestalt) {
    gestalt_ = gestalt;
    setBackground(gestalt.grund);
    for (QCPAxis* achse : {xAxis, yAxis}) {
        for (const auto setzen : {&QCPAxis::setBasePen, &QCPAxis::setTickPen, &QCPAxis::setSubTickPen})
            (achse->*setzen)(QPen(gestalt.schriftfarbe));
        achse->setTickLabelFont(gestalt.schrift);
        achse->setTickLabelColor(gestalt.schriftfarbe);
        achse->setLabelFont(gestalt.schrift);
        achse->setLabelColor(gestalt.schriftfarbe);
        achse->grid()->setPen(QPen(gestalt.gitter, 1));
    }
    xAxis->grid()->setZeroLinePen(QPen(gestalt.gitter, 1));
    yAxis->grid()->setZeroLinePen(QPen(gestalt.schriftfarbe, 1));
    legend->setFont(gestalt.schrift);
    legend->setTextColor(gestalt.schriftfarbe);
    if (titel_) {
        QFont gross = gestalt.schrift;
        gross.setPixelSize(QFontInfo(gross).pixelSize() * 4 / 3);
        gross.setBold(true);
        titel_->setFont(gross);
        titel_->setTextColor(gestalt.schriftfarbe);
    }
    marke_.Gestalten(gestalt);
    ReihenZeichnen();
    replot();
}

void Diagrammplot::Zeigen(const Diagramm& diagramm) {
    diagramm_ = diagramm;
    marke_.Verbergen();
    zeilenteilung_->Setzen(diagramm_.zeilentexte);
    yAxis->setLabel(Anzeigetext(diagramm_.achsentitel));
    clearGraphs();
    for (const Diagrammreihe& reihe : diagramm_.reihen) {
        QCPGraph* linie = addGraph();
        linie->setName(Anzeigetext(reihe.name));
        linie->setData(Zeilennummern(reihe.werte.size()), {reihe.werte.begin(), reihe.werte.end()}, true);
    }
    ReihenZeichnen();
    WertebereichSetzen();
    AllesZeigen();
}

void Diagrammplot::ReihenZeichnen() {
    for (int i = 0; i < graphCount(); ++i) {
        const QColor farbe = gestalt_.linien.at(static_cast<std::size_t>(i) % gestalt_.linien.size());
        // Told apart without colours too: the first line is solid, the others are dashed.
        QPen stift(farbe, 2, i == 0 ? Qt::SolidLine : Qt::DashLine);
        stift.setJoinStyle(Qt::RoundJoin);
        graph(i)->setPen(stift);
        const bool punkte = diagramm_.zeilentexte.size() <= punkteBis;
        graph(i)->setScatterStyle(
            punkte ? QCPScatterStyle(i == 0 ? QCPScatterStyle::ssDisc : QCPScatterStyle::ssSquare,
                                     QPen(farbe, 1.5), i == 0 ? farbe : gestalt_.grund, 6)
                   : QCPScatterStyle(QCPScatterStyle::ssNone));
    }
}

/// All values with a little air; from zero on where zero is not far away.
void Diagrammplot::WertebereichSetzen() {
    double unten = std::numeric_limits<double>::infinity();
    double oben = -unten;
    for (const Diagrammreihe& reihe : diagramm_.reihen) {
        for (const double wert : reihe.werte) {
            unten = std::min(unten, wert);
            oben = std::max(oben, wert);
        }
    }
    if (unten > oben) return;
    if (unten > 0 && unten <= oben - unten) unten = 0;
    if (oben < 0 && -oben <= oben - unten) oben = 0;
    const double luft = oben > unten ? (oben - unten) / 20 : std::max(1.0, std::abs(oben) / 20);
    yAxis->setRange(unten == 0 ? 0 : unten - luft, oben == 0 ? 0 : oben + luft);
}

QCPRange Diagrammplot::GanzerBereich() const {
    const double letzte = std::max(1.0, static_cast<double>(diagramm_.zeilentexte.size()) - 1);
    const double luft = std::min(0.4, letzte / 20);
    return {-luft, letzte + luft};
}

void Diagrammplot::AllesZeigen() {
    xAxis->setRange(GanzerBereich());
    replot();
}

void Diagrammplot::Vergroessern(int stufen) {
    constexpr double zuwachs = 1.5;
    const auto marke = marke_.Zeile();
    const double mitte = marke ? static_cast<double>(*marke) : xAxis->range().center();
    xAxis->scaleRange(std::pow(zuwachs, -stufen), mitte);
    replot();
    if (marke) Markieren(*marke, axisRect()->center().y());
}

void Diagrammplot::AusschnittBegrenzen() {
    const QCPRange ganz = GanzerBereich();
    const double breite = std::clamp(xAxis->range().size(), std::min(2.0, ganz.size()), ganz.size());
    const double anfang = std::clamp(xAxis->range().lower, ganz.lower, ganz.upper - breite);
    marke_.Verbergen();
    const QSignalBlocker still(xAxis);
    xAxis->setRange(anfang, anfang + breite);
}

void Diagrammplot::Einpassen(QSize groesse) {
    setViewport(QRect(QPoint(), groesse));
    Anordnen();
}

std::size_t Diagrammplot::ZeileBei(double pixel) const {
    const double letzte = static_cast<double>(diagramm_.zeilentexte.size()) - 1;
    return static_cast<std::size_t>(
        std::clamp(std::round(xAxis->pixelToCoord(pixel)), 0.0, std::max(0.0, letzte)));
}

void Diagrammplot::Markieren(std::size_t zeile, double hoehe) {
    if (zeile >= diagramm_.zeilentexte.size()) return;
    marke_.Zeigen(diagramm_, zeile, hoehe);
    setAccessibleDescription(Markentext(diagramm_, zeile));
}

void Diagrammplot::mouseMoveEvent(QMouseEvent* ereignis) {
    QCustomPlot::mouseMoveEvent(ereignis);
    const QPointF stelle = ereignis->position();
    if (axisRect()->rect().contains(stelle.toPoint()))
        Markieren(ZeileBei(stelle.x()), stelle.y());
    else
        marke_.Verbergen();
}

void Diagrammplot::mouseDoubleClickEvent(QMouseEvent* ereignis) {
    QCustomPlot::mouseDoubleClickEvent(ereignis);
    AllesZeigen();
}

void Diagrammplot::leaveEvent(QEvent* ereignis) {
    QCustomPlot::leaveEvent(ereignis);
    marke_.Verbergen();
}

void Diagrammplot::focusOutEvent(QFocusEvent* ereignis) {
    QCustomPlot::focusOutEvent(ereignis);
    marke_.Verbergen();
}

/// Where an arrow key, Home or End leads from the marked row; the first press marks the last row.
std::optional<std::size_t> Diagrammplot::Tastenziel(int taste) const {
    const std::size_t letzte = std::max<std::size_t>(diagramm_.zeilentexte.size(), 1) - 1;
    const auto jetzt = marke_.Zeile();
    switch (taste) {
        case Qt::Key_Left:
            return jetzt ? std::max<std::size_t>(*jetzt, 1) - 1 : letzte;
        case Qt::Key_Right:
            return jetzt ? std::min(*jetzt + 1, letzte) : letzte;
        case Qt::Key_Home:
            return 0;
        case Qt::Key_End:
            return letzte;
        default:
            return std::nullopt;
    }
}

void Diagrammplot::InsBildRuecken(std::size_t zeile) {
    const auto stelle = static_cast<double>(zeile);
    const QCPRange sichtbar = xAxis->range();
    if (sichtbar.contains(stelle)) return;
    xAxis->moveRange(stelle < sichtbar.lower ? stelle - sichtbar.lower : stelle - sichtbar.upper);
    replot();
}

void Diagrammplot::keyPressEvent(QKeyEvent* ereignis) {
    const auto ziel = Tastenziel(ereignis->key());
    if (!ziel) {
        QCustomPlot::keyPressEvent(ereignis);
        return;
    }
    InsBildRuecken(*ziel);
    Markieren(*ziel, axisRect()->center().y());
}

}  // namespace zinfolio
