#include "fenster/staffel/registerzahlungen.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "fenster/ui/bausteine.h"
#include "fenster/ui/datumsfeld.h"
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

using Feld = Felddeskriptor<Zahlungseingabe>;

constexpr std::array einzelfelder{
    Feld{"Betrag", "Zahlungs&betrag (+ / -)", Tastenfilter::betrag, "€", &Zahlungseingabe::Betrag},
    Feld{"Beschreibung", "Besch&reibung", Tastenfilter::enter, "", &Zahlungseingabe::Beschreibung},
    Feld{"Ratzahl", "&Anzahl Zahlungen", Tastenfilter::ganzzahl, "", &Zahlungseingabe::Ratzahl},
};
constexpr Feld datumsdeskriptor{"Begdatum", "", Tastenfilter::datum, "", &Zahlungseingabe::Begdatum};
constexpr Feld abstandsdeskriptor{"Abstand", "", Tastenfilter::ganzzahl, "", &Zahlungseingabe::Abstand};
constexpr Feld stufendeskriptor{"Stufen", "Anzahl der S&tufen", Tastenfilter::ganzzahl, "",
                                &Zahlungseingabe::Stufen};
constexpr Feld deltadeskriptor{"Delta", "", Tastenfilter::betrag, "", &Zahlungseingabe::Delta};

constexpr int vorgeseheneBeschreibung = 25;

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

Eingabefeld* FeldOhneZeile(const Feld& d, QWidget* eltern, Feldgruppe<Zahlungseingabe>& gruppe) {
    Eingabefeld* feld = NeuesFeld(d.name, d.filter, eltern);
    gruppe.Aufnehmen(feld, d.wert);
    return feld;
}

}  // namespace

RegisterZahlungen::RegisterZahlungen(const Satzdatei<Staffelsatz>& datei, QWidget* eltern)
    : QWidget(eltern), liste_(Zahlungsliste(), datei, this) {
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
    FelderAnlegen(*raster);
    SerienfelderAnlegen(*raster);
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

void RegisterZahlungen::FelderAnlegen(Feldraster& raster) {
    auto* begdatum = static_cast<Datumsfeld*>(FeldOhneZeile(datumsdeskriptor, this, felder_));
    begdatum->setPlaceholderText("xx.yy.zzzz");
    Command6_ = NeueTaste("Command6", "", this, [this] { DatumWaehlen(); });
    Kalendertaste(*Command6_);
    begdatum->OhnePruefung(Command6_);
    raster.Zeile("&Zahlungsdatum", begdatum, Command6_);
    for (const Feld& d : einzelfelder)
        FeldAnlegen(d, this, raster, felder_);
    felder_.Feld("Beschreibung")->setMaxLength(vorgeseheneBeschreibung);
}

void RegisterZahlungen::SerienfelderAnlegen(Feldraster& raster) {
    Combo5_ = NeueAuswahl("Combo5", abstandseinheiten, this);
    auto* abstand =
        raster.Zeile("&im Abstand von", FeldOhneZeile(abstandsdeskriptor, this, felder_), Combo5_);
    abstand->setObjectName("Label22");
    Check2_ = new QCheckBox("Nachfolgende Zahlungen jeweils zum &Monatsletzten");
    Check2_->setObjectName("Check2");
    QSizePolicy platzhaltend = Check2_->sizePolicy();
    platzhaltend.setRetainSizeWhenHidden(true);
    Check2_->setSizePolicy(platzhaltend);
    raster.GanzeZeile(Check2_);
    raster.Absatz();
    Check1_ = new QCheckBox("Mehrere Zahlungsstufen mit &Dynamisierung ?");
    Check1_->setObjectName("Check1");
    raster.GanzeZeile(Check1_);
    FeldAnlegen(stufendeskriptor, this, raster, felder_);
    Command1_ = NeueTaste("Command1", "%", this, [this] { EinheitUmschalten(); });
    raster.Zeile("Änderung Zahlungsbetrag &je Stufe (  +/-) :", FeldOhneZeile(deltadeskriptor, this, felder_),
                 Command1_);
    raster.Absatz();
    Datumrech_ = new QLabel;
    Datumrech_->setObjectName("Datumrech");
    raster.Zeile("Datum der letzten Zahlung", Datumrech_);
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
    for (const char* name : {"Ratzahl", "Abstand", "Stufen", "Begdatum"}) {
        connect(felder_.Feld(name), &QLineEdit::textChanged, this, &RegisterZahlungen::DatumrechZeigen);
    }
    connect(felder_.Feld("Begdatum"), &QLineEdit::textChanged, this, &RegisterZahlungen::MonatsendeAnbieten);
    connect(Combo5_, &QComboBox::currentIndexChanged, this, &RegisterZahlungen::DatumrechZeigen);
    connect(Check1_, &QCheckBox::toggled, this, &RegisterZahlungen::StufenFreigeben);
    connect(Check1_, &QCheckBox::toggled, this, &RegisterZahlungen::DatumrechZeigen);
}

Zahlungseingabe RegisterZahlungen::Lesen() const {
    Zahlungseingabe eingabe;
    felder_.Lesen(eingabe);
    eingabe.Combo5 = static_cast<Abstandseinheit>(Combo5_->currentIndex());
    eingabe.Check1 = Check1_->isChecked();
    eingabe.Check2 = Check2_->isChecked();
    eingabe.Command1 = Command1_->text() == "%" ? Deltaeinheit::prozent : Deltaeinheit::betrag;
    return eingabe;
}

void RegisterZahlungen::Zeigen(const Zahlungseingabe& eingabe) {
    felder_.Zeigen(eingabe);
    Combo5_->setCurrentIndex(static_cast<int>(eingabe.Combo5));
    Check1_->setChecked(eingabe.Check1);
    Check2_->setChecked(eingabe.Check2);
    Command1_->setText(eingabe.Command1 == Deltaeinheit::prozent ? "%" : "€");
    AenderungsmodusSetzen(liste_.Geaendert().has_value());
    StufenFreigeben();
    MonatsendeAnbieten();
    DatumrechZeigen();
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
    felder_.Feld("Begdatum")->setFocus();
}

bool RegisterZahlungen::Pruefen(Zahlungseingabe& eingabe) {
    const auto ablehnung = ZahlungseingabePruefen(eingabe);
    Zeigen(eingabe);
    if (!ablehnung) return true;
    MeldungZeigen(this, {.text = Anzeigetext(ablehnung->Meldung)});
    Label10_->clear();
    felder_.Feld(ablehnung->Feld)->setFocus();
    return false;
}

void RegisterZahlungen::EingabeUebernehmen() {
    Geschuetzt(this, [this] {
        Zahlungseingabe eingabe = Lesen();
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
    felder_.Feld("Begdatum")->setFocus();
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
    felder_.Feld("Begdatum")->setFocus();
}

void RegisterZahlungen::AenderungUebernehmen() {
    Geschuetzt(this, [this] {
        Zahlungseingabe eingabe = Lesen();
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
    felder_.Feld("Begdatum")->setFocus();
}

void RegisterZahlungen::AenderungsmodusSetzen(bool an) {
    findChild<QPushButton*>("Speichern")->setVisible(!an);
    for (const char* name : {"übernehmen", "verwerfen"})
        findChild<QPushButton*>(name)->setVisible(an);
    rechts_->setEnabled(!an);
    for (QWidget* feld : std::initializer_list<QWidget*>{felder_.Feld("Ratzahl"), felder_.Feld("Abstand"),
                                                         Combo5_, Check1_, Check2_}) {
        feld->setEnabled(!an);
    }
}

void RegisterZahlungen::DatumrechZeigen() {
    try {
        Datumrech_->setText(QString::fromStdString(Datumrech(Lesen())));
    } catch (const std::exception&) {
        // While a field is being typed its text need not make sense yet.
        Datumrech_->clear();
    }
}

void RegisterZahlungen::MonatsendeAnbieten() {
    const bool anbieten = MonatsendeAngeboten(felder_.Feld("Begdatum")->Wert());
    Check2_->setVisible(anbieten);
    if (!anbieten) Check2_->setChecked(false);
}

void RegisterZahlungen::StufenFreigeben() {
    const bool frei = Check1_->isChecked() && !liste_.Geaendert();
    for (QWidget* feld :
         std::initializer_list<QWidget*>{felder_.Feld("Stufen"), felder_.Feld("Delta"), Command1_}) {
        feld->setEnabled(frei);
    }
}

void RegisterZahlungen::EinheitUmschalten() {
    Command1_->setText(Command1_->text() == "%" ? "€" : "%");
}

void RegisterZahlungen::DatumWaehlen() {
    if (const auto datum = KalenderFragen(*Command6_, felder_.Feld("Begdatum")->Wert())) {
        felder_.Feld("Begdatum")->Setze(datum->Text());
    }
    felder_.Feld("Begdatum")->setFocus();
}

}  // namespace zinfolio
