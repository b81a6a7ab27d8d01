#include "fenster/tabellen/form14005.h"

#include "fenster/rechner/werteablage.h"
#include "fenster/tabellen/registereinzelfaktor.h"
#include "fenster/tabellen/registertabelle.h"
#include "fenster/ui/geschuetzt.h"
#include "kern/tabellen/faktorbericht.h"
#include "kern/tabellen/fintabellen.h"

namespace zinfolio {

Form14005::Form14005(const std::filesystem::path& arbeitsordner)
    : Rechner({.name = "Form14005", .titel = "Tabellen aus der Finanzmathematik", .diagramme = {}},
              arbeitsordner),
      arbeitsordner_(arbeitsordner),
      tabelle_(new RegisterTabelle(this)),
      einzeln_(new RegisterEinzelfaktor(this)) {
    Einrichten({.register_ = {{.seite = tabelle_, .titel = "Tabelle"},
                              {.seite = einzeln_, .titel = "Einzelberechnung"}},
                .ablage = new Werteablage(
                    *this, {.taste = "Command3",
                            .nichtGespeichert = "Die Angaben konnten nicht gespeichert werden.",
                            .laden = [this] { Laden(); },
                            .speichern = [this] { Speichern(); }}),
                .befehle = {{"berechnen", "berechnen", "&Berechnen", "Tabelle oder Ergebnis berechnen",
                             QKeySequence(Qt::Key_F9), [this] { Berechnen(); }, Befehlszeile::Ort::leiste}}});
    Verdrahten();
}

void Form14005::Verdrahten() {
    connect(tabelle_, &RegisterTabelle::geaendert, this, [this] { Geaendert(); });
    connect(einzeln_, &RegisterEinzelfaktor::geaendert, this, [this] { Geaendert(); });
    connect(tabelle_, &RegisterTabelle::berechnenVerlangt, this, &Form14005::Berechnen);
    connect(einzeln_, &RegisterEinzelfaktor::berechnenVerlangt, this, &Form14005::Berechnen);
    connect(tabelle_, &RegisterTabelle::druckenVerlangt, this, &Form14005::TabelleDrucken);
    connect(einzeln_, &RegisterEinzelfaktor::druckenVerlangt, this, [this] {
        Drucken([this] { return EinzelfaktorberichtBilden(einzeln_->Lesen(), einzeln_->Gezeigtes()); });
    });
}

void Form14005::TabelleDrucken() {
    if (!Ausfuehren([this] { return FaktortabellenberichtPruefen(*tabelle_->Gezeigte()); })) return;
    Drucken([this] { return FaktortabellenberichtBilden(tabelle_->Lesen().wahl, tabelle_->Gezeigte()); });
}

void Form14005::Laden() {
    // A damaged file must not keep the form from opening: it is told, and the defaults hold.
    Geschuetzt(this, [this] {
        const Fintabellen eingabe = FintabellenLesen(arbeitsordner_);
        tabelle_->Zeigen(eingabe.tabelle);
        einzeln_->Zeigen(eingabe.einzeln);
    });
}

void Form14005::Speichern() {
    FintabellenSchreiben(arbeitsordner_, {tabelle_->Lesen(), einzeln_->Lesen()});
}

void Form14005::Berechnen() {
    Ausfuehren([this] { return RegisterGewaehlt(einzeln_) ? einzeln_->Berechnen() : tabelle_->Berechnen(); });
}

}  // namespace zinfolio
