#include "stapel/auftraege/rechnungen.h"

#include <array>

namespace zinfolio {
namespace {

constexpr std::array rechnungsarten{
    Rechnungsart{"staffel", RechneStaffel},
    Rechnungsart{"reihe", RechneReihe},
    Rechnungsart{"reihenwert", RechneReihenwert},
    Rechnungsart{"tage", RechneTage},
    Rechnungsart{"periodenzinsen", RechnePeriodenzinsen},
    Rechnungsart{"datum", RechneDatum},
    Rechnungsart{"zahlformat", RechneZahlformat},
    Rechnungsart{"zahlungsreihe", RechneZahlungsreihe},
    Rechnungsart{"zinstermine", RechneZinstermine},
};

}  // namespace

std::span<const Rechnungsart> Rechnungsarten() {
    return rechnungsarten;
}

}  // namespace zinfolio
