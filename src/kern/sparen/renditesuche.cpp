#include <cmath>
#include <string>

#include "kern/dates/zahl.h"
#include "kern/dates/zahlformat.h"
#include "kern/finmath/herleitung.h"
#include "kern/finmath/reiheauswerten.h"
#include "kern/sparen/meldungen.h"
#include "kern/sparen/schnelllauf.h"
#include "kern/sparen/sekantensuche.h"
#include "kern/sparen/spargang.h"
#include "kern/staffel/reiheausloesung.h"

namespace zinfolio {
namespace {

constexpr double zweiterZins = 0.98;
constexpr double gleicheEndstaende = 0.01;
constexpr int hoechstzahlSchritte = 15;
/// The part of the target by which the account may miss it.
constexpr double toleranzteiler = 100'000;
constexpr Zahlmuster zinsmuster = Zahlmuster::Lesen("###,#0.00000");

Ablehnung KeineZulaessigeLoesung() {
    return {std::string(meldung::keineZulaessigeLoesung), "", std::string(register_::daten)};
}

/// The text of the effective rate of the payments and the end value; empty where there is none.
std::string EffektivzinsDerZahlungen(Spargang& gang) {
    Sparergebnis& ergebnis = gang.ergebnis;
    RatenErzeugen(gang.form, gang.plan, {.mitEndvermoegen = true}, ergebnis.lauf.zahlungen.emplace());
    ergebnis.Lösungszahlungsreihe = ReiheAusLoesungOhneSchluss(*ergebnis.lauf.zahlungen);
    return ReiheAuswerten(*ergebnis.Lösungszahlungsreihe, static_cast<Effektivmethode>(gang.plan.Combo5 + 1))
        .Effektivzins;
}

/// The nominal rate at which the account ends at the target; how far it stays from it is left in the stand.
double NominalzinsSuchen(Spargang& gang, double startzins, double ziel) {
    double& f1 = gang.stand.abweichung;
    std::optional<Schnelllauf> schnelllauf;
    const auto abweichung = [&](double zins) {
        const auto endstand = [&](const Planprobe& p) { return schnelllauf->Endstand(p); };
        return gang.versuche.Schnell({.zins = zins}, endstand) - ziel;
    };
    Sekante sekante{{startzins, 0}, {startzins, 0}};
    gang.versuche.Suchen([&] {
        sekante.alt.f = gang.versuche.Ganz({.zins = startzins}) - ziel;
        if (startzins == 0) return;
        schnelllauf.emplace(gang.form, gang.plan, gang.ergebnis.lauf);
        const double zweiter = zweiterZins * startzins;
        sekante.neu = {zweiter, abweichung(zweiter)};
        f1 = sekante.neu.f;
        for (int schritt = 1;; ++schritt) {
            const double zins = Sekantenschritt(sekante);
            sekante = {sekante.neu, {zins, abweichung(zins)}};
            f1 = sekante.neu.f;
            if (std::fabs(f1 - sekante.alt.f) < gleicheEndstaende || schritt == hoechstzahlSchritte) return;
        }
    });
    return sekante.neu.x;
}

}  // namespace

std::optional<Ablehnung> RenditeSuchen(Spargang& gang) {
    const std::string effektivzins = EffektivzinsDerZahlungen(gang);
    if (effektivzins.empty()) return KeineZulaessigeLoesung();
    const double ziel = Zahl(gang.plan.Vermendwert);
    const double nominalzins = NominalzinsSuchen(gang, Zahl(effektivzins), ziel);
    if (std::fabs(gang.stand.abweichung) > std::fabs(ziel) / toleranzteiler) return KeineZulaessigeLoesung();
    gang.ergebnis.ezins = Effektivzinsanzeige(effektivzins);
    gang.ergebnis.Nzins = Format(nominalzins, zinsmuster);
    gang.ergebnis.loesung = nominalzins;
    return std::nullopt;
}

}  // namespace zinfolio
