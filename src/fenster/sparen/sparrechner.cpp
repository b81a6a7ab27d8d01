#include "fenster/sparen/sparrechner.h"

#include <algorithm>

#include "fenster/ausgabe/form34.h"
#include "fenster/ausgabe/fortschrittsfenster.h"
#include "fenster/rechner/registernotizen.h"
#include "fenster/sparen/sparergebnisseite.h"
#include "fenster/sparen/sparfelder.h"
#include "fenster/sparen/zinstabellenseite.h"
#include "fenster/ui/meldungsfenster.h"
#include "kern/sparen/meldungen.h"
#include "kern/sparen/sekantensuche.h"
#include "kern/sparen/spardateien.h"

namespace zinfolio {

Sparrechner::Sparrechner(const Sparform& form, const std::filesystem::path& arbeitsordner)
    : Rechner(Art(form), arbeitsordner),
      form_(form),
      ordner_(arbeitsordner),
      dateien_(form, arbeitsordner),
      felder_(new Sparfelder(form, this)),
      ergebnis_(new Sparergebnisseite(form, this)),
      notizen_(new RegisterNotizen("RT", this)) {
    if (form.zinstabelle) {
        zinstabelle_ = new Zinstabellenseite(this);
        SeiteAnlegen(zinstabelle_);
    }
    Verdrahten();
    Einrichten({.register_ = Registerzeilen(),
                .ablage = new Planablage(*this, Plaene()),
                .befehle = {{"Auswertungen", "berechnen", "&Berechnen", "Den Sparplan berechnen",
                             QKeySequence(Qt::Key_F9), [this] { RegisterWaehlen(ergebnis_); },
                             Befehlszeile::Ort::leiste}}});
}

Rechnerart Sparrechner::Art(const Sparform& form) {
    // One form has given that button's name to its unit, and prints its chart by another.
    const bool einfach = form.dynamik == Dynamik::einfach;
    return {.name = form.name.data(),
            .titel = form.titel.data(),
            .ende = "Ende",
            .vorschau = {.rahmen = "Frame(5)", .exportieren = "Command9", .zurueck = "Command10"},
            .diagramme = {{.rahmen = "Frame(4)",
                           .drucken = einfach ? "Command3" : "Command7",
                           .zurueck = "Command5",
                           .zuruecktext = "&zurück"}}};
}

std::vector<Registerzeile> Sparrechner::Registerzeilen() {
    return {
        {.seite = felder_, .titel = "Daten", .rollbar = true},
        {.seite = ergebnis_, .titel = "Berechnen", .betreten = [this] { Berechnen(); }},
        {.seite = notizen_, .titel = "Notizen", .betreten = [this] { notizen_->setFocus(); }},
    };
}

Planart Sparrechner::Plaene() {
    return {
        .nichtGespeichert = "Der Sparplan konnte nicht gespeichert werden.",
        .verzeichnisLesen =
            [this] {
                const Planindex index = dateien_.IndexLesen();
                return Planverzeichnis{{index.namen.begin(), index.namen.end()}, index.aktuell};
            },
        .namenSchreiben = [this](const Planverzeichnis& plaene) { dateien_.NamenSchreiben(Index(plaene)); },
        .wahlSchreiben = [this](const Planverzeichnis& plaene) { dateien_.IndexSchreiben(Index(plaene)); },
        .laden = [this](int nummer) { PlanLaden(nummer); },
        .speichern = [this](int nummer) { Speicherung(nummer); },
    };
}

Planindex Sparrechner::Index(const Planverzeichnis& plaene) {
    Planindex index;
    std::ranges::copy(plaene.namen, index.namen.begin());
    index.aktuell = static_cast<std::int16_t>(plaene.aktuell);
    return index;
}

void Sparrechner::Verdrahten() {
    connect(felder_, &Sparfelder::geaendert, this, [this] { Geaendert(); });
    connect(felder_, &Sparfelder::berechnenVerlangt, this, [this] { RegisterWaehlen(ergebnis_); });
    connect(ergebnis_, &Sparergebnisseite::geaendert, this, [this] { Geaendert(); });
    connect(ergebnis_, &Sparergebnisseite::effzinsVerlangt, this, &Sparrechner::EffzinsBerechnen);
    connect(ergebnis_, &Sparergebnisseite::methodeGewaehlt, this, [this] {
        // One form waits for its button.
        if (ergebnis_->ZeigtEffzins() && form_.dynamik != Dynamik::einfach) EffzinsBerechnen();
    });
    connect(ergebnis_, &Sparergebnisseite::druckenVerlangt, this,
            [this] { Drucken([this] { return SparberichtBilden(Berichtsdaten()); }); });
    connect(ergebnis_, &Sparergebnisseite::textVerlangt, this, &Sparrechner::TextZeigen);
    connect(ergebnis_, &Sparergebnisseite::grafikVerlangt, this, &Sparrechner::GrafikZeigen);
    connect(notizen_, &RegisterNotizen::inhaltGeaendert, this, [this] { Geaendert(); });
    if (!zinstabelle_) return;
    connect(felder_, &Sparfelder::zinstabelleVerlangt, this, [this] {
        SeiteZeigen(zinstabelle_);
        zinstabelle_->Fokussieren(Zinszeilenname(0, Zinsspalte::datum));
    });
    connect(zinstabelle_, &Zinstabellenseite::geaendert, this, [this] { Geaendert(); });
    connect(zinstabelle_, &Zinstabellenseite::markiert, felder_, &Sparfelder::MarkeZeigen);
    connect(zinstabelle_, &Zinstabellenseite::zurueck, this, [this] { RegisterZeigen(felder_); });
}

Sparplan Sparrechner::Lesen() const {
    Sparplan plan;
    felder_->Lesen(plan);
    ergebnis_->Lesen(plan);
    if (zinstabelle_) zinstabelle_->Lesen(plan);
    return plan;
}

void Sparrechner::Zeigen(const Sparplan& plan) {
    felder_->Zeigen(plan);
    ergebnis_->MethodeZeigen(plan);
    if (zinstabelle_) zinstabelle_->Zeigen(plan);
}

void Sparrechner::PlanLaden(int nummer) {
    const auto k = static_cast<std::size_t>(nummer);
    const Sparplan plan = dateien_.Laden(k);
    std::string notizen = dateien_.Notizen(k);
    Zeigen(plan);
    ergebnis_->Leeren();
    notizen_->Oeffnen(std::move(notizen));
}

void Sparrechner::Speicherung(int nummer) {
    dateien_.Speichern(static_cast<std::size_t>(nummer), Lesen(), notizen_->AlsDatei());
}

void Sparrechner::Berechnen() {
    std::optional<Ablehnung> inTabelle;
    Rechnen([&] {
        auto ablehnung = PlanRechnen();
        // A refusal that selects no tab belongs to the table of rate changes.
        if (!ablehnung || !ablehnung->Register.empty()) return ablehnung;
        inTabelle = std::move(ablehnung);
        return std::optional<Ablehnung>();
    });
    if (inTabelle) InTabelleAblehnen(*inTabelle);
}

std::optional<Ablehnung> Sparrechner::PlanRechnen() {
    Sparplan plan = Lesen();
    Sparergebnis ergebnis;
    ergebnis_->Leeren();
    Fortschrittsfenster fenster(this, "Die Lösung wird gesucht …", Fortschrittsfenster::Abbruch::moeglich,
                                "Berechnung");
    const Suchbeobachter beobachter = [zuhoerer = fenster.Zuhoerer()](std::size_t durchlaeufe) {
        constexpr std::size_t hoechstens = hoechstzahlRunden;
        return zuhoerer(std::min(durchlaeufe, hoechstens), hoechstens);
    };
    std::optional<Ablehnung> ablehnung;
    try {
        ablehnung = SparplanRechnen(ordner_, form_, plan, stand_, ergebnis, beobachter);
    } catch (const RechnungAbgebrochen&) {
        RegisterZeigen(felder_);
        return std::nullopt;
    } catch (...) {
        Zeigen(plan);
        throw;
    }
    Zeigen(plan);
    if (!ablehnung) ergebnis_->Zeigen(plan, std::move(ergebnis), stand_.kapital);
    return ablehnung;
}

void Sparrechner::InTabelleAblehnen(const Ablehnung& ablehnung) {
    RegisterZeigen(felder_);
    SeiteZeigen(zinstabelle_);
    MeldungZeigen(this, {.text = Anzeigetext(ablehnung.Meldung)});
    zinstabelle_->Fokussieren(ablehnung.Feld);
}

void Sparrechner::EffzinsBerechnen() {
    Ausfuehren([this] {
        const Sparplan plan = Lesen();
        Sparergebnis ergebnis = ergebnis_->Ergebnis();
        EffzinsRechnen(plan, ergebnis);
        SparreiheAblegen(ordner_, ergebnis);
        ergebnis_->EffzinsZeigen(plan, ergebnis.ezins);
        return std::nullopt;
    });
}

Sparberichtsdaten Sparrechner::Berichtsdaten() const {
    Sparberichtsdaten daten = ergebnis_->Berichtsdaten();
    daten.mandant = Projektname().toStdString();
    return daten;
}

void Sparrechner::TextZeigen() {
    const bool gelungen = Ausfuehren([this] {
        TextberichtSchreiben(ordner_, SpartextBilden(Berichtsdaten()));
        return std::nullopt;
    });
    if (gelungen) Form34(ordner_, this).exec();
}

void Sparrechner::GrafikZeigen() {
    const auto bilden = [this] { return Spardiagramm(form_, *ergebnis_->Ergebnis().lauf.loesung); };
    if (Zeichnen(bilden)) ergebnis_->KurzformWaehlen();
}

}  // namespace zinfolio
