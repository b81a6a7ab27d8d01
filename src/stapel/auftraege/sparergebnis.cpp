#include "stapel/auftraege/sparergebnis.h"

#include "stapel/auftraege/ergebnisse.h"

namespace zinfolio {
namespace {

void LoesungSchreiben(const Sparform& form, const Sparergebnis& gerechnet, JsonSchreiber& ergebnis) {
    switch (form.ziel) {
        case Sparziel::endkapital:
            return ergebnis.Feld("Endkapital", gerechnet.loesung);
        case Sparziel::sparrate:
            return ergebnis.Feld("Sparrate", gerechnet.loesung);
        case Sparziel::rendite:
            ergebnis.Feld("Nzins", gerechnet.Nzins);
            return ergebnis.Feld("Nominalzins", gerechnet.loesung);
        case Sparziel::anspardauer:
            return ergebnis.Feld("Enddatum", gerechnet.Enddatum);
        case Sparziel::anfangskapital:
            return ergebnis.Feld("Anfangskapital", gerechnet.loesung);
    }
}

}  // namespace

void SparergebnisSchreiben(const Sparform& form, const Sparergebnis& gerechnet, JsonSchreiber& ergebnis) {
    EndlichkeitPruefen(*gerechnet.lauf.loesung);
    StaffelzeilenSchreiben(*gerechnet.lauf.loesung, ergebnis);
    ergebnis.Feld("Gesamtzahlungssumme", gerechnet.summen.Gesamtzahlungssumme);
    ergebnis.Feld("EV", gerechnet.summen.Endvermögen);
    ergebnis.Feld("Geszins", gerechnet.summen.Gesamtzinsen);
    ergebnis.Feld("ezins", gerechnet.ezins);
    LoesungSchreiben(form, gerechnet, ergebnis);
}

}  // namespace zinfolio
