#include "fenster/staffel/registerzinssaetze.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <array>

#include "fenster/ui/bausteine.h"
#include "fenster/ui/geschuetzt.h"
#include "fenster/ui/meldungsfenster.h"
#include "kern/dates/zahlformat.h"
#include "kern/grund/windows1252.h"
#include "kern/staffel/listenzeile.h"
#include "kern/staffel/meldungen.h"
#include "kern/staffel/staffelsortierung.h"

namespace zinfolio {
namespace {

using Feld = Felddeskriptor<Konditionseingabe>;

constexpr std::array felddeskriptoren{
    Feld{"Gültigdatum", "&Gültig ab (xx . yy . zzzz)", Tastenfilter::datum, "",
         &Konditionseingabe::Gültigdatum},
    Feld{"Gutzins1", "&1. Guthabenzinssatz", Tastenfilter::prozent, "%", &Konditionseingabe::Gutzins1},
    Feld{"Gutzins2", "&2. Guthabenzinssatz", Tastenfilter::prozent, "%", &Konditionseingabe::Gutzins2},
    Feld{"Guthabenlinie", "Gültig ab Gut&habensaldo von", Tastenfilter::prozent, "€",
         &Konditionseingabe::Guthabenlinie},
    Feld{"Kreditzins1", "1. &Kreditzinssatz", Tastenfilter::prozent, "%", &Konditionseingabe::Kreditzins1},
    Feld{"Kreditzins2", "2. Kre&ditzinssatz", Tastenfilter::prozent, "%", &Konditionseingabe::Kreditzins2},
    Feld{"Kreditlinie", "Gültig ab Kredit&saldo von", Tastenfilter::prozent, "€",
         &Konditionseingabe::Kreditlinie},
};

template <auto Feld>
std::string Satzzelle(const Staffelsatz& satz) {
    return Format(satz.kondition.*Feld, konditionsmuster);
}

template <auto Feld>
std::string Betragszelle(const Staffelsatz& satz) {
    return Format(satz.kondition.*Feld, betragsmuster);
}

std::string Datumszelle(const Staffelsatz& satz) {
    return NachUtf8(satz.Satzdatum.Getrimmt());
}

std::string Geltungszelle(const Staffelsatz& satz) {
    return satz.kondition.Zweitzinsart == 1 ? "Gesamtbetrag" : "Betrag über Limit";
}

Satzlistenart Konditionsliste() {
    return {"List2",
            {{.kopf = "Gültig ab", .zelle = Datumszelle, .art = Zellart::datum},
             {.kopf = "1. Guthaben-\nzins %", .zelle = Satzzelle<&Konditionen::Gutzins1>},
             {.kopf = "2. Guthaben-\nzins %", .zelle = Satzzelle<&Konditionen::Gutzins2>},
             {.kopf = "ab Guthaben-\nsaldo €", .zelle = Betragszelle<&Konditionen::Guthabenlinie>},
             {.kopf = "1. Kredit-\nzins %", .zelle = Satzzelle<&Konditionen::Kreditzins1>},
             {.kopf = "2. Kredit-\nzins %", .zelle = Satzzelle<&Konditionen::Kreditzins2>},
             {.kopf = "ab Kredit-\nsaldo €", .zelle = Betragszelle<&Konditionen::Kreditlinie>},
             {.kopf = "2. Zinssatz für",
              .zelle = Geltungszelle,
              .art = Zellart::text,
              .ausrichtung = Zellausrichtung::links}},
            Konditionszeile,
            meldung::konditionenLoeschen};
}

}  // namespace

RegisterZinssaetze::RegisterZinssaetze(const Satzdatei<Staffelsatz>& datei, QWidget* eltern)
    : QWidget(eltern), liste_(Konditionsliste(), datei, this) {
    setObjectName("Frame2");
    auto* anordnung = new QHBoxLayout(this);
    anordnung->setSpacing(18);
    anordnung->addWidget(Eingabeseite());
    listenseite_ = Listenseite();
    anordnung->addWidget(listenseite_, 1);
    TabfolgeSetzen(*this, {"Gültigdatum", "Gutzins1", "Gutzins2", "Guthabenlinie", "Kreditzins1",
                           "Kreditzins2", "Kreditlinie", "Option1(1)", "Option1(2)", "speichern2",
                           "Änderungen", "verwerfen2", "List2", "Bearbeiten2", "Löschen2"});
    liste_.ordnen = SortiereKonditionen;
    liste_.nachLesen = [this] { angenommen_ = true; };
    liste_.nachAendern = [this] { emit geaendert(); };
    for (const char* name : {"Gutzins1", "Gutzins2", "Kreditzins1", "Kreditzins2"}) {
        Eingabefeld* feld = felder_.Feld(name);
        connect(feld, &QLineEdit::textChanged, this, [this, feld] { ZinssatzBegrenzen(*feld); });
    }
    AenderungsmodusSetzen(false);
}

QWidget* RegisterZinssaetze::Eingabeseite() {
    auto* seite = new QWidget;
    auto* anordnung = new QVBoxLayout(seite);
    anordnung->setContentsMargins(0, 0, 0, 0);
    auto* raster = new Feldraster;
    for (const Feld& d : felddeskriptoren)
        FeldAnlegen(d, this, *raster, felder_);
    anordnung->addLayout(raster);
    auto* gueltigkeit = new QGroupBox("Gültigkeit der Zweitzinssätze ");
    auto* optionen = new QVBoxLayout(gueltigkeit);
    Option1_ = new QButtonGroup(this);
    const std::array texte{"Für den Gesamt&kontostand", "&Nur für den das Limit überschreitenden Betrag"};
    for (int index = 1; index <= 2; ++index) {
        auto* option = new QRadioButton(texte[static_cast<std::size_t>(index - 1)]);
        option->setObjectName(QString("Option1(%1)").arg(index));
        Option1_->addButton(option, index);
        optionen->addWidget(option);
    }
    Option1_->button(1)->setChecked(true);
    anordnung->addSpacing(6);
    anordnung->addWidget(gueltigkeit);
    hinweis_ = new QLabel;
    anordnung->addWidget(hinweis_);
    anordnung->addLayout(Tastenzeile({
        NeueTaste("speichern2", "&Eingabe übernehmen", this, [this] { EingabeUebernehmen(); }),
        NeueTaste("Änderungen", "Änderungen ü&bernehmen", this, [this] { AenderungUebernehmen(); }),
        NeueTaste("verwerfen2", "Änderungen &verwerfen", this, [this] { AenderungBeenden(); }),
    }));
    anordnung->addStretch();
    return seite;
}

QWidget* RegisterZinssaetze::Listenseite() {
    return Seite(liste_.Ansicht(),
                 {
                     NeueTaste("Bearbeiten2", "Bea&rbeiten", this, [this] { AenderungBeginnen(); }),
                     NeueTaste("Löschen2", "&Löschen", this,
                               [this] { Geschuetzt(this, [this] { liste_.MarkierteLoeschen(); }); }),
                 });
}

Konditionseingabe RegisterZinssaetze::Lesen() const {
    Konditionseingabe eingabe;
    felder_.Lesen(eingabe);
    eingabe.Zweitzinsart = static_cast<std::int16_t>(Option1_->checkedId());
    return eingabe;
}

void RegisterZinssaetze::Zeigen(const Konditionseingabe& eingabe) {
    felder_.Zeigen(eingabe);
    QAbstractButton* option = Option1_->button(eingabe.Zweitzinsart);
    (option ? option : Option1_->button(2))->setChecked(true);
}

void RegisterZinssaetze::NeuSchreiben2() {
    liste_.NeuLesen();
}

void RegisterZinssaetze::KontoWechseln() {
    if (liste_.Geaendert()) AenderungBeenden();
    liste_.KontoWechseln();
}

void RegisterZinssaetze::Leeren() {
    AenderungBeenden();
}

void RegisterZinssaetze::Betreten() {
    Option1_->button(1)->setChecked(true);
    felder_.Feld("Gültigdatum")->setFocus();
}

void RegisterZinssaetze::ZinssatzBegrenzen(Eingabefeld& feld) {
    if (!ZinssatzZuGross(feld.Wert())) return;
    feld.clear();
    MeldungZeigen(this, {.text = Anzeigetext(meldung::zinssatzZuGross)});
}

bool RegisterZinssaetze::Pruefen(Konditionseingabe& eingabe, Doppelpruefung doppelt) {
    const Konditionspruefung pruefung = KonditionPruefen(eingabe, liste_.Saetze(), doppelt, angenommen_);
    angenommen_ = pruefung.angenommen;
    Zeigen(eingabe);
    if (pruefung.hinweis) {
        MeldungZeigen(this, {.text = Anzeigetext(pruefung.hinweis->Meldung)});
        if (!pruefung.hinweis->Feld.empty()) felder_.Feld(pruefung.hinweis->Feld)->setFocus();
    }
    return angenommen_;
}

void RegisterZinssaetze::EingabeUebernehmen() {
    Geschuetzt(this, [this] {
        Konditionseingabe eingabe = Lesen();
        if (!Pruefen(eingabe, Doppelpruefung::an)) return;
        std::vector<Staffelsatz> saetze = liste_.Saetze();
        saetze.push_back(KonditionErzeugen(eingabe));
        Schreiben(std::move(saetze));
        felder_.Zeigen({});
        felder_.Feld("Gültigdatum")->setFocus();
    });
}

void RegisterZinssaetze::Schreiben(std::vector<Staffelsatz> saetze) {
    SortiereKonditionen(saetze);
    liste_.Ersetzen(saetze);
}

void RegisterZinssaetze::AenderungBeginnen() {
    if (!liste_.AenderungBeginnen()) return;
    Zeigen(KonditionZurEingabe(liste_.Saetze()[*liste_.Geaendert()]));
    AenderungsmodusSetzen(true);
    felder_.Feld("Gültigdatum")->setFocus();
}

void RegisterZinssaetze::AenderungUebernehmen() {
    Geschuetzt(this, [this] {
        Konditionseingabe eingabe = Lesen();
        if (!Pruefen(eingabe, Doppelpruefung::aus)) return;
        std::vector<Staffelsatz> saetze = liste_.Saetze();
        Staffelsatz& satz = saetze.at(liste_.Geaendert().value());
        satz.kondition = KonditionErzeugen(eingabe).kondition;
        SetzeDatum(satz, eingabe.Gültigdatum);
        Schreiben(std::move(saetze));
        AenderungBeenden();
    });
}

void RegisterZinssaetze::AenderungBeenden() {
    AenderungsmodusSetzen(false);
    Zeigen({});
    felder_.Feld("Gültigdatum")->setFocus();
}

void RegisterZinssaetze::AenderungsmodusSetzen(bool an) {
    if (!an) liste_.AenderungBeenden();
    findChild<QPushButton*>("speichern2")->setVisible(!an);
    for (const char* name : {"Änderungen", "verwerfen2"})
        findChild<QPushButton*>(name)->setVisible(an);
    hinweis_->setText(an ? QString("Kondition %1 wird geändert.").arg(*liste_.Geaendert() + 1) : QString());
    listenseite_->setEnabled(!an);
}

}  // namespace zinfolio
