#include "fenster/allround/form61000.h"

#include <QVBoxLayout>

#include "fenster/allround/einstellungsseite.h"
#include "fenster/allround/jahreswertseite.h"
#include "fenster/allround/registerplan.h"
#include "fenster/allround/registerreihenzins.h"
#include "fenster/allround/sensitivitaetsseite.h"
#include "fenster/allround/werteseite.h"
#include "fenster/rechner/registernotizen.h"
#include "fenster/rechner/registerzahlungen.h"
#include "fenster/rechner/suchzeile.h"
#include "fenster/ui/bausteine.h"
#include "kern/allround/diagramme.h"
#include "kern/allround/reihenprojekt.h"

namespace zinfolio {
namespace {

/// Payments of 0 are taken.
constexpr Zahlungsregisterart zahlungsregister{.form = Zahlungsregisterart::reihe,
                                               .nullbetrag = Nullbetrag::erlaubt,
                                               .nummernkopf = "",
                                               .folgemuster = Zahlmuster::Lesen("###,##0.00"),
                                               .serieBleibt = true,
                                               .neuSchreibenLeert = true};

Rechnerart Art() {
    return {.name = "Form61000",
            .titel = "Allround-Effektivzins- / Kapitalrechner",
            .vorschau = {.rahmen = "Druckrahmen",
                         .exportieren = "Command9",
                         .zurueck = "Command10",
                         .filter = "*.%1 |*.%1"},
            .diagramme = {{.rahmen = "Grafikrahmen",
                           .diagramm = "Chart",
                           .drucken = "GrafikDrucken",
                           .zurueck = "Command5"},
                          {.rahmen = "Grafikrahmen1",
                           .diagramm = "Chart1",
                           .drucken = "Grafik1Drucken",
                           .zurueck = "Command18"}}};
}

QWidget* LeeresRegister(const char* name, QWidget* eltern) {
    auto* seite = new QWidget(eltern);
    seite->setObjectName(QString::fromUtf8(name));
    new QVBoxLayout(seite);
    return seite;
}

}  // namespace

Form61000::Form61000(const std::filesystem::path& arbeitsordner)
    : Rechner(Art(), arbeitsordner),
      dateien_(arbeitsordner),
      zahlungen_(new RegisterZahlungen(zahlungsregister, dateien_.Zahlungen(), this)),
      reihenzins_(new RegisterReihenzins(this)),
      barwertregister_(LeeresRegister("Barwertregister", this)),
      endwertregister_(LeeresRegister("Endwertregister", this)),
      werte_(new Werteseite(barwertregister_)),
      plan_(new RegisterPlan(this)),
      notizregister_(LeeresRegister("Notizregister", this)),
      notizen_(new RegisterNotizen("RTZinsstaffel", notizregister_)),
      sensitivitaet_(new Sensitivitaetsseite(this)),
      jahreswerte_(new Jahreswertseite(this)),
      einstellungen_(new Einstellungsseite(this)),
      letztesRegister_(zahlungen_) {
    NotizseiteAnlegen();
    for (QWidget* seite : std::initializer_list<QWidget*>{sensitivitaet_, jahreswerte_, einstellungen_})
        SeiteAnlegen(seite);
    Einrichten({.register_ = Registerzeilen(),
                .ablage = new Projektablage(*this, Projektbeschreibung()),
                .befehle = Befehle()});
    einstellungen_->Setze(dateien_.VorgabezinsLesen());
    Verdrahten();
    WerteVerdrahten();
}

std::vector<Registerzeile> Form61000::Registerzeilen() {
    return {
        {.seite = zahlungen_, .titel = "Zahlungen", .betreten = [this] { letztesRegister_ = zahlungen_; }},
        {.seite = reihenzins_,
         .titel = "Effektivzinssatz berechnen",
         .betreten = [this] { EffektivzinsRechnen(); },
         .erneut = true},
        {.seite = barwertregister_,
         .titel = "Barwert berechnen",
         .betreten = [this] { WerteBetreten(Wertart::barwert); },
         .erneut = true},
        {.seite = endwertregister_,
         .titel = "Vermögensendwert berechnen",
         .betreten = [this] { WerteBetreten(Wertart::endwert); },
         .erneut = true},
        {.seite = plan_,
         .titel = "Zins-/Tilgungsplan",
         .betreten = [this] { PlanBetreten(); },
         .erneut = true},
        {.seite = notizregister_,
         .titel = "Notizen",
         .betreten =
             [this] {
                 letztesRegister_ = notizregister_;
                 notizen_->setFocus();
             }},
    };
}

std::vector<Befehlszeile> Form61000::Befehle() {
    return {
        {"Auswertungen", "berechnen", "&Berechnen", "Rendite berechnen", QKeySequence(Qt::Key_F9),
         [this] { RegisterWaehlen(reihenzins_); }, Befehlszeile::Ort::leiste},
        {"Einstellungen",
         "",
         "&Einstellungen",
         "Voreinstellung für die Berechnung von Barwert / Vermögensendwert",
         {},
         [this] {
             SeiteZeigen(einstellungen_);
             einstellungen_->setFocus();
         },
         Befehlszeile::Ort::menue},
    };
}

Projektart Form61000::Projektbeschreibung() {
    return {
        .sache = "Zahlungsreihe",
        .nichtGespeichert = "Die Zahlungsreihe konnte nicht gespeichert werden.",
        .filter = "Zahlungsdateien (*.RRR) |*.RRR",
        .endung = "RRR",
        .neu = [this] { Neu(); },
        .laden = [this](const auto& datei, Leseanlass anlass) { Laden(datei, anlass); },
        .speichern =
            [this](const auto& datei) {
                ReihenprojektSpeichern(dateien_.Ordner(), datei, Projektname().toStdString(),
                                       notizen_->AlsDatei());
            },
        .ordnen = [this] { (void)dateien_.ZahlungenSortieren(); },
        .aufbau = &Reihenprojektaufbau(),
        .befunde = [this] { return befunde_; },
        .neuFragt = false,
        .mitEndung = false,
    };
}

void Form61000::NotizseiteAnlegen() {
    notizregister_->layout()->addWidget(notizen_);
    auto* tasten = Tastenzeile(
        {NeueTaste("Command6", "Dru&cken", notizregister_, [this] { NotizenDrucken(); }),
         NeueTaste("Command7", "&Zwischenablage", notizregister_, [this] { NotizenKopieren(); })});
    static_cast<QVBoxLayout*>(notizregister_->layout())->addLayout(tasten);
}

void Form61000::Verdrahten() {
    connect(zahlungen_, &RegisterZahlungen::geaendert, this, [this] {
        plan_->Suche().Aufgeben();
        Geaendert();
    });
    connect(&plan_->Suche(), &Suchzeile::abgebrochen, this, &Form61000::PlanAbbrechen);
    connect(notizen_, &RegisterNotizen::inhaltGeaendert, this, [this] { Geaendert(); });
    connect(reihenzins_, &RegisterReihenzins::methodeGewaehlt, this, &Form61000::EffektivzinsRechnen);
    connect(reihenzins_, &RegisterReihenzins::druckenVerlangt, this,
            [this] { Drucken([this] { return Effektivzinsbericht(); }); });
    connect(plan_, &RegisterPlan::eingabeGeaendert, this, &Form61000::PlanRechnen);
    connect(plan_, &RegisterPlan::ansichtGewaehlt, this, &Form61000::PlanansichtWaehlen);
    connect(plan_, &RegisterPlan::druckenVerlangt, this,
            [this] { Drucken([this] { return Planbericht(); }); });
    connect(plan_, &RegisterPlan::grafikVerlangt, this, [this] {
        Zeichnen(
            [this] { return Plandiagramm(Plantabelle(stand_.Plan, plan_->Ansicht()), plan_->Ansicht()); });
    });
    connect(einstellungen_, &Einstellungsseite::speichernVerlangt, this, &Form61000::VorgabezinsSpeichern);
    connect(einstellungen_, &Einstellungsseite::zurueck, this, [this] { Zurueck(); });
}

void Form61000::WerteVerdrahten() {
    connect(werte_, &Werteseite::eingabeGeaendert, this, &Form61000::Analysieren);
    connect(werte_, &Werteseite::jahreswerteVerlangt, this, &Form61000::JahreswerteZeigen);
    connect(werte_, &Werteseite::analyseVerlangt, this, &Form61000::SensitivitaetZeigen);
    connect(werte_, &Werteseite::druckenVerlangt, this,
            [this] { Drucken([this] { return Wertbericht(); }); });
    connect(werte_, &Werteseite::grafikVerlangt, this,
            [this] { Zeichnen([this] { return Wertdiagramm(stand_.Werte.Tabelle, stand_.Analyseart()); }); });
    connect(jahreswerte_, &Jahreswertseite::zurueck, this, [this] { Zurueck(); });
    connect(sensitivitaet_, &Sensitivitaetsseite::berechnenVerlangt, this, &Form61000::SensitivitaetRechnen);
    connect(sensitivitaet_, &Sensitivitaetsseite::zurueck, this, [this] { Zurueck(); });
    connect(sensitivitaet_, &Sensitivitaetsseite::druckenVerlangt, this,
            [this] { Drucken([this] { return Sensitivitaetsbericht(); }); });
    connect(sensitivitaet_, &Sensitivitaetsseite::grafikVerlangt, this, [this] {
        Zeichnen([this] { return Sensitivitaetsdiagramm(stand_.Sensitivitaet, stand_.Analyseart()); }, 1);
    });
}

void Form61000::Neu() {
    dateien_.Neu();
    zahlungen_->Leeren();
    zahlungen_->KontoWechseln();
    werte_->Leeren();
    reihenzins_->Leeren();
    plan_->Leeren();
    stand_.PlanAngezeigt = false;
    notizen_->Oeffnen({});
}

void Form61000::Laden(const std::filesystem::path& datei, Leseanlass anlass) {
    Reihenprojekt projekt = ReihenprojektLesen(datei);
    befunde_ = projekt.befunde;
    ReihenprojektUebernehmen(dateien_.Ordner(), projekt);
    if (anlass == Leseanlass::wiederladen) {
        zahlungen_->Auffrischen();
        return notizen_->Wiederladen(std::move(projekt.notizen));
    }
    plan_->Suche().Aufgeben();
    zahlungen_->KontoWechseln();
    werte_->Leeren();
    notizen_->Oeffnen(std::move(projekt.notizen));
}

}  // namespace zinfolio
