#include "fenster/start/spaltenfeld.h"

#include <QBoxLayout>
#include <algorithm>

namespace zinfolio {
namespace {

constexpr int zwischenraum = 18;

}  // namespace

Spaltenfeld::Spaltenfeld(QWidget* eltern)
    : QWidget(eltern), anordnung_(new QBoxLayout(QBoxLayout::LeftToRight, this)) {
    anordnung_->setContentsMargins(0, 0, 0, 0);
    anordnung_->setSpacing(zwischenraum);
    anordnung_->setSizeConstraint(QLayout::SetNoConstraint);
}

void Spaltenfeld::Anfuegen(QWidget* spalte) {
    anordnung_->addWidget(spalte, 1);
    for (QWidget* andere : findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        andere->setMinimumWidth(0);
    const int breite = Spaltenbreite();
    for (QWidget* andere : findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        andere->setMinimumWidth(breite);
}

int Spaltenfeld::Spaltenbreite() const {
    int breite = 0;
    for (const QWidget* spalte : findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        breite = std::max({breite, spalte->minimumSizeHint().width(), spalte->minimumWidth()});
    return breite;
}

QSize Spaltenfeld::minimumSizeHint() const {
    return {Spaltenbreite(), 0};
}

void Spaltenfeld::resizeEvent(QResizeEvent* ereignis) {
    QWidget::resizeEvent(ereignis);
    const int anzahl = anordnung_->count();
    const int nebeneinander = anzahl * Spaltenbreite() + (anzahl - 1) * zwischenraum;
    const bool breit = width() >= nebeneinander;
    anordnung_->setDirection(breit ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    for (int stelle = 0; stelle < anzahl; ++stelle)
        anordnung_->setStretch(stelle, breit ? 1 : 0);
}

}  // namespace zinfolio
