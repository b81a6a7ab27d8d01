#pragma once
// Plans that the tests start from.

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "kern/sparen/sparrechnung.h"

namespace zinfolio {

inline const Sparform& Form(Sparziel ziel) {
    return SparformVon(ziel);
}

/// 1000 at the start of 2007, 100 each month from February on, 3 percent, one settlement a year; every form
/// has what it needs.
inline Sparplan Plan2007() {
    Sparplan plan;
    plan.AnfVermögen = "1000";
    plan.Anfdatum = "01.01.2007";
    plan.ratdatum1 = "01.02.2007";
    plan.Betrag = "100";
    plan.Enddatum = "31.12.2007";
    plan.Zins = "3";
    plan.Vwert = "5000";
    plan.Vermendwert = "2200";
    return plan;
}

/// The rows of rates that a plan generates, without the initial capital: dates and amounts.
inline std::vector<std::string> Raten(const Sparplan& plan, Sparziel ziel = Sparziel::endkapital,
                                      const Planprobe& probe = {}) {
    std::vector<Staffelsatz> saetze;
    RatenErzeugen(Form(ziel), plan, probe, saetze);
    std::vector<std::string> raten;
    for (std::size_t i = 1; i < saetze.size(); ++i) {
        std::string betrag = std::to_string(saetze[i].Zahlbetrag);
        betrag.resize(betrag.size() - 4);  // two decimals
        raten.push_back(std::string(saetze[i].Satzdatum.Getrimmt()) + " " + betrag);
    }
    return raten;
}

/// Calculates and gives the words of the refusal, "" for none.
inline std::string Rechne(Sparziel ziel, Sparplan plan, Sparergebnis& ergebnis) {
    Sparstand stand;
    const auto ablehnung = SparplanRechnen(Form(ziel), plan, stand, ergebnis);
    return ablehnung ? ablehnung->Meldung : "";
}

/// The result of a plan that has one.
inline Sparergebnis Geloest(Sparziel ziel, const Sparplan& plan) {
    Sparergebnis ergebnis;
    EXPECT_EQ(Rechne(ziel, plan, ergebnis), "");
    return ergebnis;
}

}  // namespace zinfolio
