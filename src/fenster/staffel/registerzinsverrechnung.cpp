#include "fenster/staffel/registerzinsverrechnung.h"

#include <QVBoxLayout>
#include <array>

#include "fenster/ui/feldraster.h"

namespace zinfolio {
namespace {

constexpr std::array zinsverrechnungsfelder{
    Feld<&Kontoeinstellungen::Zinsverrechnungsart>({.name = "Combo1",
                                                    .titel = "&Zinsverrechnung",
                                                    .art = Feldart::liste,
                                                    .texte = zinsverrechnungsarten}),
    Feld<&Kontoeinstellungen::Kontodatum>({.name = "Kontodatum",
                                           .titel = "Da&tum für Kontoabschluss/-berechnung",
                                           .filter = Tastenfilter::datum,
                                           .platzhalter = "xx.yy.zzzz",
                                           .kalender = "Kontokalender"}),
    Feld<&Kontoeinstellungen::Verzinsungsmethode>({.name = "Combo3",
                                                   .titel = "&Verzinsungsmethode",
                                                   .art = Feldart::liste,
                                                   .texte = verzinsungsmethoden}),
};

}  // namespace

RegisterZinsverrechnung::RegisterZinsverrechnung(QWidget* eltern) : QWidget(eltern), felder_(this) {
    setObjectName("Frame3_Zinsverrechnung");
    auto* raster = new Feldraster;
    felder_.Anlegen(zinsverrechnungsfelder, *raster);
    felder_.Zeigen({});
    connect(&felder_.Tafel(), &Feldtafel::bearbeitet, this, &RegisterZinsverrechnung::geaendert);
    auto* anordnung = new QVBoxLayout(this);
    auto* links = new QHBoxLayout;
    links->addLayout(raster);
    links->addStretch();
    anordnung->addLayout(links);
    anordnung->addStretch();
}

Kontoeinstellungen RegisterZinsverrechnung::Lesen() const {
    return felder_.Lesen();
}

void RegisterZinsverrechnung::Zeigen(const Kontoeinstellungswerte& werte) {
    Kontoeinstellungen einstellungen = Lesen();
    if (werte.Zinsverrechnungsart) einstellungen.Zinsverrechnungsart = *werte.Zinsverrechnungsart;
    if (werte.Kontodatum) einstellungen.Kontodatum = *werte.Kontodatum;
    if (werte.Verzinsungsmethode) einstellungen.Verzinsungsmethode = *werte.Verzinsungsmethode;
    felder_.Zeigen(einstellungen);
}

void RegisterZinsverrechnung::Betreten() {
    felder_.Fokussieren("Combo1");
}

}  // namespace zinfolio
