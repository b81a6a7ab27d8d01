#include "fenster/staffel/registereffektivzins.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "fenster/ui/bausteine.h"
#include "fenster/ui/meldungsfenster.h"
#include "fenster/ui/tabelle.h"
#include "kern/finmath/herleitung.h"
#include "kern/staffel/herleitungsbericht.h"

namespace zinfolio {

RegisterEffektivzins::RegisterEffektivzins(QWidget* eltern)
    : QWidget(eltern),
      hinweis_(
          new QLabel("Dieser Effektivzinssatz gehört nicht mehr zum Konto: Es ist seit seiner Berechnung "
                     "geändert worden.",
                     this)),
      Effzisa_(NeueKennzahl("Effzisa", this)),
      Grid1_(new Tabelle("Grid1", this)) {
    setObjectName("Frame8");
    Grid1_->setAccessibleName("Herleitung des Effektivzinssatzes");
    hinweis_->setObjectName("Veraltethinweis");
    hinweis_->setWordWrap(true);
    hinweis_->hide();
    auto* kopf = new QHBoxLayout;
    auto* ueberschrift = new QLabel(Anzeigetext(herleitungsueberschrift));
    ueberschrift->setObjectName("Label25");
    kopf->addWidget(ueberschrift);
    kopf->addStretch();
    kopf->addWidget(Effzisa_);
    auto* anordnung = new QVBoxLayout(this);
    anordnung->addLayout(kopf);
    anordnung->addWidget(hinweis_);
    anordnung->addWidget(
        Seite(Grid1_, {NeueTaste("Command14", "&Zurück", this, [this] { emit zurueck(); }),
                       NeueTaste("EffzinsDrucken", "Dru&cken", this, [this] { emit druckenVerlangt(); })}),
        1);
}

void RegisterEffektivzins::VeraltetZeigen(bool veraltet) {
    veraltet_ = veraltet;
    hinweis_->setVisible(veraltet);
}

void RegisterEffektivzins::Zeigen(Kontoeffektivzins ergebnis) {
    ergebnis_ = std::move(ergebnis);
    Effzisa_->setText(QString::fromStdString(ergebnis_.ezins) + " %");
    const auto zeilen = ergebnis_.Herleitung();
    Grid1_->Zeige(HerleitungstabelleBilden(
        std::make_shared<const std::vector<Ergebnissatz>>(zeilen.begin(), zeilen.end()),
        ergebnis_.Effektivergebnis));
}

}  // namespace zinfolio
