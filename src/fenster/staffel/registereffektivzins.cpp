#include "fenster/staffel/registereffektivzins.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "fenster/ui/bausteine.h"
#include "fenster/ui/meldungsfenster.h"
#include "fenster/ui/tabelle.h"
#include "kern/finmath/herleitung.h"

namespace zinfolio {

RegisterEffektivzins::RegisterEffektivzins(QWidget* eltern)
    : QWidget(eltern), Effzisa_(NeueKennzahl("Effzisa", this)), Grid1_(new Tabelle("Grid1", this)) {
    setObjectName("Frame8");
    auto* kopf = new QHBoxLayout;
    auto* ueberschrift = new QLabel(Anzeigetext(herleitungsueberschrift));
    ueberschrift->setObjectName("Label25");
    kopf->addWidget(ueberschrift);
    kopf->addStretch();
    kopf->addWidget(Effzisa_);
    auto* anordnung = new QVBoxLayout(this);
    anordnung->addLayout(kopf);
    anordnung->addWidget(
        Seite(Grid1_, {NeueTaste("Command14", "&Zurück", this, [this] { emit zurueck(); }),
                       NeueTaste("EffzinsDrucken", "Dru&cken", this, [this] { emit druckenVerlangt(); })}),
        1);
}

void RegisterEffektivzins::Zeigen(Kontoeffektivzins ergebnis) {
    ergebnis_ = std::move(ergebnis);
    Effzisa_->setText(QString::fromStdString(ergebnis_.ezins) + " %");
    std::vector<Tabellenspalte> spalten;
    for (const std::string& kopf : Herleitungskoepfe(ergebnis_.Effektivergebnis)) {
        spalten.push_back({QString::fromStdString(kopf)});
    }
    Grid1_->Zeige({
        .spalten = std::move(spalten),
        .zeilen = static_cast<int>(ergebnis_.Herleitung().size()),
        .zelle =
            [this](int zeile, int spalte) {
                const Ergebnissatz& satz = ergebnis_.Herleitung()[static_cast<std::size_t>(zeile)];
                return QString::fromStdString(Herleitungstext(satz, static_cast<std::size_t>(spalte)));
            },
        .zeilentext = {},
    });
}

}  // namespace zinfolio
