#include "fenster/allround/registerplan.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "fenster/allround/eingabezeile.h"
#include "fenster/rechner/suchzeile.h"
#include "fenster/ui/bausteine.h"
#include "fenster/ui/meldungsfenster.h"
#include "fenster/ui/tabelle.h"
#include "kern/allround/ansichten.h"
#include "kern/allround/nominalsuche.h"

namespace zinfolio {

RegisterPlan::RegisterPlan(QWidget* eltern)
    : QWidget(eltern),
      Combo4_(NeueAuswahl("Combo4", plantermine, this)),
      Combo6_(NeueAuswahl("Combo6", verzinsungsmethoden, this)),
      Combo3_(NeueAuswahl("Combo3", planansichten, this)),
      nomzins_(NeueKennzahl("nomzins", this)),
      effzinssatz_(NeueKennzahl("effzinssatz", this)),
      hinweis_(new QLabel(this)),
      suche_(new Suchzeile("Der Nominalzins wird gesucht …", hoechstrundenNominalsuche, this)),
      Command19_(NeueTaste("Command19", "Dru&cken", this, [this] { emit druckenVerlangt(); })),
      Command20_(NeueTaste("Command20", "&Grafik", this, [this] { emit grafikVerlangt(); })),
      grid5_(new Tabelle("grid5", this)) {
    setObjectName("Frame(5)");
    grid5_->setAccessibleName("Zins- und Tilgungsplan");
    hinweis_->setObjectName("Planhinweis");
    hinweis_->hide();
    Combo4_->setCurrentIndex(static_cast<int>(Plantermine::monatsende));
    auto* anordnung = new QVBoxLayout(this);
    anordnung->addWidget(Kopf());
    anordnung->addWidget(hinweis_);
    anordnung->addWidget(suche_);
    anordnung->addWidget(Seite(grid5_, {Command20_, Command19_}), 1);
    connect(Combo4_, &QComboBox::currentIndexChanged, this, [this] { emit eingabeGeaendert(); });
    connect(Combo6_, &QComboBox::currentIndexChanged, this, [this] { emit eingabeGeaendert(); });
    connect(Combo3_, &QComboBox::currentIndexChanged, this, [this] { emit ansichtGewaehlt(); });
    TastenFreigeben(false);
}

QWidget* RegisterPlan::Kopf() {
    auto* eingaben = new Eingabezeile(this);
    eingaben->Feld("&Zinstermine", Combo4_);
    eingaben->Feld("&Verzinsungsmethode", Combo6_);
    eingaben->Abstand();
    auto* ergebnisse = new Eingabezeile(this);
    ergebnisse->Feld("&Tilgungsplan", Combo3_);
    ergebnisse->Abstand();
    ergebnisse->Kennzahl("Nominalzins", nomzins_);
    ergebnisse->Kennzahl("Effektivzins gem. PAngV2000", effzinssatz_);
    auto* kopf = new QWidget(this);
    auto* anordnung = new QVBoxLayout(kopf);
    anordnung->setContentsMargins(0, 0, 0, 0);
    anordnung->addWidget(eingaben);
    anordnung->addWidget(ergebnisse);
    return kopf;
}

Planeingabe RegisterPlan::Eingabe() const {
    return {static_cast<Plantermine>(Combo4_->currentIndex()),
            static_cast<Verzinsungsmethode>(Combo6_->currentIndex())};
}

Planansicht RegisterPlan::Ansicht() const {
    return static_cast<Planansicht>(Combo3_->currentIndex());
}

std::string RegisterPlan::Zinstermine() const {
    return Combo4_->currentText().toStdString();
}

void RegisterPlan::PlanZeigen(const Allroundstand& stand) {
    {
        const QSignalBlocker ohneWirkung(Combo3_);
        Combo3_->setCurrentIndex(static_cast<int>(Planansicht::jahresweise));
    }
    nomzins_->setText(Anzeigetext(stand.Plan.nomzins));
    effzinssatz_->setText(Anzeigetext(stand.Plan.effzinssatz));
    hinweis_->hide();
    TastenFreigeben(true);
    AnsichtZeigen(stand);
}

void RegisterPlan::AnsichtZeigen(const Allroundstand& stand) {
    grid5_->Zeige(PlanansichtBilden(Plantabelle(stand.Plan, Ansicht()), Ansicht()));
}

void RegisterPlan::VeraltetZeigen(const QString& grund) {
    hinweis_->setText(grund);
    hinweis_->show();
    TastenFreigeben(false);
}

void RegisterPlan::Warten() {
    hinweis_->hide();
    TastenFreigeben(false);
}

void RegisterPlan::TastenFreigeben(bool frei) {
    for (QWidget* element :
         std::initializer_list<QWidget*>{Command19_, Command20_, grid5_, Combo3_, nomzins_, effzinssatz_})
        element->setEnabled(frei);
}

void RegisterPlan::Leeren() {
    suche_->Aufgeben();
    nomzins_->clear();
    effzinssatz_->clear();
    hinweis_->hide();
    TastenFreigeben(false);
    grid5_->Zeige({});
}

Zellentabelle Plantabelle(const Tilgungsplan& plan, Planansicht ansicht) {
    if (ansicht == Planansicht::jahresweise) return Zinsstaffelanzeige2(*plan.Kurztableau, plan.Nominalzins);
    return Zinsstaffelanzeige1(*plan.Tableau, plan.Nominalzins);
}

}  // namespace zinfolio
