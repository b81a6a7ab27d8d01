#include "fenster/allround/sensitivitaetsseite.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "fenster/allround/eingabezeile.h"
#include "fenster/ui/bausteine.h"
#include "fenster/ui/eingabefeld.h"
#include "fenster/ui/tabelle.h"
#include "kern/allround/ansichten.h"

namespace zinfolio {
namespace {

constexpr int ueblicherSchritt = 2;

}  // namespace

Sensitivitaetsseite::Sensitivitaetsseite(QWidget* eltern)
    : QWidget(eltern),
      MiZins_(new Eingabefeld("MiZins", Tastenfilter::betrag, this)),
      Combo2_(NeueAuswahl("Combo2", zinsschritttexte, this)),
      Grid4_(new Tabelle("Grid4", this)),
      hinweis_(new QLabel("Mit diesen Angaben ließ sich die Tabelle nicht rechnen.", this)) {
    setObjectName("Frame(3)");
    Grid4_->setAccessibleName("Werte bei anderen Zinssätzen");
    hinweis_->setObjectName("Sensitivitätshinweis");
    Combo2_->setCurrentIndex(ueblicherSchritt);
    auto* kopf = new Eingabezeile(this);
    kopf->Feld("&Ausgangszinssatz (Mittlerer Zinssatz)", MiZins_, "%");
    kopf->Feld("&Schrittweite in %", Combo2_);
    kopf->Feld("", NeueTaste("Command13", "&Berechnen", this, [this] { emit berechnenVerlangt(); }));
    kopf->Abstand();
    auto* anordnung = new QVBoxLayout(this);
    anordnung->addWidget(kopf);
    anordnung->addWidget(hinweis_);
    anordnung->addWidget(
        Seite(Grid4_, {NeueTaste("Command15", "&Zurück", this, [this] { emit zurueck(); }),
                       NeueTaste("Command16", "&Grafik", this, [this] { emit grafikVerlangt(); }),
                       NeueTaste("Command14", "Dru&cken", this, [this] { emit druckenVerlangt(); })}),
        1);
    connect(MiZins_, &Eingabefeld::editingFinished, this, [this] {
        if (MiZins_->Wert() != gerechneterZins_) emit berechnenVerlangt();
    });
    connect(Combo2_, &QComboBox::currentIndexChanged, this, [this] { emit berechnenVerlangt(); });
}

void Sensitivitaetsseite::Lesen(Sensitivitaetseingabe& eingabe) const {
    eingabe.MiZins = MiZins_->Wert();
    eingabe.Combo2 = static_cast<std::size_t>(Combo2_->currentIndex());
}

void Sensitivitaetsseite::Zeigen(const Sensitivitaetseingabe& eingabe, const Zellentabelle& tabelle) {
    MiZins_->Setze(eingabe.MiZins);
    gerechneterZins_ = eingabe.MiZins;
    hinweis_->hide();
    Grid4_->setEnabled(true);
    Grid4_->Zeige(SensitivitaetsansichtBilden(tabelle));
}

void Sensitivitaetsseite::VeraltetZeigen() {
    gerechneterZins_ = MiZins_->Wert();
    hinweis_->show();
    Grid4_->setEnabled(false);
}

}  // namespace zinfolio
