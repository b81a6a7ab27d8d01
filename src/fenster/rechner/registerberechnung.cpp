#include "fenster/rechner/registerberechnung.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "fenster/ui/bausteine.h"
#include "fenster/ui/meldungsfenster.h"
#include "fenster/ui/tabelle.h"
#include "fenster/ui/umbruchzeile.h"

namespace zinfolio {
namespace {

constexpr std::array summenzeilen{
    Kennzahlzeile{"Gesamtzahlungssumme", "Gesamtzahlungssumme"},
    Kennzahlzeile{"Geszins", "Gesamtzinsen"},
    Kennzahlzeile{"EV", "Endvermögen"},
};

bool Gibt(const char* name) {
    return *name != '\0';
}

}  // namespace

RegisterBerechnung::RegisterBerechnung(Auszugsart art, QWidget* eltern)
    : QWidget(eltern),
      art_(std::move(art)),
      loesung_(std::make_shared<const std::vector<Staffelsatz>>()),
      ansicht_(NeueAuswahl(art_.ansicht, kontoansichten, this)),
      methode_(NeueAuswahl(art_.methode, effektivmethoden, this)),
      ezins_(NeueKennzahl("ezins", this)),
      grundlage_(new QLabel(this)),
      Grid_(new Tabelle("Grid", this)) {
    setObjectName(art_.rahmen);
    Grid_->setAccessibleName("Kontoauszug");
    auto* anordnung = new QVBoxLayout(this);
    anordnung->addWidget(Kopfzeile());
    anordnung->addWidget(Effektivzeile());
    grundlage_->setObjectName("Grundlage");
    grundlage_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    anordnung->addWidget(grundlage_);
    anordnung->addWidget(Auszugseite(), 1);
    connect(ansicht_, &QComboBox::currentIndexChanged, this, &RegisterBerechnung::AnsichtZeigen);
    connect(methode_, &QComboBox::currentIndexChanged, this, &RegisterBerechnung::EffektivtitelZeigen);
    connect(methode_, &QComboBox::activated, this, &RegisterBerechnung::methodeGewaehlt);
    Leeren();
}

QPushButton* RegisterBerechnung::Ergebnistaste(const char* name, const char* beschriftung, Signal signal) {
    QPushButton* taste =
        NeueTaste(name, QString::fromUtf8(beschriftung), this, [this, signal] { emit(this->*signal)(); });
    tasten_.push_back(taste);
    return taste;
}

QWidget* RegisterBerechnung::Kopfzeile() {
    auto* kopf = new QWidget;
    auto* zeile = new Umbruchzeile(kopf);
    auto* ansicht = new QLabel(QString::fromUtf8(art_.ansichttitel));
    ansicht->setBuddy(ansicht_);
    zeile->addWidget(Nebeneinander({ansicht, ansicht_}));
    std::vector<QWidget*> kennzahlen;
    for (const Kennzahlzeile& kennzahl : art_.kennzahlen)
        kennzahlen.push_back(NeueKennzahlspalte(kennzahl));
    for (const Kennzahlzeile& summe : summenzeilen)
        kennzahlen.push_back(NeueKennzahlspalte(summe));
    QWidget* rechts = Nebeneinander(kennzahlen);
    rechts->layout()->setSpacing(24);
    zeile->addWidget(rechts);
    return kopf;
}

QWidget* RegisterBerechnung::NeueKennzahlspalte(const Kennzahlzeile& kennzahl) {
    auto* gruppe = new QWidget;
    auto* titel = new QLabel(QString::fromUtf8(kennzahl.titel), gruppe);
    QLabel* wert = NeueKennzahl(kennzahl.name, gruppe);
    kennzahlen_[kennzahl.name] = wert;
    auto* spalte = new QVBoxLayout(gruppe);
    spalte->setContentsMargins(0, 0, 0, 0);
    spalte->setSpacing(0);
    spalte->addWidget(titel, 0, Qt::AlignRight);
    spalte->addWidget(wert, 0, Qt::AlignRight);
    return gruppe;
}

QWidget* RegisterBerechnung::Effektivzeile() {
    auto* leiste = new QWidget;
    auto* zeile = new Umbruchzeile(leiste);
    auto* methode = new QLabel("Effektivzinssatzberechnungs&methode");
    methode->setBuddy(methode_);
    zeile->addWidget(Nebeneinander({methode, methode_}));
    if (Gibt(art_.rechnen)) {
        zeile->addWidget(Ergebnistaste(art_.rechnen, "&Effektivzinssatz berechnen",
                                       &RegisterBerechnung::effektivzinsVerlangt));
    }
    effektivtitel_ = new QLabel(this);
    effektivtitel_->setObjectName(art_.effektivtitel);
    auto* einheit = new QLabel("%", this);
    einheit->setObjectName("Label28");
    effektivteile_ = {effektivtitel_, ezins_, einheit};
    zeile->addWidget(Nebeneinander({effektivtitel_, ezins_, einheit}));
    EffektivmethodeWaehlen(Effektivmethode::pangv2000);
    EffektivzinsVerbergen();
    return leiste;
}

QWidget* RegisterBerechnung::Auszugseite() {
    std::vector<QPushButton*> reihe{
        Ergebnistaste(art_.drucken, art_.druckentext, &RegisterBerechnung::druckenVerlangt),
        Ergebnistaste(art_.grafik, "&Grafik", &RegisterBerechnung::grafikVerlangt),
    };
    for (const Auszugtaste& taste : art_.tasten) {
        reihe.push_back(NeueTaste(taste.name, QString::fromUtf8(taste.beschriftung), this, taste.wirkung));
        tasten_.push_back(reihe.back());
    }
    return Seite(Grid_, reihe);
}

void RegisterBerechnung::EffektivzinsZeigen(const std::string& ezins, Effektivmethode methode) {
    effektivmethode_ = methode;
    ezins_->setText(QString::fromStdString(ezins));
    EffektivtitelZeigen();
    for (QLabel* teil : effektivteile_)
        teil->show();
}

void RegisterBerechnung::EffektivzinsVerbergen() {
    ezins_->clear();
    for (QLabel* teil : effektivteile_)
        teil->hide();
}

void RegisterBerechnung::EffektivtitelZeigen() {
    const bool gewaehlte = effektivmethode_ == GewaehlteEffektivmethode();
    const QString methode =
        gewaehlte ? QString() : " nach " + Anzeigetext(Effektivmethodentext(effektivmethode_));
    effektivtitel_->setText("Effektivzinssatz" + methode);
}

Effektivmethode RegisterBerechnung::GewaehlteEffektivmethode() const {
    return static_cast<Effektivmethode>(methode_->currentIndex() + 1);
}

void RegisterBerechnung::EffektivmethodeWaehlen(Effektivmethode methode) {
    methode_->setCurrentIndex(static_cast<int>(methode) - 1);
}

Kontoansicht RegisterBerechnung::Ansicht() const {
    return static_cast<Kontoansicht>(ansicht_->currentIndex());
}

void RegisterBerechnung::KennzahlZeigen(const char* name, const std::string& text) {
    QLabel* wert = kennzahlen_.at(name);
    wert->setText(QString::fromStdString(text));
    wert->parentWidget()->setVisible(!text.empty());
}

void RegisterBerechnung::Zeigen(std::vector<Staffelsatz> loesung, const Kontoeinstellungen& grundlage) {
    loesung_ = std::make_shared<const std::vector<Staffelsatz>>(std::move(loesung));
    TastenFreigeben(true);
    grundlage_->setText(QString::fromStdString(Rechengrundlage(grundlage)));
    const Kontosummen summen = KontosummenBilden(*loesung_, art_.regel);
    kennzahlen_.at("Gesamtzahlungssumme")->setText(Anzeigetext(summen.Gesamtzahlungssumme));
    kennzahlen_.at("EV")->setText(Anzeigetext(summen.Endvermögen));
    kennzahlen_.at("Geszins")->setText(Anzeigetext(summen.Gesamtzinsen));
    AnsichtZeigen();
}

void RegisterBerechnung::Leeren() {
    loesung_ = std::make_shared<const std::vector<Staffelsatz>>();
    ezins_->clear();
    grundlage_->clear();
    TastenFreigeben(false);
    for (const auto& [name, kennzahl] : kennzahlen_)
        kennzahl->clear();
    for (const Kennzahlzeile& kennzahl : art_.kennzahlen)
        KennzahlZeigen(kennzahl.name, {});
    AnsichtZeigen();
}

void RegisterBerechnung::TastenFreigeben(bool frei) {
    for (QPushButton* taste : tasten_)
        taste->setEnabled(frei);
}

Kontoberichtsdaten RegisterBerechnung::Berichtsdaten() const {
    Kontoberichtsdaten daten;
    daten.ezins = ezins_->text().toStdString();
    daten.effektivmethode = Effektivmethodentext(effektivmethode_);
    daten.loesung = loesung_;
    daten.ansicht = Ansicht();
    return daten;
}

void RegisterBerechnung::KurzformWaehlen() {
    ansicht_->setCurrentIndex(static_cast<int>(Kontoansicht::kurzform));
}

void RegisterBerechnung::AnsichtZeigen() {
    Grid_->Zeige(AnsichtBilden(Ansicht(), loesung_, art_.regel));
}

}  // namespace zinfolio
