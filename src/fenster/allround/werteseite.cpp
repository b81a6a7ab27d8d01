#include "fenster/allround/werteseite.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "fenster/allround/eingabezeile.h"
#include "fenster/ui/bausteine.h"
#include "fenster/ui/datumsfeld.h"
#include "fenster/ui/meldungsfenster.h"
#include "fenster/ui/tabelle.h"
#include "kern/allround/ansichten.h"
#include "kern/grund/utf8.h"

namespace zinfolio {
namespace {

constexpr std::array<std::string_view, 2> auswertungen{"Barwert bezogen auf Barwertdatum",
                                                       "Barwerttabelle für alle Jahre"};
constexpr int jahrestabelle = 1;

QLabel* Ergebnistext(const char* name, QWidget* eltern) {
    auto* text = new QLabel(eltern);
    text->setObjectName(QString::fromUtf8(name));
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return text;
}

}  // namespace

Werteseite::Werteseite(QWidget* eltern)
    : QWidget(eltern),
      Abzins2_(new Eingabefeld("Abzins2", Tastenfilter::betrag, this)),
      BarwDatum_(new Datumsfeld("BarwDatum", this)),
      Combo7_(NeueAuswahl("Combo7", auswertungen, this)),
      Label12_(Ergebnistext("Label12", this)),
      Label13_(Ergebnistext("Label13", this)),
      Label14_(NeueKennzahl("Label14", this)),
      Frame1_(new QGroupBox("Amortisation", this)),
      StatAmor_(Ergebnistext("StatAmor", Frame1_)),
      DynAmor_(Ergebnistext("DynAmor", Frame1_)),
      Dynamorinterpoliert_(Ergebnistext("Dynamorinterpoliert", Frame1_)),
      Grid3_(new Tabelle("Grid3", this)) {
    setObjectName("Frame(2)");
    Grid3_->setAccessibleName("Werte der Zahlungen");
    auto* anordnung = new QVBoxLayout(this);
    anordnung->setContentsMargins(0, 0, 0, 0);
    anordnung->addWidget(Kopf());
    anordnung->addWidget(Amortisationsband());
    anordnung->addWidget(
        Seite(Grid3_, {NeueTaste("Command12", "&Analyse", this, [this] { emit analyseVerlangt(); }),
                       NeueTaste("Grafik", "&Grafik", this, [this] { emit grafikVerlangt(); }),
                       NeueTaste("Drucken1", "Dru&cken", this, [this] { emit druckenVerlangt(); })}),
        1);
    connect(Abzins2_, &Eingabefeld::editingFinished, this, &Werteseite::FeldVerlassen);
    connect(BarwDatum_, &Eingabefeld::editingFinished, this, &Werteseite::FeldVerlassen);
    connect(Combo7_, &QComboBox::currentIndexChanged, this, [this](int stelle) {
        if (stelle == jahrestabelle) emit jahreswerteVerlangt();
    });
}

QWidget* Werteseite::Kopf() {
    auto* kopf = new Eingabezeile(this);
    kopf->Feld("&Zins", Abzins2_, "%");
    datumsgruppe_ = kopf->Feld("&Barwertdatum", BarwDatum_);
    auswertungsgruppe_ = kopf->Feld("Aus&wertung :", Combo7_);
    kopf->Abstand();
    return kopf;
}

QWidget* Werteseite::Amortisationsband() {
    Frame1_->setObjectName("Frame1");
    QSizePolicy platz = Frame1_->sizePolicy();
    platz.setRetainSizeWhenHidden(true);
    Frame1_->setSizePolicy(platz);
    auto* daten = new QFormLayout(Frame1_);
    daten->addRow("Statische Amortisation (ohne Interpolierung)", StatAmor_);
    daten->addRow("Dynamische Amortisation (ohne Interpolierung)", DynAmor_);
    daten->addRow("Dynamische Amortisation (interpoliert)", Dynamorinterpoliert_);
    auto* urteil = new QVBoxLayout;
    urteil->addStretch();
    urteil->addWidget(Label13_, 0, Qt::AlignRight);
    urteil->addWidget(Label14_, 0, Qt::AlignRight);
    urteil->addWidget(Label12_, 0, Qt::AlignRight);
    urteil->addStretch();
    auto* band = new QWidget(this);
    auto* zeile = new QHBoxLayout(band);
    zeile->setContentsMargins(0, 0, 0, 0);
    zeile->addWidget(Frame1_);
    zeile->addStretch();
    zeile->addLayout(urteil);
    return band;
}

void Werteseite::Betreten(Wertart art) {
    art_ = art;
    datumsgruppe_->setVisible(art == Wertart::barwert);
    auswertungsgruppe_->setVisible(art == Wertart::barwert);
    AuswertungZuruecksetzen();
}

Werteingabe Werteseite::Eingabe(const std::string& abzins) const {
    return {
        .Anzeigeart = art_, .Abzins2 = Abzins2_->Wert(), .BarwDatum = BarwDatum_->Wert(), .Abzins = abzins};
}

void Werteseite::EingabeZeigen(const Werteingabe& eingabe) {
    Abzins2_->Setze(eingabe.Abzins2);
    BarwDatum_->Setze(eingabe.BarwDatum);
    gerechneterZins_ = eingabe.Abzins2;
    gerechnetesDatum_ = eingabe.BarwDatum;
    // A text that is set is not selected, and the next key would append to it.
    for (QLineEdit* feld : std::initializer_list<QLineEdit*>{Abzins2_, BarwDatum_})
        if (feld->hasFocus()) feld->selectAll();
}

/// An empty rate, and a date of less than three characters, start nothing: their defaults count from the next
/// time on that the tab is selected.
void Werteseite::FeldVerlassen() {
    const std::string zins = Abzins2_->Wert();
    const std::string datum = BarwDatum_->Wert();
    const bool neuerZins = !zins.empty() && zins != gerechneterZins_;
    const bool neuesDatum = Zeichenzahl(datum) >= 3 && datum != gerechnetesDatum_;
    if (neuerZins || neuesDatum) emit eingabeGeaendert();
}

void Werteseite::Zeigen(const Wertergebnis& ergebnis) {
    Grid3_->Zeige(WertansichtBilden(ergebnis));
    AnsEndeRollen(*Grid3_, ergebnis.Tabelle.Zeilen());
    Frame1_->setVisible(ergebnis.Frame1);
    const Wertaussagen aussagen = ergebnis.Aussagen.value_or(Wertaussagen());
    StatAmor_->setText(Anzeigetext(aussagen.StatAmor));
    DynAmor_->setText(Anzeigetext(aussagen.DynAmor));
    Dynamorinterpoliert_->setText(Anzeigetext(ergebnis.Dynamorinterpoliert.value_or("")));
    Label12_->setText(Anzeigetext(aussagen.Label12));
    Label13_->setText(Anzeigetext(aussagen.Label13));
    Label14_->setText(Anzeigetext(aussagen.Label14));
}

void Werteseite::AuswertungZuruecksetzen() {
    Combo7_->setCurrentIndex(0);
}

void Werteseite::Leeren() {
    BarwDatum_->clear();
    gerechnetesDatum_.clear();
}

}  // namespace zinfolio
