#include "fenster/sparen/sparfelder.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "fenster/sparen/sparfeldbindung.h"
#include "fenster/ui/bausteine.h"
#include "fenster/ui/datumsfeld.h"
#include "fenster/ui/feldraster.h"
#include "fenster/ui/meldungsfenster.h"
#include "kern/dates/datumtippen.h"
#include "kern/staffel/zahlungseingabe.h"

namespace zinfolio {
namespace {

constexpr qsizetype laengeEinesDatums = 10;
constexpr int abstandDerSpalten = 18;

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

std::string Beschriftung(const Formzeile& zeile) {
    QString text = Anzeigetext(zeile.beschriftung).trimmed();
    const auto k = std::ranges::find(kuerzel, zeile.feld, &Kuerzel::feld);
    if (k != kuerzel.end()) text.insert(text.indexOf(QLatin1Char(k->buchstabe), 0, Qt::CaseInsensitive), '&');
    return text.toStdString();
}

/// The calendar button of a date.
std::string_view Kalendername(const Sparfeld* feld) {
    if (feld == &sparfeld::Anfdatum) return "Command1";
    return feld == &sparfeld::ratdatum1 ? "Command2" : "Command3";
}

/// The box that lets a bound be used.
std::string_view Haken(const Sparfeld* grenze) {
    if (grenze == &sparfeld::DynAnz) return sparfeld::Check3.name;
    if (grenze == &sparfeld::MaxSparrate) return sparfeld::Check4.name;
    return grenze == &sparfeld::MinSparrate ? sparfeld::Check5.name : "";
}

/// What stands on this tab: the method of the effective rate is chosen beside the result.
bool StehtHier(const Formzeile& zeile, Sparabschnitt abschnitt) {
    return zeile.abschnitt == abschnitt && zeile.feld != &sparfeld::Combo5 && zeile.feld != &sparfeld::Check2;
}

/// The width that a column beside the fields of a section needs; what takes a whole row does not count.
int Spaltenbreite(const QGridLayout& raster, int spalte) {
    int breite = 0;
    for (int zeile = 0; zeile < raster.rowCount(); ++zeile) {
        const QLayoutItem* element = raster.itemAtPosition(zeile, spalte);
        if (element && element != raster.itemAtPosition(zeile, 1))
            breite = std::max(breite, element->sizeHint().width());
    }
    return breite;
}

}  // namespace

Sparfelder::Sparfelder(const Sparform& form, QWidget* eltern) : QWidget(eltern), form_(form), felder_(this) {
    setObjectName("Frame(1)");
    auto* spalten = new QHBoxLayout;
    spalten->setSpacing(abstandDerSpalten);
    spalten->addWidget(Spalte(LinkeZeilen()), 1);
    spalten->addWidget(Spalte(RechteZeilen()), 1);
    auto* anordnung = new QVBoxLayout(this);
    anordnung->addLayout(spalten);
    anordnung->addWidget(Tastenleiste());
    anordnung->addStretch();
    for (auto* liste : findChildren<QComboBox*>()) {
        // A long entry must not make the whole column wide.
        constexpr int mindestzeichen = 18;
        liste->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        liste->setMinimumContentsLength(mindestzeichen);
    }
    if (form.ziel == Sparziel::anspardauer) {
        for (const Sparfeld* feld : {&sparfeld::Anfdatum, &sparfeld::ratdatum1})
            BeimTippenHelfen(*static_cast<Datumsfeld*>(felder_.Feld(feld->name)));
    }
    connect(felder_.Feld(sparfeld::ratdatum1.name), &QLineEdit::textChanged, this,
            [this](const QString& text) {
                if (text.size() >= laengeEinesDatums) MonatsletztenAnbieten();
            });
    Zeigen({});
}

QWidget* Sparfelder::Spalte(const Zeilen& zeilen) {
    auto* spalte = new QWidget(this);
    auto* anordnung = new QVBoxLayout(spalte);
    anordnung->setContentsMargins(0, 0, 0, 0);
    auto* raster = new Feldraster;
    anordnung->addLayout(raster);
    anordnung->addStretch();
    felder_.Anlegen(zeilen, *raster);
    // Captions and fields of one column end at one place, in whichever section they stand.
    const auto gruppen = spalte->findChildren<QGroupBox*>();
    for (const int rasterspalte : {0, 2}) {
        int breite = 0;
        for (const auto* gruppe : gruppen)
            breite =
                std::max(breite, Spaltenbreite(static_cast<QGridLayout&>(*gruppe->layout()), rasterspalte));
        for (const auto* gruppe : gruppen)
            static_cast<QGridLayout*>(gruppe->layout())->setColumnMinimumWidth(rasterspalte, breite);
    }
    return spalte;
}

Sparfelder::Zeilen Sparfelder::LinkeZeilen() {
    Zeilen zeilen;
    AbschnittAnfuegen(zeilen, Sparabschnitt::plan, "Sparplan");
    AbschnittAnfuegen(zeilen, Sparabschnitt::ziel, "Zinsen und Ende");
    return zeilen;
}

Sparfelder::Zeilen Sparfelder::RechteZeilen() {
    Zeilen zeilen{
        Zeile(*FormzeileSuchen(form_, sparfeld::Check2.name)),
        Rahmen<Sparplan>({.name = "Frameb", .sichtbarMit = sparfeld::Check2.name}),
    };
    AbschnittAnfuegen(zeilen, Sparabschnitt::dynamisierung, "Dynamisierung", "Frameb");
    if (form_.dynamik == Dynamik::mitGrenzen)
        AbschnittAnfuegen(zeilen, Sparabschnitt::begrenzung, "Begrenzungen", "Frameb");
    return zeilen;
}

void Sparfelder::AbschnittAnfuegen(Zeilen& zeilen, Sparabschnitt abschnitt, std::string_view titel,
                                   std::string_view gruppe) {
    zeilen.push_back(Rahmen<Sparplan>({.name = titel, .titel = titel, .gruppe = gruppe}));
    std::string_view vorher;
    for (const Formzeile& formzeile : form_.felder) {
        if (!StehtHier(formzeile, abschnitt)) continue;
        Feldzeile<Sparplan> zeile = Zeile(formzeile);
        zeile.beschreibung.gruppe = titel;
        // What has no caption belongs to the field before it.
        if (formzeile.beschriftung.empty()) zeile.beschreibung.hinter = vorher;
        vorher = formzeile.feld->name;
        zeilen.push_back(zeile);
    }
}

Feldzeile<Sparplan> Sparfelder::Zeile(const Formzeile& formzeile) {
    const Sparfeld* feld = formzeile.feld;
    Feldzeile<Sparplan> zeile = SparfeldGebunden(*feld);
    Feldbeschreibung& b = zeile.beschreibung;
    b.titel = beschriftungen_.emplace_back(Beschriftung(formzeile));
    b.einheit = formzeile.einheit;
    b.freiMit = Haken(feld);
    b.platzhaltend = feld == &sparfeld::Check1;
    if (feld->art == Sparfeldart::datum) {
        b.platzhalter = "tt.mm.jjjj";
        b.kalender = Kalendername(feld);
    }
    return zeile;
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

/// The points come by themselves, unless a day or month of one digit is typed with its own point. A text that
/// has become shorter was shortened by Backspace.
void Sparfelder::BeimTippenHelfen(Datumsfeld& feld) {
    connect(&feld, &QLineEdit::textEdited, this, [&feld, vorher = qsizetype{0}](const QString& text) mutable {
        const int taste = text.size() < vorher ? tasteRueck : 0;
        vorher = text.size();
        // A point typed behind the one that came by itself.
        if (text.endsWith("..")) return feld.setText(text.chopped(1));
        if (text.mid(1, 1) == "." || text.mid(4, 1) == ".") return;
        const std::string getippt = DatumTippen(text.toStdString(), taste);
        if (getippt != text.toStdString()) feld.Setze(getippt);
        vorher = feld.text().size();
    });
}

void Sparfelder::Zeigen(const Sparplan& plan) {
    felder_.Zeigen(plan);
    MarkeZeigen(!plan.Zinsbetrag.front().empty());
    // While the plan has no date, its tick stays as it was.
    if (felder_.Feld(sparfeld::ratdatum1.name)->text().size() >= laengeEinesDatums)
        MonatsletztenAnbieten();
    else
        felder_.Tafel().Zeigen(sparfeld::Check1.name, false);
}

void Sparfelder::MarkeZeigen(bool sichtbar) {
    if (Image1_) Image1_->setVisible(sichtbar);
}

void Sparfelder::MonatsletztenAnbieten() {
    const bool anbieten = MonatsendeAngeboten(felder_.Feld(sparfeld::ratdatum1.name)->Wert());
    felder_.Tafel().Zeigen(sparfeld::Check1.name, anbieten);
    if (!anbieten) felder_.Tafel().Setze(sparfeld::Check1.name, {});
}

}  // namespace zinfolio
