#include "fenster/rechner/registerzahlungen.h"

#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "fenster/ui/bausteine.h"
#include "fenster/ui/feldraster.h"
#include "fenster/ui/geschuetzt.h"
#include "fenster/ui/meldungsfenster.h"
#include "kern/dates/zahl.h"
#include "kern/dates/zahlformat.h"
#include "kern/grund/windows1252.h"
#include "kern/staffel/listenzeile.h"
#include "kern/staffel/meldungen.h"
#include "kern/staffel/staffelsortierung.h"

namespace zinfolio {
namespace {

using E = Zahlungseingabe;

constexpr std::array<std::string_view, 2> deltaeinheiten{"%", "€"};

constexpr std::array feldzeilen{
    Feld<&E::Begdatum>({.name = "Begdatum",
                        .titel = "&Zahlungsdatum",
                        .filter = Tastenfilter::datum,
                        .platzhalter = "xx.yy.zzzz",
                        .kalender = "Command6"}),
    Feld<&E::Betrag>({.name = "Betrag",
                      .titel = "Zahlungs&betrag (+ / -)",
                      .filter = Tastenfilter::betrag,
                      .einheit = "€"}),
    Feld<&E::Beschreibung>({.name = "Beschreibung", .titel = "Besch&reibung", .laenge = 25}),
    Feld<&E::Ratzahl>({.name = "Ratzahl", .titel = "&Anzahl Zahlungen", .filter = Tastenfilter::ganzzahl}),
    Feld<&E::Abstand>({.name = "Abstand",
                       .titel = "&im Abstand von",
                       .filter = Tastenfilter::ganzzahl,
                       .titelname = "Label22"}),
    Feld<&E::Combo5>(
        {.name = "Combo5", .art = Feldart::liste, .texte = abstandseinheiten, .hinter = "Abstand"}),
    Feld<&E::Check2>({.name = "Check2",
                      .titel = "Nachfolgende Zahlungen jeweils zum &Monatsletzten",
                      .art = Feldart::kaestchen,
                      .platzhaltend = true}),
    Feld<&E::Check1>({.name = "Check1",
                      .titel = "Mehrere Zahlungsstufen mit &Dynamisierung ?",
                      .art = Feldart::kaestchen,
                      .absatz = true}),
    Feld<&E::Stufen>({.name = "Stufen",
                      .titel = "Anzahl der S&tufen",
                      .filter = Tastenfilter::ganzzahl,
                      .freiMit = "Check1"}),
    Feld<&E::Delta>({.name = "Delta",
                     .titel = "Änderung Zahlungsbetrag &je Stufe (  +/-) :",
                     .filter = Tastenfilter::betrag,
                     .freiMit = "Check1"}),
    Feld<&E::Command1>({.name = "Command1",
                        .art = Feldart::einheit,
                        .texte = deltaeinheiten,
                        .hinter = "Delta",
                        .freiMit = "Check1"}),
    Anzeige<E>({.name = "Datumrech", .titel = "Datum der letzten Zahlung", .absatz = true}),
};

template <const Zahlmuster& Muster>
std::string Betragszelle(const Staffelsatz& satz) {
    return Format(satz.Zahlbetrag, Muster);
}

std::string Datumszelle(const Staffelsatz& satz) {
    return NachUtf8(satz.Satzdatum.Getrimmt());
}

std::string Textzelle(const Staffelsatz& satz) {
    return NachUtf8(satz.Zahlungstext.Getrimmt());
}

Satzlistenart Zahlungsliste() {
    return {"List1",
            {{.kopf = "Datum", .zelle = Datumszelle, .art = Zellart::datum},
             {.kopf = "Betrag €", .zelle = Betragszelle<betragsmuster>},
             {.kopf = "Beschreibung",
              .zelle = Textzelle,
              .art = Zellart::text,
              .ausrichtung = Zellausrichtung::links}},
            Zahlungszeile,
            meldung::zahlungenLoeschen};
}

/// A numbered table of a series.
Tabelleninhalt Vorschautabelle(const std::vector<Staffelsatz>& zahlungen) {
    std::vector<std::vector<std::string>> zeilen;
    for (const Staffelsatz& satz : zahlungen)
        zeilen.push_back(
            {std::to_string(zeilen.size() + 1), Datumszelle(satz), Betragszelle<vorschaumuster>(satz)});
    return TexttabelleBilden({{"Nr."}, {"Datum"}, {"Betrag"}}, std::move(zeilen));
}

}  // namespace

RegisterZahlungen::RegisterZahlungen(const Satzdatei<Staffelsatz>& datei, QWidget* eltern)
    : QWidget(eltern), felder_(this), liste_(Zahlungsliste(), datei, this) {
    setObjectName("Frame1");
    rechts_ = new QStackedWidget;
    rechts_->addWidget(Listenseite());
    rechts_->addWidget(Vorschauseite());
    auto* anordnung = new QHBoxLayout(this);
    anordnung->setSpacing(18);
    anordnung->addWidget(Eingabeseite());
    anordnung->addWidget(rechts_, 1);
    TabfolgeSetzen(
        *this,
        {"Begdatum", "Betrag",     "Beschreibung", "Ratzahl",        "Abstand",   "Combo5",     "Check2",
         "Check1",   "Stufen",     "Delta",        "Command1",       "Speichern", "übernehmen", "verwerfen",
         "List1",    "Bearbeiten", "Löschen",      "Datumsortieren", "Grid2",     "Command3",   "Command4"});
    Verdrahten();
    Zeigen({});
}

QWidget* RegisterZahlungen::Eingabeseite() {
    auto* seite = new QWidget;
    auto* anordnung = new QVBoxLayout(seite);
    anordnung->setContentsMargins(0, 0, 0, 0);
    auto* raster = new Feldraster;
    anordnung->addLayout(raster);
    felder_.Anlegen(feldzeilen, *raster);
    Label10_ = new QLabel;
    Label10_->setObjectName("Label10");
    Label10_->setWordWrap(true);
    anordnung->addSpacing(6);
    anordnung->addWidget(Label10_);
    anordnung->addLayout(Tastenzeile({
        NeueTaste("Speichern", "&Eingabe übernehmen", this, [this] { EingabeUebernehmen(); }),
        NeueTaste("übernehmen", "Änderungen ü&bernehmen", this, [this] { AenderungUebernehmen(); }),
        NeueTaste("verwerfen", "Änderungen &verwerfen", this, [this] { AenderungBeenden(); }),
    }));
    anordnung->addStretch();
    return seite;
}

QWidget* RegisterZahlungen::Listenseite() {
    return Seite(liste_.Ansicht(),
                 {
                     NeueTaste("Bearbeiten", "Bea&rbeiten", this, [this] { AenderungBeginnen(); }),
                     NeueTaste("Löschen", "&Löschen", this,
                               [this] { Geschuetzt(this, [this] { liste_.MarkierteLoeschen(); }); }),
                     NeueTaste("Datumsortieren", "Zahlungsreihe &sortieren", this, [this] { Sortieren(); }),
                 });
}

QWidget* RegisterZahlungen::Vorschauseite() {
    Grid2_ = new Tabelle("Grid2");
    QWidget* seite =
        Seite(Grid2_, {
                          NeueTaste("Command3", "ü&bernehmen", this, [this] { VorschauUebernehmen(); }),
                          NeueTaste("Command4", "&verwerfen", this, [this] { VorschauVerwerfen(); }),
                      });
    seite->setObjectName("Frame3");
    return seite;
}

void RegisterZahlungen::Verdrahten() {
    liste_.nachLesen = [this] {
        felder_.Feld("Ratzahl")->setText("1");
        felder_.Feld("Abstand")->setText("1");
    };
    liste_.nachAendern = [this] { emit geaendert(); };
    connect(felder_.Feld("Begdatum"), &QLineEdit::textChanged, this, &RegisterZahlungen::MonatsendeAnbieten);
    connect(&felder_.Tafel(), &Feldtafel::gewechselt, this, &RegisterZahlungen::DatumrechZeigen);
}

void RegisterZahlungen::Zeigen(const Zahlungseingabe& eingabe) {
    felder_.Zeigen(eingabe);
    AenderungsmodusSetzen(liste_.Geaendert().has_value());
    MonatsendeAnbieten();
}

void RegisterZahlungen::NeuSchreiben() {
    liste_.NeuLesen();
}

void RegisterZahlungen::KontoWechseln() {
    if (liste_.Geaendert()) AenderungBeenden();
    VorschauVerwerfen();
    liste_.KontoWechseln();
}

void RegisterZahlungen::Leeren() {
    liste_.AenderungBeenden();
    VorschauVerwerfen();
    Zeigen({});
    felder_.Fokussieren("Begdatum");
}

bool RegisterZahlungen::Pruefen(Zahlungseingabe& eingabe) {
    const auto ablehnung = ZahlungseingabePruefen(eingabe);
    Zeigen(eingabe);
    if (!ablehnung) return true;
    MeldungZeigen(this, {.text = Anzeigetext(ablehnung->Meldung)});
    Label10_->clear();
    felder_.Fokussieren(ablehnung->Feld);
    return false;
}

void RegisterZahlungen::EingabeUebernehmen() {
    Geschuetzt(this, [this] {
        Zahlungseingabe eingabe = felder_.Lesen();
        if (!Pruefen(eingabe)) return;
        if (IstZahlungsreihe(eingabe)) return VorschauZeigen(eingabe);
        Schreiben(eingabe);
    });
}

void RegisterZahlungen::VorschauZeigen(const Zahlungseingabe& eingabe) {
    vorgesehen_ = eingabe;
    vorschau_.clear();
    ZahlungenErzeugen(eingabe, vorschau_);
    Grid2_->Zeige(Vorschautabelle(vorschau_));
    Label10_->setText("Vorschau der Zahlungsreihe: übernehmen oder verwerfen.");
    rechts_->setCurrentIndex(1);
    findChild<QPushButton*>("Command3")->setFocus();
}

void RegisterZahlungen::VorschauUebernehmen() {
    Geschuetzt(this, [this] {
        VorschauVerwerfen();
        Schreiben(vorgesehen_);
    });
}

void RegisterZahlungen::VorschauVerwerfen() {
    Label10_->clear();
    rechts_->setCurrentIndex(0);
}

void RegisterZahlungen::Schreiben(const Zahlungseingabe& eingabe) {
    std::vector<Staffelsatz> saetze = liste_.Saetze();
    // A fault on the way leaves the payments before it (wanted).
    Geschuetzt(this, [&] { ZahlungenErzeugen(eingabe, saetze); });
    liste_.Ersetzen(saetze);
    felder_.Fokussieren("Begdatum");
}

void RegisterZahlungen::Sortieren() {
    Geschuetzt(this, [this] {
        std::vector<Staffelsatz> saetze = liste_.Saetze();
        SortiereZahlungen(saetze);
        liste_.Ersetzen(saetze);
    });
}

void RegisterZahlungen::AenderungBeginnen() {
    if (!liste_.AenderungBeginnen()) return;
    const std::size_t zeile = *liste_.Geaendert();
    const Staffelsatz& satz = liste_.Saetze()[zeile];
    Zahlungseingabe eingabe;
    eingabe.Begdatum = NachUtf8(satz.Satzdatum.Getrimmt());
    eingabe.Betrag = Zahltext(satz.Zahlbetrag);
    eingabe.Beschreibung = NachUtf8(satz.Zahlungstext.Getrimmt());
    Zeigen(eingabe);
    Label10_->setText(QString("Zahlung %1 wird geändert.").arg(zeile + 1));
    felder_.Fokussieren("Begdatum");
}

void RegisterZahlungen::AenderungUebernehmen() {
    Geschuetzt(this, [this] {
        Zahlungseingabe eingabe = felder_.Lesen();
        if (!Pruefen(eingabe)) return;
        std::vector<Staffelsatz> saetze = liste_.Saetze();
        const std::size_t zeile = liste_.Geaendert().value();
        Staffelsatz& satz = saetze.at(zeile);
        const Staffelsatz neu = Zahlungssatz(eingabe.Begdatum, Zahl(eingabe.Betrag), eingabe.Beschreibung);
        SetzeDatum(satz, eingabe.Begdatum);
        satz.Zahlbetrag = neu.Zahlbetrag;
        satz.Zahlungstext = neu.Zahlungstext;
        liste_.Ersetzen(saetze);
        liste_.Ansicht()->Markiere(static_cast<int>(zeile));
        AenderungBeenden();
    });
}

void RegisterZahlungen::AenderungBeenden() {
    liste_.AenderungBeenden();
    Label10_->clear();
    Zeigen({});
    felder_.Fokussieren("Begdatum");
}

void RegisterZahlungen::AenderungsmodusSetzen(bool an) {
    findChild<QPushButton*>("Speichern")->setVisible(!an);
    for (const char* name : {"übernehmen", "verwerfen"})
        findChild<QPushButton*>(name)->setVisible(an);
    rechts_->setEnabled(!an);
    felder_.Tafel().Sperren(
        {"Ratzahl", "Abstand", "Combo5", "Check1", "Check2", "Stufen", "Delta", "Command1"}, an);
}

void RegisterZahlungen::DatumrechZeigen() {
    std::string letzte;
    try {
        letzte = Datumrech(felder_.Lesen());
    } catch (const std::exception&) {
        // While a field is being typed its text need not make sense yet.
    }
    felder_.Tafel().Setze("Datumrech", {.text = letzte});
}

void RegisterZahlungen::MonatsendeAnbieten() {
    const bool anbieten = MonatsendeAngeboten(felder_.Feld("Begdatum")->Wert());
    felder_.Tafel().Zeigen("Check2", anbieten);
    if (!anbieten) felder_.Tafel().Setze("Check2", {});
}

}  // namespace zinfolio
