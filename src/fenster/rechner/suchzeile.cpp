#include "fenster/rechner/suchzeile.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <algorithm>

#include "fenster/ui/bausteine.h"

namespace zinfolio {

Suchzeile::Suchzeile(const QString& text, std::size_t hoechstens, QWidget* seite)
    : QWidget(seite),
      text_(text),
      stand_(new QLabel(this)),
      balken_(new QProgressBar(this)),
      abbrechen_(NeueTaste("Abbrechen", "Abbrechen", this, [this] {
          Aufgeben();
          emit abgebrochen();
      })) {
    setObjectName("Suchzeile");
    stand_->setObjectName("Suchstand");
    balken_->setObjectName("Suchbalken");
    balken_->setRange(0, static_cast<int>(hoechstens));
    auto* zeile = new QHBoxLayout(this);
    zeile->setContentsMargins(0, 0, 0, 0);
    zeile->addWidget(stand_);
    zeile->addWidget(balken_, 1);
    zeile->addWidget(abbrechen_);
    auto* taste = new QShortcut(QKeySequence(Qt::Key_Escape), abbrechen_);
    taste->setContext(Qt::WidgetShortcut);
    connect(taste, &QShortcut::activated, static_cast<QPushButton*>(abbrechen_), &QPushButton::click);
    connect(&rechnung_, &Nebenrechnung::dauertAn, this, &Suchzeile::Zeigen);
    connect(&rechnung_, &Nebenrechnung::fortgeschritten, this, &Suchzeile::Fortschreiten);
    connect(&rechnung_, &Nebenrechnung::beendet, this, &QWidget::hide);
    hide();
}

void Suchzeile::Rechnen(std::function<void(const Suchbeobachter&)> arbeit,
                        std::function<void(const std::exception_ptr&)> abschluss) {
    rechnung_.Starten({.arbeit = std::move(arbeit), .abschluss = std::move(abschluss), .willkommen = [this] {
                           return isVisible() && !QApplication::activeModalWidget() &&
                                  !QApplication::activePopupWidget();
                       }});
}

void Suchzeile::Zeigen() {
    Fortschreiten(0);
    show();
    abbrechen_->setFocus();
}

void Suchzeile::Fortschreiten(std::size_t runden) {
    const int gezeigt = static_cast<int>(std::min<std::size_t>(runden, balken_->maximum()));
    stand_->setText(text_ + QString(" %1 Durchläufe").arg(QLocale().toString(gezeigt)));
    balken_->setValue(gezeigt);
}

}  // namespace zinfolio
