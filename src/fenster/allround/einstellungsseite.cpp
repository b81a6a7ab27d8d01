#include "fenster/allround/einstellungsseite.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "fenster/allround/eingabezeile.h"
#include "fenster/ui/bausteine.h"
#include "fenster/ui/eingabefeld.h"

namespace zinfolio {

Einstellungsseite::Einstellungsseite(QWidget* eltern)
    : QWidget(eltern), Abzins_(new Eingabefeld("Abzins", Tastenfilter::betrag, this)) {
    setObjectName("Einstellungsrahmen");
    auto* zeile = new Eingabezeile(this);
    zeile->Feld("&Voreinstellung für die Berechnung von Barwert / Vermögensendwert :", Abzins_, "%");
    zeile->Abstand();
    auto* anordnung = new QVBoxLayout(this);
    anordnung->addWidget(zeile);
    anordnung->addLayout(
        Tastenzeile({NeueTaste("Command8", "S&peichern", this, [this] { emit speichernVerlangt(); }),
                     NeueTaste("EinstellungenZurück", "&Zurück", this, [this] { emit zurueck(); })}));
    anordnung->addStretch();
    setFocusProxy(Abzins_);
}

std::string Einstellungsseite::Abzins() const {
    return Abzins_->Wert();
}

void Einstellungsseite::Setze(const std::string& abzins) {
    Abzins_->Setze(abzins);
}

}  // namespace zinfolio
