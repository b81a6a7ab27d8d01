#include "fenster/tabellen/registertabelle.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "fenster/ui/bausteine.h"
#include "fenster/ui/feldraster.h"
#include "fenster/ui/meldungsfenster.h"
#include "fenster/ui/tabelle.h"

namespace zinfolio {
namespace {

constexpr std::array tabellenfelder{
    Feld<&Faktortabelleneingabe::Pro1>(
        {.name = "Pro1", .titel = "&Zinssatz von", .filter = Tastenfilter::prozent, .einheit = "%"}),
    Feld<&Faktortabelleneingabe::Pro2>(
        {.name = "Pro2", .titel = "Zinssatz b&is", .filter = Tastenfilter::prozent, .einheit = "%"}),
    Feld<&Faktortabelleneingabe::Schrittweite>({.name = "Combo2",
                                                .titel = "&Schrittweite",
                                                .art = Feldart::liste,
                                                .texte = schrittweiten,
                                                .einheit = "%"}),
    Feld<&Faktortabelleneingabe::J1>({.name = "J1", .titel = "&Jahr von", .filter = Tastenfilter::ganzzahl}),
    Feld<&Faktortabelleneingabe::J2>({.name = "J2", .titel = "Jah&r bis", .filter = Tastenfilter::ganzzahl}),
};

/// What the table shows, so that a picture of it explains itself.
QString Tabellentitel(const Faktorwahl& wahl) {
    const QString faktor = Anzeigetext(Faktortext(wahl.faktor).eintrag);
    if (wahl.faktor == Finanzfaktor::AuF || wahl.faktor == Finanzfaktor::AbF) return faktor;
    return faktor + ", " + Anzeigetext(rentenrhythmen.at(static_cast<std::size_t>(wahl.rhythmus))).toLower() +
           " " + Anzeigetext(rentenfaelligkeiten.at(static_cast<std::size_t>(wahl.faelligkeit)));
}

}  // namespace

RegisterTabelle::RegisterTabelle(QWidget* eltern)
    : QWidget(eltern),
      wahl_({"Combo1", "Erklärung", "Combo3", "Combo4"}, this, [this] { emit geaendert(); }),
      felder_(this),
      Command1_(NeueTaste("Command1", "&Berechnen", this, [this] { emit berechnenVerlangt(); })),
      Command8_(NeueTaste("Command8", "Dru&cken", this, [this] { emit druckenVerlangt(); })),
      titel_(new QLabel(this)),
      Grid_(new Tabelle("Grid", this)) {
    setObjectName("Frame_Tabelle");
    Grid_->setAccessibleName("Faktorentabelle");
    titel_->setObjectName("Tabellentitel");
    auto* rechts = new QVBoxLayout;
    rechts->setContentsMargins(0, 6, 0, 0);
    rechts->addWidget(titel_);
    rechts->addWidget(Grid_, 1);
    auto* anordnung = new QHBoxLayout(this);
    anordnung->setContentsMargins(0, 0, 0, 0);
    anordnung->addWidget(Eingabetafel());
    anordnung->addLayout(rechts, 1);
    connect(&felder_.Tafel(), &Feldtafel::bearbeitet, this, &RegisterTabelle::geaendert);
    connect(this, &RegisterTabelle::geaendert, this, &RegisterTabelle::Leeren);
    Leeren();
}

QWidget* RegisterTabelle::Eingabetafel() {
    auto* raster = new Feldraster;
    wahl_.FaktorInRaster(*raster);
    felder_.Anlegen(tabellenfelder, *raster);
    wahl_.RhythmusInRaster(*raster);
    auto* inhalt = new QWidget;
    auto* spalte = new QVBoxLayout(inhalt);
    spalte->addLayout(raster);
    spalte->addLayout(Tastenzeile({Command1_, Command8_}));
    spalte->addStretch();
    return Rollspalte(inhalt);
}

Faktortabelleneingabe RegisterTabelle::Lesen() const {
    Faktortabelleneingabe eingabe;
    eingabe.wahl = wahl_.Lesen();
    return felder_.Lesen(eingabe);
}

void RegisterTabelle::Zeigen(const Faktortabelleneingabe& eingabe) {
    wahl_.Zeigen(eingabe.wahl);
    felder_.Zeigen(eingabe);
    Leeren();
}

std::optional<Ablehnung> RegisterTabelle::Berechnen() {
    Leeren();
    const Faktortabelleneingabe eingabe = Lesen();
    auto neu = std::make_shared<Faktortabelle>();
    if (auto ablehnung = FaktortabelleRechnen(eingabe, *neu)) return ablehnung;
    tabelle_ = std::move(neu);
    titel_->setText(Tabellentitel(eingabe.wahl));
    Grid_->Zeige(FaktortabelleZeigen(tabelle_));
    Command8_->setEnabled(true);
    return std::nullopt;
}

void RegisterTabelle::Leeren() {
    tabelle_.reset();
    titel_->clear();
    Grid_->Zeige({});
    Command8_->setEnabled(false);
}

}  // namespace zinfolio
