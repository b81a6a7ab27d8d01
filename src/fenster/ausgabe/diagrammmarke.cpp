#include "fenster/ausgabe/diagrammmarke.h"

#include <qcustomplot.h>

#include "fenster/ui/meldungsfenster.h"
#include "kern/dates/textteile.h"
#include "kern/dates/zahlformat.h"

namespace zinfolio {
namespace {

constexpr auto ebene = "overlay";

const std::string& Zeilenname(const Diagramm& diagramm, std::size_t zeile) {
    return diagramm.zeilennamen.empty() ? diagramm.zeilentexte.at(zeile) : diagramm.zeilennamen.at(zeile);
}

}  // namespace

QString Markentext(const Diagramm& diagramm, std::size_t zeile) {
    QString text = Anzeigetext(Getrimmt(Zeilenname(diagramm, zeile)));
    for (const Diagrammreihe& reihe : diagramm.reihen) {
        const double betrag = reihe.werte.at(zeile) * diagramm.teiler;
        text += '\n' + Anzeigetext(reihe.name) + ": " +
                QString::fromStdString(Format(betrag, betragsmuster)) + " €";
    }
    return text;
}

Diagrammmarke::Diagrammmarke(QCustomPlot& plot)
    : plot_(plot), linie_(new QCPItemStraightLine(&plot)), text_(new QCPItemText(&plot)) {
    linie_->setLayer(ebene);
    text_->setLayer(ebene);
    text_->setClipToAxisRect(false);
    text_->position->setType(QCPItemPosition::ptAbsolute);
    text_->setPositionAlignment(Qt::AlignLeft | Qt::AlignTop);
    text_->setTextAlignment(Qt::AlignLeft);
    constexpr int luft = 6;
    text_->setPadding(QMargins(luft, luft, luft, luft));
    linie_->setVisible(false);
    text_->setVisible(false);
}

void Diagrammmarke::Gestalten(const Diagrammgestalt& gestalt) {
    gestalt_ = gestalt;
    linie_->setPen(QPen(gestalt.schriftfarbe, 1, Qt::DotLine));
    text_->setFont(gestalt.schrift);
    text_->setColor(gestalt.schriftfarbe);
    text_->setBrush(gestalt.grund);
    text_->setPen(gestalt.schriftfarbe);
    for (std::size_t i = 0; i < punkte_.size(); ++i) {
        punkte_[i]->setPen(QPen(gestalt.linien.at(i % gestalt.linien.size()), 2));
        punkte_[i]->setBrush(gestalt.grund);
    }
}

void Diagrammmarke::PunkteAnlegen(std::size_t anzahl) {
    if (punkte_.size() == anzahl) return;
    for (QCPItemTracer* punkt : punkte_)
        plot_.removeItem(punkt);
    punkte_.clear();
    for (std::size_t i = 0; i < anzahl; ++i) {
        auto* punkt = new QCPItemTracer(&plot_);
        punkt->setLayer(ebene);
        punkt->setStyle(QCPItemTracer::tsCircle);
        punkt->setSize(8);
        punkte_.push_back(punkt);
    }
    Gestalten(gestalt_);
}

void Diagrammmarke::Zeigen(const Diagramm& diagramm, std::size_t zeile, double hoehe) {
    zeile_ = zeile;
    const auto stelle = static_cast<double>(zeile);
    linie_->point1->setCoords(stelle, 0);
    linie_->point2->setCoords(stelle, 1);
    PunkteAnlegen(diagramm.reihen.size());
    for (std::size_t i = 0; i < punkte_.size(); ++i)
        punkte_[i]->position->setCoords(stelle, diagramm.reihen[i].werte.at(zeile));
    TextSetzen(Markentext(diagramm, zeile), plot_.xAxis->coordToPixel(stelle), hoehe);
    Zeichnen();
}

void Diagrammmarke::TextSetzen(const QString& text, double stelle, double hoehe) {
    constexpr int abstand = 12;
    text_->setText(text);
    const QMargins luft = text_->padding();
    const QSize groesse = QFontMetrics(text_->font()).size(0, text).grownBy(luft);
    const QRect flaeche = plot_.axisRect()->rect();
    const bool rechts = stelle + abstand + groesse.width() <= flaeche.right();
    const double links = rechts ? stelle + abstand : stelle - abstand - groesse.width();
    const double unten = plot_.viewport().bottom() - groesse.height();
    text_->position->setCoords(std::max(0.0, links),
                               std::max(0.0, std::min(hoehe - groesse.height() - abstand, unten)));
}

void Diagrammmarke::Verbergen() {
    if (!zeile_) return;
    zeile_.reset();
    Zeichnen();
}

void Diagrammmarke::Zeichnen() {
    const bool sichtbar = zeile_.has_value();
    linie_->setVisible(sichtbar);
    text_->setVisible(sichtbar);
    for (QCPItemTracer* punkt : punkte_)
        punkt->setVisible(sichtbar);
    plot_.layer(ebene)->replot();
}

}  // namespace zinfolio
