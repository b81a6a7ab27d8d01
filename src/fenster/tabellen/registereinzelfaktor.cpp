#include "fenster/tabellen/registereinzelfaktor.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "fenster/ui/bausteine.h"
#include "fenster/ui/feldraster.h"

namespace zinfolio {
namespace {

using Eingabe = Einzelfaktoreingabe;

constexpr std::array eingabefelder{
    Feld<&Eingabe::Zins2>(
        {.name = "Zins2", .titel = "&Zinssatz", .filter = Tastenfilter::prozent, .einheit = "%"}),
    Feld<&Eingabe::Jahre2>({.name = "Jahre2", .titel = "&Jahre", .filter = Tastenfilter::ganzzahl}),
    Feld<&Eingabe::Betrag2>(
        {.name = "Betrag2", .titel = "B&etrag", .filter = Tastenfilter::betrag, .einheit = "€"}),
};

}  // namespace

RegisterEinzelfaktor::RegisterEinzelfaktor(QWidget* eltern)
    : QWidget(eltern),
      wahl_({"Combo7", "Erklärung4", "Combo5", "Combo6"}, this, [this] { emit geaendert(); }),
      felder_(this),
      Berechnen2_(NeueTaste("Berechnen2", "&Berechnen", this, [this] { emit berechnenVerlangt(); })),
      Command4_(NeueTaste("Command4", "Dru&cken", this, [this] { emit druckenVerlangt(); })),
      Ergebnis_(NeueKennzahl("Ergebnis", this)),
      Erklärung3_(NeuerErklaerungstext("Erklärung3", 7, this)) {
    setObjectName("Frame_Einzelfaktor");
    auto* raster = new Feldraster;
    wahl_.FaktorInRaster(*raster);
    felder_.Anlegen(eingabefelder, *raster);
    wahl_.RhythmusInRaster(*raster);
    auto* eingaben = new QWidget;
    auto* links = new QVBoxLayout(eingaben);
    links->addLayout(raster);
    links->addLayout(Tastenzeile({Berechnen2_, Command4_}));
    links->addStretch();
    auto* rahmen = new QGroupBox("Ergebnis");
    auto* tafel = new QVBoxLayout(rahmen);
    tafel->addWidget(Ergebnis_);
    tafel->addWidget(Erklärung3_);
    auto* rechts = new QVBoxLayout;
    rechts->addWidget(rahmen);
    rechts->addStretch();
    auto* anordnung = new QHBoxLayout(this);
    anordnung->addWidget(Rollspalte(eingaben));
    anordnung->addLayout(rechts, 1);
    connect(&felder_.Tafel(), &Feldtafel::bearbeitet, this, &RegisterEinzelfaktor::geaendert);
    connect(this, &RegisterEinzelfaktor::geaendert, this, [this] { ErgebnisZeigen({}); });
    ErgebnisZeigen({});
}

Einzelfaktoreingabe RegisterEinzelfaktor::Lesen() const {
    Eingabe eingabe;
    eingabe.wahl = wahl_.Lesen();
    return felder_.Lesen(eingabe);
}

void RegisterEinzelfaktor::Zeigen(const Einzelfaktoreingabe& eingabe) {
    wahl_.Zeigen(eingabe.wahl);
    felder_.Zeigen(eingabe);
    ErgebnisZeigen({});
}

std::optional<Ablehnung> RegisterEinzelfaktor::Berechnen() {
    ErgebnisZeigen({});
    Einzelfaktor ergebnis;
    if (auto ablehnung = EinzelfaktorRechnen(Lesen(), ergebnis)) return ablehnung;
    ErgebnisZeigen(std::move(ergebnis));
    return std::nullopt;
}

void RegisterEinzelfaktor::ErgebnisZeigen(Einzelfaktor ergebnis) {
    gezeigt_ = std::move(ergebnis);
    Ergebnis_->setText(QString::fromStdString(gezeigt_.Ergebnis));
    Erklärung3_->setText(QString::fromStdString(gezeigt_.Erklärung3));
    Command4_->setEnabled(!gezeigt_.Ergebnis.empty());
}

}  // namespace zinfolio
