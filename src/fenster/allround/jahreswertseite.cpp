#include "fenster/allround/jahreswertseite.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "fenster/ui/bausteine.h"
#include "fenster/ui/tabelle.h"
#include "kern/allround/ansichten.h"

namespace zinfolio {

Jahreswertseite::Jahreswertseite(QWidget* eltern) : QWidget(eltern), grid6_(new Tabelle("grid6", this)) {
    setObjectName("Frame(4)");
    grid6_->setAccessibleName("Barwerte aller Jahre");
    auto* anordnung = new QVBoxLayout(this);
    anordnung->addWidget(new QLabel("Barwerttabelle für alle Jahre", this));
    anordnung->addWidget(Seite(grid6_, {NeueTaste("Command21", "&Zurück", this, [this] { emit zurueck(); })}),
                         1);
}

void Jahreswertseite::Zeigen(const Zellentabelle& tabelle) {
    grid6_->Zeige(JahresansichtBilden(tabelle));
}

}  // namespace zinfolio
