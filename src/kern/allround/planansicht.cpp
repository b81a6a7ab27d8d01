#include "kern/allround/planansicht.h"

#include <algorithm>

#include "kern/dates/zahl.h"
#include "kern/dates/zahlformat.h"

namespace zinfolio {
namespace {

std::string Zinskopf(double nominalzins) {
    std::string zins = Zahltext(nominalzins);
    std::ranges::replace(zins, ',', '.');
    return "Zinsen nominal  " + zins + " %";
}

std::string Vorgang(const Staffelsatz& satz) {
    if (satz.Zahlungsart == zahlungsart::zinstermin) return "Zinstermin";
    return satz.Zahlbetrag < 0 ? "Zahlung" : "Auszahlung";
}

}  // namespace

Zellentabelle Zinsstaffelanzeige2(std::span<const Staffelsatz> kurztableau, double nominalzins) {
    Zellentabelle tabelle({"Datum", "Auszahlung", "Zahlungen", Zinskopf(nominalzins), "Kontostand"});
    tabelle.Reservieren(kurztableau.size());
    for (const Staffelsatz& satz : kurztableau) {
        tabelle.Anhaengen(std::array{SatzdatumText(satz), Format(satz.kondition.Guthabenlinie, betragsmuster),
                                     Format(satz.Zahlbetrag, betragsmuster),
                                     Format(-satz.Zinsgutschrift, betragsmuster),
                                     Format(-satz.kondition.Kreditlinie, betragsmuster)});
    }
    return tabelle;
}

Zellentabelle Zinsstaffelanzeige1(std::span<const Staffelsatz> tableau, double nominalzins) {
    Zellentabelle tabelle({"Datum", "Vorgang", "Zahlungsbetrag", Zinskopf(nominalzins), "Kontostand"});
    tabelle.Reservieren(tableau.size());
    for (const Staffelsatz& satz : tableau) {
        if (satz.Zahlungsart == zahlungsart::kondition) continue;
        tabelle.Anhaengen(
            std::array{SatzdatumText(satz), Vorgang(satz), Format(satz.Zahlbetrag, betragsmuster),
                       Format(-satz.Zinsgutschrift, betragsmuster), Format(-satz.Kontostand, betragsmuster)});
    }
    return tabelle;
}

}  // namespace zinfolio
