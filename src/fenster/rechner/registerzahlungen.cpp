#include "fenster/rechner/registerzahlungen.h"

#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <memory>

#include "fenster/ui/bausteine.h"
#include "fenster/ui/feldraster.h"
#include "fenster/ui/geschuetzt.h"
#include "fenster/ui/meldungsfenster.h"
#include "kern/dates/feldtext.h"
#include "kern/dates/zahl.h"
#include "kern/dates/zahlformat.h"
#include "kern/grund/windows1252.h"
#include "kern/staffel/listenspalten.h"
#include "kern/staffel/listenzeile.h"
#include "kern/staffel/meldungen.h"
#include "kern/staffel/staffelsortierung.h"

namespace zinfolio {
namespace {

using E = Zahlungseingabe;

constexpr std::array<std::string_view, 2> deltaeinheiten{"%", "€"};

constexpr Feldzeile<E> Stufenfeld(unsigned formen, std::string_view gruppe = {}) {
    return Feld<&E::Stufen>({.name = "Stufen",
                             .titel = "Anzahl der S&tufen",
                             .filter = Tastenfilter::ganzzahl,
                             .gruppe = gruppe,
                             .freiMit = "Check1",
                             .formen = formen});
}

constexpr Feldzeile<E> Deltafeld(unsigned formen, std::string_view titel, std::string_view gruppe = {}) {
    return Feld<&E::Delta>({.name = "Delta",
                            .titel = titel,
                            .filter = Tastenfilter::betrag,
                            .gruppe = gruppe,
                            .freiMit = "Check1",
                            .formen = formen});
}

constexpr Feldzeile<E> Einheitstaste(unsigned formen, std::string_view gruppe = {}) {
    return Feld<&E::Command1>({.name = "Command1",
                               .art = Feldart::einheit,
                               .texte = deltaeinheiten,
                               .hinter = "Delta",
                               .gruppe = gruppe,
                               .freiMit = "Check1",
                               .formen = formen});
}

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
    Feld<&E::Beschreibung>({.name = "Beschreibung", .titel = "Bes&chreibung", .laenge = 25}),
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
                      .titel = "Mehrere Zahlungsstufen mit D&ynamisierung ?",
                      .art = Feldart::kaestchen,
                      .absatz = true}),
    // The account frees these rows by the box, the series shows them by it.
    Stufenfeld(Zahlungsregisterart::konto),
    Deltafeld(Zahlungsregisterart::konto, "Änderung Zahlungsbetrag &je Stufe (  +/-) :"),
    Einheitstaste(Zahlungsregisterart::konto),
    Rahmen<E>({.name = "Frame2", .sichtbarMit = "Check1", .formen = Zahlungsregisterart::reihe}),
    Stufenfeld(Zahlungsregisterart::reihe, "Frame2"),
    Deltafeld(Zahlungsregisterart::reihe, "Änderung Zahlungsbetrag &je Stufe (+ / -)", "Frame2"),
    Einheitstaste(Zahlungsregisterart::reihe, "Frame2"),
    Anzeige<E>({.name = "Datumrech", .titel = "Datum der letzten Zahlung", .absatz = true}),
};

/// A numbered table of a series that has so many payments a stage.
Tabelleninhalt Vorschautabelle(std::shared_ptr<const std::vector<Staffelsatz>> zahlungen,
                               std::size_t zahlungenJeStufe, const Zahlungsregisterart& art) {
    Tabelleninhalt tabelle;
    tabelle.spalten = {{std::string(art.nummernkopf)}, {"Datum", Zellart::datum}, {"Betrag"}};
    tabelle.zeilen = zahlungen->size();
    tabelle.zelle = [zahlungen = std::move(zahlungen), zahlungenJeStufe, folgemuster = art.folgemuster](
                        std::size_t zeile, std::size_t spalte) {
        const Staffelsatz& satz = (*zahlungen)[zeile];
        if (spalte == 0) return std::to_string(zeile + 1);
        if (spalte == 1) return SatzdatumText(satz);
        return Format(satz.Zahlbetrag, zeile % zahlungenJeStufe == 0 ? vorschaumuster : folgemuster);
    };
    return tabelle;
}

}  // namespace

RegisterZahlungen::RegisterZahlungen(const Zahlungsregisterart& art, const Satzdatei<Staffelsatz>& datei,
                                     QWidget* eltern)
    : QWidget(eltern),
      art_(art),
      felder_(this),
      liste_({"List1", "Zahlungen", Zahlungsspalten(), Zahlungszeile, meldung::zahlungenLoeschen}, datei,
             this) {
    setObjectName("Frame1");
    rechts_ = new QStackedWidget;
    listenseite_ = Listenseite();
    vorschauseite_ = Vorschauseite();
    rechts_->addWidget(listenseite_);
    rechts_->addWidget(vorschauseite_);
    escape_ = BeiEscape(this, [this] { VorschauVerwerfen(); });
    auto* anordnung = new QHBoxLayout(this);
    anordnung->setSpacing(18);
    anordnung->addWidget(Eingabeseite());
    anordnung->addWidget(rechts_, 1);
    TabfolgeSetzen(*this, {"Command1", "Speichern", "übernehmen", "verwerfen", "List1", "Bearbeiten",
                           "Löschen", "Datumsortieren", "Grid2", "Command3", "Command4"});
    Verdrahten();
    RechtsZeigen(listenseite_);
    Zeigen({});
}

QWidget* RegisterZahlungen::Eingabeseite() {
    auto* seite = new QWidget;
    auto* anordnung = new QVBoxLayout(seite);
    anordnung->setContentsMargins(0, 0, 0, 0);
    auto* raster = new Feldraster;
    anordnung->addLayout(raster);
    felder_.Anlegen(feldzeilen, *raster, art_.form);
    Label10_ = new QLabel;
    Label10_->setObjectName("Label10");
    Label10_->setWordWrap(true);
    anordnung->addSpacing(6);
    anordnung->addWidget(Label10_);
    anordnung->addLayout(Tastenzeile({
        NeueTaste("Speichern", "&Eingabe übernehmen", this, [this] { EingabeUebernehmen(); }),
        NeueTaste("übernehmen", "Änderu&ngen übernehmen", this, [this] { AenderungUebernehmen(); }),
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
    Grid2_->setAccessibleName("Vorschau der Zahlungsreihe");
    QWidget* seite =
        Seite(Grid2_, {
                          NeueTaste("Command3", "über&nehmen", this, [this] { VorschauUebernehmen(); }),
                          NeueTaste("Command4", "&verwerfen", this, [this] { VorschauVerwerfen(); }),
                      });
    seite->setObjectName("Frame3");
    return seite;
}

void RegisterZahlungen::EinlesenAnlegen() {
    liste_.Trennen();
    liste_
        .NeuerBefehl("Zahlungen ein&fügen", {QKeySequence::Paste},
                     [this] { Einlesen(ZahlungenAusZwischenablage); })
        ->setObjectName("Einfügen");
    liste_.NeuerBefehl("Zahlungen aus &Datei einlesen …", {}, [this] { Einlesen(ZahlungenAusDatei); })
        ->setObjectName("DateiEinlesen");
}

void RegisterZahlungen::Einlesen(Einleser einleser) {
    const Einleseauftrag auftrag{
        .fenster = this,
        .platz = HoechstzahlSaetze - std::min(HoechstzahlSaetze, liste_.Saetze().size()),
        .tabelle =
            [](const std::vector<Staffelsatz>& saetze) {
                return TabelleBilden(Zahlungsspalten(),
                                     std::make_shared<const std::vector<Staffelsatz>>(saetze));
            },
    };
    if (auto neue = einleser(auftrag)) liste_.Aufnehmen(std::move(*neue));
}

void RegisterZahlungen::Verdrahten() {
    EinlesenAnlegen();
    liste_.nachLesen = [this] {
        if (art_.neuSchreibenLeert && !liste_.Geaendert() && !liste_.Saetze().empty()) return Zeigen({});
        felder_.Feld("Ratzahl")->setText("1");
        felder_.Feld("Abstand")->setText("1");
    };
    liste_.bearbeiten = [this] { AenderungBeginnen(); };
    liste_.nachAendern = [this] { emit geaendert(); };
    connect(felder_.Feld("Begdatum"), &QLineEdit::textChanged, this, &RegisterZahlungen::MonatsendeAnbieten);
    connect(&felder_.Tafel(), &Feldtafel::gewechselt, this, &RegisterZahlungen::DatumrechZeigen);
}

void RegisterZahlungen::Zeigen(const Zahlungseingabe& eingabe) {
    felder_.Zeigen(eingabe);
    AenderungsmodusSetzen(liste_.Geaendert().has_value());
    MonatsendeAnbieten();
}

void RegisterZahlungen::Auffrischen() {
    liste_.Auffrischen();
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
    const auto ablehnung = ZahlungseingabePruefen(eingabe, art_.nullbetrag);
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
    auto zahlungen = std::make_shared<std::vector<Staffelsatz>>();
    ZahlungenErzeugen(eingabe, *zahlungen);
    const double raten = std::max(1.0, Zahlwert(eingabe.Ratzahl));
    Grid2_->Zeige(Vorschautabelle(std::move(zahlungen), static_cast<std::size_t>(raten), art_));
    vorgesehen_ = eingabe;
    Label10_->setText("Vorschau der Zahlungsreihe: übernehmen oder verwerfen.");
    RechtsZeigen(vorschauseite_);
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
    const QWidget* fokus = vorschauseite_->focusWidget();
    if (fokus && fokus->hasFocus()) felder_.Fokussieren("Begdatum");
    RechtsZeigen(listenseite_);
}

void RegisterZahlungen::RechtsZeigen(QWidget* seite) {
    rechts_->setCurrentWidget(seite);
    escape_->setEnabled(seite == vorschauseite_);
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

Zahlungseingabe RegisterZahlungen::Grundeingabe() const {
    Zahlungseingabe eingabe = art_.serieBleibt ? felder_.Lesen() : Zahlungseingabe{};
    for (std::string* feld : {&eingabe.Begdatum, &eingabe.Betrag, &eingabe.Beschreibung})
        feld->clear();
    return eingabe;
}

void RegisterZahlungen::AenderungBeginnen() {
    if (!liste_.AenderungBeginnen()) return;
    const std::size_t zeile = *liste_.Geaendert();
    const Staffelsatz& satz = liste_.Saetze()[zeile];
    Zahlungseingabe eingabe = Grundeingabe();
    eingabe.Begdatum = SatzdatumText(satz);
    eingabe.Betrag = Feldtext(Zahltext(satz.Zahlbetrag));
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
        liste_.Ersetzen(saetze, zeile);
        AenderungBeenden();
    });
}

void RegisterZahlungen::AenderungBeenden() {
    liste_.AenderungBeenden();
    Label10_->clear();
    Zeigen(Grundeingabe());
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
