#include "fenster/sparen/sparrechner.h"

#include <QBoxLayout>
#include <algorithm>
#include <memory>

#include "fenster/ausgabe/form34.h"
#include "fenster/rechner/registerberechnung.h"
#include "fenster/rechner/registernotizen.h"
#include "fenster/rechner/suchzeile.h"
#include "fenster/sparen/sparfelder.h"
#include "fenster/sparen/zinstabellenseite.h"
#include "fenster/tabellen/kurzfenster.h"
#include "fenster/ui/geschuetzt.h"
#include "fenster/ui/meldungsfenster.h"
#include "kern/dates/zahlformat.h"
#include "kern/sparen/sekantensuche.h"
#include "kern/sparen/spardateien.h"

namespace zinfolio {
namespace {

/// The figure of what a form solves for; the end capital is a total already.
std::vector<Kennzahlzeile> Loesungszeile(Sparziel ziel) {
    switch (ziel) {
        case Sparziel::sparrate:
            return {{"Loesung", "Sparrate"}};
        case Sparziel::rendite:
            return {{"Nzins", "Nominalzins %"}};
        case Sparziel::anspardauer:
            return {{"Loesung", "Enddatum"}};
        case Sparziel::anfangskapital:
            return {{"Loesung", "Anfangskapital"}};
        case Sparziel::endkapital:
            break;
    }
    return {};
}

std::string Loesungstext(Sparziel ziel, const Sparergebnis& ergebnis) {
    if (ziel == Sparziel::rendite) return ergebnis.Nzins;
    return ziel == Sparziel::anspardauer ? ergebnis.Enddatum : Format(ergebnis.loesung, betragsmuster);
}

/// The line of a search, above the table of the statement.
Suchzeile* NeueSuchzeile(QWidget* auszug) {
    auto* zeile = new Suchzeile("Die Lösung wird gesucht …", hoechstzahlRunden, auszug);
    auto* anordnung = static_cast<QBoxLayout*>(auszug->layout());
    anordnung->insertWidget(anordnung->count() - 1, zeile);
    return zeile;
}

/// What a plan's account was settled by; an end that was searched for is the one that was found.
Kontoeinstellungen Grundlage(const Sparplan& plan, const Sparergebnis& ergebnis) {
    return {static_cast<Zinsverrechnungsart>(plan.Combo4),
            ergebnis.Enddatum.empty() ? plan.Enddatum : ergebnis.Enddatum,
            static_cast<Verzinsungsmethode>(plan.Combo2)};
}

}  // namespace

/// A plan under calculation: what was asked, and what becomes of it.
struct Sparrechnung {
    Sparplan gefragt;
    Sparplan plan;
    Sparstand stand;
    Sparergebnis ergebnis{};
    std::optional<Ablehnung> ablehnung{};
};

Sparrechner::Sparrechner(const Sparform& form, const std::filesystem::path& arbeitsordner)
    : Rechner(Art(form), arbeitsordner),
      form_(form),
      ordner_(arbeitsordner),
      dateien_(form, arbeitsordner),
      felder_(new Sparfelder(form, this)),
      auszug_(NeuerAuszug()),
      suche_(NeueSuchzeile(auszug_)),
      notizen_(new RegisterNotizen("RT", this)) {
    if (form.zinstabelle) {
        zinstabelle_ = new Zinstabellenseite(this);
        SeiteAnlegen(zinstabelle_);
    }
    Verdrahten();
    Einrichten({.register_ = Registerzeilen(),
                .ablage = new Planablage(*this, Plaene()),
                .befehle = {{"Auswertungen", "berechnen", "&Berechnen", "Den Sparplan berechnen",
                             QKeySequence(Qt::Key_F9), [this] { RegisterWaehlen(auszug_); },
                             Befehlszeile::Ort::leiste}}});
    felder_->Anspringen();
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

RegisterBerechnung* Sparrechner::NeuerAuszug() {
    // The form with the simple change prints as plain text too.
    const bool einfach = form_.dynamik == Dynamik::einfach;
    Auszugsart art{.rahmen = "Frame(2)",
                   .ansicht = "Combo6",
                   .ansichttitel = "&Kontoanzeige",
                   .methode = "Combo5",
                   .rechnen = "Effzins",
                   .drucken = "Command8",
                   .druckentext = einfach ? "Dru&cken 1" : "Dru&cken",
                   .grafik = "Command4",
                   .effektivtitel = "Label12",
                   .regel = Sparansichtsregel(form_),
                   .kennzahlen = Loesungszeile(form_.ziel)};
    if (einfach) art.tasten.push_back({"Drucken", "Drucken &2", [this] { TextZeigen(); }});
    return new RegisterBerechnung(std::move(art), this);
}

std::vector<Registerzeile> Sparrechner::Registerzeilen() {
    std::vector<Registerzeile> zeilen{
        {.seite = felder_, .titel = "Daten", .eingabe = true},
        {.seite = auszug_, .titel = "Berechnen", .betreten = [this] { Berechnen(); }},
        {.seite = notizen_, .titel = "Notizen", .betreten = [this] { notizen_->setFocus(); }},
    };
    // The tab has no page of its own: it opens another window and leads back to the first tab.
    if (!form_.kurzrechner.empty())
        zeilen.push_back({.seite = new QWidget(this),
                          .titel = "Kurzberechnung (Einfachversion)",
                          .betreten = [this] { KurzrechnerOeffnen(); }});
    return zeilen;
}

void Sparrechner::KurzrechnerOeffnen() {
    RegisterZeigen(felder_);
    const auto kurzer = std::ranges::find(AlleKurzrechner(), form_.kurzrechner, &Kurzrechner::name);
    KurzrechnerZeigen(kurzer->form, *this, ordner_);
}

Planart Sparrechner::Plaene() {
    return {
        .nichtGespeichert = "Der Sparplan konnte nicht gespeichert werden.",
        .verzeichnisLesen =
            [this] {
                Planindex index;
                if (!Geschuetzt(this, [&] { index = dateien_.IndexLesen(); })) index = dateien_.IndexRetten();
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
    connect(&felder_->Tafel(), &Feldtafel::bearbeitet, suche_, &Suchzeile::Aufgeben);
    connect(suche_, &Suchzeile::abgebrochen, this, [this] { RegisterZeigen(felder_); });
    connect(felder_, &Sparfelder::berechnenVerlangt, this, [this] { RegisterWaehlen(auszug_); });
    connect(auszug_, &RegisterBerechnung::effektivzinsVerlangt, this, &Sparrechner::EffzinsBerechnen);
    connect(auszug_, &RegisterBerechnung::methodeGewaehlt, this, [this] {
        const bool gesucht = suche_->Laeuft();
        Geaendert();
        suche_->Aufgeben();
        if (gesucht) return Berechnen();
        // One form waits for its button.
        if (effzinsGezeigt_ && form_.dynamik != Dynamik::einfach) EffzinsBerechnen();
    });
    connect(auszug_, &RegisterBerechnung::druckenVerlangt, this,
            [this] { Drucken([this] { return SparberichtBilden(Berichtsdaten()); }); });
    connect(auszug_, &RegisterBerechnung::grafikVerlangt, this, &Sparrechner::GrafikZeigen);
    if (!zinstabelle_) return;
    connect(felder_, &Sparfelder::zinstabelleVerlangt, this, [this] {
        SeiteZeigen(zinstabelle_);
        zinstabelle_->Fokussieren(Zinszeilenname(0, Zinsspalte::datum));
    });
    connect(zinstabelle_, &Zinstabellenseite::geaendert, this, [this] { Geaendert(); });
    connect(zinstabelle_, &Zinstabellenseite::geaendert, suche_, &Suchzeile::Aufgeben);
    connect(zinstabelle_, &Zinstabellenseite::markiert, felder_, &Sparfelder::MarkeZeigen);
    connect(zinstabelle_, &Zinstabellenseite::zurueck, this, [this] { RegisterZeigen(felder_); });
}

Sparplan Sparrechner::Lesen() const {
    Sparplan plan = felder_->Lesen({});
    plan.Combo5 = static_cast<std::int16_t>(static_cast<int>(auszug_->GewaehlteEffektivmethode()) - 1);
    if (zinstabelle_) zinstabelle_->Lesen(plan);
    return plan;
}

void Sparrechner::Zeigen(const Sparplan& plan) {
    felder_->Zeigen(plan);
    auszug_->EffektivmethodeWaehlen(static_cast<Effektivmethode>(plan.Combo5 + 1));
    if (zinstabelle_) zinstabelle_->Zeigen(plan);
}

void Sparrechner::PlanLaden(int nummer) {
    const auto k = static_cast<std::size_t>(nummer);
    const Sparplan plan = dateien_.Laden(k);
    std::string notizen = dateien_.Notizen(k);
    Zeigen(plan);
    ErgebnisLeeren();
    notizen_->Oeffnen(std::move(notizen));
}

void Sparrechner::Speicherung(int nummer) {
    dateien_.Speichern(static_cast<std::size_t>(nummer), Lesen(), notizen_->AlsDatei());
}

void Sparrechner::Berechnen() {
    if (suche_->Laeuft()) return;
    ErgebnisLeeren();
    const Sparplan gefragt = Lesen();
    auto rechnung = std::make_shared<Sparrechnung>(Sparrechnung{gefragt, gefragt, stand_});
    suche_->Rechnen(
        [rechnung, &form = form_](const Suchbeobachter& beobachter) {
            rechnung->ablehnung =
                SparplanRechnen(form, rechnung->plan, rechnung->stand, rechnung->ergebnis, beobachter);
        },
        [this, rechnung](const std::exception_ptr& fehler) { Abschliessen(*rechnung, fehler); });
}

void Sparrechner::Abschliessen(Sparrechnung& rechnung, const std::exception_ptr& fehler) {
    // The table of rate changes may have ordered itself in the meantime.
    if (Lesen() != rechnung.gefragt) return Berechnen();
    std::optional<Ablehnung> inTabelle;
    Rechnen([&]() -> std::optional<Ablehnung> {
        stand_ = rechnung.stand;
        Zeigen(rechnung.plan);
        SparergebnisAblegen(ordner_, form_, rechnung.ergebnis);
        if (fehler) std::rethrow_exception(fehler);
        if (!rechnung.ablehnung) ErgebnisZeigen(rechnung.plan, std::move(rechnung.ergebnis));
        // A refusal that selects no tab belongs to the table of rate changes.
        if (!rechnung.ablehnung || !rechnung.ablehnung->Register.empty()) return rechnung.ablehnung;
        inTabelle = rechnung.ablehnung;
        return std::nullopt;
    });
    if (inTabelle) InTabelleAblehnen(*inTabelle);
}

void Sparrechner::ErgebnisZeigen(const Sparplan& plan, Sparergebnis ergebnis) {
    ergebnis_ = std::move(ergebnis);
    gerechnet_ = plan;
    auszug_->KurzformWaehlen();
    auszug_->Zeigen(*ergebnis_.lauf.loesung, Grundlage(plan, ergebnis_));
    for (const Kennzahlzeile& zeile : Loesungszeile(form_.ziel))
        auszug_->KennzahlZeigen(zeile.name, Loesungstext(form_.ziel, ergebnis_));
    if (form_.effektivzinsMitErgebnis || form_.ziel == Sparziel::rendite) EffzinsZeigen(plan);
}

void Sparrechner::EffzinsZeigen(const Sparplan& plan) {
    effzinsGezeigt_ = true;
    gerechnet_.Combo5 = plan.Combo5;
    auszug_->EffektivzinsZeigen(ergebnis_.ezins, static_cast<Effektivmethode>(plan.Combo5 + 1));
}

void Sparrechner::ErgebnisLeeren() {
    suche_->Aufgeben();
    effzinsGezeigt_ = false;
    auszug_->Leeren();
    auszug_->EffektivzinsVerbergen();
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
        EffzinsRechnen(plan, ergebnis_);
        SparreiheAblegen(ordner_, ergebnis_);
        EffzinsZeigen(plan);
        return std::nullopt;
    });
}

Sparberichtsdaten Sparrechner::Berichtsdaten() const {
    const Kontoberichtsdaten auszug = auszug_->Berichtsdaten();
    Sparberichtsdaten daten{.form = &form_,
                            .mandant = Projektname().toStdString(),
                            .plan = gerechnet_,
                            .kapital = ergebnis_.loesung,
                            .Nzins = ergebnis_.Nzins,
                            .loesung = auszug.loesung,
                            .ansicht = auszug.ansicht};
    if (effzinsGezeigt_) daten.ezins = ergebnis_.ezins;
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
    const auto bilden = [this] { return Spardiagramm(form_, auszug_->Loesung()); };
    if (Zeichnen(bilden)) auszug_->KurzformWaehlen();
}

}  // namespace zinfolio
