#include "fenster/staffel/registerzinssaetze.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <array>

#include "fenster/ui/bausteine.h"
#include "fenster/ui/feldraster.h"
#include "fenster/ui/geschuetzt.h"
#include "fenster/ui/meldungsfenster.h"
#include "kern/staffel/listenspalten.h"
#include "kern/staffel/listenzeile.h"
#include "kern/staffel/meldungen.h"
#include "kern/staffel/staffelsortierung.h"

namespace zinfolio {
namespace {

using K = Konditionseingabe;

constexpr Feldzeile<K> Satzfeld(Feldzeile<K> zeile, std::string_view einheit) {
    zeile.beschreibung.filter = Tastenfilter::prozent;
    zeile.beschreibung.einheit = einheit;
    return zeile;
}

constexpr std::array<std::string_view, 2> geltungen{"Für den Gesam&tkontostand",
                                                    "&Nur für den das Limit überschreitenden Betrag"};
constexpr std::array zweitzinsarten{1, 2};

constexpr std::array feldzeilen{
    Feld<&K::Gültigdatum>({.name = "Gültigdatum",
                           .titel = "&Gültig ab (xx . yy . zzzz)",
                           .filter = Tastenfilter::datum,
                           .kalender = "Gültigkalender"}),
    Satzfeld(Feld<&K::Gutzins1>({.name = "Gutzins1", .titel = "&1. Guthabenzinssatz"}), "%"),
    Satzfeld(Feld<&K::Gutzins2>({.name = "Gutzins2", .titel = "&2. Guthabenzinssatz"}), "%"),
    Satzfeld(Feld<&K::Guthabenlinie>({.name = "Guthabenlinie", .titel = "Gültig ab Gut&habensaldo von"}),
             "€"),
    Satzfeld(Feld<&K::Kreditzins1>({.name = "Kreditzins1", .titel = "1. &Kreditzinssatz"}), "%"),
    Satzfeld(Feld<&K::Kreditzins2>({.name = "Kreditzins2", .titel = "2. Kred&itzinssatz"}), "%"),
    Satzfeld(Feld<&K::Kreditlinie>({.name = "Kreditlinie", .titel = "Gültig ab Kredit&saldo von"}), "€"),
    Feld<&K::Zweitzinsart>({.name = "Option1",
                            .titel = "Gültigkeit der Zweitzinssätze ",
                            .art = Feldart::optionen,
                            .texte = geltungen,
                            .zahlen = zweitzinsarten,
                            .absatz = true}),
};

}  // namespace

RegisterZinssaetze::RegisterZinssaetze(const Satzdatei<Staffelsatz>& datei, QWidget* eltern)
    : QWidget(eltern),
      felder_(this),
      liste_({"List2", "Zinskonditionen", Konditionsspalten(), Konditionszeile, meldung::konditionenLoeschen},
             datei, this) {
    setObjectName("Frame2");
    auto* anordnung = new QHBoxLayout(this);
    anordnung->setSpacing(18);
    anordnung->addWidget(Eingabeseite());
    listenseite_ = Listenseite();
    anordnung->addWidget(listenseite_, 1);
    TabfolgeSetzen(
        *this, {"Option1(2)", "speichern2", "Änderungen", "verwerfen2", "List2", "Bearbeiten2", "Löschen2"});
    liste_.ordnen = SortiereKonditionen;
    liste_.nachLesen = [this] {
        angenommen_ = true;
        HinweisZeigen(false);
    };
    liste_.bearbeiten = [this] { AenderungBeginnen(); };
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
    felder_.Anlegen(feldzeilen, *raster);
    anordnung->addLayout(raster);
    hinweis_ = new QLabel;
    hinweis_->setObjectName("Konditionshinweis");
    hinweis_->setWordWrap(true);
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

void RegisterZinssaetze::NeuSchreiben2() {
    liste_.Auffrischen();
    angenommen_ = true;
    HinweisZeigen(false);
}

void RegisterZinssaetze::KontoWechseln() {
    if (liste_.Geaendert()) AenderungBeenden();
    liste_.KontoWechseln();
}

void RegisterZinssaetze::Leeren() {
    AenderungBeenden();
}

void RegisterZinssaetze::Betreten() {
    // A condition under change keeps its own.
    if (!liste_.Geaendert()) felder_.Tafel().Setze("Option1", {.text = {}, .zahl = 1});
    felder_.Fokussieren("Gültigdatum");
}

void RegisterZinssaetze::ZinssatzBegrenzen(Eingabefeld& feld) {
    if (!ZinssatzZuGross(feld.Wert())) return;
    feld.clear();
    MeldungZeigen(this, {.text = Anzeigetext(meldung::zinssatzZuGross)});
}

bool RegisterZinssaetze::Pruefen(Konditionseingabe& eingabe, Doppelpruefung doppelt) {
    const Konditionspruefung pruefung = KonditionPruefen(eingabe, liste_.Saetze(), doppelt, angenommen_);
    angenommen_ = pruefung.angenommen;
    felder_.Zeigen(eingabe);
    if (pruefung.hinweis) {
        MeldungZeigen(this, {.text = Anzeigetext(pruefung.hinweis->Meldung)});
        felder_.Fokussieren(pruefung.hinweis->Feld);
    }
    HinweisZeigen(pruefung.IstWarnung() && !angenommen_);
    return angenommen_;
}

void RegisterZinssaetze::EingabeUebernehmen() {
    Geschuetzt(this, [this] {
        Konditionseingabe eingabe = felder_.Lesen();
        if (!Pruefen(eingabe, Doppelpruefung::an)) return;
        std::vector<Staffelsatz> saetze = liste_.Saetze();
        saetze.push_back(KonditionErzeugen(eingabe));
        Schreiben(std::move(saetze));
        Konditionseingabe leer;
        leer.Zweitzinsart = eingabe.Zweitzinsart;
        felder_.Zeigen(leer);
        felder_.Fokussieren("Gültigdatum");
    });
}

void RegisterZinssaetze::Schreiben(std::vector<Staffelsatz> saetze) {
    SortiereKonditionen(saetze);
    liste_.Ersetzen(saetze);
}

void RegisterZinssaetze::AenderungBeginnen() {
    if (!liste_.AenderungBeginnen()) return;
    felder_.Zeigen(KonditionZurEingabe(liste_.Saetze()[*liste_.Geaendert()]));
    AenderungsmodusSetzen(true);
    felder_.Fokussieren("Gültigdatum");
}

void RegisterZinssaetze::AenderungUebernehmen() {
    Geschuetzt(this, [this] {
        Konditionseingabe eingabe = felder_.Lesen();
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
    felder_.Zeigen({});
    felder_.Fokussieren("Gültigdatum");
}

void RegisterZinssaetze::AenderungsmodusSetzen(bool an) {
    if (!an) liste_.AenderungBeenden();
    findChild<QPushButton*>("speichern2")->setVisible(!an);
    for (const char* name : {"Änderungen", "verwerfen2"})
        findChild<QPushButton*>(name)->setVisible(an);
    HinweisZeigen(false);
    listenseite_->setEnabled(!an);
}

void RegisterZinssaetze::HinweisZeigen(bool nichtGespeichert) {
    QStringList saetze;
    if (liste_.Geaendert()) saetze << QString("Kondition %1 wird geändert.").arg(*liste_.Geaendert() + 1);
    if (nichtGespeichert)
        saetze << "Noch nicht gespeichert: Nach einer Ablehnung müssen beide Limits größer als 0 sein.";
    hinweis_->setText(saetze.join(' '));
}

}  // namespace zinfolio
