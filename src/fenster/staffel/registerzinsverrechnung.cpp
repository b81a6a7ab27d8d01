#include "fenster/staffel/registerzinsverrechnung.h"

#include <QComboBox>
#include <QVBoxLayout>

#include "fenster/ui/bausteine.h"
#include "fenster/ui/datumsfeld.h"
#include "fenster/ui/feldraster.h"

namespace zinfolio {

RegisterZinsverrechnung::RegisterZinsverrechnung(QWidget* eltern)
    : QWidget(eltern),
      Combo1_(NeueAuswahl("Combo1", zinsverrechnungsarten, this)),
      Kontodatum_(new Datumsfeld("Kontodatum", this)),
      Combo3_(NeueAuswahl("Combo3", verzinsungsmethoden, this)) {
    setObjectName("Frame3_Zinsverrechnung");
    Combo1_->setCurrentIndex(static_cast<int>(Zinsverrechnungsart::jahresende));
    Kontodatum_->setPlaceholderText("xx.yy.zzzz");
    for (const QComboBox* auswahl : {Combo1_, Combo3_})
        connect(auswahl, &QComboBox::activated, this, &RegisterZinsverrechnung::geaendert);
    connect(Kontodatum_, &QLineEdit::textEdited, this, &RegisterZinsverrechnung::geaendert);
    auto* raster = new Feldraster;
    raster->Zeile("&Zinsverrechnung", Combo1_);
    raster->Zeile("&Datum für Kontoabschluss/-berechnung", Kontodatum_);
    raster->Zeile("&Verzinsungsmethode", Combo3_);
    auto* anordnung = new QVBoxLayout(this);
    auto* links = new QHBoxLayout;
    links->addLayout(raster);
    links->addStretch();
    anordnung->addLayout(links);
    anordnung->addStretch();
}

Kontoeinstellungen RegisterZinsverrechnung::Lesen() const {
    return {static_cast<Zinsverrechnungsart>(Combo1_->currentIndex()), Kontodatum_->Wert(),
            static_cast<Verzinsungsmethode>(Combo3_->currentIndex())};
}

void RegisterZinsverrechnung::Zeigen(const Kontoeinstellungswerte& werte) {
    if (werte.Zinsverrechnungsart) Combo1_->setCurrentIndex(static_cast<int>(*werte.Zinsverrechnungsart));
    if (werte.Kontodatum) Kontodatum_->Setze(*werte.Kontodatum);
    if (werte.Verzinsungsmethode) Combo3_->setCurrentIndex(static_cast<int>(*werte.Verzinsungsmethode));
}

void RegisterZinsverrechnung::Fokussieren(const std::string& feld) {
    if (feld.empty()) return;
    if (auto* element = findChild<QWidget*>(QString::fromStdString(feld))) element->setFocus();
}

void RegisterZinsverrechnung::Betreten() {
    Combo1_->setFocus();
}

}  // namespace zinfolio
