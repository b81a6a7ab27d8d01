#include "fenster/sparen/sparfelder.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "fenster/ui/bausteine.h"
#include "fenster/ui/datumsfeld.h"
#include "fenster/ui/feldraster.h"
#include "fenster/ui/kalendertaste.h"
#include "fenster/ui/meldungsfenster.h"
#include "fenster/ui/umschalttaste.h"
#include "kern/dates/datumtippen.h"
#include "kern/staffel/zahlungseingabe.h"

namespace zinfolio {
namespace {

constexpr qsizetype laengeEinesDatums = 10;
constexpr int abstandDerAbschnitte = 18;

constexpr std::array einheiten{einheitProzent, einheitBetrag};

/// The mnemonics of the tab, one owner each.
struct Kuerzel {
    const Sparfeld* feld;
    char buchstabe;
};
constexpr std::array kuerzel{
    Kuerzel{&sparfeld::AnfVermögen, 'f'}, Kuerzel{&sparfeld::ratdatum1, 'n'}, Kuerzel{&sparfeld::Betrag, 'h'},
    Kuerzel{&sparfeld::Combo1, 'w'},      Kuerzel{&sparfeld::Check2, 'y'},    Kuerzel{&sparfeld::Zins, 'l'},
    Kuerzel{&sparfeld::Combo2, 'g'},      Kuerzel{&sparfeld::Combo4, 'v'},    Kuerzel{&sparfeld::Vwert, 'm'},
    Kuerzel{&sparfeld::Vermendwert, 'm'},
};

QString Beschriftung(const Formzeile& zeile) {
    QString text = Anzeigetext(zeile.beschriftung).trimmed();
    const auto k = std::ranges::find(kuerzel, zeile.feld, &Kuerzel::feld);
    if (k == kuerzel.end()) return text;
    return text.insert(text.indexOf(QLatin1Char(k->buchstabe), 0, Qt::CaseInsensitive), '&');
}

Tastenfilter Filter(Sparfeldart art) {
    if (art == Sparfeldart::prozent) return Tastenfilter::prozent;
    return art == Sparfeldart::ganzzahl ? Tastenfilter::ganzzahl : Tastenfilter::betrag;
}

/// The calendar button of a date.
const char* Kalendername(const Sparfeld* feld) {
    if (feld == &sparfeld::Anfdatum) return "Command1";
    return feld == &sparfeld::ratdatum1 ? "Command2" : "Command3";
}

/// What stands on this tab: the method of the effective rate is chosen beside the result.
bool StehtHier(const Formzeile& zeile, Sparabschnitt abschnitt) {
    return zeile.abschnitt == abschnitt && zeile.feld != &sparfeld::Combo5 && zeile.feld != &sparfeld::Check2;
}

}  // namespace

Sparfelder::Sparfelder(const Sparform& form, QWidget* eltern) : QWidget(eltern), form_(form) {
    setObjectName("Frame(1)");
    auto* spalten = new QHBoxLayout;
    spalten->setSpacing(abstandDerAbschnitte);
    spalten->addWidget(LinkeSpalte(), 1);
    spalten->addWidget(RechteSpalte(), 1);
    auto* anordnung = new QVBoxLayout(this);
    anordnung->addLayout(spalten);
    anordnung->addWidget(Tastenleiste());
    anordnung->addStretch();
    Verdrahten();
    Zeigen({});
}

QWidget* Sparfelder::LinkeSpalte() {
    auto* spalte = new QWidget;
    auto* anordnung = new QVBoxLayout(spalte);
    anordnung->setContentsMargins(0, 0, 0, 0);
    anordnung->addWidget(Abschnitt("Sparplan", Sparabschnitt::plan));
    anordnung->addWidget(Abschnitt("Zinsen und Ende", Sparabschnitt::ziel));
    anordnung->addStretch();
    return spalte;
}

QWidget* Sparfelder::RechteSpalte() {
    auto* spalte = new QWidget;
    auto* anordnung = new QVBoxLayout(spalte);
    anordnung->setContentsMargins(0, 0, 0, 0);
    Check2_ = NeuerHaken(*FormzeileSuchen(form_, sparfeld::Check2.name));
    anordnung->addWidget(Check2_);
    Frameb_ = new QWidget;
    Frameb_->setObjectName("Frameb");
    auto* felder = new QVBoxLayout(Frameb_);
    felder->setContentsMargins(0, 0, 0, 0);
    felder->addWidget(Abschnitt("Dynamisierung", Sparabschnitt::dynamisierung));
    if (form_.dynamik == Dynamik::mitGrenzen)
        felder->addWidget(Abschnitt("Begrenzungen", Sparabschnitt::begrenzung));
    anordnung->addWidget(Frameb_);
    anordnung->addStretch();
    return spalte;
}

QWidget* Sparfelder::Abschnitt(const char* titel, Sparabschnitt abschnitt) {
    auto* gruppe = new QGroupBox(QString::fromUtf8(titel));
    auto* raster = new Feldraster;
    gruppe->setLayout(raster);
    // The captions of one column end at one place.
    raster->setColumnMinimumWidth(0, Beschriftungsbreite(abschnitt));
    FelderAnlegen(*raster, abschnitt);
    return gruppe;
}

int Sparfelder::Beschriftungsbreite(Sparabschnitt abschnitt) const {
    const bool links = abschnitt == Sparabschnitt::plan || abschnitt == Sparabschnitt::ziel;
    int breite = 0;
    for (const Formzeile& zeile : form_.felder) {
        const bool dort = zeile.abschnitt == Sparabschnitt::plan || zeile.abschnitt == Sparabschnitt::ziel;
        if (links != dort || zeile.feld->art == Sparfeldart::haken || zeile.feld == &sparfeld::Combo5)
            continue;
        breite = std::max(breite, fontMetrics().horizontalAdvance(Beschriftung(zeile)));
    }
    return breite;
}

QWidget* Sparfelder::Tastenleiste() {
    auto* leiste = new QWidget;
    auto* zeile = new QHBoxLayout(leiste);
    zeile->setContentsMargins(0, 0, 0, 0);
    // Where the button of that name tells a unit, the tab alone starts the calculation.
    if (form_.dynamik == Dynamik::mitGrenzen)
        zeile->addWidget(NeueTaste("Command6", "&Berechnen", this, [this] { emit berechnenVerlangt(); }));
    if (form_.zinstabelle) {
        zeile->addWidget(NeueTaste("Zinssatzänderungen", "&Zinssatzänderungen", this,
                                   [this] { emit zinstabelleVerlangt(); }));
        Image1_ = new QLabel("✓ Der Plan enthält Zinssatzänderungen.");
        Image1_->setObjectName("Image1(1)");
        zeile->addWidget(Image1_);
    }
    zeile->addStretch();
    return leiste;
}

void Sparfelder::FelderAnlegen(Feldraster& raster, Sparabschnitt abschnitt) {
    for (const Formzeile& zeile : form_.felder) {
        if (!StehtHier(zeile, abschnitt)) continue;
        switch (zeile.feld->art) {
            case Sparfeldart::liste:
                ListeAnlegen(zeile, raster);
                break;
            case Sparfeldart::haken:
                raster.GanzeZeile(NeuerHaken(zeile));
                break;
            case Sparfeldart::einheit:
                EinheitAnlegen(zeile, raster);
                break;
            default:
                TextfeldAnlegen(zeile, raster);
        }
    }
}

void Sparfelder::TextfeldAnlegen(const Formzeile& zeile, Feldraster& raster) {
    Eingabefeld* feld = NeuesTextfeld(zeile);
    bindungen_.push_back(
        {[feld, glied = zeile.feld->text](Sparplan& plan) { plan.*glied = feld->Wert(); },
         [feld, glied = zeile.feld->text](const Sparplan& plan) { feld->Setze(plan.*glied); }});
    connect(feld, &QLineEdit::textEdited, this, &Sparfelder::geaendert);
    raster.Zeile(Beschriftung(zeile), feld);
    if (auto* datumsfeld = qobject_cast<Datumsfeld*>(feld))
        raster.Dahinter(raster.LetzteZeile(), Kalender(zeile, *datumsfeld));
    else
        raster.Dahinter(raster.LetzteZeile(), new QLabel(Anzeigetext(zeile.einheit), this));
}

Eingabefeld* Sparfelder::NeuesTextfeld(const Formzeile& zeile) {
    const QString name = Anzeigetext(zeile.feld->name);
    if (zeile.feld->art == Sparfeldart::datum) return new Datumsfeld(name, this);
    auto* feld = new Eingabefeld(name, Filter(zeile.feld->art), this);
    feld->setAlignment(Qt::AlignRight);
    return feld;
}

QWidget* Sparfelder::Kalender(const Formzeile& zeile, Datumsfeld& feld) {
    feld.setPlaceholderText("tt.mm.jjjj");
    if (form_.ziel == Sparziel::anspardauer) BeimTippenHelfen(feld);
    return new Kalendertaste(Kalendername(zeile.feld), feld, this);
}

/// The points come by themselves, unless a day or month of one digit is typed with its own point. A text that
/// has become shorter was shortened by Backspace.
void Sparfelder::BeimTippenHelfen(Datumsfeld& feld) {
    connect(&feld, &QLineEdit::textEdited, this, [&feld, vorher = qsizetype{0}](const QString& text) mutable {
        const int taste = text.size() < vorher ? tasteRueck : 0;
        vorher = text.size();
        if (text.mid(1, 1) == "." || text.mid(4, 1) == ".") return;
        const std::string getippt = DatumTippen(text.toStdString(), taste);
        if (getippt != text.toStdString()) feld.Setze(getippt);
        vorher = feld.text().size();
    });
}

void Sparfelder::ListeAnlegen(const Formzeile& zeile, Feldraster& raster) {
    const std::string name(zeile.feld->name);
    QComboBox* liste = NeueAuswahl(name.c_str(), zeile.feld->eintraege, this);
    // A long entry must not make the whole column wide.
    constexpr int mindestzeichen = 18;
    liste->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    liste->setMinimumContentsLength(mindestzeichen);
    const auto glied = zeile.feld->zahl;
    bindungen_.push_back(
        {[liste, glied](Sparplan& plan) { plan.*glied = static_cast<std::int16_t>(liste->currentIndex()); },
         [liste, glied](const Sparplan& plan) { liste->setCurrentIndex(plan.*glied); }});
    connect(liste, &QComboBox::activated, this, &Sparfelder::geaendert);
    raster.Zeile(Beschriftung(zeile), liste);
}

QCheckBox* Sparfelder::NeuerHaken(const Formzeile& zeile) {
    auto* haken = new QCheckBox(Beschriftung(zeile), this);
    haken->setObjectName(Anzeigetext(zeile.feld->name));
    const auto glied = zeile.feld->zahl;
    bindungen_.push_back({[haken, glied](Sparplan& plan) { plan.*glied = haken->isChecked() ? 1 : 0; },
                          [haken, glied](const Sparplan& plan) { haken->setChecked(plan.*glied == 1); }});
    connect(haken, &QCheckBox::clicked, this, &Sparfelder::geaendert);
    if (zeile.feld == &sparfeld::Check1) Check1_ = haken;
    return haken;
}

void Sparfelder::EinheitAnlegen(const Formzeile& zeile, Feldraster& raster) {
    auto* taste = new Umschalttaste(Anzeigetext(zeile.feld->name), einheiten, this);
    bindungen_.push_back(
        {[taste](Sparplan& plan) { plan.Command6 = einheiten.at(static_cast<std::size_t>(taste->Stelle())); },
         [taste](const Sparplan& plan) { taste->Setze(plan.Command6 == einheitBetrag ? 1 : 0); }});
    connect(taste, &Umschalttaste::clicked, this, &Sparfelder::geaendert);
    raster.Zeile("Einheit der Veränderung", taste);
}

void Sparfelder::Verdrahten() {
    connect(Check2_, &QCheckBox::toggled, Frameb_, &QWidget::setVisible);
    connect(static_cast<QLineEdit*>(Feld(sparfeld::ratdatum1)), &QLineEdit::textChanged, this,
            [this](const QString& text) {
                if (text.size() >= laengeEinesDatums) MonatsletztenAnbieten();
            });
    QSizePolicy platzhaltend = Check1_->sizePolicy();
    platzhaltend.setRetainSizeWhenHidden(true);
    Check1_->setSizePolicy(platzhaltend);
    for (const Sparfeld* grenze : {&sparfeld::Check3, &sparfeld::Check4, &sparfeld::Check5}) {
        if (auto* haken = qobject_cast<QCheckBox*>(Feld(*grenze)))
            connect(haken, &QCheckBox::toggled, this, &Sparfelder::GrenzenFreigeben);
    }
}

void Sparfelder::Lesen(Sparplan& plan) const {
    for (const Bindung& bindung : bindungen_)
        bindung.lesen(plan);
}

void Sparfelder::Zeigen(const Sparplan& plan) {
    for (const Bindung& bindung : bindungen_)
        bindung.zeigen(plan);
    Frameb_->setVisible(plan.Check2 == 1);
    GrenzenFreigeben();
    MarkeZeigen(!plan.Zinsbetrag.front().empty());
    MonatsletztenNachLaden();
}

void Sparfelder::MarkeZeigen(bool sichtbar) {
    if (Image1_) Image1_->setVisible(sichtbar);
}

void Sparfelder::MonatsletztenNachLaden() {
    const auto* datum = static_cast<const QLineEdit*>(Feld(sparfeld::ratdatum1));
    if (datum->text().size() >= laengeEinesDatums) return MonatsletztenAnbieten();
    Check1_->hide();
}

void Sparfelder::MonatsletztenAnbieten() {
    const auto* datum = static_cast<const Eingabefeld*>(Feld(sparfeld::ratdatum1));
    const bool anbieten = MonatsendeAngeboten(datum->Wert());
    Check1_->setVisible(anbieten);
    if (!anbieten) Check1_->setChecked(false);
}

/// A bound's field takes part only while its box is ticked.
void Sparfelder::GrenzenFreigeben() {
    constexpr std::array paare{std::pair(&sparfeld::Check3, &sparfeld::DynAnz),
                               std::pair(&sparfeld::Check4, &sparfeld::MaxSparrate),
                               std::pair(&sparfeld::Check5, &sparfeld::MinSparrate)};
    for (const auto& [haken, grenze] : paare) {
        if (QWidget* feld = Feld(*grenze))
            feld->setEnabled(static_cast<QCheckBox*>(Feld(*haken))->isChecked());
    }
}

QWidget* Sparfelder::Feld(const Sparfeld& feld) const {
    return findChild<QWidget*>(Anzeigetext(feld.name));
}

}  // namespace zinfolio
