#include "fenster/rechner/registerberechnung.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "fenster/ui/bausteine.h"
#include "fenster/ui/meldungsfenster.h"
#include "fenster/ui/tabelle.h"

namespace zinfolio {

RegisterBerechnung::RegisterBerechnung(QWidget* eltern)
    : QWidget(eltern),
      loesung_(std::make_shared<const std::vector<Staffelsatz>>()),
      Combo4_(NeueAuswahl("Combo4", kontoansichten, this)),
      Gesamtzahlungssumme_(NeueKennzahl("Gesamtzahlungssumme", this)),
      Geszins_(NeueKennzahl("Geszins", this)),
      EV_(NeueKennzahl("EV", this)),
      ezins_(NeueKennzahl("ezins", this)),
      Label26_(new QLabel("Effektivzinssatz", this)),
      Label28_(new QLabel("%", this)),
      Combo6_(NeueAuswahl("Combo6", effektivmethoden, this)),
      Command5_(NeueTaste("Command5", "&Effektivzinssatz berechnen", this,
                          [this] { emit effektivzinsVerlangt(); })),
      Command13_(NeueTaste("Command13", "Dru&cken", this, [this] { emit druckenVerlangt(); })),
      Grafik_(NeueTaste("Grafik", "&Grafik", this, [this] { emit grafikVerlangt(); })),
      Grid_(new Tabelle("Grid", this)) {
    setObjectName("Frame4");
    auto* anordnung = new QVBoxLayout(this);
    anordnung->addWidget(Kopfzeile());
    anordnung->addWidget(Effektivzeile());
    anordnung->addWidget(Seite(Grid_, {Command13_, Grafik_}), 1);
    connect(Combo4_, &QComboBox::currentIndexChanged, this, &RegisterBerechnung::AnsichtZeigen);
}

QWidget* RegisterBerechnung::Kopfzeile() {
    auto* kopf = new QWidget;
    auto* zeile = new QHBoxLayout(kopf);
    zeile->setContentsMargins(0, 0, 0, 0);
    auto* ansicht = new QLabel("&Ansicht");
    ansicht->setBuddy(Combo4_);
    zeile->addWidget(ansicht);
    zeile->addWidget(Combo4_);
    zeile->addStretch();
    const std::initializer_list<std::pair<const char*, QLabel*>> summen{
        {"Gesamtzahlungssumme", Gesamtzahlungssumme_}, {"Gesamtzinsen", Geszins_}, {"Endvermögen", EV_}};
    for (const auto& [titel, wert] : summen) {
        auto* spalte = new QVBoxLayout;
        spalte->setSpacing(0);
        spalte->addWidget(new QLabel(QString::fromUtf8(titel)), 0, Qt::AlignRight);
        spalte->addWidget(wert, 0, Qt::AlignRight);
        zeile->addSpacing(24);
        zeile->addLayout(spalte);
    }
    return kopf;
}

QWidget* RegisterBerechnung::Effektivzeile() {
    Label26_->setObjectName("Label26");
    Label28_->setObjectName("Label28");
    Combo6_->setCurrentIndex(static_cast<int>(Effektivmethode::pangv2000) - 1);
    auto* leiste = new QWidget;
    auto* zeile = new QHBoxLayout(leiste);
    zeile->setContentsMargins(0, 0, 0, 0);
    auto* methode = new QLabel("Effektivzinssatzberechnungs&methode");
    methode->setBuddy(Combo6_);
    for (QWidget* element : std::initializer_list<QWidget*>{methode, Combo6_, Command5_})
        zeile->addWidget(element);
    zeile->addStretch();
    for (QWidget* element : std::initializer_list<QWidget*>{Label26_, ezins_, Label28_})
        zeile->addWidget(element);
    EffektivzinsVerbergen();
    return leiste;
}

void RegisterBerechnung::EffektivzinsZeigen(const std::string& ezins, Effektivmethode methode) {
    effektivmethode_ = methode;
    ezins_->setText(QString::fromStdString(ezins));
    for (QLabel* teil : {Label26_, ezins_, Label28_})
        teil->show();
}

void RegisterBerechnung::EffektivzinsVerbergen() {
    ezins_->clear();
    for (QLabel* teil : {Label26_, ezins_, Label28_})
        teil->hide();
}

Effektivmethode RegisterBerechnung::GewaehlteEffektivmethode() const {
    return static_cast<Effektivmethode>(Combo6_->currentIndex() + 1);
}

void RegisterBerechnung::Zeigen(std::vector<Staffelsatz> loesung) {
    loesung_ = std::make_shared<const std::vector<Staffelsatz>>(std::move(loesung));
    TastenFreigeben(true);
    const Kontosummen summen = KontosummenBilden(*loesung_);
    Gesamtzahlungssumme_->setText(Anzeigetext(summen.Gesamtzahlungssumme));
    EV_->setText(Anzeigetext(summen.Endvermögen));
    Geszins_->setText(Anzeigetext(summen.Gesamtzinsen));
    AnsichtZeigen();
}

void RegisterBerechnung::Leeren() {
    loesung_ = std::make_shared<const std::vector<Staffelsatz>>();
    ezins_->clear();
    TastenFreigeben(false);
    for (QLabel* summe : {Gesamtzahlungssumme_, EV_, Geszins_})
        summe->clear();
    AnsichtZeigen();
}

void RegisterBerechnung::TastenFreigeben(bool frei) {
    for (QPushButton* taste : {Command5_, Command13_, Grafik_})
        taste->setEnabled(frei);
}

Kontoberichtsdaten RegisterBerechnung::Berichtsdaten() const {
    Kontoberichtsdaten daten;
    daten.ezins = ezins_->text().toStdString();
    daten.effektivmethode = Effektivmethodentext(effektivmethode_);
    daten.loesung = loesung_;
    daten.ansicht = static_cast<Kontoansicht>(Combo4_->currentIndex());
    return daten;
}

void RegisterBerechnung::KurzformWaehlen() {
    Combo4_->setCurrentIndex(static_cast<int>(Kontoansicht::kurzform));
}

void RegisterBerechnung::AnsichtZeigen() {
    Grid_->Zeige(AnsichtBilden(static_cast<Kontoansicht>(Combo4_->currentIndex()), loesung_));
}

}  // namespace zinfolio
