#include "kern/finmath/ratensparen.h"

#include <cmath>
#include <limits>

#include "kern/dates/rundung.h"
#include "kern/grund/rechenfehler.h"

namespace zinfolio {
namespace {

constexpr int jahrestage = 360;
constexpr int hoechstrunden = 100000;

void JahreDazu(Ratensparplan& plan, int jahre) {
    const int summe = plan.J + jahre;
    if (summe > std::numeric_limits<std::int16_t>::max() || summe < std::numeric_limits<std::int16_t>::min())
        throw Rechenfehler("Mehr Jahre, als die Laufzeit haben kann.");
    plan.J = static_cast<std::int16_t>(summe);
}

void LaufzeitNormieren(Ratensparplan& plan) {
    const int jahre = plan.T / jahrestage;
    JahreDazu(plan, jahre);
    plan.T = static_cast<std::int16_t>(plan.T - jahrestage * jahre);
}

bool SofortFaellig(const Ratensparplan& plan) {
    return plan.Zahlungsmodus == zahlungsmodus::sofort;
}

/// S: what the payments of a full year are worth at its end.
double Jahressumme(const Ratensparplan& plan, double zins) {
    const int erste = SofortFaellig(plan) ? 1 : 0;
    double summe = 0;
    for (int k = erste; k < erste + plan.m; ++k) {
        const double tage = jahrestage - (static_cast<double>(plan.m - k) / plan.m) * jahrestage;
        summe += plan.R * (1 + zins * tage / jahrestage);
    }
    return summe;
}

/// C: the payments of the part-year.
double Teiljahreszahlungen(const Ratensparplan& plan) {
    if (plan.T == 0) return 0;
    const double intervalle = plan.T / (static_cast<double>(jahrestage) / plan.m);
    return SofortFaellig(plan) ? std::ceil(intervalle) : std::trunc(intervalle);
}

/// W: what the payments of the part-year are worth at its end.
double Teiljahressumme(const Ratensparplan& plan, double zins) {
    const int intervall = jahrestage / plan.m;
    const int erste = SofortFaellig(plan) ? 0 : 1;
    const double zahlungen = Teiljahreszahlungen(plan);
    double summe = 0;
    for (int k = 0; k < zahlungen; ++k) {
        const double tage = plan.T - intervall * (k + erste);
        summe += plan.R + plan.R * zins * tage / jahrestage;
    }
    return summe;
}

/// The end value before its rounding, `zins` as a fraction of 1. REQUIRES: the period is normalised.
double Modellwert(const Ratensparplan& plan, double zins) {
    const double A = std::pow(1 + zins, static_cast<double>(plan.J));
    const double D = A - 1 == 0 && zins * A == 0 ? 0 : (A - 1) / (zins * A);
    const double E = A * (plan.K + D * Jahressumme(plan, zins));
    if (plan.T == 0) return Endlich(E);
    return Endlich(Teiljahressumme(plan, zins) + (1 + zins * plan.T / jahrestage) * E);
}

double GerundeterModellwert(const Ratensparplan& plan, double zins) {
    return Endlich(RundeKaufmaennisch(Modellwert(plan, zins), 2));
}

double Startrate(const Ratensparplan& plan, double zins) {
    const double A = std::pow(1 + zins, static_cast<double>(plan.J));
    const double zuwachs = A - 1 == 0 ? 0.0001 : A - 1;
    return Endlich((plan.E / A) * (zins * A / zuwachs) / plan.m);
}

/// The rate as a fraction of 1. REQUIRES: the period is normalised.
double Renditesuche(const Ratensparplan& plan) {
    double zins = 0.12;
    double schritt = 0.1;
    double vorher = 0;
    bool eingeklammert = false;
    for (int runde = 0; runde < hoechstrunden; ++runde) {
        const double d = GerundeterModellwert(plan, zins) - plan.E;
        if (d == 0) return zins;
        eingeklammert = eingeklammert || (vorher < 0 && d > 0) || (vorher > 0 && d < 0);
        if (eingeklammert) schritt /= 2;
        zins += d < 0 ? schritt : -schritt;
        if (schritt < 0.0001) return zins;
        vorher = d;
    }
    throw Rechenfehler("Die Suche der Rendite endet nicht.");
}

}  // namespace

void RatensparenEndwert(Ratensparplan& plan) {
    LaufzeitNormieren(plan);
    plan.E = GerundeterModellwert(plan, plan.i / 100);
}

void RatensparenRate(Ratensparplan& plan) {
    const double zins = plan.i / 100;
    LaufzeitNormieren(plan);
    Ratensparplan versuch = plan;
    versuch.R = Startrate(plan, zins);
    double schritt = 0;
    double aenderung = 0;
    bool ersteRunde = true;
    do {
        const double d = plan.E - Modellwert(versuch, zins);
        schritt = ersteRunde ? Endlich(d / (plan.m * static_cast<double>(plan.J) + Teiljahreszahlungen(plan)))
                             : schritt / 2;
        ersteRunde = false;
        const double vorher = versuch.R;
        versuch.R = d < 0 ? versuch.R + schritt : versuch.R - schritt;
        aenderung = std::fabs(versuch.R - vorher);
    } while (aenderung >= 0.0001);
    plan.R = Endlich(RundeKaufmaennisch(versuch.R, 2));
}

void RatensparenLaufzeit(Ratensparplan& plan) {
    if (plan.R == 0 && plan.E == 0) return;
    const double zins = (plan.i == 0 ? 0.00001 : plan.i) / 100;
    plan.J = 1;
    plan.T = 0;
    bool tageweise = false;
    bool tageDazu = false;
    for (int runde = 0; runde < hoechstrunden; ++runde) {
        LaufzeitNormieren(plan);
        const double fehlt = plan.E - GerundeterModellwert(plan, zins);
        if (fehlt == 0) return;
        if (!tageweise) {
            JahreDazu(plan, fehlt > 0 ? 1 : -1);
            tageweise = fehlt < 0;
            plan.T = tageweise ? 1 : 0;
        } else if (fehlt > 0) {
            ++plan.T;
            tageDazu = true;
        } else {
            if (!tageDazu) --plan.T;
            return;
        }
    }
    throw Rechenfehler("Die Suche der Laufzeit endet nicht.");
}

void RatensparenRendite(Ratensparplan& plan) {
    if (plan.R == 0 && plan.K == 0 && plan.E == 0) {
        plan.i = 0;
        return;
    }
    LaufzeitNormieren(plan);
    plan.i = Renditesuche(plan) * 100;
}

}  // namespace zinfolio
