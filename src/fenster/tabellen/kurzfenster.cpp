#include "fenster/tabellen/kurzfenster.h"

#include <QButtonGroup>
#include <QCloseEvent>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "fenster/ausgabe/form34.h"
#include "fenster/ui/bausteine.h"
#include "fenster/ui/eingabefeld.h"
#include "fenster/ui/feldraster.h"
#include "fenster/ui/geschuetzt.h"
#include "fenster/ui/meldungsfenster.h"
#include "kern/tabellen/kurzbericht.h"
#include "kern/tabellen/kurzdatei.h"

namespace zinfolio {
namespace {

/// How the field of a figure is entered, and the letter of its caption that brings the focus to it.
struct Eingabeart {
    Tastenfilter filter;
    char taste;
};

/// By `Kurzgroesse`.
constexpr std::array<Eingabeart, kurzgroessen> feldarten{{{Tastenfilter::betrag, 'H'},
                                                          {Tastenfilter::ganzzahl, 'J'},
                                                          {Tastenfilter::ganzzahl, 'T'},
                                                          {Tastenfilter::prozent, 'V'},
                                                          {Tastenfilter::betrag, 'A'},
                                                          {Tastenfilter::betrag, 'e'}}};

std::size_t Stelle(Kurzgroesse groesse) {
    return static_cast<std::size_t>(groesse);
}

QString Beschriftung(Kurzgroesse groesse) {
    return Anzeigetext(Kurzbeschriftung(groesse));
}

QString BeschriftungMitTaste(Kurzgroesse groesse) {
    QString text = Beschriftung(groesse);
    return text.insert(text.indexOf(QLatin1Char(feldarten[Stelle(groesse)].taste)), '&');
}

}  // namespace

void KurzrechnerZeigen(Kurzform form, QWidget& grosses, const std::filesystem::path& arbeitsordner) {
    auto* fenster = new Kurzfenster(KurzrechnerVon(form), arbeitsordner);
    fenster->setAttribute(Qt::WA_DeleteOnClose);
    fenster->setWindowIcon(grosses.windowIcon());
    QObject::connect(fenster, &Kurzfenster::verlassen, &grosses, &QWidget::show);
    QObject::connect(&grosses, &QObject::destroyed, fenster, &QObject::deleteLater);
    fenster->show();
    grosses.hide();
}

Kurzfenster::Kurzfenster(const Kurzrechner& rechner, std::filesystem::path arbeitsordner)
    : rechner_(rechner),
      arbeitsordner_(std::move(arbeitsordner)),
      Command1_(NeueTaste("Command1", "&Berechnen", this, [this] { Berechnen(); })),
      Command3_(NeueTaste("Command3", "Dru&cken", this, [this] { Drucken(); })),
      Command2_(NeueTaste("Command2", "&Zurück", this, [this] { close(); })) {
    setObjectName(Anzeigetext(rechner.name));
    setWindowTitle(Anzeigetext(rechner.titel) + " – Kurzrechner");
    auto* raster = new Feldraster;
    FelderAnlegen(*raster);
    auto* links = new QVBoxLayout;
    links->addLayout(raster);
    links->addStretch();
    auto* rechts = new QVBoxLayout;
    rechts->addWidget(Wahlgruppe("&Wie oft wird gezahlt ?", "Zahlweise", kurzzahlweisen, 2, zahlweise_));
    rechts->addWidget(Wahlgruppe("Zahlungs&modus", "Zahlungsmodus", kurzzahlungsmodi, 1, Zahlungsmodus_));
    rechts->addStretch();
    auto* eingabe = new QHBoxLayout;
    eingabe->setSpacing(24);
    eingabe->addLayout(links);
    eingabe->addLayout(rechts);
    auto* inhalt = new QWidget;
    auto* spalte = new QVBoxLayout(inhalt);
    spalte->addLayout(eingabe);
    spalte->addWidget(Ergebnistafel());
    spalte->addStretch();
    auto* anordnung = new QVBoxLayout(this);
    QWidget* rahmen = Rollbar(inhalt);
    anordnung->addWidget(rahmen, 1);
    anordnung->addLayout(Tastenzeile({Command1_, Command3_, Command2_}));
    // All is in view as far as the screen has room for it; a page that scrolls asks for less by itself.
    const QSize umher = anordnung->sizeHint() - rahmen->sizeHint() + QSize(4, 4);
    resize((inhalt->sizeHint() + umher).boundedTo(screen()->availableSize()));
    for (const auto& [taste, knopf] :
         {std::pair(Qt::Key_Escape, Command2_), std::pair(Qt::Key_F9, Command1_)})
        connect(new QShortcut(QKeySequence(taste), this), &QShortcut::activated, knopf, &QPushButton::click);
    Zeigen({});
    Geschuetzt(this, [this] { Zeigen(KurzeingabeLesen(arbeitsordner_, rechner_)); });
    ErgebnisLeeren();
    const auto erstes = std::ranges::find(rechner_.felder, false, &Kurzfeld::ergebnis);
    felder_[Stelle(erstes->groesse)]->Anspringen();
}

void Kurzfenster::FelderAnlegen(Feldraster& raster) {
    for (const Kurzfeld& feld : rechner_.felder) {
        if (feld.ergebnis) continue;
        auto* eingabe = new Eingabefeld(Anzeigetext(feld.name), feldarten[Stelle(feld.groesse)].filter, this);
        connect(eingabe, &QLineEdit::textEdited, this, &Kurzfenster::ErgebnisLeeren);
        raster.Zeile(BeschriftungMitTaste(feld.groesse), eingabe);
        felder_[Stelle(feld.groesse)] = eingabe;
    }
}

QGroupBox* Kurzfenster::Wahlgruppe(const char* titel, const char* name, std::span<const Kurzwahl> liste,
                                   int spalten, QButtonGroup*& gruppe) {
    auto* rahmen = new QGroupBox(QString::fromUtf8(titel));
    auto* raster = new QGridLayout(rahmen);
    gruppe = new QButtonGroup(this);
    for (int i = 0; i < static_cast<int>(liste.size()); ++i) {
        const Kurzwahl& wahl = liste[static_cast<std::size_t>(i)];
        auto* knopf = new QRadioButton(Anzeigetext(wahl.text));
        knopf->setObjectName(QString::fromUtf8(name) + QString::number(wahl.wert));
        gruppe->addButton(knopf, wahl.wert);
        raster->addWidget(knopf, i / spalten, i % spalten);
    }
    connect(gruppe, &QButtonGroup::idClicked, this, &Kurzfenster::ErgebnisLeeren);
    return rahmen;
}

QWidget* Kurzfenster::Ergebnistafel() {
    auto* rahmen = new QGroupBox("Ergebnis");
    auto* raster = new Feldraster(rahmen);
    for (const Kurzfeld& feld : rechner_.felder) {
        if (!feld.ergebnis) continue;
        const std::string name(feld.name);
        QLabel* wert = NeueKennzahl(name.c_str(), this);
        wert->setMinimumHeight(wert->fontMetrics().height());
        wert->setAccessibleName(Beschriftung(feld.groesse));
        raster->Zeile(Beschriftung(feld.groesse), wert);
        ergebnisse_[Stelle(feld.groesse)] = wert;
    }
    return rahmen;
}

Kurzeingabe Kurzfenster::Lesen() const {
    Kurzeingabe eingabe;
    for (const Kurzfeld& feld : rechner_.felder) {
        const std::size_t i = Stelle(feld.groesse);
        eingabe.texte[i] = feld.ergebnis ? ergebnisse_[i]->text().toStdString() : felder_[i]->Wert();
    }
    eingabe.m = static_cast<std::int16_t>(zahlweise_->checkedId());
    eingabe.Zahlungsmodus = static_cast<std::int16_t>(Zahlungsmodus_->checkedId());
    return eingabe;
}

void Kurzfenster::Zeigen(const Kurzeingabe& eingabe) {
    for (const Kurzfeld& feld : rechner_.felder) {
        const std::size_t i = Stelle(feld.groesse);
        if (feld.ergebnis)
            ergebnisse_[i]->setText(QString::fromStdString(eingabe.texte[i]));
        else
            felder_[i]->Setze(eingabe.texte[i]);
    }
    zahlweise_->button(eingabe.m)->setChecked(true);
    Zahlungsmodus_->button(eingabe.Zahlungsmodus)->setChecked(true);
}

void Kurzfenster::ErgebnisLeeren() {
    for (QLabel* ergebnis : ergebnisse_)
        if (ergebnis) ergebnis->clear();
    Command3_->setEnabled(false);
}

void Kurzfenster::Berechnen() {
    Kurzeingabe eingabe = Lesen();
    const auto ablehnung = KurzRechnen(rechner_, eingabe);
    Zeigen(eingabe);
    if (!ablehnung) return Command3_->setEnabled(true);
    // A calculation that ends silently has no message.
    if (!ablehnung->Meldung.empty()) MeldungZeigen(this, {.text = Anzeigetext(ablehnung->Meldung)});
}

void Kurzfenster::Drucken() {
    TextberichtSchreiben(arbeitsordner_, Kurzbericht(rechner_, Lesen()));
    auto* betrachter = new Form34(arbeitsordner_, this);
    betrachter->setAttribute(Qt::WA_DeleteOnClose);
    betrachter->open();
}

void Kurzfenster::closeEvent(QCloseEvent* ereignis) {
    // Input that cannot be kept is told, but holds nobody back.
    MitSchreibmeldung(
        this, [this] { KurzeingabeSchreiben(arbeitsordner_, rechner_, Lesen()); },
        "Die Angaben konnten nicht gespeichert werden.\n\n");
    ereignis->accept();
    emit verlassen();
}

}  // namespace zinfolio
