#include "fenster/allround/registerreihenzins.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "fenster/allround/eingabezeile.h"
#include "fenster/ui/bausteine.h"
#include "fenster/ui/meldungsfenster.h"
#include "fenster/ui/tabelle.h"
#include "kern/staffel/herleitungsbericht.h"

namespace zinfolio {

RegisterReihenzins::RegisterReihenzins(QWidget* eltern)
    : QWidget(eltern),
      Combo1_(NeueAuswahl("Combo1", effektivmethoden, this)),
      Effzins_(NeueKennzahl("Effzins", this)),
      Meld_(new QLabel(this)),
      Grid_(new Tabelle("Grid", this)),
      Drucken_(NeueTaste("Drucken", "Dru&cken", this, [this] { emit druckenVerlangt(); })) {
    setObjectName("Frame(1)");
    Grid_->setAccessibleName("Herleitung des Effektivzinssatzes");
    Meld_->setObjectName("Meld");
    Meld_->setWordWrap(true);
    Combo1_->setCurrentIndex(static_cast<int>(Effektivmethode::pangv2000) - 1);
    auto* kopf = new Eingabezeile(this);
    kopf->Feld("Effektivzinssatzberechnungs&methode", Combo1_);
    kopf->Abstand();
    kopf->Kennzahl("Effektivzinssatz in %", Effzins_);
    auto* anordnung = new QVBoxLayout(this);
    anordnung->addWidget(kopf);
    anordnung->addWidget(Meld_);
    anordnung->addWidget(Seite(Grid_, {Drucken_}), 1);
    connect(Combo1_, &QComboBox::currentIndexChanged, this, [this](int stelle) {
        if (stelle >= 0) emit methodeGewaehlt();
    });
}

Effektivmethode RegisterReihenzins::Methode() const {
    return static_cast<Effektivmethode>(Combo1_->currentIndex() + 1);
}

void RegisterReihenzins::Zeigen(const Allroundstand& stand) {
    const bool gefunden = !stand.Zins.Effektivergebnis.empty();
    Effzins_->setText(Anzeigetext(stand.Zins.Effzins));
    Meld_->setText(Anzeigetext(stand.Zins.Meld));
    Drucken_->setVisible(gefunden);
    Grid_->setEnabled(gefunden);
    if (!gefunden) return;
    const auto zeilen = Endwertzeilen(stand.Zins);
    Grid_->Zeige(HerleitungstabelleBilden(zeilen, stand.Zins.Effektivergebnis));
    AnsEndeRollen(*Grid_, zeilen->size());
}

void RegisterReihenzins::Leeren() {
    Effzins_->clear();
    Meld_->clear();
    Drucken_->hide();
    Grid_->Zeige({});
}

}  // namespace zinfolio
