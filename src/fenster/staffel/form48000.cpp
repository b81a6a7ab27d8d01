#include "fenster/staffel/form48000.h"

#include "fenster/rechner/registerberechnung.h"
#include "fenster/rechner/registernotizen.h"
#include "fenster/rechner/registerzahlungen.h"
#include "fenster/staffel/registereffektivzins.h"
#include "fenster/staffel/registerzinssaetze.h"
#include "fenster/staffel/registerzinsverrechnung.h"
#include "kern/staffel/effektivdateien.h"
#include "kern/staffel/herleitungsbericht.h"
#include "kern/staffel/kontobericht.h"
#include "kern/staffel/kontodiagramm.h"
#include "kern/staffel/kontoprojekt.h"
#include "kern/staffel/staffelsortierung.h"

namespace zinfolio {

Form48000::Form48000(const std::filesystem::path& arbeitsordner)
    : Rechner({.name = "Form48000", .titel = "Zinsstaffelrechner"}, arbeitsordner),
      dateien_(arbeitsordner),
      zahlungen_(new RegisterZahlungen({}, dateien_.Zahlungen(), this)),
      zinssaetze_(new RegisterZinssaetze(dateien_.Konditionen(), this)),
      zinsverrechnung_(new RegisterZinsverrechnung(this)),
      berechnung_(new RegisterBerechnung({}, this)),
      notizen_(new RegisterNotizen("RTZinsstaffel", this)),
      effektivzins_(new RegisterEffektivzins(this)) {
    effektivzins_->hide();
    Einrichten({.register_ = Registerzeilen(),
                .ablage = new Projektablage(*this, Kontoprojekt()),
                .befehle = {{"Auswertungen", "berechnen", "&Berechnen", "Zinsstaffel berechnen",
                             QKeySequence(Qt::Key_F9), [this] { RegisterWaehlen(berechnung_); },
                             Befehlszeile::Ort::leiste}}});
    zinsverrechnung_->Zeigen(KontoeinstellungenLesen(dateien_.Ordner()));
    Verdrahten();
}

std::vector<Registerzeile> Form48000::Registerzeilen() {
    // Leaving the statement goes back to its first view.
    const auto eingabe = [this](auto betreten) {
        return [this, betreten] {
            berechnung_->KurzformWaehlen();
            betreten();
        };
    };
    return {
        {.seite = zahlungen_, .titel = "Zahlungen", .betreten = eingabe([] {})},
        {.seite = zinssaetze_, .titel = "Zinssätze", .betreten = eingabe([this] {
                                                         zinssaetze_->Betreten();
                                                     })},
        {.seite = zinsverrechnung_, .titel = "Zinsverrechnung", .betreten = eingabe([this] {
                                                                    zinsverrechnung_->Betreten();
                                                                })},
        {.seite = berechnung_,
         .titel = "Zinsstaffel berechnen",
         .betreten = [this] { KontoRechnen(); },
         .erneut = true},
        {.seite = notizen_, .titel = "Notizen", .betreten = eingabe([this] { notizen_->setFocus(); })},
    };
}

Projektart Form48000::Kontoprojekt() {
    return {
        .sache = "Konto",
        .nichtGespeichert = "Das Konto konnte nicht gespeichert werden.",
        .filter = "Zahlungsdateien (*.ZiS) |*.ZiS",
        .endung = "ZiS",
        .neu = [this] { Neu(); },
        .laden = [this](const auto& datei, Leseanlass anlass) { Laden(datei, anlass); },
        .speichern =
            [this](const auto& datei) {
                KontoprojektSpeichern(dateien_.Ordner(), datei, notizen_->AlsDatei());
            },
        .festhalten = [this] { KontoeinstellungenSchreiben(dateien_.Ordner(), zinsverrechnung_->Lesen()); },
        .ordnen = [this] { Sortieren(); },
        .aufbau = &Kontoprojektaufbau(),
        .befunde = [this] { return befunde_; },
    };
}

void Form48000::Verdrahten() {
    connect(zahlungen_, &RegisterZahlungen::geaendert, this, &Form48000::KontoGeaendert);
    connect(zinssaetze_, &RegisterZinssaetze::geaendert, this, &Form48000::KontoGeaendert);
    connect(zinsverrechnung_, &RegisterZinsverrechnung::geaendert, this, &Form48000::KontoGeaendert);
    connect(berechnung_, &RegisterBerechnung::effektivzinsVerlangt, this, &Form48000::EffektivzinsRechnen);
    connect(berechnung_, &RegisterBerechnung::grafikVerlangt, this, &Form48000::GrafikZeigen);
    connect(berechnung_, &RegisterBerechnung::druckenVerlangt, this,
            [this] { Drucken([this] { return Kontobericht(); }); });
    connect(effektivzins_, &RegisterEffektivzins::druckenVerlangt, this,
            [this] { Drucken([this] { return Effektivzinsbericht(); }); });
    connect(effektivzins_, &RegisterEffektivzins::zurueck, this, &Form48000::ZurStaffel);
}

void Form48000::Neu() {
    dateien_.Neu();
    RegisterEntfernen(effektivzins_);
    zinssaetze_->Leeren();
    zahlungen_->Leeren();
    KontoWechseln();
    ErgebnisLeeren();
    notizen_->Oeffnen({});
}

void Form48000::Laden(const std::filesystem::path& datei, Leseanlass anlass) {
    auto projekt = KontoprojektLesen(datei);
    KontoprojektUebernehmen(dateien_.Ordner(), projekt);
    befunde_ = std::move(projekt.befunde);
    if (anlass == Leseanlass::oeffnen) RegisterEntfernen(effektivzins_);
    zinsverrechnung_->Zeigen(KontoeinstellungenLesen(dateien_.Ordner()));
    if (anlass == Leseanlass::oeffnen) {
        KontoWechseln();
        notizen_->Oeffnen(std::move(projekt.notizen));
    } else {
        zahlungen_->Auffrischen();
        zinssaetze_->NeuSchreiben2();
        notizen_->Wiederladen(std::move(projekt.notizen));
    }
}

void Form48000::Sortieren() {
    std::vector<Staffelsatz> saetze = dateien_.Zahlungen().Lesen();
    SortiereZahlungen(saetze);
    dateien_.Zahlungen().Schreiben(saetze);
}

void Form48000::KontoWechseln() {
    zahlungen_->KontoWechseln();
    zinssaetze_->KontoWechseln();
}

void Form48000::ErgebnisLeeren() {
    berechnung_->Leeren();
    berechnung_->EffektivzinsVerbergen();
}

void Form48000::KontoGeaendert() {
    Geaendert();
    geaendertSeitRechnung_ = true;
    ZugehoerigkeitZeigen();
}

void Form48000::ZugehoerigkeitZeigen() {
    const bool gehoertDazu = !geaendertSeitRechnung_ && bewertet_ && *bewertet_ == berechnung_->Loesung();
    effektivzins_->VeraltetZeigen(!gehoertDazu);
}

void Form48000::ZurStaffel() {
    if (geaendertSeitRechnung_)
        RegisterWaehlen(berechnung_);
    else
        RegisterZeigen(berechnung_);
}

void Form48000::KontoRechnen() {
    geaendertSeitRechnung_ = false;
    Rechnen([this] {
        Konto konto;
        berechnung_->Leeren();
        auto ablehnung = dateien_.Rechnen(zinsverrechnung_->Lesen(), konto);
        zahlungen_->Auffrischen();
        zinssaetze_->NeuSchreiben2();
        if (!ablehnung) berechnung_->Zeigen(std::move(konto.loesung), konto.einstellungen);
        if (!RegisterVorhanden(effektivzins_)) berechnung_->EffektivzinsVerbergen();
        return ablehnung;
    });
    ZugehoerigkeitZeigen();
}

void Form48000::EffektivzinsRechnen() {
    Ausfuehren([this] {
        const Effektivmethode methode = berechnung_->GewaehlteEffektivmethode();
        Kontoeffektivzins ergebnis = KontoEffektivzinsRechnen(berechnung_->Loesung(), methode);
        KontoEffektivzinsAblegen(dateien_.Ordner(), ergebnis);
        berechnung_->EffektivzinsZeigen(ergebnis.ezins, methode);
        effektivzins_->Zeigen(std::move(ergebnis));
        bewertet_ = berechnung_->Berichtsdaten().loesung;
        ZugehoerigkeitZeigen();
        RegisterAnhaengen(effektivzins_, "Effektivzinssatz", [this] { ZurStaffel(); });
        return std::nullopt;
    });
}

Bericht Form48000::Kontobericht() const {
    Kontoberichtsdaten daten = berechnung_->Berichtsdaten();
    daten.projekt = Projektname().toStdString();
    daten.einstellungen = zinsverrechnung_->Lesen();
    daten.konditionen = dateien_.Konditionen().Lesen();
    return KontoberichtBilden(daten);
}

Bericht Form48000::Effektivzinsbericht() const {
    const Kontoeffektivzins& ergebnis = effektivzins_->Ergebnis();
    const auto zeilen = ergebnis.Herleitung();
    return HerleitungsberichtBilden({
        .projekt = Projektname().toStdString(),
        .methode = berechnung_->GerechneteEffektivmethode(),
        .ezins = ergebnis.ezins,
        .veraltet = effektivzins_->Veraltet(),
        .zeilen = std::make_shared<const std::vector<Ergebnissatz>>(zeilen.begin(), zeilen.end()),
    });
}

void Form48000::GrafikZeigen() {
    if (Zeichnen([this] { return Kontodiagramm(berechnung_->Loesung()); })) berechnung_->KurzformWaehlen();
}

}  // namespace zinfolio
