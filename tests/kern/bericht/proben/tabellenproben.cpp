#include <stdexcept>

#include "kern/bericht/proben/proben.h"
#include "kern/tabellen/faktorbericht.h"

namespace zinfolio {
namespace {

constexpr Faktorwahl wahl{Finanzfaktor::EWF, Rentenrhythmus::vierteljaehrlich,
                          Rentenfaelligkeit::vorschuessig};

/// From 4 percent on in halves, over so many years.
Berichtsprobe Tabelle(const char* bis, std::size_t jahre) {
    auto tabelle = std::make_shared<Faktortabelle>();
    if (FaktortabelleRechnen({wahl, Schrittweite::halb, "4", bis, "1", std::to_string(jahre)}, *tabelle))
        throw std::runtime_error("Die Probe wurde abgelehnt.");
    return {FaktortabellenberichtBilden(wahl, tabelle), FaktortabelleZeigen(tabelle)};
}

/// As many rates as the header takes.
Berichtsprobe Faktoren(std::size_t jahre) {
    return Tabelle("6", jahre);
}

/// One more.
Berichtsprobe FaktorenOhneKopf(std::size_t jahre) {
    return Tabelle("6,5", jahre);
}

/// It has no table.
Berichtsprobe Einzeln(std::size_t jahre) {
    const Einzelfaktoreingabe eingabe{wahl, "4", std::to_string(jahre), "1000"};
    Einzelfaktor ergebnis;
    if (EinzelfaktorRechnen(eingabe, ergebnis)) throw std::runtime_error("Die Probe wurde abgelehnt.");
    return {EinzelfaktorberichtBilden(eingabe, ergebnis), {}};
}

}  // namespace

std::vector<Probenart> Tabellenproben() {
    return {{"faktoren", Faktoren}, {"faktoren-ohne-kopf", FaktorenOhneKopf}, {"einzelfaktor", Einzeln}};
}

}  // namespace zinfolio
