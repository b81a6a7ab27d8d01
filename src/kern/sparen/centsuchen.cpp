// The two searches for an amount: savings rate and initial capital.

#include <algorithm>
#include <cmath>
#include <functional>
#include <string>

#include "kern/dates/rundung.h"
#include "kern/dates/tage30.h"
#include "kern/dates/zahl.h"
#include "kern/finmath/ratensparen.h"
#include "kern/sparen/meldungen.h"
#include "kern/sparen/schnelllauf.h"
#include "kern/sparen/sekantensuche.h"
#include "kern/sparen/spargang.h"

namespace zinfolio {
namespace {

constexpr double hoechsteAbweichung = 5;

/// What tells one of the two searches from the other.
struct Centsuche {
    /// What a pass tries.
    std::optional<double> Planprobe::*feld;
    /// The two start trials; the second may follow from the first.
    std::function<double()> erster;
    std::function<double(double erster)> zweiter;
    std::function<double(double x)> begrenzen;
    /// Hears each trial.
    std::function<void(double x)> merken;
};

std::optional<Ablehnung> Suchen(Spargang& gang, const Centsuche& suche) {
    const double ziel = Zahl(gang.plan.Vwert);
    std::optional<Schnelllauf> schnelllauf;
    const auto probe = [&](double x) {
        if (suche.merken) suche.merken(x);
        Planprobe ergebnis;
        ergebnis.*suche.feld = x;
        return ergebnis;
    };
    const auto abweichung = [&](double x) {
        const auto endstand = [&](const Planprobe& p) { return schnelllauf->Endstand(p); };
        return gang.versuche.Schnell(probe(x), endstand) - ziel;
    };
    Suchpunkt gefunden;
    gang.versuche.Suchen([&] {
        const double x0 = suche.erster();
        const double f0 = gang.versuche.Ganz(probe(x0)) - ziel;
        schnelllauf.emplace(gang.form, gang.plan, gang.ergebnis.lauf);
        const double x1 = suche.zweiter(x0);
        const double f1 = abweichung(x1);
        gefunden = CentsucheLaufen({abweichung, suche.begrenzen}, {{x0, f0}, {x1, f1}});
        gang.versuche.Festlegen(probe(gefunden.x));
    });
    gang.ergebnis.loesung = gefunden.x;
    if (!(std::fabs(gefunden.f) > hoechsteAbweichung)) return std::nullopt;
    return Ablehnung{std::string(meldung::keineLoesung), std::string(sparfeld::Check4.name),
                     std::string(register_::daten)};
}

/// The bounds act only while the plan has a dynamisation.
double Begrenzt(const Sparplan& plan, double x) {
    if (plan.Check2 != 1) return x;
    if (plan.Check4 == 1) x = std::min(x, Zahl(plan.MaxSparrate));
    if (plan.Check5 == 1) x = std::max(x, Zahl(plan.MinSparrate));
    return x;
}

/// The rate of the closed model, which knows no dates.
double RateImModell(const Sparplan& plan) {
    constexpr double ersatzzins = 0.1;
    const int tage = Tage30(Datum::Lesen(plan.ratdatum1), Datum::Lesen(plan.Enddatum));
    const double zins = Zahl(plan.Zins);
    Ratensparplan modell{.R = 0,
                         .J = static_cast<std::int16_t>(tage / 360),
                         .T = static_cast<std::int16_t>(tage % 360),
                         .i = zins == 0 ? ersatzzins : zins,
                         .m = static_cast<std::int16_t>(12 / Zahlungsmonate(plan)),
                         .K = Zahl(plan.AnfVermögen),
                         .Zahlungsmodus = zahlungsmodus::sofort,
                         .E = Zahl(plan.Vwert)};
    RatensparenRate(modell);
    return modell.R;
}

}  // namespace

std::optional<Ablehnung> SparrateSuchen(Spargang& gang) {
    constexpr double neunZehntel = 0.9;
    const Sparplan& plan = gang.plan;
    const auto zweiter = [&](double x0) {
        const double x = Begrenzt(plan, neunZehntel * x0);
        // A bound must not hold both trials at one place: there is no line through them.
        return x == x0 ? neunZehntel * x0 : x;
    };
    return Suchen(gang, {.feld = &Planprobe::rate,
                         .erster = [&] { return Begrenzt(plan, RateImModell(plan)); },
                         .zweiter = zweiter,
                         .begrenzen = [&](double x) { return Begrenzt(plan, x); },
                         .merken = {}});
}

std::optional<Ablehnung> AnfangskapitalSuchen(Spargang& gang) {
    constexpr double zweiterVersuch = 1000;
    return Suchen(gang, {.feld = &Planprobe::kapital,
                         .erster = [] { return 0.0; },
                         .zweiter = [](double) { return zweiterVersuch; },
                         .begrenzen = {},
                         .merken = [&](double x) { gang.stand.kapital = x; }});
}

}  // namespace zinfolio
