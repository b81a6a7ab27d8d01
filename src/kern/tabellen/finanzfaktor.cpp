#include "kern/tabellen/finanzfaktor.h"

#include <cmath>

#include "kern/grund/rechenfehler.h"

namespace zinfolio {
namespace {

/// P of the formulas.
double Jahreswert(const Faktorwahl& wahl, double zins) {
    return Endlich(Rentenkonstante(wahl.rhythmus, wahl.faelligkeit) + Zahlungszahl(wahl.rhythmus) / zins);
}

double Rentenfaktor(const Faktorwahl& wahl, double F, double P) {
    switch (wahl.faktor) {
        case Finanzfaktor::EWF:
            return (F - 1) * P;
        case Finanzfaktor::DSF:
            return (F - 1) * (1 / F) * P;
        case Finanzfaktor::KWF:
            return F / (F - 1) * (1 / P);
        default:
            return 1 / (F - 1) * (1 / P);
    }
}

}  // namespace

double Aufzinsungsfaktor(double prozent, double jahre) {
    return Endlich(std::pow(1 + prozent / 100, jahre));
}

double Faktorwert(const Faktorwahl& wahl, double prozent, double jahre) {
    const double F = Aufzinsungsfaktor(prozent, jahre);
    if (wahl.faktor == Finanzfaktor::AuF) return F;
    if (wahl.faktor == Finanzfaktor::AbF) return Endlich(1 / F);
    return Endlich(Rentenfaktor(wahl, F, Jahreswert(wahl, prozent / 100)));
}

}  // namespace zinfolio
