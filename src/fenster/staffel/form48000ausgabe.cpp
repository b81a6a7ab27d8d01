// What the account's window shows on paper and as a chart.

#include <QStackedWidget>
#include <QTabWidget>

#include "fenster/ausgabe/formdiagramm.h"
#include "fenster/ausgabe/formvorschau.h"
#include "fenster/staffel/form48000.h"
#include "fenster/staffel/registerberechnung.h"
#include "fenster/staffel/registereffektivzins.h"
#include "fenster/staffel/registerzinsverrechnung.h"
#include "fenster/ui/geschuetzt.h"
#include "fenster/ui/meldungsfenster.h"
#include "kern/staffel/herleitungsbericht.h"
#include "kern/staffel/kontobericht.h"
#include "kern/staffel/kontodiagramm.h"

namespace zinfolio {

void Form48000::KontoDrucken() {
    Vorschau([this] {
        Kontoberichtsdaten daten = berechnung_->Berichtsdaten();
        daten.projekt = Projektname().toStdString();
        daten.einstellungen = zinsverrechnung_->Lesen();
        daten.konditionen = dateien_.Konditionen().Lesen();
        return KontoberichtBilden(daten);
    });
}

void Form48000::EffektivzinsDrucken() {
    Vorschau([this] {
        const Kontoeffektivzins& ergebnis = effektivzins_->Ergebnis();
        const auto zeilen = ergebnis.Herleitung();
        return HerleitungsberichtBilden({
            .projekt = Projektname().toStdString(),
            .methode = berechnung_->GerechneteEffektivmethode(),
            .ezins = ergebnis.ezins,
            .zeilen = std::make_shared<const std::vector<Ergebnissatz>>(zeilen.begin(), zeilen.end()),
        });
    });
}

void Form48000::GrafikZeigen() {
    std::optional<Ablehnung> ablehnung;
    GeschuetztMitWartezeiger(this, [&] {
        auto ergebnis = Kontodiagramm(berechnung_->Loesung());
        if (auto* grund = std::get_if<Ablehnung>(&ergebnis)) {
            ablehnung = std::move(*grund);
            return;
        }
        berechnung_->KurzformWaehlen();
        auto& diagramm = std::get<Diagramm>(ergebnis);
        diagramm.titel = Projektname().toStdString();
        diagramm_->Zeigen(diagramm);
        mitte_->setCurrentWidget(diagramm_);
    });
    if (ablehnung) Ablehnen(*ablehnung);
}

void Form48000::Vorschau(const std::function<Bericht()>& bilden) {
    GeschuetztMitWartezeiger(this, [&] {
        const auto ordner = projekt_ ? projekt_->parent_path() : std::filesystem::path();
        vorschau_->Zeigen(bilden, QString::fromStdString(ordner.string()));
        mitte_->setCurrentWidget(vorschau_);
    });
}

}  // namespace zinfolio
