#include "fenster/sparen/sparergebnisseite.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "fenster/ui/bausteine.h"
#include "fenster/ui/meldungsfenster.h"
#include "fenster/ui/tabelle.h"
#include "kern/dates/zahlformat.h"

namespace zinfolio {
namespace {

constexpr int abstandDerZahlen = 24;

/// What a form solves for, as its figure is called; the end capital is a total already.
const char* Loesungsname(Sparziel ziel) {
    switch (ziel) {
        case Sparziel::sparrate:
            return "Sparrate";
        case Sparziel::rendite:
            return "Nominalzins %";
        case Sparziel::anspardauer:
            return "Erreicht am";
        case Sparziel::anfangskapital:
            return "Anfangskapital";
        case Sparziel::endkapital:
            break;
    }
    return "";
}

/// A figure below its name.
QVBoxLayout* Zahlenspalte(QLabel* titel, QLabel* wert) {
    auto* spalte = new QVBoxLayout;
    spalte->setSpacing(0);
    spalte->addWidget(titel, 0, Qt::AlignRight);
    spalte->addWidget(wert, 0, Qt::AlignRight);
    return spalte;
}

}  // namespace

Sparergebnisseite::Sparergebnisseite(const Sparform& form, QWidget* eltern)
    : QWidget(eltern),
      form_(form),
      loesung_(std::make_shared<const std::vector<Staffelsatz>>()),
      Combo6_(NeueAuswahl("Combo6", kontoansichten, this)),
      Combo5_(NeueAuswahl("Combo5", effektivmethoden, this)),
      Gesamtzahlungssumme_(NeueKennzahl("Gesamtzahlungssumme", this)),
      Geszins_(NeueKennzahl("Geszins", this)),
      EV_(NeueKennzahl("EV", this)),
      ezins_(NeueKennzahl("ezins", this)),
      Grid_(new Tabelle("Grid", this)) {
    setObjectName("Frame(2)");
    auto* anordnung = new QVBoxLayout(this);
    anordnung->addWidget(Kopfzeile());
    anordnung->addWidget(Effektivzeile());
    anordnung->addWidget(Grid_, 1);
    anordnung->addWidget(Ausgabezeile());
    connect(Combo6_, &QComboBox::currentIndexChanged, this, &Sparergebnisseite::AnsichtZeigen);
    connect(Combo5_, &QComboBox::activated, this, [this] {
        emit geaendert();
        emit methodeGewaehlt();
    });
    Leeren();
}

QWidget* Sparergebnisseite::Kopfzeile() {
    auto* kopf = new QWidget;
    auto* zeile = new QHBoxLayout(kopf);
    zeile->setContentsMargins(0, 0, 0, 0);
    auto* ansicht = new QLabel("&Kontoanzeige");
    ansicht->setBuddy(Combo6_);
    zeile->addWidget(ansicht);
    zeile->addWidget(Combo6_);
    zeile->addStretch();
    const auto aufnehmen = [&](const char* titel, QLabel* wert) {
        zeile->addSpacing(abstandDerZahlen);
        zeile->addLayout(Zahlenspalte(new QLabel(QString::fromUtf8(titel)), wert));
    };
    if (form_.ziel != Sparziel::endkapital) {
        loesungstext_ = NeueKennzahl(form_.ziel == Sparziel::rendite ? "Nzins" : "Loesung", this);
        aufnehmen(Loesungsname(form_.ziel), loesungstext_);
    }
    aufnehmen("Gesamtzahlungssumme", Gesamtzahlungssumme_);
    aufnehmen("Gesamtzinsen", Geszins_);
    aufnehmen("Endvermögen", EV_);
    return kopf;
}

QWidget* Sparergebnisseite::Effektivzeile() {
    auto* leiste = new QWidget;
    auto* zeile = new QHBoxLayout(leiste);
    zeile->setContentsMargins(0, 0, 0, 0);
    auto* methode = new QLabel("Effektivzinssatzberechnungs&methode");
    methode->setBuddy(Combo5_);
    zeile->addWidget(methode);
    zeile->addWidget(Combo5_);
    zeile->addWidget(
        NeueTaste("Effzins", "&Effektivzinssatz berechnen", this, [this] { emit effzinsVerlangt(); }));
    zeile->addStretch();
    Label12_ = new QLabel("Effektivzinssatz");
    Label12_->setObjectName("Label12");
    zeile->addWidget(Label12_);
    zeile->addWidget(ezins_);
    return leiste;
}

QWidget* Sparergebnisseite::Ausgabezeile() {
    const bool mitText = form_.dynamik == Dynamik::einfach;
    auto* leiste = new QWidget;
    auto* zeile = new QHBoxLayout(leiste);
    zeile->setContentsMargins(0, 0, 0, 0);
    zeile->addWidget(
        NeueTaste("Command8", mitText ? "Dru&cken 1" : "Dru&cken", this, [this] { emit druckenVerlangt(); }));
    if (mitText) zeile->addWidget(NeueTaste("Drucken", "Drucken &2", this, [this] { emit textVerlangt(); }));
    zeile->addWidget(NeueTaste("Command4", "&Grafik", this, [this] { emit grafikVerlangt(); }));
    zeile->addStretch();
    return leiste;
}

void Sparergebnisseite::Zeigen(const Sparplan& plan, Sparergebnis ergebnis, double kapital) {
    ergebnis_ = std::move(ergebnis);
    plan_ = plan;
    kapital_ = kapital;
    loesung_ = std::make_shared<const std::vector<Staffelsatz>>(*ergebnis_.lauf.loesung);
    Gesamtzahlungssumme_->setText(Anzeigetext(ergebnis_.summen.Gesamtzahlungssumme));
    Geszins_->setText(Anzeigetext(ergebnis_.summen.Gesamtzinsen));
    EV_->setText(Anzeigetext(ergebnis_.summen.Endvermögen));
    LoesungZeigen(kapital);
    const bool mitEffzins = form_.effektivzinsMitErgebnis || form_.ziel == Sparziel::rendite;
    if (mitEffzins) EffzinsZeigen(plan, ergebnis_.ezins);
    TastenFreigeben(true);
    KurzformWaehlen();
    AnsichtZeigen();
}

void Sparergebnisseite::LoesungZeigen(double kapital) {
    if (!loesungstext_) return;
    switch (form_.ziel) {
        case Sparziel::rendite:
            return loesungstext_->setText(Anzeigetext(ergebnis_.Nzins));
        case Sparziel::anspardauer:
            return loesungstext_->setText(Anzeigetext(ergebnis_.Enddatum));
        case Sparziel::anfangskapital:
            return loesungstext_->setText(Anzeigetext(Format(kapital, betragsmuster)));
        default:
            loesungstext_->setText(Anzeigetext(Format(ergebnis_.loesung, betragsmuster)));
    }
}

void Sparergebnisseite::EffzinsZeigen(const Sparplan& plan, const std::string& ezins) {
    effzinsGezeigt_ = true;
    plan_.Combo5 = plan.Combo5;
    ergebnis_.ezins = ezins;
    // An account without a rate shows an empty field.
    ezins_->setText(ezins.empty() ? QString() : Anzeigetext(ezins + " %"));
    Label12_->show();
    ezins_->show();
}

void Sparergebnisseite::Leeren() {
    ergebnis_ = {};
    ergebnis_.lauf.loesung.emplace();
    effzinsGezeigt_ = false;
    loesung_ = std::make_shared<const std::vector<Staffelsatz>>();
    for (QLabel* wert : {loesungstext_, Gesamtzahlungssumme_, Geszins_, EV_, ezins_}) {
        if (wert) wert->clear();
    }
    Label12_->hide();
    ezins_->hide();
    TastenFreigeben(false);
    AnsichtZeigen();
}

void Sparergebnisseite::Lesen(Sparplan& plan) const {
    plan.Combo5 = static_cast<std::int16_t>(Combo5_->currentIndex());
}

void Sparergebnisseite::MethodeZeigen(const Sparplan& plan) {
    Combo5_->setCurrentIndex(plan.Combo5);
}

Sparberichtsdaten Sparergebnisseite::Berichtsdaten() const {
    Sparberichtsdaten daten{.form = &form_, .plan = plan_, .kapital = kapital_};
    if (effzinsGezeigt_) daten.ezins = ergebnis_.ezins;
    daten.Nzins = ergebnis_.Nzins;
    daten.loesung = loesung_;
    daten.ansicht = static_cast<Kontoansicht>(Combo6_->currentIndex());
    return daten;
}

void Sparergebnisseite::KurzformWaehlen() {
    Combo6_->setCurrentIndex(static_cast<int>(Kontoansicht::kurzform));
}

void Sparergebnisseite::TastenFreigeben(bool frei) {
    for (auto* taste : findChildren<QPushButton*>())
        taste->setEnabled(frei);
}

void Sparergebnisseite::AnsichtZeigen() {
    Grid_->Zeige(SparansichtBilden(form_, static_cast<Kontoansicht>(Combo6_->currentIndex()), loesung_));
}

}  // namespace zinfolio
