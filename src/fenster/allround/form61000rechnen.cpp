// The calculations of the window, and what it hands to preview and clipboard.

#include <QApplication>
#include <QClipboard>
#include <QTextCursor>
#include <QTextEdit>
#include <QVBoxLayout>
#include <memory>

#include "fenster/allround/einstellungsseite.h"
#include "fenster/allround/form61000.h"
#include "fenster/allround/jahreswertseite.h"
#include "fenster/allround/registerplan.h"
#include "fenster/allround/registerreihenzins.h"
#include "fenster/allround/sensitivitaetsseite.h"
#include "fenster/allround/werteseite.h"
#include "fenster/rechner/registernotizen.h"
#include "fenster/rechner/registerzahlungen.h"
#include "fenster/rechner/suchzeile.h"
#include "fenster/ui/geschuetzt.h"
#include "kern/allround/ansichten.h"
#include "kern/allround/jahreswerte.h"
#include "kern/allround/stillrechnen.h"
#include "kern/allround/tilgungsplan.h"
#include "kern/bericht/notizbericht.h"
#include "kern/staffel/herleitungsbericht.h"

namespace zinfolio {

void Form61000::EffektivzinsRechnen() {
    letztesRegister_ = reihenzins_;
    Rechnen([this]() -> std::optional<Ablehnung> {
        Reihenzins zins;
        if (auto ablehnung = dateien_.EffektivzinsRechnen(reihenzins_->Methode(), zins)) return ablehnung;
        stand_.Anzeigeart = Anzeigeart::effektivzins;
        stand_.Uebernehmen(std::move(zins));
        reihenzins_->Zeigen(stand_);
        return std::nullopt;
    });
}

void Form61000::WerteBetreten(Wertart art) {
    QWidget* tab = art == Wertart::barwert ? barwertregister_ : endwertregister_;
    letztesRegister_ = tab;
    tab->layout()->addWidget(werte_);
    // A widget that changes its parent is hidden.
    werte_->show();
    werte_->Betreten(art);
    stand_.Anzeigeart = art == Wertart::barwert ? Anzeigeart::barwert : Anzeigeart::endwert;
    Analysieren();
}

void Form61000::Analysieren() {
    Werteingabe eingabe = werte_->Eingabe(einstellungen_->Abzins());
    Wertergebnis ergebnis;
    Rechnen([&] { return WertAnalyse(dateien_.ZahlungenSortieren(), eingabe, ergebnis); });
    // Also what a refusal or a fault left.
    werte_->EingabeZeigen(eingabe);
    stand_.Uebernehmen(std::move(ergebnis));
    werte_->Zeigen(stand_.Werte);
    zahlungen_->Auffrischen();
}

void Form61000::JahreswerteZeigen() {
    Werteingabe felder = werte_->Eingabe(einstellungen_->Abzins());
    Rechnen([&] {
        Jahreswerteingabe eingabe{felder.Abzins2, felder.BarwDatum};
        Zellentabelle tabelle;
        auto ablehnung = Jahreswerttabelle(dateien_.Zahlungen().Lesen(), eingabe, tabelle);
        felder.Abzins2 = eingabe.Abzins2;
        werte_->EingabeZeigen(felder);
        if (!ablehnung) {
            jahreswerte_->Zeigen(tabelle);
            SeiteZeigen(jahreswerte_);
            jahreswerte_->setFocus();
        }
        return ablehnung;
    });
    // The list can be asked for the table again.
    werte_->AuswertungZuruecksetzen();
}

void Form61000::SensitivitaetZeigen() {
    SensitivitaetRechnen();
    SeiteZeigen(sensitivitaet_);
    sensitivitaet_->setFocus();
}

void Form61000::SensitivitaetRechnen() {
    Sensitivitaetseingabe eingabe{
        .Anzeigeart = stand_.Analyseart(), .Abzins = einstellungen_->Abzins(), .Vorwert = stand_.Vorwert};
    sensitivitaet_->Lesen(eingabe);
    Ausfuehren([&]() -> std::optional<Ablehnung> {
        auto ablehnung = StillRechnen([&] {
            return zinfolio::SensitivitaetRechnen(dateien_.Zahlungen().Lesen(), eingabe,
                                                  stand_.Sensitivitaet);
        });
        if (!ablehnung) {
            sensitivitaet_->Zeigen(eingabe, stand_.Sensitivitaet);
            return std::nullopt;
        }
        sensitivitaet_->VeraltetZeigen();
        if (ablehnung->Meldung.empty()) return std::nullopt;
        return ablehnung;
    });
}

void Form61000::PlanBetreten() {
    if (plan_->Suche().Laeuft()) return;
    const bool geschrieben = PlanSchritt([this] { return dateien_.ReiheSchreibenR(); });
    zahlungen_->Auffrischen();
    if (geschrieben) PlanRechnen();
}

void Form61000::PlanRechnen() {
    struct Planrechnung {
        Planeingabe eingabe;
        std::vector<Reihensatz> reihe{};
        Tilgungsplan plan{};
        std::optional<Ablehnung> ablehnung{};
    };
    auto rechnung = std::make_shared<Planrechnung>(Planrechnung{plan_->Eingabe()});
    const bool gelesen = PlanSchritt([&] {
        rechnung->reihe = dateien_.PlanreiheLesen();
        return std::nullopt;
    });
    if (!gelesen) return;
    plan_->Warten();
    plan_->Suche().Rechnen(
        [rechnung](const Suchbeobachter& beobachter) {
            rechnung->ablehnung =
                TilgungsplanRechnen(rechnung->reihe, rechnung->eingabe, rechnung->plan, beobachter);
        },
        [this, rechnung](const std::exception_ptr& fehler) {
            PlanSchritt([&]() -> std::optional<Ablehnung> {
                dateien_.PlanAblegen(rechnung->plan);
                if (fehler) std::rethrow_exception(fehler);
                if (rechnung->ablehnung) return rechnung->ablehnung;
                letztesRegister_ = plan_;
                stand_.Uebernehmen(std::move(rechnung->plan));
                stand_.Anzeigeart = Anzeigeart::planJahresweise;
                plan_->PlanZeigen(stand_);
                return std::nullopt;
            });
        });
}

bool Form61000::PlanSchritt(const Rechenschritt& schritt) {
    bool ohneWorte = false;
    const bool ohneMeldung = Ausfuehren([&] {
        auto ablehnung = StillRechnen(schritt);
        ohneWorte = ablehnung && ablehnung->Meldung.empty();
        if (ablehnung) plan_->VeraltetZeigen();
        return ohneWorte ? std::nullopt : ablehnung;
    });
    if (ohneWorte) letztesRegister_ = plan_;
    if (!ohneMeldung) RegisterZeigen(letztesRegister_);
    return ohneMeldung && !ohneWorte;
}

void Form61000::PlanAbbrechen() {
    plan_->VeraltetZeigen("Die Berechnung des Plans wurde abgebrochen.");
    RegisterZeigen(letztesRegister_);
}

void Form61000::PlanansichtWaehlen() {
    if (!stand_.PlanAngezeigt) return;
    stand_.Anzeigeart = plan_->Ansicht() == Planansicht::jahresweise ? Anzeigeart::planJahresweise
                                                                     : Anzeigeart::planUnterjaehrig;
    plan_->AnsichtZeigen(stand_);
}

Bericht Form61000::Effektivzinsbericht() const {
    const Reihenzins& zins = stand_.GefundenerZins;
    return AllroundberichtBilden(
        {.art = Anzeigeart::effektivzins,
         .projekt = Projektname().toStdString(),
         .Effektivergebnis = zins.Effektivergebnis,
         .methode = std::string(Effektivmethodentext(zins.methode)),
         .tabelle = HerleitungstabelleBilden(Endwertzeilen(zins), zins.Effektivergebnis)});
}

Bericht Form61000::Wertbericht() const {
    return AllroundberichtBilden({.art = stand_.Anzeigeart,
                                  .projekt = Projektname().toStdString(),
                                  .Abzins2 = werte_->GerechneterZins(),
                                  .tabelle = WertansichtBilden(stand_.Werte)});
}

Bericht Form61000::Sensitivitaetsbericht() const {
    return AllroundberichtBilden({.art = Anzeigeart::sensitivitaet,
                                  .projekt = Projektname().toStdString(),
                                  .wertart = stand_.Analyseart(),
                                  .tabelle = SensitivitaetsansichtBilden(stand_.Sensitivitaet)});
}

Bericht Form61000::Planbericht() const {
    const Planansicht ansicht = plan_->Ansicht();
    return AllroundberichtBilden({.art = stand_.Anzeigeart,
                                  .projekt = Projektname().toStdString(),
                                  .zinstermine = plan_->Zinstermine(),
                                  .nomzins = stand_.Plan.nomzins,
                                  .effzinssatz = stand_.Plan.effzinssatz,
                                  .tabelle = PlanansichtBilden(Plantabelle(stand_.Plan, ansicht), ansicht)});
}

void Form61000::NotizenDrucken() {
    const Richtext notiz = notizen_->Lesen();
    const std::string titel = Projektname().toStdString();
    Drucken([notiz, titel] { return NotizberichtBilden(notiz, titel); });
}

void Form61000::NotizenKopieren() {
    auto* text = notizen_->findChild<QTextEdit*>("RTZinsstaffel");
    QApplication::clipboard()->clear();
    text->selectAll();
    text->copy();
    QTextCursor marke = text->textCursor();
    marke.clearSelection();
    text->setTextCursor(marke);
}

void Form61000::VorgabezinsSpeichern() {
    const bool gespeichert = MitSchreibmeldung(
        this, [this] { dateien_.VorgabezinsSchreiben(einstellungen_->Abzins()); },
        "Die Voreinstellung konnte nicht gespeichert werden.\n\n");
    if (gespeichert) Zurueck();
}

}  // namespace zinfolio
