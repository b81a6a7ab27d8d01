#include "finmath/herleitung.h"

#include <stdexcept>

#include "dates/textteile.h"
#include "dates/zahl.h"
#include "dates/zahlformat.h"
#include "finmath/bewertung.h"

namespace zinfolio {
namespace {

constexpr Zahlmuster anzeigemuster = Zahlmuster::Lesen("###,##0.00000");

std::string Datumszelle(const Ergebnissatz& satz) {
    return std::string(satz.Ergebnisdatum.Getrimmt());
}

std::string Faktorzelle(const Ergebnissatz& satz) {
    return Zahltext(satz.Faktor);
}

template <double Ergebnissatz::*Feld>
std::string Betragszelle(const Ergebnissatz& satz) {
    return Format(satz.*Feld, betragsmuster);
}

constexpr std::array<Herleitungszelle, 6> zellen{
    Datumszelle,
    Betragszelle<&Ergebnissatz::Ergebnisbetrag>,
    Faktorzelle,
    Betragszelle<&Ergebnissatz::Zeilenwert>,
    Betragszelle<&Ergebnissatz::Summenwert>,
    Betragszelle<&Ergebnissatz::Summenbetrag>,
};

}  // namespace

std::span<const Herleitungszelle> Herleitungszellen() {
    return zellen;
}

std::array<std::string, 6> Herleitungskoepfe(std::string_view effektivergebnis) {
    return {"Datum",
            "Betrag",
            "Faktor " + std::string(Getrimmt(effektivergebnis)) + " %",
            "Vermögensendwert",
            "kumulierter Vermögensendwert",
            "kumulierte Zahlungen"};
}

double Herleitungszinssatz(std::string_view effektivergebnis) {
    return Zahlwert(effektivergebnis);
}

std::vector<Ergebnissatz> Herleitungszeilen(std::span<const Reihensatz> reihe, Effektivmethode methode,
                                            std::string_view effektivergebnis) {
    std::vector<Ergebnissatz> zeilen;
    try {
        EndwertRechnen(reihe, methode, Herleitungszinssatz(effektivergebnis), &zeilen);
    } catch (const std::runtime_error&) {
        // The rows before the fault are the table.
    }
    return zeilen;
}

std::string Effektivzinsanzeige(std::string_view effektivergebnis) {
    return Format(effektivergebnis, anzeigemuster);
}

}  // namespace zinfolio
